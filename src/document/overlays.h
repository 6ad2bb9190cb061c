// What lies over the board's picture: the frame and the handles of the selection, the magnetic
// rules.
#pragma once

namespace tagwright {

class Label;

// Puts shpBox and the four handles around one hit area and shows them.
void ShowHandles(const Label& hold);
// Puts shpBox around the group in SelectedList; the handles are placed and hidden. Nothing without
// a group. Faults 9 for a group that is larger than its list or names no record.
void ShowGroupBox();
// Puts the handles around shpBox, this many board units away. Whether they show stays as it is.
void PlaceHandlesAroundFrame(double gap);
// Hides shpBox and the handles.
void HideHandles();

// Where the magnetic rules stand, millimetres from the label's top left corner; -1 when removed. A
// redraw puts lnMX and lnMY there, across the whole board, unless the mouse holds them.
inline double MagRuleX = -1.0;
inline double MagRuleY = -1.0;
inline bool DraggingRuleX = false;  // lnMX follows the pointer until the release
inline bool DraggingRuleY = false;  // lnMY likewise

}  // namespace tagwright
