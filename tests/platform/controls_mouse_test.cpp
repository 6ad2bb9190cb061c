// The mouse: hits, presses, captures, and releases that come late.
#include <cmath>

#include "control_fixture.h"
#include "platform/controls/mouse.h"

namespace tagwright {
namespace {

class MouseTest : public ControlTest {
 protected:
  MouseTest() {
    form.board.SetFocusStandIn(&form.txtBoard);
    Watch(form.board.Events(), "board");
    Watch(form.lblHold.Events(), "hold");
    Watch(form.cmdOne.Events(), "button");
  }
  static std::string Number(double value) { return std::to_string(static_cast<int>(value)); }
  void Watch(ControlEvents& events, const std::string& name) {
    events.MouseDown = Writer(name, " down ");
    events.MouseMove = Writer(name, " move ");
    events.MouseUp = Writer(name, " up ");
  }
  // Lines like "hold(1) down 1/0 at 30,40"; single controls have no index.
  std::function<void(int, int, int, double, double)> Writer(const std::string& name,
                                                            const std::string& what) {
    return [=, this](int index, int button, int shift, double x, double y) {
      const std::string element = index < 0 ? name : name + "(" + std::to_string(index) + ")";
      Log(element + what + Number(button) + "/" + Number(shift) + " at " + Number(x) + "," +
          Number(y));
    };
  }
};

// --- hits ---------------------------------------------------------------------------------------

TEST_F(MouseTest, APressFindsTheTopmostLabelByZOrder) {
  // Labels 0 and 1 overlap from 300 to 450.
  EXPECT_EQ(form.board.ChildAt(400, 10), &form.lblHold(1));
  form.lblHold(0).ZOrder(0);
  EXPECT_EQ(form.board.ChildAt(400, 10), &form.lblHold(0));
  form.lblHold(0).ZOrder(1);
  EXPECT_EQ(form.board.ChildAt(400, 10), &form.lblHold(1));
}

TEST_F(MouseTest, ALabelReachesUpToItsFarEdgesButNotOntoThem) {
  form.lblHold(2).Move(900, 600, 150, 150);
  EXPECT_EQ(form.board.ChildAt(900, 600), &form.lblHold(2));
  EXPECT_EQ(form.board.ChildAt(1049.9, 749.9), &form.lblHold(2));
  EXPECT_EQ(form.board.ChildAt(1050, 700), nullptr);
  EXPECT_EQ(form.board.ChildAt(1000, 750), nullptr);
  EXPECT_EQ(form.board.ChildAt(899.9, 700), nullptr);
}

TEST_F(MouseTest, HiddenAndDisabledLabelsAreLookedThrough) {
  form.lblHold(1).SetVisible(false);
  EXPECT_EQ(form.board.ChildAt(400, 10), &form.lblHold(0));
  form.lblHold(0).SetEnabled(false);
  EXPECT_EQ(form.board.ChildAt(400, 10), nullptr);
}

TEST_F(MouseTest, ShapesAndLinesAndFieldsAreLookedThrough) {
  form.shpBox.Move(0, 0, 3000, 1500);
  form.shpBox.ZOrder(0);
  form.txtBoard.Move(0, 0, 3000, 1500);
  form.txtBoard.ZOrder(0);
  form.Hair.Move(0, 0, 3000, 1500);
  EXPECT_EQ(form.board.ChildAt(10, 10), &form.lblHold(0));
  EXPECT_EQ(form.board.ChildAt(2000, 1000), nullptr);
}

TEST_F(MouseTest, HitsFollowTheContainersScale) {
  form.board.SetScaleWidth(30);  // a unit is 100 twips
  form.board.SetScaleHeight(15);
  form.lblHold(2).Move(10, 5, 1, 1);
  EXPECT_EQ(form.board.ChildAt(1050, 550), &form.lblHold(2));
  EXPECT_EQ(form.board.ChildAt(1150, 550), nullptr);
}

TEST_F(MouseTest, ALabelWhosePlaceIsNoNumberIsHitNowhere) {
  const double no_number = std::nan("");
  form.lblHold(2).Move(no_number, 0, 450, 450);
  form.lblHold(1).Move(0, no_number, 3000, 1500);
  form.lblHold(0).SetVisible(false);
  EXPECT_EQ(form.board.ChildAt(10, 10), nullptr);
  form.lblHold(0).SetVisible(true);
  EXPECT_EQ(form.board.ChildAt(10, 10), &form.lblHold(0));
}

TEST_F(MouseTest, ALabelThatReachesFurtherThanAnyBoardIsHitOnTheBoard) {
  form.lblHold(2).Move(-1e300, -1e300, 1e308, 1e308);
  EXPECT_EQ(form.board.ChildAt(2000, 1000), &form.lblHold(2));
}

// --- coordinates --------------------------------------------------------------------------------

TEST_F(MouseTest, XAndYAreTwipsFromTheLabelsCorner) {
  form.board.UserMouseDown(kLeftButton, kShift | kCtrl, 700, 100);
  EXPECT_EQ(log, Lines{"hold(2) down 1/3 at 100,100"});
}

TEST_F(MouseTest, XAndYAreTwipsWhateverTheContainersScaleIs) {
  form.board.SetScaleWidth(30);
  form.board.SetScaleHeight(15);
  form.board.UserMouseDown(kLeftButton, 0, 700, 100);
  EXPECT_EQ(log, Lines{"hold(2) down 1/0 at 100,100"});
}

TEST_F(MouseTest, APictureBoxHearsItsOwnUnits) {
  form.board.SetScaleWidth(30);
  form.board.SetScaleHeight(30);  // 100 by 50 twips
  form.board.UserMouseDown(kLeftButton, 0, 2000, 1000);
  EXPECT_EQ(log, Lines{"board down 1/0 at 20,20"});
}

// Over its labels as well: what the wheel moves is the whole board.
TEST_F(MouseTest, APictureBoxHearsTheWheelInItsOwnUnits) {
  std::vector<std::vector<double>> turns;
  form.board.Events().MouseWheel = [&](int shift, double left, double up, double x, double y) {
    turns.push_back({double(shift), left, up, x, y});
  };
  form.board.SetScaleWidth(30);
  form.board.SetScaleHeight(30);  // 100 by 50 twips
  form.board.UserMouseWheel(kShift, 0.5, -2, 700, 100);
  EXPECT_EQ(turns, (std::vector<std::vector<double>>{{kShift, 0.5, -2, 7, 2}}));
  form.board.UserMouseDown(kLeftButton, 0, 2000, 1000);
  form.board.UserMouseWheel(0, 0, 1, 700, 100);
  EXPECT_EQ(turns.size(), 1u) << "a press holds the board still";
  form.board.UserMouseUp(kLeftButton, 0, 2000, 1000);
  form.board.SetEnabled(false);
  form.board.UserMouseWheel(0, 0, 1, 700, 100);
  EXPECT_EQ(turns.size(), 1u) << "and so does a board that is not live";
  form.board.SetEnabled(true);
  RunHandler([&] { form.board.UserMouseWheel(0, 0, 1, 700, 100); });
  EXPECT_EQ(turns.size(), 1u) << "or a handler";
  form.board.UserMouseWheel(0, 0, 1, 700, 100);
  EXPECT_EQ(turns.size(), 2u);
}

TEST_F(MouseTest, XAndYFollowThePresentCornerOfAMovingLabel) {
  form.lblHold.Events().MouseDown = [&](int index, int, int, double, double) {
    form.lblHold(index).SetLeft(100);
  };
  form.board.UserMouseDown(kLeftButton, 0, 700, 100);
  form.board.UserMouseMove(kLeftButton, 0, 700, 100);
  EXPECT_EQ(log, Lines{"hold(2) move 1/0 at 600,100"});
}

// --- press and release --------------------------------------------------------------------------

TEST_F(MouseTest, APressCapturesItsControlUntilTheRelease) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(form.board.Captured(), &form.lblHold(0));
  form.board.UserMouseMove(kLeftButton, 0, 2500, 1400);
  form.board.UserMouseUp(kLeftButton, 0, 2500, 1400);
  EXPECT_EQ(form.board.Captured(), nullptr);
  form.board.UserMouseMove(0, 0, 2500, 1400);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) move 1/0 at 2500,1400",
                        "hold(0) up 1/0 at 2500,1400", "board move 0/0 at 2500,1400"}));
}

TEST_F(MouseTest, ACapturedControlThatIsHiddenStillGetsMovesAndTheRelease) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.lblHold(0).SetVisible(false);
  form.board.UserMouseMove(kLeftButton, 0, 20, 10);
  form.board.UserMouseUp(kLeftButton, 0, 30, 10);
  EXPECT_EQ(log.size(), 3u);
  EXPECT_EQ(log[2], "hold(0) up 1/0 at 30,10");
}

TEST_F(MouseTest, AReleaseWithoutAPressRaisesNothing) {
  form.board.UserMouseUp(kLeftButton, 0, 10, 10);
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseUp(kRightButton, 0, 10, 10);
  EXPECT_EQ(log, Lines{"hold(0) down 1/0 at 10,10"});
}

TEST_F(MouseTest, AButtonThatNobodyKnowsIsNoPressAndCapturesNothing) {
  form.board.UserMouseDown(0, 0, 10, 10);
  form.board.UserMouseUp(0, 0, 10, 10);
  EXPECT_EQ(form.board.Captured(), nullptr);
  form.board.UserMouseDown(kLeftButton, 0, 700, 100);
  EXPECT_EQ(log, Lines{"hold(2) down 1/0 at 100,100"});
}

TEST_F(MouseTest, AQuickSecondPressIsAPress) {
  form.lblHold.Events().DblClick = [&] { Log("double"); };
  for (int i = 0; i < 2; ++i) {
    form.board.UserMouseDown(kLeftButton, 0, 10, 10);
    form.board.UserMouseUp(kLeftButton, 0, 10, 10);
  }
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) up 1/0 at 10,10",
                        "hold(0) down 1/0 at 10,10", "hold(0) up 1/0 at 10,10"}));
}

TEST_F(MouseTest, ASecondButtonGoesToTheCapturedControlAndTheCaptureLastsToTheLastRelease) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseDown(kRightButton, 0, 2500, 1400);
  form.board.UserMouseUp(kLeftButton, 0, 2500, 1400);
  EXPECT_EQ(form.board.Captured(), &form.lblHold(0));
  form.board.UserMouseUp(kRightButton, 0, 2500, 1400);
  EXPECT_EQ(form.board.Captured(), nullptr);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) down 2/0 at 2500,1400",
                        "hold(0) up 1/0 at 2500,1400", "hold(0) up 2/0 at 2500,1400"}));
}

TEST_F(MouseTest, APressOfAButtonThatIsDownEndsTheFormerOneWhereThePointerWasSeenLast) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseMove(kLeftButton, 0, 20, 10);
  form.board.UserMouseDown(kLeftButton, 0, 2500, 1400);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) move 1/0 at 20,10",
                        "hold(0) up 1/0 at 20,10", "board down 1/0 at 2500,1400"}));
}

TEST_F(MouseTest, APressOnAnotherControlEndsOneThatLostItsRelease) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.cmdOne.UserMouseDown(kLeftButton, 0, 5, 5);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) up 1/0 at 10,10",
                        "button down 1/0 at 5,5"}));
}

TEST_F(MouseTest, AControlWithItsOwnViewHearsTheMouseToo) {
  form.cmdOne.UserMouseDown(kLeftButton, 0, 5, 6);
  form.cmdOne.UserMouseMove(kLeftButton, 0, 7, 8);
  form.cmdOne.UserMouseUp(kLeftButton, 0, 9, 10);
  EXPECT_EQ(log,
            (Lines{"button down 1/0 at 5,6", "button move 1/0 at 7,8", "button up 1/0 at 9,10"}));
}

TEST_F(MouseTest, AFormHearsTheMouseInItsOwnArea) {
  form.Events().MouseMove = [&](int, int, double x, double y) {
    Log("form " + Number(x) + "," + Number(y));
  };
  form.UserMouseMove(0, 0, 100, 200);
  EXPECT_EQ(log, Lines{"form 100,200"});
}

TEST_F(MouseTest, HiddenAndDisabledControlsHearNoMouse) {
  form.cmdOne.SetEnabled(false);
  form.cmdOne.UserMouseDown(kLeftButton, 0, 5, 5);
  form.cmdOne.UserMouseMove(0, 0, 5, 5);
  form.board.SetVisible(false);
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseMove(0, 0, 10, 10);
  EXPECT_TRUE(log.empty());
}

TEST_F(MouseTest, ATargetThatIsDestroyedEndsItsPress) {
  auto passing = std::make_unique<Label>(&form.board, "passing");
  passing->Move(2000, 1000, 100, 100);
  form.board.UserMouseDown(kLeftButton, 0, 2010, 1010);
  EXPECT_EQ(form.board.Captured(), passing.get());
  passing.reset();
  EXPECT_EQ(form.board.Captured(), nullptr);
  form.board.UserMouseUp(kLeftButton, 0, 2010, 1010);
  EXPECT_TRUE(log.empty());
}

// --- focus --------------------------------------------------------------------------------------

TEST_F(MouseTest, AClickMovesTheFocusBeforeMouseDown) {
  form.txtFirst.SetFocus();
  LogFocus(form.txtFirst);
  LogFocus(form.txtBoard);
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(log, (Lines{"txtFirst-", "txtBoard+", "hold(0) down 1/0 at 10,10"}));
}

TEST_F(MouseTest, AnyMouseButtonMovesTheFocus) {
  for (const int button : {kLeftButton, kRightButton, kMiddleButton}) {
    form.txtFirst.SetFocus();
    form.board.UserMouseDown(button, 0, 2500, 1400);
    form.board.UserMouseUp(button, 0, 2500, 1400);
    EXPECT_TRUE(form.txtBoard.HasFocus()) << button;
  }
}

TEST_F(MouseTest, EveryButtonTakesTheFocus) {
  form.txtFirst.SetFocus();
  form.cmdOne.UserMouseDown(kLeftButton, 0, 5, 5);
  EXPECT_TRUE(form.cmdOne.HasFocus());
}

TEST_F(MouseTest, WithoutAStandInAContainerLeavesTheFocusWhereItIs) {
  form.board.SetFocusStandIn(nullptr);
  form.txtFirst.SetFocus();
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_TRUE(form.txtFirst.HasFocus());
}

TEST_F(MouseTest, AStandInThatCannotTakeTheKeyboardIsPassedOverQuietly) {
  form.txtBoard.SetEnabled(false);
  form.txtFirst.SetFocus();
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_TRUE(form.txtFirst.HasFocus());
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(MouseTest, APressFindsItsControlBeforeTheFocusMoves) {
  form.txtFirst.SetFocus();
  form.txtFirst.Events().LostFocus = [&] { form.lblHold(0).SetVisible(false); };
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(log, Lines{"hold(0) down 1/0 at 10,10"});
}

TEST_F(MouseTest, ALabelInAPanelHasNoKeyboardOfItsOwn) {
  form.txtFirst.SetFocus();
  form.lblHold(0).UserMouseDown(kLeftButton, 0, 1, 1);
  EXPECT_TRUE(form.txtBoard.HasFocus());
}

TEST_F(MouseTest, AStandInThatIsDestroyedIsForgotten) {
  auto passing = std::make_unique<TextBox>(&form.board, "passing");
  form.board.SetFocusStandIn(passing.get());
  passing.reset();
  EXPECT_EQ(form.board.FocusStandIn(), nullptr);
}

// --- while a handler runs -----------------------------------------------------------------------

TEST_F(MouseTest, PressesAndMovesAreDroppedWhileAHandlerRuns) {
  RunHandler([&] {
    form.board.UserMouseDown(kLeftButton, 0, 10, 10);
    form.board.UserMouseMove(0, 0, 10, 10);
  });
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(form.board.Captured(), nullptr);
}

TEST_F(MouseTest, AReleaseWaitsUntilTheHandlerIsDone) {
  form.lblHold.Events().MouseDown = [&](int, int, double, double) {
    form.board.UserMouseUp(kLeftButton, 0, 15, 10);
    Log("down ends");
  };
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(log, (Lines{"down ends", "hold(0) up 1/0 at 15,10"}));
}

TEST_F(MouseTest, AModalWindowInsideAPressIsFollowedByTheReleaseWhenItCloses) {
  form.lblHold.Events().MouseDown = [&](int, int, double, double) {
    MessageBox("inside a press");
    Log("down ends");
  };
  form.board.UserMouseDown(kLeftButton, kShift, 10, 10);
  EXPECT_EQ(log, (Lines{"down ends", "hold(0) up 1/0 at 10,10"}));
  EXPECT_EQ(form.board.Captured(), nullptr);
}

TEST_F(MouseTest, AModalWindowInsideADragIsFollowedByTheReleaseWhereThePointerWas) {
  form.lblHold.Events().MouseMove = [&](int, int, double, double) { MessageBox("inside a drag"); };
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseMove(kLeftButton, 0, 40, 50);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) up 1/0 at 40,50"}));
}

TEST_F(MouseTest, AMessageInsideTheLostFocusOfAPressComesBeforeMouseDownAndMouseUp) {
  form.txtFirst.SetFocus();
  form.txtFirst.Events().LostFocus = [&] { MessageBox("bad number"); };
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) up 1/0 at 10,10"}));
}

TEST_F(MouseTest, APopUpMenuInsideAPressIsFollowedByTheReleaseToo) {
  form.lblHold.Events().MouseDown = [&](int, int, double, double) {
    PopupMenu(form, form.mnuFile);
    Log("down ends");
  };
  form.board.UserMouseDown(kRightButton, 0, 10, 10);
  EXPECT_EQ(log, (Lines{"down ends", "hold(0) up 2/0 at 10,10"}));
}

TEST_F(MouseTest, TheToolkitsOwnLateReleaseIsThenNoSecondOne) {
  form.lblHold.Events().MouseDown = [&](int, int, double, double) { MessageBox("x"); };
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseUp(kLeftButton, 0, 20, 20);
  EXPECT_EQ(log, Lines{"hold(0) up 1/0 at 10,10"});
}

TEST_F(MouseTest, AViewThatFindsTheButtonsUpCompletesThePress) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseDown(kRightButton, 0, 10, 10);
  log.clear();
  UserButtonsUp();
  EXPECT_EQ(log, (Lines{"hold(0) up 1/0 at 10,10", "hold(0) up 2/0 at 10,10"}));
  UserButtonsUp();
  EXPECT_EQ(log.size(), 2u);
}

TEST_F(MouseTest, TwoButtonsReleasedInsideAHandlerBothComeUp) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseDown(kRightButton, 0, 10, 10);
  log.clear();
  RunHandler([&] {
    form.board.UserMouseUp(kRightButton, 0, 11, 10);
    form.board.UserMouseUp(kLeftButton, 0, 12, 10);
  });
  EXPECT_EQ(log, (Lines{"hold(0) up 1/0 at 12,10", "hold(0) up 2/0 at 12,10"}));
}

TEST_F(MouseTest, AWindowThatGoesTakesItsPressAlong) {
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  log.clear();
  RunHandler([&] {
    form.board.UserMouseUp(kLeftButton, 0, 10, 10);
    form.DropUserActs();
  });
  EXPECT_EQ(form.board.Captured(), nullptr);
  EXPECT_TRUE(log.empty());
}

TEST_F(MouseTest, AWaitingReleaseOfAFormThatIsDestroyedIsForgotten) {
  auto passing = std::make_unique<SmallForm>();
  Watch(passing->lblHold.Events(), "passing");
  passing->board.UserMouseDown(kLeftButton, 0, 10, 10);
  RunHandler([&] {
    passing->board.UserMouseUp(kLeftButton, 0, 10, 10);
    passing.reset();
  });
  EXPECT_EQ(log, Lines{"passing(0) down 1/0 at 10,10"});
}

// The surface stays, and hears the next press as ever.
TEST_F(MouseTest, AWaitingReleaseOfAControlThatIsUnloadedIsForgotten) {
  auto passing = std::make_unique<Label>(&form.board, "lblPassing");
  passing->Move(0, 0, 450, 450);
  passing->Events().MouseUp = [&](int, int, double, double) { Log("passing up"); };
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  ASSERT_EQ(form.board.Captured(), passing.get());
  RunHandler([&] {
    form.board.UserMouseUp(kLeftButton, 0, 10, 10);
    passing.reset();
  });
  EXPECT_EQ(form.board.Captured(), nullptr);
  EXPECT_TRUE(log.empty());
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  form.board.UserMouseUp(kLeftButton, 0, 20, 20);
  EXPECT_EQ(log, (Lines{"hold(0) down 1/0 at 10,10", "hold(0) up 1/0 at 20,20"}));
}

TEST_F(MouseTest, ADoubleClickIsRaisedByListsOnly) {
  form.lstRows.Events().DblClick = [&] { Log("double"); };
  form.lstRows.UserDblClick();
  form.lstRows.SetEnabled(false);
  form.lstRows.UserDblClick();
  EXPECT_EQ(log, Lines{"double"});
}

}  // namespace
}  // namespace tagwright
