// Databases as data sources: a table of theirs, row by row.
#pragma once

namespace tagwright {

// Opens the database cd1.FileName, asking for a password if it wants one, and lists its tables in
// cboRSet. A file that does not open, or an empty answer, ends the routine with words that it
// cannot be read as a database. Faults 3031 for a wrong password, after saying so.
void OpenDatabaseSource();

// Takes the columns and counts the rows of the chosen table; those of the former one are gone. Says
// so of a table that lies in another file.
void cboRSet_Click();

// Opens the database that lblFileName names, with DatabasePassword if there is one, and the rows of
// the table that cboRSet shows as SourceRecordset, which stands on the first row then. What does
// not open leaves none.
void OpenDatabaseRows();

// Moves SourceRecordset on and reads the row into FieldValues, null as an empty text. `More` tells
// whether there was one.
void NextDatabaseRow(bool& More);

}  // namespace tagwright
