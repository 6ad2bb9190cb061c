// Opening a project file.
#pragma once

#include <string>

namespace tagwright {

// Replaces the document by the file `Path`: records, serial settings, data source, layout, hit
// areas, selection, caption and recent files; ends in a redraw. The project keeps the name that the
// file has on disk. DirtyFlag is clear at the end, whatever the lists that are filled have said. A
// file of 32,768 bytes or more opens as that many blank records, and one that cannot be read
// likewise. If the user will not go on without the data file the document is empty, and so is the
// board. Never faults.
void LoadProject(const std::string& Path);

}  // namespace tagwright
