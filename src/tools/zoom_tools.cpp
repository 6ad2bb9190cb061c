#include "tools/zoom_tools.h"

#include <algorithm>

#include "common/public_functions.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "editing/drag.h"
#include "editing/pointer.h"
#include "forms/frmMain.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/pointers.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/text_controls.h"
#include "tools/placement.h"
#include "tools/placement_arithmetic.h"
#include "tools/view.h"

namespace tagwright {
namespace {

double LastRowZoom() {
  const ComboBox& list = frmMain.cboZoom;
  return ParsePercent(list.List(list.ListCount() - 1));
}

double ZoomAfterClick() {
  return CurrentTool == kZoomIn ? ZoomedIn(ZoomFactor, LastRowZoom()) : ZoomedOut(ZoomFactor);
}

// Rows take the factor as they are chosen; without a row the former one stays in force.
void TakeZoomOfClick() {
  const double former = ZoomFactor;
  ZoomFactor = ZoomAfterClick();
  if (SelectZoomRow(ZoomFactor)) return;
  ZoomFactor = former;
  CurrentTool = kNoTool;
}

// A bar's middle stands for the label's middle in the view's, one step for one board unit.
void ScrollTo(ScrollBar& bar, double from_middle) {
  const double value = bar.Max() / 2.0 + from_middle;
  bar.SetValue(ToInt16(std::clamp<double>(value, bar.Min(), bar.Max())));
}

void ShowInMiddle(double label_x, double label_y) {
  CarryOn([&] { ScrollTo(frmMain.hS1, label_x - LabelWidth / 2); });
  CarryOn([&] { ScrollTo(frmMain.vS1, label_y - LabelHeight / 2); });
}

// Choosing a row puts the pointer back. The rubber box goes; around a selection it stays a frame.
void ShowZoomed() {
  SuspendRedraw = kFalse;
  frmMain.shpBox.SetVisible(SelectedObject > -1);
  RedrawBoard();
  CarryOn(ShowGroupBox);
  if (CurrentTool != kNoTool) SetBoardPointer(kCustomPointer);
}

// --- a box --------------------------------------------------------------------------------------

// The side that fills more of the board decides.
void FrameBox(const Extent& box) {
  PictureBox& board = frmMain.picBoard;
  if (box.width / board.ScaleWidth() >= box.height / board.ScaleHeight()) {
    ZoomFactor = BoardWidth() / box.width;
  } else {
    ZoomFactor = BoardHeight() / box.height;
  }
  ScaleBoardToZoom();
}

void TakeZoomOfBox() {
  ComboBox& list = frmMain.cboZoom;
  if (!SelectZoomRow(ZoomFactor)) list.SetListIndex(list.ListCount() - 1);
}

double HalfOverlap(double board, double label) { return (board - label) / 2; }

void ShowCorner(double left, double top, const Extent& box) {
  const PictureBox& board = frmMain.picBoard;
  if (box.width < LabelWidth) {
    CarryOn([&] { ScrollTo(frmMain.hS1, HalfOverlap(board.ScaleWidth(), LabelWidth) + left); });
  }
  if (box.height < LabelHeight) {
    CarryOn([&] { ScrollTo(frmMain.vS1, HalfOverlap(board.ScaleHeight(), LabelHeight) + top); });
  }
}

}  // namespace

void ZoomAtAnchor() {
  const double label_x = AnchorX - BoardOriginX;
  const double label_y = AnchorY - BoardOriginY;
  SuspendRedraw = kTrue;
  CarryOn(TakeZoomOfClick);
  ShowInMiddle(label_x, label_y);
  ShowZoomed();
}

void ZoomToBox() {
  const Extent box{frmMain.shpBox.Width(), frmMain.shpBox.Height()};
  const double left = frmMain.shpBox.Left() - BoardOriginX;
  const double top = frmMain.shpBox.Top() - BoardOriginY;
  SuspendRedraw = kTrue;
  CentreLabel();
  FrameBox(box);
  CarryOn(TakeZoomOfBox);
  ShowCorner(left, top, box);
  ShowZoomed();
}

}  // namespace tagwright
