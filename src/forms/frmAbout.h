// The window "About".
#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "platform/controls/picture_box.h"

namespace tagwright {

struct FrmAbout : Form {
  FrmAbout();

  PictureBox picIcon{this, "picIcon"};         // the program's icon
  Label lblTitle{this, "lblTitle"};            // the product's name
  Label lblVersion{this, "lblVersion"};        // "Version " and its number
  Label lblCopyright{this, "lblCopyright"};    // whose it is
  Label lblDisclaimer{this, "lblDisclaimer"};  // that there is no warranty
  CommandButton cmdOK{this, "cmdOK"};          // "OK": closes the window
};

extern FrmAbout frmAbout;

}  // namespace tagwright
