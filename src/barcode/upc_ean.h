// Formats 0 to 3: "UPC-A", "UPC-E", "EAN-13" and "EAN-8".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tagwright {

// One PaintPattern call of these symbols: a guard without text, or a digit with the digit below it.
struct UpcEanElement {
  bool guard = false;
  std::string_view pattern;
  char digit = ' ';
  int kind = 0;  // of a guard
};

// The four widths of a digit, with a "0" in front when it begins with a space. `Digit` is 0 to 9.
// The odd set has its bars as on the left side of the published tables when it begins with a space
// (number set A) and as on the right side when it begins with a bar (C); the even set is B.
std::string_view DigitPatternOdd(int Digit, bool LeadingSpace);
std::string_view DigitPatternEven(int Digit, bool LeadingSpace);

// Guards: 0 begins every symbol and ends all but UPC-E, 1 stands in the centre, 2 ends UPC-E.
std::string_view GuardPattern(int Kind);

// Paints one guard, 1.25 longer than the digits, without text.
void DrawGuard(int Kind);

// The check digit, '0' to '9', of a UPC-A of 11 digits (format 0) or an EAN-13 of 12 (format 2).
char UpcEanCheckDigit(std::string_view Data, std::int16_t Format);

// Everything that is painted, from left to right, of digits that are complete. The first digit of
// an EAN-13 chooses the sets of the others and is not painted itself.
std::vector<UpcEanElement> UpcEanElements(std::string_view Data, std::int16_t Format);

// Paints the symbol. 11 digits of a UPC-A and 12 of an EAN-13 gain their check digit in `Data`; no
// other data is completed, and none is verified. Each digit is printed below its own bars.
void DrawUpcEan(std::string& Data, std::int16_t Format, float X, float Y, double Height,
                double Width, bool PrintCharacters, double FontSize);

}  // namespace tagwright
