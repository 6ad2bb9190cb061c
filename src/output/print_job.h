// The print job: one label design on every cell of a sheet, sheet after sheet, with what a merge
// and serial numbers change between two cells.
//
// The sheet comes from the text boxes of the properties panel, in display units, and is read anew
// for every cell; the job's range and copies come from those of the print panel. A fault goes
// through the marker tail, and the next step runs.
#pragma once

namespace tagwright {

// Prints on the chosen printer. A printer that asks where the job goes (a file) does so before
// anything else: a user who backs out has changed nothing, and neither has a printer that refuses.
// Nobody is asked for a job without copies. A job that ran to its end without a label says so, and
// why. Pressed again while a job runs it does nothing.
void cmdPrint_Click();

// How many labels a job would have now, by the boxes of both panels and RecordCount.
double LabelsOfJob();

// The chosen printer's page: millimetres, portrait, on the paper of the layout that is shown. A
// landscape sheet is a layout on a portrait page.
void PreparePrinter();

// Walks the cells of all copies and pages, down each column, and paints those of the pages asked
// for on DrawTarget with RedrawBoard; it feeds a page after each of them. With PreviewMode set it
// leaves after one page and feeds none. While it runs a progress window tells the pages; the user's
// cancel ends it between two cells, and so does a printer that has lost the job.
//
// The page counter runs on across copies. A merge ends its copy where the data ends, without a page
// feed. SerialValue rises by 1 for each cell that printed it. At the end picBoard is the DrawTarget
// again and redrawn, PreviewMode is off and ZoomFactor as before. A missing picture is told once.
void PrintLabels();

}  // namespace tagwright
