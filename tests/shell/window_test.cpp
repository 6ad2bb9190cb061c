#include "shell/window.h"

#include "document/objects.h"
#include "forms/frmAbout.h"
#include "platform/controls/mouse.h"
#include "platform/services/desktop.h"
#include "shell/shell_fixture.h"
#include "tools/tool_buttons.h"

namespace tagwright {
namespace {

class WindowTest : public ShellTest {
 protected:
  WindowTest() {
    StartProgram();
    frmMain.picFunctions.SetHeight(1860);
    frmMain.picTools.SetWidth(750);
    frmMain.sB1.SetHeight(390);
  }
  ~WindowTest() override {
    DesktopOpen() = {};
    DesktopShowHelp() = {};
  }

  static void ResizeTo(double client_width, double client_height,
                       WindowState state = WindowState::kNormal) {
    frmMain.UserResize(0, 0, client_width + 120, client_height + 600, client_width, client_height,
                       state);
  }

  static void ExpectPlace(const Control& control, double left, double top, double width,
                          double height) {
    EXPECT_NEAR(control.LeftTwips(), left, 1e-6) << control.Name();
    EXPECT_NEAR(control.TopTwips(), top, 1e-6) << control.Name();
    EXPECT_NEAR(control.WidthTwips(), width, 1e-6) << control.Name();
    EXPECT_NEAR(control.HeightTwips(), height, 1e-6) << control.Name();
  }
};

// --- geometry -----------------------------------------------------------------------------------

// A client area of 18000 by 11000 twips, strip 1860 high, tools 750 wide, status bar 390 high.
TEST_F(WindowTest, EveryPartStandsWhereTheRulesSay) {
  ResizeTo(18000, 11000);
  ExpectPlace(frmMain.picFunctions, 120, 0, 17760, 1860);
  EXPECT_EQ(frmMain.picTools.Left(), 60);
  EXPECT_EQ(frmMain.picTools.Top(), 1980);                // 0 + 1860 + 120
  ExpectPlace(frmMain.picBoard, 930, 1980, 17010, 8510);  // 60 + 750 + 120; less 240 each way
  ExpectPlace(frmMain.vS1, 16750, 0, 260, 8250);          // 17010 - 260; 8510 - 260
  ExpectPlace(frmMain.hS1, 20, 8250, 16730, 260);         // from 20 to 16750
  ExpectPlace(frmMain.cmdXC, 16750, 8250, 260, 260);
}

// 17010 and 8510 twips are 300.0375 and 150.107 mm.
TEST_F(WindowTest, TheBoardsUnitIsAMillimetreAtTheZoom) {
  ResizeTo(18000, 11000);
  EXPECT_NEAR(frmMain.picBoard.ScaleWidth(), 300.0375, 1e-9);
  EXPECT_NEAR(frmMain.picBoard.ScaleHeight(), 150.106944444, 1e-6);
  frmMain.cboZoom.SetListIndex(15);  // 200 %
  EXPECT_NEAR(frmMain.picBoard.ScaleWidth(), 150.01875, 1e-9);
  ResizeTo(18000 + 1440, 11000);
  EXPECT_NEAR(frmMain.picBoard.ScaleWidth(), 162.71875, 1e-9);  // an inch more is 12.7 units
  EXPECT_EQ(ZoomFactor, 2.0);
}

TEST_F(WindowTest, AtAnyZoomTheScrollBarsKeepTheirPlaceOnScreen) {
  frmMain.cboZoom.SetListIndex(27);  // 750 %
  ResizeTo(18000, 11000);
  ExpectPlace(frmMain.vS1, 16750, 0, 260, 8250);
  ExpectPlace(frmMain.hS1, 20, 8250, 16730, 260);
  ExpectPlace(frmMain.cmdXC, 16750, 8250, 260, 260);
}

TEST_F(WindowTest, AResizeTakesTheFactorFromTheComboAndRedrawsOnce) {
  ResizeTo(18000, 11000);
  ZoomFactor = 7;
  const auto redraws = RedrawCount;
  ResizeTo(18100, 11000);
  EXPECT_EQ(ZoomFactor, 1.0);
  EXPECT_EQ(RedrawCount, redraws + 1);
}

TEST_F(WindowTest, AHeightUnderTheFloorSnapsBackAndTheResizeRunsAgain) {
  int resizes = 0;
  frmMain.WindowEvents().Resize = [&] {
    ++resizes;
    Form_Resize();
  };
  frmMain.UserResize(0, 0, 12000, 8249, 11880, 7649, WindowState::kNormal);
  EXPECT_EQ(frmMain.Height(), 8250);
  EXPECT_EQ(resizes, 2);
  EXPECT_EQ(frmMain.picBoard.Height(), 7650 - 240 - 1860 - 390);
}

TEST_F(WindowTest, TheFloorItselfStays) {
  int resizes = 0;
  frmMain.WindowEvents().Resize = [&] {
    ++resizes;
    Form_Resize();
  };
  frmMain.UserResize(0, 0, 12000, 8250, 11880, 7650, WindowState::kNormal);
  EXPECT_EQ(frmMain.Height(), 8250);
  EXPECT_EQ(resizes, 1);
}

TEST_F(WindowTest, TheWidthHasNoFloor) {
  frmMain.UserResize(0, 0, 1500, 9000, 1380, 8400, WindowState::kNormal);
  EXPECT_EQ(frmMain.Width(), 1500);
  EXPECT_EQ(frmMain.picBoard.Width(), 1380 - 240 - 750);
}

TEST_F(WindowTest, AWindowTooNarrowForTheBoardStillGivesItItsHeight) {
  ResizeTo(18000, 11000);
  frmMain.UserResize(0, 0, 600, 9600, 480, 9000, WindowState::kNormal);
  EXPECT_EQ(frmMain.picFunctions.Width(), 240);
  EXPECT_EQ(frmMain.picBoard.Width(), 17010);  // 480 - 990 is refused
  EXPECT_EQ(frmMain.picBoard.Height(), 6510);
}

TEST_F(WindowTest, AMinimisedWindowIsNotLaidOutAndTheNextRestoreIs) {
  ResizeTo(18000, 11000);
  const auto redraws = RedrawCount;
  frmMain.UserResize(0, 0, 2400, 500, 2400, 0, WindowState::kMinimized);
  EXPECT_EQ(frmMain.Height(), 500);  // no floor either
  EXPECT_EQ(frmMain.picBoard.Width(), 17010);
  EXPECT_EQ(RedrawCount, redraws);
  ResizeTo(15000, 10000);
  EXPECT_EQ(frmMain.picBoard.Width(), 14010);
  EXPECT_EQ(RedrawCount, redraws + 1);
}

// --- Timer1 -------------------------------------------------------------------------------------

TEST_F(WindowTest, SaveFollowsTheDirtyFlagOnceASecond) {
  EXPECT_EQ(frmMain.Timer1.Interval(), 1000);
  DirtyFlag = kTrue;
  EXPECT_FALSE(frmMain.mnuFileSave.Enabled());
  frmMain.Timer1.Elapsed();
  EXPECT_TRUE(frmMain.mnuFileSave.Enabled());
  EXPECT_TRUE(frmMain.mnuFileSaveAs.Enabled());
  DirtyFlag = kFalse;
  frmMain.Timer1.Elapsed();
  EXPECT_FALSE(frmMain.mnuFileSave.Enabled());
}

TEST_F(WindowTest, SaveStaysEnabledAfterASaveUntilTheNextTick) {
  DirtyFlag = kTrue;
  frmMain.Timer1.Elapsed();
  dialogs.files = {folder.File("a.twp")};
  frmMain.mnuFileSave.Press();
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_TRUE(frmMain.mnuFileSave.Enabled());
  frmMain.Timer1.Elapsed();
  EXPECT_FALSE(frmMain.mnuFileSave.Enabled());
}

TEST_F(WindowTest, SaveAsIsNeverDisabledByTheTimer) {
  frmMain.mnuFileSaveAs.SetEnabled(true);
  frmMain.Timer1.Elapsed();
  EXPECT_TRUE(frmMain.mnuFileSaveAs.Enabled());
  frmMain.mnuFileSaveAs.SetEnabled(false);
  frmMain.Timer1.Elapsed();
  EXPECT_FALSE(frmMain.mnuFileSaveAs.Enabled());
}

constexpr int kSKey = 'S';
constexpr int kCtrl = 2;

// What has changed since the last tick can be saved at once, by key and from the menu.
TEST_F(WindowTest, SaveGoesByTheDirtyFlagWhenItIsUsed) {
  DirtyFlag = kTrue;
  ProjectPath = folder.File("a.twp");
  ASSERT_FALSE(frmMain.mnuFileSave.Enabled());
  frmMain.UserKeyDown(kSKey, kCtrl);
  EXPECT_TRUE(frmMain.mnuFileSaveAs.Enabled());
  frmMain.mnuFileSave.Press();
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_TRUE(FileExists(ProjectPath));

  frmMain.UserKeyDown(kSKey, kCtrl);
  EXPECT_FALSE(frmMain.mnuFileSave.Enabled()) << "nothing is left to save";
  DirtyFlag = kTrue;
  ModalOpens();  // a menu
  EXPECT_TRUE(frmMain.mnuFileSave.Enabled());
}

// --- the hold -----------------------------------------------------------------------------------

class HoldTest : public WindowTest {
 protected:
  HoldTest() {
    Tick(3);  // the idle pass after program start
    frmMain.picTools.Move(60, 1980, 750, 8400);
    frmMain.cmdTools(5).Move(0, 4000, 600, 540);
  }
  static void Tick(int times) {
    for (int i = 0; i < times; ++i) frmMain.tmrButtons.Elapsed();
  }
  static void PressTool(int index) { frmMain.cmdTools(index).UserMouseDown(kLeftButton, 0, 5, 5); }
  static void ReleaseTool(int index) { frmMain.cmdTools(index).UserMouseUp(kLeftButton, 0, 5, 5); }
};

TEST_F(WindowTest, ThreeTicksAfterTheStartTheTimerStopsWithoutAFlyout) {
  EXPECT_EQ(frmMain.tmrButtons.Interval(), 70);
  EXPECT_TRUE(frmMain.tmrButtons.Enabled());
  CurrentTool = 11;
  frmMain.tmrButtons.Elapsed();
  frmMain.tmrButtons.Elapsed();
  EXPECT_TRUE(frmMain.tmrButtons.Enabled());
  EXPECT_EQ(CurrentTool, 11);
  frmMain.tmrButtons.Elapsed();
  EXPECT_FALSE(frmMain.tmrButtons.Enabled());
  EXPECT_FALSE(frmMain.picMag.Visible());
  EXPECT_EQ(HoldTicks, 1000);
  EXPECT_EQ(CurrentTool, 0);
}

TEST_F(HoldTest, TheThirdTickDisarmsAndOpensTheFlyoutBesideTheTools) {
  PressTool(5);
  EXPECT_EQ(HoldKind, 101);
  EXPECT_EQ(HoldTicks, 0);
  CurrentTool = 11;
  CursorShape = 2;
  frmMain.SetMousePointer(2);
  Tick(2);
  EXPECT_FALSE(frmMain.picMag.Visible());
  EXPECT_EQ(CurrentTool, 11);
  Tick(1);
  EXPECT_TRUE(frmMain.picMag.Visible());
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
  EXPECT_EQ(frmMain.picMag.Left(), 810);  // 60 + 750
  EXPECT_EQ(frmMain.picMag.Top(), 6250);  // 1980 + 4000 + 540 / 2
  EXPECT_GT(frmMain.picMag.Order(), frmMain.picBoard.Order());
  EXPECT_EQ(HoldTicks, 1000);
  EXPECT_FALSE(frmMain.tmrButtons.Enabled());
}

TEST_F(HoldTest, TheClickThatEndsAHoldLeavesTheFlyoutOpen) {
  PressTool(6);
  Tick(3);
  ReleaseTool(6);
  frmMain.cmdTools(6).Press();
  EXPECT_TRUE(frmMain.picMag.Visible());
}

TEST_F(HoldTest, AShortClickStopsTheTimerBeforeTheThirdTick) {
  PressTool(5);
  Tick(2);
  ReleaseTool(5);
  EXPECT_FALSE(frmMain.tmrButtons.Enabled());
  Tick(5);
  EXPECT_FALSE(frmMain.picMag.Visible());
  EXPECT_EQ(HoldTicks, 2);
}

// The idle pass leaves the count where a hold leaves it: without a press of the mouse, as from the
// keyboard, the zoom buttons' click finds a hold that has ended.
TEST_F(HoldTest, AfterTheIdlePassAZoomButtonNeedsThePressOfTheMouse) {
  frmMain.cmdTools(3).Press();
  frmMain.cmdTools(5).Press();
  EXPECT_TRUE(frmMain.cboFont.Visible());
  PressTool(5);
  ReleaseTool(5);
  frmMain.cmdTools(5).Press();
  EXPECT_FALSE(frmMain.cboFont.Visible());
}

TEST_F(HoldTest, OnlyTheZoomButtonsAreTimed) {
  for (int tool : {0, 1, 2, 3, 4, 7}) {
    PressTool(tool);
    EXPECT_FALSE(frmMain.tmrButtons.Enabled()) << tool;
    ReleaseTool(tool);
  }
}

TEST_F(HoldTest, AFlyoutButtonHidesTheFlyout) {
  PressTool(5);
  Tick(3);
  ReleaseTool(5);
  frmMain.cmdMagnify(4).Press();
  EXPECT_FALSE(frmMain.picMag.Visible());
}

// --- the flyout by keyboard ---------------------------------------------------------------------

TEST_F(HoldTest, AKeyOnAZoomButtonOpensTheFlyoutAndEscapeGivesTheKeyboardBack) {
  for (const int tool : {5, 6}) {
    for (const int key : {40, 93}) {
      frmMain.cmdTools(tool).UserFocus();
      EXPECT_FALSE(frmMain.UserKeyDown(key, 0)) << "the key is spent";
      EXPECT_TRUE(frmMain.picMag.Visible()) << tool << " " << key;
      EXPECT_EQ(frmMain.picMag.Left(), 810);
      EXPECT_EQ(frmMain.picMag.Top(), 6250);
      EXPECT_GT(frmMain.picMag.Order(), frmMain.picBoard.Order());
      EXPECT_TRUE(frmMain.cmdMagnify(0).HasFocus());
      frmMain.cmdMagnify(3).UserFocus();
      EXPECT_FALSE(frmMain.UserKeyDown(27, 0));
      EXPECT_FALSE(frmMain.picMag.Visible());
      EXPECT_TRUE(frmMain.cmdTools(tool).HasFocus()) << tool << " " << key;
    }
  }
}

TEST_F(HoldTest, TheKeyTouchesNeitherTheHoldNorAnArmedTool) {
  frmMain.cmdRect.Press();
  const auto kind = HoldKind;
  const auto ticks = HoldTicks;
  frmMain.cmdTools(6).UserFocus();
  frmMain.UserKeyDown(40, 0);
  ASSERT_TRUE(frmMain.picMag.Visible());
  EXPECT_EQ(HoldKind, kind);
  EXPECT_EQ(HoldTicks, ticks);
  EXPECT_FALSE(frmMain.tmrButtons.Enabled());
  EXPECT_EQ(CurrentTool, 11);
  EXPECT_EQ(CursorShape, 2);
}

TEST_F(HoldTest, ElsewhereTheKeysGoOn) {
  frmMain.cmdTools(4).UserFocus();
  EXPECT_TRUE(frmMain.UserKeyDown(40, 0));
  EXPECT_FALSE(frmMain.picMag.Visible());
  frmMain.cmdTools(5).UserFocus();
  EXPECT_TRUE(frmMain.UserKeyDown(39, 0));
  EXPECT_FALSE(frmMain.picMag.Visible());
  EXPECT_TRUE(frmMain.UserKeyDown(27, 0)) << "nothing is open";
}

TEST_F(HoldTest, EscapeClosesAFlyoutThatWasHeldOpen) {
  PressTool(6);
  Tick(3);
  ReleaseTool(6);
  frmMain.cboZoom.UserFocus();
  frmMain.UserKeyDown(27, 0);
  EXPECT_FALSE(frmMain.picMag.Visible());
  EXPECT_TRUE(frmMain.cboZoom.HasFocus()) << "which was not in it";
  PressTool(6);
  Tick(3);
  ReleaseTool(6);
  frmMain.cmdMagnify(1).UserFocus();
  frmMain.UserKeyDown(27, 0);
  EXPECT_TRUE(frmMain.cmdTools(6).HasFocus());
}

// --- hover --------------------------------------------------------------------------------------

TEST_F(WindowTest, OutsideTheBoardThePointerIsTheDefaultOne) {
  Control* places[] = {&frmMain,           &frmMain.picFunctions, &frmMain.picProperties,
                       &frmMain.picText,   &frmMain.picBCode,     &frmMain.picDrawing,
                       &frmMain.picFields, &frmMain.picSellAll,   &frmMain.picTools,
                       &frmMain.picTemp,   &frmMain.sB1,          &frmMain.cmdTools(3)};
  for (Control* place : places) {
    frmMain.SetMousePointer(99);
    place->Events().MouseMove.Raise(place->Index(), 0, 0, 1, 1);
    EXPECT_EQ(frmMain.MousePointer(), 0) << place->Name();
  }
}

TEST_F(WindowTest, BackOnTheBoardTheToolsPointerReturns) {
  CursorShape = 2;
  frmMain.picTools.Events().MouseMove.Raise(-1, 0, 0, 1, 1);
  ASSERT_EQ(frmMain.MousePointer(), 0);
  frmMain.picBoard.Events().MouseMove.Raise(-1, 0, 0, 1, 1);
  EXPECT_EQ(frmMain.MousePointer(), 2);
}

// --- help ---------------------------------------------------------------------------------------

TEST_F(WindowTest, HelpShowsTheFileOfTheApplicationFolder) {
  std::string shown;
  DesktopShowHelp() = [&](const std::string& path) {
    shown = path;
    return true;
  };
  frmMain.mnuHelpHelp.Press();
  EXPECT_EQ(shown, folder.File("twlabel.chm"));
}

TEST_F(WindowTest, TheWebsiteOpensInTheBrowser) {
  std::string opened;
  DesktopOpen() = [&](const std::string& target, int) {
    opened = target;
    return 33;
  };
  frmMain.mnuHelpWebsite.Press();
  EXPECT_EQ(opened, "https://www.tagwright.example/");
}

TEST_F(WindowTest, AboutTellsProductAndVersionAndClosesWithItsButton) {
  frmMain.mnuHelpAbout.Press();
  ASSERT_TRUE(IsLoaded(frmAbout));
  EXPECT_EQ(frmAbout.Caption(), "About Tagwright Designer Gold");
  EXPECT_EQ(frmAbout.lblVersion.Caption(), "Version 1.0.0");
  EXPECT_NE(frmAbout.lblTitle.Caption(), "");
  EXPECT_NE(frmAbout.lblCopyright.Caption(), "");
  EXPECT_NE(frmAbout.lblDisclaimer.Caption(), "");
  frmAbout.cmdOK.Press();
  EXPECT_FALSE(IsLoaded(frmAbout));
}

}  // namespace
}  // namespace tagwright
