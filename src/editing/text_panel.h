// The panel of a text: its fonts and alignment, which other kinds share, and the typing. Each edit
// is written to the selected object.
//
// While PanelLoading is set, events write nothing back to a record, redraw nothing and leave
// DirtyFlag alone. All routines here pass over what faults and go on.
#pragma once

#include "document/objects.h"

namespace tagwright {

// txtTool has the keyboard: what is typed there is not all in the record yet.
inline Flag TextEditOpen = kFalse;

// Writes cboFont, cboSize, chkBold and chkItalic to the selected object or to the texts, data
// fields and barcodes of the group, measures texts and fields anew and redraws. A barcode's Bold
// stays: there it means the characters below the bars. Sets DirtyFlag. Bound to the clicks of all
// four.
void ApplyFontProperties();

// A selected text is aligned left (0), right (1) or centred (2): record and hit area. Sets
// DirtyFlag; the hit area shows it, nothing is redrawn.
void cmdAlign_Click(int Index);

// --- typing -------------------------------------------------------------------------------------

// Ends the typing: a selected text takes the text of txtTool, the size of cboSize, and font and
// geometry of its hit area. Nothing for other kinds and without a selection. An entry is pending
// only while TextEditOpen is set: a text that is selected without its panel (Select All, paste)
// must not be given the box's text.
void CommitTextEdit();

void txtTool_GotFocus();               // the entry is open; the hit area grows with its text
void txtTool_LostFocus();              // CommitTextEdit
void txtTool_KeyPress(int& KeyAscii);  // sets DirtyFlag and TextEntryActive
void txtTool_Change();                 // the selected object takes the text and its new extent

}  // namespace tagwright
