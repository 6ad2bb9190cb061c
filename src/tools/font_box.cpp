#include "tools/font_box.h"

#include "common/public_functions.h"
#include "forms/frmMain.h"

namespace tagwright {

void cboFont_GotFocus() { FontComboTyped = kFalse; }

void cboFont_KeyPress(int& KeyAscii) {
  FontComboTyped = kTrue;
  KeyAscii = CompleteCombo(frmMain.cboFont, KeyAscii);
}

void cboFont_LostFocus() {
  if (FontComboTyped) SelectComboText(frmMain.cboFont);
}

}  // namespace tagwright
