// The magnetic rules: one vertical and one horizontal line that objects snap to when they are
// dropped within the zone.
#pragma once

#include "document/redraw.h"

namespace tagwright {

// Checks only the chosen entry of mnuMagRule and sets the settings' MagneticZone to
// (Index + 1) / 2 millimetres.
void mnuMagRule_Click(int Index);

// Both rules back to removed.
void ResetMagneticRules();

}  // namespace tagwright
