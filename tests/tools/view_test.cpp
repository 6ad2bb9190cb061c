#include "tools/view.h"

#include <cmath>
#include <string>

#include "common/prog_settings.h"
#include "document/document_support.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "layouts/label_layouts.h"
#include "layouts/layout_list.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

// A board of 300 by 200 millimetres at 100 %, the zoom list and the view's handlers in place.
class ViewTest : public ProgramTest {
 protected:
  ViewTest() {
    const char* rows[] = {"20%",  "30%",  "40%",  "50%",  "60%",  "70%",  "80%",
                          "90%",  "100%", "110%", "120%", "130%", "140%", "150%",
                          "175%", "200%", "225%", "250%", "300%", "350%", "400%",
                          "450%", "500%", "550%", "600%", "650%", "700%", "750%"};
    for (const char* row : rows) frmMain.cboZoom.AddItem(row);
    frmMain.cboZoom.SetListIndex(8);
    frmMain.cboZoom.Events().Click = cboZoom_Click;
    frmMain.cmdMagnify.Events().Click = cmdMagnify_Click;
    frmMain.cmdXC.Events().Click = cmdXC_Click;
    frmMain.hS1.Events().Change = hS1_Change;
    frmMain.vS1.Events().Change = vS1_Change;
    frmMain.hS1.Events().GotFocus = hS1_GotFocus;
    frmMain.vS1.Events().GotFocus = vS1_GotFocus;
    frmMain.cboLabelLayout.Events().Click = cboLabelLayout_Click;
    ReadyBoard(300, 200);
    RedrawCount = 0;
  }

  static void Choose(const std::string& zoom) {
    for (int i = 0; i < frmMain.cboZoom.ListCount(); ++i) {
      if (frmMain.cboZoom.List(i) == zoom) frmMain.cboZoom.SetListIndex(i);
    }
  }

  static void SetLabel(double width, double height) {
    LabelWidth = width;
    LabelHeight = height;
  }

  static ObjectRecord& AddObject(std::int16_t kind) {
    GrowObjects();
    ClearObject(ObjectUB);
    ObjectAt(ObjectUB).ObjType = kind;
    HoldAt(ObjectUB);
    return ObjectAt(ObjectUB);
  }
};

// --- the percent texts --------------------------------------------------------------------------

TEST_F(ViewTest, ParsePercentTable) {
  const struct {
    const char* text;
    double factor;
  } rows[] = {{"100%", 1.0}, {"20%", 0.2},   {"750%", 7.5},  {"12.5%", 0.125},
              {"0%", 0},     {"-50%", -0.5}, {"%", 0},       {"100", 0},
              {"", 0},       {"abc%", 0},    {"100 %", 1.0}, {"100% ", 0}};
  for (const auto& row : rows) EXPECT_EQ(ParsePercent(row.text), row.factor) << row.text;
}

TEST_F(ViewTest, TheCombosFactorDropsTheLastCharacterWhateverItIs) {
  frmMain.cboZoom.SetText("1500");
  EXPECT_EQ(ZoomOfCombo(), 1.5);
  frmMain.cboZoom.SetText("abc%");
  EXPECT_EQ(ZoomOfCombo(), 0);
  frmMain.cboZoom.SetText("");
  EXPECT_THROW(ZoomOfCombo(), Fault);
}

// --- choosing a zoom ----------------------------------------------------------------------------

TEST_F(ViewTest, AZoomMakesABoardUnitAMillimetreOfLabel) {
  Choose("200%");
  EXPECT_EQ(ZoomFactor, 2.0);
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleWidth(), 150);
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleHeight(), 100);
  Choose("50%");
  EXPECT_EQ(ZoomFactor, 0.5);
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleWidth(), 600);
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleHeight(), 400);
}

TEST_F(ViewTest, AZoomRedrawsOnTheBoardAndPutsThePointerBack) {
  RecordingSurface page;
  DrawTarget = &page;
  CursorShape = 99;
  frmMain.SetMousePointer(99);
  Choose("200%");
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
}

TEST_F(ViewTest, ChoosingTheSameZoomAgainRedrawsAgain) {
  Choose("100%");
  Choose("100%");
  EXPECT_EQ(RedrawCount, 2);
}

TEST_F(ViewTest, AZoomTextWithoutANumberKeepsTheScale) {
  frmMain.cboZoom.SetText("abc%");
  cboZoom_Click();
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleWidth(), 300);
}

TEST_F(ViewTest, ASelectedTextIsShownByItsHitAreaAtTheNewSize) {
  ObjectRecord& text = AddObject(kText);
  text.Text = "  Ag ";
  text.FontSize = 12;
  SelectedObject = 0;
  Choose("200%");
  EXPECT_EQ(frmMain.lblHold(0).Font().Size, 24);
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "Ag");
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_TRUE(frmMain.shpBox.Visible());
  EXPECT_TRUE(frmMain.lblHandle(0).Visible());
}

// Also where no redraw uses it up.
TEST_F(ViewTest, ASelectedTextForgetsTheObjectToSkip) {
  AddObject(kText).FontSize = 12;
  SelectedObject = 0;
  RedrawSkip = 0;
  SuspendRedraw = kTrue;
  Choose("200%");
  EXPECT_EQ(RedrawSkip, -1);
}

// Sizes as damaged files hold them: every later statement runs, whatever the hit area makes of one.
TEST_F(ViewTest, ASelectedTextOfADamagedSizeIsRedrawnAllTheSame) {
  for (double size : {std::nan(""), HUGE_VAL, 1e300, -5.0, 0.0}) {
    ObjectRecord& text = AddObject(kText);
    text.Text = "Ag";
    text.FontSize = size;
    SelectedObject = ObjectUB;
    HoldAt(ObjectUB).SetAutoSize(true);
    RedrawSkip = ObjectUB;
    RedrawCount = 0;
    CursorShape = 2;
    Choose("200%");
    EXPECT_EQ(RedrawCount, 1) << size;
    EXPECT_EQ(RedrawSkip, -1) << size;
    EXPECT_EQ(HoldAt(ObjectUB).Caption(), "Ag") << size;
    EXPECT_EQ(CursorShape, 0) << size;
  }
}

TEST_F(ViewTest, AnotherSelectedObjectKeepsItsHandles) {
  AddObject(kRectangle);
  SelectedObject = 0;
  Choose("200%");
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "");
  EXPECT_TRUE(frmMain.lblHandle(3).Visible());
}

TEST_F(ViewTest, AGroupKeepsItsBoxWithoutHandles) {
  AddObject(kRectangle);
  AddObject(kEllipse).Left = 20;
  SelectedList[0] = 0;
  SelectedList[1] = 1;
  SelectedUpper = 1;
  Choose("200%");
  EXPECT_TRUE(frmMain.shpBox.Visible());
  EXPECT_FALSE(frmMain.lblHandle(0).Visible());
}

TEST_F(ViewTest, TypingInTheZoomListIsSwallowed) {
  frmMain.cboZoom.SetFocus();
  frmMain.cboZoom.UserKey(U'7');
  frmMain.cboZoom.UserType("%");
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  EXPECT_EQ(ZoomFactor, 1.0);
}

// --- fitting ------------------------------------------------------------------------------------

// 300 x 0.95 / 99 x 0.95 = 2.7348 -> 2.73, between 250 % and 300 %.
TEST_F(ViewTest, FitWidth) {
  SetLabel(99, 38);
  FitZoom(2);
  EXPECT_EQ(frmMain.cboZoom.Text(), "250%");
  EXPECT_EQ(ZoomFactor, 2.5);
}

// 200 x 0.95 / 38 x 0.95 = 4.75, between 450 % and 500 %.
TEST_F(ViewTest, FitHeightWithoutRulers) {
  SetLabel(99, 38);
  frmMain.mnuFileRulers.SetChecked(false);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "450%");
}

// 200 x 0.85 / 38 x 0.95 = 4.25, between 400 % and 450 %.
TEST_F(ViewTest, FitHeightLeavesRoomForRulers) {
  SetLabel(99, 38);
  frmMain.mnuFileRulers.SetChecked(true);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "400%");
}

// Rulers take nothing of the width: 2.73 as without them.
TEST_F(ViewTest, FitWidthDoesNotAskForRulers) {
  SetLabel(99, 38);
  frmMain.mnuFileRulers.SetChecked(true);
  FitZoom(2);
  EXPECT_EQ(frmMain.cboZoom.Text(), "250%");
}

TEST_F(ViewTest, FitLongerSideTakesTheWidthOfAWideLabelAndTheHeightOfAHighOrSquareOne) {
  SetLabel(99, 38);
  FitZoom(0);
  EXPECT_EQ(frmMain.cboZoom.Text(), "250%");
  SetLabel(38, 99);  // 200 x 0.9025 / 99 = 1.823 -> 1.82
  FitZoom(0);
  EXPECT_EQ(frmMain.cboZoom.Text(), "175%");
  SetLabel(60, 60);  // 200 x 0.9025 / 60 = 3.008 -> 3.01; by the width it would be 4.51
  FitZoom(0);
  EXPECT_EQ(frmMain.cboZoom.Text(), "300%");
}

// 200 x 0.9025 / 180.86 = 0.998, which the two decimals lift to 1.00.
TEST_F(ViewTest, TheFactorIsRoundedToTwoDecimalsBeforeTheListIsSearched) {
  SetLabel(50, 180.86);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  EXPECT_EQ(ZoomFactor, 1.0);
}

TEST_F(ViewTest, ALabelThatFillsNinetyToAHundredPercentOfTheWidthIsLeftAlone) {
  for (double width : {270.0, 280.0, 300.0}) {
    SetLabel(width, 100);
    RedrawCount = 0;
    FitZoom(2);
    EXPECT_EQ(RedrawCount, 0) << width;
    EXPECT_EQ(frmMain.cboZoom.Text(), "100%") << width;
  }
}

TEST_F(ViewTest, JustUnderNinetyOrOverAHundredPercentIsFitted) {
  SetLabel(269.9, 100);  // 300 x 0.9025 / 269.9 = 1.003 -> 1.00
  FitZoom(2);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  SetLabel(300.1, 100);  // 0.902 -> 0.90
  FitZoom(2);
  EXPECT_EQ(frmMain.cboZoom.Text(), "90%");
}

// The height is asked too, although the width is what would be fitted.
TEST_F(ViewTest, FittingTheWidthAlsoStopsAtAHeightThatFits) {
  SetLabel(100, 185);
  FitZoom(2);
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
}

// 200 x 0.9025 / 190 = 0.95 -> 90 %, although 190 of 200 would count as fitting.
TEST_F(ViewTest, FittingTheHeightAsksForNothingFirst) {
  SetLabel(100, 190);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "90%");
}

TEST_F(ViewTest, FoundZoomCentresTheLabelAndRedrawsOnce) {
  SetLabel(99, 38);
  frmMain.hS1.SetValue(100);
  frmMain.vS1.SetValue(400);
  RedrawCount = 0;
  FitZoom(2);
  EXPECT_EQ(frmMain.hS1.Value(), 250);
  EXPECT_EQ(frmMain.vS1.Value(), 250);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_EQ(SuspendRedraw, 0);
}

// 200 x 0.9025 / 10 = 18.05 is above the list; 200 x 0.9025 / 950 = 0.19 is below it.
TEST_F(ViewTest, AFactorOutsideTheListLeavesZoomAndScrollBars) {
  for (double height : {10.0, 950.0}) {
    SetLabel(5, height);
    frmMain.hS1.SetValue(100);
    RedrawCount = 0;
    FitZoom(1);
    EXPECT_EQ(frmMain.cboZoom.Text(), "100%") << height;
    EXPECT_EQ(ZoomFactor, 1.0) << height;
    EXPECT_EQ(frmMain.hS1.Value(), 100) << height;
    EXPECT_EQ(RedrawCount, 1) << height;
    EXPECT_EQ(SuspendRedraw, 0) << height;
  }
}

// 200 x 0.9025 / 24.0667 = 7.50: the last row only ends a pair and is never chosen.
TEST_F(ViewTest, ExactlyTheLastRowsFactorFindsNothing) {
  SetLabel(5, 200 * 0.9025 / 7.5);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  SetLabel(5, 200 * 0.9025 / 7.49);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "700%");
}

TEST_F(ViewTest, TheFirstRowsFactorIsFound) {
  SetLabel(5, 200 * 0.9025 / 0.2);
  FitZoom(1);
  EXPECT_EQ(frmMain.cboZoom.Text(), "20%");
}

TEST_F(ViewTest, FittingEndsTheSelectionAlsoWhereNoZoomIsFound) {
  for (const double height : {38.0, 10.0}) {
    SetLabel(99, height);
    AddObject(kRectangle);
    SelectedObject = 0;
    FitZoom(1);
    EXPECT_EQ(SelectedObject, -1) << height;
    EXPECT_FALSE(frmMain.shpBox.Visible()) << height;
  }
}

TEST_F(ViewTest, ALabelThatFitsWellEnoughKeepsItsSelection) {
  SetLabel(280, 100);
  AddObject(kRectangle);
  SelectedObject = 0;
  FitZoom(2);
  EXPECT_EQ(SelectedObject, 0);
}

TEST_F(ViewTest, ALabelWithoutASizeKeepsTheZoom) {
  SetLabel(0, 0);
  for (int mode : {0, 1, 2}) FitZoom(mode);
  EXPECT_EQ(ZoomFactor, 1.0);
  EXPECT_EQ(SuspendRedraw, 0);
}

// --- the flyout ---------------------------------------------------------------------------------

TEST_F(ViewTest, TheFirstThreeFlyoutButtonsFit) {
  SetLabel(99, 38);
  const char* zooms[] = {"250%", "450%", "250%"};
  for (int i = 0; i < 3; ++i) {
    Choose("100%");
    frmMain.picMag.SetVisible(true);
    frmMain.cmdMagnify(i).Press();
    EXPECT_EQ(frmMain.cboZoom.Text(), zooms[i]) << i;
    EXPECT_FALSE(frmMain.picMag.Visible()) << i;
  }
}

TEST_F(ViewTest, SameSizeGoesBackToFullZoomInTheMiddleWithOneRedraw) {
  Choose("300%");
  frmMain.hS1.SetValue(10);
  frmMain.vS1.SetValue(20);
  frmMain.picMag.SetVisible(true);
  RedrawCount = 0;
  frmMain.cmdMagnify(3).Press();
  EXPECT_EQ(ZoomFactor, 1.0);
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), 8);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleWidth(), 300);
  EXPECT_DOUBLE_EQ(frmMain.picBoard.ScaleHeight(), 200);
  EXPECT_EQ(frmMain.hS1.Value(), 250);
  EXPECT_EQ(frmMain.vS1.Value(), 250);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_FALSE(frmMain.picMag.Visible());
}

TEST_F(ViewTest, AllObjectsLeavesTheZoomAndHidesTheFlyout) {
  Choose("300%");
  frmMain.picMag.SetVisible(true);
  RedrawCount = 0;
  frmMain.cmdMagnify(4).Press();
  EXPECT_EQ(ZoomFactor, 3.0);
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_FALSE(frmMain.picMag.Visible());
}

// --- scrolling ----------------------------------------------------------------------------------

TEST_F(ViewTest, AScrollBarRedrawsAndMovesTheLabelOneUnitAStep) {
  SetLabel(100, 50);
  RedrawBoard();
  EXPECT_DOUBLE_EQ(BoardOriginX, 100);  // (300 - 100) / 2
  EXPECT_DOUBLE_EQ(BoardOriginY, 75);
  frmMain.hS1.SetValue(260);
  frmMain.vS1.SetValue(245);
  EXPECT_EQ(RedrawCount, 3);
  EXPECT_DOUBLE_EQ(BoardOriginX, 90);
  EXPECT_DOUBLE_EQ(BoardOriginY, 80);
}

TEST_F(ViewTest, TheScrollBarsMiddleIsHalfOfTheirMaximumHalvesToEven) {
  frmMain.hS1.SetRange(0, 5);  // 2.5 -> 2
  frmMain.vS1.SetRange(0, 7);  // 3.5 -> 4
  frmMain.cmdXC.Press();
  EXPECT_EQ(frmMain.hS1.Value(), 2);
  EXPECT_EQ(frmMain.vS1.Value(), 4);
}

TEST_F(ViewTest, TheCornerButtonCentresWithOneRedrawAndGivesTheKeyboardToTheBoard) {
  frmMain.hS1.SetValue(10);
  frmMain.vS1.SetValue(20);
  RedrawCount = 0;
  frmMain.cmdXC.SetFocus();
  frmMain.cmdXC.Press();
  EXPECT_EQ(frmMain.hS1.Value(), 250);
  EXPECT_EQ(frmMain.vS1.Value(), 250);
  EXPECT_EQ(RedrawCount, 1);
  EXPECT_EQ(SuspendRedraw, 0);
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
}

TEST_F(ViewTest, ScrollBarsPassTheKeyboardOn) {
  for (ScrollBar* bar : {&frmMain.hS1, &frmMain.vS1}) {
    frmMain.cboZoom.SetFocus();
    bar->SetFocus();
    EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  }
}

// --- cross hairs and rulers ---------------------------------------------------------------------

TEST_F(ViewTest, TheCrossHairBoxSetsTheFlagAndTheLinesButNeitherMenuNorSettings) {
  frmMain.chkXHair.Events().Click = chkXHair_Click;
  frmMain.mnuOptXHair.SetChecked(true);
  frmMain.chkXHair.Press();
  EXPECT_EQ(CrossHairsShown, 0);
  EXPECT_FALSE(frmMain.HairX.Visible());
  EXPECT_FALSE(frmMain.HairY.Visible());
  EXPECT_TRUE(frmMain.mnuOptXHair.Checked());
  EXPECT_EQ(ProgSettings.ShowCrossHairs, -1);
  frmMain.chkXHair.Press();
  EXPECT_EQ(CrossHairsShown, 1);  // the box's value
  EXPECT_TRUE(frmMain.HairX.Visible());
  EXPECT_TRUE(frmMain.HairY.Visible());
}

TEST_F(ViewTest, TheCrossHairEntryTurnsLinesAndSettingsOverButNotTheBox) {
  frmMain.mnuOptXHair.SetChecked(true);
  mnuOptXHair_Click();
  EXPECT_FALSE(frmMain.mnuOptXHair.Checked());
  EXPECT_FALSE(frmMain.HairX.Visible());
  EXPECT_FALSE(frmMain.HairY.Visible());
  EXPECT_EQ(ProgSettings.ShowCrossHairs, 0);
  EXPECT_EQ(frmMain.chkXHair.Value(), 1);
  mnuOptXHair_Click();
  EXPECT_TRUE(frmMain.mnuOptXHair.Checked());
  EXPECT_TRUE(frmMain.HairX.Visible());
  EXPECT_EQ(ProgSettings.ShowCrossHairs, -1);
}

TEST_F(ViewTest, TheRulerEntryTurnsOverRedrawsAndKeepsTheState) {
  frmMain.mnuFileRulers.SetChecked(true);
  mnuFileRulers_Click();
  EXPECT_FALSE(frmMain.mnuFileRulers.Checked());
  EXPECT_EQ(ProgSettings.ShowRulers, 0);
  EXPECT_EQ(RedrawCount, 1);
  mnuFileRulers_Click();
  EXPECT_TRUE(frmMain.mnuFileRulers.Checked());
  EXPECT_EQ(ProgSettings.ShowRulers, -1);
  EXPECT_EQ(RedrawCount, 2);
}

// --- units --------------------------------------------------------------------------------------

TEST_F(ViewTest, InchesAndBack) {
  LoadLabelLayouts();
  FillLayoutList();
  Add(ShapeObject(kRectangle, 25.4F, 5, 20, 10));
  SelectedObject = 0;
  mnuUnitIn_Click();
  EXPECT_EQ(ProgSettings.MetricUnits, 0);
  EXPECT_EQ(UnitScale, 25.4);
  EXPECT_EQ(RulerScale, 2.54);
  EXPECT_TRUE(frmMain.mnuUnitIn.Checked());
  EXPECT_FALSE(frmMain.mnuUnitMM.Checked());
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "1.00");
  EXPECT_EQ(frmMain.txtDSize(3).Text(), "0.39");  // 10 / 25.4 = 0.3937
  mnuUnitMM_Click();
  EXPECT_EQ(ProgSettings.MetricUnits, -1);
  EXPECT_EQ(UnitScale, 1.0);
  EXPECT_EQ(RulerScale, 1.0);
  EXPECT_TRUE(frmMain.mnuUnitMM.Checked());
  EXPECT_FALSE(frmMain.mnuUnitIn.Checked());
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "25.40");
  EXPECT_EQ(frmMain.txtDSize(3).Text(), "10.00");  // the record's, not 0.39 x 25.4
}

TEST_F(ViewTest, ChoosingTheSameUnitAgainShowsTheSame) {
  LoadLabelLayouts();
  Add(ShapeObject(kRectangle, 25.4F, 5, 20, 10));
  SelectedObject = 0;
  for (int i = 0; i < 2; ++i) {
    mnuUnitIn_Click();
    EXPECT_EQ(frmMain.txtDSize(0).Text(), "1.00") << i;
  }
}

// The list is filled anew, with its own default among the rows.
TEST_F(ViewTest, AUnitChangeKeepsTheLayoutAndShowsItsNumbersInTheUnit) {
  LoadLabelLayouts();
  FillLayoutList();
  frmMain.cboLabelLayout.SetListIndex(0);
  ASSERT_EQ(LabelWidth, 199);
  const std::string layout = frmMain.cboLabelLayout.Text();
  mnuUnitIn_Click();
  EXPECT_EQ(frmMain.cboLabelLayout.Text(), layout);
  EXPECT_EQ(LabelWidth, 199);
  EXPECT_EQ(frmMain.txtLabLayout(2).Text(), "7.83");  // 199 / 25.4 = 7.8346
  mnuUnitMM_Click();
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 0);
  EXPECT_EQ(LabelWidth, 199);
  EXPECT_EQ(frmMain.txtLabLayout(2).Text(), "199.00");
}

TEST_F(ViewTest, AUnitChangeChoosesNoLayoutForALabelWithoutOne) {
  LoadLabelLayouts();
  FillLayoutList();
  frmMain.cboLabelLayout.SetListIndex(-1);
  LabelWidth = 12;
  mnuUnitIn_Click();
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), -1);
  EXPECT_EQ(LabelWidth, 12);
  EXPECT_EQ(frmMain.cboLabelLayout.ListCount(), LabelLayoutTop + 1);
}

TEST_F(ViewTest, AUnitChangeWithoutLayoutsSaysNothing) {
  LabelLayouts.clear();
  LabelLayoutTop = -1;
  int reports = 0;
  const FaultReporter before = SetFaultReporter([&](const Fault&) { ++reports; });
  frmMain.mnuUnitIn.Events().Click = mnuUnitIn_Click;
  frmMain.mnuUnitMM.Events().Click = mnuUnitMM_Click;
  frmMain.mnuUnitIn.Press();
  EXPECT_EQ(UnitScale, 25.4);
  frmMain.mnuUnitMM.Press();
  EXPECT_EQ(UnitScale, 1.0);
  SetFaultReporter(before);
  EXPECT_EQ(reports, 0);
}

TEST_F(ViewTest, ResetShowsTheCrossHairsAgain) {
  CrossHairsShown = 0;
  ResetView();
  EXPECT_EQ(CrossHairsShown, kTrue);
}

}  // namespace
}  // namespace tagwright
