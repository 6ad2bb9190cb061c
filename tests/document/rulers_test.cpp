#include "document/rulers.h"

#include <cmath>
#include <limits>

#include "common/prog_settings.h"
#include "document/document_support.h"

namespace tagwright {
namespace {

constexpr Color kBand = Rgb(255, 255, 220);
constexpr Color kInk = Rgb(150, 150, 150);

class RulersTest : public LabelTest {
 protected:
  RulersTest() { frmMain.mnuFileRulers.SetChecked(true); }

  // A board of 300 by 200 mm at `zoom`, with the label's corner at (100, 75).
  void Draw(double zoom, double origin_x = 100, double origin_y = 75) {
    ZoomFactor = zoom;
    ReadyBoard();
    BoardOriginX = origin_x;
    BoardOriginY = origin_y;
    Board().painted.clear();
    DrawRulers();
  }

  static double Millimetres(double pixels) { return pixels / kPixelsPerMillimetre / ZoomFactor; }

  // The ticks along the top: vertical lines. Place and length in board units.
  std::vector<std::pair<double, double>> TopTicks() {
    std::vector<std::pair<double, double>> ticks;
    for (const Painted& line : Board().Of(Painted::What::kLine)) {
      if (std::abs(line.x1 - line.x2) < 1e-9) {
        ticks.emplace_back(Millimetres(line.x1), Millimetres(std::abs(line.y2 - line.y1)));
      }
    }
    return ticks;
  }

  void ExpectBandsAlone() {
    EXPECT_EQ(Board().Of(Painted::What::kBox).size(), 2u);
    EXPECT_TRUE(Board().Of(Painted::What::kLine).empty());
    EXPECT_TRUE(Board().Texts().empty());
  }

  std::size_t TicksOfLength(double millimetres_on_screen) {
    std::size_t count = 0;
    for (const auto& [place, length] : TopTicks()) {
      if (std::abs(length * ZoomFactor - millimetres_on_screen) < 1e-6) ++count;
    }
    return count;
  }
};

TEST_F(RulersTest, NothingIsDrawnWithoutTheMenusCheck) {
  frmMain.mnuFileRulers.SetChecked(false);
  Draw(1);
  EXPECT_TRUE(Board().painted.empty());
}

TEST_F(RulersTest, BandsFillBothSidesFiveMillimetresDeepOnScreen) {
  for (const double zoom : {0.5, 1.0, 4.0}) {
    Draw(zoom);
    const auto bands = Board().Of(Painted::What::kBox);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_EQ(bands[0].color, kBand);
    EXPECT_NEAR(bands[0].x2 - bands[0].x1, 300 * kPixelsPerMillimetre, 1e-6);
    EXPECT_NEAR(bands[0].y2 - bands[0].y1, 5 * kPixelsPerMillimetre, 1e-6) << zoom;
    EXPECT_NEAR(bands[1].x2 - bands[1].x1, 5 * kPixelsPerMillimetre, 1e-6) << zoom;
    EXPECT_NEAR(bands[1].y2 - bands[1].y1, 200 * kPixelsPerMillimetre, 1e-6);
  }
}

TEST_F(RulersTest, At100PercentATickStandsAtEveryMillimetre) {
  Draw(1);
  const auto ticks = TopTicks();
  ASSERT_EQ(ticks.size(), 299u);  // board positions 1 to 299
  for (std::size_t i = 0; i < ticks.size(); ++i) {
    EXPECT_NEAR(ticks[i].first, 1.0 + static_cast<double>(i), 1e-6);
  }
  // Label positions -99 to 199: 29 tens (-90 to 190) and 30 further fives (-95 to 195), 2 mm long;
  // all others 1 mm.
  EXPECT_EQ(TicksOfLength(2), 59u);
  EXPECT_EQ(TicksOfLength(1), 240u);
}

TEST_F(RulersTest, TicksAndNumbersAreGreyInArial7) {
  Draw(1);
  EXPECT_EQ(Board().Of(Painted::What::kLine).front().UsedPen().color, kInk);
  EXPECT_EQ(Board().Of(Painted::What::kLine).front().UsedPen().width, 1);
  const Painted number = Board().Of(Painted::What::kText).front();
  EXPECT_EQ(number.color, kInk);
  EXPECT_EQ(number.Font(), (FontSpec{"Arial", 7, false, false}));
}

TEST_F(RulersTest, At60PercentOnlyHalfAndMajorTicksRemain) {
  Draw(0.6);
  EXPECT_EQ(TicksOfLength(1), 0u);
  // The board shows 500 mm: positions 1 to 499 are -99 to 399 on the label: 49 tens, 50 fives.
  EXPECT_EQ(TicksOfLength(2), 99u);
}

TEST_F(RulersTest, MinorTicksNeedAZoomAboveSeventyPercent) {
  Draw(0.7);
  EXPECT_EQ(TicksOfLength(1), 0u);
  Draw(0.71);
  EXPECT_GT(TicksOfLength(1), 0u);
}

TEST_F(RulersTest, At20PercentOnlyMajorTicksRemain) {
  Draw(0.2);
  // 1500 mm: positions 1 to 1499 are -99 to 1399: 149 tens.
  EXPECT_EQ(TopTicks().size(), 149u);
  Draw(0.21);
  EXPECT_GT(TopTicks().size(), 149u);
}

TEST_F(RulersTest, NumbersCountCentimetresAndAreNegativeBeforeTheLabel) {
  Draw(1);
  const auto texts = Board().Texts();
  // Top: -9 to 19; left: origin 75, positions 1 to 199 are -74 to 124: -7 to 12, of which -7 would
  // reach into the corner.
  ASSERT_EQ(texts.size(), 29u + 19u);
  EXPECT_EQ(texts[0], "-9");
  EXPECT_EQ(texts[9], "0");
  EXPECT_EQ(texts[28], "19");
  EXPECT_EQ(texts[29], "-6");
  EXPECT_EQ(texts.back(), "12");
}

TEST_F(RulersTest, NumbersAreCentredAtTheTopAndEndAtTheTicksDepthAtTheLeft) {
  Draw(1);
  const auto texts = Board().Of(Painted::What::kText);
  // "0" of the top ruler stands on the label's corner, 100.
  EXPECT_NEAR(Millimetres((texts[9].x1 + texts[9].x2) / 2), 100, 1e-6);
  // "-6" of the left ruler: label position -60, board position 15.
  EXPECT_NEAR(Millimetres(texts[29].x2), 3, 1e-6);
  EXPECT_NEAR(Millimetres((texts[29].y1 + texts[29].y2) / 2), 15, 1e-6);
}

// The two rulers share the corner: there the numbers of one would lie on those and on the ticks of
// the other.
TEST_F(RulersTest, NoNumberReachesIntoTheCorner) {
  for (const double zoom : {0.5, 1.0, 3.0}) {
    for (double origin = 60; origin < 70; origin += 0.5) {
      Draw(zoom, origin, origin);
      const double corner = 5 / zoom;
      double first_top = 1e9, first_left = 1e9;
      for (const Painted& number : Board().Of(Painted::What::kText)) {
        const bool at_top = number.y1 == 0;
        const double start = Millimetres(at_top ? number.x1 : number.y1);
        EXPECT_GE(start, corner - 1e-6) << zoom << " " << origin;
        double& first = at_top ? first_top : first_left;
        first = std::min(first, start);
      }
      // And no number is missing beyond it: one stands on each centimetre.
      EXPECT_LT(first_top, corner + 10 + 1e-6) << zoom << " " << origin;
      EXPECT_LT(first_left, corner + 10 + 1e-6) << zoom << " " << origin;
    }
  }
}

TEST_F(RulersTest, At49PercentANumberComesOnlyAfterMoreThan20Ticks) {
  Draw(0.49);
  // Label positions from -99. The first number needs 21 ticks before it: -70. Then every 30.
  EXPECT_EQ(Board().Texts()[0], "-7");
  EXPECT_EQ(Board().Texts()[1], "-4");
  Draw(0.5);
  // Every ten; -9 stands at board position 10, which here is the end of the corner.
  EXPECT_EQ(Board().Texts()[0], "-8");
  EXPECT_EQ(Board().Texts()[1], "-7");
}

TEST_F(RulersTest, InchTicksStandOnTrueTenthsOfAnInch) {
  ProgSettings.MetricUnits = kFalse;
  UnitScale = 25.4;
  RulerScale = 2.54;
  Draw(1);
  // (1 - 100) / 2.54 = -38.976..: the nearest tick is -39, at 100 - 39 x 2.54 = 0.94. Cut to three
  // decimals the quotient is -38.976, which puts that tick at 1 - 0.024 x 2.54 = 0.93904.
  const auto ticks = TopTicks();
  EXPECT_NEAR(ticks[0].first, 0.93904, 1e-6);
  EXPECT_NEAR(ticks[1].first - ticks[0].first, 2.54, 1e-6);
  EXPECT_NEAR(ticks[39].first, 100, 0.002);
  // Tenths -39 to 78: the first whole inch is -3.
  EXPECT_EQ(Board().Texts()[0], "-3");
}

TEST_F(RulersTest, LabelCornerAwayFromTheBoardDrawsFromItsOwnCount) {
  Draw(1, -50, -20);
  // Board position 1 is label position 51.
  EXPECT_EQ(Board().Texts()[0], "6");
  EXPECT_NEAR(TopTicks()[0].first, 1, 1e-6);
}

TEST_F(RulersTest, LabelWithoutACountableCornerHasBandsAlone) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  for (const double corner : {2e9, -2e9, 1e30, -3e38, kInfinity, -kInfinity, kNoNumber}) {
    SCOPED_TRACE(corner);
    Draw(1, corner, corner);
    ExpectBandsAlone();
  }
}

TEST_F(RulersTest, LabelFarAwayIsStillCounted) {
  Draw(1, -5e8, -5e8);
  EXPECT_EQ(TopTicks().size(), 299u);
  EXPECT_EQ(Board().Texts()[0], "50000001") << "the first ten after 500,000,001 mm";
}

TEST_F(RulersTest, BoardWiderThanAnyScreenHasBandsAlone) {
  Draw(300 / 99999.0);  // 99,999 mm wide: major ticks only, below 20 %
  EXPECT_EQ(TopTicks().size(), 9999u);
  for (const double zoom : {300 / 100001.0, 1e-9, 1e-300}) {
    SCOPED_TRACE(zoom);
    Draw(zoom);
    EXPECT_TRUE(TopTicks().empty());
  }
}

TEST_F(RulersTest, BoardOfLessThanOneTickHasBandsAlone) {
  Draw(400);  // 0.75 by 0.5 mm
  ExpectBandsAlone();
}

}  // namespace
}  // namespace tagwright
