// Where frames and handles stand, as plain arithmetic. One unit throughout, on the board board
// units.
#pragma once

#include <array>

#include "document/objects.h"

namespace tagwright {

struct BoardBox {
  double left, top, right, bottom;
};

struct HandlePlace {
  double left, top;
};

// The box of a record on its label. Nothing is measured: texts hold the size of their last fit.
BoardBox BoxOf(const ObjectRecord& object);

// The smallest box around both.
BoardBox Around(const BoardBox& a, const BoardBox& b);

// Where the corners of four handles of `width` by `height` stand outside the box, a gap away from
// it: top left, top right, bottom left, bottom right.
std::array<HandlePlace, 4> HandlePlaces(const BoardBox& box, double width, double height,
                                        double gap_x, double gap_y);

}  // namespace tagwright
