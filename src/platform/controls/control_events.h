// The events that controls raise.
#pragma once

#include "platform/controls/event.h"

namespace tagwright {

// The events of a control, or of all elements of one control array. Handlers take the element's
// index first or leave it out (see Event). Mouse handlers: button, shift, x, y; x and y in twips
// from the control's present top left corner. A picture box's x and y are in its own scale unit.
struct ControlEvents {
  Event<> Click;
  Event<> DblClick;  // list boxes only: everywhere else a quick second press is a press
  Event<> Change;    // text boxes, scroll bars
  Event<> GotFocus;
  Event<> LostFocus;
  Event<int&> KeyPress;  // code point of the character entered; 0 swallows it
  Event<int, int, double, double> MouseDown;
  Event<int, int, double, double> MouseMove;
  Event<int, int, double, double> MouseUp;
  // Picture boxes only: shift, notches to the left, notches up, x, y. Parts of a notch come too.
  Event<int, double, double, double, double> MouseWheel;
  Event<> Timer;
};

}  // namespace tagwright
