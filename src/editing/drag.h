// What the gestures of the mouse share: drawing (rubber.h), moving (move.h) and resizing
// (resize.h). While the mouse moves only controls follow it; records are written once, at the
// release, after snapping to the magnetic rules (magnetic_rule.h). Nothing is clamped: objects may
// be dragged off the label. Lengths are board units unless it says otherwise.
#pragma once

#include <cstdint>

#include "document/objects.h"

namespace tagwright {

inline bool Dragging = false;       // from a press on a hit area or handle to its release
inline bool DraggingGroup = false;  // what the press has taken hold of
inline bool DragMoved = false;      // worked out at the release of a hit area
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

// Whether the mouse draws or drags just now: until the release txtDSize shows what it does.
bool GestureUnderWay();

// What shpBox looks like around an object of this kind: 0 rectangle, 2 oval, 4 rounded.
int FrameShapeOf(std::int16_t kind);

// How far the handles stand from the frame: board units, on the way of a handle millimetres on
// screen.
constexpr double kHandleGap = 1.0;

// A length on screen in board units, along either side.
double ScreenX(double millimetres);
double ScreenY(double millimetres);

// Whether the object that is selected by itself is a line.
bool LineIsSelected();

// The record takes its place from shpBox.
void TakePlaceOfFrame(ObjectRecord& object);

// This module's state as at program start.
void ResetDrag();

}  // namespace tagwright
