#include "editing/panel_stack.h"

#include "common/public_functions.h"
#include "forms/frmMain.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/text_controls.h"

namespace tagwright {
namespace {

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

double PanelFontSize() { return ToNumber(frmMain.cboSize.Text()); }

void SizeBoxFollowsFontBox() {
  const ComboBox& font = frmMain.cboFont;
  ComboBox& size = frmMain.cboSize;
  size.Move(font.Left(), font.Top() + kSizeBelowFont);
  size.SetVisible(font.Visible());
  if (size.Visible()) size.ZOrder();
}

}  // namespace tagwright
