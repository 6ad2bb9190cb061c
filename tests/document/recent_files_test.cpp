#include "document/recent_files.h"

#include "document/document_support.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

class RecentFilesTest : public ProgramTest {
 protected:
  std::string Project(const std::string& name) {
    WriteFile(folder.File(name), "");
    return folder.File(name);
  }

  static std::vector<std::string> Shown() {
    std::vector<std::string> captions;
    for (const auto& [index, entry] : frmMain.mnuFileOld) {
      if (entry->Visible()) captions.push_back(entry->Caption());
    }
    return captions;
  }

  static std::vector<std::string> Slots() {
    return {RecentFiles.begin(), RecentFiles.begin() + RecentUB + 1};
  }
};

using List = std::vector<std::string>;

TEST_F(RecentFilesTest, FirstPathTakesSlot0) {
  AddRecentFile("/A");
  EXPECT_EQ(RecentUB, 0);
  EXPECT_EQ(RecentFiles[0], "/A");
}

TEST_F(RecentFilesTest, NewPathsPushTheOthersDownAndSixRemain) {
  for (const char* path : {"1", "2", "3", "4", "5", "6", "7", "8"}) AddRecentFile(path);
  EXPECT_EQ(RecentUB, 5);
  EXPECT_EQ(Slots(), (List{"8", "7", "6", "5", "4", "3"}));
}

TEST_F(RecentFilesTest, MatchIgnoresCaseAndMovesToTheFrontInItsNewSpelling) {
  for (const char* path : {"a", "b", "c"}) AddRecentFile(path);
  AddRecentFile("A");
  EXPECT_EQ(RecentFiles[0], "A");
  EXPECT_EQ(RecentFiles[1], "c");
  EXPECT_EQ(RecentFiles[2], "b");
}

TEST_F(RecentFilesTest, MatchFurtherDownGrowsTheListAllTheSame) {
  for (const char* path : {"a", "b"}) AddRecentFile(path);
  AddRecentFile("a");
  EXPECT_EQ(RecentUB, 2);
  EXPECT_EQ(Slots(), (List{"a", "b", ""}));
}

TEST_F(RecentFilesTest, MatchAtTheFrontChangesNothing) {
  for (const char* path : {"a", "b"}) AddRecentFile(path);
  AddRecentFile("B");
  EXPECT_EQ(Slots(), (List{"b", "a"}));
}

TEST_F(RecentFilesTest, BlankPathAddsNothing) {
  AddRecentFile("a");
  AddRecentFile("   ");
  EXPECT_EQ(Slots(), List{"a"});
}

TEST_F(RecentFilesTest, MenuShowsAtMostSixEntriesInLowerCaseWithTheMostRecentFirst) {
  List paths;
  for (int i = 0; i < 7; ++i) {
    paths.push_back(Project("Label " + std::to_string(i) + ".TWP"));
    AddRecentFile(paths.back());
  }
  List expected;
  for (int i = 6; i > 0; --i) expected.push_back(LowerCase(paths[static_cast<std::size_t>(i)]));
  EXPECT_EQ(Shown(), expected);
  EXPECT_TRUE(frmMain.mnuFileBar4.Visible());
}

// In a menu's caption one "&" marks the letter behind it.
TEST_F(RecentFilesTest, AnAmpersandOfTheNameIsNoMark) {
  AddRecentFile(Project("Salt & Pepper.twp"));
  EXPECT_EQ(Shown(), List{LowerCase(folder.File("salt && pepper.twp"))});
}

TEST_F(RecentFilesTest, TwoFilesThatDifferInCaseAreTwoEntries) {
  const std::string capital = Project("Label.twp"), small = Project("label.twp");
  AddRecentFile(capital);
  AddRecentFile(small);
  EXPECT_EQ(Slots(), (List{small, capital}));
  AddRecentFile(capital);
  EXPECT_EQ(RecentFiles[0], capital);
}

TEST_F(RecentFilesTest, FileThatIsGoneShowsNothingButStaysInTheList) {
  const std::string here = Project("here.twp");
  AddRecentFile("/gone.twp");
  EXPECT_FALSE(frmMain.mnuFileBar4.Visible());
  AddRecentFile(here);
  EXPECT_EQ(Shown(), List{LowerCase(here)});
  EXPECT_EQ(Slots(), (List{here, "/gone.twp"}));
  DeleteFile(here);
  AddRecentFile("");
  EXPECT_TRUE(Shown().empty());
}

TEST_F(RecentFilesTest, SettingsTakeSixSlotsCutAt150Characters) {
  const std::string longest = "/" + std::string(149, 'x');
  for (const std::string& path : List{"6", "5", "4", "3", "2", longest + "y"}) AddRecentFile(path);
  EXPECT_EQ(ProgSettings.RecentFile1.Trimmed(), longest);
  EXPECT_EQ(ProgSettings.RecentFile2.Trimmed(), "2");
  EXPECT_EQ(ProgSettings.RecentFile6.Trimmed(), "6");
}

TEST_F(RecentFilesTest, ShowingTheListLeavesTheSettingsAlone) {
  ProgSettings.RecentFile3 = "gap";
  RecentFiles[0] = Project("a.twp");
  RecentUB = 0;
  ShowRecentFiles();
  EXPECT_EQ(Shown().size(), 1u);
  EXPECT_EQ(ProgSettings.RecentFile3.Trimmed(), "gap");
  EXPECT_EQ(ProgSettings.RecentFile1.Trimmed(), "");
}

}  // namespace
}  // namespace tagwright
