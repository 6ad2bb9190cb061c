// The program as its parts meet: a command reaches its handler, and what one handler sets runs the
// next.
#include "shell/wiring.h"

#include <functional>

#include "document/objects.h"
#include "document/project_save.h"
#include "editing/selection.h"
#include "editing/text_panel.h"
#include "shell/shell_fixture.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

class WiringTest : public ShellTest {
 protected:
  WiringTest() { StartProgram(); }
};

TEST_F(WiringTest, ChoosingALayoutGivesTheLabelItsSizeAndRedraws) {
  const auto redraws = RedrawCount;
  frmMain.cboLabelLayout.UserChoose(5);
  EXPECT_EQ(LabelWidth, 63);
  EXPECT_EQ(LabelHeight, 38);
  EXPECT_EQ(RedrawCount, redraws + 1);
}

TEST_F(WiringTest, AUnitChangeRedrawsForTheUnitAndForTheLayoutThatItShowsAgain) {
  frmMain.cboLabelLayout.UserChoose(0);
  const auto redraws = RedrawCount;
  frmMain.mnuUnitIn.Press();
  EXPECT_EQ(RedrawCount, redraws + 2);
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 0);
  EXPECT_EQ(LabelWidth, 199);
}

TEST_F(WiringTest, AStartLeavesNothingToSave) { EXPECT_EQ(DirtyFlag, kFalse); }

TEST_F(WiringTest, WhatTheUserChoosesOfWhatTheProjectStoresCountsAsAChange) {
  WriteFile(folder.File("a.csv"), "Name\nAda\n");
  const std::function<void()> choices[] = {
      [] { frmMain.cboLabelLayout.UserChoose(5); },
      [&] {
        dialogs.files = {folder.File("a.csv")};
        frmMain.cmdBrowse.Press();
      },
      [] { frmMain.cboImportType.UserChoose(2); },
      [] {
        frmMain.cboRSet.AddItem("People");
        frmMain.cboRSet.UserChoose(0);
      },
      [] { frmMain.chkFirstRow.Press(); },
      [] { frmMain.chkQuote.Press(); },
  };
  for (const auto& choose : choices) {
    DirtyFlag = kFalse;
    choose();
    EXPECT_EQ(DirtyFlag, kTrue) << &choose - choices;
  }
}

TEST_F(WiringTest, AUnitChangeIsNoChangeOfTheLabel) {
  frmMain.cboLabelLayout.UserChoose(5);
  DirtyFlag = kFalse;
  for (Menu* unit : {&frmMain.mnuUnitIn, &frmMain.mnuUnitMM}) {
    unit->Press();
    EXPECT_EQ(DirtyFlag, kFalse);
    EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 5);
    EXPECT_EQ(LabelWidth, 63);
    EXPECT_EQ(LabelHeight, 38);
  }
}

// What the board shows is what would be saved.
TEST_F(WiringTest, ALabelThatIsNotLoadedWithoutItsDataLeavesAnEmptyBoard) {
  WriteFile(folder.File("a.csv"), "Name\nAda\n");
  dialogs.files = {folder.File("a.csv"), folder.File("a.twp")};
  frmMain.cboImportType.UserChoose(1);
  GrowObjects();
  ClearObject(0);
  ObjectAt(0).ObjType = kRectangle;
  ObjectAt(0).Width = 20;
  ObjectAt(0).Height = 10;
  SaveProject(kTrue);
  DeleteFile(folder.File("a.csv"));
  HoldAt(3).SetVisible(true);  // of a larger label before
  dialogs.answers = {Answer::kNo};
  const auto redraws = RedrawCount;
  frmMain.mnuFileOld(0).Press();
  ASSERT_EQ(ObjectUB, -1);
  EXPECT_GT(RedrawCount, redraws + 1) << "once for the layout, with the records, and once without";
  for (const auto& [index, hold] : frmMain.lblHold) EXPECT_FALSE(hold->Visible()) << index;
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_FALSE(LoadingProject);
  WriteFile(folder.File("b.csv"), "Town\nLeeds\n");
  dialogs.files = {folder.File("b.csv")};
  frmMain.cboImportType.UserChoose(1);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("b.csv")) << "a kind asks for its file";
}

TEST_F(WiringTest, AnOpenedLabelHasNoUnsavedChangesWhereverItIsOpened) {
  frmMain.cboLabelLayout.UserChoose(5);
  WriteFile(folder.File("a.csv"), "Name\nAda\n");
  dialogs.files = {folder.File("a.csv"), folder.File("a.twp"), folder.File("a.twp")};
  frmMain.cboImportType.UserChoose(1);
  frmMain.chkFirstRow.Press();
  SaveProject(kTrue);
  EXPECT_EQ(DirtyFlag, kFalse);
  frmMain.mnuFileNew.Press();
  frmMain.cboLabelLayout.UserChoose(0);
  frmMain.mnuFileOld(0).Press();
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 5);
  EXPECT_EQ(DirtyFlag, kFalse);
  frmMain.mnuFileOpen.Press();
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(WiringTest, NewPressesTheSelectTool) {
  frmMain.cmdTools(3).Press();
  CurrentTool = 3;
  frmMain.mnuFileNew.Press();
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_FALSE(frmMain.cboFont.Visible());
  EXPECT_GT(frmMain.picProperties.Order(), frmMain.picText.Order());
}

TEST_F(WiringTest, SaveNewAndOpenFromTheRecentList) {
  frmMain.cboLabelLayout.UserChoose(5);
  GrowObjects();
  ClearObject(0);
  ObjectAt(0).ObjType = kRectangle;
  dialogs.files = {folder.File("Ab.twp")};
  frmMain.mnuFileSaveAs.SetEnabled(true);
  frmMain.mnuFileSaveAs.Press();
  frmMain.mnuFileNew.Press();
  ASSERT_EQ(ObjectUB, -1);
  frmMain.cboLabelLayout.UserChoose(0);
  EXPECT_EQ(frmMain.mnuFileOld(0).Caption(), LowerCase(folder.File("Ab.twp")));
  frmMain.mnuFileOld(0).Press();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 5);
  EXPECT_EQ(LabelWidth, 63);
}

// A field left open for a text that is gone would keep Ctrl+A and Ctrl+C for itself.
TEST_F(WiringTest, AfterALoadAndANewLabelTheBoardHasTheKeyboard) {
  const auto type_text = [] {
    frmMain.cmdTools(3).Press();
    StartTool(BoardOriginX + 10, BoardOriginY + 20);
    frmMain.txtTool.UserType("Fig jam");
    ASSERT_TRUE(frmMain.txtTool.HasFocus());
  };
  type_text();
  dialogs.files = {folder.File("a.twp")};
  frmMain.mnuFileSaveAs.SetEnabled(true);
  frmMain.mnuFileSaveAs.Press();
  frmMain.mnuFileOld(0).Press();
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_EQ(TextEditOpen, kFalse);
  EXPECT_EQ(frmMain.txtTool.Text(), "");
  ASSERT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Fig jam");

  type_text();
  DirtyFlag = kFalse;
  ModifierHeld = true;  // as in the shortcut itself
  frmMain.mnuFileNew.Press();
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_EQ(ObjectUB, -1);
}

TEST_F(WiringTest, ATableGoesInAndATableOfAnotherKindReplacesIt) {
  WriteFile(folder.File("a.csv"), "Name,Town\nAda,Leeds\n");
  WriteFile(folder.File("b.txt"), "x\ty\tz\n");
  frmMain.mnuFileImport.Press();
  dialogs.files = {folder.File("a.csv"), folder.File("b.txt")};
  frmMain.cboImportType.UserChoose(1);
  EXPECT_EQ(frmMain.lstFields.ListCount(), 2);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 2");
  frmMain.cboImportType.UserChoose(2);
  EXPECT_EQ(frmMain.lstFields.ListCount(), 3);
  frmMain.lstFields.UserChoose(2);
  frmMain.lstFields.UserDblClick();
  EXPECT_EQ(CurrentTool, 20);
}

TEST_F(WiringTest, ThePrintPanelFollowsItsFieldsAndTheLabel) {
  WriteFile(folder.File("a.csv"), "Name\nAda\nBob\n");
  dialogs.files = {folder.File("a.csv")};
  frmMain.cboImportType.UserChoose(1);
  frmMain.mnuFilePrint.Press();
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 2");
  frmMain.txtNoCopies.SetText("3");
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 6");
  frmMain.txtPrintFrom.SetText("2");
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 0");
  frmMain.chkMailshot.Press();
  frmMain.txtPrintTo.SetText("2");
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 14");
  frmMain.cboLabelLayout.UserChoose(5);
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 21");
  frmMain.chkMailshot.Press();
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 0");

  dialogs.files = {folder.File("label.twp")};
  frmMain.mnuFileSaveAs.SetEnabled(true);
  frmMain.mnuFileSaveAs.Press();
  frmMain.mnuFileNew.Press();
  EXPECT_FALSE(frmMain.chkMailshot.Visible());
  EXPECT_EQ(frmMain.chkMailshot.Value(), 0);
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 21");
  frmMain.txtPrintFrom.SetText("1");
  frmMain.mnuFileOld(0).Press();
  EXPECT_TRUE(frmMain.chkMailshot.Visible());
  EXPECT_EQ(frmMain.chkMailshot.Value(), 1);
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 6");
}

TEST_F(WiringTest, TheRunningNumberIsSetInItsWindow) {
  Load(frmSerialNumber);
  frmSerialNumber.txtSerPref.UserType("AB");
  frmSerialNumber.txtSerIncr.SetText("7");
  frmSerialNumber.chkBCode.Press();
  EXPECT_FALSE(frmSerialNumber.txtBCodeWid(0).Enabled());
  frmSerialNumber.cmdSave.Press();
  EXPECT_FALSE(IsLoaded(frmSerialNumber));
  EXPECT_EQ(SerialPrefix, "AB");
  EXPECT_EQ(SerialValue, 7);
  EXPECT_EQ(SerialBarcodeType, -1);
  EXPECT_EQ(DirtyFlag, kTrue);
}

// Every control that answers the user is bound to something, were it to nothing on purpose: an
// event that was forgotten is not in the switchboard at all.
TEST_F(WiringTest, EveryMenuEntryAndButtonIsOnTheSwitchboard) {
  for (const Control* control : frmMain.AllControls()) {
    const auto* entry = dynamic_cast<const Menu*>(control);
    const bool command = (entry && entry->Items().empty() && entry->Name() != "mnuFileBar4") ||
                         dynamic_cast<const CommandButton*>(control);
    if (!command) continue;
    EXPECT_TRUE(static_cast<bool>(control->Events().Click)) << control->Name();
  }
}

TEST_F(WiringTest, CommandsThatAreNotThereYetDoNothing) {
  const auto redraws = RedrawCount;
  frmMain.cmdDesLabel.Press();
  frmMain.mnuEditSelectAll.Press();
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace tagwright
