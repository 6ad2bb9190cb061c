// The window "Serial Numbers".
#pragma once

#include "platform/controls/controls.h"

namespace tagwright {

struct FrmSerialNumber : Form {
  FrmSerialNumber();

  TextBox txtSerPref{this, "txtSerPref"};
  TextBox txtSerIncr{this, "txtSerIncr"};  // the next number
  ComboBox cboInc{this, "cboInc"};
  CheckBox chkBCode{this, "chkBCode"};
  ComboBox cboBCode{this, "cboBCode"};
  ControlArray<Label> lblBCodeWid{this, "lblBCodeWid", 2};    // captions of the two boxes
  ControlArray<TextBox> txtBCodeWid{this, "txtBCodeWid", 2};  // 0 width, 1 height
  ControlArray<Label> lblUnit{this, "lblUnit", 2};
  CheckBox chkTxt{this, "chkTxt"};
  CommandButton cmdSave{this, "cmdSave"};
  CommandButton cmdCancel{this, "cmdCancel"};
};

extern FrmSerialNumber frmSerialNumber;

}  // namespace tagwright
