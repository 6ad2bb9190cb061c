// The arithmetic of dragging, without windows and state: the rubber box and line, the size of a
// text that is dragged larger. Lengths are in one unit throughout, on the board that is board
// units.
#pragma once

namespace tagwright {

struct BoardPoint {
  double x, y;
};

struct BoardFrame {
  double left, top, width, height;
};

// --- rubber -------------------------------------------------------------------------------------

// The corner of a box that stays while the opposite one is dragged.
enum AnchorCorner : int {
  kAnchorTopLeft = 0,
  kAnchorBottomRight = 1,
  kAnchorBottomLeft = 2,
  kAnchorTopRight = 3,
};

// The box between two opposite corners, whichever lies where.
BoardFrame BoxBetween(const BoardPoint& a, const BoardPoint& b);

// Whether the line in a box of this size stands; otherwise it lies. Equal sides stand.
bool LineStands(double width, double height);

// The box of a line that is dragged: as long as `box`, and `thickness` across it.
BoardFrame ThinBox(const BoardFrame& box, bool stands, double thickness);

// Where a line from `anchor` towards `pointer` ends: level unless the pointer has gone farther down
// or up than across. `way` is how far it has gone in the unit that pointers move in, twips: their
// board units are rounded, each axis by itself, and two ways of the same length would differ.
BoardPoint LineEnd(const BoardPoint& anchor, const BoardPoint& pointer, const BoardPoint& way);

// --- handles ------------------------------------------------------------------------------------

// The corner of the box that handle `index` (0 top left, 1 top right, 2 bottom left, 3 bottom
// right) of this frame stands for: a gap away from it.
BoardPoint CornerOfHandle(int index, const BoardFrame& handle, double gap_x, double gap_y);

// The corner that stays while handle `index` is dragged: the opposite one.
AnchorCorner AnchorOfHandle(int index);

// --- text ---------------------------------------------------------------------------------------

// How much wider a box has become. Faults 11 for a start of 0.
double WidthRatio(double width, double start_width);

// The whole part of `ratio` times `points`, at least 1 where that gives 0. Faults 6 for an endless
// one.
double ScaledFontSize(double ratio, double points);

}  // namespace tagwright
