// What assistive tools meet where the toolkit's own answer is not enough.
#pragma once

#include <QString>

#include "platform/painting/surface.h"

class QAbstractButton;

namespace tagwright {

// From now on a tool button that an assistive tool presses acts after the tool has its answer, as
// other buttons do, and takes the keyboard when it asks. Pressed at once, one that opens a dialog
// keeps the tool waiting until that is closed.
//
// A tool button that stays pressed is told as pressed. Lists, those that unfold as well, and their
// rows are told as showing only while they are seen.
void InstallSpokenControls();

// Tells assistive tools that the button stays pressed now, or no longer.
void SpeakPressed(QAbstractButton& button);

// A colour for who does not see it: "Black", "White", "Grey, 75 per cent light", or "Red 200,
// green 30, blue 20".
QString ColorInWords(Color color);

}  // namespace tagwright
