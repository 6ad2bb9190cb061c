#include "barcode/postal.h"

#include "barcode_test_support.h"

namespace tagwright {
namespace {

using PostNetTest = BarcodeTest;
using RoyalMailTest = BarcodeTest;
using Rows = std::vector<std::string>;

TEST_F(PostNetTest, FrameDigitsCheckDigitFrame) {
  EXPECT_EQ(Strings(PostNetPatterns("12345")),
            (Rows{"2", "11122", "11212", "11221", "12112", "12121", "12121", "2"}));
  Draw("12345", 12);
  EXPECT_EQ(Bars().size(), 32U);
}

TEST_F(PostNetTest, BarsOfTwoHeightsAtTheirPlaces) {
  Draw("1", 12);  // frame "2", digit "11122", check 9 "21211", frame "2"
  const std::string heights =
      "2"
      "11122"
      "21211"
      "2";
  const auto bars = Bars();
  ASSERT_EQ(bars.size(), heights.size());
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const bool low = heights[i] == '1';
    const double left = 10 + static_cast<double>(i) * (0.508 + 0.6604);
    EXPECT_NEAR(bars[i].left, left, 1e-5) << i;
    EXPECT_NEAR(bars[i].right, left + 0.508, 1e-5) << i;
    EXPECT_NEAR(bars[i].top, 20 + (low ? 1.9 : 0), 1e-9) << i;
    EXPECT_NEAR(bars[i].bottom, 20 + (low ? 1.9 + 1.27 : 3.175), 1e-9) << i;
  }
  EXPECT_NEAR(CursorX, 10 + 12 * 1.1684, 1e-5);
}

TEST_F(PostNetTest, ADigitSumThatEndsInZeroHasNoCheckDigit) {
  EXPECT_EQ(Strings(PostNetPatterns("55")), (Rows{"2", "12121", "12121", "", "2"}));
  Draw("55", 12);
  EXPECT_EQ(Bars().size(), 12U);
  EXPECT_EQ(PostNetPatterns("1")[2], PostNetSymbol("9"));
  EXPECT_EQ(PostNetPatterns("9")[2], PostNetSymbol("1"));
  EXPECT_EQ(PostNetPatterns("0")[2], "");
}

TEST_F(PostNetTest, SizeTextAndFontPlayNoPart) {
  Draw("12345", 12);
  const auto plain = Bars();
  Symbol symbol{"12345", 12};
  symbol.width = 3;
  symbol.height = 100;
  symbol.text = true;
  symbol.font_size = 40;
  Draw(symbol);
  EXPECT_TRUE(Texts().empty());
  const auto bars = Bars();
  ASSERT_EQ(bars.size(), plain.size());
  for (std::size_t i = 0; i < bars.size(); ++i) {
    EXPECT_EQ(bars[i].left, plain[i].left);
    EXPECT_EQ(bars[i].bottom, plain[i].bottom);
  }
}

// One inch is 25.4 units of the target, whatever its scale says.
TEST_F(PostNetTest, AnInchIs254UnitsOnEveryTarget) {
  page.Scale().SetScaleWidth(50);
  page.Scale().SetScaleHeight(40);
  Draw("12345", 12);
  EXPECT_NEAR(ModuleWidth, 0.508, 1e-12);
  EXPECT_NEAR(BarGap, 0.6604, 1e-12);
}

TEST_F(PostNetTest, OnlySingleDigitsHaveBars) {
  EXPECT_EQ(PostNetSymbol("0"), "22111");
  EXPECT_EQ(PostNetSymbol("10"), "");
  EXPECT_EQ(PostNetSymbol(""), "");
  EXPECT_EQ(PostNetSymbol("A"), "");
}

TEST_F(RoyalMailTest, FourBarsACharacterACheckCharacterAndTwoFrameBars) {
  // Rows and columns: S 5,5 N 0,4 3 4,1 4 5,1 R 4,5 D 2,3 1 2,1 A 5,2: sums 27 and 22, so row 3 and
  // column 4, which is "K".
  EXPECT_EQ(RoyalMailCheck("SN34RD1A"), 'K');
  EXPECT_EQ(
      Strings(RoyalMailPatterns("SN34RD1A")),
      (Rows{"2", "0303", "0132", "1320", "1302", "0321", "3021", "3120", "1212", "2112", "0"}));
  Draw("SN34RD1A", 13);
  const auto bars = Bars();
  ASSERT_EQ(bars.size(), 2U + 8U * 4U + 4U);
  for (std::size_t i = 0; i < bars.size(); ++i) {
    EXPECT_NEAR(bars[i].left, 10 + 1.1 * static_cast<double>(i), 1e-4) << i;
    EXPECT_NEAR(bars[i].right - bars[i].left, 0.55, 1e-9) << i;
  }
}

TEST_F(RoyalMailTest, TheFourBarStates) {
  page.painted.clear();
  CursorX = 10;
  CursorY = 20;
  PaintRoyalMailBars("0123");
  const auto bars = Bars();
  ASSERT_EQ(bars.size(), 4U);
  const std::array<std::array<double, 2>, 4> expected = {
      {{20, 25}, {21.75, 25}, {20, 23.25}, {21.75, 23.25}}};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_DOUBLE_EQ(bars[i].top, expected[i][0]) << i;
    EXPECT_DOUBLE_EQ(bars[i].bottom, expected[i][1]) << i;
  }
}

TEST_F(RoyalMailTest, AnUnknownStateKeepsTheFormerHeightAndTop) {
  CursorX = 10;
  CursorY = 20;
  PaintRoyalMailBars("19");
  const auto bars = Bars();
  ASSERT_EQ(bars.size(), 2U);
  EXPECT_DOUBLE_EQ(bars[1].top, bars[0].top);
  EXPECT_DOUBLE_EQ(bars[1].bottom, bars[0].bottom);
  EXPECT_NEAR(bars[1].left, 11.1, 1e-6);
}

TEST_F(RoyalMailTest, BracketsAreSingleBarsAndCountNothing) {
  EXPECT_EQ(RoyalMailCheck("(1)"), RoyalMailCheck("1"));
  EXPECT_EQ(Strings(RoyalMailPatterns("(1)")), (Rows{"2", "2", "3120", "0", "3120", "0"}));
  Draw("A(B", 13);
  EXPECT_EQ(Bars().size(), 1U + 4 + 1 + 4 + 4 + 1);
  // Brackets alone: row 0 and column 0 hold "Z".
  EXPECT_EQ(RoyalMailCheck("()"), 'Z');
}

TEST_F(RoyalMailTest, TheCheckTableCellByCell) {
  // A character's own row and column lead back to it, being the only ones counted.
  const std::string rows =
      "06CIOU"
      "17DJPV"
      "28EKQW"
      "39FLRX"
      "4AGMSY"
      "5BHNTZ";
  for (const char character : rows) {
    EXPECT_EQ(RoyalMailCheck(std::string(1, character)), character);
  }
  // 0 is row 1, column 1; U row 1, column 0: row 2, column 1 is "1".
  EXPECT_EQ(RoyalMailCheck("0U"), '1');
  // 6 is row 1, column 2; 5 row 0, column 1: row 1, column 3 is "C".
  EXPECT_EQ(RoyalMailCheck("65"), 'C');
}

TEST_F(RoyalMailTest, OnlyItsOwnCharactersHaveBars) {
  for (int code = 0; code < 256; ++code) {
    const char character = static_cast<char>(code);
    const bool known =
        (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z');
    const bool bracket = character == '(' || character == ')';
    EXPECT_EQ(RoyalMailSymbol(character).size(), known ? 4U : bracket ? 1U : 0U) << code;
  }
  EXPECT_EQ(RoyalMailSymbol('('), "2");
  EXPECT_EQ(RoyalMailSymbol(')'), "0");
}

TEST_F(RoyalMailTest, BothPostalRoutinesPutTheStyleBack) {
  page.DrawStyle = 3;
  DrawRoyalMail("A", 0, 0);
  EXPECT_EQ(page.DrawStyle, 3);
  DrawPostNet("1", 0, 0);
  EXPECT_EQ(page.DrawStyle, 3);
  Draw("A", 13);
  EXPECT_EQ(page.DrawStyle, 0);
}

}  // namespace
}  // namespace tagwright
