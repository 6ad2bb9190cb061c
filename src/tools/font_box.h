// Typing in cboFont: completed against the list of fonts.
#pragma once

#include <cstdint>

#include "document/objects.h"

namespace tagwright {

// The user typed in cboFont since it got the keyboard.
inline Flag FontComboTyped = kFalse;

void cboFont_GotFocus();               // clears FontComboTyped
void cboFont_KeyPress(int& KeyAscii);  // sets it and completes what is typed
void cboFont_LostFocus();              // selects the row of a typed name

}  // namespace tagwright
