// Which objects are selected, and how that is shown: one object with its handles, or a group with
// one box around it. The state itself (SelectedObject, SelectedList, SelectedUpper) stands in
// document/objects.h.
#pragma once

namespace tagwright {

inline bool ControlHeld = false;       // a key went down while Ctrl was held
inline bool ModifierHeld = false;      // the last key went down with Shift, Ctrl or Alt held
inline bool CopyPropsPending = false;  // the next click on a text copies its properties

// Ends the selection: a text takes the place and size of its hit area and is painted again, an
// empty one goes away (with all others like it, and the rest is selected, where it is not the
// last). Frame, handles and count are hidden, the keyboard goes to the board from one object.
// Nothing while ModifierHeld, so that a group can be built.
void DeselectObject();

// DeselectObject where anything is selected, and once more for what an empty text has left
// selected.
void EndSelection();

// Adds an object to the group or takes it out. The first one joins the object that is selected by
// itself, were it the same one. Panel 3 of sB1 counts. Faults 9 for a full list, with nothing
// changed.
void ToggleInSelection(int index);

// Whether the group holds the object.
bool InGroup(int index);

// Takes the object SelectedObject out of the document and ends the selection.
void RemoveObject();

// Selects all objects, after removing texts that are empty; a single one with its handles. Faults 9
// for more objects than a group can hold, with the selection unchanged.
void mnuEditSelectAll_Click();

// Fits the hit area of a text, or of a data field that is shown as text, to the record's text at
// the present zoom, and stores text and font name back trimmed. Nothing for other kinds.
void FitHoldToText(int index);

// ControlHeld, ModifierHeld and CopyPropsPending as at program start.
void ResetSelectionKeys();

}  // namespace tagwright
