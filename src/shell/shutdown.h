// From the wish to leave to the end of the process.
#pragma once

namespace tagwright {

// Asks the main window to unload, the same path as closing it.
void mnuFileExit_Click();

// Offers to save a changed label, unloads the other windows, keeps the window's place and rewrites
// the settings file. `Cancel` is set when the user backs out, of the question or of the save; the
// other windows are gone and the settings are written all the same. Faults are passed over.
void Form_Unload(bool& Cancel);

}  // namespace tagwright
