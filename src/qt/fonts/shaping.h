// Text as shapes: glyphs and their places at one reference size.
//
// The toolkit rounds a font to whole pixels before it measures or draws, which makes the same text
// up to some per cent wider or narrower from zoom to zoom. Here a text is shaped once, at a size
// where rounding does not matter, and every other size is that shape under a scale.
#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <optional>
#include <string_view>

#include "platform/painting/fonts.h"
#include "qt/fonts/faces.h"

namespace tagwright {

// A line of text in glyphs of the reference size, from x 0 along a baseline at y 0.
struct ShapedText {
  QList<QGlyphRun> runs;
  double width = 0;  // advance
};

// Shapes one line. Kerning is off: a text is as wide as its characters, as in existing labels.
// Control characters count as blanks. The result is kept for the next call with the same text and
// is valid until then.
const ShapedText& ShapeText(std::string_view text, const FontSpec& font);

// A shaped text and its glyphs at the size that a raster or a page last wanted.
struct CachedShape {
  ShapedText reference;
  double sized_pixels = 0;
  double step = 0;  // the glyphs stand on multiples of it; 0 anywhere
  QList<QGlyphRun> sized;
};

// As ShapeText, with what is kept of it for painting; as long valid.
CachedShape& ShapeOf(std::string_view text, const FontSpec& font);

// The text as it is shown: control characters and line ends are blanks.
QString PlainText(std::string_view text);

// Marks with their places in units of which `scale` make one of the reference size, each advance
// moved onto `step` where there is one.
struct PlainLine {
  QList<quint32> marks;
  QList<QPointF> places;
  double width = 0;
};

// The marks of a text whose characters all stand for themselves. Nothing where the line has to be
// shaped in full. What lies beyond the widest part is measured but not placed, as there.
std::optional<PlainLine> PlaceGlyphs(Face& face, QStringView text, double scale, double step);

QGlyphRun RunOf(const PlainLine& line, const QRawFont& font);

}  // namespace tagwright
