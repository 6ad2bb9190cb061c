// The mouse over an object, that is over its hit area: a press selects, edits the group, picks
// properties or begins a tool; then the object or the group is dragged.
#pragma once

namespace tagwright {

// X and Y in twips from the hit area's corner, Index its object.

// A pending property pick takes the properties of a text. Otherwise: with a modifier held the
// object joins or leaves the group; on a member of the group the left button drags the group; any
// other press selects the object alone, with the right button its menu opens, and the left one
// begins the armed tool or, without one, a drag. The object's panel is filled.
void lblHold_MouseDown(int Index, int Button, int Shift, double X, double Y);

// Selects the object alone, as a press that drags nothing. A text is opened, but the keyboard stays
// where it is.
void SelectWithoutMouse(int index);

// Puts the pointer back and follows it with what is dragged or drawn up.
void lblHold_MouseMove(int Index, int Button, int Shift, double X, double Y);

// Ends the drag, or the tool's gesture.
void lblHold_MouseUp(int Index, int Button, int Shift, double X, double Y);

}  // namespace tagwright
