#include "tools/board_keys.h"

#include <algorithm>

#include "common/diagnostics.h"
#include "document/objects.h"
#include "editing/drag.h"
#include "editing/geometry.h"
#include "editing/property_pick.h"
#include "editing/rubber.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/keys.h"
#include "platform/controls/picture_box.h"
#include "tools/hold_mouse.h"
#include "tools/picture_tool.h"
#include "tools/placement.h"
#include "tools/placement_arithmetic.h"

namespace tagwright {
namespace {

// A field keeps its keys. Where nothing has the keyboard, since a field with it was hidden, the
// board is as good as any.
bool BoardHasKeyboard() {
  const Control* active = frmMain.ActiveControl();
  return !active || active == &frmMain.txtSetFocus(0);
}

// --- placing ------------------------------------------------------------------------------------

// Along one axis of a board of that length, where the label begins there. A label that is scrolled
// away leaves the middle of the board.
double MiddleOfSeen(double board, double origin, double label) {
  const double start = std::max(0.0, origin);
  const double end = std::min(board, origin + label);
  return start < end ? (start + end) / 2 : board / 2;
}

BoardPoint MiddleOfView() {
  const PictureBox& board = frmMain.picBoard;
  return {MiddleOfSeen(board.ScaleWidth() - frmMain.vS1.Width(), BoardOriginX, LabelWidth),
          MiddleOfSeen(board.ScaleHeight() - frmMain.hS1.Height(), BoardOriginY, LabelHeight)};
}

// What a click makes of the other kinds can be seen and taken hold of.
bool NeedsDrag() { return CurrentTool == kBarcode || IsShape(CurrentTool); }

Extent DragOfTool() {
  if (!NeedsDrag()) return {0, 0};
  return {LabelWidth / 2, CurrentTool == kLine ? 0 : LabelHeight / 2};
}

void DrawUp(const BoardPoint& middle, const Extent& drag) {
  const BoardPoint end{middle.x + drag.width / 2, middle.y + drag.height / 2};
  BeginTool(middle.x - drag.width / 2, middle.y - drag.height / 2);
  if (RubberBox) TrackRubberBox(end.x, end.y, kAnchorTopLeft);
  if (RubberLine) TrackRubberLine(end.x, end.y);
}

void PlaceInMiddle() {
  const BoardPoint middle = MiddleOfView();
  EndSelection();
  DrawUp(middle, DragOfTool());
  CentrePicture = true;
  if (RubberBox || RubberLine) Traced(PlaceObject);
  CentrePicture = false;
  if (CurrentTool == kDataField) Traced([&] { PlaceFieldAt(middle.x, middle.y); });
}

// --- selecting ----------------------------------------------------------------------------------

int PlaceOfSelection() {
  return SelectedUpper < 0 ? SelectedObject : SelectedMember(SelectedUpper);
}

int Around(int index) {
  if (index < 0) return ObjectUB;
  return index > ObjectUB ? 0 : index;
}

// The end of the former selection may take an empty text along.
void SelectBeside(int step) {
  const int from = PlaceOfSelection();
  DeselectObject();
  if (ObjectUB < 0) return;
  SelectWithoutMouse(Around(from + step));
}

// --- keys ---------------------------------------------------------------------------------------

void PutToolsAway() {
  if (CurrentTool != kNoTool) Disarm();
  if (CopyPropsPending) EndPropertyPick();
}

// Returns whether it was one of the board's.
bool ActOnBoard(int key) {
  switch (key) {
    case kReturnKey:
      if (CurrentTool == kNoTool) return false;
      PlaceInMiddle();
      return true;
    case kPageDownKey:
      SelectBeside(1);
      return true;
    case kPageUpKey:
      SelectBeside(-1);
      return true;
    default:
      return false;
  }
}

}  // namespace

void BoardKeyDown(int& KeyCode, int Shift) {
  if (KeyCode == kEscapeKey) return PutToolsAway();
  if (Shift != 0 || !BoardHasKeyboard() || GestureUnderWay()) return;
  if (ActOnBoard(KeyCode)) KeyCode = 0;
}

}  // namespace tagwright
