// The switchboard: which handler runs for which event.
#pragma once

#include "forms/frmAbout.h"
#include "forms/frmMain.h"
#include "forms/frmSerialNumber.h"

namespace tagwright {

// Binds every event of the main window that the program listens to. Called with the window's values
// fresh, before its Load event.
void WireMainWindow(FrmMain& f);

// Likewise for the window "About".
void WireAboutWindow(FrmAbout& f);

// Likewise for the window "Serial Numbers".
void WireSerialNumberWindow(FrmSerialNumber& f);

}  // namespace tagwright
