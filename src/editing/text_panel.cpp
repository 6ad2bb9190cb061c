#include "editing/text_panel.h"

#include <string>

#include "common/arithmetic.h"
#include "common/public_functions.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/shown_size.h"
#include "editing/panel_stack.h"
#include "editing/selected_object.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

Flag AsFlag(bool value) { return value ? kTrue : kFalse; }

void MeasureText(const ObjectRecord& record, Label& hold) {
  hold.SetAutoSize(true);
  hold.SetCaption(record.Text.Trimmed());
}

void TakeStyle(ObjectRecord& record, Label& hold) {
  hold.SetFontBold(frmMain.chkBold.Value() != 0);
  hold.SetFontItalic(frmMain.chkItalic.Value() != 0);
  record.Bold = AsFlag(hold.Font().Bold);
  record.Italic = AsFlag(hold.Font().Italic);
}

void TakeFontName(ObjectRecord& record) { record.FontName = frmMain.cboFont.Text(); }

// The hit area is at screen size, the record at label size; both grow by the same measure.
void TakeFont(ObjectRecord& record, Label& hold) {
  hold.SetFontName(frmMain.cboFont.Text());
  hold.SetFontSize(PanelFontSize() * ZoomFactor);
  TakeFontName(record);
  record.FontSize = PanelFontSize();
  record.Width = hold.Width();
  record.Height = hold.Height();
}

// --- one object ---

void GiveSelectedTheFont() {
  ObjectRecord& record = SelectedRecord();
  Label& hold = SelectedHold();
  TakeFontName(record);
  if (IsMeasured(record.ObjType)) MeasureText(record, hold);
  if (record.ObjType != kBarcode) TakeStyle(record, hold);
  TakeFont(record, hold);
  if (record.ObjType == kText) hold.SetAutoSize(false);
  if (record.ObjType == kDataField) hold.SetCaption("");
}

// A text stays with its hit area, which shows it; anything else is painted again.
void ApplyToSelected() {
  DirtyFlag = kTrue;
  CarryOn(GiveSelectedTheFont);
  if (TextIsSelected()) RedrawSkip = SelectedObject;
  RedrawBoard();
  RedrawSkip = -1;
  CarryOn([] { SelectedHold().SetAutoSize(false); });
}

// --- a group ---

void GiveMemberTheFont(int index) {
  ObjectRecord& record = ObjectAt(index);
  if (record.ObjType == kBarcode) {
    TakeFontName(record);
    record.FontSize = PanelFontSize();
  }
  if (!IsMeasured(record.ObjType)) return;
  Label& hold = HoldAt(index);
  MeasureText(record, hold);
  TakeStyle(record, hold);
  TakeFont(record, hold);
  hold.SetAutoSize(false);
  hold.SetCaption("");
}

void ApplyToGroup() {
  DirtyFlag = kTrue;
  for (int place = 0; place <= SelectedUpper; ++place) {
    CarryOn([&] { GiveMemberTheFont(SelectedMember(place)); });
  }
  RedrawBoard();
  CarryOn(ShowGroupBox);
}

// --- typing ---

void TakeGeometryOfHold() {
  ObjectRecord& record = SelectedRecord();
  const Label& hold = SelectedHold();
  CarryOn([&] { record.Left = ToSingle(hold.Left() - BoardOriginX); });
  CarryOn([&] { record.Top = ToSingle(hold.Top() - BoardOriginY); });
  record.Width = hold.Width();
  record.Height = hold.Height();
}

void TakeTypedText() {
  const std::string& text = frmMain.txtTool.Text();
  CarryOn([&] { SelectedHold().SetCaption(text); });
  const auto before = SelectedRecord().Text;
  SelectedRecord().Text = text;
  // Keys that are no characters delete, too.
  if (SelectedRecord().Text != before) DirtyFlag = kTrue;
  CarryOn([] { SelectedHold().SetAutoSize(true); });
  TakeGeometryOfHold();
  ShowHandles(SelectedHold());
}

void StoreTypedText() {
  TextEditOpen = kFalse;
  Label& hold = SelectedHold();
  ShowHandles(hold);
  ObjectRecord& record = SelectedRecord();
  record.Text = frmMain.txtTool.Text();
  record.FontName = hold.Font().Name;
  record.FontSize = PanelFontSize();
  record.Bold = AsFlag(hold.Font().Bold);
  record.Italic = AsFlag(hold.Font().Italic);
  TakeGeometryOfHold();
  record.ObjType = kText;
  hold.SetAutoSize(false);
  TextEntryActive = false;
  CurrentTool = kNoTool;
}

}  // namespace

void ApplyFontProperties() {
  if (PanelLoading) return;
  if (SelectedUpper > -1) {
    ApplyToGroup();
  } else if (SelectedObject > -1) {
    ApplyToSelected();
  }
}

void cmdAlign_Click(int Index) {
  if (!TextIsSelected()) return;
  CarryOn([&] { SelectedHold().SetAlignment(static_cast<TextAlignment>(Index)); });
  CarryOn([&] { SelectedRecord().Param = ToInt16(Index); });
  DirtyFlag = kTrue;
}

void CommitTextEdit() {
  if (!TextIsSelected()) return;
  CarryOn(StoreTypedText);
  ShowSizeFields();
}

void txtTool_GotFocus() {
  TextEditOpen = kTrue;
  TextEntryActive = true;
  if (SelectedObject > ObjectUB) return;
  CarryOn([] { SelectedHold().SetAutoSize(true); });
}

void txtTool_LostFocus() {
  CommitTextEdit();
  TextEditOpen = kFalse;
}

void txtTool_KeyPress(int& /*KeyAscii*/) {
  DirtyFlag = kTrue;
  TextEntryActive = true;
}

void txtTool_Change() {
  if (PanelLoading || SelectedObject < 0) return;
  CarryOn(TakeTypedText);
  ShowSizeFields();
}

}  // namespace tagwright
