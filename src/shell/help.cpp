#include "shell/help.h"

#include "common/public_functions.h"
#include "forms/frmAbout.h"
#include "platform/controls/windows.h"
#include "platform/services/desktop.h"

namespace tagwright {
namespace {

const char kWebsite[] = "https://www.tagwright.example/";
constexpr int kShowNormal = 1;

}  // namespace

void mnuHelpHelp_Click() {
  if (DesktopShowHelp()) DesktopShowHelp()(HelpFile);
}

void mnuHelpWebsite_Click() { ShellOpen(kWebsite, kShowNormal); }

void mnuHelpAbout_Click() {
  Load(frmAbout);
  ShowModal(frmAbout);
}

}  // namespace tagwright
