#include "barcode/upc_ean.h"

#include "barcode_test_support.h"

namespace tagwright {
namespace {

class UpcEanTest : public BarcodeTest {
 protected:
  // The patterns as painted, guards in brackets.
  static std::string Shown(std::string_view data, std::int16_t format) {
    std::string shown;
    for (const UpcEanElement& element : UpcEanElements(data, format)) {
      if (!shown.empty()) shown += ' ';
      const std::string pattern(element.pattern);
      shown += element.guard ? "[" + pattern + "]" : pattern;
    }
    return shown;
  }
};

TEST_F(UpcEanTest, ElevenDigitsOfUpcAGainTheirCheckDigit) {
  Symbol symbol{"03600029145", 0};
  Draw(symbol);
  EXPECT_EQ(symbol.data, "036000291452");
  EXPECT_EQ(Shown(symbol.data, 0),
            "[111] 03211 01411 01114 03211 03211 03211 [011111] "
            "2122 3112 2221 1132 1231 2122 [111]");
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 96);
  EXPECT_EQ(Picture().size(), 95U);
  EXPECT_EQ(Picture(),
            "101"
            "0001101"
            "0111101"
            "0101111"
            "0001101"
            "0001101"
            "0001101"
            "01010"
            "1101100"
            "1110100"
            "1100110"
            "1011100"
            "1001110"
            "1101100"
            "101");
}

TEST_F(UpcEanTest, TwelveDigitsOfEan13GainTheirCheckDigit) {
  Symbol symbol{"400638133393", 2};
  Draw(symbol);
  EXPECT_EQ(symbol.data, "4006381333931");
  // First digit 4: odd at positions 1, 3, 4 of the left half.
  EXPECT_EQ(Shown(symbol.data, 2),
            "[111] 03211 01123 01114 01411 03121 01222 [011111] "
            "1411 1411 1411 3112 1411 2221 [111]");
  EXPECT_EQ(Picture(),
            "101"
            "0001101"
            "0100111"
            "0101111"
            "0111101"
            "0001001"
            "0110011"
            "01010"
            "1000010"
            "1000010"
            "1000010"
            "1110100"
            "1000010"
            "1100110"
            "101");
}

TEST_F(UpcEanTest, ASumThatIsAMultipleOfTenGivesZero) {
  // 3 x 7 + 9 = 30.
  EXPECT_EQ(UpcEanCheckDigit("79000000000", 0), '0');
  EXPECT_EQ(UpcEanCheckDigit("000000000000", 2), '0');
  EXPECT_EQ(UpcEanCheckDigit("00000000001", 0), '7');
  EXPECT_EQ(UpcEanCheckDigit("000000000001", 2), '7');
  EXPECT_EQ(UpcEanCheckDigit("100000000000", 2), '9');
}

TEST_F(UpcEanTest, OnlyTheTwoLengthsGainACheckDigit) {
  for (std::int16_t format = 0; format < 4; ++format) {
    for (std::size_t length = 1; length <= 13; ++length) {
      Symbol symbol{std::string(length, '3'), format};
      Draw(symbol);
      const bool gains = (format == 0 && length == 11) || (format == 2 && length == 12);
      EXPECT_EQ(symbol.data.size(), length + (gains ? 1 : 0)) << format << ", " << length;
    }
  }
}

TEST_F(UpcEanTest, AWrongCheckDigitIsDrawnAsTyped) {
  Symbol symbol{"036000291459", 0};
  Draw(symbol);
  EXPECT_EQ(symbol.data, "036000291459");
  EXPECT_TRUE(Shown(symbol.data, 0).ends_with("1231 3112 [111]"));
}

// The parity sets of an EAN-13 by its first digit.
TEST_F(UpcEanTest, TheFirstDigitChoosesTheSetsOfTheLeftHalf) {
  const std::array<std::string, 10> sets = {"OOOOOO", "OOEOEE", "OOEEOE", "OOEEEO", "OEOOEE",
                                            "OEEOOE", "OEEEOO", "OEOEOE", "OEOEEO", "OEEOEO"};
  for (char first = '0'; first <= '9'; ++first) {
    std::string shown;
    for (const UpcEanElement& element : UpcEanElements(std::string(1, first) + "111111222222", 2)) {
      if (!element.guard) shown += element.pattern == "02221" ? 'O' : 'E';
    }
    EXPECT_EQ(shown.substr(0, 6), sets[static_cast<std::size_t>(first - '0')]) << first;
  }
}

TEST_F(UpcEanTest, DigitTablesWithAndWithoutTheirLeadingSpace) {
  const std::array<const char*, 10> odd = {"3211", "2221", "2122", "1411", "1132",
                                           "1231", "1114", "1312", "1213", "3112"};
  const std::array<const char*, 10> even = {"1123", "1222", "2212", "1141", "2311",
                                            "1321", "4111", "2131", "3121", "2113"};
  for (int digit = 0; digit < 10; ++digit) {
    const auto row = static_cast<std::size_t>(digit);
    EXPECT_EQ(DigitPatternOdd(digit, false), odd[row]);
    EXPECT_EQ(DigitPatternOdd(digit, true), std::string("0") + odd[row]);
    EXPECT_EQ(DigitPatternEven(digit, false), even[row]);
    EXPECT_EQ(DigitPatternEven(digit, true), std::string("0") + even[row]);
  }
  EXPECT_EQ(GuardPattern(0), "111");
  EXPECT_EQ(GuardPattern(1), "011111");
  EXPECT_EQ(GuardPattern(2), "0111111");
}

// Not the published compressed form: all eight digits as bars, always in the same sets.
TEST_F(UpcEanTest, UpcEIsThePlainFormOfEightDigits) {
  EXPECT_EQ(Shown("01234565", 1),
            "[111] 01123 02221 02122 01141 02311 01231 04111 01321 [0111111]");
  EXPECT_EQ(Shown("00000000", 1),
            "[111] 01123 03211 03211 01123 01123 03211 01123 01123 [0111111]");
  Symbol symbol{"01234565", 1};
  symbol.width = 68;
  Draw(symbol);
  EXPECT_DOUBLE_EQ(ModuleWidth, 1);
  EXPECT_EQ(Picture().size(), 65U);
}

TEST_F(UpcEanTest, Ean8HasFourDigitsASideAndTypesItsOwnCheckDigit) {
  Symbol symbol{"12345670", 3};
  symbol.width = 68;
  Draw(symbol);
  EXPECT_EQ(Shown("12345670", 3),
            "[111] 02221 02122 01411 01132 [011111] 1231 1114 1312 3211 [111]");
  EXPECT_DOUBLE_EQ(ModuleWidth, 1);
  EXPECT_EQ(Picture().size(), 67U);
}

TEST_F(UpcEanTest, SevenDigitsOfEan8AreDrawnAsSevenWithTheGuardBeforeTheFourth) {
  Symbol symbol{"1234567", 3};
  Draw(symbol);
  EXPECT_EQ(symbol.data, "1234567");
  EXPECT_EQ(Shown("1234567", 3), "[111] 02221 02122 01411 [011111] 1132 1231 1114 1312 [111]");
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / (7 * 7 + 12));
}

TEST_F(UpcEanTest, FiveDigitsOfUpcAHaveTheGuardBeforeTheFourthAndTheDivisor47) {
  Draw("12345", 0, 47);
  EXPECT_DOUBLE_EQ(ModuleWidth, 1);
  EXPECT_EQ(Shown("12345", 0), "[111] 02221 02122 01411 [011111] 1132 1231 [111]");
}

// Halves go to the even position: 12 gives 7, 13 gives 8, 8 gives 5, 3 gives 2.
TEST_F(UpcEanTest, TheCentreRoundsHalvesToTheEvenPosition) {
  struct Case {
    std::size_t length;
    std::size_t centre;
  };
  for (const Case& each :
       {Case{12, 7}, Case{11, 6}, Case{10, 6}, Case{9, 6}, Case{8, 5}, Case{7, 4}, Case{6, 4},
        Case{5, 4}, Case{4, 3}, Case{3, 2}, Case{2, 2}}) {
    const auto elements = UpcEanElements(std::string(each.length, '1'), 0);
    ASSERT_EQ(elements.size(), each.length + 3);
    EXPECT_EQ(elements[each.centre].pattern, "011111") << each.length;
  }
  const auto elements = UpcEanElements("1111111111111", 2);  // 13: before position 8
  EXPECT_EQ(elements[7].pattern, "011111");
  // One digit: the centre would be position 2, which there is not.
  EXPECT_EQ(Shown("1", 0), "[111] 02221 [111]");
}

TEST_F(UpcEanTest, GuardsReachLowerThanDigitsFromTheSameTop) {
  Symbol symbol{"12345670", 3};
  Draw(symbol);
  const auto bars = Bars();
  ASSERT_EQ(bars.size(), 22U);
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const bool guard = i < 2 || i == 10 || i == 11 || i > 19;
    EXPECT_DOUBLE_EQ(bars[i].top, 20) << i;
    EXPECT_DOUBLE_EQ(bars[i].bottom, 20 + 15 - 1.5 + (guard ? 1.25 : 0)) << i;
  }
  EXPECT_DOUBLE_EQ(BarHeight, 13.5);
}

TEST_F(UpcEanTest, AGuardAloneIsLongerForOnePatternAndHasNoText) {
  CursorX = 10;
  CursorY = 20;
  ModuleWidth = 1;
  BarHeight = 5;
  PrintChars = true;
  DrawGuard(1);
  EXPECT_EQ(Picture(), "101");
  EXPECT_DOUBLE_EQ(Bars()[0].left, 11);
  EXPECT_DOUBLE_EQ(Bars()[0].bottom, 26.25);
  EXPECT_FLOAT_EQ(CursorX, 15);
  EXPECT_DOUBLE_EQ(BarHeight, 5);
  EXPECT_TRUE(Texts().empty());
}

TEST_F(UpcEanTest, ADigitIsPrintedBetweenItsTwoBars) {
  Symbol symbol{"1", 1};
  symbol.text = true;
  Draw(symbol);
  std::string order;
  for (const Painted& entry : page.painted) {
    if (entry.what == Painted::What::kBox) order += '|';
    if (entry.what == Painted::What::kText) order += entry.Text();
  }
  EXPECT_EQ(order, "|||1||||");
}

TEST_F(UpcEanTest, EachDigitStandsUnderItsOwnBars) {
  Symbol symbol{"12345670", 3};
  symbol.text = true;
  symbol.width = 68;
  symbol.x = 0;
  symbol.y = 0;
  Draw(symbol);
  const auto texts = Texts();
  ASSERT_EQ(texts.size(), 8U);
  // Modules are 1 wide. The left digits' text stands one module right of their leading space.
  const std::array<double, 8> lefts = {4, 11, 18, 25, 36, 43, 50, 57};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i].Text(), std::string(1, "12345670"[i]));
    EXPECT_NEAR(texts[i].x1, lefts[i], 1e-9) << i;
    EXPECT_NEAR(texts[i].y1, 15 - 0.65 * 4.4 - 1.5 + 0.25, 1e-9) << i;
  }
}

TEST_F(UpcEanTest, TheFirstDigitOfAnEan13MovesItsBarsAndAnArrowEndsIt) {
  Symbol symbol{"4006381333931", 2};
  symbol.text = true;
  Draw(symbol);
  // Characters are 2 wide here: the divisor is 2 x 2 + 91 + 13 + 1.
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 109);
  const auto texts = Texts();
  ASSERT_EQ(texts.size(), 14U);
  const double line = 20 + 15 - 0.65 * 4.4 - 1.5 + 0.25;
  EXPECT_EQ(texts.front().Text(), "4");
  EXPECT_NEAR(texts.front().x1, 10, 1e-9);
  EXPECT_NEAR(texts.front().y1, line, 1e-9);
  EXPECT_NEAR(Bars().front().left, 10 + 2 + 0.5, 1e-6);
  EXPECT_EQ(texts.back().Text(), ">");
  EXPECT_NEAR(texts.back().x1, 12.5 + (95 + 2) * ModuleWidth, 1e-4);
  EXPECT_NEAR(texts.back().y1, line, 1e-9);
}

TEST_F(UpcEanTest, WithoutTextAnEan13BeginsAtItsEdgeAndStillLeavesRoomForTheDigit) {
  Draw("4006381333931", 2);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 109);
  EXPECT_DOUBLE_EQ(Bars().front().left, 10);
  EXPECT_TRUE(Texts().empty());
}

TEST_F(UpcEanTest, AFontSizeOfZeroPrintsSixPointsBelowBarsMeasuredWithoutThem) {
  Symbol symbol{"12345670", 3};
  symbol.text = true;
  symbol.font_size = 0;
  Draw(symbol);
  EXPECT_DOUBLE_EQ(BarHeight, 15 - 1.5);
  ASSERT_EQ(Texts().size(), 8U);
  EXPECT_DOUBLE_EQ(Texts()[0].Font().Size, 6);
}

// The size is set before the module is measured, which takes in the width of a digit.
TEST_F(UpcEanTest, AnEan13OfFontSizeZeroIsMeasuredAtSixPoints) {
  FontSpec six = page.Font;
  six.Size = 6;
  for (const bool text : {false, true}) {
    Symbol symbol{"4006381333931", 2};
    symbol.text = text;
    symbol.font_size = 0;
    Draw(symbol);
    const double digit = page.TextWidth("4");
    EXPECT_EQ(page.Font.Size, 6);
    EXPECT_NEAR(ModuleWidth, 95 / (2 * digit + 13 * 7 + 14), 1e-9) << text;
    EXPECT_NEAR(Bars().front().left, text ? 10 + digit + 0.5 : 10, 1e-5) << text;
  }
}

TEST_F(UpcEanTest, AWidthOfMinusOneMeansModulesOfThreeInAllFour) {
  for (std::int16_t format = 0; format < 4; ++format) {
    Draw("12345670", format, -1);
    EXPECT_DOUBLE_EQ(ModuleWidth, 3) << format;
    EXPECT_FALSE(Bars().empty());
    Draw("12345670", format, -1.0001);
    EXPECT_LT(ModuleWidth, 0) << format;
    EXPECT_TRUE(Bars().empty());
  }
}

}  // namespace
}  // namespace tagwright
