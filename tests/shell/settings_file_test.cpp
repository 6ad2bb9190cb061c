#include "shell/settings_file.h"

#include <filesystem>

#include "common/prog_settings.h"
#include "platform/files/files.h"
#include "support/fault_of.h"
#include "support/file_size_limit.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

using std::string_literals::operator""s;

std::string Padded(std::string text, std::size_t size) {
  text.resize(size, ' ');
  return text;
}

// The bytes of a fresh record, put together by hand.
std::string FreshBytes() {
  return Padded("Arial", 50) +
         "\0\0\0\0\0\0\x26\x40"s              // 11.0
         "\x09\0\x07\0"s                      // formats 9 and 7
         "\0\0\0\0\0\0\x18\x40"s              // 6.0
         "\0\0\0\0"s                          // offsets
         "\xFF\xFF\xFF\xFF\xFF\xFF"s +        // rulers, millimetres, cross hairs
         std::string(900, ' ') +              // six recent files
         std::string(100, ' ') +              // reserved
         "\x25\x06\x81\x95\x43\x40\x8F\xC0"s  // -1000.033
         "\0\0\0\0\0\x78\xAE\x40"s            // 3900.0
         "\0\0\0\0\0\0\0\0"s
         "\0\0\0\0\0\0\0\0"s
         "\0\0\0\0\0\0\0\x40"s +  // 2.0
         std::string(70, '\0');
}

class SettingsFileTest : public ProgramTest {
 protected:
  std::string path = folder.File("progsettings.twd");
};

TEST_F(SettingsFileTest, AFreshRecordByteForByte) {
  const std::string bytes = SettingsBytes({});
  EXPECT_EQ(bytes.size(), 1190U);
  EXPECT_EQ(bytes, FreshBytes());
}

TEST_F(SettingsFileTest, EachFieldLiesAtItsOffset) {
  struct Row {
    std::size_t offset;
    std::string bytes;
    void (*set)(SettingsRecord&);
    const char* field;
  };
  using Record = SettingsRecord;
  const std::string real = "\0\0\0\0\0\0\xF8\x3F"s;  // 1.5
  const std::string path_bytes = Padded("/home/\xE9/x.twp", 150);
  const Row rows[] = {
      {0, Padded("Courier New", 50), [](Record& r) { r.DefaultFontName = "Courier New"; },
       "DefaultFontName"},
      {50, real, [](Record& r) { r.DefaultFontSize = 1.5; }, "DefaultFontSize"},
      {58, "\x02\x01", [](Record& r) { r.NumericBarcodeType = 258; }, "NumericBarcodeType"},
      {60, "\xFE\xFF", [](Record& r) { r.AlphaBarcodeType = -2; }, "AlphaBarcodeType"},
      {62, real, [](Record& r) { r.BarcodeFontSize = 1.5; }, "BarcodeFontSize"},
      {70, "\xFB\xFF", [](Record& r) { r.PrintOffsetX = -5; }, "PrintOffsetX"},
      {72, "\x05\0"s, [](Record& r) { r.PrintOffsetY = 5; }, "PrintOffsetY"},
      {74, "\0\0"s, [](Record& r) { r.ShowRulers = 0; }, "ShowRulers"},
      {76, "\0\0"s, [](Record& r) { r.MetricUnits = 0; }, "MetricUnits"},
      {78, "\0\0"s, [](Record& r) { r.ShowCrossHairs = 0; }, "ShowCrossHairs"},
      {80, path_bytes, [](Record& r) { r.RecentFile1 = "/home/é/x.twp"; }, "RecentFile1"},
      {230, path_bytes, [](Record& r) { r.RecentFile2 = "/home/é/x.twp"; }, "RecentFile2"},
      {380, path_bytes, [](Record& r) { r.RecentFile3 = "/home/é/x.twp"; }, "RecentFile3"},
      {530, path_bytes, [](Record& r) { r.RecentFile4 = "/home/é/x.twp"; }, "RecentFile4"},
      {680, path_bytes, [](Record& r) { r.RecentFile5 = "/home/é/x.twp"; }, "RecentFile5"},
      {830, path_bytes, [](Record& r) { r.RecentFile6 = "/home/é/x.twp"; }, "RecentFile6"},
      {980, std::string(100, '\x01'), [](Record& r) { r.Reserved1.fill(1); }, "first reserve"},
      {1080, real, [](Record& r) { r.WindowLeft = 1.5; }, "WindowLeft"},
      {1088, real, [](Record& r) { r.WindowTop = 1.5; }, "WindowTop"},
      {1096, real, [](Record& r) { r.WindowWidth = 1.5; }, "WindowWidth"},
      {1104, real, [](Record& r) { r.WindowHeight = 1.5; }, "WindowHeight"},
      {1112, real, [](Record& r) { r.MagneticZone = 1.5; }, "MagneticZone"},
      {1120, std::string(70, '\xFF'), [](Record& r) { r.Reserved2.fill(255); }, "second reserve"},
  };
  for (const Row& row : rows) {
    Record record;
    row.set(record);
    const std::string expected = FreshBytes().replace(row.offset, row.bytes.size(), row.bytes);
    EXPECT_EQ(SettingsBytes(record), expected) << row.field;
    EXPECT_EQ(SettingsFromBytes(expected), record) << row.field;
  }
}

TEST_F(SettingsFileTest, TheReservedBytesSurvive) {
  std::string bytes = FreshBytes();
  for (std::size_t i = 980; i < 1080; ++i) bytes[i] = static_cast<char>(i * 3);
  for (std::size_t i = 1120; i < 1190; ++i) bytes[i] = static_cast<char>(i * 5);
  EXPECT_EQ(SettingsBytes(SettingsFromBytes(bytes)), bytes);
}

TEST_F(SettingsFileTest, AShorterFileFillsTheLeadingFieldsAndLeavesTheRestZero) {
  const SettingsRecord record = SettingsFromBytes(FreshBytes().substr(0, 60));
  EXPECT_EQ(record.DefaultFontName.Trimmed(), "Arial");
  EXPECT_EQ(record.DefaultFontSize, 11);
  EXPECT_EQ(record.NumericBarcodeType, 9);
  EXPECT_EQ(record.AlphaBarcodeType, 0) << "no default: the file exists";
  EXPECT_EQ(record.ShowRulers, 0);
  EXPECT_EQ(record.RecentFile1.Trimmed(), "");
  EXPECT_EQ(record.Reserved1[0], 0);
  EXPECT_EQ(record.WindowLeft, 0);
  EXPECT_EQ(record.MagneticZone, 0);
}

TEST_F(SettingsFileTest, AFieldCutInTheMiddleKeepsWhatIsThere) {
  const SettingsRecord record = SettingsFromBytes(Padded("Verdana", 50).substr(0, 4));
  EXPECT_EQ(record.DefaultFontName.Trimmed(), "Verd");
  EXPECT_EQ(SettingsFromBytes(FreshBytes().substr(0, 59)).NumericBarcodeType, 9);
}

TEST_F(SettingsFileTest, ZeroBytesInTextFieldsCountAsBlanks) {
  std::string bytes = FreshBytes();
  bytes.replace(0, 50, "Arial" + std::string(45, '\0'));
  bytes.replace(80, 150, "/a.twp" + std::string(144, '\0'));
  bytes.replace(230, 150, std::string(150, '\0'));
  const SettingsRecord record = SettingsFromBytes(bytes);
  EXPECT_EQ(record.DefaultFontName.Trimmed(), "Arial");
  EXPECT_EQ(record.RecentFile1.Trimmed(), "/a.twp");
  EXPECT_EQ(record.RecentFile2.Trimmed(), "");
}

TEST_F(SettingsFileTest, AGapInTheRecentFilesStaysInTheRecord) {
  SettingsRecord record;
  record.RecentFile1 = "/a.twp";
  record.RecentFile3 = "/c.twp";
  WriteSettings(path, record);
  EXPECT_EQ(ReadSettings(path), record);
}

TEST_F(SettingsFileTest, ALongPathIsCutAt150Characters) {
  SettingsRecord record;
  record.RecentFile1 = std::string(149, 'a') + "éz";
  EXPECT_EQ(SettingsBytes(record).substr(228, 3), "a\xE9 ");
}

TEST_F(SettingsFileTest, ALongerFileIsAcceptedAndCutBackWhenItIsWritten) {
  WriteFile(path, FreshBytes() + std::string(110, 'x'));
  ASSERT_EQ(FileLength(path), 1300);
  const SettingsRecord record = ReadSettings(path);
  EXPECT_EQ(record, SettingsRecord());
  WriteSettings(path, record);
  EXPECT_EQ(FileLength(path), 1190);
  EXPECT_EQ(ReadFile(path), FreshBytes());
}

TEST_F(SettingsFileTest, TheFileIsFoundWhateverItsCaseAndComesBackUnderItsOwnName) {
  WriteFile(folder.File("ProgSettings.TWD"), FreshBytes());
  EXPECT_EQ(ReadSettings(path), SettingsRecord());
  WriteSettings(path, {});
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_FALSE(std::filesystem::exists(folder.File("ProgSettings.TWD")));
}

// A next start with part of a record would be without its window's size; without one it has the
// defaults.
TEST_F(SettingsFileTest, AWriteThatFailsLeavesNoFileBehind) {
  for (const bool exists : {false, true}) {
    if (exists) WriteSettings(path, {});
    {
      const FileSizeLimit limit(100);
      EXPECT_EQ(FaultOf([&] { WriteSettings(path, {}); }), kDiskFull);
    }
    EXPECT_FALSE(std::filesystem::exists(path)) << exists;
  }
}

TEST_F(SettingsFileTest, AnEmptyFileIsARecordOfZeros) {
  WriteFile(path, "");
  const SettingsRecord record = ReadSettings(path);
  EXPECT_EQ(record.DefaultFontName.Trimmed(), "");
  EXPECT_EQ(record.MetricUnits, 0);
}

TEST_F(SettingsFileTest, FaultsPassOn) {
  EXPECT_EQ(FaultOf([&] { ReadSettings(path); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { WriteSettings(folder.File("missing/progsettings.twd"), {}); }),
            kFileAccess);
}

}  // namespace
}  // namespace tagwright
