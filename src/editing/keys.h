// The keyboard on the design surface: held modifiers, and Delete. Keys come here before the control
// that has the keyboard. Arrow keys move nothing.
#pragma once

namespace tagwright {

// Notes held modifiers; with Ctrl a selected object keeps its bottom right handle only. Delete
// removes what is selected, unless a field that takes text has the keyboard, lists that are typed
// in included: TextEntryActive says so from here on.
void Form_KeyDown(int& KeyCode, int Shift);

// No modifier counts as held any more, whichever key went up; the handles come back.
void Form_KeyUp(int KeyCode, int Shift);

}  // namespace tagwright
