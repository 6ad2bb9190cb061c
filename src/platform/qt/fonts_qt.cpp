#include "platform/qt/fonts_qt.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

#include "platform/qt/color_qt.h"

namespace tagwright {
namespace {

constexpr double kPointsPerInch = 72;

// Enough for every text and size of a large label at one zoom; beyond, the past is forgotten whole.
constexpr std::size_t kShapesKept = 8192;
constexpr std::size_t kSizedFontsKept = 128;
constexpr std::size_t kFacesKept = 1024;

// The toolkit lays text out in 32 bits, of which 6 are a fraction: so many units and characters of
// the reference size keep clear of that.
constexpr double kWidestPart = 1e7;
constexpr qsizetype kLongestPart = 4096;

// One family in one style, at the reference size.
struct Face {
  QFont font;
  double ascent = 0;
  double descent = 0;
};

// A shaped text and its glyphs at the size that a raster or a page last wanted.
struct CachedShape {
  ShapedText reference;
  double sized_pixels = 0;
  double step = 0;  // the glyphs stand on multiples of it; 0 anywhere
  QList<QGlyphRun> sized;
};

std::string FaceKey(const FontSpec& font) {
  return font.Name + (font.Bold ? "\x01" : "\x02") + (font.Italic ? "\x01" : "\x02");
}

template <class Map>
void Limit(Map& map, std::size_t most) {
  if (map.size() >= most) map.clear();
}

// Without hinting, so that the shape is the same at every size.
QFont ReferenceFont(const FontSpec& wanted) {
  QFont font(wanted.Name.empty() ? QStringLiteral("Sans Serif")
                                 : QString::fromStdString(wanted.Name));
  font.setPixelSize(static_cast<int>(kReferencePixels));
  font.setBold(wanted.Bold);
  font.setItalic(wanted.Italic);
  font.setStyleHint(QFont::SansSerif, QFont::PreferOutline);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(false);
  return font;
}

Face LoadFace(const FontSpec& wanted) {
  const QFont font = ReferenceFont(wanted);
  const QFontMetricsF metrics(font);
  return {font, metrics.ascent(), metrics.descent()};
}

const Face& FaceOf(const FontSpec& wanted) {
  static std::unordered_map<std::string, Face> faces;
  const std::string key = FaceKey(wanted);
  if (const auto known = faces.find(key); known != faces.end()) return known->second;
  Limit(faces, kFacesKept);
  return faces.emplace(key, LoadFace(wanted)).first->second;
}

// A tab or a stray line break would move the layout to places of its own.
QString PlainLine(std::string_view text) {
  QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  for (QChar& c : line) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
        c == QChar::ParagraphSeparator) {
      c = QLatin1Char(' ');
    }
  }
  return line;
}

// A blank leaves no mark, and a page that stored it would give it back as a tab: the toolkit names
// a glyph by the first character that uses it.
QGlyphRun WithoutBlanks(const QGlyphRun& run) {
  const QList<quint32> blanks = run.rawFont().glyphIndexesForString(QStringLiteral(" \u00A0"));
  const QList<quint32> glyphs = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  QList<quint32> marks;
  QList<QPointF> places;
  for (qsizetype i = 0; i < glyphs.size(); ++i) {
    if (blanks.contains(glyphs[i])) continue;
    marks.append(glyphs[i]);
    places.append(positions[i]);
  }
  QGlyphRun rest;
  rest.setRawFont(run.rawFont());
  rest.setGlyphIndexes(marks);
  rest.setPositions(places);
  return rest;
}

// A part of a line that is short enough for the toolkit's arithmetic.
ShapedText ShapePart(const QString& text, const QFont& font) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  if (!line.isValid()) return {};
  line.setLineWidth(kWidestPart);
  line.setPosition(QPointF(0, -line.ascent()));
  layout.endLayout();
  ShapedText shaped{{}, line.horizontalAdvance()};
  for (const QGlyphRun& run : layout.glyphRuns()) shaped.runs.append(WithoutBlanks(run));
  return shaped;
}

void Append(ShapedText& line, const ShapedText& part) {
  for (QGlyphRun run : part.runs) {
    QList<QPointF> positions = run.positions();
    for (QPointF& position : positions) position.rx() += line.width;
    run.setPositions(positions);
    line.runs.append(run);
  }
  line.width += part.width;
}

// What lies beyond the widest part is measured but not drawn: no paper is as wide.
ShapedText Shape(const QString& text, const QFont& font) {
  if (text.size() <= kLongestPart) return ShapePart(text, font);
  ShapedText line;
  for (qsizetype at = 0; at < text.size(); at += kLongestPart) {
    ShapedText part = ShapePart(text.mid(at, kLongestPart), font);
    if (line.width > kWidestPart) part.runs.clear();
    Append(line, part);
  }
  return line;
}

CachedShape& ShapeOf(std::string_view text, const FontSpec& font) {
  static std::unordered_map<std::string, CachedShape> shapes;
  std::string key = FaceKey(font).append(text);
  if (const auto known = shapes.find(key); known != shapes.end()) return known->second;
  Limit(shapes, kShapesKept);
  CachedShape shape{Shape(PlainLine(text), FaceOf(font).font), 0, 0, {}};
  return shapes.emplace(std::move(key), std::move(shape)).first->second;
}

// --- glyphs of a raster -------------------------------------------------------------------------

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
  Limit(fonts, kSizedFontsKept);
  QRawFont font = reference;
  font.setPixelSize(pixels);
  return fonts.emplace(key, font).first->second;
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

// --- service ------------------------------------------------------------------------------------

class ToolkitFontService : public FontService {
 public:
  double Width(std::string_view text, const FontSpec& font) override {
    return ShapeText(text, font).width * font.Size / kReferencePixels;
  }
  double Ascent(const FontSpec& font) override {
    return FaceOf(font).ascent * font.Size / kReferencePixels;
  }
  double Descent(const FontSpec& font) override {
    return FaceOf(font).descent * font.Size / kReferencePixels;
  }
  std::vector<std::string> Families() override;
};

// The toolkit tells families of the same name from several makers apart by "Name [Maker]".
std::string PlainFamily(const QString& family) {
  return family.section(QStringLiteral(" ["), 0, 0).toStdString();
}

std::vector<std::string> ToolkitFontService::Families() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isSmoothlyScalable(family)) continue;
    const std::string name = PlainFamily(family);
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

}  // namespace

const ShapedText& ShapeText(std::string_view text, const FontSpec& font) {
  return ShapeOf(text, font).reference;
}

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
  for (const QGlyphRun& run : SizedRuns(shape, pixels, 0)) painter.drawGlyphRun(start, run);
}

void PaintPageText(QPainter& painter, double x, double y_baseline, std::string_view text,
                   const FontSpec& font, Color color, double units_per_inch) {
  const double pixels = font.Size * units_per_inch / kPointsPerInch;
  const double step = units_per_inch / kPageStepsPerInch;
  painter.setPen(ToQColor(color));
  const QPointF start(x, y_baseline);
  for (const QGlyphRun& run : SizedRuns(ShapeOf(text, font), pixels, step)) {
    painter.drawGlyphRun(start, run);
  }
}

FontService& ToolkitFonts() {
  static ToolkitFontService fonts;
  return fonts;
}

}  // namespace tagwright
