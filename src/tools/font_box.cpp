#include "tools/font_box.h"

#include <string>

#include "common/public_functions.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/controls/text_controls.h"
#include "platform/painting/fonts.h"

namespace tagwright {

int AddFontToCombo(std::string_view face_name, ComboBox& combo) {
  combo.AddItem(std::string(face_name.substr(0, face_name.find('\0'))));
  return -1;
}

void FillFontList(ComboBox& combo) {
  for (const std::string& family : Fonts().Families()) {
    if (AddFontToCombo(family, combo) == 0) return;
  }
}

// They show what a new object will have: a selected one keeps what it has.
void SelectFontRow(std::string_view name) {
  const PanelFilling filling;
  SelectRow(frmMain.cboFont, name);
}

void SelectSizeRow(std::string_view text) {
  const PanelFilling filling;
  if (!SelectRow(frmMain.cboSize, text)) frmMain.cboSize.SetText(std::string(text));
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
