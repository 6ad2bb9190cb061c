// The tool for pictures: which file is to be placed, and how large.
#pragma once

#include <string>

namespace tagwright {

// Full path of the picture chosen by InsertPicture, waiting for its placement.
inline std::string PicturePath;

// PlaceObject puts a picture of its natural size around the box's corner and not below it.
inline bool CentrePicture = false;

// Asks for a picture and shows its name and size on its panel. Without a file there is no tool
// either.
void InsertPicture();

// The new record takes the chosen picture, at its natural size where the gesture was a click. An
// unreadable one is refused with a message: false, and the record is gone.
bool FillPicture();

}  // namespace tagwright
