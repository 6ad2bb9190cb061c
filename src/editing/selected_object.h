// The selected object as the panels see it.
#pragma once

#include "document/objects.h"

namespace tagwright {

// The record and the hit area of SelectedObject. Fault 9 without one.
ObjectRecord& SelectedRecord();
Label& SelectedHold();

// Its kind; blank without a selection.
std::int16_t SelectedKind();

// Whether one object is selected and it is of that kind.
bool ShapeIsSelected();
bool TextIsSelected();

// Whether `kind` takes its extent from a text that its hit area measures: texts and data fields.
bool IsMeasured(std::int16_t kind);

// A number of a control as a record's Left or Top holds it. Faults 6 beyond that type.
float ToSingle(double value);

// One as its Width or Height does: faults 6 where an overflow has left none.
double ToFinite(double value);

}  // namespace tagwright
