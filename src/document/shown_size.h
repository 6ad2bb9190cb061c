// Left, top, width and height in txtDSize: those of the selection, and while a box or line is drawn
// or dragged its own. In the user's unit, on two decimals.
#pragma once

#include <array>
#include <string>

#include "document/objects.h"

namespace tagwright {

// Whether one object is selected by itself. A selection may point past the last record, where there
// is nothing to show.
bool OneIsSelected();

// A length as the fields show it.
std::string InUsersUnit(double millimetres);

// What the four fields say of a record.
using ShownSize = std::array<std::string, 4>;
ShownSize ShownSizeOf(const ObjectRecord& record);

// The record of the object that is selected by itself; "0.00" throughout with nothing or a group
// selected. Every redraw of the screen does this; whoever changes the selection or a selected
// record without one calls it. An entry that the user has begun stays in its field until the field
// is left or has something else to say.
void ShowSizeFields();

// While the mouse draws or drags: a corner of the board, and the extent that belongs to it, both in
// board units. The next ShowSizeFields shows the record again.
void ShowPlaceInFields(double left, double top);
void ShowExtentInFields(double width, double height);

// Whether field `index` still says what was shown there last, in the unit of then: nothing has been
// typed.
bool IsAsShown(int index);

// This module's state as at program start.
void ResetShownSize();

}  // namespace tagwright
