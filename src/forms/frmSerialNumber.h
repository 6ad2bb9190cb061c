// The window "Serial Numbers".
#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "platform/controls/text_controls.h"

namespace tagwright {

struct FrmSerialNumber : Form {
  FrmSerialNumber();

  TextBox txtSerPref{this, "txtSerPref"};  // "Prefix": stands before every number
  TextBox txtSerIncr{this, "txtSerIncr"};  // "Incrementing Number": the next one
  ComboBox cboInc{this, "cboInc"};         // "Incrementation"; kept, and numbers rise by one
  CheckBox chkBCode{this, "chkBCode"};     // "Print as Barcode", in place of the text
  ComboBox cboBCode{this, "cboBCode"};     // "Barcode Format"
  ControlArray<Label> lblBCodeWid{this, "lblBCodeWid", 2};  // 0 "Barcode Width", 1 "Barcode Height"
  ControlArray<TextBox> txtBCodeWid{this, "txtBCodeWid", 2};  // 0 width, 1 height
  ControlArray<Label> lblUnit{this, "lblUnit", 2};  // "mm" or "in", behind each of the two
  CheckBox chkTxt{this, "chkTxt"};                  // "Print Serial Number on Barcode"; kept
  CommandButton cmdSave{this, "cmdSave"};           // "Save": takes what stands here
  CommandButton cmdCancel{this, "cmdCancel"};       // "Cancel": closes without it
};

extern FrmSerialNumber frmSerialNumber;

}  // namespace tagwright
