#include "editing/drag.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "common/arithmetic.h"
#include "common/barcode_format.h"
#include "common/diagnostics.h"
#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/geometry.h"
#include "editing/magnetic_rule.h"
#include "editing/selected_object.h"
#include "editing/track_status.h"
#include "editing/undo.h"
#include "forms/frmMain.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

constexpr double kMoveThreshold = 0.5;  // millimetres on screen below which a drag is a click
constexpr double kLineThickness = 0.5;  // likewise, of a line's box
constexpr double kHandleGap = 1.0;

bool group_drag = false;  // what the press has taken hold of

// --- units --------------------------------------------------------------------------------------

double TwipsX(double units) { return frmMain.picBoard.ScaleX(units, kUserScale, kTwips); }
double TwipsY(double units) { return frmMain.picBoard.ScaleY(units, kUserScale, kTwips); }

// Of a length on screen.
double ScreenX(double millimetres) {
  return frmMain.picBoard.ScaleX(millimetres, kMillimetres, kUserScale);
}

double ScreenY(double millimetres) {
  return frmMain.picBoard.ScaleY(millimetres, kMillimetres, kUserScale);
}

BoardFrame FrameOf(const Control& control) {
  return {control.Left(), control.Top(), control.Width(), control.Height()};
}

// --- snapping -----------------------------------------------------------------------------------

Rule VerticalRule() {
  return {frmMain.lnMX.Visible(), MagRuleX + BoardOriginX, ProgSettings.MagneticZone};
}

Rule HorizontalRule() {
  return {frmMain.lnMY.Visible(), MagRuleY + BoardOriginY, ProgSettings.MagneticZone};
}

double Take(const Snapped& snapped) {
  if (snapped.hit) SnapHit = true;
  return snapped.at;
}

// Moves the box and never stretches it; each axis by itself.
void SnapFrame() {
  Shape& frame = frmMain.shpBox;
  SnapHit = false;
  frame.SetLeft(Take(SnapBox(frame.Left(), frame.Width(), VerticalRule())));
  SnapHit = false;
  frame.SetTop(Take(SnapBox(frame.Top(), frame.Height(), HorizontalRule())));
}

// --- the frame ----------------------------------------------------------------------------------

void ShowFrame(int shape) {
  frmMain.shpBox.SetShape(shape);
  frmMain.shpBox.SetVisible(true);
  frmMain.shpBox.SetBorderStyle(kDottedBorder);
}

void TakePlaceOfFrame(ObjectRecord& object) {
  Traced([&] { object.Left = ToSingle(frmMain.shpBox.Left() - BoardOriginX); });
  Traced([&] { object.Top = ToSingle(frmMain.shpBox.Top() - BoardOriginY); });
}

BoardPoint AnchorOf(int corner) {
  switch (corner) {
    case kAnchorBottomRight:
      return {AnchorRight, AnchorBottom};
    case kAnchorBottomLeft:
      return {AnchorX, AnchorBottom};
    case kAnchorTopRight:
      return {AnchorRight, AnchorY};
    default:
      return {AnchorX, AnchorY};
  }
}

bool LineIsSelected() {
  bool is_line = false;
  Traced([&] { is_line = SelectedObject != -1 && ObjectAt(SelectedObject).ObjType == kLine; });
  return is_line;
}

BoardFrame KeptThin(const BoardFrame& box) {
  const ObjectRecord& line = ObjectAt(SelectedObject);
  const bool stands = LineStands(line.Width, line.Height);
  return ThinBox(box, stands, stands ? ScreenX(kLineThickness) : ScreenY(kLineThickness));
}

void ShowFrameBox() {
  const std::string width = InUsersUnit(frmMain.shpBox.Width());
  const std::string height = InUsersUnit(frmMain.shpBox.Height());
  ShowPlaceInFields(frmMain.shpBox.Left(), frmMain.shpBox.Top());
  ShowExtentInFields(frmMain.shpBox.Width(), frmMain.shpBox.Height());
  frmMain.sB1.SetPanelText(kExtentPanel, "Width: " + width + " Height: " + height);
}

// --- the end of a move --------------------------------------------------------------------------

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

// --- the end of a resize ------------------------------------------------------------------------

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

// --- handles ------------------------------------------------------------------------------------

bool KeepsItsSize(const ObjectRecord& object) {
  return object.ObjType == kBarcode && object.Param == kFormatPostNet;
}

void BeginResize(double X, double Y) {
  const Shape& frame = frmMain.shpBox;
  const Label& hold = HoldAt(SelectedObject);
  Dragging = true;
  group_drag = false;
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

bool GestureUnderWay() { return Dragging || RubberBox || RubberLine; }

// --- snapping -----------------------------------------------------------------------------------

double SnapX(double x) { return Take(SnapPoint(x, VerticalRule())); }
double SnapY(double y) { return Take(SnapPoint(y, HorizontalRule())); }

// --- rubber -------------------------------------------------------------------------------------

void TrackRubberBox(double x, double y, int corner) {
  BoardFrame box = BoxBetween({x, y}, AnchorOf(corner));
  if (!RubberBox && LineIsSelected()) box = KeptThin(box);
  frmMain.shpBox.Move(box.left, box.top, box.width, box.height);
  ShowFrameBox();
}

void TrackRubberLine(double x, double y) {
  const BoardPoint way = {TwipsX(x - AnchorX), TwipsY(y - AnchorY)};
  const BoardPoint end = LineEnd({AnchorX, AnchorY}, {x, y}, way);
  frmMain.shpLine.SetX2(end.x);
  frmMain.shpLine.SetY2(end.y);
  ShowPlaceInFields(std::min(AnchorX, end.x), std::min(AnchorY, end.y));
  ShowExtentInFields(std::abs(end.x - AnchorX), std::abs(end.y - AnchorY));
}

int FrameShapeOf(std::int16_t kind) {
  if (kind == kRoundedRectangle) return kRoundedOutline;
  return kind == kEllipse ? kOvalOutline : kRectangleOutline;
}

// --- hit areas ----------------------------------------------------------------------------------

void BeginObjectDrag(int Index, double X, double Y) {
  const Label& hold = HoldAt(Index);
  AnchorX = BoardUnitsX(X);
  AnchorY = BoardUnitsY(Y);
  HoldStartLeft = hold.Left();
  HoldStartTop = hold.Top();
  ShowFrame(FrameShapeOf(ObjectAt(Index).ObjType));
  Dragging = true;
  group_drag = false;
  ShowHandles(hold);
}

void BeginGroupDrag(int Index, double X, double Y) {
  const Label& hold = HoldAt(Index);
  HoldStartLeft = hold.Left();
  HoldStartTop = hold.Top();
  BoxStartLeft = frmMain.shpBox.Left();
  BoxStartTop = frmMain.shpBox.Top();
  Dragging = true;
  group_drag = true;
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
  if (group_drag) {
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
  if (group_drag) {
    Traced(DropGroup);
  } else if (SelectedObject > -1) {
    Traced([&] { DragMoved ? DropObject(hold) : PutBack(hold); });
  }
  ShowSizeFields();
}

// --- handles ------------------------------------------------------------------------------------

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

void ResetDrag() {
  Dragging = false;
  DragMoved = false;
  group_drag = false;
  AnchorX = AnchorY = AnchorRight = AnchorBottom = 0;
  HoldStartLeft = HoldStartTop = BoxStartLeft = BoxStartTop = 0;
  HandleDownX = HandleDownY = 0;
  StartWidth = 0;
  StartHeight = 0;
  SnapHit = false;
  RubberBox = RubberLine = 0;
}

}  // namespace tagwright
