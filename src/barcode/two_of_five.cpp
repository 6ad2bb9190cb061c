#include "barcode/two_of_five.h"

#include <array>

#include "common/public_functions.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr std::int16_t kStart = -1;
constexpr std::int16_t kStop = -2;

// The published element widths of the form with narrow spaces (AIM USS-I 2/5), wide bars being two
// modules.
constexpr std::string_view kBarsStart = "212111";
constexpr std::string_view kBarsStop = "211121";
constexpr std::array<std::string_view, 10> kBars = {
    "1111212111", "2111111121", "1121111121", "2121111111", "1111211121",   // 0 to 4
    "2111211111", "1121211111", "1111112121", "2111112111", "1121112111"};  // 5 to 9

// ISO/IEC 16390, table 1: the five widths of a digit, as bars or as spaces.
constexpr std::string_view kPairsStart = "1111";
constexpr std::string_view kPairsStop = "211";
constexpr std::array<std::string_view, 10> kWidths = {"11221", "21112", "12112", "22111", "11212",
                                                      "21211", "12211", "11122", "21121", "12121"};

constexpr int Count(std::string_view widths, char width) {
  int count = 0;
  for (const char each : widths) count += each == width ? 1 : 0;
  return count;
}

constexpr bool TwoOfEachFiveAreWide() {
  for (std::size_t digit = 0; digit < 10; ++digit) {
    if (kWidths[digit].size() != 5 || Count(kWidths[digit], '2') != 2) return false;
    if (kBars[digit].size() != 10 || Count(kBars[digit], '2') != 2) return false;
  }
  return true;
}
static_assert(TwoOfEachFiveAreWide());

using Pair = std::array<char, 10>;

constexpr Pair Interleave(std::string_view bars, std::string_view spaces) {
  Pair pair{};
  for (std::size_t i = 0; i < bars.size(); ++i) {
    pair[2 * i] = bars[i];
    pair[2 * i + 1] = spaces[i];
  }
  return pair;
}

constexpr std::array<Pair, 100> kPairs = [] {
  std::array<Pair, 100> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = Interleave(kWidths[i / 10], kWidths[i % 10]);
  }
  return pairs;
}();

// The painter meets nothing but pairs and single digits, which need no locale to be read.
bool IsAboveZero(std::string_view pair) {
  const bool digits =
      !pair.empty() && pair.size() <= 2 && IsDigit(pair.front()) && IsDigit(pair.back());
  return digits ? pair.find_first_not_of('0') != std::string_view::npos : ToNumber(pair) > 0;
}

}  // namespace

std::string_view TwoOfFiveSymbol(std::int16_t Code) {
  if (Code == kStart) return kBarsStart;
  if (Code == kStop) return kBarsStop;
  return Code >= 0 && Code <= 9 ? kBars[static_cast<std::size_t>(Code)] : std::string_view();
}

std::string_view InterleavedSymbol(std::string_view Pair) {
  if (Pair == "-1") return kPairsStart;
  if (Pair == "-2") return kPairsStop;
  // Only numbers above zero are digits to paint: zero is taken for a start or a stop, being
  // neither.
  if (!IsAboveZero(Pair)) return {};
  if (!IsDigit(Pair.front()) || !IsDigit(Pair.back())) return {};
  const auto& widths =
      kPairs[static_cast<std::size_t>((Pair.front() - '0') * 10 + Pair.back() - '0')];
  return {widths.data(), widths.size()};
}

Patterns TwoOfFivePatterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size() + 2);
  patterns.push_back(TwoOfFiveSymbol(kStart));
  for (const char digit : Data) {
    patterns.push_back(TwoOfFiveSymbol(static_cast<std::int16_t>(digit - '0')));
  }
  patterns.push_back(TwoOfFiveSymbol(kStop));
  return patterns;
}

Patterns InterleavedPatterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size() / 2 + 3);
  patterns.push_back(InterleavedSymbol("-1"));
  for (std::size_t i = 0; i < Data.size(); i += 2) {
    patterns.push_back(InterleavedSymbol(Data.substr(i, 2)));
  }
  patterns.push_back(InterleavedSymbol("-2"));
  return patterns;
}

void DrawTwoOfFive(std::string_view Data, std::int16_t, float X, float Y, double Height,
                   double Width, bool PrintCharacters, double FontSize) {
  PaintSymbol(TwoOfFivePatterns(Data), Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

void DrawInterleaved(std::string_view Data, std::int16_t, float X, float Y, double Height,
                     double Width, bool PrintCharacters, double FontSize) {
  PaintSymbol(InterleavedPatterns(Data), Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

}  // namespace tagwright
