#include "barcode/two_of_five.h"

#include "barcode_test_support.h"

namespace tagwright {
namespace {

using TwoOfFiveTest = BarcodeTest;
using InterleavedTest = BarcodeTest;
using Rows = std::vector<std::string>;

TEST_F(TwoOfFiveTest, OnlyTheBarsCarryTheDigit) {
  EXPECT_EQ(Strings(TwoOfFivePatterns("07")),
            (Rows{"212111", "1111212111", "1111112121", "211121"}));
  Draw("07", 4);
  EXPECT_EQ(PatternSum, 8 + 12 + 12 + 8);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 40);
  EXPECT_EQ(Picture(),
            "11011010"
            "101011011010"
            "101010110110"
            "1101011");
}

TEST_F(TwoOfFiveTest, AZeroAloneIsDrawnNormally) {
  EXPECT_EQ(Strings(TwoOfFivePatterns("0")), (Rows{"212111", "1111212111", "211121"}));
}

TEST_F(TwoOfFiveTest, TheWholeTable) {
  const Rows rows = {"1111212111", "2111111121", "1121111121", "2121111111", "1111211121",
                     "2111211111", "1121211111", "1111112121", "2111112111", "1121112111"};
  for (std::int16_t digit = 0; digit < 10; ++digit) {
    EXPECT_EQ(TwoOfFiveSymbol(digit), rows[static_cast<std::size_t>(digit)]);
  }
  EXPECT_EQ(TwoOfFiveSymbol(-1), "212111");
  EXPECT_EQ(TwoOfFiveSymbol(-2), "211121");
  EXPECT_EQ(TwoOfFiveSymbol(-3), "");
  EXPECT_EQ(TwoOfFiveSymbol(10), "");
}

TEST_F(InterleavedTest, TheFirstDigitIsTheBarsAndTheSecondTheSpaces) {
  // 1 "21112" and 2 "12112", 3 "22111" and 4 "11212", 5 "21211" and 6 "12211".
  EXPECT_EQ(Strings(InterleavedPatterns("123456")),
            (Rows{"1111", "2112111122", "2121121112", "2112221111", "211"}));
  Draw("123456", 5);
  EXPECT_EQ(PatternSum, 4 + 3 * 14 + 4);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 50);
  EXPECT_EQ(Picture(),
            "1010"
            "11010010101100"
            "11011010010100"
            "11010011001010"
            "1101");
}

TEST_F(InterleavedTest, AnOddLastDigitIsBothOfItsPair) {
  EXPECT_EQ(InterleavedSymbol("7"), InterleavedSymbol("77"));
  EXPECT_EQ(Strings(InterleavedPatterns("12345")),
            (Rows{"1111", "2112111122", "2121121112", "2211221111", "211"}));
}

TEST_F(InterleavedTest, DoubleZeroVanishesAndIsPrintedAllTheSame) {
  EXPECT_EQ(Strings(InterleavedPatterns("1200")), (Rows{"1111", "2112111122", "", "211"}));
  Symbol symbol{"1200", 5};
  symbol.text = true;
  Draw(symbol);
  EXPECT_EQ(PatternSum, 4 + 14 + 4);
  ASSERT_EQ(Texts().size(), 1U);
  EXPECT_EQ(Texts()[0].Text(), "1200");
}

TEST_F(InterleavedTest, DoubleZeroAloneIsAStartAndAStop) {
  for (const char* data : {"00", "0"}) {
    EXPECT_EQ(Strings(InterleavedPatterns(data)), (Rows{"1111", "", "211"})) << data;
    Draw(data, 5);
    EXPECT_EQ(Bars().size(), 4U);
  }
}

TEST_F(InterleavedTest, ALastLoneZeroVanishesToo) {
  EXPECT_EQ(Strings(InterleavedPatterns("120")), (Rows{"1111", "2112111122", "", "211"}));
  EXPECT_EQ(InterleavedSymbol("01"), "1211212112");
  EXPECT_EQ(InterleavedSymbol("10"), "2111121221");
}

TEST_F(InterleavedTest, StartAndStopAreNegativeNumbers) {
  EXPECT_EQ(InterleavedSymbol("-1"), "1111");
  EXPECT_EQ(InterleavedSymbol("-2"), "211");
  EXPECT_EQ(InterleavedSymbol("-3"), "");
  EXPECT_EQ(InterleavedSymbol(""), "");
  EXPECT_EQ(InterleavedSymbol("x"), "");
}

TEST_F(InterleavedTest, EveryPairAlternatesTheWidthsOfItsDigits) {
  const Rows widths = {"11221", "21112", "12112", "22111", "11212",
                       "21211", "12211", "11122", "21121", "12121"};
  for (int number = 1; number < 100; ++number) {
    const auto left = static_cast<std::size_t>(number / 10),
               right = static_cast<std::size_t>(number % 10);
    const std::string pattern(InterleavedSymbol(
        std::string{static_cast<char>('0' + left), static_cast<char>('0' + right)}));
    ASSERT_EQ(pattern.size(), 10U);
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_EQ(pattern[2 * i], widths[left][i]);
      EXPECT_EQ(pattern[2 * i + 1], widths[right][i]);
    }
  }
}

}  // namespace
}  // namespace tagwright
