#include "editing/drag.h"

#include "common/arithmetic.h"
#include "common/diagnostics.h"
#include "document/objects.h"
#include "editing/magnetic_rule.h"
#include "editing/rubber.h"
#include "forms/frmMain.h"
#include "platform/controls/outlines.h"

namespace tagwright {

bool GestureUnderWay() { return Dragging || RubberBox || RubberLine; }

int FrameShapeOf(std::int16_t kind) {
  if (kind == kRoundedRectangle) return kRoundedOutline;
  return kind == kEllipse ? kOvalOutline : kRectangleOutline;
}

// Of a length on screen.
double ScreenX(double millimetres) {
  return frmMain.picBoard.ScaleX(millimetres, kMillimetres, kUserScale);
}

double ScreenY(double millimetres) {
  return frmMain.picBoard.ScaleY(millimetres, kMillimetres, kUserScale);
}

bool LineIsSelected() {
  bool is_line = false;
  Traced([&] { is_line = SelectedObject != -1 && ObjectAt(SelectedObject).ObjType == kLine; });
  return is_line;
}

void TakePlaceOfFrame(ObjectRecord& object) {
  Traced([&] { object.Left = ToSingle(frmMain.shpBox.Left() - BoardOriginX); });
  Traced([&] { object.Top = ToSingle(frmMain.shpBox.Top() - BoardOriginY); });
}

void ResetDrag() {
  Dragging = false;
  DragMoved = false;
  DraggingGroup = false;
  AnchorX = AnchorY = AnchorRight = AnchorBottom = 0;
  HoldStartLeft = HoldStartTop = BoxStartLeft = BoxStartTop = 0;
  HandleDownX = HandleDownY = 0;
  StartWidth = 0;
  StartHeight = 0;
  SnapHit = false;
  RubberBox = RubberLine = 0;
}

}  // namespace tagwright
