#include "tools/placement_arithmetic.h"

#include <gtest/gtest.h>

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

TEST(PlacementArithmetic, ABoxIsTinyBelowElevenTenths) {
  const struct {
    double width, height;
    bool tiny;
  } rows[] = {{1.1, 1.1, false}, {1.09, 5, true}, {5, 1.09, true}, {0, 0, true}, {30, 20, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(IsTiny({row.width, row.height}), row.tiny) << row.width << " " << row.height;
  }
}

TEST(PlacementArithmetic, APictureIsCutToNineTenthsOfTheLabel) {
  const struct {
    Extent picture, label, cut;
  } rows[] = {
      {{20, 10}, {100, 50}, {20, 10}},    // fits
      {{90, 45}, {100, 50}, {90, 45}},    // exactly nine tenths
      {{180, 10}, {100, 50}, {90, 5}},    // too wide
      {{20, 90}, {100, 50}, {10, 45}},    // too high
      {{180, 180}, {100, 50}, {45, 45}},  // both: still too high after the width
      {{360, 45}, {100, 50}, {90, 11.25}},
  };
  for (const auto& row : rows) {
    const Extent cut = PictureExtent(row.picture, row.label);
    EXPECT_DOUBLE_EQ(cut.width, row.cut.width) << row.picture.width << " " << row.picture.height;
    EXPECT_DOUBLE_EQ(cut.height, row.cut.height) << row.picture.width << " " << row.picture.height;
  }
}

TEST(PlacementArithmetic, APictureWithoutWidthOnALabelBelowNothingFaults) {
  EXPECT_THROW(PictureExtent({0, 10}, {-1, 50}), Fault);
}

TEST(PlacementArithmetic, ALinesThinSideBecomesATenth) {
  const struct {
    Extent drawn, kept;
  } rows[] = {{{30, 0}, {30, 0.1}},
              {{0, 30}, {0.1, 30}},
              {{0, 0}, {0.1, 0.1}},
              {{0.99, 1}, {0.1, 1}},
              {{1, 0.99}, {1, 0.1}}};
  for (const auto& row : rows) {
    EXPECT_DOUBLE_EQ(LineExtent(row.drawn).width, row.kept.width);
    EXPECT_DOUBLE_EQ(LineExtent(row.drawn).height, row.kept.height);
  }
}

// Five characters: 32 bars of 0.02 inch and 31 gaps of 0.026 inch, an eighth of an inch high.
TEST(PlacementArithmetic, PostNetCountsBarsAndGapsInInches) {
  const Extent symbol = PostNetExtent(5);
  EXPECT_NEAR(symbol.width, 32 * 0.508 + 31 * 0.6604, 1e-5);
  EXPECT_DOUBLE_EQ(symbol.height, 3.175);
  EXPECT_NEAR(PostNetExtent(0).width, 7 * 0.508 + 6 * 0.6604, 1e-5);
}

TEST(PlacementArithmetic, ANewRoyalMailSymbolIsSmallerThanAReformattedOne) {
  EXPECT_DOUBLE_EQ(RoyalMailExtent(6).width, (7 * 4 + 1.5) * 0.76);
  EXPECT_DOUBLE_EQ(RoyalMailExtent(6).height, 4.22);
}

TEST(PlacementArithmetic, ClicksZoomByHalfInAndAQuarterOut) {
  const double last = 7.5;
  const struct {
    double zoom, in, out;
  } rows[] = {{1, 1.5, 0.75},      {1.5, 2.25, 1.13}, {0.5, 0.75, 0.38},
              {7.49, 11.24, 5.62}, {7.5, 7.5, 5.63},  {8, 8, 6}};
  for (const auto& row : rows) {
    EXPECT_DOUBLE_EQ(ZoomedIn(row.zoom, last), row.in) << row.zoom;
    EXPECT_DOUBLE_EQ(ZoomedOut(row.zoom), row.out) << row.zoom;
  }
}

TEST(PlacementArithmetic, ZoomingOutCountsMoreThanFiftyAsFifty) {
  EXPECT_DOUBLE_EQ(ZoomedOut(49), 36.75);
  EXPECT_DOUBLE_EQ(ZoomedOut(50), 37.5);
  EXPECT_DOUBLE_EQ(ZoomedOut(60), 37.5);
}

}  // namespace
}  // namespace tagwright
