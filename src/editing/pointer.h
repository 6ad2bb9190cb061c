// The pointer over the board. `CursorShape` is what the board and its hit areas keep restoring,
// the window's MousePointer what shows: off the board an arrow, whatever is armed.
#pragma once

#include "platform/controls/pointers.h"

namespace tagwright {

class Image;

// Both become `shape`.
void SetBoardPointer(PointerCode shape);

// Both become the custom pointer, with the picture that `picture` holds.
void SetToolPointer(const Image& picture);

// Gives the window the pointer of CursorShape, unless it shows a custom one.
void RestorePointer();

}  // namespace tagwright
