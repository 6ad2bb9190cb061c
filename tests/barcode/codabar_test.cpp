#include "barcode/codabar.h"

#include "barcode_test_support.h"

namespace tagwright {
namespace {

using CodabarTest = BarcodeTest;
using Rows = std::vector<std::string>;

const std::string kA = "11221211";

TEST_F(CodabarTest, AStandsAroundTheDataWhateverItIs) {
  EXPECT_EQ(Strings(CodabarPatterns("123")), (Rows{kA, "11112211", "11121121", "22111111", kA}));
  EXPECT_EQ(Strings(CodabarPatterns("*1*")), (Rows{kA, "11121221", "11112211", "11121221", kA}));
  Draw("123", 11);
  EXPECT_EQ(PatternSum, 11 + 10 + 10 + 10 + 11);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 52);
  // The last space is counted and not seen: 51 modules from the first bar to the last.
  EXPECT_EQ(Picture(),
            "1011001001"
            "0"
            "101011001"
            "0"
            "101001011"
            "0"
            "110010101"
            "0"
            "1011001001");
}

TEST_F(CodabarTest, ALetterIsOneNarrowBar) {
  EXPECT_EQ(Strings(CodabarPatterns("a1a")), (Rows{kA, "1", "11112211", "1", kA}));
  Draw("a1a", 11);
  EXPECT_EQ(PatternSum, 11 + 1 + 10 + 1 + 11);
  // Behind the start's space a bar, and the digit follows it without a space.
  EXPECT_EQ(Picture(),
            "1011001001"
            "0"
            "1"
            "101011001"
            "0"
            "1"
            "1011001001");
  for (const char letter : {'a', 'b', 'c', 'd', 't', 'n', 'e'}) {
    EXPECT_EQ(CodabarSymbol(letter), "1") << letter;
  }
}

TEST_F(CodabarTest, TheDollarSignIsOneNarrowBarAndTheHyphenHasItsWidths) {
  EXPECT_EQ(CodabarSymbol('$'), "1");
  EXPECT_EQ(CodabarSymbol('-'), "11221111");
}

TEST_F(CodabarTest, LettersUnderBothNames) {
  EXPECT_EQ(CodabarSymbol('A'), "11221211");
  EXPECT_EQ(CodabarSymbol('T'), CodabarSymbol('A'));
  EXPECT_EQ(CodabarSymbol('B'), "12121121");
  EXPECT_EQ(CodabarSymbol('N'), CodabarSymbol('B'));
  EXPECT_EQ(CodabarSymbol('C'), "11121221");
  EXPECT_EQ(CodabarSymbol('*'), CodabarSymbol('C'));
  EXPECT_EQ(CodabarSymbol('D'), "11122211");
  EXPECT_EQ(CodabarSymbol('E'), CodabarSymbol('D'));
}

TEST_F(CodabarTest, OnlyTheTableHasWidths) {
  const std::string known = "0123456789-:/.+ATBNC*DE";
  for (int code = 0; code < 256; ++code) {
    const char character = static_cast<char>(code);
    const bool row = known.find(character) != std::string::npos;
    EXPECT_EQ(CodabarSymbol(character).size(), row ? 8U : 1U) << code;
  }
}

TEST_F(CodabarTest, NoMessageWhateverTheDataAndNoAInTheText) {
  PutMarkerFile();
  for (const char* data : {"1", "a", "tne*", "$-$", "A", "+./:"}) {
    Symbol symbol{data, 11};
    symbol.text = true;
    Draw(symbol);
    for (const Painted& text : Texts()) EXPECT_EQ(text.Text(), data);
  }
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace tagwright
