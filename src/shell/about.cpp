#include "shell/about.h"

#include <string>

#include "common/prog_settings.h"
#include "forms/frmAbout.h"
#include "platform/controls/windows.h"

namespace tagwright::about {

void Form_Load() {
  frmAbout.SetCaption("About " + ProductTitle);
  frmAbout.lblTitle.SetCaption(ProductTitle);
  frmAbout.lblVersion.SetCaption("Version " TAGWRIGHT_VERSION);
  frmAbout.lblCopyright.SetCaption("Copyright © 2026 The Tagwright authors");
  frmAbout.lblDisclaimer.SetCaption(
      "Design a label, print a sheet of them. The program comes without warranty: check a printed "
      "sheet before you rely on it.");
}

void cmdOK_Click() { Unload(frmAbout); }

}  // namespace tagwright::about
