// What follows the pointer while it is over an object: cross hairs, status bar, position fields.
#pragma once

namespace tagwright {

class Control;

// Follows the pointer over `control`, a hit area or handle of the board; X and Y are twips from the
// control's corner. With mnuOptXHair checked HairX and HairY go through the pointer; panel 1 of sB1
// shows its place on the label in the user's unit, rounded to a tenth of a board unit before it is
// converted; with an object selected txtDSize 0 and 1 show where its hit area stands.
void TrackStatus(const Control& control, double X, double Y);

// Puts HairX through the board position x from the top down to `height`, HairY through y from the
// left to `width`, all in board units, and remembers the place on the label in HairPositionX and
// HairPositionY. Whether they show stays as it is.
void MoveCrossHairs(double x, double y, double width, double height);

// "mm" or "in", as lengths are shown.
const char* UnitName();

}  // namespace tagwright
