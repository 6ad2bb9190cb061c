#include "barcode/codabar.h"

#include <array>

namespace tagwright {
namespace {

struct Row {
  char character;
  std::string_view widths;
};

// AIM BC3 / EN 798, table 1, with wide elements of two modules, the letters under both of their
// names, and a narrow space behind each. Two departures: "-" has the widths that are published for
// "$" (its own are "1112211"), and "$" has none.
constexpr std::array<Row, 23> kRows = {{
    {'0', "11111221"}, {'1', "11112211"}, {'2', "11121121"}, {'3', "22111111"}, {'4', "11211211"},
    {'5', "21111211"}, {'6', "12111121"}, {'7', "12112111"}, {'8', "12211111"}, {'9', "21121111"},
    {'-', "11221111"}, {':', "21112121"}, {'/', "21211121"}, {'.', "21212111"}, {'+', "11212121"},
    {'A', "11221211"}, {'T', "11221211"}, {'B', "12121121"}, {'N', "12121121"}, {'C', "11121221"},
    {'*', "11121221"}, {'D', "11122211"}, {'E', "11122211"},
}};

constexpr std::string_view kBareSpace = "1";

constexpr bool WidthsAreWhole() {
  for (const Row& row : kRows) {
    if (row.widths.size() != 8 || row.widths[7] != '1') return false;
  }
  return true;
}
static_assert(WidthsAreWhole());

constexpr std::array<std::string_view, 256> kByCharacter = [] {
  std::array<std::string_view, 256> table{};
  table.fill(kBareSpace);
  for (const Row& row : kRows) table[static_cast<unsigned char>(row.character)] = row.widths;
  return table;
}();

}  // namespace

std::string_view CodabarSymbol(char Char) { return kByCharacter[static_cast<unsigned char>(Char)]; }

Patterns CodabarPatterns(std::string_view Data) {
  Patterns patterns;
  patterns.reserve(Data.size() + 2);
  patterns.push_back(CodabarSymbol('A'));
  for (const char character : Data) patterns.push_back(CodabarSymbol(character));
  patterns.push_back(CodabarSymbol('A'));
  return patterns;
}

void DrawCodabar(std::string_view Data, std::int16_t, float X, float Y, double Height, double Width,
                 bool PrintCharacters, double FontSize) {
  PaintSymbol(CodabarPatterns(Data), Data, X, Y, Height, Width, PrintCharacters, FontSize);
}

}  // namespace tagwright
