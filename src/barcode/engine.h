// What the symbol families share: the state of the symbol being painted, the bar painter, and the
// steps that most symbols begin and end with. Only src/barcode includes this.
//
// A pattern is a string of decimal digits: digit n is an element n modules wide. Elements alternate
// bar, space, bar, space, and every PaintPattern call begins with a bar. The digit 0 is an element
// of no width that still takes its turn; a leading "0" is how a character begins with a space.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "common/arithmetic.h"
#include "common/diagnostics.h"
#include "platform/faults/fault.h"
#include "platform/painting/surface.h"

namespace tagwright {

// The patterns of one symbol, one for each PaintPattern call. They are rows of tables that live as
// long as the program.
using Patterns = std::vector<std::string_view>;

// --- the symbol being painted; surface units ----------------------------------------------------

inline double ModuleWidth = 0;       // one narrow element
inline double BarHeight = 0;         // the bars now being painted
inline double BarGap = 0;            // between bars, postal symbols only
inline float CursorX = 0;            // left edge of the next element
inline float CursorY = 0;            // top of the bars
inline bool PrintChars = false;      // PaintPattern prints its text under its first bar
inline std::int16_t PatternSum = 0;  // modules of the symbol last measured
inline std::int32_t CheckSum = 0;    // of Code 128

// --- painting -----------------------------------------------------------------------------------

// DrawTarget. Faults 5 while there is none.
inline Surface& Target() {
  if (!DrawTarget) RaiseFault(kInvalidCall);
  return *DrawTarget;
}

// Paints a pattern from CursorX on, bars in black from CursorY to CursorY + BarHeight, and moves
// CursorX past it. With PrintChars set `Text` is printed 0.25 below the first bar. Elements of no
// positive width paint nothing and move nothing.
void PaintPattern(std::string_view Pattern, std::string_view Text = {});

// Paints one pattern after the other, without text.
void PaintPatterns(const Patterns& patterns);

// The sum of a pattern's digits. A digit that would take it above 32,767 is passed over and traced,
// as any statement of the engine that faults.
std::int16_t SumPattern(std::string_view Pattern);

// PatternSum becomes the sum of all patterns, as SumPattern works it out, and ModuleWidth the
// `Width` of the symbol shared out among them and `gaps` more modules. Faults 11 or 6 where that
// has no result, which leaves ModuleWidth as it was.
void MeasureModule(const Patterns& patterns, double Width, std::size_t gaps = 0);

// How a symbol begins whose text, if any, stands centred below the bars.
void BeginSymbol(float X, float Y, double Height);

// How it ends: with `PrintCharacters`, `Data` at `FontSize` points right below the bars, centred on
// `Width`.
void EndSymbol(std::string_view Data, float X, float Y, double Height, double Width,
               bool PrintCharacters, double FontSize);

// A whole symbol of the plain kind: its patterns side by side, as wide together as `Width`, and the
// text below them.
void PaintSymbol(const Patterns& patterns, std::string_view Data, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize);

}  // namespace tagwright
