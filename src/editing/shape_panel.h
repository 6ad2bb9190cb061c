// The panel of a shape: colours, pen width and transparency. The samples double as the defaults of
// the next shape.
//
// While PanelLoading is set, events write nothing back to a record, redraw nothing and leave
// DirtyFlag alone. All routines here pass over what faults and go on.
#pragma once

namespace tagwright {

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

}  // namespace tagwright
