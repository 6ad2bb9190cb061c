#include "document/overlays.h"

#include "document/objects.h"
#include "document/overlay_geometry.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/outlines.h"
#include "platform/controls/shapes.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

constexpr int kHandleCount = 4;

void PlaceHandles(const BoardBox& box, double gap_x, double gap_y) {
  const Label& handle = frmMain.lblHandle(0);
  const auto places = HandlePlaces(box, handle.Width(), handle.Height(), gap_x, gap_y);
  for (int i = 0; i < kHandleCount; ++i) {
    const HandlePlace& place = places[static_cast<std::size_t>(i)];
    frmMain.lblHandle(i).Move(place.left, place.top);
  }
}

// The handles keep a millimetre of screen between themselves and the box, at every zoom.
void PlaceHandles(const BoardBox& box) {
  PlaceHandles(box, frmMain.picBoard.ScaleX(1, kMillimetres, kUserScale),
               frmMain.picBoard.ScaleY(1, kMillimetres, kUserScale));
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
  frame.SetBorderStyle(kDottedBorder);
}

const ObjectRecord& Member(int place) { return ObjectAt(SelectedMember(place)); }

// Around the group's records, on the board. Texts are taken with the size that they have stored.
BoardBox GroupBox() {
  BoardBox box = BoxOf(Member(0));
  for (int i = 1; i <= SelectedUpper; ++i) box = Around(box, BoxOf(Member(i)));
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
  frmMain.shpBox.SetShape(kRectangleOutline);
  HideFourHandles();
}

void PlaceHandlesAroundFrame(double gap) {
  const Shape& frame = frmMain.shpBox;
  PlaceHandles(
      {frame.Left(), frame.Top(), frame.Left() + frame.Width(), frame.Top() + frame.Height()}, gap,
      gap);
}

void HideHandles() {
  frmMain.shpBox.SetVisible(false);
  HideFourHandles();
}

}  // namespace tagwright
