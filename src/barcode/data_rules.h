// What each format can carry, by format code: its characters and its longest data. The painter and
// the barcode panel refuse by the same rules.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tagwright {

// The characters of one format as they are listed, with a look-up that costs nothing per character.
struct CharacterSet {
  std::string_view characters;
  std::array<bool, 256> holds{};

  constexpr CharacterSet() = default;
  constexpr explicit CharacterSet(std::string_view list) : characters(list) {
    for (const char character : list) holds[static_cast<unsigned char>(character)] = true;
  }
  constexpr bool Has(char character) const { return holds[static_cast<unsigned char>(character)]; }
};

struct DataRule {
  CharacterSet set;
  std::int16_t limit = -1;  // longest data in characters, -1 none
};

inline constexpr CharacterSet kDigits{"0123456789"};

// Code 128 carries the comma too; the program has never let it in.
inline constexpr CharacterSet kCode128A{
    "!#$%&'()*+.-/0123456789:;<=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_\""};
inline constexpr CharacterSet kCode128B{
    "!#$%&'()*+.-/0123456789:;<=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
    " abcdefghijklmnopqrstuvwxyz{|}~\""};
inline constexpr CharacterSet kCode39{" -.*$/+%0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"};
inline constexpr CharacterSet kCode39Extended{
    "!#$%&'()*+,-./0123456789:;<=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
    " abcdefghijklmnopqrstuvwxyz{|}~\""};
// Small letters only, although the pattern table knows capitals.
inline constexpr CharacterSet kCodabar{"0123456789-$:/.+abcdtn*e"};
inline constexpr CharacterSet kRoyalMail{"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ()"};

inline constexpr std::array<DataRule, 14> kDataRules = {{
    {kDigits, 12},          // UPC-A
    {kDigits, 8},           // UPC-E
    {kDigits, 13},          // EAN-13
    {kDigits, 8},           // EAN-8
    {kDigits, -1},          // Code 2 of 5
    {kDigits, -1},          // Interleaved 2 of 5
    {kCode128A, -1},        // Code 128-A
    {kCode128B, -1},        // Code 128-B
    {kDigits, -1},          // Code 128-C
    {kCode39, -1},          // Code 39
    {kCode39Extended, -1},  // Code 39 Extended
    {kCodabar, -1},         // Codabar
    {kDigits, -1},          // PostNet
    {kRoyalMail, -1},       // Royal Mail CBC
}};

}  // namespace tagwright
