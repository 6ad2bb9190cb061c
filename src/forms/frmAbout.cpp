#include "forms/frmAbout.h"

namespace tagwright {

FrmAbout::FrmAbout() : Form("frmAbout") {
  SetWidth(6600);
  SetHeight(4200);
}

FrmAbout frmAbout;

}  // namespace tagwright
