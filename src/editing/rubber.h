// The rubber box and line: what follows the pointer while something new is drawn, a zoom is framed
// or a handle dragged.
#pragma once

#include <cstdint>

namespace tagwright {

inline std::int16_t RubberBox = 0;   // -1 while shpBox is drawn up for a new object or a zoom
inline std::int16_t RubberLine = 0;  // -1 while shpLine is drawn for a new line

// shpBox between the point and the anchor corner: 0 AnchorX, AnchorY; 1 AnchorRight, AnchorBottom;
// 2 AnchorX, AnchorBottom; 3 AnchorRight, AnchorY. The box of a selected line that is resized stays
// half a millimetre thin on screen. txtDSize shows the box, panel 2 of sB1 its size, in the user's
// unit.
void TrackRubberBox(double x, double y, int corner);

// Ends shpLine level with or straight above or below AnchorX, AnchorY, whichever is nearer to the
// point; level where both are as near. txtDSize shows what it spans.
void TrackRubberLine(double x, double y);

}  // namespace tagwright
