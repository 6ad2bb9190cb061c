// The mouse on the board itself, where no object lies under the pointer. X and Y in board units.
#pragma once

namespace tagwright {

// Ends a panel's entry and hides picMag. A left press may grab a magnetic rule, and nothing else
// happens then; otherwise, unless a group is being built, it ends the selection and starts the tool
// that is armed. Any press moves the anchor of a rubber box or line that is under way.
void picBoard_MouseDown(int Button, int Shift, double X, double Y);

// Puts the tool's pointer back unless a custom one (99) is shown. With mnuOptXHair checked the
// cross hairs go through the pointer, five board lengths long, in front and shown, also when
// chkXHair has hidden them. Panel 1 of sB1 shows the place on the label in the user's unit. A
// rubber box or line and magnetic rules that are held follow the pointer.
void picBoard_MouseMove(int Button, int Shift, double X, double Y);

// Puts down the magnetic rules that are held, and completes the gesture of a tool. A data field is
// placed here, where the mouse is released.
void picBoard_MouseUp(int Button, int Shift, double X, double Y);

}  // namespace tagwright
