#include "qt/fonts/faces.h"

#include <QFontMetricsF>
#include <QString>
#include <unordered_map>

namespace tagwright {
namespace {

constexpr std::size_t kFacesKept = 256;  // beyond, the past is forgotten whole

struct KnownFaces {
  std::unordered_map<std::string, Face> faces;
  Face* latest = nullptr;
  int forgotten = 0;
};

// Made with the first text, so that it goes before what the toolkit's fonts stand on.
KnownFaces& Known() {
  static KnownFaces known;
  return known;
}

void ForgetFaces(KnownFaces& known) {
  known.latest = nullptr;
  known.faces.clear();
  ++known.forgotten;
}

std::string FaceKey(const FontSpec& font) {
  return font.Name + (font.Bold ? "\x01" : "\x02") + (font.Italic ? "\x01" : "\x02");
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

}  // namespace

// A label asks for the same face many times over before it asks for another.
Face& FaceOf(const FontSpec& wanted) {
  KnownFaces& known = Known();
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

int FacesForgotten() { return Known().forgotten; }

}  // namespace tagwright
