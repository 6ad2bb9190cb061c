// The window "Serial Numbers": the running number that a text with "[#SRNO]" shows.
//
// It edits the serial state of document/objects.h. Incrementation and "Print Serial Number on
// Barcode" are stored and do nothing else: numbers always rise by one, and the bars always carry
// their characters.
#pragma once

#include "document/objects.h"

namespace tagwright {

// Both open the window and come back when it is closed.
void cmdSerNo_Click();
void mnuFileSerial_Click();

namespace serial_number {

// The user typed in a combo since it got the keyboard. One flag serves both.
inline Flag ComboTyped = kFalse;

// Shows the serial state in the user's unit. DirtyFlag stays as it was, whatever the controls do
// while they are filled.
void Form_Load();

void chkBCode_Click();  // enables what belongs to the barcode, or disables it; sets DirtyFlag

// These only set DirtyFlag.
void cboBCode_Click();
void cboInc_Click();
void chkTxt_Click();
void txtBCodeWid_Change();
void txtSerPref_Change();

// Numbers only; the next number also sets DirtyFlag, with every key.
void txtBCodeWid_KeyPress(int Index, int& KeyAscii);
void txtSerIncr_KeyPress(int& KeyAscii);

// Typing is completed against the list; the row of a typed text is selected when the box is left.
void cboBCode_GotFocus();
void cboBCode_KeyPress(int& KeyAscii);
void cboBCode_LostFocus();
void cboInc_GotFocus();
void cboInc_KeyPress(int& KeyAscii);
void cboInc_LostFocus();

// Takes what the window shows as the serial state, without any check, and unloads it. A text that
// is no number leaves its value as it is; a size that is none counts as 0.
void cmdSave_Click();

void cmdCancel_Click();  // unloads the window; DirtyFlag stays raised

}  // namespace serial_number
}  // namespace tagwright
