// Formats 4 and 5: "Code 2 of 5", where only the bars carry the digit, and "Interleaved 2 of 5".
// Wide elements are two modules. Neither pads its data or adds a check digit.
#pragma once

#include <cstdint>
#include <string_view>

#include "barcode/engine.h"

namespace tagwright {

// The widths of a digit 0 to 9, of the start (-1) or of the stop (-2); empty for any other code.
std::string_view TwoOfFiveSymbol(std::int16_t Code);

// The widths of a pair of digits, the first as bars and the last as spaces; a single digit is both.
// "-1" is the start, "-2" the stop. A pair whose number is 0 gives nothing at all.
std::string_view InterleavedSymbol(std::string_view Pair);

Patterns TwoOfFivePatterns(std::string_view Data);
Patterns InterleavedPatterns(std::string_view Data);

// Paint the symbols. `Format` tells the routines nothing.
void DrawTwoOfFive(std::string_view Data, std::int16_t Format, float X, float Y, double Height,
                   double Width, bool PrintCharacters, double FontSize);
void DrawInterleaved(std::string_view Data, std::int16_t Format, float X, float Y, double Height,
                     double Width, bool PrintCharacters, double FontSize);

}  // namespace tagwright
