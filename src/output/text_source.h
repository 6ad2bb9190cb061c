// Text files as data sources: one row a line, columns parted by commas or tabs.
#pragma once

#include <string>

namespace tagwright {

// Shows the boxes of text files and takes the columns of the file `path`, behind FieldUB, and the
// count of its rows.
void TakeTextSource(const std::string& path, bool Comma);

// Opens the text file that lblFileName names as SourceFile and passes over its first line.
void OpenTextRows(bool Comma);

// Reads the next row of SourceFile into FieldValues. `More` tells whether there was one.
void NextTextRow(bool& More);

}  // namespace tagwright
