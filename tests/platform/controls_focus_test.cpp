// Focus is model state.
#include "control_fixture.h"

namespace tagwright {
namespace {

class FocusTest : public ControlTest {
 protected:
  FocusTest() {
    for (Control* control : {&form.txtFirst, &form.txtSecond, &form.txtThird, &form.txtBoard}) {
      LogFocus(*control);
    }
  }
};

TEST_F(FocusTest, NobodyHasTheKeyboardAtFirst) {
  EXPECT_EQ(form.ActiveControl(), nullptr);
  EXPECT_FALSE(form.txtFirst.HasFocus());
}

TEST_F(FocusTest, SetFocusRunsLostFocusThenGotFocusBeforeItReturns) {
  form.txtFirst.SetFocus();
  form.txtSecond.SetFocus();
  EXPECT_EQ(log, (Lines{"txtFirst+", "txtFirst-", "txtSecond+"}));
  EXPECT_EQ(form.ActiveControl(), &form.txtSecond);
}

TEST_F(FocusTest, SetFocusOnTheHolderRaisesNothing) {
  form.txtFirst.SetFocus();
  form.txtFirst.SetFocus();
  EXPECT_EQ(log, Lines{"txtFirst+"});
}

TEST_F(FocusTest, TheFocusIsStoredBeforeItsEventsRun) {
  form.txtFirst.SetFocus();
  form.txtFirst.Events().LostFocus = [&] { Log(form.ActiveControl()->Name()); };
  form.txtSecond.SetFocus();
  EXPECT_EQ(log[1], "txtSecond");
}

TEST_F(FocusTest, ASetFocusInsideLostFocusWinsAndThePassedOverControlHearsNothing) {
  form.txtFirst.SetFocus();
  log.clear();
  form.txtFirst.Events().LostFocus = [&] {
    Log("lost");
    form.txtThird.SetFocus();
  };
  form.txtSecond.SetFocus();
  EXPECT_EQ(log, (Lines{"lost", "txtThird+"}));
  EXPECT_TRUE(form.txtThird.HasFocus());
}

TEST_F(FocusTest, ASetFocusInsideGotFocusWins) {
  form.txtSecond.Events().GotFocus = [&] {
    Log("txtSecond+");
    form.txtThird.SetFocus();
    Log("after");
  };
  form.txtFirst.SetFocus();
  form.txtSecond.SetFocus();
  EXPECT_EQ(log,
            (Lines{"txtFirst+", "txtFirst-", "txtSecond+", "txtSecond-", "txtThird+", "after"}));
  EXPECT_TRUE(form.txtThird.HasFocus());
}

TEST_F(FocusTest, ALostFocusThatTakesTheKeyboardBackKeepsIt) {
  form.txtFirst.SetFocus();
  form.txtFirst.Events().LostFocus = [&] { form.txtFirst.SetFocus(); };
  form.txtSecond.SetFocus();
  EXPECT_TRUE(form.txtFirst.HasFocus());
  EXPECT_EQ(log, (Lines{"txtFirst+", "txtFirst+"}));
}

TEST_F(FocusTest, ASetFocusToTheSameGoalInsideLostFocusIsOneChange) {
  form.txtFirst.SetFocus();
  log.clear();
  form.txtFirst.Events().LostFocus = [&] { form.txtSecond.SetFocus(); };
  form.txtSecond.SetFocus();
  EXPECT_EQ(log, Lines{"txtSecond+"});
}

TEST_F(FocusTest, AFaultInLostFocusDoesNotKeepTheKeyboard) {
  form.txtFirst.SetFocus();
  form.txtFirst.Events().LostFocus = [] { RaiseFault(kOverflow); };
  form.txtSecond.SetFocus();
  EXPECT_EQ(faults, std::vector<int>{6});
  EXPECT_TRUE(form.txtSecond.HasFocus());
}

TEST_F(FocusTest, HiddenDisabledOrKeylessControlsRefuseWithFault5) {
  form.txtFirst.SetVisible(false);
  EXPECT_EQ(FaultOf([&] { form.txtFirst.SetFocus(); }), 5);
  form.txtSecond.SetEnabled(false);
  EXPECT_EQ(FaultOf([&] { form.txtSecond.SetFocus(); }), 5);
  EXPECT_EQ(FaultOf([&] { form.lblHold(0).SetFocus(); }), 5);
  EXPECT_EQ(FaultOf([&] { form.board.SetFocus(); }), 5);
  form.board.SetVisible(false);
  EXPECT_EQ(FaultOf([&] { form.txtBoard.SetFocus(); }), 5);
  form.board.SetVisible(true);
  form.board.SetEnabled(false);
  EXPECT_EQ(FaultOf([&] { form.txtBoard.SetFocus(); }), 5);
  EXPECT_TRUE(log.empty());
}

TEST_F(FocusTest, AllSortsOfFieldsAndButtonsTakeTheKeyboard) {
  for (Control* control : std::initializer_list<Control*>{
           &form.txtFirst, &form.cboPick, &form.lstRows, &form.chkOne, &form.cmdOne, &form.hS1}) {
    control->SetFocus();
    EXPECT_TRUE(control->HasFocus()) << control->Name();
  }
}

TEST_F(FocusTest, HidingTheHolderRaisesNothingAndTakesTheKeyboardAway) {
  form.txtFirst.SetFocus();
  form.txtFirst.SetVisible(false);
  EXPECT_EQ(log, Lines{"txtFirst+"});
  EXPECT_EQ(form.ActiveControl(), nullptr);
  EXPECT_FALSE(form.txtFirst.HasFocus());
}

TEST_F(FocusTest, DisablingTheHolderRaisesNothingAndTakesTheKeyboardAway) {
  form.txtFirst.SetFocus();
  form.txtFirst.SetEnabled(false);
  EXPECT_EQ(log, Lines{"txtFirst+"});
  EXPECT_EQ(form.ActiveControl(), nullptr);
}

TEST_F(FocusTest, AHiddenHolderHearsOfItsLossWhenAnotherGetsTheKeyboard) {
  form.txtFirst.SetFocus();
  form.txtFirst.SetVisible(false);
  form.txtSecond.SetFocus();
  EXPECT_EQ(log, (Lines{"txtFirst+", "txtFirst-", "txtSecond+"}));
}

TEST_F(FocusTest, AHolderThatIsShownAgainHasTheKeyboardAgainWithoutEvents) {
  form.txtFirst.SetFocus();
  form.txtFirst.SetVisible(false);
  form.txtFirst.SetVisible(true);
  EXPECT_TRUE(form.txtFirst.HasFocus());
  EXPECT_EQ(log, Lines{"txtFirst+"});
}

TEST_F(FocusTest, HidingAContainerOfTheHolderTakesTheKeyboardAway) {
  form.txtBoard.SetFocus();
  form.board.SetVisible(false);
  EXPECT_EQ(form.ActiveControl(), nullptr);
  EXPECT_EQ(log, Lines{"txtBoard+"});
}

TEST_F(FocusTest, MessageBoxesMenusAndWindowSwitchesRaiseNeither) {
  form.UserActivate();
  form.txtFirst.SetFocus();
  MessageBox("hello");
  PopupMenu(form, form.mnuFile);
  form.UserDeactivate();
  form.UserActivate();
  form.KeyboardLeaves();
  EXPECT_EQ(log, Lines{"txtFirst+"});
  EXPECT_TRUE(form.txtFirst.HasFocus());
}

TEST_F(FocusTest, AUsersFocusIsASetFocusThatIsQuietWhereThatWouldFault) {
  form.txtFirst.UserFocus();
  EXPECT_TRUE(form.txtFirst.HasFocus());
  form.txtSecond.SetEnabled(false);
  form.txtSecond.UserFocus();
  form.lblHold(0).UserFocus();
  EXPECT_TRUE(form.txtFirst.HasFocus());
  EXPECT_EQ(log, Lines{"txtFirst+"});
}

TEST_F(FocusTest, AUsersFocusIsDroppedWhileAHandlerRuns) {
  RunHandler([&] { form.txtFirst.UserFocus(); });
  EXPECT_EQ(form.ActiveControl(), nullptr);
}

TEST_F(FocusTest, ArrayElementsHearTheirIndex) {
  struct TwoFields : Form {
    TwoFields() : Form("frmTwo") {}
    ControlArray<TextBox> txt{this, "txt", 2};
  } two;
  two.txt.Events().GotFocus = [&](int index) { Log("got " + std::to_string(index)); };
  two.txt.Events().LostFocus = [&](int index) { Log("lost " + std::to_string(index)); };
  two.txt(1).SetFocus();
  two.txt(0).SetFocus();
  EXPECT_EQ(log, (Lines{"got 1", "lost 1", "got 0"}));
}

TEST_F(FocusTest, AControlThatGoesLeavesTheKeyboardToNobody) {
  auto passing = std::make_unique<TextBox>(&form, "txtPassing");
  passing->SetFocus();
  passing.reset();
  EXPECT_EQ(form.ActiveControl(), nullptr);
  form.txtFirst.SetFocus();
  EXPECT_EQ(log, Lines{"txtFirst+"});
}

TEST_F(FocusTest, AControlWithoutAFormTakesNoKeyboard) {
  TextBox alone(nullptr, "alone");
  EXPECT_EQ(FaultOf([&] { alone.SetFocus(); }), 5);
  EXPECT_FALSE(alone.HasFocus());
}

TEST_F(FocusTest, BothViewsAreToldOfAChange) {
  CountingView first, second;
  form.txtFirst.AttachView(&first);
  form.txtSecond.AttachView(&second);
  form.txtFirst.SetFocus();
  form.txtSecond.SetFocus();
  EXPECT_EQ(first.Count(Aspect::kFocus), 2);
  EXPECT_EQ(second.Count(Aspect::kFocus), 1);
}

}  // namespace
}  // namespace tagwright
