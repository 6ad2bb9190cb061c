// Windows as the user and the window system see them: keys, activation, and their end.
#include <memory>

#include "control_fixture.h"
#include "platform/controls/mouse.h"

namespace tagwright {
namespace {

class FormTest : public ControlTest {
 protected:
  FormTest() {
    form.WindowEvents().KeyDown = [&](int& key, int shift) {
      Log("down " + std::to_string(key) + "/" + std::to_string(shift));
    };
    form.WindowEvents().KeyUp = [&](int key, int shift) {
      Log("up " + std::to_string(key) + "/" + std::to_string(shift));
    };
    form.WindowEvents().Activate = [&] { Log("activate"); };
  }
};

TEST_F(FormTest, TheFormSeesEveryKeyWhereverTheFocusIs) {
  form.txtFirst.SetFocus();
  EXPECT_TRUE(form.UserKeyDown(65, kCtrl));
  form.UserKeyUp(65, 0);
  EXPECT_EQ(log, (Lines{"down 65/2", "up 65/0"}));
}

TEST_F(FormTest, AKeyThatTheFormSwallowsGoesNoFurther) {
  form.WindowEvents().KeyDown = [&](int& key, int) { key = 0; };
  EXPECT_FALSE(form.UserKeyDown(46, 0));
}

TEST_F(FormTest, AKeyWithoutACodeGoesOn) {
  EXPECT_TRUE(form.UserKeyDown(0, kShift));
  EXPECT_EQ(log, Lines{"down 0/1"});
}

TEST_F(FormTest, AKeyIsTheFormsBeforeItIsTheControls) {
  form.txtFirst.Events().KeyPress = [&](int& key) { Log("press " + std::to_string(key)); };
  if (form.UserKeyDown(65, 0)) form.txtFirst.UserKey(U'a');
  EXPECT_EQ(log, (Lines{"down 65/0", "press 97"}));
}

TEST_F(FormTest, WhileAHandlerRunsAKeysBeginningIsLostAndItsEndWaits) {
  RunHandler([&] {
    EXPECT_FALSE(form.UserKeyDown(65, 0));
    form.UserKeyUp(17, 0);
    form.UserKeyUp(16, 0);
    Log("handler ends");
  });
  EXPECT_EQ(log, (Lines{"handler ends", "up 17/0", "up 16/0"}));
}

TEST_F(FormTest, AMessageBoxEndsHeldKeysOfTheActiveWindowAtOnce) {
  form.UserActivate();
  log.clear();
  RunHandler([&] {
    MessageBox("x");
    Log("after the box");
  });
  EXPECT_EQ(log, (Lines{"up 0/0", "after the box"}));
}

TEST_F(FormTest, EveryDialogEndsHeldKeys) {
  form.UserActivate();
  log.clear();
  CommonDialog dialog;
  InputBox("?");
  dialog.ShowOpen();
  dialog.ShowSave();
  dialog.ShowColor();
  PopupMenu(form, form.mnuFile);
  EXPECT_EQ(log, Lines(5, "up 0/0"));
}

TEST_F(FormTest, AnOpeningMenuAndADeactivatedWindowEndHeldKeys) {
  form.UserActivate();
  log.clear();
  form.KeyboardLeaves();
  form.UserDeactivate();
  EXPECT_EQ(log, (Lines{"up 0/0", "up 0/0"}));
}

TEST_F(FormTest, AWindowThatIsNotActiveHearsNothingOfAMessageBox) {
  form.UserActivate();
  form.UserDeactivate();
  log.clear();
  MessageBox("x");
  EXPECT_TRUE(log.empty());
}

TEST_F(FormTest, ActivationIsRaisedAndWaitsWhileAHandlerRuns) {
  form.UserActivate();
  EXPECT_EQ(log, Lines{"activate"});
  EXPECT_EQ(ActiveForm(), &form);
  RunHandler([&] {
    form.UserActivate();
    form.UserActivate();
    Log("handler ends");
  });
  EXPECT_EQ(log, (Lines{"activate", "handler ends", "activate"}));
}

TEST_F(FormTest, TheActiveFormIsForgottenWhenItGoes) {
  auto passing = std::make_unique<SmallForm>();
  passing->UserActivate();
  passing.reset();
  EXPECT_EQ(ActiveForm(), nullptr);
  MessageBox("x");
}

TEST_F(FormTest, WaitingWorkOfAFormThatGoesIsForgotten) {
  auto passing = std::make_unique<SmallForm>();
  passing->WindowEvents().Resize = [&] { Log("resize"); };
  RunHandler([&] {
    passing->UserResize(0, 0, 1, 1, 1, 1, WindowState::kNormal);
    passing->UserMove(5, 5);
    passing->UserActivate();
    passing->UserKeyUp(17, 0);
    passing.reset();
  });
  EXPECT_TRUE(log.empty());
}

TEST_F(FormTest, CaptionsAreReportedToTheView) {
  CountingView view;
  form.AttachView(&view);
  form.SetCaption("x");
  form.SetCaption("x");
  EXPECT_EQ(view.Count(Aspect::kText), 1);
  EXPECT_EQ(form.Caption(), "x");
}

TEST_F(FormTest, AllControlsStandInOrderOfCreationMenusIncluded) {
  ASSERT_GE(form.AllControls().size(), 4u);
  EXPECT_EQ(form.AllControls()[0], &form.mnuFile);
  EXPECT_EQ(form.AllControls()[1], &form.mnuFileOpen);
  EXPECT_EQ(form.AllControls().back(), &form.sB1);
  EXPECT_EQ(form.Children().front(), &form.txtFirst);  // a menu is no child: it has no place
}

TEST_F(FormTest, AContainerThatGoesFirstLeavesItsChildrenWithoutOne) {
  auto box = std::make_unique<PictureBox>(&form, "passing");
  Label child(box.get(), "child");
  box.reset();
  EXPECT_EQ(child.Parent(), nullptr);
  child.SetLeft(5);
  EXPECT_EQ(child.LeftTwips(), 5);
}

TEST_F(FormTest, AFormThatGoesFirstLeavesItsControlsWithoutOne) {
  auto passing = std::make_unique<Form>("passing");
  TextBox child(passing.get(), "child");
  Menu menu(passing.get(), "menu");
  Menu entry(&menu, "entry");
  child.SetFocus();
  passing.reset();
  EXPECT_EQ(child.ParentForm(), nullptr);
  EXPECT_FALSE(child.HasFocus());
  EXPECT_EQ(menu.ParentForm(), nullptr);
}

TEST_F(FormTest, AMenuThatGoesFirstLeavesItsEntriesWithoutOne) {
  auto menu = std::make_unique<Menu>(&form, "passing");
  Menu entry(menu.get(), "entry");
  menu.reset();
  EXPECT_EQ(entry.ParentMenu(), nullptr);
  EXPECT_EQ(form.Menus().size(), 1u);
}

TEST_F(FormTest, ControlsThatGoAreNoLongerListed) {
  const std::size_t before = form.AllControls().size();
  const std::size_t children = form.Children().size();
  { Label passing(&form, "passing"); }
  EXPECT_EQ(form.AllControls().size(), before);
  EXPECT_EQ(form.Children().size(), children);
}

}  // namespace
}  // namespace tagwright
