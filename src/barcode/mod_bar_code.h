// The barcode engine's one entry. Everything it needs on the way is engine.h's.
#pragma once

#include <cstdint>
#include <string>

namespace tagwright {

// Paints `Data` as a symbol of `Format` (see formats.h) on DrawTarget, its left edge at `X` and its
// bars from `Y` down. `Height` is the height of bars and text together, `Width` that of all bars,
// both in the target's units; under formats 0 to 3 a width of -1 stands for modules of 3 units, and
// formats 12 and 13 have a size of their own. With `PrintCharacters` the data stands below the bars
// at `FontSize` points, in `FontName` or, when that is empty, in the font last set on the target.
// There is no quiet zone and no rounding to device pixels.
//
// Data that the format cannot carry, that is too long or blank, and codes outside 0 to 13 paint
// nothing. Blank data leaves the target alone; other refusals leave its DrawMode at 9, its
// DrawStyle at 5 and its font as for the symbol. Otherwise DrawMode comes back, DrawStyle becomes
// 0. `Data` may gain a check digit, so callers pass a copy. Not reentrant. Never faults: what fails
// is passed over, and shown where the marker file asks for it.
void DrawBarcode(std::string& Data, const std::int16_t& Format, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize, const std::string& FontName);

// The same for a caller whose data is its own to give away: what the document calls as its barcode
// painter.
void PaintBarcodeOf(std::string Data, std::int16_t Format, float X, float Y, double Height,
                    double Width, bool PrintCharacters, double FontSize,
                    const std::string& FontName);

// The state of engine.h and of validation.h back to program start.
void ResetBarcodeState();

}  // namespace tagwright
