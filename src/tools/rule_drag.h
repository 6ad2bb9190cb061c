// The magnetic rules under the mouse: pulled out of the ruler strips, moved, and pushed back.
#pragma once

namespace tagwright {

// Whether a left press at this place (board units) grabs a rule: one from the strip along the left
// or the top edge, in the corner both, or with no tool armed one that stands within half a unit.
// Panel 3 of sB1 shows the zone then.
bool GrabRules(double X, double Y);

// The rules held go through the pointer, across the whole board, in front and shown.
void DragRules(double X, double Y);

// The rules held stay where they are, or are removed when they come back to their strip.
void ReleaseRules(double X, double Y);

// No rule is held.
void ResetRuleDrag();

}  // namespace tagwright
