// How objects come into being: a tool is armed, a press begins with BeginTool and a release is
// completed by PlaceObject. What the panels show is what the new object gets.
#pragma once

#include <cstdint>
#include <string>

#include "document/objects.h"

namespace tagwright {

// Full path of the picture chosen by InsertPicture, waiting for its placement.
inline std::string PicturePath;

// The gesture that PlaceObject completes was a click, or a drag too short to be one.
inline bool TinyBox = false;

// A left press at this place (board units) with a tool armed, on the board or over an object: the
// rubber box or line begins at the snapped point, a text is created at once, other tools do nothing
// yet. StartTool is the beginning by tool alone, AnchorRubber puts the anchor of a box or line that
// is under way at the place, which a press with another button or for a group does too.
void BeginTool(double X, double Y);
void StartTool(double X, double Y);
void AnchorRubber(double X, double Y);

// Height of a line in the panels' font at the present zoom, board units. Sets picBoard's font.
double PanelTextHeight();

// Ends the gesture: appends the object of CurrentTool, fills it from the panels and the rubber box
// or line, selects and shows it, and disarms the tool. A barcode that is not really dragged is not
// made, and its tool stays armed; the zoom tools zoom and stay armed. Faults are traced and passed
// over, but for an unreadable picture: a message, and the object is dropped, so that nothing is
// selected.
void PlaceObject();

// The end of a data field's gesture at this place, board units: it stands above the snapped point.
void PlaceFieldAt(double X, double Y);

// Makes record ObjectUB, whose hit area stands where the text begins, an empty text that is open
// for typing: it shows "|" until then.
void CreateTextObject();

// Asks for a picture and shows its name and size on its panel. Without a file there is no tool
// either.
void InsertPicture();

// No tool is armed any more: the pointer goes back, and a box or line that is being drawn goes
// without leaving an object.
void Disarm();

// PlaceObject puts a picture of its natural size around the box's corner and not below it.
inline bool CentrePicture = false;

// This module's state as at program start.
void ResetPlacement();

}  // namespace tagwright
