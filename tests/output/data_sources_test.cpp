// Choosing a source, and what the panel shows of it.
#include "output/data_sources.h"

#include "document/source_state.h"
#include "output/source_fixture.h"
#include "platform/services/dialog_folders.h"

namespace tagwright {
namespace {

class DataSourcesTest : public SourceTest {};

// --- the file dialog ---

TEST_F(DataSourcesTest, EachKindOffersItsFiles) {
  for (const int kind : {0, 1, 2}) frmMain.cboImportType.UserChoose(kind);
  ASSERT_EQ(dialogs.requests.size(), 3U);
  EXPECT_EQ(dialogs.requests[0].filter, "Microsoft Access 97 Database *.mdb|*.mdb");
  EXPECT_EQ(dialogs.requests[1].filter, "Comma Separated Text *.csv;*.txt|*.csv;*.txt");
  EXPECT_EQ(dialogs.requests[2].filter, "Tab delimited Text *.txt|*.txt");
}

TEST_F(DataSourcesTest, ChoosingTheSameKindAgainAsksAgain) {
  frmMain.cboImportType.UserChoose(1);
  frmMain.cboImportType.UserChoose(1);
  EXPECT_EQ(dialogs.requests.size(), 2U);
}

TEST_F(DataSourcesTest, NoDialogWhileAProjectIsBeingLoaded) {
  LoadingProject = true;
  frmMain.cboImportType.SetListIndex(1);
  EXPECT_TRUE(dialogs.requests.empty());
  LoadingProject = false;
  frmMain.cboImportType.SetListIndex(1);
  EXPECT_EQ(dialogs.requests.size(), 1U);
}

TEST_F(DataSourcesTest, NoDialogWithoutAKind) {
  frmMain.cboImportType.SetListIndex(-1);
  cboImportType_Click();
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(DataSourcesTest, ACancelledDialogChangesNothing) {
  BrowseCsv("Name,Town\nAda,Leeds\n");
  LeaveMarker();
  dialogs.files.push_back(std::nullopt);
  frmMain.cmdBrowse.Press();
  EXPECT_EQ(FieldUB, 1);
  EXPECT_EQ(ListedFields(), (Texts{"Name", "Town"}));
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("data.csv"));
  EXPECT_TRUE(dialogs.messages.empty());
}

// Only a cancel goes without a word.
TEST_F(DataSourcesTest, TheMarkerTellsOfADialogThatFails) {
  class FailingDialogs : public ScriptedDialogs {
    std::optional<std::string> OpenFile(const FileDialogRequest&) override {
      RaiseFault(kOutOfMemory);
    }
  } failing;
  BrowseCsv("Name\n");
  LeaveMarker();
  SetDialogs(&failing);
  frmMain.cmdBrowse.Press();
  SetDialogs(&dialogs);
  ASSERT_EQ(failing.messages.size(), 1U);
  EXPECT_EQ(failing.messages[0].text, "7 - " + FaultDescription(7));
  EXPECT_EQ(FieldUB, 0);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("data.csv"));
}

TEST_F(DataSourcesTest, ADialogThatGivesNoNameChangesNothing) {
  BrowseCsv("Name\n");
  dialogs.files.push_back("");
  frmMain.cmdBrowse.Press();
  EXPECT_EQ(FieldUB, 0);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("data.csv"));
}

TEST_F(DataSourcesTest, ASaveDialogsNameIsNotOfferedForData) {
  frmMain.cd1.FileName = folder.File("label.twp");
  frmMain.cboImportType.UserChoose(1);
  EXPECT_EQ(dialogs.requests.at(0).file_name, "");
}

TEST_F(DataSourcesTest, TheDialogOpensWhereThePresentSourceLies) {
  frmMain.lblFileName.SetCaption(folder.File("data.csv"));
  frmMain.cboImportType.UserChoose(1);
  EXPECT_EQ(DialogFolder(dialogs.requests.at(0).filter), folder.Path() + "/");
}

// The button alone, before any kind was chosen: the file is shown and nothing is read.
TEST_F(DataSourcesTest, WithoutAKindAFileIsOnlyNamed) {
  FieldUB = 3;
  dialogs.files.push_back(Written("data.csv", "a,b\n"));
  frmMain.cmdBrowse.Press();
  EXPECT_EQ(FieldUB, -1);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("data.csv"));
  bool more = true;
  OpenMergeSource();
  NextMergeRecord(more);
  CloseMergeSource();
  EXPECT_FALSE(more);
}

// --- the panel ---

TEST_F(DataSourcesTest, TextShowsItsBoxesAndDatabasesTheirTables) {
  databases.files["a.mdb"] = {{{"T", {"f"}, {}}}};
  for (const bool text : {true, false, true}) {
    text ? BrowseCsv("a\n") : Browse(kDatabaseSource, "a.mdb");
    EXPECT_EQ(frmMain.cboRSet.Visible(), !text);
    EXPECT_EQ(frmMain.lblFName(1).Visible(), !text);
    EXPECT_EQ(frmMain.chkFirstRow.Visible(), text);
    EXPECT_EQ(frmMain.chkQuote.Visible(), text);
  }
}

TEST_F(DataSourcesTest, NamesAndCountAreShown) {
  BrowseCsv("Name,Town\nAda,Leeds\nBob,York\n");
  EXPECT_EQ(ListedFields(), (Texts{"Name", "Town"}));
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 3");
  EXPECT_EQ(RecordCount, 3);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("data.csv"));
}

TEST_F(DataSourcesTest, AnotherSourceReplacesTheColumns) {
  BrowseCsv("a,b,c\n");
  BrowseCsv("Only\n");
  EXPECT_EQ(Columns(), (Texts{"Only"}));
  EXPECT_EQ(ListedFields(), (Texts{"Only"}));
}

TEST_F(DataSourcesTest, FillingTheListEmptiesItFirst) {
  frmMain.lstFields.AddItem("old");
  FieldUB = -1;
  FillFieldList();
  EXPECT_EQ(ListedFields(), (Texts{}));
}

TEST_F(DataSourcesTest, ChoosingASourceCountsAsAChange) {
  BrowseCsv("a\n");
  EXPECT_EQ(DirtyFlag, kTrue);
  DirtyFlag = kFalse;
  dialogs.files.push_back(Written("other.csv", "b\n"));
  frmMain.cmdBrowse.Press();
  EXPECT_EQ(DirtyFlag, kTrue);
  DirtyFlag = kFalse;
  frmMain.cmdBrowse.Press();  // cancelled
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(DataSourcesTest, TheBoxOfTheFirstRowOnlySetsTheDirtyFlag) {
  BrowseCsv("a\nb\n");
  DirtyFlag = kFalse;
  frmMain.chkFirstRow.Press();
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(RecordCount, 2);
}

// --- the tool ---

TEST_F(DataSourcesTest, ADoubleClickOnAColumnArmsTheFieldTool) {
  BrowseCsv("Name,Town\n");
  frmMain.lstFields.UserChoose(1);
  frmMain.lstFields.UserDblClick();
  EXPECT_EQ(CurrentTool, 20);
  EXPECT_EQ(CursorShape, 99);
  EXPECT_EQ(frmMain.MousePointer(), 99);
  EXPECT_EQ(frmMain.MouseIcon(), frmMain.Image2.Icon());
  EXPECT_NE(frmMain.MouseIcon(), "");
}

TEST_F(DataSourcesTest, ResettingClosesEverySource) {
  BrowseCsv("a\nb\nc\n");
  OpenMergeSource();
  ASSERT_TRUE(SourceFile);
  ResetDataSources();
  EXPECT_FALSE(SourceFile);
  EXPECT_FALSE(Next());
  EXPECT_EQ(FieldSeparator, "");
}

}  // namespace
}  // namespace tagwright
