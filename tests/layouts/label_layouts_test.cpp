#include "layouts/label_layouts.h"

#include <filesystem>

#include "common/prog_settings.h"
#include "platform/files/files.h"
#include "support/fault_of.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

using std::string_literals::operator""s;

class LabelLayoutsTest : public ProgramTest {
 protected:
  LabelLayoutsTest() {
    LabelLayouts.clear();
    LabelLayoutTop = -1;
  }
  ~LabelLayoutsTest() override {
    LabelLayouts.clear();
    LabelLayoutTop = -1;
  }

  std::string path = folder.File("label.dta");
};

// --- the built-in table ---

TEST_F(LabelLayoutsTest, TheBuiltInTable) {
  struct Row {
    const char* title;
    int paper;
    double width, height, left, top;
    int across, down;
    double gutter;
    int is_default;
  };
  const Row rows[] = {
      {"A4 1 per sheet", 0, 199, 289, 5.5, 4, 1, 1, 0, 0},
      {"A4 2 per sheet", 0, 199, 143, 5.5, 5.5, 1, 2, 0, 0},
      {"A4 4 per sheet", 0, 99, 139, 5.5, 9.5, 2, 2, 2.5, 0},
      {"A4 14 per sheet", 0, 99, 38, 4.5, 15, 2, 7, 2.5, -1},
      {"A4 16 per sheet", 0, 99, 34, 4.5, 12.5, 2, 8, 2.5, 0},
      {"A4 21 per sheet", 0, 63, 38, 8, 15.5, 3, 7, 2.5, 0},
      {"A4 24 per sheet", 0, 63, 35, 8, 8.5, 3, 8, 2.5, 0},
      {"US 1 per Sheet", 1, 215.9, 279.4, 0, 0, 1, 1, 0, 0},
      {"US 6 per Sheet", 1, 101.6, 84.582, 3.9624, 12.7, 2, 3, 4.7752, 0},
      {"US 10 per Sheet", 1, 101.6, 50.8, 3.9624, 12.7, 2, 5, 4.7752, 0},
      {"US 14 per Sheet", 1, 101.6, 34.036, 3.9624, 21.1582, 2, 7, 4.7752, 0},
      {"US 20 per Sheet", 1, 101.6, 25.4, 3.9624, 12.7, 2, 10, 4.7752, 0},
      {"US 30 per Sheet", 1, 66.675, 25.4, 4.7752, 12.7, 3, 10, 3.175, 0},
      {"US 80 per Sheet", 1, 44.45, 12.7, 7.112, 12.7, 4, 20, 7.9502, 0},
  };
  const std::vector<LabelLayout> table = BuiltInLabelLayouts();
  ASSERT_EQ(table.size(), 14U);
  for (std::size_t i = 0; i < table.size(); ++i) {
    const Row& row = rows[i];
    const LabelLayout& layout = table[i];
    EXPECT_EQ(layout.Title.Trimmed(), row.title);
    EXPECT_EQ(layout.Paper, row.paper) << row.title;
    EXPECT_EQ(layout.Used, -1) << row.title;
    EXPECT_EQ(layout.LabelWidth, static_cast<float>(row.width)) << row.title;
    EXPECT_EQ(layout.LabelHeight, static_cast<float>(row.height)) << row.title;
    EXPECT_EQ(layout.LeftMargin, static_cast<float>(row.left)) << row.title;
    EXPECT_EQ(layout.TopMargin, static_cast<float>(row.top)) << row.title;
    EXPECT_EQ(layout.NoAcross, row.across) << row.title;
    EXPECT_EQ(layout.NoDown, row.down) << row.title;
    EXPECT_EQ(layout.HorizGutter, static_cast<float>(row.gutter)) << row.title;
    EXPECT_EQ(layout.VertGutter, 0) << row.title;
    EXPECT_EQ(layout.IsDefault, row.is_default) << row.title;
  }
}

// --- bytes ---

TEST_F(LabelLayoutsTest, EachFieldLiesAtItsOffset) {
  struct Row {
    std::size_t offset;
    std::string bytes;
    void (*set)(LabelLayout&);
    const char* field;
  };
  const Row rows[] = {
      {0, "Shelf \xE9" + std::string(18, ' '), [](LabelLayout& l) { l.Title = "Shelf é"; },
       "Title"},
      {25, "\x01\x00"s, [](LabelLayout& l) { l.Paper = 1; }, "Paper"},
      {27, "\xFF\xFF", [](LabelLayout& l) { l.Used = -1; }, "Used"},
      {29, "\x00\x00\xC6\x42"s, [](LabelLayout& l) { l.LabelWidth = 99; }, "LabelWidth"},
      {33, "\x00\x00\x18\x42"s, [](LabelLayout& l) { l.LabelHeight = 38; }, "LabelHeight"},
      {37, "\x00\x00\x90\x40"s, [](LabelLayout& l) { l.LeftMargin = 4.5; }, "LeftMargin"},
      {41, "\x33\x33\x4B\x41", [](LabelLayout& l) { l.TopMargin = 12.7F; }, "TopMargin"},
      {45, "\x02\x01", [](LabelLayout& l) { l.NoAcross = 258; }, "NoAcross"},
      {47, "\x07\x00"s, [](LabelLayout& l) { l.NoDown = 7; }, "NoDown"},
      {49, "\x33\x33\x4B\x40", [](LabelLayout& l) { l.HorizGutter = 3.175F; }, "HorizGutter"},
      {53, "\x00\x00\x20\xC0"s, [](LabelLayout& l) { l.VertGutter = -2.5; }, "VertGutter"},
      {57, "\xFF\xFF", [](LabelLayout& l) { l.IsDefault = -1; }, "IsDefault"},
  };
  const std::string empty = std::string(25, ' ') + std::string(36, '\0');
  EXPECT_EQ(LabelLayoutBytes({}), empty);
  for (const Row& row : rows) {
    LabelLayout layout;
    row.set(layout);
    const std::string expected =
        std::string(empty).replace(row.offset, row.bytes.size(), row.bytes);
    EXPECT_EQ(LabelLayoutBytes(layout), expected) << row.field;
    EXPECT_EQ(LabelLayoutFromBytes(expected), layout) << row.field;
  }
}

TEST_F(LabelLayoutsTest, TheReservedBytesAreWrittenAsZero) {
  const LabelLayout layout = LabelLayoutFromBytes(std::string(61, '\x11'));
  EXPECT_EQ(LabelLayoutBytes(layout), std::string(59, '\x11') + "\0\0"s);
}

TEST_F(LabelLayoutsTest, ATitleOf25CharactersHasNoPaddingAndALongerOneIsCut) {
  LabelLayout layout;
  layout.Title = "1234567890123456789012345";
  EXPECT_EQ(LabelLayoutBytes(layout).substr(0, 27), "1234567890123456789012345\0\0"s);
  layout.Title = "1234567890123456789012345X";
  EXPECT_EQ(LabelLayoutBytes(layout).substr(0, 27), "1234567890123456789012345\0\0"s);
}

// --- loading ---

TEST_F(LabelLayoutsTest, AMissingFileIsCreatedWithTheBuiltInTable) {
  LoadLabelLayouts();
  EXPECT_EQ(FileLength(path), 854);
  EXPECT_EQ(LabelLayoutTop, 13);
  EXPECT_EQ(LabelLayouts, BuiltInLabelLayouts());
  EXPECT_EQ(ReadFile(path).substr(61, 14), "A4 2 per sheet");  // record i at byte 61 x i
}

TEST_F(LabelLayoutsTest, TheTableIsUsedOnlyWhenTheFileIsMissing) {
  LabelLayout own;
  own.Title = "Own";
  WriteFile(path, LabelLayoutBytes(own));
  LoadLabelLayouts();
  EXPECT_EQ(FileLength(path), 61);
  EXPECT_EQ(LabelLayoutTop, 0);
  ASSERT_EQ(LabelLayouts.size(), 1U);
  EXPECT_EQ(LabelLayouts[0], own);
}

TEST_F(LabelLayoutsTest, TheFileIsFoundWhateverItsCase) {
  WriteFile(folder.File("LABEL.DTA"), LabelLayoutBytes({}));
  LoadLabelLayouts();
  EXPECT_EQ(LabelLayoutTop, 0);
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(LabelLayoutsTest, TheCountRoundsWithHalvesToTheEvenNumber) {
  struct Row {
    std::size_t length;
    int top;
    const char* reason;
  };
  const Row rows[] = {
      {31, 0, "31 / 61 - 1 = -0.492: just rounds to one record"},
      {61, 0, "one record"},
      {91, 0, "91 / 61 - 1 = 0.492"},
      {92, 1, "92 / 61 - 1 = 0.508"},
      {100, 1, "100 / 61 - 1 = 0.639"},
      {122, 1, "two records"},
      {854, 13, "the fresh file"},
      {915, 14, "fifteen records"},
  };
  for (const Row& row : rows) {
    std::filesystem::remove(path);
    WriteFile(path, std::string(row.length, 'x'));
    LoadLabelLayouts();
    EXPECT_EQ(LabelLayoutTop, row.top) << row.reason;
    EXPECT_EQ(LabelLayouts.size(), static_cast<std::size_t>(row.top) + 1) << row.reason;
  }
}

TEST_F(LabelLayoutsTest, AFileOf100BytesLeavesTheSecondRecordPartlyRead) {
  LabelLayout whole;
  whole.Title = "Whole";
  whole.LabelWidth = 99;
  whole.LabelHeight = 38;
  whole.HorizGutter = 2.5;
  whole.IsDefault = -1;
  const std::string record = LabelLayoutBytes(whole);
  WriteFile(path, record + record.substr(0, 39));
  LoadLabelLayouts();
  ASSERT_EQ(LabelLayouts.size(), 2U);
  EXPECT_EQ(LabelLayouts[0], whole);
  LabelLayout part;
  part.Title = "Whole";
  part.LabelWidth = 99;
  part.LabelHeight = 38;
  EXPECT_EQ(LabelLayouts[1], part);
}

TEST_F(LabelLayoutsTest, ATailTooShortForARecordIsNotRead) {
  const std::string record = LabelLayoutBytes(BuiltInLabelLayouts()[3]);
  WriteFile(path, record + record.substr(0, 30));
  LoadLabelLayouts();
  EXPECT_EQ(LabelLayouts, std::vector{BuiltInLabelLayouts()[3]});
}

TEST_F(LabelLayoutsTest, AZeroLengthFileCountsAsMissing) {
  WriteFile(path, "");
  LoadLabelLayouts();
  EXPECT_EQ(LabelLayoutTop, 13);
  EXPECT_EQ(FileLength(path), 854);
}

TEST_F(LabelLayoutsTest, AFileThatRoundsToNoRecordCountsAsMissingToo) {
  WriteFile(path, std::string(30, 'x'));
  LoadLabelLayouts();
  EXPECT_EQ(LabelLayoutTop, 13);
  EXPECT_EQ(FileLength(path), 854);
}

TEST_F(LabelLayoutsTest, TheBoundIsSixteenBits) {
  WriteFile(path, "x");
  std::filesystem::resize_file(path, 32768U * 61);
  LoadLabelLayouts();
  EXPECT_EQ(LabelLayoutTop, 32767);
  std::filesystem::resize_file(path, 32769U * 61);
  EXPECT_EQ(FaultOf(LoadLabelLayouts), kOverflow);
  EXPECT_EQ(LabelLayoutTop, 32767) << "what was loaded stays";
}

TEST_F(LabelLayoutsTest, WhereTheFileCannotBeWrittenTheBuiltInTableIsInForceAndTheFaultPassesOn) {
  AppFolder = folder.File("missing/");
  EXPECT_EQ(FaultOf(LoadLabelLayouts), kFileAccess);
  EXPECT_EQ(LabelLayouts, BuiltInLabelLayouts());
  EXPECT_EQ(LabelLayoutTop, 13);
}

// --- saving ---

TEST_F(LabelLayoutsTest, AFifteenthLayoutGoesLastAndLeavesTheDefaultWhereItWas) {
  LoadLabelLayouts();
  LabelLayout own = LabelLayouts[0];
  own.Title = "Own";
  own.IsDefault = 0;
  LabelLayouts.push_back(own);
  ++LabelLayoutTop;
  SaveLabelLayouts();
  EXPECT_EQ(FileLength(path), 915);
  LoadLabelLayouts();
  EXPECT_EQ(LabelLayoutTop, 14);
  EXPECT_EQ(LabelLayouts[14], own);
  EXPECT_EQ(LabelLayouts[3].IsDefault, -1);
}

TEST_F(LabelLayoutsTest, SavingWritesOverTheFileWithoutCuttingIt) {
  LoadLabelLayouts();
  const std::string before = ReadFile(path) + "tail";
  WriteFile(path, before);
  SaveLabelLayouts();
  EXPECT_EQ(ReadFile(path), before);
}

TEST_F(LabelLayoutsTest, LoadSaveLoadChangesNothing) {
  LoadLabelLayouts();
  const std::string bytes = ReadFile(path);
  SaveLabelLayouts();
  EXPECT_EQ(ReadFile(path), bytes);
}

}  // namespace
}  // namespace tagwright
