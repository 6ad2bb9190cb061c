// How objects come into being: a tool is armed, a gesture on the board begins with BeginTool and is
// completed by PlaceObject. What the panels show is what the new object gets.
#pragma once

#include <cstdint>
#include <string>

#include "document/objects.h"

namespace tagwright {

// What CurrentTool holds beside the kinds of objects.
enum Tool : std::int16_t { kNoTool = 0, kZoomIn = 30, kZoomOut = 31 };

// Full path of the picture chosen by InsertPicture, waiting for its placement.
inline std::string PicturePath;

// A left press at this place (board units) with a tool armed, on the board or over an object: the
// rubber box or line begins at the snapped point, a text is created at once, other tools do nothing
// yet.
void BeginTool(double X, double Y);

// The anchor of a rubber box or line that is under way, at this place. A press with another button
// or for a group moves it, too.
void AnchorRubber(double X, double Y);

// Ends the gesture: appends the object of CurrentTool, fills it from the panels and the rubber box
// or line, selects and shows it, and disarms the tool; the zoom tools zoom and stay armed. Traces
// and passes over faults, but for an unreadable picture: a message, and the object is dropped.
void PlaceObject();

// Makes record ObjectUB, whose hit area stands where the text begins, an empty text that is open
// for typing.
void CreateTextObject();

// Asks for a picture and shows its name and size on its panel. Cancelled, the tool stays armed with
// the former PicturePath.
void InsertPicture();

// This module's state as at program start.
void ResetPlacement();

}  // namespace tagwright
