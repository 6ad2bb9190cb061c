// What both the project commands and the selection's own routines (editing/selection.h) need of it.
// The state itself stands in document/objects.h.
#pragma once

namespace tagwright {

// The commands that need a selection: copy, cut, centring and stacking; for `group` also aligning
// and sizing, which are disabled for a single object.
void EnableSelectionCommands(bool group);
void DisableSelectionCommands();

// Whether the hit area shows the object and the painter leaves it out: a selected text from its
// opening until it is deselected.
bool IsShownByHold(int index);

// No object can be pressed, until its hit area is placed anew.
void HideHitAreas();

// Panel 3 of sB1 counts no selected objects any more. What else stands there stays.
void ForgetCount();

// Ends the group, and with it its frame and its count. The commands are the caller's. Nothing
// without a group.
void EndGroup();

// Whoever has the keyboard gives it up, so that a text that is about to go with its label does not
// keep Ctrl+A and Ctrl+C for itself.
void KeyboardToBoard();

// What is being typed in txtBCodeData, cboFont or a field of txtDSize goes to its object, as if it
// were left: menus, shortcuts and message boxes do not move the keyboard. The field keeps it, so
// that the typing goes on and no key meant for it acts on the object. A text takes each key by
// itself.
void TakeEntryUnderWay();

// Nothing selected, whatever keys are held and without a look at the records, which may be others
// by now: state, commands, frame, handles, count and txtDSize. No hit area shows a text any more;
// the board is not redrawn.
void DropSelection();

}  // namespace tagwright
