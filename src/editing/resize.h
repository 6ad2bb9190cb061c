// Resizing an object by its handles.
#pragma once

namespace tagwright {

// Index 0 top left, 1 top right, 2 bottom left, 3 bottom right; X and Y in twips from the handle's
// corner. A group has no handles, and a PostNet barcode keeps its size.
void lblHandle_MouseDown(int Index, int Button, int Shift, double X, double Y);
void lblHandle_MouseMove(int Index, int Button, int Shift, double X, double Y);
void lblHandle_MouseUp(int Index, int Button, int Shift, double X, double Y);

}  // namespace tagwright
