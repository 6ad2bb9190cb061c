// The pointer over the board. `CursorShape` is what the board and its hit areas keep restoring,
// the window's MousePointer what shows: off the board an arrow, whatever is armed.
#pragma once

#include <cstdint>

#include "platform/controls/controls.h"

namespace tagwright {

// Both become `shape`, a code of Control::MousePointer.
void SetBoardPointer(std::int16_t shape);

// Both become the custom pointer, with the picture that `picture` holds.
void SetToolPointer(const Image& picture);

// Gives the window the pointer of CursorShape, unless it shows a custom one (99).
void RestorePointer();

}  // namespace tagwright
