// The magnetic rules: one vertical and one horizontal line that objects snap to when they are
// dropped within the zone.
#pragma once

namespace tagwright {

// Where the rules stand, millimetres from the label's top left corner; -1 when removed.
inline double MagRuleX = -1.0;
inline double MagRuleY = -1.0;

// Checks only the chosen entry of mnuMagRule and sets the settings' MagneticZone to
// (Index + 1) / 2 millimetres.
void mnuMagRule_Click(int Index);

// Both rules back to removed.
void ResetMagneticRules();

}  // namespace tagwright
