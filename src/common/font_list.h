// Lists of the system's font families.
#pragma once

#include <string_view>

#include "platform/controls/controls.h"

namespace tagwright {

// Adds one family to `combo`: its face name up to the first zero character. Returns -1, which goes
// on with the enumeration.
int AddFontToCombo(std::string_view face_name, ComboBox& combo);

// Adds every font family to `combo`, as the system delivers them; a sorted combo sorts them. What
// the combo holds already stays.
void FillFontList(ComboBox& combo);

}  // namespace tagwright
