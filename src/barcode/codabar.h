// Format 11: "Codabar".
#pragma once

#include <cstdint>
#include <string_view>

#include "barcode/engine.h"

namespace tagwright {

// The seven widths of a character, from a bar to a bar, and "1" for the space behind it. A
// character without widths gives the "1" alone.
std::string_view CodabarSymbol(char Char);

// "A", the data, "A": start and stop never come from the data.
Patterns CodabarPatterns(std::string_view Data);

// Paints the symbol. A character without widths is one narrow bar, since every pattern begins with
// one. `Format` tells the routine nothing.
void DrawCodabar(std::string_view Data, std::int16_t Format, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize);

}  // namespace tagwright
