#include "qt/fonts/shaping.h"

#include <QFont>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>
#include <utility>

namespace tagwright {
namespace {

// Enough for every text of a large label; beyond, the past is forgotten whole.
constexpr std::size_t kShapesKept = 8192;

// The toolkit lays text out in 32 bits, of which 6 are a fraction: so many units and characters of
// the reference size keep clear of that.
constexpr double kWidestPart = 1e7;
constexpr qsizetype kLongestPart = 4096;

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

using Shapes = std::unordered_map<ShapeKey, CachedShape, ShapeKeyHash, ShapeKeyEqual>;

// A shape goes by the address of its face, and with it.
struct KnownShapes {
  Shapes shapes;
  int faces_forgotten = 0;
};

// Made with the first text, so that it goes before what the toolkit's fonts stand on.
Shapes& Known() {
  static KnownShapes known;
  if (known.faces_forgotten != FacesForgotten()) {
    known.shapes.clear();
    known.faces_forgotten = FacesForgotten();
  }
  return known.shapes;
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

}  // namespace

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

namespace {

ShapedText Shape(const QString& text, Face& face) {
  const std::optional<PlainLine> line = PlaceGlyphs(face, text, 1, 0);
  if (!line) return ShapeInFull(text, face.font);
  ShapedText shaped{{}, line->width};
  if (!line->marks.isEmpty()) shaped.runs.append(RunOf(*line, face.raw));
  return shaped;
}

}  // namespace

CachedShape& ShapeOf(std::string_view text, const FontSpec& font) {
  Face& face = FaceOf(font);
  Shapes& shapes = Known();
  const auto known = shapes.find(ShapeKeyView(&face, text));
  if (known != shapes.end()) return known->second;
  if (shapes.size() >= kShapesKept) shapes.clear();
  CachedShape shape{Shape(PlainText(text), face), 0, 0, {}};
  return shapes.emplace(ShapeKey{&face, std::string(text)}, std::move(shape)).first->second;
}

const ShapedText& ShapeText(std::string_view text, const FontSpec& font) {
  return ShapeOf(text, font).reference;
}

}  // namespace tagwright
