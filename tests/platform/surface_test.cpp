#include "platform/painting/surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/painting/recorder.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

using What = Painted::What;

constexpr double kInch = kTwipsPerInch;

// A sheet of 10 by 5 inches with 96 pixels an inch, in millimetres.
class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() {
    SetFonts(nullptr);
    sheet.Scale().SetScaleMode(kMillimetres);
    sheet.Font = {"Arial", 10, false, false};
  }
  RecordingSurface sheet{10 * kInch, 5 * kInch, 96};
};

double Points(double points) { return points * kMillimetresPerInch / 72; }

// --- measuring ----------------------------------------------------------------------------------

TEST_F(SurfaceTest, MeasuresTextInItsOwnUnits) {
  EXPECT_NEAR(sheet.TextWidth("abcd"), Points(20), 1e-9);
  EXPECT_NEAR(sheet.TextHeight("abcd"), Points(11), 1e-9);
  sheet.Scale().SetScaleMode(kTwips);
  EXPECT_NEAR(sheet.TextWidth("abcd"), 400, 1e-9);
  sheet.Scale().SetScaleMode(kPixels);
  EXPECT_NEAR(sheet.TextWidth("abcd"), 20 * 96 / 72.0, 1e-9);
}

TEST_F(SurfaceTest, MeasuresTheSameMillimetresAtEveryResolution) {
  for (const double resolution : {72.0, 300.0, 600.0, 1200.0}) {
    sheet.Scale().SetPixelsPerInch(resolution);
    EXPECT_NEAR(sheet.TextWidth("abcd"), Points(20), 1e-9) << resolution;
    EXPECT_NEAR(sheet.TextHeight("abcd"), Points(11), 1e-9) << resolution;
  }
}

TEST_F(SurfaceTest, AUserScaleZoomsTextByTheSizeAlone) {
  sheet.Scale().SetScaleWidth(127);  // one unit is 2 mm
  sheet.Scale().SetScaleHeight(63.5);
  EXPECT_NEAR(sheet.TextWidth("abcd"), Points(20) / 2, 1e-9);
  sheet.Font.Size *= 2;
  EXPECT_NEAR(sheet.TextWidth("abcd"), Points(20), 1e-9);
}

TEST_F(SurfaceTest, TheWidestLineIsTheWidthAndAllLinesAreTheHeight) {
  EXPECT_NEAR(sheet.TextWidth("ab\r\nabcd\nabc"), Points(20), 1e-9);
  EXPECT_NEAR(sheet.TextHeight("ab\r\nabcd\nabc"), Points(33), 1e-9);
  EXPECT_NEAR(sheet.TextHeight(""), Points(11), 1e-9);
  EXPECT_EQ(sheet.TextWidth(""), 0);
}

TEST_F(SurfaceTest, ASizeOfZeroOrLessMeasuresNothingAndPaintsNothing) {
  for (const double size : {0.0, -8.0, std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<double>::infinity()}) {
    sheet.Font.Size = size;
    EXPECT_EQ(sheet.TextWidth("abcd"), 0) << size;
    EXPECT_EQ(sheet.TextHeight("abcd"), 0) << size;
    sheet.Print("abcd");
  }
  EXPECT_TRUE(sheet.Of(What::kText).empty());
}

// --- printing text ------------------------------------------------------------------------------

TEST_F(SurfaceTest, PrintsWithItsTopLeftAtTheCurrentPoint) {
  sheet.CurrentX = 25.4;
  sheet.CurrentY = 50.8;
  sheet.ForeColor = 0x123456;
  sheet.Print("abcd");
  ASSERT_EQ(sheet.Of(What::kText).size(), 1u);
  const Painted text = sheet.Of(What::kText)[0];
  EXPECT_NEAR(text.x1, 96, 1e-9);
  EXPECT_NEAR(text.y1, 192, 1e-9);
  EXPECT_EQ(text.Text(), "abcd");
  EXPECT_EQ(text.color, 0x123456);
  EXPECT_EQ(text.Font(), sheet.Font);
}

TEST_F(SurfaceTest, PrintMovesToTheStartOfTheNextLine) {
  sheet.CurrentX = 30;
  sheet.CurrentY = 7;
  sheet.Print("abcd");
  EXPECT_EQ(sheet.CurrentX, 0);
  EXPECT_NEAR(sheet.CurrentY, 7 + Points(11), 1e-9);
}

TEST_F(SurfaceTest, WhatFollowsALineBreakStartsAtTheLeftEdge) {
  sheet.CurrentX = 25.4;
  sheet.Print("one\r\ntwo");
  const std::vector<Painted> lines = sheet.Of(What::kText);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_NEAR(lines[0].x1, 96, 1e-9);
  EXPECT_EQ(lines[1].x1, 0);
  EXPECT_EQ(sheet.Texts(), (std::vector<std::string>{"one", "two"}));
}

TEST_F(SurfaceTest, AnEmptyTextPaintsNothingButOpensThePage) {
  sheet.Print("");
  ASSERT_EQ(sheet.painted.size(), 1u);
  EXPECT_EQ(sheet.painted[0].what, What::kOpen);
}

TEST_F(SurfaceTest, OpaqueTextStandsOnABoxOfTheBackColor) {
  sheet.FontTransparent = false;
  sheet.BackColor = 0x00FF00;
  sheet.Print("abcd");
  ASSERT_EQ(sheet.Of(What::kBox).size(), 1u);
  EXPECT_EQ(sheet.Of(What::kBox)[0].color, 0x00FF00);
  EXPECT_NEAR(sheet.Of(What::kBox)[0].x2, 20 * 96 / 72.0, 1e-9);
  sheet.FontTransparent = true;
  sheet.Print("abcd");
  EXPECT_EQ(sheet.Of(What::kBox).size(), 1u);
}

// --- boxes, lines, shapes -----------------------------------------------------------------------

TEST_F(SurfaceTest, BoxesKeepRealPositionsWhateverTheCorners) {
  sheet.Line(10.03, 20.5, 10.36, 20, 0);
  const Painted box = sheet.Of(What::kBox)[0];
  EXPECT_NEAR(box.x1, 10.03 * 96 / 25.4, 1e-9);
  EXPECT_NEAR(box.x2, 10.36 * 96 / 25.4, 1e-9);
  EXPECT_NEAR(box.y1, 20 * 96 / 25.4, 1e-9);
  EXPECT_NEAR(box.y2, 20.5 * 96 / 25.4, 1e-9);
}

TEST_F(SurfaceTest, BoxesFollowTheUserScale) {
  sheet.Scale().SetScaleWidth(100);
  sheet.Scale().SetScaleHeight(100);
  sheet.Line(50, 50, 100, 100, 7);
  const Painted box = sheet.Of(What::kBox)[0];
  EXPECT_NEAR(box.x1, 480, 1e-9);
  EXPECT_NEAR(box.y1, 240, 1e-9);
  EXPECT_NEAR(box.x2, 960, 1e-9);
  EXPECT_NEAR(box.y2, 480, 1e-9);
  EXPECT_EQ(box.color, 7);
}

TEST_F(SurfaceTest, LinesGoOnFromWhereTheLastOneEnded) {
  sheet.SelectObject(CreatePen(kPenSolid, 3, 0xFF));
  sheet.MoveToEx(10, 20);
  sheet.LineTo(30, 20);
  sheet.LineTo(30, 50);
  const std::vector<Painted> lines = sheet.Of(What::kLine);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].x2, 30);  // the last pixel too
  EXPECT_EQ(lines[1].x1, 30);
  EXPECT_EQ(lines[1].y1, 20);
  EXPECT_EQ(lines[1].y2, 50);
  EXPECT_EQ(lines[1].UsedPen().width, 3);
}

TEST_F(SurfaceTest, ShapesTakeDevicePixelsAndTheSelectedPenAndBrush) {
  sheet.SelectObject(CreatePen(kPenSolid, 2, 0xFF));
  sheet.SelectObject(CreateSolidBrush(0xFF00));
  sheet.Rectangle(1.5, 2.5, 30.25, 40);
  sheet.SelectObject(NullBrush());
  sheet.RoundRect(1, 2, 3, 4, 12, 8);
  sheet.Ellipse(5, 6, 7, 8);
  const std::vector<Painted> shapes = sheet.Of(What::kShape);
  ASSERT_EQ(shapes.size(), 3u);
  EXPECT_EQ(shapes[0].x2, 30.25);
  EXPECT_EQ(shapes[0].UsedPen().color, 0xFF);
  EXPECT_EQ(shapes[0].UsedBrush().color, 0xFF00);
  EXPECT_FALSE(shapes[0].UsedBrush().null);
  EXPECT_EQ(shapes[1].CornerWidth(), 12);
  EXPECT_EQ(shapes[1].CornerHeight(), 8);
  EXPECT_TRUE(shapes[1].UsedBrush().null);
  EXPECT_EQ(shapes[2].Shape(), ShapeKind::kEllipse);
}

TEST_F(SurfaceTest, APenKeepsItsPixelsWhateverTheScale) {
  for (const double units : {50.0, 100.0, 200.0}) {
    sheet.Scale().SetScaleWidth(units);
    sheet.SelectObject(CreatePen(kPenSolid, 4, 0));
    sheet.Rectangle(0, 0, 10, 10);
    EXPECT_EQ(sheet.Of(What::kShape).back().UsedPen().width, 4);
  }
}

TEST_F(SurfaceTest, WhatLiesNowhereIsNotPainted) {
  const double nowhere = std::numeric_limits<double>::quiet_NaN();
  const double beyond = std::numeric_limits<double>::infinity();
  sheet.Line(nowhere, 0, 1, 1, 0);
  sheet.Rectangle(0, 0, beyond, 1);
  sheet.RoundRect(0, 0, 1, 1, nowhere, 1);
  sheet.MoveToEx(nowhere, 0);
  sheet.LineTo(1, 1);
  sheet.PaintPicture(BlankPicture(1, 1), 0, 0, -beyond, 1);
  sheet.CurrentX = nowhere;
  sheet.Print("abcd");
  ASSERT_EQ(sheet.painted.size(), 1u);
  EXPECT_EQ(sheet.painted[0].what, What::kOpen);
}

// --- pictures, clearing -------------------------------------------------------------------------

TEST_F(SurfaceTest, PicturesStretchIntoTheirBox) {
  sheet.PaintPicture(BlankPicture(100, 100), 25.4, 0, 50.8, 12.7);
  const Painted picture = sheet.Of(What::kPicture)[0];
  EXPECT_NEAR(picture.x1, 96, 1e-9);
  EXPECT_NEAR(picture.x2, 288, 1e-9);
  EXPECT_NEAR(picture.y2, 48, 1e-9);
}

TEST_F(SurfaceTest, APictureThatIsNotThereIsNotPainted) {
  sheet.PaintPicture(nullptr, 0, 0, 10, 10);
  EXPECT_TRUE(sheet.Of(What::kPicture).empty());
}

TEST_F(SurfaceTest, ClsWipesWithTheBackColorAndGoesBackToTheCorner) {
  sheet.CurrentX = 5;
  sheet.CurrentY = 6;
  sheet.BackColor = 0xABCDEF;
  sheet.Cls();
  EXPECT_EQ(sheet.Of(What::kClear)[0].color, 0xABCDEF);
  EXPECT_EQ(sheet.CurrentX, 0);
  EXPECT_EQ(sheet.CurrentY, 0);
}

TEST_F(SurfaceTest, ASharedScaleMovesWithItsOwner) {
  ScaleSpace owner(kInch, kInch, 96);
  sheet.ShareScale(owner);
  owner.SetScaleWidth(10);
  EXPECT_EQ(sheet.ScaleWidth(), 10);
  EXPECT_NEAR(sheet.ScaleX(5, kUserScale, kPixels), 48, 1e-9);
}

}  // namespace
}  // namespace tagwright
