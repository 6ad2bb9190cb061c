// Faces: families of the toolkit in one style, at the one size that text is measured and drawn
// from.
#pragma once

#include <QFont>
#include <QRawFont>
#include <string>
#include <vector>

#include "platform/painting/fonts.h"

namespace tagwright {

// The size that text is shaped at; everything is linear in it.
constexpr double kReferencePixels = 1000;

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

// The face for a font, whatever its size; an empty or unknown family gives a sans serif. Good until
// the next call, which may forget all faces met so far.
Face& FaceOf(const FontSpec& wanted);

// How often all faces have been forgotten: whoever keeps something by a face's address drops it
// when this changes.
int FacesForgotten();

}  // namespace tagwright
