#include "editing/track_status.h"

#include <string>

#include "common/public_functions.h"
#include "document/objects.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "forms/frmMain.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

constexpr int kCustomPointer = 99;

// The rounding is one of board units, before the conversion: in inches the figure moves in steps
// of 0.1 / 25.4.
std::string ShownPlace(double board_units) {
  return FormatFixed(ToNumber(FormatFixed(board_units, 1)) / UnitScale, 2);
}

}  // namespace

void MoveCrossHairs(double x, double y, double width, double height) {
  LineControl& down = frmMain.HairX;
  LineControl& across = frmMain.HairY;
  down.SetX1(x);
  down.SetX2(x);
  down.SetY1(0);
  down.SetY2(height);
  across.SetX1(0);
  across.SetX2(width);
  across.SetY1(y);
  across.SetY2(y);
  HairPositionX = x - BoardOriginX;
  HairPositionY = y - BoardOriginY;
}

const char* UnitName() { return UnitScale == 1.0 ? "mm" : "in"; }

void TrackStatus(const Control& control, double X, double Y) {
  const PictureBox& board = frmMain.picBoard;
  const double x = control.Left() + board.ScaleX(X, kTwips, kUserScale);
  const double y = control.Top() + board.ScaleY(Y, kTwips, kUserScale);
  if (frmMain.mnuOptXHair.Checked()) {
    MoveCrossHairs(x, y, board.ScaleWidth(), board.ScaleHeight());
  }
  frmMain.sB1.SetPanelText(
      1, "X:" + ShownPlace(x - BoardOriginX) + " - Y:" + ShownPlace(y - BoardOriginY) + UnitName());
  if (!GestureUnderWay()) ShowSizeFields();
}

void RestorePointer() {
  if (frmMain.MousePointer() != kCustomPointer) frmMain.SetMousePointer(CursorShape);
}

}  // namespace tagwright
