#include "document/board_space.h"

#include "forms/frmMain.h"
#include "platform/controls/shapes.h"

namespace tagwright {

double BoardUnitsX(double twips) { return frmMain.picBoard.ScaleX(twips, kTwips, kUserScale); }

double BoardUnitsY(double twips) { return frmMain.picBoard.ScaleY(twips, kTwips, kUserScale); }

void SpanDown(LineControl& line, double x, double height) {
  line.SetX1(x);
  line.SetX2(x);
  line.SetY1(0);
  line.SetY2(height);
}

void SpanAcross(LineControl& line, double y, double width) {
  line.SetX1(0);
  line.SetX2(width);
  line.SetY1(y);
  line.SetY2(y);
}

void ShowInFront(LineControl& line) {
  line.ZOrder();
  line.SetVisible(true);
}

}  // namespace tagwright
