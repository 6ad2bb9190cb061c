#include "forms/frmSerialNumber.h"

namespace tagwright {

FrmSerialNumber::FrmSerialNumber() : Form("frmSerialNumber") {
  SetCaption("Serial Numbers");
  SetWidth(6300);
  SetHeight(5400);
  cboInc.SetEditable(true);
  cboBCode.SetEditable(true);
}

FrmSerialNumber frmSerialNumber;

}  // namespace tagwright
