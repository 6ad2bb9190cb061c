#include "editing/keys.h"

#include "editing/editing_support.h"

namespace tagwright {
namespace {

constexpr int kDelete = 46;
constexpr int kControlKey = 17;
constexpr int kShiftKey = 16;
constexpr int kLeftArrow = 37;

class KeysTest : public EditingTest {};

TEST_F(KeysTest, ModifiersFollowTheLastKeyEvent) {
  KeyDown(kShiftKey, kShift);
  EXPECT_TRUE(ModifierHeld);
  EXPECT_FALSE(ControlHeld);
  KeyDown(kControlKey, kShift | kCtrl);
  EXPECT_TRUE(ModifierHeld);
  EXPECT_TRUE(ControlHeld);
  KeyDown('A', 0);
  EXPECT_FALSE(ModifierHeld);
  EXPECT_TRUE(ControlHeld);  // a press never clears it
  KeyDown(18, kAlt);
  EXPECT_TRUE(ModifierHeld);
}

TEST_F(KeysTest, AnyReleaseClearsBothAlsoWithCtrlStillDown) {
  KeyDown(kControlKey, kCtrl);
  KeyDown(kShiftKey, kCtrl | kShift);
  frmMain.UserKeyUp(kShiftKey, kCtrl);
  EXPECT_FALSE(ModifierHeld);
  EXPECT_FALSE(ControlHeld);
  KeyDown(kControlKey, kCtrl);  // as the held key repeats
  EXPECT_TRUE(ModifierHeld);
}

TEST_F(KeysTest, CtrlLeavesTheBottomRightHandleAndItsReleaseBringsTheOthersBack) {
  SelectObject(PutBox(10, 10));
  const double left = frmMain.lblHandle(0).Left();
  KeyDown(kControlKey, kCtrl);
  EXPECT_EQ(HandlesShown(), "3");
  KeyUp(kControlKey);
  EXPECT_EQ(HandlesShown(), "0123");
  EXPECT_EQ(frmMain.lblHandle(0).Left(), left);
}

TEST_F(KeysTest, ShiftHidesNoHandles) {
  SelectObject(PutBox(10, 10));
  KeyDown(kShiftKey, kShift);
  EXPECT_EQ(HandlesShown(), "0123");
}

TEST_F(KeysTest, CtrlWithAGroupChangesNothing) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  KeyDown(kControlKey, kCtrl);
  EXPECT_EQ(HandlesShown(), "");
  KeyUp(kControlKey);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_TRUE(frmMain.shpBox.Visible());
}

TEST_F(KeysTest, DeleteWithNothingSelectedDoesNothing) {
  PutBox(10, 10);
  KeyDown(kDelete);
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(KeysTest, DeleteDeletesTheObjectOrTheGroup) {
  for (int i = 0; i < 4; ++i) PutBox(10.0F * static_cast<float>(i), 10);
  SelectObject(3);
  KeyDown(kDelete);
  EXPECT_EQ(ObjectUB, 2);
  SelectGroup({0, 1});
  KeyDown(kDelete);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).Left, 20);
}

// Each of them, whether or not anything has been typed there yet, and lists that are typed in too.
TEST_F(KeysTest, DeleteInAFieldThatTakesTextDeletesNoObject) {
  SelectObject(PutBox(10, 10));
  frmMain.cboFont.SetVisible(true);
  std::vector<TextControl*> fields = {&frmMain.txtTool,      &frmMain.txtBCodeData,
                                      &frmMain.txtPrintFrom, &frmMain.txtPrintTo,
                                      &frmMain.txtNoCopies,  &frmMain.cboFont};
  for (const auto& [index, field] : frmMain.txtDSize) fields.push_back(field.get());
  for (TextControl* field : fields) {
    field->SetFocus();
    KeyDown(kDelete);
    EXPECT_EQ(ObjectUB, 0) << field->Name();
    EXPECT_TRUE(TextEntryActive) << field->Name();
  }
  frmMain.txtSetFocus(0).SetFocus();  // which is the board itself
  KeyDown(kDelete);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_FALSE(TextEntryActive);
}

TEST_F(KeysTest, DeleteOnWhatTakesNoTextDeletesTheObject) {
  frmMain.cboSize.SetVisible(true);
  frmMain.txtLabLayout(0).SetLocked(true);
  for (Control* control : std::initializer_list<Control*>{
           &frmMain.cboSize, &frmMain.txtLabLayout(0), &frmMain.chkBold, &frmMain.cmdRect}) {
    SelectObject(PutBox(10, 10));
    control->SetFocus();
    KeyDown(kDelete);
    EXPECT_EQ(ObjectUB, -1) << control->Name();
  }
}

// Hiding it tells nobody that the entry is over.
TEST_F(KeysTest, DeleteAfterAFieldWasHiddenDeletesTheObject) {
  SelectObject(PutBox(10, 10));
  frmMain.cboFont.SetVisible(true);
  frmMain.cboFont.SetFocus();
  frmMain.cboFont.UserType("A");
  frmMain.cboFont.SetVisible(false);
  KeyDown(kDelete);
  EXPECT_EQ(ObjectUB, -1);
}

TEST_F(KeysTest, DeleteGoesOnToTheFieldAfterIt) {
  int key = kDelete;
  Form_KeyDown(key, 0);
  EXPECT_EQ(key, kDelete);
}

TEST_F(KeysTest, ArrowsMoveNothing) {
  SelectObject(PutBox(10, 10));
  for (int key = kLeftArrow; key < kLeftArrow + 4; ++key) KeyDown(key);
  ExpectRecord(0, 10, 10, 20, 10);
  EXPECT_EQ(DirtyFlag, kFalse);
}

}  // namespace
}  // namespace tagwright
