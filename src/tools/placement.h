// The gesture with which objects come into being: a tool is armed, a press begins with BeginTool
// and a release is completed by PlaceObject. What the new object gets stands in new_object.h.
#pragma once

#include <cstdint>

#include "document/objects.h"

namespace tagwright {

// The gesture that PlaceObject completes was a click, or a drag too short to be one.
inline bool TinyBox = false;

// A left press at this place (board units) with a tool armed, on the board or over an object: the
// rubber box or line begins at the snapped point, a text is created at once, other tools do nothing
// yet. StartTool is the beginning by tool alone, AnchorRubber puts the anchor of a box or line that
// is under way at the place, which a press with another button or for a group does too.
void BeginTool(double X, double Y);
void StartTool(double X, double Y);
void AnchorRubber(double X, double Y);

// Ends the gesture: appends the object of CurrentTool, fills it from the panels and the rubber box
// or line, selects and shows it, and disarms the tool. A barcode that is not really dragged is not
// made, and its tool stays armed; the zoom tools zoom and stay armed. Faults are traced and passed
// over, but for an unreadable picture: a message, and the object is dropped, so that nothing is
// selected.
void PlaceObject();

// The end of a data field's gesture at this place, board units: it stands above the snapped point.
void PlaceFieldAt(double X, double Y);

// No tool is armed any more: the pointer goes back, and a box or line that is being drawn goes
// without leaving an object.
void Disarm();

// This module's state as at program start.
void ResetPlacement();

}  // namespace tagwright
