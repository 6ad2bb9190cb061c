#include "tools/panels.h"

#include <string>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/fault.h"
#include "platform/locale.h"
#include "tools/font_box.h"

namespace tagwright {
namespace {

constexpr double kPanelLeft = 50;
constexpr double kSizeBelowFont = 360;

// The last data field on the label, null for none.
const ObjectRecord* LastField() {
  for (int i = ObjectUB; i >= 0; --i) {
    if (ObjectAt(i).ObjType == kDataField) return &ObjectAt(i);
  }
  return nullptr;
}

void SelectStyle(const std::string& font, double size) {
  CarryOn([&] { SelectFontRow(font); });
  CarryOn([&] { SelectSizeRow(FormatNumber(size)); });
}

// The next data field takes the style of the last one, or on a label without any the default.
void SelectStyleOfLastField() {
  if (const ObjectRecord* field = LastField()) {
    SelectStyle(field->FontName.Trimmed(), field->FontSize);
  } else {
    SelectStyle(ProgSettings.DefaultFontName.Trimmed(), ProgSettings.DefaultFontSize);
  }
}

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
  SelectStyleOfLastField();
  ShowFontBoxes(9840, 600);
}

}  // namespace tagwright
