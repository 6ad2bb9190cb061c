#include "tools/placement.h"

#include "common/diagnostics.h"
#include "document/overlays.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/magnetic_rule.h"
#include "editing/panel_stack.h"
#include "editing/pointer.h"
#include "editing/rubber.h"
#include "editing/selected_object.h"
#include "forms/frmMain.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "tools/new_object.h"
#include "tools/picture_tool.h"
#include "tools/placement_arithmetic.h"
#include "tools/zoom_tools.h"

namespace tagwright {
namespace {

// --- the beginning of a gesture -----------------------------------------------------------------

void BeginBox(int shape) {
  RubberBox = kTrue;
  frmMain.shpBox.SetShape(shape);
}

// A line without a pen could not be seen while it is drawn.
void BeginLine() {
  RubberLine = kTrue;
  if (frmMain.cboWeight.ListIndex() == 0) frmMain.cboWeight.SetListIndex(1);
}

// What is drawn begins without an extent.
void ShowAnchor() {
  ShowPlaceInFields(AnchorX, AnchorY);
  ShowExtentInFields(0, 0);
}

void AnchorBox(double X, double Y) {
  AnchorX = SnapX(X);
  AnchorY = SnapY(Y);
  ShowAnchor();
  frmMain.shpBox.Move(AnchorX, AnchorY, 0, 0);
  frmMain.shpBox.SetVisible(true);
  frmMain.shpBox.SetBorderStyle(kDottedBorder);
}

// The line's own y is the pointer's and not the snapped one.
void AnchorLine(double X, double Y) {
  AnchorX = SnapX(X);
  AnchorY = SnapY(Y);
  frmMain.shpLine.SetX1(AnchorX);
  frmMain.shpLine.SetX2(AnchorX);
  frmMain.shpLine.SetY1(Y);
  frmMain.shpLine.SetY2(Y);
  frmMain.shpLine.SetVisible(true);
  ShowAnchor();
}

// --- the end of a gesture -----------------------------------------------------------------------

void UsePanelFont() {
  frmMain.picBoard.Canvas().Font.Name = frmMain.cboFont.Text();
  frmMain.picBoard.Canvas().Font.Size = PanelFontSize();
}

void EndGesture() {
  SetBoardPointer(kDefaultPointer);
  DirtyFlag = kTrue;
  RubberBox = kFalse;
  RubberLine = kFalse;
  frmMain.shpBox.SetBorderStyle(kDottedBorder);
  frmMain.shpLine.SetVisible(false);
}

// --- zooming ------------------------------------------------------------------------------------

bool IsZoomTool() { return CurrentTool == kZoomIn || CurrentTool == kZoomOut; }

struct Selection {
  std::int16_t object, upper;
};

// A zoom has appended a record like any gesture: it goes again, and what was selected before is
// selected still. Left behind the last record, the selection would have the next Delete take that.
void DropNewRecord(const Selection& before) {
  --ObjectUB;
  SelectedObject = before.object;
  SelectedUpper = before.upper;
}

void FitSelectedText() {
  if (!TextIsSelected()) return;
  Traced([] { SelectedHold().SetFontSize(SelectedRecord().FontSize * ZoomFactor); });
}

void Zoom(const Selection& before) {
  DropNewRecord(before);
  FitSelectedText();
  TinyBox ? ZoomAtAnchor() : ZoomToBox();
}

// The commands were enabled for the object that was to come.
void ShowSelectionAfterGesture() {
  if (SelectedUpper > -1) return EnableSelectionCommands(true);
  ForgetCount();
  if (SelectedObject < 0) DisableSelectionCommands();
}

void CompleteGesture() {
  const Selection before{SelectedObject, SelectedUpper};
  if (!Traced(AppendObject)) return;
  if (IsZoomTool()) return Zoom(before);
  if (FillRecord()) ShowNewObject();
}

}  // namespace

void StartTool(double X, double Y) {
  switch (CurrentTool) {
    case kBarcode:
    case kPicture:
    case kRectangle:
    case kZoomIn:
    case kZoomOut:
      return BeginBox(kRectangleOutline);
    case kRoundedRectangle:
      return BeginBox(kRoundedOutline);
    case kEllipse:
      return BeginBox(kOvalOutline);
    case kLine:
      return BeginLine();
    case kText:
      Traced([&] { BeginText(X, Y); });
      return;
    default:
      return;
  }
}

void AnchorRubber(double X, double Y) {
  if (RubberBox) AnchorBox(X, Y);
  if (RubberLine) AnchorLine(X, Y);
}

void BeginTool(double X, double Y) {
  StartTool(X, Y);
  AnchorRubber(X, Y);
}

// A zoom and a refused barcode leave nothing selected, and the size fields still at their box.
void PlaceObject() {
  EnableSelectionCommands(false);
  UsePanelFont();
  EndGesture();
  TinyBox = IsTiny(BoxExtent());
  if (TinyBox && CurrentTool == kBarcode) {
    frmMain.shpBox.SetVisible(false);
  } else {
    Traced(CompleteGesture);
  }
  ShowSelectionAfterGesture();
  ShowSizeFields();
}

void PlaceFieldAt(double X, double Y) {
  AnchorX = SnapX(X);
  AnchorY = SnapY(Y) - PanelTextHeight();
  PlaceObject();
}

void Disarm() {
  CurrentTool = kNoTool;
  SetBoardPointer(kDefaultPointer);
  if (!RubberBox && !RubberLine) return;
  RubberBox = kFalse;
  RubberLine = kFalse;
  frmMain.shpLine.SetVisible(false);
  HideHandles();
  if (SelectedObject > -1) CarryOn([] { ShowHandles(SelectedHold()); });
  CarryOn(ShowGroupBox);
  ShowSizeFields();
}

void ResetPlacement() {
  CentrePicture = false;
  PicturePath.clear();
  TinyBox = false;
}

}  // namespace tagwright
