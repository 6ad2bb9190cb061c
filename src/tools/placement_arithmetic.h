// The arithmetic of placing objects and of the zoom tools, without windows and state. Lengths are
// millimetres of label.
#pragma once

namespace tagwright {

struct Extent {
  double width, height;
};

// A box with a side under this is none that anybody meant to drag.
constexpr double kSmallestDrag = 1.1;
bool IsTiny(const Extent& box);

// The extent of a picture of this size (converted as if it counted twips) on a label: cut down on
// both sides alike, so that neither exceeds nine tenths of the label. Faults 11 where the picture
// has no extent to cut.
Extent PictureExtent(const Extent& picture, const Extent& label);

// A line's box keeps something to take hold of: a side under 1 is 0.1.
Extent LineExtent(const Extent& drawn);

// A new postal symbol of this many characters. PostNet has its size from the bars and gaps in
// inches.
Extent PostNetExtent(double length);
Extent RoyalMailExtent(double length);

// The factor after a click with a zoom tool, on two decimals. Not above `last`, the factor of the
// list's last row: from there on it stays.
double ZoomedIn(double zoom, double last);
// A factor above 50 counts as 50.
double ZoomedOut(double zoom);

}  // namespace tagwright
