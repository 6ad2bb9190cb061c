#include "document/overlay_geometry.h"

#include "document/document_support.h"

namespace tagwright {
namespace {

TEST(OverlayGeometryTest, ABoxIsThatOfTheRecord) {
  const BoardBox box = BoxOf(ShapeObject(kRectangle, 10, 20, 30, 40));
  EXPECT_EQ(box.left, 10);
  EXPECT_EQ(box.top, 20);
  EXPECT_EQ(box.right, 40);
  EXPECT_EQ(box.bottom, 60);
}

TEST(OverlayGeometryTest, TheBoxAroundTwoHoldsBoth) {
  const BoardBox box = Around({10, 20, 40, 60}, {-5, 30, 20, 90});
  EXPECT_EQ(box.left, -5);
  EXPECT_EQ(box.top, 20);
  EXPECT_EQ(box.right, 40);
  EXPECT_EQ(box.bottom, 90);
}

TEST(OverlayGeometryTest, HandlesStandOutsideTheCornersAGapAway) {
  const auto places = HandlePlaces({10, 20, 40, 60}, 2, 3, 1, 1.5);
  const double rows[4][2] = {{7, 15.5}, {41, 15.5}, {7, 61.5}, {41, 61.5}};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(places[i].left, rows[i][0]) << i;
    EXPECT_EQ(places[i].top, rows[i][1]) << i;
  }
}

}  // namespace
}  // namespace tagwright
