#include "qt/fonts/text_painting.h"

#include <QGlyphRun>
#include <QList>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "platform/painting/scale.h"
#include "qt/fonts/faces.h"
#include "qt/fonts/page_steps.h"
#include "qt/fonts/shaping.h"
#include "qt/look/colors.h"

namespace tagwright {
namespace {

constexpr std::size_t kSizedFontsKept = 128;  // beyond, the past is forgotten whole

struct SizedFontKey {
  QRawFont reference;
  double pixels;
  bool operator==(const SizedFontKey&) const = default;
};

struct SizedFontHash {
  std::size_t operator()(const SizedFontKey& key) const {
    return qHash(key.reference) ^ std::hash<double>()(key.pixels);
  }
};

// Kept, because a font made anew would also render its glyphs anew.
const QRawFont& SizedFont(const QRawFont& reference, double pixels) {
  static std::unordered_map<SizedFontKey, QRawFont, SizedFontHash> fonts;
  const SizedFontKey key{reference, pixels};
  if (const auto known = fonts.find(key); known != fonts.end()) return known->second;
  if (fonts.size() >= kSizedFontsKept) fonts.clear();
  QRawFont font = reference;
  font.setPixelSize(pixels);
  return fonts.emplace(key, font).first->second;
}

const QRawFont& SizedFace(Face& face, double pixels) {
  if (face.sized_pixels != pixels) face.sized = SizedFont(face.raw, pixels);
  face.sized_pixels = pixels;
  return face.sized;
}

// Steps are taken between neighbours, so that equal letters have equal distances wherever they
// stand. What that adds up to is far below what can be seen.
void MoveOntoSteps(QList<QPointF>& positions, double step) {
  QPointF before, moved_before;
  for (QPointF& position : positions) {
    const QPointF distance = position - before;
    before = position;
    position = moved_before + QPointF(std::round(distance.x() / step) * step,
                                      std::round(distance.y() / step) * step);
    moved_before = position;
  }
}

QGlyphRun SizedRun(const QGlyphRun& reference, double pixels, double step) {
  QList<QPointF> positions = reference.positions();
  for (QPointF& position : positions) position *= pixels / kReferencePixels;
  if (step > 0) MoveOntoSteps(positions, step);
  QGlyphRun run;
  run.setRawFont(SizedFont(reference.rawFont(), pixels));
  run.setGlyphIndexes(reference.glyphIndexes());
  run.setPositions(positions);
  return run;
}

const QList<QGlyphRun>& SizedRuns(CachedShape& shape, double pixels, double step) {
  if (shape.sized_pixels == pixels && shape.step == step) return shape.sized;
  shape.sized.clear();
  for (const QGlyphRun& run : shape.reference.runs) {
    shape.sized.append(SizedRun(run, pixels, step));
  }
  shape.sized_pixels = pixels;
  shape.step = step;
  return shape.sized;
}

void PaintReference(QPainter& painter, const QPointF& start, const ShapedText& shape,
                    double pixels) {
  painter.save();
  painter.translate(start);
  painter.scale(pixels / kReferencePixels, pixels / kReferencePixels);
  for (const QGlyphRun& run : shape.runs) painter.drawGlyphRun(QPointF(), run);
  painter.restore();
}

bool PaintsPixels(const QPainter& painter) {
  return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

// Metafiles can draw text out far more one way than the other. The toolkit finds no bitmap for such
// glyphs, and reads it all the same.
bool IsDrawnOut(const QTransform& to_device) {
  constexpr double kMost = 8;
  const double across = std::hypot(to_device.m11(), to_device.m12());
  const double down = std::hypot(to_device.m21(), to_device.m22());
  return std::max(across, down) > kMost * std::min(across, down);
}

void PaintOutlines(QPainter& painter, const QPointF& start, const ShapedText& shape,
                   double pixels) {
  painter.save();
  painter.translate(start);
  painter.scale(pixels / kReferencePixels, pixels / kReferencePixels);
  for (const QGlyphRun& run : shape.runs) {
    for (qsizetype i = 0; i < run.glyphIndexes().size(); ++i) {
      const QPainterPath outline = run.rawFont().pathForGlyph(run.glyphIndexes()[i]);
      painter.fillPath(outline.translated(run.positions()[i]), painter.pen().color());
    }
  }
  painter.restore();
}

}  // namespace

void PaintText(QPainter& painter, double x, double y_baseline, std::string_view text,
               const FontSpec& font, Color color, double pixels_per_inch) {
  const double pixels = font.Size * pixels_per_inch / kPointsPerInch;
  CachedShape& shape = ShapeOf(text, font);
  painter.setPen(ToQColor(color));
  const QPointF start(x, y_baseline);
  if (!PaintsPixels(painter)) {
    PaintReference(painter, start, shape.reference, pixels);
    return;
  }
  if (IsDrawnOut(painter.deviceTransform())) {
    PaintOutlines(painter, start, shape.reference, pixels);
    return;
  }
  for (const QGlyphRun& run : SizedRuns(shape, pixels, 0)) painter.drawGlyphRun(start, run);
}

// Not kept like the texts of a board: the next label has others.
void PaintPageText(QPainter& painter, double x, double y_baseline, std::string_view text,
                   const FontSpec& font, Color color, double units_per_inch) {
  const double pixels = font.Size * units_per_inch / kPointsPerInch;
  const double step = units_per_inch / kPageStepsPerInch;
  painter.setPen(ToQColor(color));
  const QPointF start(x, y_baseline);
  Face& face = FaceOf(font);
  const auto line = PlaceGlyphs(face, PlainText(text), pixels / kReferencePixels, step);
  if (line) {
    if (!line->marks.isEmpty()) painter.drawGlyphRun(start, RunOf(*line, SizedFace(face, pixels)));
    return;
  }
  for (const QGlyphRun& run : SizedRuns(ShapeOf(text, font), pixels, step)) {
    painter.drawGlyphRun(start, run);
  }
}

}  // namespace tagwright
