#include "tools/panels.h"

#include "document/objects.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

constexpr double kPanelLeft = 50;
constexpr double kSizeBelowFont = 360;

}  // namespace

void ShowPanel(PictureBox& panel) {
  panel.Move(kPanelLeft, 0);
  panel.ZOrder();
}

void ShowFontBoxes(double left, double top) {
  frmMain.cboFont.Move(left, top);
  frmMain.cboFont.SetVisible(true);
  frmMain.cboFont.ZOrder();
  SizeBoxFollowsFontBox();
}

void HideFontBoxes() {
  frmMain.cboFont.SetVisible(false);
  SizeBoxFollowsFontBox();
}

void SizeBoxFollowsFontBox() {
  const ComboBox& font = frmMain.cboFont;
  ComboBox& size = frmMain.cboSize;
  size.Move(font.Left(), font.Top() + kSizeBelowFont);
  size.SetVisible(font.Visible());
  if (size.Visible()) size.ZOrder();
}

void mnuFileImport_Click() {
  CurrentTool = 0;
  CursorShape = 0;
  frmMain.SetMousePointer(0);
  ShowPanel(frmMain.picFields);
  ShowFontBoxes(9840, 600);
}

}  // namespace tagwright
