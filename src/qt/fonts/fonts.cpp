#include "qt/fonts/fonts.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/painting/scale.h"
#include "qt/look/colors.h"

namespace tagwright {
namespace {

// Enough for every text and size of a large label at one zoom; beyond, the past is forgotten whole.
constexpr std::size_t kShapesKept = 8192;
constexpr std::size_t kSizedFontsKept = 128;
constexpr std::size_t kFacesKept = 256;

// The toolkit lays text out in 32 bits, of which 6 are a fraction: so many units and characters of
// the reference size keep clear of that.
constexpr double kWidestPart = 1e7;
constexpr qsizetype kLongestPart = 4096;

// A character that stands for itself: one glyph, however its neighbours look.
struct PlainGlyph {
  enum class State : char { kUnknown, kPlain, kBlank, kNone };  // kNone: to be shaped in full
  State state = State::kUnknown;
  quint32 glyph = 0;
  double advance = 0;
};

// The alphabets of which each character is a glyph of its own: Latin, Greek and Cyrillic.
constexpr char16_t kPlainCharacters = 0x0530;

// One family in one style, at the reference size.
struct Face {
  std::string name;
  bool bold = false;
  bool italic = false;
  QFont font;
  double ascent = 0;
  double descent = 0;
  QRawFont raw;  // of the plain glyphs
  std::vector<PlainGlyph> plain = std::vector<PlainGlyph>(kPlainCharacters);
  double sized_pixels = 0;  // what a page last wanted
  QRawFont sized;
};

struct ShapeKey {
  const Face* face;
  std::string text;
};

struct ShapeKeyView {
  const Face* face;
  std::string_view text;
  ShapeKeyView(const Face* of, std::string_view said) : face(of), text(said) {}
  ShapeKeyView(const ShapeKey& key) : face(key.face), text(key.text) {}
  bool operator==(const ShapeKeyView&) const = default;
};

// Found without a copy of the text.
struct ShapeKeyHash {
  using is_transparent = void;
  std::size_t operator()(const ShapeKeyView& key) const {
    return std::hash<std::string_view>()(key.text) ^ std::hash<const Face*>()(key.face);
  }
};
struct ShapeKeyEqual {
  using is_transparent = void;
  bool operator()(const ShapeKeyView& a, const ShapeKeyView& b) const { return a == b; }
};

// A shaped text and its glyphs at the size that a raster or a page last wanted.
struct CachedShape {
  ShapedText reference;
  double sized_pixels = 0;
  double step = 0;  // the glyphs stand on multiples of it; 0 anywhere
  QList<QGlyphRun> sized;
};

// What is known of fonts so far. A shape goes by the address of its face, and with it.
struct KnownFonts {
  std::unordered_map<std::string, Face> faces;
  Face* latest = nullptr;
  std::unordered_map<ShapeKey, CachedShape, ShapeKeyHash, ShapeKeyEqual> shapes;
};

// Made with the first text, so that it goes before what the toolkit's fonts stand on.
KnownFonts& Known() {
  static KnownFonts known;
  return known;
}

void ForgetFaces(KnownFonts& known) {
  known.shapes.clear();
  known.latest = nullptr;
  known.faces.clear();
}

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
  Face face;
  face.name = wanted.Name;
  face.bold = wanted.Bold;
  face.italic = wanted.Italic;
  face.font = font;
  face.ascent = metrics.ascent();
  face.descent = metrics.descent();
  return face;
}

bool IsOf(const FontSpec& wanted, const Face& face) {
  return wanted.Name == face.name && wanted.Bold == face.bold && wanted.Italic == face.italic;
}

// A label asks for the same face many times over before it asks for another.
Face& FaceOf(const FontSpec& wanted) {
  KnownFonts& known = Known();
  if (known.latest && IsOf(wanted, *known.latest)) return *known.latest;
  const std::string key = FaceKey(wanted);
  auto face = known.faces.find(key);
  if (face == known.faces.end()) {
    if (known.faces.size() >= kFacesKept) ForgetFaces(known);
    face = known.faces.emplace(key, LoadFace(wanted)).first;
  }
  known.latest = &face->second;
  return *known.latest;
}

// A tab or a stray line break would move the layout to places of its own.
QString PlainText(std::string_view text) {
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
ShapedText ShapeInFull(const QString& text, const QFont& font) {
  if (text.size() <= kLongestPart) return ShapePart(text, font);
  ShapedText line;
  for (qsizetype at = 0; at < text.size(); at += kLongestPart) {
    ShapedText part = ShapePart(text.mid(at, kLongestPart), font);
    if (line.width > kWidestPart) part.runs.clear();
    Append(line, part);
  }
  return line;
}

// --- plain characters ---------------------------------------------------------------------------

// Shaping is most of the work of a printed text, and each label has other texts. Without kerning a
// text of plain characters is what they are one by one, so that each is shaped only once.

bool IsBlank(char16_t c) { return c == u' ' || c == u'\u00A0'; }

// Marks join what stands before them, and a soft hyphen mostly is not there.
bool CanBePlain(char16_t c) {
  if (c < 0x20 || c >= kPlainCharacters || c == 0xAD || (c >= 0x7F && c < 0xA0)) return false;
  return !(c >= 0x0300 && c < 0x0370) && !(c >= 0x0483 && c < 0x048A);
}

// A glyph that another face had to lend is not plain: it belongs to that face.
PlainGlyph LearnGlyph(Face& face, char16_t c) {
  using State = PlainGlyph::State;
  const ShapedText shape = ShapePart(QString(QChar(c)), face.font);
  if (IsBlank(c)) return {State::kBlank, 0, shape.width};
  if (shape.runs.size() != 1 || shape.runs[0].glyphIndexes().size() != 1) return {State::kNone};
  const QGlyphRun& run = shape.runs[0];
  if (!face.raw.isValid()) face.raw = QRawFont::fromFont(face.font);
  const bool own = run.rawFont() == face.raw && run.positions()[0].isNull();
  return {own ? State::kPlain : State::kNone, run.glyphIndexes()[0], shape.width};
}

const PlainGlyph& GlyphOf(Face& face, char16_t c) {
  PlainGlyph& glyph = face.plain[c];
  if (glyph.state == PlainGlyph::State::kUnknown) glyph = LearnGlyph(face, c);
  return glyph;
}

// Marks with their places in units of which `scale` make one of the reference size, each advance
// moved onto `step` where there is one.
struct PlainLine {
  QList<quint32> marks;
  QList<QPointF> places;
  double width = 0;
};

// Nothing where the line has to be shaped in full. What lies beyond the widest part is measured but
// not placed, as there.
std::optional<PlainLine> PlaceGlyphs(Face& face, QStringView text, double scale, double step) {
  PlainLine line;
  line.marks.reserve(text.size());
  line.places.reserve(text.size());
  for (const QChar c : text) {
    if (!CanBePlain(c.unicode())) return std::nullopt;
    const PlainGlyph& glyph = GlyphOf(face, c.unicode());
    if (glyph.state == PlainGlyph::State::kNone) return std::nullopt;
    if (glyph.state == PlainGlyph::State::kPlain && line.width <= kWidestPart) {
      line.marks.append(glyph.glyph);
      line.places.append(QPointF(line.width, 0));
    }
    const double advance = glyph.advance * scale;
    line.width += step > 0 ? std::round(advance / step) * step : advance;
  }
  return line;
}

QGlyphRun RunOf(const PlainLine& line, const QRawFont& font) {
  QGlyphRun run;
  run.setRawFont(font);
  run.setGlyphIndexes(line.marks);
  run.setPositions(line.places);
  return run;
}

ShapedText Shape(const QString& text, Face& face) {
  const std::optional<PlainLine> line = PlaceGlyphs(face, text, 1, 0);
  if (!line) return ShapeInFull(text, face.font);
  ShapedText shaped{{}, line->width};
  if (!line->marks.isEmpty()) shaped.runs.append(RunOf(*line, face.raw));
  return shaped;
}

CachedShape& ShapeOf(std::string_view text, const FontSpec& font) {
  Face& face = FaceOf(font);
  auto& shapes = Known().shapes;
  const auto known = shapes.find(ShapeKeyView(&face, text));
  if (known != shapes.end()) return known->second;
  Limit(shapes, kShapesKept);
  CachedShape shape{Shape(PlainText(text), face), 0, 0, {}};
  return shapes.emplace(ShapeKey{&face, std::string(text)}, std::move(shape)).first->second;
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

bool Holds(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

void AddOnce(std::vector<std::string>& names, const std::string& name) {
  if (!Holds(names, name)) names.push_back(name);
}

// Labels name these fonts, "Arial" the defaults too. Where a twin of the same measures answers to
// the name, the name is one to choose, or nobody could choose the default font.
void AddNamesOfTwins(std::vector<std::string>& names) {
  constexpr std::pair<const char*, const char*> kTwins[] = {{"Liberation Sans", "Arial"},
                                                            {"Liberation Serif", "Times New Roman"},
                                                            {"Liberation Mono", "Courier New"}};
  for (const auto& [twin, name] : kTwins) {
    if (Holds(names, twin)) AddOnce(names, name);
  }
}

std::vector<std::string> ToolkitFontService::Families() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (QFontDatabase::isSmoothlyScalable(family)) AddOnce(names, PlainFamily(family));
  }
  AddNamesOfTwins(names);
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

FontService& ToolkitFonts() {
  static ToolkitFontService fonts;
  return fonts;
}

}  // namespace tagwright
