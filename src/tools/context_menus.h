// The commands of the context menus on placed objects. All act on SelectedObject. Those of shapes
// and pictures set DirtyFlag where they change it, those of a field's barcode leave that as it is.
#pragma once

namespace tagwright {

// The menu of texts. By keyboard the menu key or Shift+F10 opens it while a text or a group is
// selected, and goes no further then; by mouse a right press on the panel of texts does, since a
// right press on the text itself opens nothing.
void TextMenuKeyDown(int& KeyCode, int Shift);
void picText_MouseDown(int Button);

// Makes the selected shape an ellipse (0), a rectangle (1) or a rounded rectangle (2); redraws.
void mnuDrawChange_Click(int Index);

// 0 makes the selected shape as wide as it is high, 1 as high as it is wide; redraws.
void mnuShpAspect_Click(int Index);

// The height that goes with the width of the selected picture, or the width that goes with its
// height, by the sides of the picture that its panel shows; redraws. Nothing fits a panel without
// numbers: the picture stays as it is.
void mnuGraphicHeight_Click();
void mnuGraphicWidth_Click();

// Asks for the width or height, in the user's unit, of a data field shown as a barcode. An answer
// that is no number changes nothing. No redraw.
void mnuBCSetWid_Click();
void mnuBCSetHgt_Click();

// Whether such a barcode has its characters below the bars: turns the entry's check over and keeps
// it in Italic. No redraw.
void mnuBCSetChars_Click();

}  // namespace tagwright
