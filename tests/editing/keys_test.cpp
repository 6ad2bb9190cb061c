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

TEST_F(KeysTest, DeleteWhileAFieldIsEnteredDeletesNoObject) {
  SelectObject(PutBox(10, 10));
  TextEntryActive = true;
  KeyDown(kDelete);
  EXPECT_EQ(ObjectUB, 0);
  TextEntryActive = false;
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
