#include "shell/window.h"

#include "common/public_functions.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "editing/pointer.h"
#include "forms/frmAbout.h"
#include "forms/frmMain.h"
#include "platform/controls/keys.h"
#include "platform/controls/pointers.h"
#include "platform/controls/windows.h"
#include "platform/services/desktop.h"
#include "tools/tool_buttons.h"
#include "tools/view.h"

namespace tagwright {
namespace {

// Twips.
constexpr double kLeastHeight = 8250;
constexpr double kMargin = 120;
constexpr double kBothMargins = 240;
constexpr double kToolsLeft = 60;
constexpr double kBarThickness = 260;
constexpr double kHorizontalBarStart = 20;

constexpr int kTicksOfAClick = 2;
constexpr int kHoldDone = 1000;
constexpr int kZoomHeld = 101;

int flyout_tool = kZoomInButton;  // the button that the flyout belongs to

const char kWebsite[] = "https://www.tagwright.example/";
constexpr int kShowNormal = 1;

double Right(const Control& control) { return control.Left() + control.Width(); }
double Bottom(const Control& control) { return control.Top() + control.Height(); }

void PlaceStrip() {
  frmMain.picFunctions.SetLeft(kMargin);
  frmMain.picFunctions.SetWidth(frmMain.ScaleWidth() - kBothMargins);
}

void PlaceTools() { frmMain.picTools.Move(kToolsLeft, Bottom(frmMain.picFunctions) + kMargin); }

// Each side for itself: a window too narrow for the board still gives it its height.
void PlaceBoard() {
  const PictureBox& strip = frmMain.picFunctions;
  PictureBox& board = frmMain.picBoard;
  board.Move(Right(frmMain.picTools) + kMargin, Bottom(strip) + kMargin);
  CarryOn([&] { board.SetWidth(frmMain.ScaleWidth() - kBothMargins - frmMain.picTools.Width()); });
  CarryOn([&] {
    board.SetHeight(frmMain.ScaleHeight() - kBothMargins - strip.Height() - frmMain.sB1.Height());
  });
}

void PlaceScrollBars() {
  const double right = frmMain.picBoard.ScaleWidth() - kBarThickness;
  const double bottom = frmMain.picBoard.ScaleHeight() - kBarThickness;
  CarryOn([&] { frmMain.vS1.Move(right, 0, kBarThickness, bottom); });
  CarryOn([&] {
    frmMain.hS1.Move(kHorizontalBarStart, bottom, right - kHorizontalBarStart, kBarThickness);
  });
  frmMain.cmdXC.Move(right, bottom, kBarThickness, kBarThickness);
}

void PlaceScrollBarsInTwips() {
  PictureBox& board = frmMain.picBoard;
  const double width = board.ScaleWidth();
  const double height = board.ScaleHeight();
  board.SetScaleMode(kTwips);
  PlaceScrollBars();
  CarryOn([&] { board.SetScaleWidth(width); });
  CarryOn([&] { board.SetScaleHeight(height); });
}

void OpenFlyout() {
  const CommandButton& zoom_in = frmMain.cmdTools(kZoomInButton);
  PictureBox& flyout = frmMain.picMag;
  flyout.Move(Right(frmMain.picTools),
              frmMain.picTools.Top() + zoom_in.Top() + zoom_in.Height() / 2);
  flyout.SetVisible(true);
  flyout.ZOrder();
}

// Nothing is held then, so neither the hold nor an armed tool is touched.
bool OpenFlyoutByKey() {
  for (const int tool : {kZoomInButton, kZoomOutButton}) {
    if (!frmMain.cmdTools(tool).HasFocus()) continue;
    flyout_tool = tool;
    OpenFlyout();
    frmMain.cmdMagnify(0).SetFocus();
    return true;
  }
  return false;
}

bool CloseFlyoutByKey() {
  if (!frmMain.picMag.Visible()) return false;
  const Control* active = frmMain.ActiveControl();
  const bool inside = active && active->Parent() == &frmMain.picMag;
  if (inside) frmMain.cmdTools(flyout_tool).SetFocus();
  frmMain.picMag.SetVisible(false);
  return true;
}

}  // namespace

void Form_Resize() {
  if (frmMain.State() == WindowState::kMinimized) return;
  if (frmMain.Height() < kLeastHeight) CarryOn([] { frmMain.SetHeight(kLeastHeight); });
  CarryOn(PlaceStrip);
  PlaceTools();
  PlaceBoard();
  PlaceScrollBarsInTwips();
  CarryOn([] { ZoomFactor = ZoomOfCombo(); });
  ScaleBoardToZoom();
  RedrawBoard();
}

void ShowWhetherToSave() {
  frmMain.mnuFileSave.SetEnabled(DirtyFlag != kFalse);
  if (DirtyFlag) frmMain.mnuFileSaveAs.SetEnabled(true);
}

void cmdTools_MouseDown(int Index) {
  if (Index != kZoomInButton && Index != kZoomOutButton) return;
  flyout_tool = Index;
  HoldTicks = 0;
  frmMain.tmrButtons.SetEnabled(true);
  HoldKind = kZoomHeld;
}

void cmdTools_MouseUp() { frmMain.tmrButtons.SetEnabled(false); }

void tmrButtons_Timer() {
  ++HoldTicks;
  if (HoldTicks <= kTicksOfAClick) return;
  CurrentTool = kNoTool;
  SetBoardPointer(kDefaultPointer);
  if (HoldKind == kZoomHeld) OpenFlyout();
  HoldTicks = kHoldDone;
  frmMain.tmrButtons.SetEnabled(false);
}

void FlyoutKeyDown(int& KeyCode) {
  const bool opens = (KeyCode == kDownKey || KeyCode == kMenuKey) && OpenFlyoutByKey();
  const bool closes = KeyCode == kEscapeKey && CloseFlyoutByKey();
  if (opens || closes) KeyCode = 0;
}

void ShowPointerOffBoard() { frmMain.SetMousePointer(kDefaultPointer); }

void mnuHelpHelp_Click() {
  if (DesktopShowHelp()) DesktopShowHelp()(HelpFile);
}

void mnuHelpWebsite_Click() { ShellOpen(kWebsite, kShowNormal); }

void mnuHelpAbout_Click() {
  Load(frmAbout);
  ShowModal(frmAbout);
}

}  // namespace tagwright
