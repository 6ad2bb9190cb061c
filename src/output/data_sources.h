// Data sources: the one external table that a label can draw on. Choosing it, its columns and its
// rows, and the cursor that a print job drives.
//
// While designing FieldValues holds the names of the columns, while printing the row under the
// cursor. What of a source travels with a project (RecordCount, CurrentTable, DatabasePassword,
// SourceDatabase) and its open table (SourceTable, SourceRecordset) are declared in
// document/source_state.h.
//
// A fault in these routines goes through the marker tail, what it would have set keeps its old
// value, and the next step runs. Where it says so below it ends there instead.
#pragma once

#include <memory>
#include <string>

#include "document/source_state.h"
#include "platform/files/line_reader.h"

namespace tagwright {

inline std::string FieldSeparator;              // "," or a tab
inline std::unique_ptr<LineReader> SourceFile;  // the open text source of a print, null none

// --- choosing a source --------------------------------------------------------------------------

// Asks for a file of the kind that cboImportType shows and opens it as the source: its columns go
// to FieldValues and lstFields, its path to lblFileName. A cancelled dialog changes nothing; with a
// file the former source is gone, whether or not the new one can be read. A database whose password
// stays wrong leaves a message and an empty DatabasePassword.
void cmdBrowse_Click();

// lstFields shows FieldValues(0) to FieldValues(FieldUB).
void FillFieldList();

// lblRCount shows RecordCount.
void ShowRecordCount();

// Opens the file dialog. While a project is being loaded it takes the columns and counts the rows
// of the text file that lblFileName names instead; a database's come with its table.
void cboImportType_Click();
void chkFirstRow_Click();   // sets DirtyFlag, nothing else
void chkQuote_Click();      // likewise
void lstFields_DblClick();  // arms tool 20 with its pointer

// --- the cursor of a print job ------------------------------------------------------------------

// Opens the source that lblFileName, cboImportType and cboRSet name and stands on its first row,
// which is passed over: the first NextMergeRecord gives the second one. Where it does not open no
// source is.
void OpenMergeSource();

// Why no source is open, for the user to read; empty where one is.
std::string WhyNoSource();

// Moves to the next row and fills FieldValues with it. `More` is false at the end of the data, and
// where no source is open. A row of a text source shorter than the one before keeps the values of
// that one in the columns that it does not reach, and sets FieldUB to its own last column; columns
// past the last slot are dropped.
void NextMergeRecord(bool& More);

// Closes a text source. A database stays open.
void CloseMergeSource();

// The state above back to program start, with no source open.
void ResetDataSources();

}  // namespace tagwright
