#include "tools/barcode_panel.h"

#include <string>

#include "barcode/validation.h"
#include "common/barcode_format.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/pointer.h"
#include "editing/selected_object.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/faults/fault.h"
#include "platform/services/dialogs.h"
#include "platform/text/text.h"
#include "tools/placement_arithmetic.h"

namespace tagwright {
namespace {

constexpr double kSizedRoyalMailHeight = 5;  // millimetres

void Refuse(const std::string& message) {
  MessageBox(message, MessageButtons::kOk, MessageIcon::kNone);
}

void RefuseCharacters(const std::string& characters) {
  Refuse("The following characters " + characters + " are not allowed in the " +
         frmMain.cboBCode.Text() + " barcode format");
}

void RefuseLength(const std::string& text) {
  Refuse("The barcode " + text + " is too long for this format");
}

bool TooLong(const std::string& text) {
  return MaxChars > -1 && Length(text) > static_cast<std::size_t>(MaxChars);
}

// Says what is wrong with the data, and enables cmdBCode if nothing is. `tested` is the part of
// `text` whose characters count; its length counts whole.
bool Accepted(const std::string& tested, const std::string& text) {
  const auto format = static_cast<std::int16_t>(frmMain.cboBCode.ListIndex());
  const std::string refused = ValidateBarcodeData(format, tested);
  if (!refused.empty()) {
    RefuseCharacters(refused);
    return false;
  }
  if (TooLong(text)) {
    RefuseLength(text);
    return false;
  }
  frmMain.cmdBCode.SetEnabled(true);
  return true;
}

// While the panel is being filled from a record there is nothing to take from it.
void TakeFormat() {
  if (PanelLoading) return;
  ObjectAt(SelectedObject).Param = static_cast<std::int16_t>(frmMain.cboBCode.ListIndex());
  RedrawBoard();
}

void TakeSize(double width, double height) {
  ObjectRecord& record = ObjectAt(SelectedObject);
  record.Width = width;
  record.Height = height;
  frmMain.shpBox.SetWidth(width);
  frmMain.shpBox.SetHeight(height);
  ShowSizeFields();
}

void FitPostNet(double length) {
  const Extent symbol = PostNetExtent(length);
  TakeSize(symbol.width, symbol.height);
}

// Larger than a new symbol of that format.
void FitRoyalMail(double length) {
  TakeSize(((length + 1) * 4 + 1.5) * 1.1, kSizedRoyalMailHeight);
}

// The symbol has been redrawn before; that its new outline shows at once is all there is to do.
void FitPostalSize(const std::string& text) {
  const auto length = static_cast<double>(Length(text));
  const int format = frmMain.cboBCode.ListIndex();
  if (format == kFormatPostNet) CarryOn([&] { FitPostNet(length); });
  if (format == kFormatRoyalMail) CarryOn([&] { FitRoyalMail(length); });
}

// The label may have been saved since the keys came.
void TakeData(ObjectRecord& record) {
  const auto before = record.Text;
  record.Text = frmMain.txtBCodeData.Text();
  if (record.Text != before) DirtyFlag = kTrue;
}

}  // namespace

// A format that the panel shows for the next barcode is looked at, and no barcode takes it.
void cboBCode_Click() {
  const std::string text = frmMain.txtBCodeData.Text();
  if (text.empty()) return;
  if (!PanelLoading) DirtyFlag = kTrue;
  frmMain.cmdBCode.SetEnabled(false);
  if (!Accepted(text, text) || PanelLoading || !BarcodeIsSelected()) return;
  TakeFormat();
  FitPostalSize(text);
}

void cboBCode_KeyPress(int& KeyAscii) { KeyAscii = 0; }

// Delete and Cut enter no character, but what they leave is as much an entry as what keys add.
void txtBCodeData_Change() {
  if (frmMain.txtBCodeData.HasFocus() && !PanelLoading) BarcodeEdited = kTrue;
  const std::string text = frmMain.txtBCodeData.Text();
  if (text.empty()) return;
  frmMain.cmdBCode.SetEnabled(false);
  if (frmMain.cboBCode.ListIndex() == -1) return;
  if (Accepted(Trim(text), text) && BarcodeIsSelected()) TakeFormat();
}

void txtBCodeData_GotFocus() {
  BarcodeEdited = kFalse;
  TextEntryActive = true;
}

void txtBCodeData_KeyPress(int& KeyAscii) {
  if (KeyAscii != 0) DirtyFlag = kTrue;
  BarcodeEdited = kTrue;
}

void txtBCodeData_LostFocus() {
  if (!BarcodeEdited || SelectedObject <= -1) return;
  CarryOn([] { TakeData(ObjectAt(SelectedObject)); });
  RedrawBoard();
}

void chkPriCharacter_Click() {
  if (PanelLoading || !BarcodeIsSelected()) return;
  ObjectAt(SelectedObject).Bold = frmMain.chkPriCharacter.Value() ? kTrue : kFalse;
  RedrawBoard();
  DirtyFlag = kTrue;
}

// The object is deselected also where a modifier is held.
void cmdBCode_Click() {
  DeselectObject();
  if (SelectedObject > -1) {
    DropSelection();
    RedrawBoard();
  }
  CurrentTool = kBarcode;
  SetToolPointer(frmMain.Image5);
}

void ResetBarcodePanel() { BarcodeEdited = kFalse; }

}  // namespace tagwright
