// The table of barcode formats: a row for each, and a format's code is the number of its row. Lists
// of formats, the check of data and the painter all go by it: a new format is a new row.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/barcode_format.h"

namespace tagwright {

class ComboBox;

// The characters of one format as they are listed, with a look-up that costs nothing per character.
struct CharacterSet {
  std::string_view characters;
  std::array<bool, 256> holds{};

  constexpr CharacterSet() = default;
  constexpr explicit CharacterSet(std::string_view list) : characters(list) {
    for (const char character : list) holds[static_cast<unsigned char>(character)] = true;
  }
  constexpr bool Has(char character) const { return holds[static_cast<unsigned char>(character)]; }
};

// Paints one symbol from x on, its bars from y down and `height` high (see mod_bar_code.h). The
// data may gain a check digit.
using SymbolPainter = void (*)(std::string& data, std::int16_t format, float x, float y,
                               double height, double width, bool text, double font_size);

struct BarcodeFormatRow {
  const char* name;    // in lists
  CharacterSet set;    // what it can carry
  std::int16_t limit;  // longest data in characters, -1 none
  double text_share;   // of a line's height: what the text takes from the bars
  SymbolPainter paint;
};

constexpr std::size_t kBarcodeFormatCount = 14;
extern const std::array<BarcodeFormatRow, kBarcodeFormatCount> kBarcodeFormats;

// The row of `format`; null for a code that is none.
const BarcodeFormatRow* FormatRow(std::int16_t format);

// Adds the names of all formats, in order, to `combo`. Selects nothing.
void FillBarcodeFormats(ComboBox& combo);

}  // namespace tagwright
