#include "tools/placement.h"

#include <algorithm>
#include <cmath>

#include "common/arithmetic.h"
#include "common/barcode_format.h"
#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/object_panels.h"
#include "editing/panel_stack.h"
#include "editing/pointer.h"
#include "editing/selected_object.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "platform/painting/picture.h"
#include "platform/services/dialogs.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"
#include "tools/placement_arithmetic.h"
#include "tools/zoom_tools.h"

namespace tagwright {
namespace {

const char kPictureFilter[] = "All Picture Formats |*.jpg;*.jpeg;*.wmf;*.gif";

ObjectRecord& NewRecord() { return ObjectAt(ObjectUB); }
Label& NewHold() { return HoldAt(ObjectUB); }

// Appends a fresh record and selects it alone: a command may have selected a group while the button
// was down. Without room for one more nothing has happened.
void AppendRecord() {
  GrowObjects();
  ClearObject(ObjectUB);
  SelectedObject = ObjectUB;
  SelectedUpper = -1;
}

Extent BoxExtent() { return {frmMain.shpBox.Width(), frmMain.shpBox.Height()}; }

void SetBoxExtent(const Extent& extent) {
  frmMain.shpBox.SetWidth(extent.width);
  frmMain.shpBox.SetHeight(extent.height);
}

void TakeExtent(ObjectRecord& record, const Extent& extent) {
  record.Width = extent.width;
  record.Height = extent.height;
}

// A hit area takes no negative size; a rubber box has none.
void TakeExtent(Label& hold, const Extent& extent) {
  hold.SetWidth(extent.width);
  hold.SetHeight(extent.height);
}

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

// The text stands above the point, as on a line of writing.
void BeginText(double X, double Y) {
  const double height = PanelTextHeight();
  AppendRecord();
  Label& hold = NewHold();
  hold.SetVisible(true);
  hold.Move(SnapX(X), SnapY(Y) - height);
  NewRecord().Left = ToSingle(hold.Left() - BoardOriginX);
  NewRecord().Top = ToSingle(hold.Top() - BoardOriginY);
  CreateTextObject();
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

// --- a text -------------------------------------------------------------------------------------

// A hit area that another object has left behind may be aligned by that one's rules.
void PrepareTextHold(Label& hold) {
  hold.SetVisible(true);
  hold.SetAlignment(TextAlignment::kLeft);
  hold.SetAutoSize(true);
  hold.SetFontName(frmMain.cboFont.Text());
  hold.SetForeColor(frmMain.lblTextColor.BackColor());
  hold.SetFontBold(frmMain.chkBold.Value() != 0);
  hold.SetFontItalic(frmMain.chkItalic.Value() != 0);
  hold.SetFontSize(PanelFontSize() * ZoomFactor);
}

void FillEmptyText(ObjectRecord& record) {
  record.FontName = frmMain.cboFont.Text();
  record.FontSize = PanelFontSize();
  record.Bold = frmMain.chkBold.Value() != 0 ? kTrue : kFalse;
  record.Italic = frmMain.chkItalic.Value() != 0 ? kTrue : kFalse;
  record.ForeColor = frmMain.lblTextColor.BackColor();
  record.ObjType = kText;
  record.Text = "";
}

// What the box still holds of another text, left blank or with its label, must not reach this one
// and take its caret away.
void EmptyTextBox() {
  const PanelFilling filling;
  frmMain.txtTool.SetText("");
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

void AppendObject() {
  AppendRecord();
  NewHold().SetCaption("");
  NewHold().SetAutoSize(false);
}

// --- filling the record; false ends the placement there -----------------------------------------

void TakePostalSize(ObjectRecord& record, const Extent& size) {
  TakeExtent(record, size);
  SetBoxExtent(size);
}

// Without a format the record stays blank, and the tool armed.
bool FillBarcode() {
  const int format = frmMain.cboBCode.ListIndex();
  if (format < 0) return false;
  const std::string& data = frmMain.txtBCodeData.Text();
  const auto length = static_cast<double>(Length(data));
  ObjectRecord& record = NewRecord();
  record.Text = data;
  record.Param = ToInt16(format);
  record.FontSize = PanelFontSize();
  record.FontName = frmMain.cboFont.Text();
  record.Bold = frmMain.chkPriCharacter.Value() != 0 ? kTrue : kFalse;
  if (format == kFormatPostNet) TakePostalSize(record, PostNetExtent(length));
  if (format == kFormatRoyalMail) TakePostalSize(record, RoyalMailExtent(length));
  return true;
}

// The natural size counts as twips, whatever unit the picture carries.
Extent NaturalExtent(const Picture& picture) {
  return {frmMain.picBoard.ScaleX(picture.Width, kTwips, kMillimetres),
          frmMain.picBoard.ScaleY(picture.Height, kTwips, kMillimetres)};
}

void TakeNaturalSize(const Picture& picture) {
  const Extent extent = PictureExtent(NaturalExtent(picture), {LabelWidth, LabelHeight});
  TakeExtent(NewHold(), extent);
  TakeExtent(NewRecord(), extent);
  const Shape& box = frmMain.shpBox;
  if (CentrePicture) {
    frmMain.shpBox.Move(box.Left() - extent.width / 2, box.Top() - extent.height / 2);
  }
}

void RefusePicture() {
  MessageBox("This picture type is not supported");
  --ObjectUB;
  DropSelection();
  CurrentTool = kNoTool;
}

// Null for a picture that cannot be had for another reason than its format, which is traced.
// Returns false for an unreadable one.
bool LoadChosenPicture(PicturePtr& picture) {
  try {
    picture = LoadPicture(PicturePath);
  } catch (const Fault& fault) {
    if (fault.number == kBadPicture) return false;
    MarkerTail(fault);
  }
  return true;
}

bool FillPicture() {
  PicturePtr picture;
  if (!LoadChosenPicture(picture)) {
    RefusePicture();
    return false;
  }
  if (TinyBox && picture) Traced([&] { TakeNaturalSize(*picture); });
  NewRecord().Text = PicturePath;
  return true;
}

bool FillText() {
  NewRecord().ObjType = kText;
  NewHold().SetFontName(frmMain.cboFont.Text());
  NewHold().SetFontSize(PanelFontSize());
  frmMain.txtTool.SetText("");
  SetBoardPointer(kDefaultPointer);
  return true;
}

void PutBoxAroundLine() {
  const LineControl& line = frmMain.shpLine;
  frmMain.shpBox.Move(std::min(line.X1(), line.X2()), std::min(line.Y1(), line.Y2()));
  SetBoxExtent(LineExtent({std::abs(line.X2() - line.X1()), std::abs(line.Y2() - line.Y1())}));
}

bool FillLine() {
  PutBoxAroundLine();
  NewRecord().ForeColor = frmMain.lblFCol(kCurrentSample).BackColor();
  NewRecord().Param = ToInt16(frmMain.cboWeight.ListIndex());
  return true;
}

bool FillShape() {
  ObjectRecord& record = NewRecord();
  record.ForeColor = frmMain.lblFCol(kCurrentSample).BackColor();
  record.FillColor = frmMain.lblBCol(kCurrentSample).BackColor();
  if (frmMain.chkTransparent.Value() != 0) record.FillColor = kNoFill;
  record.Param = ToInt16(frmMain.cboWeight.ListIndex());
  return true;
}

// --- a data field -------------------------------------------------------------------------------

void FillField(ObjectRecord& record) {
  record.Left = ToSingle(AnchorX - BoardOriginX);
  record.Top = ToSingle(AnchorY - BoardOriginY);
  record.Text = frmMain.lstFields.Text();
  record.Param = ToInt16(frmMain.lstFields.ListIndex());
  record.FontName = frmMain.cboFont.Text();
  record.FontSize = PanelFontSize();
}

// Its extent is that of the column's name in its font.
void MeasureField(ObjectRecord& record, Label& hold) {
  hold.SetVisible(true);
  hold.SetAutoSize(true);
  hold.SetFontName(frmMain.cboFont.Text());
  hold.SetFontSize(record.FontSize * ZoomFactor);
  hold.ZOrder();
  hold.Move(AnchorX, AnchorY);
  hold.SetCaption(record.Text.Trimmed());
  TakeExtent(record, {hold.Width(), hold.Height()});
  hold.SetAutoSize(false);
  hold.SetCaption("");
}

// One column after the other is placed, so a new field shows no handles.
bool PlaceField() {
  Traced([] { FillField(NewRecord()); });
  Traced([] { MeasureField(NewRecord(), NewHold()); });
  NewRecord().ObjType = kDataField;
  RedrawBoard();
  HideHandles();
  CurrentTool = kNoTool;
  frmMain.SetMousePointer(kDefaultPointer);
  return false;
}

bool FillRecord() {
  switch (CurrentTool) {
    case kBarcode:
      return FillBarcode();
    case kPicture:
      return FillPicture();
    case kText:
      return FillText();
    case kLine:
      return FillLine();
    case kRectangle:
    case kRoundedRectangle:
    case kEllipse:
      return FillShape();
    case kDataField:
      return PlaceField();
    default:
      return true;
  }
}

// --- showing it ---------------------------------------------------------------------------------

void TakePlaceOfBox() {
  NewHold().SetVisible(true);
  NewHold().Move(frmMain.shpBox.Left(), frmMain.shpBox.Top());
  NewRecord().Left = ToSingle(frmMain.shpBox.Left() - BoardOriginX);
  NewRecord().Top = ToSingle(frmMain.shpBox.Top() - BoardOriginY);
}

// A PostNet symbol keeps the size worked out for it, and its hit area the one that it had.
bool HasItsSize() {
  if (CurrentTool == kPicture) return TinyBox;
  return CurrentTool == kBarcode && NewRecord().Param == kFormatPostNet;
}

void TakeSizeOfBox() {
  TakeExtent(NewHold(), BoxExtent());
  TakeExtent(NewRecord(), BoxExtent());
}

void ShowNewObject() {
  Traced(TakePlaceOfBox);
  if (!HasItsSize()) Traced(TakeSizeOfBox);
  NewRecord().ObjType = CurrentTool;
  frmMain.shpBox.SetShape(FrameShapeOf(CurrentTool));
  ShowHandles(NewHold());
  SelectedObject = ObjectUB;
  CurrentTool = kNoTool;
  RedrawBoard();
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

double PanelTextHeight() {
  Surface& board = frmMain.picBoard.Canvas();
  board.Font.Name = frmMain.cboFont.Text();
  board.Font.Size = PanelFontSize() * ZoomFactor;
  return board.TextHeight("Ag");
}

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

void CreateTextObject() {
  PrepareTextHold(NewHold());
  FillEmptyText(NewRecord());
  EnableSelectionCommands(false);
  NewHold().SetCaption("|");
  SetBoxExtent({NewRecord().Width, NewRecord().Height});
  EmptyTextBox();
  frmMain.shpBox.SetShape(kRectangleOutline);
  ShowHandles(NewHold());
  CarryOn([] { frmMain.txtTool.SetFocus(); });
  CurrentTool = kNoTool;
  CursorShape = kDefaultPointer;
  ShowSizeFields();
}

void InsertPicture() {
  ShowPanel(frmMain.picPicture);
  HideFontBoxes();
  CommonDialog& dialog = frmMain.cd1;
  dialog.FileName.clear();
  dialog.Filter = kPictureFilter;
  dialog.CancelError = true;
  if (!CarryOn([&] { dialog.ShowOpen(); }) || dialog.FileName.empty()) return Disarm();
  PicturePath = dialog.FileName;
  frmMain.lblGraphicFName.SetCaption(PicturePath);
  CarryOn([] { ShowPictureSize(PicturePath); });
  CursorShape = kCrossPointer;
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
