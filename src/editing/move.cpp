#include "editing/move.h"

#include <cmath>

#include "common/arithmetic.h"
#include "common/diagnostics.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/magnetic_rule.h"
#include "editing/undo.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/label.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/controls/shapes.h"

namespace tagwright {
namespace {

constexpr double kMoveThreshold = 0.5;  // millimetres on screen below which a drag is a click

void ShowFrame(int shape) {
  frmMain.shpBox.SetShape(shape);
  frmMain.shpBox.SetVisible(true);
  frmMain.shpBox.SetBorderStyle(kDottedBorder);
}

bool StaysPut(double now, double before) {
  return std::abs(now - before) < kMoveThreshold / ZoomFactor;
}

bool HasMoved(const Label& hold) {
  return !StaysPut(hold.Left(), HoldStartLeft) || !StaysPut(hold.Top(), HoldStartTop);
}

void MoveBy(ObjectRecord& object, double dx, double dy) {
  Traced([&] { object.Left = ToSingle(object.Left + dx); });
  Traced([&] { object.Top = ToSingle(object.Top + dy); });
}

// An object that is in the list twice moves twice.
void DropGroup() {
  const double dx = frmMain.shpBox.Left() - BoxStartLeft;
  const double dy = frmMain.shpBox.Top() - BoxStartTop;
  for (int i = 0; i <= SelectedUpper; ++i) {
    Traced([&] { MoveBy(ObjectAt(SelectedMember(i)), dx, dy); });
  }
  PlaceHandlesAroundFrame(kHandleGap);
  RedrawBoard();
  RedrawSkip = -1;
}

void PutBack(Label& hold) {
  const ObjectRecord& object = ObjectAt(SelectedObject);
  Shape& frame = frmMain.shpBox;
  frame.Move(object.Left + BoardOriginX, object.Top + BoardOriginY);
  hold.SetAutoSize(false);
  hold.Move(frame.Left(), frame.Top());
}

void TakeSizeOfRecord(Control& control, const ObjectRecord& object) {
  Traced([&] { control.SetWidth(object.Width); });
  Traced([&] { control.SetHeight(object.Height); });
}

// A text is not painted anew: its hit area shows it, and stays as large as what it shows.
void DropObject(Label& hold) {
  SnapFrame();
  ObjectRecord& object = ObjectAt(SelectedObject);
  const bool is_text = object.ObjType == kText;
  TakePlaceOfFrame(object);
  if (!IsShownByHold(SelectedObject)) {
    TakeSizeOfRecord(frmMain.shpBox, object);
    TakeSizeOfRecord(hold, object);
  }
  hold.Move(frmMain.shpBox.Left(), frmMain.shpBox.Top());
  if (!is_text) RedrawBoard();
  ShowHandles(hold);
}

}  // namespace

void BeginObjectDrag(int Index, double X, double Y) {
  const Label& hold = HoldAt(Index);
  AnchorX = BoardUnitsX(X);
  AnchorY = BoardUnitsY(Y);
  HoldStartLeft = hold.Left();
  HoldStartTop = hold.Top();
  ShowFrame(FrameShapeOf(ObjectAt(Index).ObjType));
  Dragging = true;
  DraggingGroup = false;
  ShowHandles(hold);
}

void BeginGroupDrag(int Index, double X, double Y) {
  const Label& hold = HoldAt(Index);
  HoldStartLeft = hold.Left();
  HoldStartTop = hold.Top();
  BoxStartLeft = frmMain.shpBox.Left();
  BoxStartTop = frmMain.shpBox.Top();
  Dragging = true;
  DraggingGroup = true;
  AnchorX = X / kTwipsPerMillimetre / ZoomFactor;
  AnchorY = Y / kTwipsPerMillimetre / ZoomFactor;
  ShowFrame(kRectangleOutline);
  frmMain.SetMousePointer(kMovePointer);
}

// X and Y count from a hit area that follows the pointer, so what they exceed the grip by is what
// the pointer has moved since. The stored picture of the board stays as it is.
void DragHold(int Index, double X, double Y) {
  Label& hold = HoldAt(Index);
  const double dx = BoardUnitsX(X) - AnchorX;
  const double dy = BoardUnitsY(Y) - AnchorY;
  frmMain.picBoard.Canvas().AutoRedraw = false;
  hold.Move(hold.Left() + dx, hold.Top() + dy);
  if (DraggingGroup) {
    frmMain.shpBox.Move(frmMain.shpBox.Left() + dx, frmMain.shpBox.Top() + dy);
  } else if (SelectedObject > -1) {
    ShowHandles(hold);
    ShowPlaceInFields(hold.Left(), hold.Top());
  }
}

// What a key has deleted or a command has regrouped during the drag is left alone.
void EndDrag(int Index) {
  Label& hold = HoldAt(Index);
  DirtyFlag = kTrue;
  ForgetUndo();
  Dragging = false;
  Traced([] { frmMain.SetMousePointer(CursorShape); });
  DragMoved = HasMoved(hold);
  if (DraggingGroup) {
    Traced(DropGroup);
  } else if (SelectedObject > -1) {
    Traced([&] { DragMoved ? DropObject(hold) : PutBack(hold); });
  }
  ShowSizeFields();
}

}  // namespace tagwright
