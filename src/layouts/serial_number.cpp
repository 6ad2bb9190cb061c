#include "layouts/serial_number.h"

#include <cstdint>
#include <string>
#include <tuple>

#include "barcode/formats.h"
#include "common/public_functions.h"
#include "forms/frmSerialNumber.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/painting/scale.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

void ShowSerialNumbers() {
  Load(frmSerialNumber);
  ShowModal(frmSerialNumber);
  Unload(frmSerialNumber);
}

}  // namespace

void cmdSerNo_Click() { ShowSerialNumbers(); }
void mnuFileSerial_Click() { ShowSerialNumbers(); }

namespace serial_number {
namespace {

constexpr int kLastIncrementation = 10;

// Millimetres in the user's unit and back.
bool InInches() { return UnitScale != 1; }
double ToUnit(double millimetres) {
  return InInches() ? millimetres / kMillimetresPerInch : millimetres;
}
double FromUnit(double value) { return InInches() ? value * kMillimetresPerInch : value; }

void SetDirty() { DirtyFlag = kTrue; }

// --- showing ------------------------------------------------------------------------------------

void FillLists() {
  for (int n = 1; n <= kLastIncrementation; ++n) frmSerialNumber.cboInc.AddItem(std::to_string(n));
  FillBarcodeFormats(frmSerialNumber.cboBCode);
  frmSerialNumber.cboBCode.SetListIndex(0);
}

void ShowNumber() {
  frmSerialNumber.txtSerIncr.SetText(std::to_string(SerialValue));
  frmSerialNumber.txtSerPref.SetText(SerialPrefix);
  frmSerialNumber.cboInc.SetText(std::to_string(SerialIncrement));
}

// The sizes are bare numbers in either unit.
void ShowNoBarcode() {
  FrmSerialNumber& f = frmSerialNumber;
  f.chkBCode.SetValue(0);
  f.cboBCode.SetListIndex(0);
  f.cboBCode.SetEnabled(false);
  f.txtBCodeWid(0).SetText("25");
  f.txtBCodeWid(1).SetText("10");
  f.txtBCodeWid(0).SetEnabled(false);
  f.txtBCodeWid(1).SetEnabled(false);
}

void ShowBarcode() {
  FrmSerialNumber& f = frmSerialNumber;
  f.chkBCode.SetValue(1);
  CarryOn([&] { f.cboBCode.SetListIndex(SerialBarcodeType); });
  f.txtBCodeWid(0).SetText(FormatFixed(ToUnit(SerialBarcodeWidth), 3));
  f.txtBCodeWid(1).SetText(FormatFixed(ToUnit(SerialBarcodeHeight), 3));
}

void ShowUnits() {
  for (const auto& [index, label] : frmSerialNumber.lblUnit) {
    label->SetCaption(InInches() ? "in" : "mm");
  }
}

// --- taking -------------------------------------------------------------------------------------

// Faults 13 for a text that is no number.
double NumberIn(const std::string& text) {
  const auto number = ParseNumber(text);
  if (!number) RaiseFault(kTypeMismatch);
  return *number;
}

void TakeNumber() {
  const FrmSerialNumber& f = frmSerialNumber;
  CarryOn([&] { SerialValue = ToInt32(NumberIn(f.txtSerIncr.Text())); });
  SerialPrefix = f.txtSerPref.Text();
  CarryOn([&] { SerialIncrement = ToInt16(NumberIn(f.cboInc.Text())); });
  SerialPrintText = f.chkTxt.Value() == 1 ? kTrue : kFalse;
}

void TakeBarcode() {
  const FrmSerialNumber& f = frmSerialNumber;
  SerialBarcodeType = static_cast<std::int16_t>(f.cboBCode.ListIndex());
  SerialBarcodeWidth = FromUnit(ToNumber(f.txtBCodeWid(0).Text()));
  SerialBarcodeHeight = FromUnit(ToNumber(f.txtBCodeWid(1).Text()));
}

// What the project stores of it.
auto SerialState() {
  return std::tuple(SerialPrefix, SerialValue, SerialIncrement, SerialPrintText, SerialBarcodeType,
                    SerialBarcodeWidth, SerialBarcodeHeight);
}

// --- typing -------------------------------------------------------------------------------------

int NumberKey(int key, const TextBox& box) {
  return FilterKey(key, kFalse, kFalse, kFalse, kTrue, kFalse, box);
}

void TypeInCombo(ComboBox& combo, int& key) {
  ComboTyped = kTrue;
  key = CompleteCombo(combo, key);
}

void LeaveCombo(ComboBox& combo) {
  if (ComboTyped) SelectComboText(combo);
}

}  // namespace

void Form_Load() {
  const Flag dirty = DirtyFlag;
  ComboTyped = kFalse;
  FillLists();
  ShowNumber();
  SerialBarcodeType == kNoBarcode ? ShowNoBarcode() : ShowBarcode();
  frmSerialNumber.chkTxt.SetValue(SerialPrintText ? 1 : 0);
  ShowUnits();
  DirtyFlag = dirty;
}

void chkBCode_Click() {
  FrmSerialNumber& f = frmSerialNumber;
  const bool barcode = f.chkBCode.Value() == 1;
  f.cboBCode.SetEnabled(barcode);
  f.chkTxt.SetEnabled(barcode);
  for (int i = 0; i <= 1; ++i) {
    f.lblBCodeWid(i).SetEnabled(barcode);
    f.txtBCodeWid(i).SetEnabled(barcode);
    f.lblUnit(i).SetEnabled(barcode);
  }
  SetDirty();
}

void cboBCode_Click() { SetDirty(); }
void cboInc_Click() { SetDirty(); }
void chkTxt_Click() { SetDirty(); }
void txtBCodeWid_Change() { SetDirty(); }
void txtSerPref_Change() { SetDirty(); }

void txtBCodeWid_KeyPress(int Index, int& KeyAscii) {
  KeyAscii = NumberKey(KeyAscii, frmSerialNumber.txtBCodeWid(Index));
}

void txtSerIncr_KeyPress(int& KeyAscii) {
  KeyAscii = NumberKey(KeyAscii, frmSerialNumber.txtSerIncr);
  SetDirty();
}

void cboBCode_GotFocus() { ComboTyped = kFalse; }
void cboBCode_KeyPress(int& KeyAscii) { TypeInCombo(frmSerialNumber.cboBCode, KeyAscii); }
void cboBCode_LostFocus() { LeaveCombo(frmSerialNumber.cboBCode); }
void cboInc_GotFocus() { ComboTyped = kFalse; }
void cboInc_KeyPress(int& KeyAscii) { TypeInCombo(frmSerialNumber.cboInc, KeyAscii); }
void cboInc_LostFocus() { LeaveCombo(frmSerialNumber.cboInc); }

void cmdSave_Click() {
  const auto before = SerialState();
  TakeNumber();
  if (frmSerialNumber.chkBCode.Value() == 1) {
    TakeBarcode();
  } else {
    SerialBarcodeType = kNoBarcode;
  }
  if (SerialState() != before) SetDirty();
  Unload(frmSerialNumber);
}

void cmdCancel_Click() { Unload(frmSerialNumber); }

}  // namespace serial_number
}  // namespace tagwright
