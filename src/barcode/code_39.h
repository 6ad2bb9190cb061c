// Formats 9 and 10: "Code 39" and "Code 39 Extended". Wide elements are two modules.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "barcode/engine.h"

namespace tagwright {

// The nine widths of a character, from a bar to a bar; empty for any but the 44 of Code 39. Without
// `UseKeyPrefix` no character has any.
std::string_view Code39Symbol(std::string_view Value, bool UseKeyPrefix);

// The widths of an ASCII character from 32 to 126 as one or two characters of Code 39, each
// followed by a narrow space; empty for any other.
std::string_view Code39ExtendedSymbol(char Char);

// "*", the data, "*". The gaps between them are not part of the patterns.
Patterns Code39Patterns(std::string_view Data);

// The data alone: no start, no stop.
Patterns Code39ExtendedPatterns(std::string_view Data);

// Paint the symbols. Neither has a check character. `Format` tells the routine nothing.
void DrawCode39(std::string_view Data, std::int16_t Format, float X, float Y, double Height,
                double Width, bool PrintCharacters, double FontSize);
void DrawCode39Extended(std::string_view Data, std::int16_t Format, float X, float Y, double Height,
                        double Width, bool PrintCharacters, double FontSize);

}  // namespace tagwright
