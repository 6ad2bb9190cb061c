#include "barcode/mod_bar_code.h"

#include <algorithm>
#include <array>
#include <cfloat>

#include "barcode/engine.h"
#include "barcode/formats.h"
#include "barcode/validation.h"

namespace tagwright {
namespace {

constexpr int kNoOutline = 5;

double BarRoom(const BarcodeFormatRow* format, double height, bool with_text) {
  if (!with_text) return height;
  const double line = Target().TextHeight("1");
  return Finite(format ? height - format->text_share * line : height);
}

std::int16_t PrepareTarget(double font_size) {
  std::int16_t mode = 0;
  EngineTraced([&] { mode = Narrowed<std::int16_t>(Target().DrawMode); });
  EngineTraced([&] { Target().DrawStyle = kNoOutline; });
  EngineTraced([&] { Target().DrawMode = kMaskPen; });
  EngineTraced([&] { Target().Font.Size = Finite(font_size); });
  EngineTraced([&] { Target().Font.Bold = false; });
  EngineTraced([&] { Target().Font.Italic = false; });
  EngineTraced([&] { Target().ForeColor = 0; });
  return mode;
}

bool CanCarry(const BarcodeFormatRow& format, std::string_view data) {
  const bool known =
      std::all_of(data.begin(), data.end(), [&](char c) { return format.set.Has(c); });
  return known && (format.limit == -1 || data.size() <= static_cast<std::size_t>(format.limit));
}

// --- the bar painter ---

// The text of a pattern: due until its first bar has been painted.
struct UnderText {
  double left;
  std::string_view text;
  bool due;
};

// One module stands for the space that a pattern begins with, however wide that is.
double TextLeft(std::string_view pattern) {
  return pattern.starts_with('0') ? CursorX + ModuleWidth : CursorX;
}

void PrintUnder(const UnderText& under) {
  EngineTraced([&] { Target().CurrentX = Finite(under.left); });
  EngineTraced([&] { Target().CurrentY = Finite(CursorY + BarHeight + 0.25); });
  EngineTraced([&] { Target().Print(under.text); });
}

constexpr std::size_t kElementsAtOnce = 32;  // even: each part begins with a bar as the whole does

// Where an element stands, unless it has no positive width.
struct Element {
  float left;
  double width;
};
using Elements = std::array<Element, kElementsAtOnce>;

// Apart, so that the way that is always gone stays a few instructions.
[[gnu::cold, gnu::noinline]] void TraceOverflow() {
  EngineTraced([] { RaiseFault(kOverflow); });
}

// Behind one element. What cannot be reached leaves the cursor where it is.
float Advanced(float left, double width) {
  if (!(width > 0)) return left;
  const double next = left + width;
  if (next <= FLT_MAX) return static_cast<float>(next);
  TraceOverflow();
  return left;
}

// CursorX ends behind them.
Elements PlaceElements(std::string_view digits) {
  const double module = ModuleWidth;
  Elements elements;
  float left = CursorX;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const double width = (digits[i] - '0') * module;
    elements[i] = {left, width};
    left = Advanced(left, width);
  }
  CursorX = left;
  return elements;
}

// Places first and paints afterwards: a place hangs on the one before it, which is slow enough
// without a call to the target between the two.
void PaintElements(std::string_view digits, UnderText& under) {
  const Elements elements = PlaceElements(digits);
  const double top = CursorY, bottom = top + BarHeight;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const double left = elements[i].left, width = elements[i].width, right = left + width;
    if (!(width > 0)) continue;
    EngineTraced([&] { Target().Line(left, top, Finite(right), Finite(bottom), 0); });
    if (under.due) PrintUnder(under);
    under.due = false;
  }
}

int DigitSum(std::string_view pattern) {
  int sum = 0;
  for (const char digit : pattern) sum += digit - '0';
  return sum;
}

// Digit by digit in 16 bits: one that does not fit any more is passed over. That is told once, not
// for each of the thousands of digits that may follow.
[[gnu::cold, gnu::noinline]] std::int16_t SumAsFarAsItGoes(const Patterns& patterns) {
  int sum = 0;
  for (const std::string_view pattern : patterns) {
    for (const char digit : pattern) {
      if (sum + digit - '0' <= INT16_MAX) sum += digit - '0';
    }
  }
  TraceOverflow();
  return static_cast<std::int16_t>(sum);
}

std::int16_t SumPatterns(const Patterns& patterns) {
  std::int64_t sum = 0;
  for (const std::string_view pattern : patterns) sum += SumPattern(pattern);
  return sum <= INT16_MAX ? static_cast<std::int16_t>(sum) : SumAsFarAsItGoes(patterns);
}

}  // namespace

void DrawBarcode(std::string& Data, const std::int16_t& Format, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize, const std::string& FontName) {
  if (Data.find_first_not_of(' ') == std::string::npos) return;
  if (!FontName.empty()) EngineTraced([&] { Target().Font.Name = FontName; });
  const std::int16_t mode = PrepareTarget(FontSize);
  double bars = Height;
  const BarcodeFormatRow* format = FormatRow(Format);
  EngineTraced([&] { bars = BarRoom(format, Height, PrintCharacters); });
  // A refusal leaves the target as it has been prepared: the next thing painted meets it that way.
  if (!format || !CanCarry(*format, Data)) return;
  format->paint(Data, Format, X, Y, bars, Width, PrintCharacters, FontSize);
  EngineTraced([&] { Target().DrawMode = mode; });
  EngineTraced([&] { Target().DrawStyle = 0; });
}

void PaintBarcodeOf(std::string Data, std::int16_t Format, float X, float Y, double Height,
                    double Width, bool PrintCharacters, double FontSize,
                    const std::string& FontName) {
  DrawBarcode(Data, Format, X, Y, Height, Width, PrintCharacters, FontSize, FontName);
}

void ResetBarcodeState() {
  ModuleWidth = BarHeight = BarGap = 0;
  CursorX = CursorY = 0;
  PrintChars = false;
  PatternSum = 0;
  CheckSum = 0;
  ValidChars.clear();
  MaxChars = 0;
}

void PaintPattern(std::string_view Pattern, std::string_view Text) {
  UnderText under{TextLeft(Pattern), Text, PrintChars};
  for (std::size_t i = 0; i < Pattern.size(); i += kElementsAtOnce) {
    PaintElements(Pattern.substr(i, kElementsAtOnce), under);
  }
}

void PaintPatterns(const Patterns& patterns) {
  for (const std::string_view pattern : patterns) PaintPattern(pattern);
}

std::int16_t SumPattern(std::string_view Pattern) {
  const int sum = DigitSum(Pattern);
  return sum <= INT16_MAX ? static_cast<std::int16_t>(sum) : SumAsFarAsItGoes({Pattern});
}

void MeasureModule(const Patterns& patterns, double Width, std::size_t gaps) {
  PatternSum = SumPatterns(patterns);
  ModuleWidth = Finite(Quotient(Width, PatternSum + static_cast<double>(gaps)));
}

void BeginSymbol(float X, float Y, double Height) {
  PrintChars = false;
  CursorX = X;
  CursorY = Y;
  BarHeight = Height;
}

void EndSymbol(std::string_view Data, float X, float Y, double Height, double Width,
               bool PrintCharacters, double FontSize) {
  if (!PrintCharacters) return;
  EngineTraced([&] { Target().Font.Size = Finite(FontSize); });
  EngineTraced([&] { Target().CurrentX = Finite(X + Width / 2 - Target().TextWidth(Data) / 2); });
  EngineTraced([&] { Target().CurrentY = Finite(Y + Height); });
  EngineTraced([&] { Target().Print(Data); });
}

void PaintSymbol(const Patterns& patterns, std::string_view Data, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize) {
  BeginSymbol(X, Y, Height);
  EngineTraced([&] { MeasureModule(patterns, Width); });
  PaintPatterns(patterns);
  EndSymbol(Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

}  // namespace tagwright
