#include "barcode/postal.h"

#include <algorithm>
#include <array>

#include "platform/painting/scale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr int kNoOutline = 5;

// --- PostNet ---

// United States Postal Service, Domestic Mail Manual 708.4, in inches.
constexpr double kBarInches = 0.02;
constexpr double kGapInches = 0.026;
constexpr double kTallInches = 0.125;
constexpr double kShortInches = 0.05;
constexpr double kShortBelowTop = 1.9;  // millimetres

constexpr std::string_view kPostNetFrame = "2";

// The same, exhibit 4.2.1, digits 0 to 9; "2" is a tall bar.
constexpr std::array<std::string_view, 10> kPostNet = {
    "22111", "11122", "11212", "11221", "12112",   // 0 to 4
    "12121", "12211", "21112", "21121", "21211"};  // 5 to 9

constexpr bool TwoOfFiveAreTall() {
  for (const std::string_view bars : kPostNet) {
    if (bars.size() != 5 || std::ranges::count(bars, '2') != 2) return false;
    if (std::ranges::count(bars, '1') != 3) return false;
  }
  return true;
}
static_assert(TwoOfFiveAreTall());

// --- Royal Mail ---

constexpr double kBarWidth = 0.55;
constexpr double kBarGap = 0.55;

struct BarState {
  double below_top;
  double height;
};
constexpr std::array<BarState, 4> kBarStates = {{
    {0, 5},        // full
    {1.75, 3.25},  // lower
    {0, 3.25},     // upper
    {1.75, 1.5},   // short
}};

constexpr std::string_view kRoyalMailStart = "2";
constexpr std::string_view kRoyalMailStop = "0";

// In the order of the published 4-state customer code. A character's column in the check table
// changes every six characters, its row with each.
constexpr std::string_view kCharacters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

// Royal Mail, 4-state customer code, in the order of kCharacters.
constexpr std::array<std::string_view, 36> kRoyalMailBars = {
    "3300", "3120", "3102", "1320", "1302", "1122",   // 0 to 5
    "3210", "3030", "3012", "1230", "1212", "1032",   // 6 to B
    "3201", "3021", "3003", "1221", "1203", "1023",   // C to H
    "2310", "2130", "2112", "0330", "0312", "0132",   // I to N
    "2301", "2121", "2103", "0321", "0303", "0123",   // O to T
    "2211", "2031", "2013", "0231", "0213", "0033"};  // U to Z
static_assert(kCharacters.size() == kRoyalMailBars.size());

// Half of the four bars reach up (states 0 and 2) and half of them down (0 and 1).
constexpr bool TwoOfFourReachEachWay() {
  for (const std::string_view bars : kRoyalMailBars) {
    const auto count = [&](char state) { return std::ranges::count(bars, state); };
    if (bars.size() != 4 || count('0') + count('2') != 2 || count('0') + count('1') != 2) {
      return false;
    }
    if (count('0') != count('3')) return false;
  }
  return true;
}
static_assert(TwoOfFourReachEachWay());

constexpr std::size_t kSide = 6;  // rows and columns of the check table, numbered 1 to 5 and 0

// --- painting ---

void PaintPostalBar(double below_top) {
  const double left = CursorX, top = Finite(CursorY + below_top);
  Target().Line(left, top, Finite(left + ModuleWidth), Finite(top + BarHeight), 0);
}

void PassPostalBar() { CursorX = ToSingle(CursorX + ModuleWidth + BarGap); }

// The two postal routines trace nothing of their own, and a target without a style is no reason not
// to paint.
template <class PaintBars>
void PaintPostal(const Patterns& patterns, float x, float y, PaintBars paint_bars) {
  int style = 0;
  CursorX = x;
  CursorY = y;
  CarryOn([&] { style = Target().DrawStyle; });
  CarryOn([&] { Target().DrawStyle = kNoOutline; });
  for (const std::string_view pattern : patterns) paint_bars(pattern);
  CarryOn([&] { Target().DrawStyle = style; });
}

}  // namespace

std::string_view PostNetSymbol(std::string_view Digit) {
  if (Digit.size() != 1 || !IsDigit(Digit[0])) return {};
  return kPostNet[static_cast<std::size_t>(Digit[0] - '0')];
}

std::string_view RoyalMailSymbol(char Char) {
  if (Char == '(') return kRoyalMailStart;
  if (Char == ')') return kRoyalMailStop;
  const std::size_t index = kCharacters.find(Char);
  return index == std::string_view::npos ? std::string_view() : kRoyalMailBars[index];
}

char RoyalMailCheck(std::string_view Data) {
  std::size_t rows = 0, columns = 0;
  for (const char character : Data) {
    const std::size_t index = kCharacters.find(character);
    if (index == std::string_view::npos) continue;
    rows += (index % kSide + 1) % kSide;
    columns += (index / kSide + 1) % kSide;
  }
  const std::size_t row = (rows + kSide - 1) % kSide, column = (columns + kSide - 1) % kSide;
  return kCharacters[column * kSide + row];
}

Patterns PostNetPatterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size() + 3);
  patterns.push_back(kPostNetFrame);
  std::size_t sum = 0;
  for (std::size_t i = 0; i < Data.size(); ++i) {
    patterns.push_back(PostNetSymbol(Data.substr(i, 1)));
    sum += static_cast<std::size_t>(Data[i] - '0');
  }
  // 10, where the sum ends in 0, has no bars: such a symbol goes without its check digit.
  patterns.push_back(PostNetSymbol(std::to_string(10 - sum % 10)));
  patterns.push_back(kPostNetFrame);
  return patterns;
}

Patterns RoyalMailPatterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size() + 3);
  patterns.push_back(kRoyalMailStart);
  for (const char character : Data) patterns.push_back(RoyalMailSymbol(character));
  patterns.push_back(RoyalMailSymbol(RoyalMailCheck(Data)));
  patterns.push_back(kRoyalMailStop);
  return patterns;
}

void PaintPostNetBars(std::string_view Pattern) {
  for (const char digit : Pattern) {
    const bool is_short = digit == '1';
    ModuleWidth = Inches(kBarInches);
    BarGap = Inches(kGapInches);
    BarHeight = Inches(is_short ? kShortInches : kTallInches);
    EngineTraced([&] { PaintPostalBar(is_short ? kShortBelowTop : 0); });
    EngineTraced(PassPostalBar);
  }
}

void PaintRoyalMailBars(std::string_view Pattern) {
  double below_top = 0;
  for (const char digit : Pattern) {
    if (digit >= '0' && digit <= '3') {
      const BarState& state = kBarStates[static_cast<std::size_t>(digit - '0')];
      below_top = state.below_top;
      BarHeight = state.height;
    }
    ModuleWidth = kBarWidth;
    BarGap = kBarGap;
    EngineTraced([&] { PaintPostalBar(below_top); });
    EngineTraced(PassPostalBar);
  }
}

void DrawPostNet(std::string_view Data, float X, float Y) {
  PaintPostal(PostNetPatterns(Data), X, Y, PaintPostNetBars);
}

void DrawRoyalMail(std::string_view Data, float X, float Y) {
  PaintPostal(RoyalMailPatterns(Data), X, Y, PaintRoyalMailBars);
}

}  // namespace tagwright
