#include "barcode/code_39.h"

#include <array>

namespace tagwright {
namespace {

struct Row {
  char character;
  std::string_view widths;
};

// ISO/IEC 16388, table 1, with one departure: the last bar of "5" is wide too ("211221111" is
// published), so that it is one module wider than the others.
constexpr std::array<Row, 44> kRows = {{
    {'1', "211211112"}, {'2', "112211112"}, {'3', "212211111"}, {'4', "111221112"},
    {'5', "211221112"}, {'6', "112221111"}, {'7', "111211212"}, {'8', "211211211"},
    {'9', "112211211"}, {'0', "111221211"}, {'A', "211112112"}, {'B', "112112112"},
    {'C', "212112111"}, {'D', "111122112"}, {'E', "211122111"}, {'F', "112122111"},
    {'G', "111112212"}, {'H', "211112211"}, {'I', "112112211"}, {'J', "111122211"},
    {'K', "211111122"}, {'L', "112111122"}, {'M', "212111121"}, {'N', "111121122"},
    {'O', "211121121"}, {'P', "112121121"}, {'Q', "111111222"}, {'R', "211111221"},
    {'S', "112111221"}, {'T', "111121221"}, {'U', "221111112"}, {'V', "122111112"},
    {'W', "222111111"}, {'X', "121121112"}, {'Y', "221121111"}, {'Z', "122121111"},
    {'-', "121111212"}, {'.', "221111211"}, {' ', "122111211"}, {'*', "121121211"},
    {'$', "121212111"}, {'/', "121211121"}, {'+', "121112121"}, {'%', "111212121"},
}};

constexpr int Sum(std::string_view widths) {
  int sum = 0;
  for (const char width : widths) sum += width - '0';
  return sum;
}

constexpr bool WidthsAddUp() {
  for (const Row& row : kRows) {
    if (row.widths.size() != 9 || Sum(row.widths) != (row.character == '5' ? 13 : 12)) return false;
  }
  return true;
}
static_assert(WidthsAddUp());

constexpr std::string_view WidthsOf(char character) {
  for (const Row& row : kRows) {
    if (row.character == character) return row.widths;
  }
  return {};
}

using ByCharacter = std::array<std::string_view, 128>;

constexpr ByCharacter kByCharacter = [] {
  ByCharacter table{};
  for (const Row& row : kRows) table[static_cast<std::size_t>(row.character)] = row.widths;
  return table;
}();

// --- full ASCII ---

// ISO/IEC 16388, table A.1, from the blank to "~", with one departure: the grave accent has the
// code of "{" (published is "%W").
constexpr std::array<std::string_view, 95> kCodes = {
    " ",  "/A", "/B", "/C", "/D", "/E", "/F", "/G", "/H", "/I", "/J", "/K", "/L", "-",  ".",  "/O",
    "0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "/Z", "%F", "%G", "%H", "%I", "%J",
    "%V", "A",  "B",  "C",  "D",  "E",  "F",  "G",  "H",  "I",  "J",  "K",  "L",  "M",  "N",  "O",
    "P",  "Q",  "R",  "S",  "T",  "U",  "V",  "W",  "X",  "Y",  "Z",  "%K", "%L", "%M", "%N", "%O",
    "%P", "+A", "+B", "+C", "+D", "+E", "+F", "+G", "+H", "+I", "+J", "+K", "+L", "+M", "+N", "+O",
    "+P", "+Q", "+R", "+S", "+T", "+U", "+V", "+W", "+X", "+Y", "+Z", "%P", "%Q", "%R", "%S"};

struct ExtendedSymbol {
  std::array<char, 20> widths{};
  std::size_t length = 0;

  constexpr void Append(std::string_view part) {
    for (const char width : part) widths[length++] = width;
  }
};

// The "1" behind each character is the narrow space that parts it from the next one; between the
// two of a pair it lies inside the pattern.
constexpr std::array<ExtendedSymbol, 95> kExtended = [] {
  std::array<ExtendedSymbol, 95> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    for (const char character : kCodes[i]) {
      table[i].Append(WidthsOf(character));
      table[i].Append("1");
    }
  }
  return table;
}();

constexpr bool SymbolsAreWhole() {
  for (std::size_t i = 0; i < kCodes.size(); ++i) {
    if (kExtended[i].length != kCodes[i].size() * 10) return false;
  }
  return true;
}
static_assert(SymbolsAreWhole());

}  // namespace

std::string_view Code39Symbol(std::string_view Value, bool UseKeyPrefix) {
  if (!UseKeyPrefix || Value.size() != 1) return {};
  const auto code = static_cast<unsigned char>(Value[0]);
  return code < kByCharacter.size() ? kByCharacter[code] : std::string_view();
}

std::string_view Code39ExtendedSymbol(char Char) {
  const auto row = static_cast<std::size_t>(static_cast<unsigned char>(Char)) - ' ';
  if (row >= kExtended.size()) return {};
  return {kExtended[row].widths.data(), kExtended[row].length};
}

Patterns Code39Patterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size() + 2);
  patterns.push_back(Code39Symbol("*", true));
  for (std::size_t i = 0; i < Data.size(); ++i) {
    patterns.push_back(Code39Symbol(Data.substr(i, 1), true));
  }
  patterns.push_back(Code39Symbol("*", true));
  return patterns;
}

Patterns Code39ExtendedPatterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size());
  for (const char character : Data) patterns.push_back(Code39ExtendedSymbol(character));
  return patterns;
}

void DrawCode39(std::string_view Data, std::int16_t, float X, float Y, double Height, double Width,
                bool PrintCharacters, double FontSize) {
  BeginSymbol(X, Y, Height);
  const Patterns patterns = Code39Patterns(Data);
  EngineTraced([&] { MeasureModule(patterns, Width, patterns.size() - 1); });
  PaintPattern(patterns.front());
  for (std::size_t i = 1; i < patterns.size(); ++i) {
    EngineTraced([&] { CursorX = ToSingle(CursorX + ModuleWidth); });
    PaintPattern(patterns[i]);
  }
  EndSymbol(Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

void DrawCode39Extended(std::string_view Data, std::int16_t, float X, float Y, double Height,
                        double Width, bool PrintCharacters, double FontSize) {
  PaintSymbol(Code39ExtendedPatterns(Data), Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

}  // namespace tagwright
