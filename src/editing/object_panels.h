// The panels of the selected object: filled from its record, and each edit in them written back.
// They double as the defaults of the next object, so they may be changed with nothing selected.
//
// While PanelLoading is set, events write nothing back to a record, redraw nothing and leave
// DirtyFlag alone. All routines here pass over what faults and go on.
#pragma once

#include <cstdint>
#include <string>

#include "document/objects.h"

namespace tagwright {

// txtTool has the keyboard: what is typed there is not all in the record yet.
inline Flag TextEditOpen = kFalse;

// --- filling ------------------------------------------------------------------------------------

// Brings the panel of Objects(SelectedObject) to the front and fills it, with PanelLoading set from
// the first step to the last. A text is opened for typing: from here until it is deselected its hit
// area shows it and not the painter, and txtTool has the keyboard if it is to have it. txtDSize
// shows place and size. Nothing at all while a tool is armed.
void FillPanelFromObject(bool keyboard_to_text = true);

// The style of the selected text in its panel, after it was changed from elsewhere.
void ShowTextStyle();

// Natural width and height of the picture file on its panel, in the picture's own units. Faults as
// LoadPicture; the panel keeps its numbers then.
void ShowPictureSize(const std::string& path);

// --- fonts --------------------------------------------------------------------------------------

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

// --- colours, weight, transparency --------------------------------------------------------------

// Each asks for a colour and gives it to the sample and the selected object: cmdColor the fill and
// cmdFColor the outline of a shape (both redraw whatever is selected), cmdTextColor a text. A
// cancelled dialog changes nothing.
void cmdColor_Click();
void cmdFColor_Click();
void cmdTextColor_Click();

// A grey of the palette becomes the fill (which makes it opaque) or the outline.
void lblBCol_Click(int Index);
void lblFCol_Click(int Index);

// A selected shape becomes transparent (FillColor -1) or takes the fill sample again.
void chkTransparent_Click();

// A selected shape takes the pen width in pixels; 0 means no pen.
void cboWeight_Click();

// --- place and size -----------------------------------------------------------------------------

void txtDSize_GotFocus(int Index);  // without a single selection the keyboard goes to the board
void txtDSize_MouseMove(int Index);
void txtDSize_KeyPress(int Index, int& KeyAscii);  // numbers only

// Whichever field was left, the object that is selected by itself takes each of the four numbers
// that was typed: a field left as it stood moves nothing, though what it shows is rounded. The
// board is redrawn; DirtyFlag stays as it is. Nothing while the mouse draws or drags, whose figures
// the fields show then.
void txtDSize_LostFocus(int Index);

// The same without the redraw, for who is about to change what an entry under way means.
void TakeSizeEntry();

// This module's state as at program start.
void ResetObjectPanels();

}  // namespace tagwright
