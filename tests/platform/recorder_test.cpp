#include "platform/painting/recorder.h"

#include <gtest/gtest.h>

#include "platform/painting/fonts.h"

namespace tagwright {
namespace {

using What = Painted::What;

TEST(Recorder, HasTheSizeAndResolutionThatItIsGiven) {
  const RecordingSurface page(1440, 2880, 600);
  EXPECT_EQ(page.ScaleWidth(), 1440);
  EXPECT_EQ(page.ScaleX(1440, kTwips, kPixels), 600);
  EXPECT_EQ(page.ScaleY(2880, kTwips, kPixels), 1200);
}

TEST(Recorder, KeepsWhatWasPaintedInOrderAndBeyondAClear) {
  RecordingSurface page;
  page.Line(0, 0, 1, 1, 5);
  page.Cls();
  page.Print("a");
  page.Print("b");
  ASSERT_EQ(page.painted.size(), 5u);
  EXPECT_EQ(page.painted[0].what, What::kOpen);
  EXPECT_EQ(page.painted[1].what, What::kBox);
  EXPECT_EQ(page.painted[2].what, What::kClear);
  EXPECT_EQ(page.Texts(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(page.Of(What::kBox).size(), 1u);
}

TEST(Recorder, OpensOnceForAllThatFollows) {
  RecordingSurface page;
  page.Print("");
  page.Print("");
  page.Line(0, 0, 1, 1, 5);
  EXPECT_EQ(page.Of(What::kOpen).size(), 1u);
}

TEST(Recorder, KeepsTheExtentOfText) {
  SetFonts(nullptr);
  RecordingSurface page(1440, 1440, 72);
  page.Font = {"Arial", 20, true, false};
  page.Print("abc");
  const Painted text = page.Of(What::kText)[0];
  EXPECT_NEAR(text.x2 - text.x1, 33, 1e-9);
  EXPECT_NEAR(text.y2 - text.y1, 22, 1e-9);
  EXPECT_TRUE(text.Font().Bold);
}

TEST(Recorder, KeepsTheDrawingModeOfEverything) {
  RecordingSurface page;
  page.Rectangle(0, 0, 1, 1);
  page.DrawMode = kMaskPen;
  page.Rectangle(0, 0, 1, 1);
  page.Line(0, 0, 1, 1, 0);
  EXPECT_EQ(page.Of(What::kShape)[0].draw_mode, kCopyPen);
  EXPECT_EQ(page.Of(What::kShape)[1].draw_mode, kMaskPen);
  EXPECT_EQ(page.Of(What::kBox)[0].draw_mode, kMaskPen);
}

TEST(FixedFonts, AreLinearInTheSize) {
  FontService& fonts = FixedFonts();
  EXPECT_DOUBLE_EQ(fonts.Width("abcd", {"Arial", 10, false, false}), 20);
  EXPECT_DOUBLE_EQ(fonts.Width("abcd", {"Arial", 10, true, false}), 22);
  EXPECT_DOUBLE_EQ(fonts.Width("äöü€", {"Arial", 10, false, true}), 20);
  EXPECT_DOUBLE_EQ(fonts.Ascent({"Arial", 10, false, false}), 9);
  EXPECT_DOUBLE_EQ(fonts.Descent({"Arial", 10, false, false}), 2);
  EXPECT_EQ(fonts.Families().size(), 3u);
}

}  // namespace
}  // namespace tagwright
