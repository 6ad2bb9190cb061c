// The pop-up menu of a data field on the label: how its value is shown. Both do nothing unless a
// data field is selected, and set DirtyFlag.
#pragma once

namespace tagwright {

// As it stands (0), as currency (1) or as a number (2). The record takes the size of the field's
// hit area, and the board is redrawn.
void mnuField_Click(int Index);

// As a barcode of format `Index`; the board is redrawn.
void mnuFBC_Click(int Index);

}  // namespace tagwright
