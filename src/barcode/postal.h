// Formats 12 and 13: "PostNet" and "Royal Mail CBC". Their size on paper is fixed, in a surface
// whose unit is a millimetre, and no text is printed.
#pragma once

#include <string>
#include <string_view>

#include "barcode/engine.h"

namespace tagwright {

// Five bars of a digit, "1" short and "2" tall; empty for anything that is no single digit.
std::string_view PostNetSymbol(std::string_view Digit);

// Four bars of a digit or capital: "0" full, "1" lower, "2" upper, "3" short. "(" and ")" are
// single bars. Empty for any other character.
std::string_view RoyalMailSymbol(char Char);

// The check character that belongs to `Data`; characters other than digits and capitals count
// nothing.
char RoyalMailCheck(std::string_view Data);

// Frame, digits, check digit, frame. A digit sum that ends in 0 has no check digit.
Patterns PostNetPatterns(std::string_view Data);

// Start, characters, check character, stop.
Patterns RoyalMailPatterns(std::string_view Data);

// Paint one pattern's bars from CursorX on and move it past them and their gaps. ModuleWidth,
// BarGap and BarHeight become those of the symbol.
void PaintPostNetBars(std::string_view Pattern);
void PaintRoyalMailBars(std::string_view Pattern);

// Paint the symbols. DrawStyle comes back. Faults of their own are passed over and never shown.
void DrawPostNet(std::string_view Data, float X, float Y);
void DrawRoyalMail(std::string_view Data, float X, float Y);

}  // namespace tagwright
