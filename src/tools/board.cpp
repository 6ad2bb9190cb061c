#include "tools/board.h"

#include <string>

#include "document/objects.h"
#include "editing/track_status.h"
#include "forms/frmMain.h"
#include "platform/locale.h"

namespace tagwright {
namespace {

constexpr int kCustomPointer = 99;
constexpr double kHairLengths = 5;  // the hairs still span the board after it has grown

void ShowInFront(LineControl& line) {
  line.ZOrder();
  line.SetVisible(true);
}

std::string ShownPlace(double board_units) { return FormatFixed(board_units / UnitScale, 2); }

}  // namespace

void picBoard_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y) {
  const PictureBox& board = frmMain.picBoard;
  if (frmMain.MousePointer() != kCustomPointer) frmMain.SetMousePointer(CursorShape);
  if (frmMain.mnuOptXHair.Checked()) {
    MoveCrossHairs(X, Y, kHairLengths * board.ScaleWidth(), kHairLengths * board.ScaleHeight());
    ShowInFront(frmMain.HairX);
    ShowInFront(frmMain.HairY);
  }
  frmMain.sB1.SetPanelText(1, "X: " + ShownPlace(X - BoardOriginX) +
                                  " - Y:" + ShownPlace(Y - BoardOriginY) + UnitName());
}

}  // namespace tagwright
