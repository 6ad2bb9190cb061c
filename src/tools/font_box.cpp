#include "tools/font_box.h"

#include <string>

#include "common/public_functions.h"
#include "document/objects.h"
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

// They show what a new object will have: a selected one keeps what it has.
void SelectFontRow(std::string_view name) {
  const PanelFilling filling;
  ChooseRow(frmMain.cboFont, name);
}

void SelectSizeRow(std::string_view text) {
  const PanelFilling filling;
  if (!ChooseRow(frmMain.cboSize, text)) frmMain.cboSize.SetText(std::string(text));
}

void cboFont_GotFocus() { FontComboTyped = kFalse; }

void cboFont_KeyPress(int& KeyAscii) {
  FontComboTyped = kTrue;
  KeyAscii = CompleteCombo(frmMain.cboFont, KeyAscii);
}

// What was typed is taken once, however often a save asks for it.
void cboFont_LostFocus() {
  if (FontComboTyped) SelectComboText(frmMain.cboFont);
  FontComboTyped = kFalse;
}

}  // namespace tagwright
