#include "editing/object_panels.h"

#include <cmath>
#include <string>

#include "common/public_functions.h"
#include "document/redraw.h"
#include "document/shown_size.h"
#include "editing/panel_stack.h"
#include "editing/selected_object.h"
#include "editing/text_panel.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/outlines.h"
#include "platform/controls/text_controls.h"
#include "platform/faults/fault.h"
#include "platform/painting/picture.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr double kFontLeftOfBarcodes = 8450;  // twips, of a selected one
constexpr Color kWhite = 0xFFFFFF;

int Ticked(Flag flag) { return flag ? 1 : 0; }

double RowNumber(const ComboBox& list, int row) { return ToNumber(list.List(row)); }

// --- fonts ---

// 13.5 shows as "13"; a size between two rows, such as 15, as the next one up. One above all rows
// leaves the box alone.
void ChooseSizeOfBarcode(double size) {
  ComboBox& list = frmMain.cboSize;
  for (int row = 0; row < list.ListCount(); ++row) {
    const double number = RowNumber(list, row);
    if (number == std::trunc(size) || number >= size) return list.SetListIndex(row);
  }
}

// 13.5 shows as "13" here too; without a row of that number the size itself is the box's text.
void ChooseSizeOfText(double size) {
  ComboBox& list = frmMain.cboSize;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (RowNumber(list, row) == std::trunc(size)) return list.SetListIndex(row);
  }
  list.SetText(FormatNumber(size));
}

// --- barcode and picture ---

// The data goes first: a new format would check it against the wrong rules.
void FillBarcodePanel() {
  ShowPanel(frmMain.picBCode);
  frmMain.txtBCodeData.SetText("");
  CarryOn([] { frmMain.cboBCode.SetListIndex(SelectedRecord().Param); });
  frmMain.txtBCodeData.SetText(SelectedRecord().Text.Trimmed());
  frmMain.chkPriCharacter.SetValue(Ticked(SelectedRecord().Bold));
  frmMain.chkChkSum.SetValue(Ticked(SelectedRecord().Italic));
  SelectRow(frmMain.cboFont, SelectedRecord().FontName.Trimmed());
  ChooseSizeOfBarcode(SelectedRecord().FontSize);
  ShowFontBoxes(kFontLeftOfBarcodes, kFontTop);
}

void FillPicturePanel() {
  ShowPanel(frmMain.picPicture);
  const std::string path = PathOf(SelectedRecord());
  frmMain.lblGraphicFName.SetCaption(path);
  CarryOn([&] { ShowPictureSize(path); });
  frmMain.cboFont.SetVisible(false);
}

// --- text ---

void FillTextPanel() {
  ShowPanel(frmMain.picText);
  ShowFontBoxes(kFontLeftOfTexts, kFontTop);
  frmMain.txtTool.SetText(SelectedRecord().Text.Trimmed());
  frmMain.chkBold.SetValue(Ticked(SelectedRecord().Bold));
  frmMain.chkItalic.SetValue(Ticked(SelectedRecord().Italic));
  ChooseSizeOfText(SelectedRecord().FontSize);
  SelectRow(frmMain.cboFont, SelectedRecord().FontName.Trimmed());
  frmMain.lblTextColor.SetBackColor(SelectedRecord().ForeColor);
}

void RedrawWithoutSelected() {
  RedrawSkip = SelectedObject;
  SuspendRedraw = kFalse;
  CarryOn([] { SelectedHold().SetForeColor(SelectedRecord().ForeColor); });
  RedrawBoard();
  RedrawSkip = -1;
}

// What a damaged record holds is refused by the label, and the rest is shown.
void ShowTextByItsHold() {
  const ObjectRecord& record = SelectedRecord();
  Label& hold = SelectedHold();
  hold.SetFontName(record.FontName.Trimmed());
  CarryOn([&] { hold.SetFontSize(record.FontSize * ZoomFactor); });
  CarryOn([&] { hold.SetAlignment(static_cast<TextAlignment>(record.Param)); });
  CarryOn([&] { hold.SetFontBold(record.Bold != kFalse); });
  CarryOn([&] { hold.SetFontItalic(record.Italic != kFalse); });
  CarryOn([&] { hold.SetCaption(record.Text.Trimmed()); });
  CarryOn([&] { hold.SetAutoSize(true); });
  hold.SetBackColor(kWhite);
  hold.SetBackStyle(kTransparentBack);
  hold.SetVisible(true);
}

void KeyboardToText() {
  frmMain.txtTool.SetFocus();
  frmMain.txtTool.SetSelStart(static_cast<int>(Length(frmMain.txtTool.Text())));
}

void OpenText(bool keyboard_to_text) {
  SuspendRedraw = kTrue;
  CarryOn([] { SelectedHold().SetVisible(false); });
  CarryOn(FillTextPanel);
  RedrawWithoutSelected();
  CarryOn(ShowTextByItsHold);
  if (keyboard_to_text) CarryOn(KeyboardToText);
}

// --- shapes ---

// The panel comes forward where it stands.
void FillShapePanel() {
  frmMain.picDrawing.ZOrder();
  frmMain.lblFCol(kCurrentSample).SetBackColor(SelectedRecord().ForeColor);
  const Color fill = SelectedRecord().FillColor;
  frmMain.chkTransparent.SetValue(fill == kNoFill ? 1 : 0);
  if (fill != kNoFill) frmMain.lblBCol(kCurrentSample).SetBackColor(fill);
  CarryOn([] { frmMain.cboWeight.SetListIndex(SelectedRecord().Param); });
  frmMain.cboFont.SetVisible(false);
}

void FillPanelByKind(bool keyboard_to_text) {
  switch (SelectedKind()) {
    case kBarcode:
      return FillBarcodePanel();
    case kPicture:
      return FillPicturePanel();
    case kText:
      return OpenText(keyboard_to_text);
    case kLine:
    case kRectangle:
    case kRoundedRectangle:
    case kEllipse:
      return FillShapePanel();
    default:
      return;
  }
}

}  // namespace

void FillPanelFromObject(bool keyboard_to_text) {
  if (CurrentTool > kNoTool) return;
  const PanelFilling filling;
  CarryOn([&] { FillPanelByKind(keyboard_to_text); });
  SizeBoxFollowsFontBox();
  ShowSizeFields();
}

void ShowTextStyle() {
  if (!TextIsSelected()) return;
  const PanelFilling filling;
  frmMain.cboFont.SetText(SelectedRecord().FontName.Trimmed());
  frmMain.cboSize.SetText(FormatNumber(SelectedRecord().FontSize));
  frmMain.chkBold.SetValue(Ticked(SelectedRecord().Bold));
  frmMain.chkItalic.SetValue(Ticked(SelectedRecord().Italic));
  frmMain.lblTextColor.SetBackColor(SelectedRecord().ForeColor);
}

void ShowPictureSize(const std::string& path) {
  const PicturePtr picture = LoadPicture(path);
  frmMain.lblGraphicX.SetCaption(FormatFixed(picture->Width, 0));
  frmMain.lblGraphicY.SetCaption(FormatFixed(picture->Height, 0));
}

void ResetObjectPanels() { TextEditOpen = kFalse; }

}  // namespace tagwright
