// Moving objects with the mouse: the steps of a drag over a hit area.
#pragma once

namespace tagwright {

// X and Y in twips from the hit area's corner.
void BeginObjectDrag(int Index, double X, double Y);  // marks the object too
void BeginGroupDrag(int Index, double X, double Y);
void DragHold(int Index, double X, double Y);  // one move of the pointer
// The release: writes the records and redraws. A drag kills the pending undo, a plain click too.
void EndDrag(int Index);

}  // namespace tagwright
