#include "platform/files/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "platform/services/desktop.h"
#include "platform/text/text.h"
#include "support/fault_of.h"
#include "support/file_size_limit.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class FilesTest : public testing::Test {
 protected:
  // Makes a file whose content is its own name.
  void Make(const std::string& name) {
    std::filesystem::create_directories(std::filesystem::path(folder.File(name)).parent_path());
    std::ofstream(folder.File(name), std::ios::binary) << name;
  }

  TempFolder folder;
};

// --- names ---

TEST_F(FilesTest, TheExactNameComesFirst) {
  Make("label.twp");
  Make("LABEL.twp");
  Make("Label.twp");
  EXPECT_EQ(ResolvePath(folder.File("label.twp")), folder.File("label.twp"));
  EXPECT_EQ(ResolvePath(folder.File("Label.twp")), folder.File("Label.twp"));
}

TEST_F(FilesTest, OtherwiseTheFirstThatDiffersOnlyInCase) {
  Make("LABEL.twp");
  Make("Label.twp");
  EXPECT_EQ(ResolvePath(folder.File("label.TWP")), folder.File("LABEL.twp"));
}

TEST_F(FilesTest, ALowerCaseNameMeansItsCapitalsAlsoWhereThoseDoNotComeBack) {
  for (const char* letter : {"\u0130", "\u03F4", "\u1E9E", "\u2126", "\u212A", "\u212B"}) {
    const std::string name = std::string("Labels ") + letter + "/Label " + letter + ".twp";
    Make(name);
    EXPECT_EQ(ResolvePath(folder.File(LowerCase(name))), folder.File(name)) << letter;
  }
}

TEST_F(FilesTest, EveryComponentIsResolved) {
  Make("My Labels/Für Öl/Shelf.TWP");
  EXPECT_EQ(ReadFile(folder.File("my labels/für öl/shelf.twp")), "My Labels/Für Öl/Shelf.TWP");
  EXPECT_EQ(ReadFile(folder.File("MY LABELS\\FÜR ÖL\\SHELF.twp")), "My Labels/Für Öl/Shelf.TWP");
}

TEST_F(FilesTest, OnlyAFolderCanHaveMoreOfThePathBehindIt) {
  Make("DATA");
  Make("Data2/x.csv");
  std::filesystem::rename(folder.File("Data2"), folder.File("Data"));
  EXPECT_EQ(ResolvePath(folder.File("data/X.CSV")), folder.File("Data/x.csv"));
  EXPECT_EQ(ResolvePath(folder.File("data")), folder.File("DATA"));
}

TEST_F(FilesTest, ANewFileLandsInTheFolderThatExists) {
  Make("Labels/old.twp");
  EXPECT_EQ(ResolvePath(folder.File("labels/New.twp")), folder.File("Labels/New.twp"));
  WriteFile(folder.File("LABELS/New.twp"), "x");
  EXPECT_TRUE(std::filesystem::exists(folder.File("Labels/New.twp")));
}

TEST_F(FilesTest, APathThatIsNowhereStaysAsItIs) {
  EXPECT_EQ(ResolvePath(folder.File("no/such\\File.twp")), folder.File("no/such/File.twp"));
  EXPECT_EQ(ResolvePath(""), "");
  EXPECT_EQ(ResolvePath("c:\\labels\\x.twp"), "c:/labels/x.twp");
}

TEST_F(FilesTest, ExistsMeansARegularFile) {
  Make("Sub/a.txt");
  EXPECT_TRUE(FileExists(folder.File("Sub/a.txt")));
  EXPECT_TRUE(FileExists(folder.File("sub/A.TXT")));
  EXPECT_FALSE(FileExists(folder.File("Sub")));
  EXPECT_FALSE(FileExists(folder.File("Sub/b.txt")));
  EXPECT_FALSE(FileExists(""));
  EXPECT_FALSE(FileExists("   "));
  EXPECT_FALSE(FileExists("/dev/null"));
}

TEST_F(FilesTest, AZeroByteInANameIsNoFile) {
  Make("a.txt");
  const std::string name = folder.File("a.txt") + std::string("\0.gif", 5);
  EXPECT_FALSE(FileExists(name));
  EXPECT_EQ(FaultOf([&] { ReadFile(name); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { DeleteFile(name); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { WriteFile(name, "x"); }), kFileAccess);
  EXPECT_EQ(ReadFile(folder.File("a.txt")), "a.txt");
}

TEST(FileBaseName, EitherSlashSeparates) {
  EXPECT_EQ(FileBaseName("/a/b.twp"), "b.twp");
  EXPECT_EQ(FileBaseName("c:\\a\\b.twp"), "b.twp");
  EXPECT_EQ(FileBaseName("/a\\b/c.twp"), "c.twp");
  EXPECT_EQ(FileBaseName("b.twp"), "b.twp");
  EXPECT_EQ(FileBaseName("/a/"), "");
  EXPECT_EQ(FileBaseName(""), "");
}

// --- contents ---

TEST_F(FilesTest, BytesComeBackAsTheyWere) {
  std::string bytes(200000, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7);
  WriteFile(folder.File("a.bin"), bytes);
  EXPECT_EQ(FileLength(folder.File("A.BIN")), 200000);
  EXPECT_EQ(ReadFile(folder.File("a.bin")), bytes);
  EXPECT_EQ(ReadFileStart(folder.File("a.bin"), 70000), bytes.substr(0, 70000));
  EXPECT_EQ(ReadFileStart(folder.File("a.bin"), 0), "");
}

TEST_F(FilesTest, WritingKeepsTheTailOfALongerFile) {
  WriteFile(folder.File("a"), "0123456789");
  WriteFile(folder.File("a"), "abc");
  EXPECT_EQ(ReadFile(folder.File("a")), "abc3456789");
  WriteFile(folder.File("a"), "");
  EXPECT_EQ(ReadFile(folder.File("a")), "abc3456789");
}

TEST_F(FilesTest, WritingGrowsAShorterFile) {
  WriteFile(folder.File("a"), "abc");
  WriteFile(folder.File("a"), "0123456789");
  EXPECT_EQ(ReadFile(folder.File("a")), "0123456789");
}

TEST_F(FilesTest, ANameToBeWrittenIsTakenExactly) {
  Make("Label.twp");
  WriteFile(folder.File("label.twp"), "new");
  EXPECT_EQ(ReadFile(folder.File("Label.twp")), "Label.twp");
  EXPECT_EQ(ReadFile(folder.File("label.twp")), "new");
}

TEST_F(FilesTest, ReplacingLeavesNothingOfTheFormerFile) {
  WriteFile(folder.File("a"), "0123456789");
  Make("A");
  ReplaceFile(folder.File("a"), "abc");
  EXPECT_EQ(ReadFile(folder.File("a")), "abc");
  EXPECT_EQ(ReadFile(folder.File("A")), "A");
  ReplaceFile(folder.File("new"), "x");
  EXPECT_EQ(ReadFile(folder.File("new")), "x");
}

TEST_F(FilesTest, AReplacementThatFailsLeavesNoPartOfItself) {
  Make("a");
  {
    const FileSizeLimit limit(10);
    EXPECT_EQ(FaultOf([&] { ReplaceFile(folder.File("a"), std::string(100, 'x')); }), kDiskFull);
  }
  EXPECT_FALSE(FileExists(folder.File("a")));
  EXPECT_EQ(FaultOf([&] { ReplaceFile("", "x"); }), kFileAccess);
  EXPECT_EQ(FaultOf([&] { ReplaceFile(folder.Path(), "x"); }), kFileAccess);
}

TEST_F(FilesTest, DeletingIgnoresCaseToo) {
  Make("Old.TWP");
  DeleteFile(folder.File("old.twp"));
  EXPECT_FALSE(FileExists(folder.File("Old.TWP")));
}

// --- faults ---

TEST_F(FilesTest, AMissingFileIsFault53) {
  const std::string missing = folder.File("missing");
  EXPECT_EQ(FaultOf([&] { ReadFile(missing); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { ReadFileStart(missing, 10); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { FileLength(missing); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { DeleteFile(missing); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { ReadFile(""); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { FileLength(folder.Path()); }), kFileNotFound);
}

TEST_F(FilesTest, WhatIsNoRegularFileIsFault75) {
  std::filesystem::create_directory(folder.File("sub"));
  ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
  EXPECT_EQ(FaultOf([&] { ReadFile(folder.File("sub")); }), kFileAccess);
  EXPECT_EQ(FaultOf([&] { ReadFile(folder.File("pipe")); }), kFileAccess);  // and does not wait
  EXPECT_EQ(FaultOf([&] { WriteFile(folder.File("sub"), "x"); }), kFileAccess);
  EXPECT_EQ(FaultOf([&] { DeleteFile(folder.File("sub")); }), kFileAccess);
}

TEST_F(FilesTest, WritingIntoAMissingFolderIsFault75) {
  EXPECT_EQ(FaultOf([&] { WriteFile(folder.File("no/a"), "x"); }), kFileAccess);
  EXPECT_EQ(FaultOf([&] { WriteFile("", "x"); }), kFileAccess);
}

TEST(FullDisk, IsFault61) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device here that is always full";
  EXPECT_EQ(FaultOf([] { WriteFile("/dev/full", "x"); }), kDiskFull);
}

// --- states of a file ---

TEST_F(FilesTest, TheStampTellsStatesOfAFileApart) {
  Make("a.gif");
  const FileStamp before = StampOfFile(folder.File("A.gif"));
  EXPECT_EQ(StampOfFile(folder.File("a.gif")), before);
  EXPECT_EQ(before.length, 5);
  WriteFile(folder.File("a.gif"), "longer than before");
  EXPECT_NE(StampOfFile(folder.File("a.gif")), before);
  Make("b.gif");
  EXPECT_NE(StampOfFile(folder.File("b.gif")).number, before.number);
}

TEST_F(FilesTest, OnlyAFileThatHasLongBeenThereIsSettled) {
  Make("a.gif");
  EXPECT_FALSE(StampOfFile(folder.File("a.gif")).settled);
  EXPECT_TRUE(StampOfFile(TestDataFolder() + "/pictures/hole.gif").settled);
}

TEST_F(FilesTest, OnlyFilesHaveStamps) {
  EXPECT_EQ(FaultOf([&] { StampOfFile(folder.File("missing")); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { StampOfFile(folder.Path()); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { StampOfFile(""); }), kFileNotFound);
}

// --- the desktop's files ---

TEST(ExecutableFolder, IsWhereTheProgramLiesUnlessATestSaysOtherwise) {
  SetExecutableFolder("");
  const std::string real = ExecutableFolder();
  EXPECT_EQ(std::filesystem::canonical("/proc/self/exe").parent_path().string(), real);
  SetExecutableFolder("/somewhere");
  EXPECT_EQ(ExecutableFolder(), "/somewhere");
  SetExecutableFolder("");
  EXPECT_EQ(ExecutableFolder(), real);
}

TEST(WaitCursor, ReachesItsView) {
  int shown = -1;
  ScreenMousePointerView() = [&](int pointer) { shown = pointer; };
  SetScreenMousePointer(11);
  EXPECT_EQ(ScreenMousePointer(), 11);
  EXPECT_EQ(shown, 11);
  ScreenMousePointerView() = nullptr;
  SetScreenMousePointer(0);
  EXPECT_EQ(shown, 11);
}

}  // namespace
}  // namespace tagwright
