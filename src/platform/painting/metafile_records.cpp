#include "platform/painting/metafile_records.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "platform/files/bytes.h"
#include "platform/painting/fonts.h"
#include "platform/painting/scale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
constexpr std::size_t kPlaceableLength = 22;
constexpr std::size_t kHeaderLength = 18;
constexpr std::size_t kRecordHead = 6;  // bytes: size in words, function
constexpr int kSetWindowOrg = 0x020B;
constexpr int kSetWindowExt = 0x020C;
constexpr int kCreateFont = 0x02FB;
constexpr int kRectangle = 0x041B;
constexpr int kRectangleWords = 7;
constexpr int kUnitsPerInch = 96;  // of a window that names none

// A rectangle of a header or a window, in the units of the drawing.
struct Frame {
  int left = 0, top = 0, right = 0, bottom = 0;
};

std::uint16_t Word(std::string_view bytes, std::size_t at) {
  return NumberAt<std::uint16_t>(bytes, at);
}

std::uint32_t Long(std::string_view bytes, std::size_t at) {
  return NumberAt<std::uint32_t>(bytes, at);
}

int Signed(std::string_view bytes, std::size_t at) {
  return static_cast<std::int16_t>(Word(bytes, at));
}

bool Placeable(std::string_view bytes) {
  return bytes.size() >= kPlaceableLength && Long(bytes, 0) == kPlaceableKey;
}

// Kinds 1 and 2 are metafiles in memory and on disk; the header counts itself in words.
bool PlainHeader(std::string_view bytes) {
  return bytes.size() >= kHeaderLength && (Word(bytes, 0) == 1 || Word(bytes, 0) == 2) &&
         Word(bytes, 2) == kHeaderLength / 2;
}

// Calls `visit` with the function and the bytes of each record. False when one does not fit.
template <class Visit>
bool WalkRecords(std::string_view bytes, Visit&& visit) {
  std::size_t at = kHeaderLength;
  while (at + kRecordHead <= bytes.size()) {
    const std::uint64_t length = std::uint64_t{Long(bytes, at)} * 2;
    if (length < kRecordHead || length > bytes.size() - at) return false;
    const std::string_view record = bytes.substr(at, length);
    const int function = Word(record, 4);
    if (function == 0) return true;
    visit(function, record);
    at += length;
  }
  return true;
}

// Every function that leaves marks. Before the first of them the drawing has set up its window.
bool Draws(int function) {
  constexpr std::array kDrawing = {0x0213, 0x0228, 0x0324, 0x0325, 0x0418, 0x0419, 0x041B,
                                   0x041F, 0x0429, 0x0521, 0x0538, 0x0548, 0x061C, 0x061D,
                                   0x0817, 0x081A, 0x0830, 0x0922, 0x012A, 0x012B, 0x0940,
                                   0x0A32, 0x0B23, 0x0B41, 0x0D33, 0x0F43};
  return std::find(kDrawing.begin(), kDrawing.end(), function) != kDrawing.end();
}

// The box of the placeable header; nothing when it is empty.
std::optional<Frame> HeaderBox(std::string_view bytes) {
  const Frame box{Signed(bytes, 6), Signed(bytes, 8), Signed(bytes, 10), Signed(bytes, 12)};
  if (box.left == box.right || box.top == box.bottom) return std::nullopt;
  return box;
}

// The window that the drawing has set up when it starts to draw; nothing when it names none or an
// empty one.
std::optional<Frame> FirstWindow(std::string_view bytes) {
  constexpr std::size_t kTwoParameters = kRecordHead + 4;
  int left = 0, top = 0, width = 0, height = 0;
  bool drawing = false;
  WalkRecords(bytes, [&](int function, std::string_view record) {
    drawing = drawing || Draws(function);
    if (record.size() < kTwoParameters || drawing) return;
    if (function == kSetWindowOrg) top = Signed(record, 6), left = Signed(record, 8);
    if (function == kSetWindowExt) height = Signed(record, 6), width = Signed(record, 8);
  });
  if (width == 0 || height == 0) return std::nullopt;
  return Frame{left, top, left + width, top + height};
}

bool Fits(const Frame& frame) {
  const auto fits = [](int v) { return v >= INT16_MIN && v <= INT16_MAX; };
  return fits(frame.left) && fits(frame.top) && fits(frame.right) && fits(frame.bottom);
}

void AppendWord(std::string& bytes, int value) {
  AppendNumber(bytes, static_cast<std::uint16_t>(value));
}

std::string RectangleRecord(const Frame& frame) {
  std::string record;
  for (int value :
       {kRectangleWords, 0, kRectangle, frame.bottom, frame.right, frame.top, frame.left}) {
    AppendWord(record, value);
  }
  return record;
}

// Where in `bytes` the first thing is drawn; nothing when none is.
std::optional<std::size_t> FirstDrawing(std::string_view bytes, std::size_t header) {
  std::optional<std::size_t> first;
  WalkRecords(bytes.substr(header), [&](int function, std::string_view record) {
    if (!first && Draws(function)) first = static_cast<std::size_t>(record.data() - bytes.data());
  });
  return first;
}

void PutFrame(Metafile& metafile, const Frame& frame, std::size_t header) {
  const std::optional<std::size_t> first = FirstDrawing(metafile.bytes, header);
  if (!first || !Fits(frame)) return;
  metafile.bytes.insert(*first, RectangleRecord(frame));
  metafile.framed = true;
}

// A player takes memory for the longest record that the header tells of, which may be any number.
void LimitLongestRecord(Metafile& metafile, std::size_t header) {
  constexpr std::size_t kLongestRecord = 12;  // where the header tells of it, in words
  std::size_t longest = 0;
  const std::string_view plain = std::string_view(metafile.bytes).substr(header);
  WalkRecords(
      plain, [&](int, std::string_view record) { longest = std::max(longest, record.size() / 2); });
  const std::size_t told = Long(plain, kLongestRecord);
  if (told <= longest && told >= kRectangleWords) return;
  std::string words;
  AppendNumber(words, static_cast<std::uint32_t>(longest));
  metafile.bytes.replace(header + kLongestRecord, words.size(), words);
}

void TakeSize(Metafile& metafile, const Frame& frame, int units_per_inch) {
  const double unit = kHundredthsPerInch / units_per_inch;
  metafile.width = std::abs(frame.right - frame.left) * unit;
  metafile.height = std::abs(frame.bottom - frame.top) * unit;
}

// --- fonts --------------------------------------------------------------------------------------

// A font record: height, width, escapement, orientation, weight (words), italic (byte), seven more
// bytes, the name.
constexpr std::size_t kFontHeight = kRecordHead;
constexpr std::size_t kFontWidth = kRecordHead + 2;
constexpr std::size_t kFontWeight = kRecordHead + 8;
constexpr std::size_t kFontItalic = kRecordHead + 10;
constexpr std::size_t kFontName = kRecordHead + 18;

FontSpec FontOf(std::string_view record) {
  constexpr int kSemiBold = 600;
  const std::string_view name = record.substr(kFontName);
  return {FromCodePage(name.substr(0, name.find('\0'))), 1, Word(record, kFontWeight) >= kSemiBold,
          record[kFontItalic] != 0};
}

double AverageWidth(const FontSpec& font) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  return Fonts().Width(kLetters, font) / kLetters.size();
}

void PutWord(std::string& bytes, std::size_t at, double value) {
  const int word = static_cast<int>(std::lround(std::clamp(value, -32767.0, 32767.0)));
  std::string pair;
  AppendWord(pair, word);
  bytes.replace(at, pair.size(), pair);
}

// A height above 0 is that of a line, below 0 of the letters' square; a width is that of an average
// letter. The player knows only squares, and takes width by height for the stretch.
void MeasureFont(std::string& bytes, std::size_t at, std::string_view record) {
  const FontSpec font = FontOf(record);
  const int told_height = Signed(record, kFontHeight);
  const int told_width = std::abs(Signed(record, kFontWidth));
  const double line = Fonts().Ascent(font) + Fonts().Descent(font);
  const double letter = AverageWidth(font);
  if (line <= 0 || letter <= 0) return;
  const double square = told_height > 0 ? told_height / line : -told_height;
  PutWord(bytes, at + kFontHeight, -square);
  if (told_width > 0) PutWord(bytes, at + kFontWidth, told_width / letter);
}

void MeasureFonts(std::string& bytes, std::size_t header) {
  const std::string original = bytes;
  const std::string_view plain = std::string_view(original).substr(header);
  WalkRecords(plain, [&](int function, std::string_view record) {
    if (function != kCreateFont || record.size() <= kFontName) return;
    MeasureFont(bytes, static_cast<std::size_t>(record.data() - original.data()), record);
  });
}

// --- symbols ------------------------------------------------------------------------------------

// Characters 0x20 to 0x7E and 0xA0 to 0xFE of the Symbol font.
constexpr std::u32string_view kSymbolLow =
    U" !∀#∃%&∋()∗+,−./0123456789:;<=>?≅ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖ[∴]⊥_‾αβχδεφγηιϕκλμνοπθρστυϖωξψζ{"
    U"|}∼";
constexpr std::u32string_view kSymbolHigh =
    U"€ϒ′≤⁄∞ƒ♣♦♥♠↔←↑→↓°±″≥×∝∂•÷≠≡≈…⏐⎯↵ℵℑℜ℘⊗⊕∅∩∪⊃⊇⊄⊂⊆∈∉∠∇®©™∏√⋅¬∧∨⇔⇐⇑⇒⇓◊〈®©™∑⎛⎜⎝⎡⎢⎣⎧⎨⎩⎪ "
    U"〉∫⌠⎮⌡⎞⎟⎠⎤⎥⎦⎫⎬⎭";

char32_t SymbolCharacter(unsigned char byte) {
  if (byte >= 0x20 && byte - 0x20u < kSymbolLow.size()) return kSymbolLow[byte - 0x20u];
  if (byte >= 0xA0 && byte - 0xA0u < kSymbolHigh.size()) return kSymbolHigh[byte - 0xA0u];
  return U' ';
}

}  // namespace

std::optional<Metafile> ParseMetafile(const std::string& bytes) {
  const bool placeable = Placeable(bytes);
  const std::size_t header = placeable ? kPlaceableLength : 0;
  const std::string_view plain = std::string_view(bytes).substr(header);
  if (!PlainHeader(plain) || !WalkRecords(plain, [](int, std::string_view) {})) return std::nullopt;
  const std::optional<Frame> window = FirstWindow(plain);
  const std::optional<Frame> box = placeable ? HeaderBox(bytes) : window;
  if (placeable && !box) return std::nullopt;
  Metafile metafile{bytes};
  MeasureFonts(metafile.bytes, header);
  if (box) {
    const int units = placeable ? Word(bytes, 14) : 0;
    TakeSize(metafile, *box, units > 0 ? units : kUnitsPerInch);
    PutFrame(metafile, window ? *window : *box, header);
  }
  LimitLongestRecord(metafile, header);
  return metafile;
}

std::string SymbolText(std::string_view bytes) {
  std::u32string text;
  for (const char byte : bytes) text += SymbolCharacter(static_cast<unsigned char>(byte));
  return FromCharacters(text);
}

}  // namespace tagwright
