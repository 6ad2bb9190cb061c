// Text files as data sources: one row a line, columns parted by commas or tabs.
#pragma once

#include <string>

namespace tagwright {

// Reads the columns and counts the rows, the first line included, of the text file cd1.FileName.
// The columns are added behind FieldUB. A file that cannot be read has one column without a name
// and no rows.
void OpenTextSource(bool Comma);

// Shows the boxes of text files and takes the columns of the file `path`, behind FieldUB, and the
// count of its rows.
void TakeTextSource(const std::string& path, bool Comma);

// Opens the text file that lblFileName names as SourceFile and passes over its first line.
void OpenTextRows(bool Comma);

// Reads the next row of SourceFile into FieldValues. `More` tells whether there was one.
void NextTextRow(bool& More);

}  // namespace tagwright
