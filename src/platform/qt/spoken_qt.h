// What assistive tools meet where the toolkit's own answer is not enough.
#pragma once

namespace tagwright {

// From now on a tool button that an assistive tool presses acts after the tool has its answer, as
// other buttons do, and takes the keyboard when it asks. Pressed at once, one that opens a dialog
// keeps the tool waiting until that is closed.
void InstallSpokenButtons();

}  // namespace tagwright
