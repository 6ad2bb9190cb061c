// The selected object as the panels see it.
#pragma once

#include "document/objects.h"

namespace tagwright {

class Label;

// The record and the hit area of SelectedObject. Fault 9 without one.
ObjectRecord& SelectedRecord();
Label& SelectedHold();

// Its kind; blank without a selection.
std::int16_t SelectedKind();

// Whether one object is selected and it is of that kind.
bool ShapeIsSelected();
bool TextIsSelected();
bool BarcodeIsSelected();

// Whether record `index` is a text; one that is not there is none.
bool IsText(int index);

}  // namespace tagwright
