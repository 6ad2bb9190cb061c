#include "editing/keys.h"

#include "document/objects.h"
#include "editing/deletion.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/controls/control.h"
#include "platform/controls/keys.h"
#include "platform/controls/mouse.h"
#include "platform/controls/text_controls.h"

namespace tagwright {
namespace {

// All but the one at the bottom right.
void ShowThreeHandles(bool shown) {
  for (int i = 0; i < 3; ++i) frmMain.lblHandle(i).SetVisible(shown);
}

// However the keyboard came there: a field can be left by keys, and hidden, without a word.
bool FieldHasKeyboard() {
  const Control* active = frmMain.ActiveControl();
  if (active == &frmMain.txtSetFocus(0)) return false;  // the board itself
  if (const auto* field = dynamic_cast<const TextBox*>(active)) return !field->Locked();
  const auto* list = dynamic_cast<const ComboBox*>(active);
  return list && list->Editable();
}

}  // namespace

void Form_KeyDown(int& KeyCode, int Shift) {
  TextEntryActive = FieldHasKeyboard();
  if (Shift & kCtrl) ControlHeld = true;
  ModifierHeld = Shift != 0;
  if (ControlHeld && frmMain.lblHandle(0).Visible()) ShowThreeHandles(false);
  if (TextEntryActive || KeyCode != kDeleteKey) return;
  if (SelectedObject != -1) DeleteSelection();
  if (SelectedUpper != -1) DeleteSelection();
}

void Form_KeyUp(int /*KeyCode*/, int /*Shift*/) {
  ControlHeld = false;
  ModifierHeld = false;
  if (frmMain.lblHandle(3).Visible()) ShowThreeHandles(true);
}

}  // namespace tagwright
