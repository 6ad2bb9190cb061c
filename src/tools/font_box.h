// cboFont and cboSize: the font families that they offer, rows chosen by their text, and typing
// completed against the list of fonts.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/objects.h"

namespace tagwright {

class ComboBox;

// The user typed in cboFont since it got the keyboard.
inline Flag FontComboTyped = kFalse;

// Adds one family to `combo`: its face name up to the first zero character. Returns -1, which goes
// on with the enumeration.
int AddFontToCombo(std::string_view face_name, ComboBox& combo);

// Adds every font family to `combo`, as the system delivers them; a sorted combo sorts them. What
// the combo holds already stays.
void FillFontList(ComboBox& combo);

// Chooses the row of cboFont that equals `name` exactly; without one the combo stays as it is. No
// object takes it.
void SelectFontRow(std::string_view name);

// Chooses the row of cboSize that equals `text` exactly; without one the combo's text becomes
// `text`. No object takes it.
void SelectSizeRow(std::string_view text);

void cboFont_GotFocus();               // clears FontComboTyped
void cboFont_KeyPress(int& KeyAscii);  // sets it and completes what is typed
void cboFont_LostFocus();              // selects the row of a typed name, and clears it

}  // namespace tagwright
