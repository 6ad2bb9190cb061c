#include "editing/geometry.h"

#include <algorithm>
#include <cmath>

#include "common/arithmetic.h"

namespace tagwright {

BoardFrame BoxBetween(const BoardPoint& a, const BoardPoint& b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

bool LineStands(double width, double height) { return width <= height; }

BoardFrame ThinBox(const BoardFrame& box, bool stands, double thickness) {
  if (stands) return {box.left, box.top, thickness, box.height};
  return {box.left, box.top, box.width, thickness};
}

// Far below a pixel, of which a twip is a fifteenth, and far above what rounding leaves.
constexpr double kSameWay = 0.01;

BoardPoint LineEnd(const BoardPoint& anchor, const BoardPoint& pointer, const BoardPoint& way) {
  const bool level = std::abs(way.y) <= std::abs(way.x) + kSameWay;
  return level ? BoardPoint{pointer.x, anchor.y} : BoardPoint{anchor.x, pointer.y};
}

BoardPoint CornerOfHandle(int index, const BoardFrame& handle, double gap_x, double gap_y) {
  const bool at_left = index == 0 || index == 2;
  const bool at_top = index == 0 || index == 1;
  return {at_left ? handle.left + handle.width + gap_x : handle.left - gap_x,
          at_top ? handle.top + handle.height + gap_y : handle.top - gap_y};
}

AnchorCorner AnchorOfHandle(int index) {
  constexpr AnchorCorner kOpposite[] = {kAnchorBottomRight, kAnchorBottomLeft, kAnchorTopRight,
                                        kAnchorTopLeft};
  return kOpposite[index];
}

double WidthRatio(double width, double start_width) {
  return Quotient(width - start_width, start_width) + 1;
}

double ScaledFontSize(double ratio, double points) {
  const double size = Finite(std::trunc(ratio * points));
  return size == 0 ? 1 : size;
}

}  // namespace tagwright
