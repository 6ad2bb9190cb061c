#include "tools/board.h"

#include <string>

#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/shown_size.h"
#include "editing/pointer.h"
#include "editing/rubber.h"
#include "editing/selection.h"
#include "editing/track_status.h"
#include "forms/frmMain.h"
#include "platform/controls/mouse.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/pointers.h"
#include "platform/controls/shapes.h"
#include "platform/text/locale.h"
#include "tools/placement.h"
#include "tools/rule_drag.h"

namespace tagwright {
namespace {

constexpr double kHairLengths = 5;  // the hairs still span the board after it has grown

void ShowPlace(double X, double Y) {
  frmMain.sB1.SetPanelText(kPlacePanel, "X: " + InUsersUnit(X - BoardOriginX) +
                                            " - Y:" + InUsersUnit(Y - BoardOriginY) + UnitName());
}

void ShowCrossHairs(double X, double Y) {
  const PictureBox& board = frmMain.picBoard;
  MoveCrossHairs(X, Y, kHairLengths * board.ScaleWidth(), kHairLengths * board.ScaleHeight());
  ShowInFront(frmMain.HairX);
  ShowInFront(frmMain.HairY);
}

void EndEntry() {
  TextEntryActive = false;
  RedrawSkip = -1;
  frmMain.picMag.SetVisible(false);
}

}  // namespace

void picBoard_MouseDown(int Button, int /*Shift*/, double X, double Y) {
  Traced(EndEntry);
  bool grabs = false;
  Traced([&] { grabs = Button == kLeftButton && GrabRules(X, Y); });
  if (grabs) return;
  if (Button == kLeftButton && !ModifierHeld) {
    Traced(EndSelection);
    Traced([&] { StartTool(X, Y); });
  }
  Traced([&] { AnchorRubber(X, Y); });
}

void picBoard_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y) {
  Traced(RestorePointer);
  if (frmMain.mnuOptXHair.Checked()) Traced([&] { ShowCrossHairs(X, Y); });
  Traced([&] { ShowPlace(X, Y); });
  if (RubberBox) Traced([&] { TrackRubberBox(X, Y, 0); });
  if (RubberLine) Traced([&] { TrackRubberLine(X, Y); });
  Traced([&] { DragRules(X, Y); });
}

void picBoard_MouseUp(int /*Button*/, int /*Shift*/, double X, double Y) {
  Traced([&] { ReleaseRules(X, Y); });
  if (RubberBox) Traced(PlaceObject);
  if (RubberLine) Traced(PlaceObject);
  if (CurrentTool == kDataField) Traced([&] { PlaceFieldAt(X, Y); });
  if (CurrentTool == kText) SetBoardPointer(kDefaultPointer);
}

}  // namespace tagwright
