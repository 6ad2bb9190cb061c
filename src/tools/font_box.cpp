#include "tools/font_box.h"

#include <string>

#include "common/public_functions.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

bool ChooseRow(ComboBox& box, std::string_view text) {
  for (int row = 0; row < box.ListCount(); ++row) {
    if (box.List(row) != text) continue;
    box.SetListIndex(row);
    return true;
  }
  return false;
}

}  // namespace

void SelectFontRow(std::string_view name) { ChooseRow(frmMain.cboFont, name); }

void SelectSizeRow(std::string_view text) {
  if (!ChooseRow(frmMain.cboSize, text)) frmMain.cboSize.SetText(std::string(text));
}

void cboFont_GotFocus() { FontComboTyped = kFalse; }

void cboFont_KeyPress(int& KeyAscii) {
  FontComboTyped = kTrue;
  KeyAscii = CompleteCombo(frmMain.cboFont, KeyAscii);
}

void cboFont_LostFocus() {
  if (FontComboTyped) SelectComboText(frmMain.cboFont);
}

}  // namespace tagwright
