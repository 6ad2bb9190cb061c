// Writing the document to its project file.
#pragma once

#include <string>

#include "document/objects.h"

namespace tagwright {

// Saves the document, an entry under way included, with its trailers to ProjectPath, or to a name
// asked for when that is empty or `ForceDialog` is set: then the caption shows that name, which is
// taken exactly. Deletes an existing file before it writes. Clears DirtyFlag; where the file could
// not be written that stays as it was, and the status bar says why. Updates the recent files in
// either case. The trailers stay in the slots beyond ObjectUB. A cancelled dialog changes nothing.
// Never faults.
void SaveProject(const Flag& ForceDialog);

// What the status bar says of the last save: nothing where it went well.
void ShowSaveNote(const std::string& note);

}  // namespace tagwright
