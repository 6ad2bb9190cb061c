// The four fields of place and size, which all kinds share.
//
// While PanelLoading is set, events write nothing back to a record, redraw nothing and leave
// DirtyFlag alone. All routines here pass over what faults and go on.
#pragma once

namespace tagwright {

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

}  // namespace tagwright
