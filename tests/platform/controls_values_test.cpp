// Lists, buttons, bars, timers, menus and the small helpers.
#include "control_fixture.h"
#include "platform/controls/mouse.h"
#include "platform/painting/recorder.h"

namespace tagwright {
namespace {

class ValuesTest : public ControlTest {};

// --- list box -----------------------------------------------------------------------------------

TEST_F(ValuesTest, AListBoxRaisesClickForEachRowChosenAndFaultsOutside) {
  form.lstRows.Events().Click = [&] { Log(form.lstRows.Text()); };
  form.lstRows.AddItem("one");
  form.lstRows.AddItem("two");
  EXPECT_EQ(form.lstRows.ListIndex(), -1);
  form.lstRows.SetListIndex(1);
  form.lstRows.UserChoose(1);
  form.lstRows.SetListIndex(-1);
  EXPECT_EQ(log, (Lines{"two", "two"}));
  EXPECT_EQ(form.lstRows.Text(), "");
  EXPECT_EQ(FaultOf([&] { form.lstRows.SetListIndex(2); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.lstRows.SetListIndex(-2); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.lstRows.List(2); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.lstRows.List(-1); }), kOutOfBounds);
}

TEST_F(ValuesTest, AUserChoosesTheFirstRowOfAListBox) {
  form.lstRows.AddItem("first");
  form.lstRows.AddItem("second");
  form.lstRows.Events().Click = [&] { Log("click " + form.lstRows.Text()); };
  form.lstRows.UserChoose(0);
  EXPECT_EQ(log, Lines{"click first"});
  form.lstRows.UserChoose(-1);
  form.lstRows.UserChoose(2);
  EXPECT_EQ(log.size(), 1u);
  EXPECT_EQ(form.lstRows.ListIndex(), 0);
}

TEST_F(ValuesTest, ClearingAListBoxRaisesNothing) {
  form.lstRows.AddItem("one");
  form.lstRows.SetListIndex(0);
  form.lstRows.Events().Click = [&] { Log("click"); };
  form.lstRows.Clear();
  form.lstRows.UserChoose(0);
  EXPECT_EQ(form.lstRows.ListCount(), 0);
  EXPECT_EQ(form.lstRows.ListIndex(), -1);
  EXPECT_TRUE(log.empty());
}

// --- check box and button -----------------------------------------------------------------------

TEST_F(ValuesTest, ACheckBoxRaisesClickOnlyOnAChange) {
  form.chkOne.Events().Click = [&] { Log(std::to_string(form.chkOne.Value())); };
  form.chkOne.SetValue(0);
  form.chkOne.SetValue(1);
  form.chkOne.SetValue(1);
  form.chkOne.SetValue(2);
  EXPECT_EQ(log, (Lines{"1", "2"}));
}

TEST_F(ValuesTest, ACheckBoxTakes0To2) {
  EXPECT_EQ(FaultOf([&] { form.chkOne.SetValue(-1); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.chkOne.SetValue(3); }), kBadValue);
  EXPECT_EQ(form.chkOne.Value(), 0);
}

TEST_F(ValuesTest, PressingACheckBoxTurnsItOver) {
  form.chkOne.Press();
  EXPECT_EQ(form.chkOne.Value(), 1);
  form.chkOne.Press();
  EXPECT_EQ(form.chkOne.Value(), 0);
  form.chkOne.SetValue(2);
  form.chkOne.Press();
  EXPECT_EQ(form.chkOne.Value(), 0);
  form.chkOne.SetEnabled(false);
  form.chkOne.Press();
  EXPECT_EQ(form.chkOne.Value(), 0);
}

TEST_F(ValuesTest, PressingAButtonRaisesClickUnlessItOrItsContainerIsDisabled) {
  form.cmdOne.Events().Click = [&] { Log("click"); };
  form.cmdOne.Press();
  form.cmdOne.SetEnabled(false);
  form.cmdOne.Press();
  form.cmdOne.SetEnabled(true);
  form.SetEnabled(false);
  form.cmdOne.Press();
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(ValuesTest, AHiddenButtonCanBePressedByARoutine) {
  form.cmdOne.Events().Click = [&] { Log("click"); };
  form.cmdOne.SetVisible(false);
  form.cmdOne.Press();
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(ValuesTest, AButtonCanBePressedFromInsideAHandler) {
  form.cmdOne.Events().Click = [&] { Log("click"); };
  RunHandler([&] { form.cmdOne.Press(); });
  EXPECT_EQ(log.size(), 1u);
}

// --- scroll bar ---------------------------------------------------------------------------------

TEST_F(ValuesTest, AScrollBarRaisesChangeOnlyOnAChange) {
  form.hS1.Events().Change = [&] { Log(std::to_string(form.hS1.Value())); };
  form.hS1.SetValue(0);
  form.hS1.SetValue(7);
  form.hS1.SetValue(7);
  EXPECT_EQ(log, Lines{"7"});
}

TEST_F(ValuesTest, AScrollBarFaultsOutsideItsRangeAndKeepsItsValue) {
  form.hS1.SetRange(0, 500);
  form.hS1.SetValue(500);
  EXPECT_EQ(FaultOf([&] { form.hS1.SetValue(501); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.hS1.SetValue(-1); }), kBadValue);
  EXPECT_EQ(form.hS1.Value(), 500);
}

TEST_F(ValuesTest, AUsersScrollIsCutToTheRange) {
  form.hS1.SetRange(10, 20);
  form.hS1.UserScroll(99);
  EXPECT_EQ(form.hS1.Value(), 20);
  form.hS1.UserScroll(-5);
  EXPECT_EQ(form.hS1.Value(), 10);
  form.hS1.SetEnabled(false);
  form.hS1.UserScroll(15);
  EXPECT_EQ(form.hS1.Value(), 10);
}

TEST_F(ValuesTest, ANewRangeCutsTheValue) {
  form.hS1.SetValue(100);
  form.hS1.Events().Change = [&] { Log(std::to_string(form.hS1.Value())); };
  form.hS1.SetRange(0, 50);
  form.hS1.SetRange(0, 60);
  EXPECT_EQ(log, Lines{"50"});
  EXPECT_EQ(FaultOf([&] { form.hS1.SetRange(5, 4); }), kBadValue);
  EXPECT_EQ(form.hS1.Max(), 60);
}

TEST_F(ValuesTest, StepsAreKept) {
  form.hS1.SetSteps(5, 50);
  EXPECT_EQ(form.hS1.SmallChange(), 5);
  EXPECT_EQ(form.hS1.LargeChange(), 50);
}

// --- timer --------------------------------------------------------------------------------------

TEST_F(ValuesTest, ATimerTicksWhileItIsEnabledAndHasAnInterval) {
  form.tmrOne.Events().Timer = [&] { Log("tick"); };
  form.tmrOne.Elapsed();
  EXPECT_TRUE(log.empty());
  form.tmrOne.SetInterval(70);
  form.tmrOne.Elapsed();
  form.tmrOne.SetEnabled(false);
  form.tmrOne.Elapsed();
  EXPECT_EQ(log, Lines{"tick"});
}

TEST_F(ValuesTest, TicksThatFallDueWhileAHandlerRunsAreDropped) {
  form.tmrOne.SetInterval(70);
  form.tmrOne.Events().Timer = [&] {
    Log("tick");
    form.tmrOne.Elapsed();
  };
  RunHandler([&] { form.tmrOne.Elapsed(); });
  EXPECT_TRUE(log.empty());
  form.tmrOne.Elapsed();
  EXPECT_EQ(log, Lines{"tick"});
}

TEST_F(ValuesTest, EnablingARunningTimerStartsItsWaitAgain) {
  CountingView view;
  form.tmrOne.AttachView(&view);
  form.tmrOne.SetEnabled(true);
  EXPECT_EQ(view.Count(Aspect::kEnabled), 1);
  form.tmrOne.SetEnabled(false);
  form.tmrOne.SetEnabled(false);
  EXPECT_EQ(view.Count(Aspect::kEnabled), 2);
  form.tmrOne.SetEnabled(true);
  EXPECT_EQ(view.Count(Aspect::kEnabled), 3);
}

TEST_F(ValuesTest, ANegativeIntervalIsRefused) {
  EXPECT_EQ(FaultOf([&] { form.tmrOne.SetInterval(-1); }), kBadValue);
  EXPECT_EQ(form.tmrOne.Interval(), 0);
}

// --- menus --------------------------------------------------------------------------------------

TEST_F(ValuesTest, AMenusCheckedRaisesNothing) {
  form.mnuFileOpen.Events().Click = [&] { Log("click"); };
  form.mnuFileOpen.SetChecked(true);
  EXPECT_TRUE(form.mnuFileOpen.Checked());
  EXPECT_TRUE(log.empty());
}

TEST_F(ValuesTest, PressingAMenuRaisesClickUnlessItOrItsMenuIsDisabled) {
  form.mnuFileOpen.Events().Click = [&] { Log("click"); };
  form.mnuFileOpen.Press();
  form.mnuFileOpen.SetEnabled(false);
  form.mnuFileOpen.Press();
  form.mnuFileOpen.SetEnabled(true);
  form.mnuFile.SetEnabled(false);
  form.mnuFileOpen.Press();
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(ValuesTest, AnEntryOfAMenuThatIsHiddenFromTheBarCanBePressed) {
  form.mnuFileOpen.Events().Click = [&] { Log("click"); };
  form.mnuFile.SetVisible(false);
  form.mnuFileOpen.Press();
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(ValuesTest, MenusKnowTheirEntriesInOrder) {
  EXPECT_EQ(form.Menus(), std::vector<Menu*>{&form.mnuFile});
  EXPECT_EQ(form.mnuFile.Items(),
            (std::vector<Menu*>{&form.mnuFileOpen, &form.mnuFileOld(0), &form.mnuFileOld(1)}));
  EXPECT_EQ(form.mnuFileOpen.ParentMenu(), &form.mnuFile);
  EXPECT_EQ(form.mnuFile.ParentMenu(), nullptr);
  EXPECT_EQ(form.mnuFileOpen.ParentForm(), &form);
}

TEST_F(ValuesTest, ArrayEntriesHearTheirIndex) {
  form.mnuFileOld.Events().Click = [&](int index) { Log(std::to_string(index)); };
  form.mnuFileOld(1).Press();
  EXPECT_EQ(log, Lines{"1"});
}

// --- status bar, images, swatches ---------------------------------------------------------------

TEST_F(ValuesTest, StatusBarPanelsAreNumberedFrom1) {
  EXPECT_EQ(form.sB1.PanelCount(), 4);
  form.sB1.SetPanelText(1, "first");
  form.sB1.SetPanelText(4, "last");
  EXPECT_EQ(form.sB1.PanelText(1), "first");
  EXPECT_EQ(form.sB1.PanelText(4), "last");
  EXPECT_EQ(FaultOf([&] { form.sB1.SetPanelText(0, "x"); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.sB1.SetPanelText(5, "x"); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.sB1.PanelText(0); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.sB1.PanelText(5); }), kOutOfBounds);
}

TEST_F(ValuesTest, PressingALabelRaisesClick) {
  form.lblHold.Events().Click = [&](int index) { Log(std::to_string(index)); };
  form.lblHold(2).Press();
  form.lblHold(2).SetEnabled(false);
  form.lblHold(2).Press();
  EXPECT_EQ(log, Lines{"2"});
}

TEST_F(ValuesTest, LooksOutsideTheirListsAreRefused) {
  Label& label = form.lblHold(0);
  EXPECT_EQ(FaultOf([&] { label.SetBackStyle(2); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetBackStyle(-1); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetBorderStyle(2); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetAlignment(static_cast<TextAlignment>(3)); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetAlignment(static_cast<TextAlignment>(-1)); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetAlignment(static_cast<TextAlignment>(2)); }), 0);
  EXPECT_EQ(FaultOf([&] { label.SetMousePointer(16); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetMousePointer(-1); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetMousePointer(99); }), 0);
  EXPECT_EQ(FaultOf([&] { form.shpBox.SetShape(6); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.shpBox.SetBorderStyle(7); }), kBadValue);
  EXPECT_EQ(label.BackStyle(), 1);
  EXPECT_EQ(label.MousePointer(), 99);
}

TEST_F(ValuesTest, ViewsAreToldOncePerChangeAndNotOfSameValues) {
  CountingView view;
  Label& label = form.lblHold(0);
  label.AttachView(&view);
  label.SetForeColor(1);
  label.SetForeColor(1);
  label.SetBackColor(2);
  label.SetBackStyle(0);
  label.SetBorderStyle(1);
  label.SetAlignment(TextAlignment::kRight);
  label.SetFontBold(true);
  label.SetFontBold(true);
  label.SetMousePointer(2);
  label.SetMouseIcon("x");
  EXPECT_EQ(view.Count(Aspect::kLook), 8);
  label.SetCaption("c");
  label.SetCaption("c");
  label.SetToolTipText("t");
  EXPECT_EQ(view.Count(Aspect::kText), 2);
  label.SetVisible(false);
  label.SetEnabled(false);
  label.ZOrder();
  EXPECT_EQ(view.Count(Aspect::kVisible), 1);
  EXPECT_EQ(view.Count(Aspect::kEnabled), 1);
  EXPECT_EQ(view.Count(Aspect::kOrder), 1);
}

TEST_F(ValuesTest, AChildWithoutAViewIsReportedToItsContainersView) {
  CountingView view;
  form.board.AttachView(&view);
  form.lblHold(1).SetLeft(5);
  ASSERT_EQ(view.told.size(), 1u);
  EXPECT_EQ(view.told[0].control, &form.lblHold(1));
  form.board.AttachView(nullptr);
  form.lblHold(1).SetLeft(6);
  EXPECT_EQ(view.told.size(), 1u);
}

TEST_F(ValuesTest, APictureBoxPaintsOnARecorderUntilItGetsACanvasWhichSharesItsScale) {
  EXPECT_NE(dynamic_cast<RecordingSurface*>(&form.board.Canvas()), nullptr);
  form.board.SetScaleWidth(30);
  EXPECT_EQ(form.board.Canvas().ScaleWidth(), 30);
  form.board.SetCanvas(std::make_unique<RecordingSurface>());
  EXPECT_EQ(form.board.Canvas().ScaleWidth(), 30);
  CountingView view;
  form.board.AttachView(&view);
  form.board.ImageChanged();
  EXPECT_EQ(view.Count(Aspect::kImage), 1);
}

// --- control arrays -----------------------------------------------------------------------------

TEST_F(ValuesTest, AnElementThatWasNeverCreatedFaults340) {
  EXPECT_EQ(FaultOf([&] { form.lblHold(3); }), 340);
  EXPECT_EQ(FaultOf([&] { form.lblHold(-1); }), 340);
  EXPECT_EQ(FaultOf([&] { form.lblHold(2); }), 0);
}

TEST_F(ValuesTest, AnElementComesIntoBeingOnDemandAndHidden) {
  Label& made = form.lblHold.Load(5);
  EXPECT_EQ(&form.lblHold(5), &made);
  EXPECT_FALSE(made.Visible());
  EXPECT_EQ(made.Index(), 5);
  EXPECT_EQ(made.Name(), "lblHold");
  EXPECT_EQ(form.lblHold.UBound(), 5);
  EXPECT_EQ(form.lblHold.Count(), 4);
  EXPECT_FALSE(form.lblHold.Exists(4));
  EXPECT_TRUE(form.lblHold(0).Visible());
}

TEST_F(ValuesTest, ElementsAreMadeOnceAndWithinBounds) {
  EXPECT_EQ(FaultOf([&] { form.lblHold.Load(0); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.lblHold.Load(-1); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.lblHold.Load(32768); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.lblHold.Load(32767); }), 0);
}

TEST_F(ValuesTest, ElementsKeepTheirAddresses) {
  const Label* first = &form.lblHold(0);
  for (int i = 3; i < 1000; ++i) form.lblHold.Load(i);
  EXPECT_EQ(&form.lblHold(0), first);
}

TEST_F(ValuesTest, ANewElementSharesTheArraysEventsAndStandsInFront) {
  form.lblHold.Events().MouseDown = [&](int index, int, int, double, double) {
    Log(std::to_string(index));
  };
  Label& made = form.lblHold.Load(3);
  made.Move(0, 0, 100, 100);
  made.SetVisible(true);
  form.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(log, Lines{"3"});
}

TEST_F(ValuesTest, ElementsAreWalkedByRisingIndex) {
  form.lblHold.Load(7);
  form.lblHold.Load(5);
  std::vector<int> indices;
  for (const auto& [index, label] : form.lblHold) {
    indices.push_back(index);
    EXPECT_EQ(label->Index(), index);
  }
  EXPECT_EQ(indices, (std::vector<int>{0, 1, 2, 5, 7}));
}

TEST_F(ValuesTest, ControlsAreFoundByNameAndIndex) {
  EXPECT_EQ(form.Find("txtFirst"), &form.txtFirst);
  EXPECT_EQ(form.Find("lblHold", 2), &form.lblHold(2));
  EXPECT_EQ(form.Find("mnuFileOld", 1), &form.mnuFileOld(1));
  EXPECT_EQ(form.Find("lblHold"), nullptr);
  EXPECT_EQ(form.Find("txtNone"), nullptr);
}

}  // namespace
}  // namespace tagwright
