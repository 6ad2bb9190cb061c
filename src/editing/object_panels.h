// The panels of the selected object, filled from its record. They double as the defaults of the
// next object, so they may be changed with nothing selected. What an edit in them does stands in
// text_panel.h, shape_panel.h and size_fields.h, for barcodes in tools/barcode_panel.h.
//
// While PanelLoading is set, events write nothing back to a record, redraw nothing and leave
// DirtyFlag alone. All routines here pass over what faults and go on.
#pragma once

#include <string>

namespace tagwright {

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

// This module's state as at program start.
void ResetObjectPanels();

}  // namespace tagwright
