// DrawBarcode's own steps, the bar painter, and the state that both leave behind.
#include <limits>

#include "barcode/formats.h"
#include "barcode_test_support.h"

namespace tagwright {
namespace {

using DispatcherTest = BarcodeTest;

// Data that each format can carry.
constexpr std::array<const char*, 14> kPlainData = {
    "03600029145", "01234565", "400638133393", "12345670", "123456", "123456", "ABC-12",
    "Abc-12",      "123456",   "ABC-12",       "Abc-12",   "123456", "12345",  "SN34RD1A"};

TEST_F(DispatcherTest, EveryFormatPaintsAndPutsTheTargetBack) {
  for (std::int16_t format = 0; format < 14; ++format) {
    page.DrawMode = 13;
    page.DrawStyle = 1;
    Draw(kPlainData[static_cast<std::size_t>(format)], format);
    EXPECT_GT(Bars().size(), 4U) << format;
    EXPECT_EQ(page.DrawMode, 13) << format;
    EXPECT_EQ(page.DrawStyle, 0) << format;
  }
}

TEST_F(DispatcherTest, BarsAreBlackWhateverTheColourWas) {
  page.ForeColor = 0x0000FF;
  Draw("123", 9);
  for (const Painted& box : page.Of(Painted::What::kBox)) EXPECT_EQ(box.color, 0);
  EXPECT_EQ(page.ForeColor, 0);
}

TEST_F(DispatcherTest, DataOfSpacesOnlyTouchesNothing) {
  page.DrawMode = 7;
  page.DrawStyle = 2;
  page.Font.Name = "Courier New";
  page.Font.Bold = true;
  const FontSpec font = page.Font;
  for (const char* data : {"", " ", "     "}) {
    Symbol symbol{data, 9};
    symbol.font = "Arial";
    Draw(symbol);
    EXPECT_TRUE(page.painted.empty());
    EXPECT_EQ(page.DrawMode, 7);
    EXPECT_EQ(page.DrawStyle, 2);
    EXPECT_EQ(page.Font, font);
  }
}

TEST_F(DispatcherTest, TheDataKeepsItsSpaces) {
  Draw(" A ", 9);
  EXPECT_EQ(PatternSum, 12 * 5);
}

TEST_F(DispatcherTest, ALowerCaseLetterUnderCode39LeavesMaskPenAndNoOutline) {
  page.DrawMode = 13;
  page.DrawStyle = 0;
  Draw("ABc", 9);
  ExpectRefused();
}

TEST_F(DispatcherTest, ARefusalLeavesTheFontOfTheSymbol) {
  page.Font = {"Courier New", 30, true, true};
  Symbol symbol{"abc", 0};
  symbol.font = "Times New Roman";
  symbol.font_size = 7;
  Draw(symbol);
  ExpectRefused();
  EXPECT_EQ(page.Font, (FontSpec{"Times New Roman", 7, false, false}));
}

TEST_F(DispatcherTest, AnEmptyFontNameKeepsTheOneLastSet) {
  page.Font.Name = "Courier New";
  Symbol symbol{"123", 9};
  symbol.text = true;
  Draw(symbol);
  ASSERT_EQ(Texts().size(), 1U);
  EXPECT_EQ(Texts()[0].Font().Name, "Courier New");
}

TEST_F(DispatcherTest, ACommaIsRefusedByCode128AndTakenByCode39Extended) {
  for (const std::int16_t format : {6, 7}) {
    page.DrawMode = 13;
    Draw("A,B", format);
    ExpectRefused();
  }
  Draw("A,B", 10);
  EXPECT_FALSE(Bars().empty());
}

TEST_F(DispatcherTest, BothEdgesOfEveryLimit) {
  struct Case {
    std::int16_t format;
    std::size_t limit;
  };
  for (const Case& each : {Case{0, 12}, Case{1, 8}, Case{2, 13}, Case{3, 8}}) {
    Draw(std::string(each.limit, '1'), each.format);
    EXPECT_FALSE(Bars().empty()) << each.format;
    page.DrawMode = 13;
    page.DrawStyle = 0;
    Draw(std::string(each.limit + 1, '1'), each.format);
    ExpectRefused();
  }
  for (const std::int16_t format : {4, 5, 6, 7, 8, 9, 10, 11, 12, 13}) {
    Draw(std::string(250, '1'), format);
    EXPECT_FALSE(Bars().empty()) << format;
  }
}

TEST_F(DispatcherTest, NineDigitsUnderUpcEAreRefusedAndOneIsDrawn) {
  Draw("123456789", 1);
  EXPECT_TRUE(Bars().empty());
  Draw("1", 1);
  EXPECT_EQ(Bars().size(), 2U + 2U + 3U);  // start, one digit, end
}

TEST_F(DispatcherTest, CodesOutsideTheListDrawNothing) {
  for (const std::int16_t format : {-1, 14, 15, 16, 32767, -32768}) {
    page.DrawMode = 13;
    Draw("123", format);
    ExpectRefused();
  }
}

// Every ASCII character under every format: exactly those of the format's set are drawn.
TEST_F(DispatcherTest, EachFormatTakesItsOwnCharacters) {
  const std::string digits = "0123456789";
  const std::string capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const std::string smalls = "abcdefghijklmnopqrstuvwxyz";
  const std::string code_128_a = "!#$%&'()*+.-/0123456789:;<=>?@ " + capitals + "[\\]^_\"";
  const std::array<std::string, 14> sets = {digits,
                                            digits,
                                            digits,
                                            digits,
                                            digits,
                                            digits,
                                            code_128_a,
                                            code_128_a + "`" + smalls + "{|}~",
                                            digits,
                                            " -.*$/+%" + digits + capitals,
                                            code_128_a + "`,{|}~" + smalls,
                                            "0123456789-$:/.+abcdtn*e",
                                            digits,
                                            digits + capitals + "()"};
  for (std::size_t format = 0; format < sets.size(); ++format) {
    for (int code = 1; code < 256; ++code) {
      const char character = static_cast<char>(code);
      page.DrawMode = 13;
      Draw(std::string{character, '1'}, static_cast<std::int16_t>(format));
      const bool drawn = sets[format].find(character) != std::string::npos;
      EXPECT_EQ(page.DrawMode, drawn ? 13 : 9) << "format " << format << ", character " << code;
    }
  }
}

TEST_F(DispatcherTest, TheTextLineTakesItsShareOfTheHeight) {
  // 4 millimetres of font make a line 4.4 high.
  Symbol symbol{"12345670", 3};
  symbol.text = true;
  Draw(symbol);
  EXPECT_NEAR(BarHeight, 15 - 0.65 * 4.4 - 1.5, 1e-9);
  symbol = {"123", 9};
  symbol.text = true;
  Draw(symbol);
  EXPECT_NEAR(BarHeight, 15 - 0.85 * 4.4, 1e-9);
  symbol.text = false;
  Draw(symbol);
  EXPECT_NEAR(BarHeight, 15, 1e-9);
}

TEST_F(DispatcherTest, AFontTallEnoughTurnsTheBarsOverAndNothingGuardsThem) {
  Symbol symbol{"1", 9};
  symbol.text = true;
  symbol.height = 2;
  symbol.font_size = 10 * kMillimetreFont;  // 0.85 x 11 leaves 2 - 9.35
  Draw(symbol);
  EXPECT_NEAR(BarHeight, -7.35, 1e-9);
  ASSERT_EQ(Bars().size(), 15U);
  EXPECT_NEAR(Bars()[0].top, 20 - 7.35, 1e-6);
  EXPECT_NEAR(Bars()[0].bottom, 20, 1e-6);
}

TEST_F(DispatcherTest, TheClosingTextStandsCentredRightBelowTheBars) {
  struct Case {
    const char* data;
    std::int16_t format;
  };
  for (const Case& each : {Case{"123456", 4}, Case{"1200", 5}, Case{"AB", 6}, Case{"Ab", 7},
                           Case{"123", 8}, Case{" A ", 9}, Case{"ab", 10}, Case{"a1a", 11}}) {
    Symbol symbol{each.data, each.format};
    symbol.text = true;
    symbol.width = 60;
    Draw(symbol);
    ASSERT_EQ(Texts().size(), 1U) << each.format;
    const Painted text = Texts()[0];
    EXPECT_EQ(text.Text(), each.data);
    EXPECT_NEAR(text.x1, 10 + 60 / 2 - 2.0 * symbol.data.size() / 2, 1e-9) << each.format;
    EXPECT_NEAR(text.y1, 20 + 15 - 0.85 * 4.4, 1e-9) << each.format;
    EXPECT_NEAR(text.Font().Size, 4 * kMillimetreFont, 1e-9);
    EXPECT_EQ(text.color, 0);
  }
}

// --- the bar painter ---

class BarPainterTest : public BarcodeTest {
 protected:
  BarPainterTest() {
    CursorX = 10;
    CursorY = 20;
    ModuleWidth = 2;
    BarHeight = 5;
    PrintChars = true;
    page.Font.Size = kMillimetreFont;
  }
};

TEST_F(BarPainterTest, ElementsAlternateFromABarAndTheTextStandsUnderTheFirst) {
  PaintPattern("3112", "7");
  ASSERT_EQ(Bars().size(), 2U);
  EXPECT_DOUBLE_EQ(Bars()[0].left, 10);
  EXPECT_DOUBLE_EQ(Bars()[0].right, 16);
  EXPECT_DOUBLE_EQ(Bars()[0].top, 20);
  EXPECT_DOUBLE_EQ(Bars()[0].bottom, 25);
  EXPECT_DOUBLE_EQ(Bars()[1].left, 18);
  EXPECT_DOUBLE_EQ(Bars()[1].right, 20);
  EXPECT_FLOAT_EQ(CursorX, 24);
  ASSERT_EQ(Texts().size(), 1U);
  EXPECT_EQ(Texts()[0].Text(), "7");
  EXPECT_DOUBLE_EQ(Texts()[0].x1, 10);
  EXPECT_DOUBLE_EQ(Texts()[0].y1, 25.25);
}

TEST_F(BarPainterTest, ALeadingZeroBeginsWithASpaceAndMovesTheTextOneModule) {
  PaintPattern("03211", "0");
  ASSERT_EQ(Bars().size(), 2U);
  EXPECT_DOUBLE_EQ(Bars()[0].left, 16);  // a space of 3 first
  EXPECT_DOUBLE_EQ(Bars()[0].right, 20);
  EXPECT_DOUBLE_EQ(Bars()[1].left, 22);
  EXPECT_FLOAT_EQ(CursorX, 24);
  ASSERT_EQ(Texts().size(), 1U);
  EXPECT_DOUBLE_EQ(Texts()[0].x1, 12);  // one module right of the cursor, not under the bar
}

TEST_F(BarPainterTest, AZeroInsideTakesItsTurn) {
  PaintPattern("1021", "");
  ASSERT_EQ(Bars().size(), 2U);
  EXPECT_DOUBLE_EQ(Bars()[0].right, 12);
  EXPECT_DOUBLE_EQ(Bars()[1].left, 12);
  EXPECT_DOUBLE_EQ(Bars()[1].right, 16);
}

TEST_F(BarPainterTest, AModuleOfZeroOrLessPaintsNothingAndMovesNothing) {
  for (const double module : {0.0, -0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    ModuleWidth = module;
    PaintPattern("3112", "7");
    EXPECT_TRUE(page.painted.empty());
    EXPECT_FLOAT_EQ(CursorX, 10);
  }
}

TEST_F(BarPainterTest, WithoutTheFlagNoTextIsPrinted) {
  PrintChars = false;
  PaintPattern("3112", "7");
  EXPECT_TRUE(Texts().empty());
}

TEST_F(BarPainterTest, TheCursorIsRoundedToSinglePrecisionAtEveryAdvance) {
  ModuleWidth = 0.1;
  PaintPattern("11111", "");
  float cursor = 10;
  for (int i = 0; i < 5; ++i) cursor = static_cast<float>(cursor + 0.1);
  EXPECT_EQ(CursorX, cursor);
  // A bar's right edge is not rounded: 10 and 0.1 are added as doubles.
  EXPECT_DOUBLE_EQ(Bars()[0].right, 10.1);
  EXPECT_DOUBLE_EQ(Bars()[1].left,
                   static_cast<double>(static_cast<float>(static_cast<float>(10.1) + 0.1)));
}

TEST(SumPatternTest, AddsTheDigits) {
  EXPECT_EQ(SumPattern(""), 0);
  EXPECT_EQ(SumPattern("03211"), 7);
  EXPECT_EQ(SumPattern("2331112"), 13);
  EXPECT_EQ(SumPattern(std::string(32767, '1')), 32767);
  EXPECT_EQ(SumPattern(std::string(32768, '1')), 32767);
}

// A digit that does not fit any more is passed over, and a smaller one behind it may still fit.
TEST(SumPatternTest, ADigitThatDoesNotFitIsPassedOver) {
  EXPECT_EQ(SumPattern(std::string(32766, '1') + "4"), 32766);
  EXPECT_EQ(SumPattern(std::string(32766, '1') + "4131"), 32767);
}

// --- what is too much ---

// 2 x 12 for the stars and 13 for a gap and "A" each: n characters are 24 + 12 n modules.
TEST_F(DispatcherTest, ASymbolAbove32767ModulesIsMeasuredAsFarAsItsSumGoes) {
  Draw(std::string(2728, 'A'), 9);  // 24 + 32,736 = 32,760
  EXPECT_EQ(PatternSum, 32760);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / (32760 + 2729));
  for (const double former : {1.0, 17.0}) {
    Draw("A", 9, 38 * former);
    ASSERT_DOUBLE_EQ(ModuleWidth, former);
    Draw(std::string(2729, 'A'), 9);  // 32,772
    EXPECT_EQ(PatternSum, 32767);
    EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / (32767 + 2730)) << "whatever symbol stood before it";
    EXPECT_FALSE(Bars().empty());
  }
}

TEST_F(DispatcherTest, ACode128TooLongToMeasureIsMeasuredAsFarAsItsSumGoes) {
  Draw(std::string(3000, 'A'), 7, 330);
  EXPECT_DOUBLE_EQ(ModuleWidth, 330.0 / 32767);
}

TEST_F(DispatcherTest, NothingOfTheArgumentsGetsOutAsAFault) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double no_number = std::numeric_limits<double>::quiet_NaN();
  for (std::int16_t format = 0; format < 14; ++format) {
    for (const double value : {infinity, -infinity, no_number, 1e308, -1e308, 1e-320}) {
      Symbol symbol{kPlainData[static_cast<std::size_t>(format)], format};
      symbol.text = true;
      symbol.width = value;
      EXPECT_NO_THROW(Draw(symbol));
      symbol.height = value;
      EXPECT_NO_THROW(Draw(symbol));
      symbol.font_size = value;
      EXPECT_NO_THROW(Draw(symbol));
      symbol.x = static_cast<float>(std::isfinite(value) ? 3e38 : value);
      symbol.y = symbol.x;
      EXPECT_NO_THROW(Draw(symbol));
    }
  }
}

}  // namespace
}  // namespace tagwright
