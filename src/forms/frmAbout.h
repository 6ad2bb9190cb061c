// The window "About".
#pragma once

#include "platform/controls/controls.h"

namespace tagwright {

struct FrmAbout : Form {
  FrmAbout();

  PictureBox picIcon{this, "picIcon"};
  Label lblTitle{this, "lblTitle"};
  Label lblVersion{this, "lblVersion"};
  Label lblCopyright{this, "lblCopyright"};
  Label lblDisclaimer{this, "lblDisclaimer"};
  CommandButton cmdOK{this, "cmdOK"};
};

extern FrmAbout frmAbout;

}  // namespace tagwright
