#include "barcode/code_128.h"

#include "barcode_test_support.h"

namespace tagwright {
namespace {

constexpr std::int16_t kA = 0, kB = 1, kC = 2;

using Code128Test = BarcodeTest;
using Rows = std::vector<std::string>;

struct Case {
  const char* data;
  std::int16_t code_set;
  Rows patterns;
  int modules;
};

TEST_F(Code128Test, PatternsAndModuleWidthOfEachCodeSet) {
  const std::vector<Case> cases = {
      // 103 + 33 + 2 x 34 + 3 x 35 = 309, check value 0
      {"ABC", kA, {"211412", "111323", "131123", "131321", "212222", "2331112"}, 68},
      // 104 + 33 + 2 x 66 = 269, check value 63
      {"Ab", kB, {"211214", "111323", "121421", "111224", "2331112"}, 57},
      // 105 + 12 + 2 x 34 = 185, check value 82
      {"1234", kC, {"211232", "112232", "131123", "121241", "2331112"}, 57},
      // The characters below the letters: "0" is value 16, " " value 0; 103 + 16 + 0 = 119, 16.
      {"0 ", kA, {"211412", "123122", "212222", "123122", "2331112"}, 57},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(Strings(Code128Patterns(each.data, each.code_set)), each.patterns) << each.data;
    Draw(each.data, static_cast<std::int16_t>(6 + each.code_set));
    EXPECT_EQ(PatternSum, each.modules) << each.data;
    EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / each.modules) << each.data;
    EXPECT_EQ(Picture().size(), static_cast<std::size_t>(each.modules)) << each.data;
  }
}

TEST_F(Code128Test, BarsAsTheyStandOnThePage) {
  Draw("ABC", 6, 68);
  EXPECT_DOUBLE_EQ(ModuleWidth, 1);
  EXPECT_EQ(Picture(),
            "11010000100"
            "10100011000"
            "10001011000"
            "10001000110"
            "11011001100"
            "1100011101011");
  EXPECT_DOUBLE_EQ(Bars().front().left, 10);
  EXPECT_DOUBLE_EQ(Bars().back().right, 78);
  EXPECT_DOUBLE_EQ(Bars().front().top, 20);
  EXPECT_DOUBLE_EQ(Bars().front().bottom, 35);
}

TEST_F(Code128Test, TheLessThanSignIsTwelveModulesWide) {
  EXPECT_EQ(Code128Symbol("<", -1, true, kB), "322122");
  EXPECT_EQ(Code128Symbol("28", -1, true, kC), "322122");
  EXPECT_EQ(Code128Symbol("28", -1, false, kA), "322122");
  Draw("<", 7);
  EXPECT_EQ(PatternSum, 11 + 12 + 11 + 13);
}

TEST_F(Code128Test, AnOddLastDigitIsAValueOfItsOwn) {
  // 105 + 12 + 2 x 3 = 123, check value 20.
  EXPECT_EQ(Strings(Code128Patterns("123", kC)),
            (Rows{"211232", "112232", "121223", "221231", "2331112"}));
  EXPECT_EQ(CheckSum, 20);
  EXPECT_EQ(Code128Symbol("7", -1, true, kC), Code128Symbol("07", -1, true, kC));
  Symbol symbol{"123", 8};
  symbol.text = true;
  Draw(symbol);
  ASSERT_EQ(Texts().size(), 1U);
  EXPECT_EQ(Texts()[0].Text(), "123");
}

// Both edges: 63 and 103 (the start) have patterns, 64 and 102 have none.
TEST_F(Code128Test, ACheckValueFrom64To102HasNoSymbolUnderCodeSetA) {
  struct Edge {
    const char* data;
    std::int32_t check;
    const char* pattern;
  };
  for (const Edge& each : {Edge{"RZ", 63, "111224"}, Edge{"SZ", 64, ""}, Edge{"BB", 102, ""},
                           Edge{"ABC", 0, "212222"}}) {
    const Patterns patterns = Code128Patterns(each.data, kA);
    EXPECT_EQ(CheckSum, each.check) << each.data;
    EXPECT_EQ(patterns[patterns.size() - 2], each.pattern) << each.data;
    EXPECT_EQ(patterns.back(), "2331112");
  }
  // One symbol fewer is measured too: 3 x 11 + 13 modules.
  Draw("SZ", 6);
  EXPECT_EQ(PatternSum, 46);
  EXPECT_DOUBLE_EQ(ModuleWidth, 95.0 / 46);
  EXPECT_EQ(Picture().size(), 46U);
  // The other code sets keep theirs: 104 + 34 + 2 x 34 = 206, check value 0; "Ab" has 63.
  EXPECT_EQ(Code128Patterns("BB", kB)[3], "212222");
  EXPECT_EQ(Code128Patterns("1234", kC)[3], "121241");
}

TEST_F(Code128Test, ACheckValueOfZeroIsTheRowZero) {
  CheckSum = 103 * 5;
  EXPECT_EQ(Code128Check(), "0");
  EXPECT_EQ(CheckSum, 0);
  EXPECT_EQ(Code128Symbol("0", -1, false, kA), "212222");
  EXPECT_EQ(Code128Symbol("0", -1, false, kB), "212222");
  EXPECT_EQ(Code128Symbol("0", -1, true, kB), "123122");  // the character "0" is value 16
}

TEST_F(Code128Test, KeysOfRows) {
  // Characters have rows 0 to 94; the rest answer to their numbers only.
  EXPECT_EQ(Code128Symbol(" ", -1, true, kB), "212222");
  EXPECT_EQ(Code128Symbol("~", -1, true, kB), "131141" /* 94 */);
  EXPECT_EQ(Code128Symbol("\x7F", -1, true, kB), "");
  EXPECT_EQ(Code128Symbol("95", -1, false, kB), "114113");
  EXPECT_EQ(Code128Symbol("102", -1, false, kB), "411131");
  EXPECT_EQ(Code128Symbol("103", -1, false, kB), "");
  EXPECT_EQ(Code128Symbol("05", -1, false, kB), "");
  EXPECT_EQ(Code128Symbol("", -1, true, kB), "");
  // Code set C goes by the number, whatever the prefix.
  EXPECT_EQ(Code128Symbol("05", -1, true, kC), "131222");
  EXPECT_EQ(Code128Symbol("00", -1, true, kC), "212222");
  EXPECT_EQ(Code128Symbol("99", -1, false, kC), "113141");
  EXPECT_EQ(Code128Symbol("A", -1, true, kC), "");
}

TEST_F(Code128Test, StartsAndStopAnswerToTheirNames) {
  const std::array<const char*, 3> starts = {"211412", "211214", "211232"};
  for (const std::int16_t set : {kA, kB, kC}) {
    for (const bool prefix : {false, true}) {
      EXPECT_EQ(Code128Symbol("start", 0, prefix, set), starts[static_cast<std::size_t>(set)]);
      EXPECT_EQ(CheckSum, 103 + set);
      EXPECT_EQ(Code128Symbol("stop", -1, prefix, set), "2331112");
    }
  }
}

TEST_F(Code128Test, TheMultiplierSaysWhatCountsInTheCheckSum) {
  CheckSum = 7;
  Code128Symbol("A", -1, true, kB);
  EXPECT_EQ(CheckSum, 7);
  Code128Symbol("A", 3, true, kB);
  EXPECT_EQ(CheckSum, 7 + 33 * 3);
  Code128Symbol("A", 0, true, kB);
  EXPECT_EQ(CheckSum, 33);
  // A key without a row counts as value 0.
  Code128Symbol("\x7F", 5, true, kB);
  EXPECT_EQ(CheckSum, 33);
  Code128Symbol("\x7F", 0, true, kB);
  EXPECT_EQ(CheckSum, 0);
  // A blanked row counts all the same.
  EXPECT_EQ(Code128Symbol("100", 2, false, kA), "");
  EXPECT_EQ(CheckSum, 200);
}

TEST_F(Code128Test, ACheckSumTooLargeKeepsItsValue) {
  CheckSum = 2147483647;
  EXPECT_EQ(Code128Symbol("A", 1, true, kB), "111323");
  EXPECT_EQ(CheckSum, 2147483647);
}

}  // namespace
}  // namespace tagwright
