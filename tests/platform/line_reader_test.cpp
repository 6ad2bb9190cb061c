#include "platform/files/line_reader.h"

#include <vector>

#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/text/text.h"
#include "support/fault_of.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class LineReaderTest : public testing::Test {
 protected:
  LineReaderTest() { SetCodePage(1252); }

  std::vector<std::string> LinesOf(const std::string& bytes) {
    const std::string path = folder.File("text" + std::to_string(++files_));
    WriteFile(path, bytes);
    std::vector<std::string> lines;
    LineReader reader(path);
    for (std::string line; reader.Next(line);) lines.push_back(line);
    EXPECT_EQ(CountLines(path, [](double) { return true; }),
              static_cast<std::int64_t>(lines.size()));
    return lines;
  }

  using Lines = std::vector<std::string>;
  TempFolder folder;

 private:
  int files_ = 0;
};

// --- ends of lines ---

TEST_F(LineReaderTest, LinesEndInLfCrLfOrCr) {
  EXPECT_EQ(LinesOf("a\nb\r\nc\rd\n"), (Lines{"a", "b", "c", "d"}));
}

TEST_F(LineReaderTest, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(LinesOf("a\nb"), (Lines{"a", "b"}));
  EXPECT_EQ(LinesOf("a"), (Lines{"a"}));
}

TEST_F(LineReaderTest, AFileWithoutAByteHasNoLine) { EXPECT_EQ(LinesOf(""), (Lines{})); }

TEST_F(LineReaderTest, EmptyLinesAreLines) {
  EXPECT_EQ(LinesOf("\n"), (Lines{""}));
  EXPECT_EQ(LinesOf("\r"), (Lines{""}));
  EXPECT_EQ(LinesOf("\r\n"), (Lines{""}));
  EXPECT_EQ(LinesOf("\n\r"), (Lines{"", ""}));
  EXPECT_EQ(LinesOf("\r\r\n\n"), (Lines{"", "", ""}));
  EXPECT_EQ(LinesOf("a\r\n\r\nb\n\nc"), (Lines{"a", "", "b", "", "c"}));
}

// Blocks are 65,536 bytes: ends of lines at, before and behind the seam.
TEST_F(LineReaderTest, ASeamBetweenBlocksIsNoEndOfALine) {
  for (std::size_t length = 65533; length <= 65538; ++length) {
    const std::string a(length, 'a');
    for (const char* end : {"\n", "\r\n", "\r"}) {
      EXPECT_EQ(LinesOf(a + end), (Lines{a})) << length;
      EXPECT_EQ(LinesOf(a + end + "b"), (Lines{a, "b"})) << length;
      EXPECT_EQ(LinesOf(a + end + end + "b"), (Lines{a, "", "b"})) << length;
    }
  }
}

TEST_F(LineReaderTest, ManyBlocksOfOneKindOfEndAndThenTheOther) {
  std::string bytes;
  Lines expected;
  for (int i = 0; i < 60000; ++i) {
    expected.push_back("row " + std::to_string(i));
    bytes += expected.back() + (i < 30000 ? "\n" : "\r");
  }
  EXPECT_EQ(LinesOf(bytes), expected);
}

// --- characters ---

TEST_F(LineReaderTest, AByteOrderMarkIsDroppedAtTheStartOnly) {
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                    "a\n\xEF\xBB\xBF"
                    "b"),
            (Lines{"a",
                   "\xEF\xBB\xBF"
                   "b"}));
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF"), (Lines{}));
  EXPECT_EQ(LinesOf("\xEF\xBB\xBF\n"), (Lines{""}));
}

TEST_F(LineReaderTest, EachLineIsUtf8OrTheCodePageByItself) {
  EXPECT_EQ(LinesOf("plain\nM\xC3\xBCnchen\nM\xFCnchen\n"),
            (Lines{"plain", "M\u00FCnchen", "M\u00FCnchen"}));
}

TEST_F(LineReaderTest, OneByteThatIsNoUtf8MakesTheLineCodePage) {
  EXPECT_EQ(LinesOf("\xC3\xBC \xFC"), (Lines{"\u00C3\u00BC \u00FC"}));
}

TEST_F(LineReaderTest, CharactersOfThreeAndFourBytesAreUtf8) {
  EXPECT_EQ(LinesOf("\xE6\x9D\xB1\xF0\x9F\x8F\xB7"), (Lines{"\u6771\U0001F3F7"}));
}

TEST_F(LineReaderTest, SurrogatesAndOverlongFormsAreNoUtf8) {
  EXPECT_EQ(LinesOf("\xED\xA0\x80"), (Lines{FromCodePage("\xED\xA0\x80")}));
  EXPECT_EQ(LinesOf("\xC0\xAF"), (Lines{FromCodePage("\xC0\xAF")}));
}

TEST_F(LineReaderTest, TheCodePageIsTheUsers) {
  SetCodePage(1251);
  EXPECT_EQ(LinesOf("\xCC\xEE\xF1\xEA\xE2\xE0"), (Lines{"Москва"}));
  SetCodePage(1252);
}

TEST_F(LineReaderTest, AZeroByteStaysInItsLine) {
  EXPECT_EQ(LinesOf(std::string("a\0b\nc", 5)), (Lines{std::string("a\0b", 3), "c"}));
}

// --- long lines ---

TEST_F(LineReaderTest, ALineIsKeptToItsLimitAndTheNextOneIsWhole) {
  for (const std::size_t length :
       {kLongestLine - 1, kLongestLine, kLongestLine + 1, kLongestLine + 70000, 3 * kLongestLine}) {
    const Lines lines = LinesOf(std::string(length, 'x') + "\nnext");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].size(), std::min(length, kLongestLine));
    EXPECT_EQ(lines[1], "next");
  }
}

TEST_F(LineReaderTest, TheLimitCutsNoCharacterInTwo) {
  for (std::size_t before = 1; before <= 4; ++before) {
    const Lines lines =
        LinesOf(std::string(kLongestLine - before, 'x') + "\xF0\x9F\x8F\xB7\xF0\x9F\x8F\xB7");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].size(), before == 4 ? kLongestLine : kLongestLine - before) << before;
    EXPECT_EQ(Length(lines[0]), kLongestLine - before + (before == 4 ? 1 : 0));
  }
}

// --- faults and progress ---

TEST_F(LineReaderTest, AMissingFileAndAFolderFault) {
  EXPECT_EQ(FaultOf([&] { LineReader reader(folder.File("gone.csv")); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { LineReader reader(folder.Path()); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { CountLines(folder.File("gone.csv"), [](double) { return true; }); }),
            kFileNotFound);
}

TEST_F(LineReaderTest, NamesResolveIgnoringCase) {
  WriteFile(folder.File("Names.CSV"), "a\n");
  std::string line;
  EXPECT_TRUE(LineReader(folder.File("names.csv")).Next(line));
}

TEST_F(LineReaderTest, CountingTellsItsShareAndEndsWhenItIsTold) {
  WriteFile(folder.File("big"), std::string(4 * 65536, '\n'));
  std::vector<double> shares;
  EXPECT_EQ(CountLines(folder.File("big"),
                       [&](double share) {
                         shares.push_back(share);
                         return shares.size() < 3;
                       }),
            3 * 65536);
  EXPECT_EQ(shares, (std::vector<double>{0.25, 0.5, 0.75}));
}

}  // namespace
}  // namespace tagwright
