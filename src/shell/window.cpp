#include "shell/window.h"

#include <cmath>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/form.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "platform/painting/scale.h"
#include "tools/view.h"

namespace tagwright {
namespace {

// Twips.
constexpr double kLeastHeight = 8250;
constexpr double kMargin = 120;
constexpr double kBothMargins = 240;
constexpr double kToolsLeft = 60;
constexpr double kBarThickness = 260;
constexpr double kHorizontalBarStart = 20;

constexpr double kNeverSavedLeft = -1000.033;
constexpr double kNeverSavedTop = 3900.0;
constexpr double kFarthestPixel = 32767;

double Right(const Control& control) { return control.Left() + control.Width(); }
double Bottom(const Control& control) { return control.Top() + control.Height(); }

void PlaceStrip() {
  frmMain.picFunctions.SetLeft(kMargin);
  frmMain.picFunctions.SetWidth(frmMain.ScaleWidth() - kBothMargins);
}

void PlaceTools() { frmMain.picTools.Move(kToolsLeft, Bottom(frmMain.picFunctions) + kMargin); }

// Each side for itself: a window too narrow for the board still gives it its height.
void PlaceBoard() {
  const PictureBox& strip = frmMain.picFunctions;
  PictureBox& board = frmMain.picBoard;
  board.Move(Right(frmMain.picTools) + kMargin, Bottom(strip) + kMargin);
  CarryOn([&] { board.SetWidth(frmMain.ScaleWidth() - kBothMargins - frmMain.picTools.Width()); });
  CarryOn([&] {
    board.SetHeight(frmMain.ScaleHeight() - kBothMargins - strip.Height() - frmMain.sB1.Height());
  });
}

void PlaceScrollBars() {
  const double right = frmMain.picBoard.ScaleWidth() - kBarThickness;
  const double bottom = frmMain.picBoard.ScaleHeight() - kBarThickness;
  CarryOn([&] { frmMain.vS1.Move(right, 0, kBarThickness, bottom); });
  CarryOn([&] {
    frmMain.hS1.Move(kHorizontalBarStart, bottom, right - kHorizontalBarStart, kBarThickness);
  });
  frmMain.cmdXC.Move(right, bottom, kBarThickness, kBarThickness);
}

void PlaceScrollBarsInTwips() {
  PictureBox& board = frmMain.picBoard;
  const double width = board.ScaleWidth();
  const double height = board.ScaleHeight();
  board.SetScaleMode(kTwips);
  PlaceScrollBars();
  CarryOn([&] { board.SetScaleWidth(width); });
  CarryOn([&] { board.SetScaleHeight(height); });
}

// Window systems count pixels in 16 bits, so what lies beyond is no place but a damaged file.
double Coordinate(double value) {
  if (!(std::abs(value) <= kFarthestPixel * kTwipsPerPixel)) RaiseFault(kOverflow);
  return value;
}

// A file that a full disk has cut short holds no width, and a window of none would never be seen. A
// missing height is made up for by the window's own floor.
double SavedWidth(double value) {
  if (!(value >= kTwipsPerPixel)) RaiseFault(kBadValue);
  return Coordinate(value);
}

}  // namespace

void PlaceWindow() {
  const SettingsRecord& s = ProgSettings;
  if (s.WindowLeft == kNeverSavedLeft && s.WindowTop == kNeverSavedTop) return;
  CarryOn([&] { frmMain.SetLeft(Coordinate(s.WindowLeft)); });
  CarryOn([&] { frmMain.SetTop(Coordinate(s.WindowTop)); });
  CarryOn([&] { frmMain.SetWidth(SavedWidth(s.WindowWidth)); });
  CarryOn([&] { frmMain.SetHeight(Coordinate(s.WindowHeight)); });
}

void Form_Resize() {
  if (frmMain.State() == WindowState::kMinimized) return;
  if (frmMain.Height() < kLeastHeight) CarryOn([] { frmMain.SetHeight(kLeastHeight); });
  CarryOn(PlaceStrip);
  PlaceTools();
  PlaceBoard();
  PlaceScrollBarsInTwips();
  CarryOn([] { ZoomFactor = ZoomOfCombo(); });
  ScaleBoardToZoom();
  RedrawBoard();
}

void ShowWhetherToSave() {
  frmMain.mnuFileSave.SetEnabled(DirtyFlag != kFalse);
  if (DirtyFlag) frmMain.mnuFileSaveAs.SetEnabled(true);
}

void ShowPointerOffBoard() { frmMain.SetMousePointer(kDefaultPointer); }

}  // namespace tagwright
