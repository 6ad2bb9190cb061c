// The mouse on the board itself, where no object lies under the pointer.
#pragma once

namespace tagwright {

// Puts the tool's pointer back unless a custom one (99) is shown. With mnuOptXHair checked the
// cross hairs go through the pointer, five board lengths long, in front and shown, also when
// chkXHair has hidden them. Panel 1 of sB1 shows the place on the label in the user's unit. X and Y
// in board units.
void picBoard_MouseMove(int Button, int Shift, double X, double Y);

}  // namespace tagwright
