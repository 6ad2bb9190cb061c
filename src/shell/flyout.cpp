#include "shell/flyout.h"

#include "document/objects.h"
#include "editing/pointer.h"
#include "forms/frmMain.h"
#include "platform/controls/buttons.h"
#include "platform/controls/control.h"
#include "platform/controls/keys.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/pointers.h"
#include "tools/tool_buttons.h"

namespace tagwright {
namespace {

constexpr int kTicksOfAClick = 2;
constexpr int kHoldDone = 1000;
constexpr int kZoomHeld = 101;

int flyout_tool = kZoomInButton;  // the button that the flyout belongs to

double Right(const Control& control) { return control.Left() + control.Width(); }

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

}  // namespace tagwright
