#include "document/overlay_geometry.h"

#include <algorithm>

namespace tagwright {

BoardBox BoxOf(const ObjectRecord& object) {
  return {object.Left, object.Top, object.Left + object.Width, object.Top + object.Height};
}

BoardBox Around(const BoardBox& a, const BoardBox& b) {
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

std::array<HandlePlace, 4> HandlePlaces(const BoardBox& box, double width, double height,
                                        double gap_x, double gap_y) {
  const double left = box.left - width - gap_x;
  const double top = box.top - height - gap_y;
  const double right = box.right + gap_x;
  const double bottom = box.bottom + gap_y;
  return {{{left, top}, {right, top}, {left, bottom}, {right, bottom}}};
}

}  // namespace tagwright
