// Project files: fixed records of 333 bytes, little-endian, with two trailers. Here one record's
// bytes; the whole file is read in project_load.h and written in project_save.h.
#pragma once

#include <string>
#include <string_view>

#include "document/objects.h"

namespace tagwright {

// Bytes of one record. Text takes one byte a character in the user's code page, blank padded.
// Offset and size of the fields, in their order: Left 0, 4; Top 4, 4; Width 8, 8; Height 16, 8;
// ObjType 24, 2; Text 26, 250; Param 276, 2; FontName 278, 35; FontSize 313, 8; Bold 321, 2;
// Italic 323, 2; ForeColor 325, 4; FillColor 329, 4.
constexpr int kProjectRecordSize = 333;

// What the file dialogs offer.
inline const std::string kProjectFilter = "Tagwright Project (*.twp)|*.twp";

// One record's bytes and back. Reading takes what is there: blank text and zeros for the rest.
std::string ProjectRecordBytes(const ObjectRecord& record);
ObjectRecord ProjectRecordFromBytes(std::string_view bytes);

}  // namespace tagwright
