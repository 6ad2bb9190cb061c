#include "editing/geometry.h"

#include <gtest/gtest.h>

#include "editing/magnetic_rule.h"
#include "support/fault_of.h"

namespace tagwright {
namespace {

constexpr Rule kRuleAt50{true, 50, 1};

void ExpectBox(const BoardFrame& box, double left, double top, double width, double height) {
  EXPECT_DOUBLE_EQ(box.left, left);
  EXPECT_DOUBLE_EQ(box.top, top);
  EXPECT_DOUBLE_EQ(box.width, width);
  EXPECT_DOUBLE_EQ(box.height, height);
}

// --- snapping -----------------------------------------------------------------------------------

// The zone's ends are out, on both sides.
TEST(GeometryTest, APointSnapsStrictlyWithinTheZone) {
  const struct {
    double value;
    bool hit;
  } rows[] = {{48.9, false}, {49.0, false},  {49.001, true}, {50.0, true},
              {50.9, true},  {50.999, true}, {51.0, false},  {51.1, false}};
  for (const auto& row : rows) {
    const Snapped snapped = SnapPoint(row.value, kRuleAt50);
    EXPECT_EQ(snapped.hit, row.hit) << row.value;
    EXPECT_EQ(snapped.at, row.hit ? 50 : row.value) << row.value;
  }
}

TEST(GeometryTest, ARuleThatIsNotInForceCatchesNothing) {
  const Snapped snapped = SnapPoint(50, {false, 50, 1});
  EXPECT_FALSE(snapped.hit);
  EXPECT_EQ(snapped.at, 50);
}

TEST(GeometryTest, AZoneOfNothingCatchesNothingNotEvenTheRuleItself) {
  EXPECT_FALSE(SnapPoint(50, {true, 50, 0}).hit);
}

TEST(GeometryTest, ABoxSnapsWithItsNearEdgeThenTheFarOneThenTheMiddle) {
  const struct {
    double start, extent, at;
    bool hit;
  } rows[] = {
      {50.9, 20, 50, true},     // near edge
      {51.0, 20, 51, false},    // none: 51, 71, 61
      {30.5, 20, 30, true},     // far edge 50.5
      {40.4, 20, 40, true},     // middle 50.4
      {49.5, 1.2, 50, true},    // near edge first, although far 50.7 and middle 50.1 are caught too
      {49.0, 1.2, 48.8, true},  // near edge on the zone's end: the far one at 50.2 is next
      {20, 20, 20, false},
  };
  for (const auto& row : rows) {
    const Snapped snapped = SnapBox(row.start, row.extent, kRuleAt50);
    EXPECT_EQ(snapped.hit, row.hit) << row.start;
    EXPECT_DOUBLE_EQ(snapped.at, row.at) << row.start;
  }
}

// --- rubber -------------------------------------------------------------------------------------

TEST(GeometryTest, ABoxLiesBetweenItsCornersInAnyDirection) {
  ExpectBox(BoxBetween({30, 40}, {10, 15}), 10, 15, 20, 25);
  ExpectBox(BoxBetween({10, 15}, {30, 40}), 10, 15, 20, 25);
  ExpectBox(BoxBetween({10, 40}, {30, 15}), 10, 15, 20, 25);
  ExpectBox(BoxBetween({10, 10}, {10, 10}), 10, 10, 0, 0);
}

TEST(GeometryTest, ALineOfEqualSidesStands) {
  EXPECT_TRUE(LineStands(5, 5));
  EXPECT_TRUE(LineStands(4.9, 5));
  EXPECT_FALSE(LineStands(5.1, 5));
}

TEST(GeometryTest, ADraggedLineStaysThin) {
  ExpectBox(ThinBox({10, 20, 30, 40}, true, 0.5), 10, 20, 0.5, 40);
  ExpectBox(ThinBox({10, 20, 30, 40}, false, 0.5), 10, 20, 30, 0.5);
}

TEST(GeometryTest, ARubberLineIsLevelUpToADiagonalWhichIsLevelToo) {
  const struct {
    double x, y, end_x, end_y;
  } rows[] = {{20, 10, 20, 10}, {20, 19.9, 20, 10}, {20, 20, 20, 10},    {20, 20.1, 10, 20.1},
              {10, 30, 10, 30}, {0, 0, 0, 10},      {0, -0.1, 10, -0.1}, {10, 10, 10, 10}};
  for (const auto& row : rows) {
    const BoardPoint end = LineEnd({10, 10}, {row.x, row.y}, {row.x - 10, row.y - 10});
    EXPECT_EQ(end.x, row.end_x) << row.x << " " << row.y;
    EXPECT_EQ(end.y, row.end_y) << row.x << " " << row.y;
  }
}

// The way decides, and not the ends, which are rounded.
TEST(GeometryTest, WaysThatDifferByLessThanAPointerMovesAreTheSame) {
  EXPECT_EQ(LineEnd({10, 10}, {20, 20.001}, {1500, 1500.0001}).y, 10);
  EXPECT_EQ(LineEnd({10, 10}, {20, 20}, {1500, 1501}).x, 10);
  EXPECT_EQ(LineEnd({10, 10}, {0, 0}, {-1500, -1500.0001}).y, 10);
}

// --- handles ------------------------------------------------------------------------------------

// A handle of 2 by 2 at (10, 20), gaps of 1 across and 3 down.
TEST(GeometryTest, AHandleStandsForTheCornerAGapAwayFromIt) {
  const struct {
    int handle;
    double x, y;
    AnchorCorner anchor;
  } rows[] = {{0, 13, 25, kAnchorBottomRight},
              {1, 9, 25, kAnchorBottomLeft},
              {2, 13, 17, kAnchorTopRight},
              {3, 9, 17, kAnchorTopLeft}};
  for (const auto& row : rows) {
    const BoardPoint corner = CornerOfHandle(row.handle, {10, 20, 2, 2}, 1, 3);
    EXPECT_EQ(corner.x, row.x) << row.handle;
    EXPECT_EQ(corner.y, row.y) << row.handle;
    EXPECT_EQ(AnchorOfHandle(row.handle), row.anchor) << row.handle;
  }
}

// --- text ---------------------------------------------------------------------------------------

TEST(GeometryTest, TheFontFollowsTheWidth) {
  EXPECT_DOUBLE_EQ(WidthRatio(30, 20), 1.5);
  EXPECT_DOUBLE_EQ(WidthRatio(20, 20), 1);
  EXPECT_DOUBLE_EQ(WidthRatio(0, 20), 0);
  EXPECT_EQ(FaultOf([] { WidthRatio(30, 0); }), kDivisionByZero);
}

TEST(GeometryTest, AFontSizeIsWholeAndNeverZero) {
  const struct {
    double ratio, points, size;
  } rows[] = {{1.5, 12, 18}, {1, 13.5, 13}, {1.99, 1, 1}, {0.04, 20, 1},
              {0, 12, 1},    {0.5, 1.9, 1}, {2, 1, 2}};
  for (const auto& row : rows) {
    EXPECT_EQ(ScaledFontSize(row.ratio, row.points), row.size) << row.ratio << " " << row.points;
  }
  EXPECT_EQ(FaultOf([] { ScaledFontSize(1e308, 12); }), kOverflow);
}

}  // namespace
}  // namespace tagwright
