#include "tools/new_object.h"

#include <algorithm>
#include <cmath>

#include "common/arithmetic.h"
#include "common/barcode_format.h"
#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/magnetic_rule.h"
#include "editing/panel_stack.h"
#include "editing/pointer.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/controls/shapes.h"
#include "platform/faults/fault.h"
#include "platform/text/text.h"
#include "tools/picture_tool.h"
#include "tools/placement.h"
#include "tools/placement_arithmetic.h"

namespace tagwright {
namespace {

// Appends a fresh record and selects it alone: a command may have selected a group while the button
// was down. Without room for one more nothing has happened.
void AppendRecord() {
  GrowObjects();
  ClearObject(ObjectUB);
  SelectedObject = ObjectUB;
  SelectedUpper = -1;
}

void SetBoxExtent(const Extent& extent) {
  frmMain.shpBox.SetWidth(extent.width);
  frmMain.shpBox.SetHeight(extent.height);
}

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

}  // namespace

ObjectRecord& NewRecord() { return ObjectAt(ObjectUB); }
Label& NewHold() { return HoldAt(ObjectUB); }

Extent BoxExtent() { return {frmMain.shpBox.Width(), frmMain.shpBox.Height()}; }

void TakeExtent(ObjectRecord& record, const Extent& extent) {
  record.Width = extent.width;
  record.Height = extent.height;
}

// A hit area takes no negative size; a rubber box has none.
void TakeExtent(Label& hold, const Extent& extent) {
  hold.SetWidth(extent.width);
  hold.SetHeight(extent.height);
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

void AppendObject() {
  AppendRecord();
  NewHold().SetCaption("");
  NewHold().SetAutoSize(false);
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

double PanelTextHeight() {
  Surface& board = frmMain.picBoard.Canvas();
  board.Font.Name = frmMain.cboFont.Text();
  board.Font.Size = PanelFontSize() * ZoomFactor;
  return board.TextHeight("Ag");
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

}  // namespace tagwright
