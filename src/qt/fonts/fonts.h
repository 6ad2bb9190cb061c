// Fonts of the toolkit, measured and drawn from one reference size.
//
// The toolkit rounds a font to whole pixels before it measures or draws, which makes the same text
// up to some per cent wider or narrower from zoom to zoom. Here a text is shaped once, at a size
// where rounding does not matter, and every other size is that shape under a scale.
#pragma once

#include <QGlyphRun>
#include <QList>
#include <QString>
#include <string_view>

#include "platform/painting/fonts.h"
#include "platform/painting/surface.h"

class QPainter;

namespace tagwright {

// The size that text is shaped at; everything is linear in it.
constexpr double kReferencePixels = 1000;

// A line of text in glyphs of the reference size, from x 0 along a baseline at y 0.
struct ShapedText {
  QList<QGlyphRun> runs;
  double width = 0;  // advance
};

// Shapes one line. Kerning is off: a text is as wide as its characters, as in existing labels.
// Control characters count as blanks. The result is kept for the next call with the same text and
// is valid until then.
const ShapedText& ShapeText(std::string_view text, const FontSpec& font);

// Draws one line in the painter's units, of which there are `pixels_per_inch`, from x along the
// baseline y. On paper it stays text in the reference size under a scale, whatever the painter's
// transform; on a raster it takes cached glyphs of the exact size, whole or not.
void PaintText(QPainter& painter, double x, double y_baseline, std::string_view text,
               const FontSpec& font, Color color, double pixels_per_inch);

// The finest step of a printed page, in inches: a thousandth of a millimetre. What lies on whole
// steps is written in few digits that repeat, which is most of what makes a page small.
constexpr double kPageStepsPerInch = 25400;

// Draws one line like PaintText, on a page that is not transformed but moved: glyphs of the exact
// size, each a whole number of page steps behind the one before it.
void PaintPageText(QPainter& painter, double x, double y_baseline, std::string_view text,
                   const FontSpec& font, Color color, double units_per_inch);

// The font service over the toolkit's fonts. An empty or unknown family measures and draws in a
// sans serif; a family that only has a metric twin, such as Arial, in the twin.
FontService& ToolkitFonts();

}  // namespace tagwright
