#include "editing/rubber.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "document/objects.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/geometry.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

constexpr double kLineThickness = 0.5;  // millimetres on screen, of a line's box

double TwipsX(double units) { return frmMain.picBoard.ScaleX(units, kUserScale, kTwips); }
double TwipsY(double units) { return frmMain.picBoard.ScaleY(units, kUserScale, kTwips); }

BoardPoint AnchorOf(int corner) {
  switch (corner) {
    case kAnchorBottomRight:
      return {AnchorRight, AnchorBottom};
    case kAnchorBottomLeft:
      return {AnchorX, AnchorBottom};
    case kAnchorTopRight:
      return {AnchorRight, AnchorY};
    default:
      return {AnchorX, AnchorY};
  }
}

BoardFrame KeptThin(const BoardFrame& box) {
  const ObjectRecord& line = ObjectAt(SelectedObject);
  const bool stands = LineStands(line.Width, line.Height);
  return ThinBox(box, stands, stands ? ScreenX(kLineThickness) : ScreenY(kLineThickness));
}

void ShowFrameBox() {
  const std::string width = InUsersUnit(frmMain.shpBox.Width());
  const std::string height = InUsersUnit(frmMain.shpBox.Height());
  ShowPlaceInFields(frmMain.shpBox.Left(), frmMain.shpBox.Top());
  ShowExtentInFields(frmMain.shpBox.Width(), frmMain.shpBox.Height());
  frmMain.sB1.SetPanelText(kExtentPanel, "Width: " + width + " Height: " + height);
}

}  // namespace

void TrackRubberBox(double x, double y, int corner) {
  BoardFrame box = BoxBetween({x, y}, AnchorOf(corner));
  if (!RubberBox && LineIsSelected()) box = KeptThin(box);
  frmMain.shpBox.Move(box.left, box.top, box.width, box.height);
  ShowFrameBox();
}

void TrackRubberLine(double x, double y) {
  const BoardPoint way = {TwipsX(x - AnchorX), TwipsY(y - AnchorY)};
  const BoardPoint end = LineEnd({AnchorX, AnchorY}, {x, y}, way);
  frmMain.shpLine.SetX2(end.x);
  frmMain.shpLine.SetY2(end.y);
  ShowPlaceInFields(std::min(AnchorX, end.x), std::min(AnchorY, end.y));
  ShowExtentInFields(std::abs(end.x - AnchorX), std::abs(end.y - AnchorY));
}

}  // namespace tagwright
