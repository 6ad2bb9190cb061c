#include "editing/resize.h"

#include "common/arithmetic.h"
#include "common/barcode_format.h"
#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/geometry.h"
#include "editing/magnetic_rule.h"
#include "editing/rubber.h"
#include "editing/track_status.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/label.h"
#include "platform/controls/mouse.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/controls/shapes.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

BoardFrame FrameOf(const Control& control) {
  return {control.Left(), control.Top(), control.Width(), control.Height()};
}

void ScaleFont(ObjectRecord& object) {
  const double ratio = WidthRatio(frmMain.shpBox.Width(), StartWidth);
  Traced([&] { object.FontSize = ScaledFontSize(ratio, object.FontSize); });
}

void MeasureText(Label& hold, const ObjectRecord& object) {
  Traced([&] { hold.SetAutoSize(true); });
  Traced([&] { hold.SetCaption(object.Text.Trimmed()); });
  Traced([&] { hold.SetFontSize(object.FontSize * ZoomFactor); });
  Traced([&] { hold.SetFontName(object.FontName.Trimmed()); });
  hold.SetAutoSize(false);
}

// A text is shown by its hit area, which keeps the caption. A data field is shown by the painter:
// painted anew, or its former size would stay on the board beside the new one.
void ShowResizedText(const ObjectRecord& object, Label& hold) {
  ShowHandles(hold);
  if (object.ObjType == kText) return;
  EndMeasuring(hold);
  RedrawBoard();
}

void FitToFont(ObjectRecord& object) {
  Label& hold = HoldAt(SelectedObject);
  MeasureText(hold, object);
  frmMain.shpBox.SetHeight(hold.Height());
  frmMain.shpBox.SetWidth(hold.Width());
  if (object.ObjType == kDataField && !IsShownAsBarcode(object)) {
    object.Height = frmMain.shpBox.Height();
    object.Width = frmMain.shpBox.Width();
  }
  frmMain.cboSize.SetText(FormatNumber(object.FontSize));
  ShowResizedText(object, hold);
}

// A line is as thick as it was, whatever its frame: that is drawn thicker to be seen. Only where it
// has become so short that it would lie instead of stand, or the other way round, it is as thick as
// the frame.
void KeepThickness(ObjectRecord& line, double width, double height) {
  const bool stood = LineStands(width, height);
  if (stood && LineStands(width, line.Height)) line.Width = width;
  if (!stood && !LineStands(line.Width, height)) line.Height = height;
}

void TakeSizeOfFrame(ObjectRecord& object) {
  const double width = object.Width;
  const double height = object.Height;
  Traced([&] { object.Width = Finite(frmMain.shpBox.Width()); });
  if (IsMeasured(object.ObjType)) return;
  Traced([&] { object.Height = Finite(frmMain.shpBox.Height()); });
  if (object.ObjType == kLine) KeepThickness(object, width, height);
}

// Only how much wider the box has become counts. What was less than half a unit wide has no ratio
// to grow by: fault 11 ends the drag, with record and frame as they were. One that is shown as a
// barcode takes its size from the box.
void ScaleFontByFrame(ObjectRecord& object) {
  if (IsShownAsBarcode(object)) {
    Traced([&] { ScaleFont(object); });
    return;
  }
  try {
    ScaleFont(object);
  } catch (const Fault&) {
    ShowHandles(HoldAt(SelectedObject));
    throw;
  }
}

void DropHandle() {
  SnapFrame();
  ObjectRecord& object = ObjectAt(SelectedObject);
  if (IsMeasured(object.ObjType)) ScaleFontByFrame(object);
  TakePlaceOfFrame(object);
  TakeSizeOfFrame(object);
  frmMain.shpBox.SetBorderStyle(kDottedBorder);
  if (IsMeasured(object.ObjType)) {
    FitToFont(object);
  } else {
    RedrawBoard();
  }
}

bool KeepsItsSize(const ObjectRecord& object) {
  return object.ObjType == kBarcode && object.Param == kFormatPostNet;
}

void BeginResize(double X, double Y) {
  const Shape& frame = frmMain.shpBox;
  const Label& hold = HoldAt(SelectedObject);
  Dragging = true;
  DraggingGroup = false;
  AnchorX = frame.Left();
  AnchorY = frame.Top();
  AnchorRight = frame.Left() + frame.Width();
  AnchorBottom = frame.Top() + frame.Height();
  HandleDownX = BoardUnitsX(X);
  HandleDownY = BoardUnitsY(Y);
  Traced([&] { StartWidth = ToInt32(hold.Width()); });
  StartHeight = hold.Height();
}

void HideHandlesOnce() {
  if (!frmMain.lblHandle(0).Visible()) return;
  for (const auto& [i, handle] : frmMain.lblHandle) handle->SetVisible(false);
}

// A line's handle stays on the line's axis.
void MoveHandle(Label& handle, double x, double y) {
  const bool is_line = LineIsSelected();
  const bool stands =
      is_line && LineStands(ObjectAt(SelectedObject).Width, ObjectAt(SelectedObject).Height);
  const double dx = is_line && stands ? 0 : x - HandleDownX;
  const double dy = is_line && !stands ? 0 : y - HandleDownY;
  handle.Move(handle.Left() + dx, handle.Top() + dy);
}

}  // namespace

void lblHandle_MouseDown(int /*Index*/, int Button, int /*Shift*/, double X, double Y) {
  if (Button != kLeftButton || SelectedUpper > -1 || SelectedObject < 0) return;
  Traced([&] {
    if (!KeepsItsSize(ObjectAt(SelectedObject))) BeginResize(X, Y);
  });
}

void lblHandle_MouseMove(int Index, int /*Button*/, int /*Shift*/, double X, double Y) {
  Label& handle = frmMain.lblHandle(Index);
  Traced([&] { TrackStatus(handle, X, Y); });
  if (frmMain.MousePointer() != kCustomPointer) {
    frmMain.SetMousePointer(Index == 0 || Index == 3 ? kFallingPointer : kRisingPointer);
  }
  if (!Dragging) return;
  HideHandlesOnce();
  frmMain.shpBox.SetBorderStyle(kSolidBorder);
  Traced([&] { MoveHandle(handle, BoardUnitsX(X), BoardUnitsY(Y)); });
  const BoardPoint corner =
      CornerOfHandle(Index, FrameOf(handle), ScreenX(kHandleGap), ScreenY(kHandleGap));
  Traced([&] { TrackRubberBox(corner.x, corner.y, AnchorOfHandle(Index)); });
}

void lblHandle_MouseUp(int /*Index*/, int /*Button*/, int /*Shift*/, double /*X*/, double /*Y*/) {
  if (!Dragging) return;
  Dragging = false;
  DirtyFlag = kTrue;
  if (SelectedObject > -1) Traced(DropHandle);
  RedrawSkip = -1;
  ShowSizeFields();
}

}  // namespace tagwright
