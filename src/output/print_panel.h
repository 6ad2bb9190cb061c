// The panel picPrint: which printer, which pages, how many copies.
#pragma once

namespace tagwright {

// Proposes the pages to print and brings the panel to the front; prints nothing. Without a data
// source that is page 1. With one the last page is worked out from RecordCount and the cells of a
// sheet by cutting the decimal text of a quotient, which for most counts gives more pages than the
// data fills: 24 for 7 records on 3 cells. A step that faults leaves what it would have set.
void mnuFilePrint_Click();

// lblLabels shows how many labels a job would have now.
void ShowLabelsOfJob();

// The panel follows another label, without a new proposal: merging is offered as at first where it
// was not, and withdrawn where there is nothing to merge any more.
void FollowLabel();

// Chooses the printer whose name the list shows. One that is gone leaves the former.
void cboPrinter_Click();

// A text is being typed, so that Delete edits it and deletes no object.
void txtNoCopies_KeyPress();
void txtPrintFrom_KeyPress();
void txtPrintTo_KeyPress();

}  // namespace tagwright
