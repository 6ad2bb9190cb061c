#include "barcode/code_128.h"

#include <array>
#include <cmath>

#include "barcode/engine.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

enum CodeSets : std::int16_t { kSetA = 0, kSetC = 2 };

constexpr int kRows = 103;          // by number; the starts and the stop answer to their names
constexpr int kCharacterRows = 95;  // by character: ASCII 32 to 126
constexpr int kFirstStart = 103;
constexpr int kStop = 106;
constexpr int kNoRow = -1;

// ISO/IEC 15417, table 1, element widths by symbol value, with one departure: value 28 ("<") is one
// module wider in its fifth element than the published "322112", and so are all its symbols.
constexpr std::array<std::string_view, 107> kPatterns = {
    "212222", "222122", "222221", "121223", "121322",  // 0
    "131222", "122213", "122312", "132212", "221213",  // 5
    "221312", "231212", "112232", "122132", "122231",  // 10
    "113222", "123122", "123221", "223211", "221132",  // 15
    "221231", "213212", "223112", "312131", "311222",  // 20
    "321122", "321221", "312212", "322122", "322211",  // 25
    "212123", "212321", "232121", "111323", "131123",  // 30
    "131321", "112313", "132113", "132311", "211313",  // 35
    "231113", "231311", "112133", "112331", "132131",  // 40
    "113123", "113321", "133121", "313121", "211331",  // 45
    "231131", "213113", "213311", "213131", "311123",  // 50
    "311321", "331121", "312113", "312311", "332111",  // 55
    "314111", "221411", "431111", "111224", "111422",  // 60
    "121124", "121421", "141122", "141221", "112214",  // 65
    "112412", "122114", "122411", "142112", "142211",  // 70
    "241211", "221114", "413111", "241112", "134111",  // 75
    "111242", "121142", "121241", "114212", "124112",  // 80
    "124211", "411212", "421112", "421211", "212141",  // 85
    "214121", "412121", "111143", "111341", "131141",  // 90
    "114113", "114311", "411113", "411311", "113141",  // 95
    "114131", "311141", "411131", "211412", "211214",  // 100
    "211232", "2331112"};                              // 105, stop

constexpr bool WidthsAddUp() {
  for (std::size_t row = 0; row < kPatterns.size(); ++row) {
    int sum = 0;
    for (const char width : kPatterns[row]) sum += width - '0';
    const int expected = row == 28 ? 12 : row == kStop ? 13 : 11;
    if (sum != expected || kPatterns[row].size() != (row == kStop ? 7 : 6)) return false;
  }
  return true;
}
static_assert(WidthsAddUp());

// Of one to three digits; kNoRow for anything else and beyond the rows.
int RowOfDigits(std::string_view digits) {
  if (digits.empty() || digits.size() > 3) return kNoRow;
  int number = 0;
  for (const char digit : digits) {
    if (!IsDigit(digit)) return kNoRow;
    number = number * 10 + (digit - '0');
  }
  return number < kRows ? number : kNoRow;
}

// The number must be written as the row's own: "05" is no row.
int RowOfNumber(std::string_view key) {
  return key.starts_with('0') && key.size() > 1 ? kNoRow : RowOfDigits(key);
}

int RowOfCharacter(std::string_view key) {
  if (key.size() != 1) return kNoRow;
  const int row = static_cast<unsigned char>(key[0]) - ' ';
  return row >= 0 && row < kCharacterRows ? row : kNoRow;
}

// Code set 2 goes by the number that the text is, however it is written: "05" is row 5.
int RowOfPair(std::string_view value) {
  const int row = RowOfDigits(value);
  if (row != kNoRow) return row;
  const double number = ParseNumber(value).value_or(kNoRow);
  const bool known = number >= 0 && number < kRows && std::floor(number) == number;
  return known ? static_cast<int>(number) : kNoRow;
}

int RowOf(std::string_view value, bool as_character, std::int16_t code_set) {
  if (value == "start") return kFirstStart + code_set;
  if (value == "stop") return kStop;
  if (code_set == kSetC) return RowOfPair(value);
  return as_character ? RowOfCharacter(value) : RowOfNumber(value);
}

void CountIn(int value, std::int16_t multiplier) {
  if (multiplier == -1) return;
  const std::int64_t sum = CheckSum + std::int64_t{value} * multiplier;
  CheckSum = multiplier == 0 ? value : Narrowed<std::int32_t>(sum);
}

}  // namespace

std::string_view Code128Symbol(std::string_view Value, std::int16_t Multiplier, bool UseKeyPrefix,
                               std::int16_t CodeSet) {
  const int row = RowOf(Value, UseKeyPrefix, CodeSet);
  const int value = row == kNoRow ? 0 : row;
  EngineTraced([&] { CountIn(value, Multiplier); });
  // A check value in this range leaves the check character out of a symbol of code set A.
  const bool blanked = CodeSet == kSetA && value >= 64 && value < kRows;
  return row == kNoRow || blanked ? std::string_view() : kPatterns[static_cast<std::size_t>(row)];
}

std::string Code128Check() {
  CheckSum %= 103;
  return std::to_string(CheckSum);
}

Patterns Code128Patterns(std::string_view Data, std::int16_t CodeSet) {
  const std::size_t step = CodeSet == kSetC ? 2 : 1;
  Patterns patterns;
  patterns.reserve(Data.size() / step + 4);
  patterns.push_back(Code128Symbol("start", 0, true, CodeSet));
  std::int16_t position = 0;
  for (std::size_t i = 0; i < Data.size(); i += step) {
    EngineTraced([&] { position = Narrowed<std::int16_t>(position + 1); });
    patterns.push_back(Code128Symbol(Data.substr(i, step), position, true, CodeSet));
  }
  patterns.push_back(Code128Symbol(Code128Check(), -1, false, CodeSet));
  patterns.push_back(Code128Symbol("stop", -1, true, CodeSet));
  return patterns;
}

void DrawCode128(std::string_view Data, std::int16_t CodeSet, float X, float Y, double Height,
                 double Width, bool PrintCharacters, double FontSize) {
  BeginSymbol(X, Y, Height);
  // Stands until the symbol is measured.
  EngineTraced(
      [&] { ModuleWidth = Finite(Quotient(Width, static_cast<double>(Data.size()) * 11)); });
  const Patterns patterns = Code128Patterns(Data, CodeSet);
  EngineTraced([&] { MeasureModule(patterns, Width); });
  PaintPatterns(patterns);
  EndSymbol(Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

}  // namespace tagwright
