#include "tools/wheel.h"

#include <algorithm>
#include <cmath>

#include "common/public_functions.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/controls/mouse.h"
#include "platform/controls/scroll_bar.h"
#include "tools/board.h"
#include "tools/view.h"

namespace tagwright {
namespace {

constexpr double kScrollOfNotch = 15;  // millimetres on the screen
constexpr double kLeastZoom = 0.01;    // what a damaged list could give must not divide
constexpr double kSameZoom = 1e-6;

// What a fine wheel has turned beyond whole steps.
double rest_across = 0;
double rest_down = 0;
double rest_zoom = 0;

// The place that stays under a pointer that stays itself: rounded scroll bars must not let it
// creep from row to row.
struct ZoomPlace {
  double screen_x, screen_y;  // the pointer, millimetres from the board's corner
  double label_x, label_y;    // under it
  double origin_x, origin_y;  // of the label on the board since
};
ZoomPlace last_place{-1, -1, 0, 0, 0, 0};

// A wheel that turns back starts anew.
double WholeSteps(double& rest, double steps) {
  if (rest * steps < 0) rest = 0;
  const double whole = std::trunc(rest + steps);
  rest += steps - whole;
  return whole;
}

void SetWithinRange(ScrollBar& bar, double value) {
  bar.SetValue(ToInt16(std::clamp<double>(value, bar.Min(), bar.Max())));
}

// --- scrolling ----------------------------------------------------------------------------------

// A step of a bar is a board unit, which grows with the zoom.
void Scroll(ScrollBar& bar, double& rest, double notches) {
  const double steps = notches * kScrollOfNotch / std::max(ZoomFactor, kLeastZoom);
  const double whole = WholeSteps(rest, steps);
  if (whole != 0) SetWithinRange(bar, bar.Value() - whole);
}

// --- zooming ------------------------------------------------------------------------------------

double ZoomOfRow(int row) { return ParsePercent(frmMain.cboZoom.List(row)); }

// The next row of cboZoom above this factor, or below it; -1 for none.
int RowBeyond(double zoom, bool above) {
  const int rows = frmMain.cboZoom.ListCount();
  if (above) {
    for (int row = 0; row < rows; ++row) {
      if (ZoomOfRow(row) > zoom + kSameZoom) return row;
    }
  } else {
    for (int row = rows - 1; row >= 0; --row) {
      if (ZoomOfRow(row) < zoom - kSameZoom) return row;
    }
  }
  return -1;
}

// So many rows on, or as many as there are; -1 when there is none.
int RowAfter(double steps) {
  int row = -1;
  double zoom = ZoomFactor;
  for (double left = std::abs(steps); left >= 1; --left) {
    const int next = RowBeyond(zoom, steps > 0);
    if (next < 0) return row;
    row = next;
    zoom = ZoomOfRow(row);
  }
  return row;
}

ZoomPlace PlaceUnder(double X, double Y) {
  const double screen_x = X * ZoomFactor, screen_y = Y * ZoomFactor;
  const bool same = std::abs(screen_x - last_place.screen_x) < kSameZoom &&
                    std::abs(screen_y - last_place.screen_y) < kSameZoom &&
                    last_place.origin_x == BoardOriginX && last_place.origin_y == BoardOriginY;
  if (same) return last_place;
  return {screen_x, screen_y, X - BoardOriginX, Y - BoardOriginY, 0, 0};
}

// The bar's value that puts the label's corner at `origin` of a board of this size.
void ScrollToOrigin(ScrollBar& bar, double board, double label, double origin) {
  SetWithinRange(bar, bar.Max() / 2.0 + std::nearbyint((board - label) / 2) - origin);
}

void ScrollUnder(const ZoomPlace& place, double zoom) {
  SuspendRedraw = kTrue;
  CarryOn([&] {
    ScrollToOrigin(frmMain.hS1, BoardWidth() / zoom, LabelWidth,
                   place.screen_x / zoom - place.label_x);
  });
  CarryOn([&] {
    ScrollToOrigin(frmMain.vS1, BoardHeight() / zoom, LabelHeight,
                   place.screen_y / zoom - place.label_y);
  });
  SuspendRedraw = kFalse;
}

// Choosing a row puts the pointer's shape back, which here is the armed tool's.
void ChooseRow(int row) {
  const std::int16_t shape = CursorShape;
  const int pointer = frmMain.MousePointer();
  frmMain.cboZoom.SetListIndex(row);
  CursorShape = shape;
  frmMain.SetMousePointer(pointer);
}

void ZoomAbout(double steps, double X, double Y) {
  const int row = RowAfter(steps);
  if (row < 0) return;
  ZoomPlace place = PlaceUnder(X, Y);
  ScrollUnder(place, ZoomOfRow(row));
  ChooseRow(row);
  place.origin_x = BoardOriginX;
  place.origin_y = BoardOriginY;
  last_place = place;
}

}  // namespace

void picBoard_MouseWheel(int Shift, double Left, double Up, double X, double Y) {
  const double screen_x = X * ZoomFactor, screen_y = Y * ZoomFactor;
  if (Shift & kCtrl) {
    ZoomAbout(WholeSteps(rest_zoom, Up), X, Y);
  } else {
    const bool sideways = (Shift & kShift) != 0;
    Scroll(frmMain.hS1, rest_across, sideways ? Left + Up : Left);
    Scroll(frmMain.vS1, rest_down, sideways ? 0 : Up);
  }
  // The label has moved under a pointer that has not.
  const double zoom = std::max(ZoomFactor, kLeastZoom);
  picBoard_MouseMove(0, Shift, screen_x / zoom, screen_y / zoom);
}

void ResetWheel() {
  rest_across = 0;
  rest_down = 0;
  rest_zoom = 0;
  last_place = {-1, -1, 0, 0, 0, 0};
}

}  // namespace tagwright
