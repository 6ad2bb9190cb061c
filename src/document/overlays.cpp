#include <algorithm>

#include "document/objects.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "platform/fault.h"

namespace tagwright {
namespace {

constexpr int kHandleCount = 4;
constexpr int kDots = 3;  // border style

// A rectangle on the board, in its units.
struct BoardBox {
  double left, top, right, bottom;
};

void MoveHandle(int index, double left, double top) { frmMain.lblHandle(index).Move(left, top); }

// The handles keep a millimetre of screen between themselves and the box, at every zoom.
void PlaceHandles(const BoardBox& box) {
  const double gap_x = frmMain.picBoard.ScaleX(1, kMillimetres, kUserScale);
  const double gap_y = frmMain.picBoard.ScaleY(1, kMillimetres, kUserScale);
  const Label& handle = frmMain.lblHandle(0);
  const double left = box.left - handle.Width() - gap_x;
  const double top = box.top - handle.Height() - gap_y;
  const double right = box.right + gap_x;
  const double bottom = box.bottom + gap_y;
  MoveHandle(0, left, top);
  MoveHandle(1, right, top);
  MoveHandle(2, left, bottom);
  MoveHandle(3, right, bottom);
}

void ShowHandle(int index) {
  frmMain.lblHandle(index).SetVisible(true);
  frmMain.lblHandle(index).ZOrder(0);
}

void HideFourHandles() {
  for (int i = 0; i < kHandleCount; ++i) frmMain.lblHandle(i).SetVisible(false);
}

void PlaceFrame(double left, double top, double width, double height) {
  Shape& frame = frmMain.shpBox;
  frame.Move(left, top, width, height);
  frame.SetVisible(true);
  frame.SetBorderStyle(kDots);
}

BoardBox BoxOf(const ObjectRecord& object) {
  return {object.Left, object.Top, object.Left + object.Width, object.Top + object.Height};
}

void Extend(BoardBox& box, const BoardBox& other) {
  box.left = std::min(box.left, other.left);
  box.top = std::min(box.top, other.top);
  box.right = std::max(box.right, other.right);
  box.bottom = std::max(box.bottom, other.bottom);
}

const ObjectRecord& Member(int place) {
  if (static_cast<std::size_t>(place) >= SelectedList.size()) RaiseFault(kOutOfBounds);
  return ObjectAt(SelectedList[static_cast<std::size_t>(place)]);
}

// Around the group's records, on the board. Texts are taken with the size that they have stored.
BoardBox GroupBox() {
  BoardBox box = BoxOf(Member(0));
  for (int i = 1; i <= SelectedUpper; ++i) Extend(box, BoxOf(Member(i)));
  return {box.left + BoardOriginX, box.top + BoardOriginY, box.right + BoardOriginX,
          box.bottom + BoardOriginY};
}

}  // namespace

void ShowHandles(const Label& hold) {
  PlaceFrame(hold.Left(), hold.Top(), hold.Width(), hold.Height());
  PlaceHandles({hold.Left(), hold.Top(), hold.Left() + hold.Width(), hold.Top() + hold.Height()});
  for (int i = 0; i < kHandleCount; ++i) ShowHandle(i);
}

void ShowGroupBox() {
  if (SelectedUpper < 0) return;
  const BoardBox box = GroupBox();
  PlaceHandles(box);
  PlaceFrame(box.left, box.top, box.right - box.left, box.bottom - box.top);
  frmMain.shpBox.SetShape(0);
  HideFourHandles();
}

void HideHandles() {
  frmMain.shpBox.SetVisible(false);
  HideFourHandles();
}

}  // namespace tagwright
