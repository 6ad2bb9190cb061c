// What a gesture of placement makes: a record at the end of the document and its hit area, filled
// from the panels and from the rubber box or line.
#pragma once

#include "document/objects.h"
#include "tools/placement_arithmetic.h"

namespace tagwright {

class Label;

// The record that is being made, the last one, and its hit area. Both fault 9 without one.
ObjectRecord& NewRecord();
Label& NewHold();

// Appends a fresh record, selected alone, with an empty hit area. Faults 9 where there is no room.
void AppendObject();

// Fills it for CurrentTool. False ends the placement there: a barcode without a format, an
// unreadable picture, and a data field, which is shown already.
bool FillRecord();

// Gives it place and size of shpBox, unless it has a size of its own, and its kind; marks it,
// disarms the tool and redraws.
void ShowNewObject();

// The extent of shpBox, board units.
Extent BoxExtent();

// The record, or the hit area, takes this extent. Hit areas fault 380 for a negative one.
void TakeExtent(ObjectRecord& record, const Extent& extent);
void TakeExtent(Label& hold, const Extent& extent);

// --- texts --------------------------------------------------------------------------------------

// Height of a line in the panels' font at the present zoom, board units. Sets picBoard's font.
double PanelTextHeight();

// Appends an empty text above this point of the board, as on a line of writing, and opens it.
void BeginText(double X, double Y);

// Makes record ObjectUB, whose hit area stands where the text begins, an empty text that is open
// for typing: it shows "|" until then.
void CreateTextObject();

}  // namespace tagwright
