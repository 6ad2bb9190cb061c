#include "tools/context_menus.h"

#include <optional>
#include <string>

#include "common/arithmetic.h"
#include "common/public_functions.h"
#include "document/redraw.h"
#include "document/shown_size.h"
#include "editing/selected_object.h"
#include "forms/frmMain.h"
#include "platform/controls/keys.h"
#include "platform/controls/menu.h"
#include "platform/controls/mouse.h"
#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/services/dialogs.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

std::int16_t KindOfEntry(int index) {
  switch (index) {
    case 0:
      return kEllipse;
    case 1:
      return kRectangle;
    case 2:
      return kRoundedRectangle;
    default:
      RaiseFault(kOutOfBounds);
  }
}

// The selected record, which is being changed. With none selected there is nothing to save either.
ObjectRecord& ChangedRecord() {
  ObjectRecord& record = SelectedRecord();
  DirtyFlag = kTrue;
  return record;
}

void CopyHeightToWidth() {
  ChangedRecord().Width = SelectedRecord().Height;
  SelectedHold().SetWidth(SelectedRecord().Width);
}

void CopyWidthToHeight() {
  ChangedRecord().Height = SelectedRecord().Width;
  SelectedHold().SetHeight(SelectedRecord().Height);
}

double PictureX() { return ToNumber(frmMain.lblGraphicX.Caption()); }
double PictureY() { return ToNumber(frmMain.lblGraphicY.Caption()); }

void AdjustHeight() {
  const double height = Finite(Quotient(SelectedRecord().Width, PictureX()) * PictureY());
  ChangedRecord().Height = height;
}

void AdjustWidth() {
  const double width = Finite(Quotient(SelectedRecord().Height, PictureY()) * PictureX());
  ChangedRecord().Width = width;
}

// A length in millimetres, infinite for one beyond a double; nothing for an answer that is no
// number.
std::optional<double> AskForLength(const std::string& side) {
  const std::string unit = RulerScale == 1.0 ? "mm" : "in";
  const std::string answer =
      InputBox("Please enter the " + side + " (" + unit + ") of the barcode");
  if (!IsNumeric(answer)) return {};
  return ToNumber(answer) * UnitScale;
}

}  // namespace

void TextMenuKeyDown(int& KeyCode, int Shift) {
  const bool asked = KeyCode == kMenuKey || (KeyCode == kF10Key && Shift == kShift);
  if (!asked || !(TextIsSelected() || SelectedUpper > -1)) return;
  KeyCode = 0;
  PopupMenu(frmMain, frmMain.mnuText);
}

void picText_MouseDown(int Button) {
  if (Button == kRightButton) PopupMenu(frmMain, frmMain.mnuText);
}

void mnuDrawChange_Click(int Index) {
  CarryOn([&] { ChangedRecord().ObjType = KindOfEntry(Index); });
  RedrawBoard();
}

void mnuShpAspect_Click(int Index) {
  CarryOn(Index == 0 ? CopyHeightToWidth : CopyWidthToHeight);
  ShowSizeFields();
  RedrawBoard();
}

void mnuGraphicHeight_Click() {
  CarryOn(AdjustHeight);
  RedrawBoard();
}

void mnuGraphicWidth_Click() {
  CarryOn(AdjustWidth);
  RedrawBoard();
}

void mnuBCSetWid_Click() {
  const std::optional<double> width = AskForLength("width");
  if (width) CarryOn([&] { SelectedRecord().Width = Finite(*width); });
  ShowSizeFields();
}

void mnuBCSetHgt_Click() {
  const std::optional<double> height = AskForLength("height");
  if (height) CarryOn([&] { SelectedRecord().Height = Finite(*height); });
  ShowSizeFields();
}

void mnuBCSetChars_Click() {
  Menu& entry = frmMain.mnuBCSetChars;
  entry.SetChecked(!entry.Checked());
  CarryOn([&] { SelectedRecord().Italic = entry.Checked() ? kTrue : kFalse; });
}

}  // namespace tagwright
