#include "editing/track_status.h"

#include <string>

#include "common/public_functions.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/shapes.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

// The rounding is one of board units, before the conversion: in inches the figure moves in steps
// of 0.1 / 25.4.
std::string ShownPlace(double board_units) {
  return InUsersUnit(ToNumber(FormatFixed(board_units, 1)));
}

}  // namespace

void MoveCrossHairs(double x, double y, double width, double height) {
  SpanDown(frmMain.HairX, x, height);
  SpanAcross(frmMain.HairY, y, width);
  HairPositionX = x - BoardOriginX;
  HairPositionY = y - BoardOriginY;
}

const char* UnitName() { return UnitScale == 1.0 ? "mm" : "in"; }

void TrackStatus(const Control& control, double X, double Y) {
  const PictureBox& board = frmMain.picBoard;
  const double x = control.Left() + BoardUnitsX(X);
  const double y = control.Top() + BoardUnitsY(Y);
  if (frmMain.mnuOptXHair.Checked()) {
    MoveCrossHairs(x, y, board.ScaleWidth(), board.ScaleHeight());
  }
  frmMain.sB1.SetPanelText(kPlacePanel, "X:" + ShownPlace(x - BoardOriginX) +
                                            " - Y:" + ShownPlace(y - BoardOriginY) + UnitName());
  if (!GestureUnderWay()) ShowSizeFields();
}

}  // namespace tagwright
