// Moving and resizing with the mouse. While the mouse moves only controls follow it; records are
// written once, at the release, after snapping to the magnetic rules. Nothing is clamped: objects
// may be dragged off the label. Lengths are board units unless it says otherwise.
#pragma once

#include <cstdint>

namespace tagwright {

inline bool Dragging = false;   // from a press on a hit area or handle to its release
inline bool DragMoved = false;  // worked out at the release of a hit area
inline double AnchorX = 0;  // hit area: the pointer in it; handle, rubber: the corner that stays
inline double AnchorY = 0;
inline double AnchorRight = 0;  // of shpBox at the press of a handle
inline double AnchorBottom = 0;
inline double HoldStartLeft = 0;  // of the hit area at the press
inline double HoldStartTop = 0;
inline double BoxStartLeft = 0;  // of shpBox at the press, when a group is dragged
inline double BoxStartTop = 0;
inline double HandleDownX = 0;  // the pointer in the handle at the press
inline double HandleDownY = 0;
inline std::int32_t StartWidth = 0;  // of the hit area at the press of a handle, whole units
inline double StartHeight = 0;       // kept, and used by nothing
inline bool SnapHit = false;         // SnapX or SnapY has snapped

inline std::int16_t RubberBox = 0;   // -1 while shpBox is drawn up for a new object or a zoom
inline std::int16_t RubberLine = 0;  // -1 while shpLine is drawn for a new line

// Whether the mouse draws or drags just now: until the release txtDSize shows what it does.
bool GestureUnderWay();

// The coordinate, or that of the vertical (horizontal) magnetic rule when that is in force and
// near. Sets SnapHit when it snaps and leaves it alone otherwise.
double SnapX(double x);
double SnapY(double y);

// shpBox between the point and the anchor corner: 0 AnchorX, AnchorY; 1 AnchorRight, AnchorBottom;
// 2 AnchorX, AnchorBottom; 3 AnchorRight, AnchorY. The box of a selected line that is resized stays
// half a millimetre thin on screen. txtDSize shows the box, panel 2 of sB1 its size, in the user's
// unit.
void TrackRubberBox(double x, double y, int corner);

// Ends shpLine level with or straight above or below AnchorX, AnchorY, whichever is nearer to the
// point; level where both are as near. txtDSize shows what it spans.
void TrackRubberLine(double x, double y);

// What shpBox looks like around an object of this kind: 0 rectangle, 2 oval, 4 rounded.
int FrameShapeOf(std::int16_t kind);

// --- the steps of a drag over a hit area --------------------------------------------------------
// X and Y in twips from the hit area's corner.

void BeginObjectDrag(int Index, double X, double Y);  // marks the object too
void BeginGroupDrag(int Index, double X, double Y);
void DragHold(int Index, double X, double Y);  // one move of the pointer
// The release: writes the records and redraws. A drag kills the pending undo, a plain click too.
void EndDrag(int Index);

// --- handles ------------------------------------------------------------------------------------

// Index 0 top left, 1 top right, 2 bottom left, 3 bottom right; X and Y in twips from the handle's
// corner. A group has no handles, and a PostNet barcode keeps its size.
void lblHandle_MouseDown(int Index, int Button, int Shift, double X, double Y);
void lblHandle_MouseMove(int Index, int Button, int Shift, double X, double Y);
void lblHandle_MouseUp(int Index, int Button, int Shift, double X, double Y);

// This module's state as at program start.
void ResetDrag();

}  // namespace tagwright
