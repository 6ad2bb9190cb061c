// Text files as data sources: one row a line, columns parted by commas or tabs.
#pragma once

namespace tagwright {

// Opens the text file that lblFileName names as SourceFile and passes over its first line.
void OpenTextRows(bool Comma);

// Reads the next row of SourceFile into FieldValues. `More` tells whether there was one.
void NextTextRow(bool& More);

}  // namespace tagwright
