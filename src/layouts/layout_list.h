// The main window's list of layouts and the numbers of the chosen one.
#pragma once

namespace tagwright {

// Fills cboLabelLayout with the titles of all layouts and chooses the default one, the last of
// several, else the first. Every choice raises the list's Click, and so changes the label's size.
// Faults 380 where there is no layout at all; the list is empty then.
void FillLayoutList();

// Fills the list anew and keeps its row, whose numbers are shown in the user's unit of now. Without
// a chosen row nothing but the list changes. Faults 380 where the row is gone.
void RefillLayoutList();

// Shows the numbers of the layout chosen in cboLabelLayout in txtLabLayout(0) to (7), in the user's
// unit, makes its label size the document's (LabelWidth, LabelHeight, millimetres) and redraws.
// Objects stay where they are. Faults 9 where no loaded layout is chosen, before anything changes.
void ShowLayout();

void cboLabelLayout_Click();

}  // namespace tagwright
