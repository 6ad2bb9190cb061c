#include "document/project_commands.h"

#include <functional>

#include "document/document_support.h"
#include "document/overlays.h"
#include "document/project_record.h"
#include "document/project_save.h"
#include "document/recent_files.h"
#include "document/selection_state.h"
#include "document/source_state.h"
#include "platform/services/dialog_folders.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr const char* kQuestion = "Do you want to save the changes you have made to this label?";

class ProjectCommandsTest : public LabelTest {
 protected:
  std::string Path() const { return folder.File("Label.twp"); }

  // A saved label with one text.
  void SaveOne() {
    Add(TextObject("saved"));
    ProjectPath = Path();
    SaveProject(kFalse);
  }
};

// Whoever had it was for the label before.
TEST_F(ProjectCommandsTest, AfterALoadAndANewLabelTheBoardHasTheKeyboard) {
  SaveOne();
  frmMain.mnuFileOld(0).SetCaption(Path());
  dialogs.files = {Path()};
  const struct {
    const char* name;
    std::function<void()> command;
  } rows[] = {{"open", mnuFileOpen_Click},
              {"recent", [] { mnuFileOld_Click(0); }},
              {"new", mnuFileNew_Click}};
  for (const auto& row : rows) {
    DirtyFlag = kFalse;
    frmMain.txtTool.SetFocus();
    row.command();
    EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus()) << row.name;
  }
}

TEST_F(ProjectCommandsTest, NewEmptiesTheLabelAndItsPanels) {
  SaveOne();
  HoldAt(0).SetVisible(true);
  ShowHandles(HoldAt(0));
  SelectedObject = 0;
  SelectedUpper = 1;
  UndoUpper = 2;
  frmMain.lblGraphicFName.SetCaption("f");
  frmMain.lblGraphicX.SetCaption("1");
  frmMain.lblGraphicY.SetCaption("2");
  frmMain.txtBCodeData.SetText("123");
  frmMain.txtTool.SetText("t");
  frmMain.lblFileName.SetCaption("/a.csv");
  frmMain.mnuUndo.SetEnabled(true);
  frmMain.mnuFileSaveAs.SetEnabled(true);
  CurrentTable = "t";
  DatabasePassword = "p";
  RecordCount = 5;
  RedrawSkip = 3;
  SerialPrefix = "kept";
  int presses = 0;
  frmMain.cmdTools.Events().Click = [&](int index) { presses += index == 0 ? 1 : 100; };
  EnableSelectionCommands(true);
  mnuFileNew_Click();
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_FALSE(HoldAt(0).Visible());
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_FALSE(frmMain.lblHandle(0).Visible());
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(UndoUpper, -1);
  EXPECT_FALSE(frmMain.mnuUndo.Enabled());
  EXPECT_FALSE(frmMain.mnuEditCopy.Enabled()) << "there is nothing to copy";
  EXPECT_FALSE(frmMain.mnuFileSaveAs.Enabled());
  EXPECT_EQ(frmMain.lblGraphicFName.Caption(), "");
  EXPECT_EQ(frmMain.lblGraphicX.Caption(), "");
  EXPECT_EQ(frmMain.lblGraphicY.Caption(), "");
  EXPECT_EQ(frmMain.txtBCodeData.Text(), "");
  EXPECT_EQ(frmMain.txtTool.Text(), "");
  EXPECT_EQ(frmMain.lblFileName.Caption(), "");
  EXPECT_EQ(CurrentTable, "");
  EXPECT_EQ(DatabasePassword, "");
  EXPECT_EQ(RecordCount, -1);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(ProjectPath, "");
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [untitled]");
  EXPECT_EQ(presses, 1) << "the first tool button";
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_EQ(SerialPrefix, "kept");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectCommandsTest, NewAsksAboutUnsavedChanges) {
  SaveOne();
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kCancel};
  mnuFileNew_Click();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kQuestion);
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kYesNoCancel);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ProjectCommandsTest, NewSavesOnYesAndForgetsOnNo) {
  SaveOne();
  Add(TextObject("second"));
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kNo};
  mnuFileNew_Click();
  EXPECT_EQ(FileLength(Path()), 3 * 333);
  EXPECT_EQ(ObjectUB, -1);
  Add(TextObject("a"));
  Add(TextObject("b"));
  ProjectPath = Path();
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kYes};
  mnuFileNew_Click();
  EXPECT_EQ(FileLength(Path()), 4 * 333);
  EXPECT_EQ(ObjectUB, -1);
}

// Who wants the label saved wants it kept: with nothing saved the command ends.
TEST_F(ProjectCommandsTest, NewAfterACancelledSaveKeepsTheLabel) {
  Add(TextObject("a"));
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kYes};
  mnuFileNew_Click();
  EXPECT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ProjectCommandsTest, NewAndOpenAfterAFailedSaveKeepTheLabel) {
  for (void (*command)() : {mnuFileNew_Click, mnuFileOpen_Click}) {
    ResetDocumentState();
    Add(TextObject("a"));
    ProjectPath = folder.File("no such folder/a.twp");
    DirtyFlag = kTrue;
    dialogs.answers = {Answer::kYes};
    command();
    EXPECT_EQ(ObjectUB, 0);
    EXPECT_EQ(DirtyFlag, kTrue);
    EXPECT_EQ(frmMain.sB1.PanelText(4), "Not saved: Path/File access error");
    EXPECT_EQ(dialogs.messages.size(), 1u) << "the question alone";
    EXPECT_TRUE(dialogs.requests.empty());
    dialogs.messages.clear();
  }
}

TEST_F(ProjectCommandsTest, NewEmptiesColumnsTablesAndCountOfTheFormerSource) {
  frmMain.lstFields.AddItem("Name");
  frmMain.cboRSet.AddItem("People");
  frmMain.lblRCount.SetCaption("Records: 2");
  FieldUB = 0;
  RecordCount = 2;
  mnuFileNew_Click();
  EXPECT_EQ(frmMain.lstFields.ListCount(), 0);
  EXPECT_EQ(frmMain.cboRSet.ListCount(), 0);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "") << "as at program start";
  EXPECT_EQ(FieldUB, -1);
}

TEST_F(ProjectCommandsTest, OpenLoadsTheChosenFileAndClearsTheDirtyFlag) {
  SaveOne();
  mnuFileNew_Click();
  frmMain.chkFirstRow.Events().Click = [] { DirtyFlag = kTrue; };
  frmMain.chkFirstRow.SetValue(1);
  dialogs.answers = {Answer::kNo};
  dialogs.files = {Path()};
  mnuFileOpen_Click();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(ProjectPath, Path());
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(dialogs.requests[0].filter, "Tagwright Project (*.twp)|*.twp");
}

TEST_F(ProjectCommandsTest, OpenAsksFirstAndCancelEndsItThere) {
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kCancel};
  mnuFileOpen_Click();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kQuestion);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(ProjectCommandsTest, CancelledOpenDialogEndsSilentlyWithNothingChanged) {
  Add(TextObject("a"));
  frmMain.cd1.FileName = Path();
  frmMain.SetCaption("as before");
  mnuFileOpen_Click();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(frmMain.Caption(), "as before");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectCommandsTest, CancelledOpenDialogLeavesTheChangesUnsaved) {
  SaveOne();
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kNo};
  mnuFileOpen_Click();
  EXPECT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(ProjectPath, Path());
}

TEST_F(ProjectCommandsTest, SaveUsesTheOpenNameAndSaveAsAlwaysAsks) {
  SaveOne();
  mnuFileSave_Click();
  EXPECT_TRUE(dialogs.requests.empty());
  dialogs.files = {folder.File("Other.twp")};
  mnuFileSaveAs_Click();
  EXPECT_EQ(dialogs.requests.size(), 1u);
  EXPECT_TRUE(FileExists(folder.File("Other.twp")));
  EXPECT_EQ(ProjectPath, folder.File("Other.twp"));
}

TEST_F(ProjectCommandsTest, RecentEntryOpensItsFileUnderItsOwnNameWithoutAnyQuestion) {
  std::filesystem::create_directory(folder.File("My Labels"));
  Add(TextObject("saved"));
  ProjectPath = folder.File("My Labels/Label ONE.twp");
  SaveProject(kFalse);
  const std::string saved = ProjectPath;
  mnuFileNew_Click();
  DirtyFlag = kTrue;
  mnuFileOld_Click(0);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(frmMain.mnuFileOld(0).Caption(), LowerCase(saved));
  EXPECT_EQ(ProjectPath, saved);
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [Label ONE.twp]");
  EXPECT_EQ(DirtyFlag, kFalse) << "a label just loaded has no changes";
  // A save from there goes back to the same file.
  Add(TextObject("second"));
  mnuFileSave_Click();
  EXPECT_EQ(FileLength(saved), 4 * 333);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.File("My Labels")),
                          std::filesystem::directory_iterator()),
            1);
}

TEST_F(ProjectCommandsTest, RecentEntryOpensCapitalsThatDoNotComeBackFromTheirLowerCase) {
  for (const char* letter : {"\u0130", "\u03F4", "\u1E9E", "\u2126", "\u212A", "\u212B"}) {
    ResetDocumentState();
    Add(TextObject("saved"));
    ProjectPath = folder.File(std::string("Label ") + letter + ".twp");
    SaveProject(kFalse);
    mnuFileNew_Click();
    mnuFileOld_Click(0);
    EXPECT_EQ(ObjectUB, 0) << letter;
    EXPECT_EQ(RecentUB, 0) << letter << " is the same file";
  }
}

TEST_F(ProjectCommandsTest, OfTwoFilesThatDifferInCaseEachRecentEntryOpensItsOwn) {
  for (const char* name : {"Label.twp", "label.twp"}) {
    ObjectUB = -1;
    Add(TextObject(name));
    ProjectPath = folder.File(name);
    SaveProject(kFalse);
  }
  mnuFileOld_Click(1);
  EXPECT_EQ(ProjectPath, folder.File("Label.twp"));
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Label.twp");
  mnuFileOld_Click(1);
  EXPECT_EQ(ProjectPath, folder.File("label.twp"));
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "label.twp");
}

TEST_F(ProjectCommandsTest, AFileIsOpenedByWhateverCaseAndKeepsItsNameFromThenOn) {
  SaveOne();
  mnuFileNew_Click();
  dialogs.files = {folder.File("LABEL.TWP")};
  mnuFileOpen_Click();
  EXPECT_EQ(ProjectPath, Path());
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [Label.twp]");
  Add(TextObject("second"));
  mnuFileSave_Click();
  EXPECT_EQ(FileLength(Path()), 4 * 333);
  EXPECT_FALSE(std::filesystem::exists(folder.File("LABEL.TWP")));
}

TEST_F(ProjectCommandsTest, TheDialogsOpenWhereTheProjectLies) {
  const std::string here = folder.File("here/"), there = folder.File("there/");
  const std::string pictures = "Pictures|*.gif";
  std::filesystem::create_directory(here);
  std::filesystem::create_directory(there);
  EXPECT_EQ(DialogFolder(kProjectFilter), "") << "nothing is known yet";
  dialogs.files = {here + "a.twp"};
  mnuFileSaveAs_Click();
  EXPECT_EQ(DialogFolder(kProjectFilter), here);
  EXPECT_EQ(DialogFolder(pictures), here) << "no picture yet";
  frmMain.cd1.Filter = pictures;
  dialogs.files = {there + "a.gif"};
  frmMain.cd1.ShowOpen();
  EXPECT_EQ(DialogFolder(pictures), there);
  EXPECT_EQ(DialogFolder(kProjectFilter), here);
  mnuFileNew_Click();
  EXPECT_EQ(DialogFolder(kProjectFilter), here) << "where the last project lies";
}

TEST_F(ProjectCommandsTest, AProjectFromTheRecentListTakesTheDialogsToItsFolder) {
  const std::string here = folder.File("Here/");
  std::filesystem::create_directory(here);
  ProjectPath = here + "a.twp";
  SaveProject(kFalse);
  ForgetDialogFolders();
  mnuFileOld_Click(0);
  EXPECT_EQ(DialogFolder(kProjectFilter), here);
  EXPECT_EQ(DialogFolder("Pictures|*.gif"), here);
}

TEST_F(ProjectCommandsTest, RecentEntryWhoseFileIsGoneDoesNothing) {
  SaveOne();
  DeleteFile(Path());
  frmMain.SetCaption("as before");
  mnuFileOld_Click(0);
  EXPECT_EQ(frmMain.Caption(), "as before");
  EXPECT_EQ(ObjectUB, 0);
}

}  // namespace
}  // namespace tagwright
