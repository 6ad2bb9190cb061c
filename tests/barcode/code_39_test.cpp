#include "barcode/code_39.h"

#include "barcode_test_support.h"

namespace tagwright {
namespace {

using Code39Test = BarcodeTest;
using Rows = std::vector<std::string>;

const std::string kStar = "121121211";

TEST_F(Code39Test, StarsStandAroundTheData) {
  EXPECT_EQ(Strings(Code39Patterns("AB")), (Rows{kStar, "211112112", "112112112", kStar}));
  Draw("AB", 9);
  // Four characters of 12 and the three gaps between them.
  EXPECT_EQ(PatternSum, 48);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 51);
  EXPECT_EQ(Picture(),
            "100101101101"
            "0"
            "110101001011"
            "0"
            "101101001011"
            "0"
            "100101101101");
}

TEST_F(Code39Test, TheFiveIsOneModuleWider) {
  EXPECT_EQ(Code39Symbol("5", true), "211221112");
  Draw("5", 9);
  EXPECT_EQ(PatternSum, 12 + 13 + 12);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / (37 + 2));
}

TEST_F(Code39Test, TheWholeTable) {
  const std::string characters = "1234567890ABCDEFGHIJKLMNOPQRSTUVWXYZ-. *$/+%";
  for (int code = 0; code < 256; ++code) {
    const std::string value(1, static_cast<char>(code));
    const bool known = characters.find(value) != std::string::npos;
    EXPECT_EQ(Code39Symbol(value, true).size(), known ? 9U : 0U) << code;
    EXPECT_TRUE(Code39Symbol(value, false).empty()) << code;
  }
  EXPECT_TRUE(Code39Symbol("", true).empty());
  EXPECT_TRUE(Code39Symbol("AB", true).empty());
}

TEST_F(Code39Test, TheLastStarHasNoGapBehindIt) {
  Draw("A", 9, 38);  // modules of 1
  EXPECT_NEAR(Bars().back().right, 48, 1e-5);
  EXPECT_NEAR(CursorX, 48, 1e-5);
}

TEST_F(Code39Test, TheTextHasNoStars) {
  Symbol symbol{"AB", 9};
  symbol.text = true;
  Draw(symbol);
  ASSERT_EQ(Texts().size(), 1U);
  EXPECT_EQ(Texts()[0].Text(), "AB");
}

// --- extended ---

using Code39ExtendedTest = BarcodeTest;

std::string Pair(const char* first, const char* second) {
  return std::string(Code39Symbol(first, true)) + "1" + std::string(Code39Symbol(second, true)) +
         "1";
}

TEST_F(Code39ExtendedTest, NeitherStartNorStop) {
  EXPECT_EQ(Strings(Code39ExtendedPatterns("a")), (Rows{Pair("+", "A")}));
  EXPECT_EQ(Strings(Code39ExtendedPatterns("A-")), (Rows{"2111121121", "1211112121"}));
  Draw("a", 10);
  EXPECT_EQ(PatternSum, 26);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 26);
  EXPECT_EQ(Picture(),
            "100101001001"
            "0"
            "110101001011");
}

TEST_F(Code39ExtendedTest, AStarAmongTheDataIsCoded) {
  EXPECT_EQ(Strings(Code39ExtendedPatterns("*")), (Rows{Pair("/", "J")}));
}

TEST_F(Code39ExtendedTest, TheGraveAccentAndTheBraceHaveTheSameBars) {
  EXPECT_EQ(Code39ExtendedSymbol('`'), Code39ExtendedSymbol('{'));
  EXPECT_EQ(Code39ExtendedSymbol('`'), Pair("%", "P"));
}

TEST_F(Code39ExtendedTest, TheWholeTable) {
  const std::string itself = " -.0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  for (const char character : itself) {
    EXPECT_EQ(Code39ExtendedSymbol(character),
              std::string(Code39Symbol({&character, 1}, true)) + "1");
  }
  for (char small = 'a'; small <= 'z'; ++small) {
    const std::string capital(1, static_cast<char>(small - 'a' + 'A'));
    EXPECT_EQ(Code39ExtendedSymbol(small), Pair("+", capital.c_str())) << small;
  }
  struct Code {
    char character;
    const char* shift;
    const char* letter;
  };
  for (const Code& each :
       {Code{'!', "/", "A"}, Code{'"', "/", "B"},  Code{'#', "/", "C"},  Code{'$', "/", "D"},
        Code{'%', "/", "E"}, Code{'&', "/", "F"},  Code{'\'', "/", "G"}, Code{'(', "/", "H"},
        Code{')', "/", "I"}, Code{'*', "/", "J"},  Code{'+', "/", "K"},  Code{',', "/", "L"},
        Code{'/', "/", "O"}, Code{':', "/", "Z"},  Code{';', "%", "F"},  Code{'<', "%", "G"},
        Code{'=', "%", "H"}, Code{'>', "%", "I"},  Code{'?', "%", "J"},  Code{'@', "%", "V"},
        Code{'[', "%", "K"}, Code{'\\', "%", "L"}, Code{']', "%", "M"},  Code{'^', "%", "N"},
        Code{'_', "%", "O"}, Code{'`', "%", "P"},  Code{'{', "%", "P"},  Code{'|', "%", "Q"},
        Code{'}', "%", "R"}, Code{'~', "%", "S"}}) {
    EXPECT_EQ(Code39ExtendedSymbol(each.character), Pair(each.shift, each.letter))
        << each.character;
  }
  EXPECT_TRUE(Code39ExtendedSymbol('\x1F').empty());
  EXPECT_TRUE(Code39ExtendedSymbol('\x7F').empty());
  EXPECT_TRUE(Code39ExtendedSymbol('\xE4').empty());
}

}  // namespace
}  // namespace tagwright
