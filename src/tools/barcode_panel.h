// The panel of barcodes: what it accepts, in which words it refuses, and when the selected barcode
// follows it.
#pragma once

#include "document/objects.h"

namespace tagwright {

// txtBCodeData has been typed in since it last got the keyboard.
inline Flag BarcodeEdited = kFalse;

// A format has been chosen. With data in the panel: cmdBCode is enabled only if the format can
// carry it, otherwise a message says why not; a selected barcode takes the format and is redrawn,
// and under a postal format it then gets that symbol's size. Sets DirtyFlag.
void cboBCode_Click();

// Formats are chosen, never typed: swallows the key.
void cboBCode_KeyPress(int& KeyAscii);

// The data has changed: checked as above, without its outer blanks. A selected barcode takes the
// format of the panel and is redrawn; neither its data nor its size changes here.
void txtBCodeData_Change();

void txtBCodeData_GotFocus();
void txtBCodeData_KeyPress(int& KeyAscii);

// Data that has been typed goes into the selected object, whatever it is and whether or not the
// data is valid.
void txtBCodeData_LostFocus();

// A selected barcode takes the flag for the text below its bars.
void chkPriCharacter_Click();

// Ends the selection and arms the tool that places barcodes.
void cmdBCode_Click();

// BarcodeEdited as at program start.
void ResetBarcodePanel();

}  // namespace tagwright
