// Formats 6, 7 and 8: Code 128 in one code set for the whole symbol (0 is A, 1 is B, 2 is C).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "barcode/engine.h"

namespace tagwright {

// The pattern of `Value`, empty for one without a row, and what it means for CheckSum.
//
// `Value` is a character, a pair of digits, a check value in decimal, "start" or "stop". With
// `UseKeyPrefix` it is taken as a character, otherwise as the number of a row; under code set 2 a
// numeric value always is the number of a row. `Multiplier` -1 leaves CheckSum alone, 0 makes it
// the row's value, any other adds the value that many times (fault 6 outside 32 bits). Under code
// set 0 the rows 64 to 102 count in CheckSum and have no pattern.
std::string_view Code128Symbol(std::string_view Value, std::int16_t Multiplier, bool UseKeyPrefix,
                               std::int16_t CodeSet);

// Reduces CheckSum modulo 103 and returns it in decimal.
std::string Code128Check();

// Start, data by characters (code set 2: by pairs, a last single digit being a value of its own),
// check character, stop. Works in CheckSum.
Patterns Code128Patterns(std::string_view Data, std::int16_t CodeSet);

// Paints the symbol. There is no change of code set and no function character.
void DrawCode128(std::string_view Data, std::int16_t CodeSet, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize);

}  // namespace tagwright
