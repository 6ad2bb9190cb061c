// Databases as data sources: a table of theirs, row by row.
#pragma once

namespace tagwright {

// Opens the database that lblFileName names, with DatabasePassword if there is one, and the rows of
// the table that cboRSet shows as SourceRecordset, which stands on the first row then. What does
// not open leaves none.
void OpenDatabaseRows();

// Moves SourceRecordset on and reads the row into FieldValues, null as an empty text. `More` tells
// whether there was one.
void NextDatabaseRow(bool& More);

}  // namespace tagwright
