#include "tools/tool_buttons.h"

#include "document/objects.h"
#include "forms/frmMain.h"
#include "tools/panels.h"

namespace tagwright {
namespace {

constexpr int kHoldIsOver = 100;
constexpr double kFontTop = 290;

void SelectTool() {
  CurrentTool = 0;
  CursorShape = 0;
  ShowPanel(frmMain.picProperties);
  frmMain.cboFont.SetVisible(false);
}

void BarcodeTool() {
  ShowPanel(frmMain.picBCode);
  ShowFontBoxes(7250, kFontTop);
}

void PictureTool() {
  ShowPanel(frmMain.picPicture);
  HideFontBoxes();
}

void TextTool() {
  ShowPanel(frmMain.picText);
  ShowFontBoxes(8950, kFontTop);
}

void DrawingTools() {
  ShowPanel(frmMain.picDrawing);
  frmMain.cboFont.SetVisible(false);
}

// The release that ends a hold raises the button's click as any release does. It must not arm the
// tool that the flyout has just replaced.
bool HoldHasEnded(int index) { return (index == 5 || index == 6) && HoldTicks > kHoldIsOver; }

}  // namespace

void cmdTools_Click(int Index) {
  if (HoldHasEnded(Index)) return;
  switch (Index) {
    case 0:
      SelectTool();
      break;
    case 1:
      BarcodeTool();
      break;
    case 2:
      PictureTool();
      break;
    case 3:
      TextTool();
      break;
    case 4:
      DrawingTools();
      break;
    case 5:
      frmMain.cboFont.SetVisible(false);
      break;
    case 7:
      frmMain.mnuFileImport.Press();
      break;
    default:
      break;
  }
  SizeBoxFollowsFontBox();
  frmMain.picMag.SetVisible(false);
}

void ResetToolButtons() {
  HoldTicks = 0;
  HoldKind = 0;
}

}  // namespace tagwright
