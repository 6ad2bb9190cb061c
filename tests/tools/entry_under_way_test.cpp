// What is still being typed when a command comes that leaves the keyboard where it is: menus,
// shortcuts and the question about unsaved changes.
#include <functional>
#include <string>
#include <vector>

#include "document/project_commands.h"
#include "document/project_record.h"
#include "shell/shutdown.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

constexpr int kCode39 = 2;

class EntryUnderWayTest : public HandTest {
 protected:
  EntryUnderWayTest() { frmMain.mnuFileSave.SetEnabled(true); }

  std::string Path() const { return folder.File("Label.twp"); }

  // A barcode that a click has selected, of a label that has a file.
  int SelectBarcode() {
    ObjectRecord barcode = ShapeObject(kBarcode, 10, 10, 40, 15);
    barcode.Text = "OLD";
    barcode.FontName = "Arial";
    barcode.FontSize = 10;
    barcode.Param = kCode39;
    barcode.FillColor = 0;
    const int index = Put(barcode);
    ClickOnLabel(15, 15);
    return index;
  }

  struct Command {
    std::string name;
    std::function<void()> run;
  };

  // Every command that saves the label under way to Path().
  std::vector<Command> Saves() {
    return {
        {"save", [this] { Run(Path(), {}, {}, [] { frmMain.mnuFileSave.Press(); }); }},
        {"save, untitled", [this] { Run("", {Path()}, {}, [] { frmMain.mnuFileSave.Press(); }); }},
        {"save as",
         [this] { Run(folder.File("Other.twp"), {Path()}, {}, [] { mnuFileSaveAs_Click(); }); }},
        {"new", [this] { Run(Path(), {}, {Answer::kYes}, [] { frmMain.mnuFileNew.Press(); }); }},
        {"open",
         [this] {
           Run(Path(), {std::nullopt}, {Answer::kYes}, [] { frmMain.mnuFileOpen.Press(); });
         }},
        {"exit",
         [this] {
           Run(Path(), {}, {Answer::kYes}, [] {
             bool cancel = false;
             Form_Unload(cancel);
             EXPECT_FALSE(cancel);
           });
         }},
    };
  }

  ObjectRecord Saved() const { return ProjectRecordFromBytes(ReadFile(Path())); }

  void StartAnew() {
    DropSelection();
    ObjectUB = -1;
    if (FileExists(Path())) DeleteFile(Path());
    dialogs.answers.clear();
    dialogs.files.clear();
  }

 private:
  void Run(const std::string& path, const std::vector<std::optional<std::string>>& files,
           const std::vector<Answer>& answers, const std::function<void()>& command) {
    ProjectPath = path;
    dialogs.files = {files.begin(), files.end()};
    dialogs.answers = {answers.begin(), answers.end()};
    command();
  }
};

// --- saving -------------------------------------------------------------------------------------

TEST_F(EntryUnderWayTest, EverySaveTakesTheBarcodesDataThatIsBeingTyped) {
  for (const Command& save : Saves()) {
    StartAnew();
    SelectBarcode();
    TypeInto(frmMain.txtBCodeData, "NEW");
    ASSERT_EQ(ObjectAt(0).Text.Trimmed(), "OLD") << save.name;
    save.run();
    ASSERT_TRUE(FileExists(Path())) << save.name;
    EXPECT_EQ(Saved().Text.Trimmed(), "NEW") << save.name;
    EXPECT_EQ(DirtyFlag, kFalse) << save.name;
  }
}

TEST_F(EntryUnderWayTest, EverySaveTakesTheWidthThatIsBeingTyped) {
  for (const Command& save : Saves()) {
    StartAnew();
    PutBox(10, 10);
    ClickOnLabel(15, 15);
    TypeInto(frmMain.txtDSize(2), "33");
    ASSERT_EQ(ObjectAt(0).Width, 20) << save.name;
    DirtyFlag = kTrue;
    save.run();
    ASSERT_TRUE(FileExists(Path())) << save.name;
    EXPECT_EQ(Saved().Width, 33) << save.name;
    EXPECT_EQ(DirtyFlag, kFalse) << save.name;
  }
}

TEST_F(EntryUnderWayTest, EverySaveTakesTheFontThatIsBeingTyped) {
  for (const Command& save : Saves()) {
    StartAnew();
    SelectBarcode();
    TypeInto(frmMain.cboFont, "cour");
    ASSERT_EQ(ObjectAt(0).FontName.Trimmed(), "Arial") << save.name;
    save.run();
    ASSERT_TRUE(FileExists(Path())) << save.name;
    EXPECT_EQ(Saved().FontName.Trimmed(), "Courier New") << save.name;
    EXPECT_EQ(DirtyFlag, kFalse) << save.name;
  }
}

TEST_F(EntryUnderWayTest, AFontIsTakenOnceAndIsNoChangeWhenItsBoxIsLeft) {
  SelectBarcode();
  ProjectPath = Path();
  TypeInto(frmMain.cboFont, "cour");
  frmMain.mnuFileSave.Press();
  EXPECT_TRUE(frmMain.cboFont.HasFocus());
  TakeEntryUnderWay();
  KeyboardToBoard();
  EXPECT_EQ(DirtyFlag, kFalse);
}

// What is saved is what the label then is: leaving the field later is no further change.
TEST_F(EntryUnderWayTest, ASavedEntryIsNoUnsavedChangeOnceItsFieldIsLeft) {
  SelectBarcode();
  TypeInto(frmMain.txtBCodeData, "NEW");
  ProjectPath = Path();
  frmMain.mnuFileSave.Press();
  KeyboardToBoard();
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "NEW");
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(EntryUnderWayTest, WhatDeleteAloneLeavesInTheDataIsTaken) {
  SelectBarcode();
  ProjectPath = Path();
  frmMain.txtBCodeData.UserFocus();
  frmMain.txtBCodeData.UserEdit("LD", 0);
  KeyboardToBoard();
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "LD");
  EXPECT_EQ(DirtyFlag, kTrue);
}

// The panel of another barcode says what that one holds, and nobody has typed it.
TEST_F(EntryUnderWayTest, DataThatAPanelShowsIsNoEntry) {
  SelectBarcode();
  frmMain.txtBCodeData.UserFocus();
  FillPanelFromObject(false);
  EXPECT_EQ(BarcodeEdited, kFalse);
}

// On the board the next Delete would take the object instead of a character.
TEST_F(EntryUnderWayTest, AfterASaveTheTypingGoesOnInItsField) {
  SelectBarcode();
  ProjectPath = Path();
  TypeInto(frmMain.txtBCodeData, "NEW");
  frmMain.mnuFileSave.Press();
  EXPECT_TRUE(frmMain.txtBCodeData.HasFocus());
  frmMain.txtBCodeData.UserType("ER");
  frmMain.mnuFileSave.Press();
  EXPECT_EQ(Saved().Text.Trimmed(), "NEWER");
  TypeInto(frmMain.txtDSize(2), "33");
  frmMain.mnuFileSave.Press();
  EXPECT_TRUE(frmMain.txtDSize(2).HasFocus());
  EXPECT_EQ(frmMain.txtDSize(2).Text(), "33.00");
}

TEST_F(EntryUnderWayTest, ASaveLeavesATextThatIsBeingTypedOpen) {
  frmMain.cmdTools(3).Press();
  ClickOnLabel(20, 30);
  frmMain.txtTool.UserType("Fig");
  ProjectPath = Path();
  frmMain.mnuFileSave.Press();
  EXPECT_EQ(Saved().Text.Trimmed(), "Fig");
  EXPECT_TRUE(TextEditOpen);
  EXPECT_TRUE(frmMain.txtTool.HasFocus());
  frmMain.txtTool.UserType(" jam");
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Fig jam");
  EXPECT_EQ(SelectedObject, 0);
}

TEST_F(EntryUnderWayTest, ASaveThatFindsNoNameTakesNothing) {
  SelectBarcode();
  TypeInto(frmMain.txtBCodeData, "NEW");
  ProjectPath.clear();
  dialogs.files = {std::nullopt};
  frmMain.mnuFileSave.Press();
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "OLD");
  EXPECT_EQ(frmMain.txtBCodeData.Text(), "NEW");
  EXPECT_EQ(DirtyFlag, kTrue);
}

// --- the question -------------------------------------------------------------------------------

// A save since the last key leaves the flag to the field.
TEST_F(EntryUnderWayTest, DataThatOnlyItsFieldHoldsIsAskedAbout) {
  const std::vector<Command> commands = {{"new", [] { frmMain.mnuFileNew.Press(); }},
                                         {"open", [] { frmMain.mnuFileOpen.Press(); }},
                                         {"exit", [] {
                                            bool cancel = false;
                                            Form_Unload(cancel);
                                            EXPECT_TRUE(cancel);
                                          }}};
  for (const Command& command : commands) {
    StartAnew();
    SelectBarcode();
    TypeInto(frmMain.txtBCodeData, "NEW");
    DirtyFlag = kFalse;
    dialogs.messages.clear();
    dialogs.answers = {Answer::kCancel};
    command.run();
    EXPECT_EQ(dialogs.messages.size(), 1U) << command.name;
    EXPECT_EQ(ObjectUB, 0) << command.name;
    EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "NEW") << command.name;
  }
}

// --- select all ---------------------------------------------------------------------------------

TEST_F(EntryUnderWayTest, SelectAllTakesTheBarcodesDataFirst) {
  Put(ShapeObject(kRectangle, 60, 10, 20, 10));
  const int barcode = SelectBarcode();
  TypeInto(frmMain.txtBCodeData, "NEW");
  frmMain.mnuEditSelectAll.Press();
  EXPECT_EQ(ObjectAt(barcode).Text.Trimmed(), "NEW");
  EXPECT_EQ(SelectedUpper, 1);
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
}

// A covered field that kept the keyboard would keep Delete for itself.
TEST_F(EntryUnderWayTest, SelectAllFromATextThatIsBeingTypedTakesTheKeyboardAlong) {
  Put(ShapeObject(kRectangle, 60, 10, 20, 10));
  frmMain.cmdTools(3).Press();
  ClickOnLabel(20, 30);
  frmMain.txtTool.UserType("Fig");
  frmMain.mnuEditSelectAll.Press();
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "Fig");
  EXPECT_EQ(SelectedUpper, 1);
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_FALSE(TextEditOpen);
}

TEST_F(EntryUnderWayTest, SelectAllGivesTheDataToTheBarcodeAndNotToAnEmptyTextThatGoes) {
  for (const bool empty_first : {true, false}) {
    StartAnew();
    if (empty_first) PutText("", 60, 10);
    SelectBarcode();
    if (!empty_first) PutText("", 60, 10);
    TypeInto(frmMain.txtBCodeData, "NEW");
    frmMain.mnuEditSelectAll.Press();
    ASSERT_EQ(ObjectUB, 0) << empty_first;
    EXPECT_EQ(ObjectAt(0).ObjType, kBarcode) << empty_first;
    EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "NEW") << empty_first;
  }
}

}  // namespace
}  // namespace tagwright
