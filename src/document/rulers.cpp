#include "document/rulers.h"

#include <cmath>
#include <string>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

// Depths from the board's edge, millimetres on screen at every zoom.
constexpr double kBandDepth = 5;
constexpr double kMinorDepth = 4;
constexpr double kMajorDepth = 3;  // half ticks too

constexpr Color kBandColor = Rgb(255, 255, 220);
constexpr Color kInkColor = Rgb(150, 150, 150);
constexpr double kFontSize = 7;

// Below these zooms the ticks would stand too close to read.
constexpr double kNumberZoom = 0.49;
constexpr double kHalfZoom = 0.2;
constexpr double kMinorZoom = 0.7;
constexpr int kTicksBetweenNumbers = 20;  // at or below kNumberZoom

// Layout files can name labels of any size. Beyond these a tick has no number that could be
// counted, or there are more of them than a screen has pixels: then the band stays empty.
constexpr double kFarthestTick = 1e9;
constexpr double kMostTicks = 1e5;

// One of the two rulers: along the top (x) or along the left side (y).
struct Ruler {
  bool top;
  double origin;  // of the label along this ruler, board units
  double length;  // of the board along it
};

Surface& Board() { return frmMain.picBoard.Canvas(); }

// A depth in the board's units: across the top ruler is vertical.
double Depth(const Ruler& ruler, double millimetres) {
  return ruler.top ? Board().ScaleY(millimetres, kMillimetres, kUserScale)
                   : Board().ScaleX(millimetres, kMillimetres, kUserScale);
}

void FillBand(const Ruler& ruler) {
  const double depth = Depth(ruler, kBandDepth);
  if (ruler.top) {
    Board().Line(0, 0, ruler.length, depth, kBandColor);
  } else {
    Board().Line(0, 0, depth, ruler.length, kBandColor);
  }
}

void DrawTick(const Ruler& ruler, double place, double end_depth) {
  Surface& board = Board();
  const double from = Depth(ruler, kBandDepth);
  const double to = Depth(ruler, end_depth);
  const double x1 = ruler.top ? place : from, y1 = ruler.top ? from : place;
  const double x2 = ruler.top ? place : to, y2 = ruler.top ? to : place;
  board.MoveToEx(board.ScaleX(x1, kUserScale, kPixels), board.ScaleY(y1, kUserScale, kPixels));
  board.LineTo(board.ScaleX(x2, kUserScale, kPixels), board.ScaleY(y2, kUserScale, kPixels));
}

// Centred on its tick; at the left it ends where the tick does. In the corner, which both rulers
// share, the numbers and ticks of the two would lie on each other: none stands there.
void DrawNumber(const Ruler& ruler, double place, int number) {
  Surface& board = Board();
  const std::string text = std::to_string(number);
  const double along = ruler.top ? board.TextWidth(text) : board.TextHeight(text);
  const double start = place - along / 2;
  if (start < Depth({!ruler.top, 0, 0}, kBandDepth)) return;
  if (ruler.top) {
    board.CurrentX = start;
    board.CurrentY = 0;
  } else {
    board.CurrentX = Depth(ruler, kMajorDepth) - board.TextWidth(text);
    board.CurrentY = start;
  }
  board.Print(text);
}

// How far the tick next to board position 1 stands before it. Inch ticks fall between whole units:
// three decimals keep them on true tenths of an inch.
double TickOffset(const Ruler& ruler, int tick) {
  if (ProgSettings.MetricUnits) return 0;
  const double exact = std::trunc((1 - ruler.origin) / RulerScale * 1000) / 1000;
  return -(tick - exact) * RulerScale;
}

// False also where one of them is no number.
bool CanCountTicks(const Ruler& ruler) {
  return std::abs((1 - ruler.origin) / RulerScale) < kFarthestTick &&
         ruler.length / RulerScale < kMostTicks;
}

void DrawTicks(const Ruler& ruler) {
  int tick = static_cast<int>(std::nearbyint((1 - ruler.origin) / RulerScale));
  const double offset = TickOffset(ruler, tick);
  int since_number = 0;
  for (double place = 1; place < ruler.length; place += RulerScale, ++tick, ++since_number) {
    if (tick % 10 == 0) {
      DrawTick(ruler, place - offset, kMajorDepth);
      if (ZoomFactor > kNumberZoom || since_number > kTicksBetweenNumbers) {
        DrawNumber(ruler, place - offset, tick / 10);
        since_number = 0;
      }
    } else if (tick % 5 == 0) {
      if (ZoomFactor > kHalfZoom) DrawTick(ruler, place - offset, kMajorDepth);
    } else if (ZoomFactor > kMinorZoom) {
      DrawTick(ruler, place - offset, kMinorDepth);
    }
  }
}

void PrepareInk() {
  Surface& board = Board();
  board.Font = {"Arial", kFontSize, false, false};
  board.FontTransparent = true;
  board.ForeColor = kInkColor;
  board.SelectObject(CreatePen(kPenSolid, 1, kInkColor));
}

void DrawRuler(const Ruler& ruler) {
  FillBand(ruler);
  if (CanCountTicks(ruler)) DrawTicks(ruler);
}

}  // namespace

void DrawRulers() {
  if (!frmMain.mnuFileRulers.Checked()) return;
  PrepareInk();
  DrawRuler({true, BoardOriginX, frmMain.picBoard.ScaleWidth()});
  DrawRuler({false, BoardOriginY, frmMain.picBoard.ScaleHeight()});
}

}  // namespace tagwright
