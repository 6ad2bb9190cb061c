// Text in memory is Unicode, held as UTF-8 and counted in characters (code points). Single bytes of
// the user's code page exist only where files are read or written.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tagwright {

// --- characters ---------------------------------------------------------------------------------

// Whether it is one of the ten digits 0 to 9, and no other script's.
template <class Character>
constexpr bool IsDigit(Character c) {
  return c >= '0' && c <= '9';
}

// Whether all of it is ASCII: one byte a character.
bool IsAscii(std::string_view text);

// The code points of UTF-8 `text`; a malformed byte counts as one U+FFFD.
std::u32string Characters(std::string_view text);

// UTF-8 of the code points; surrogates and values above U+10FFFF become U+FFFD.
std::string FromCharacters(std::u32string_view characters);

// Number of characters.
std::size_t Length(std::string_view text);

// `count` characters from `start` (0 is the first); less where the text is shorter.
std::string Mid(std::string_view text, std::size_t start, std::size_t count = std::string::npos);

// The first `count` characters.
std::string Left(std::string_view text, std::size_t count);

// Blanks (U+0020 only) cut from both ends.
std::string Trim(std::string_view text);

// Case conversion of each character by Unicode's simple mapping; the length never changes.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
char32_t UpperCase(char32_t character);
char32_t LowerCase(char32_t character);

// Whether two texts are equal when case is ignored.
bool EqualIgnoringCase(std::string_view a, std::string_view b);

// Three-way comparison without regard to case: negative, 0, positive. For sorted lists.
int CompareIgnoringCase(std::string_view a, std::string_view b);

// `text` with every occurrence of `from` replaced by `to`; an empty `from` changes nothing.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

// `text` with each U+0000 turned into a blank. Fields of paths go through it: other programs pad
// them with zero bytes.
std::string ZeroBytesAsBlanks(std::string_view text);

// --- fixed text ---------------------------------------------------------------------------------

// A text field of exactly N characters, blank padded: longer values are cut, shorter ones padded.
// Trivially copyable, so that records can be copied, compared and kept as plain values.
template <std::size_t N>
struct FixedText {
  std::array<char32_t, N> characters;

  FixedText() { characters.fill(U' '); }
  FixedText(std::string_view text) { Assign(text); }               // NOLINT: meant as a conversion
  FixedText(const std::string& text) { Assign(text); }             // NOLINT: meant as a conversion
  FixedText(const char* text) { Assign(std::string_view(text)); }  // NOLINT: as above

  // The whole field with its padding.
  std::string Padded() const { return FromCharacters({characters.data(), N}); }

  // The field without blanks at both ends: what every reader uses.
  std::string Trimmed() const {
    std::size_t first = 0, last = N;
    while (last > 0 && characters[last - 1] == U' ') --last;
    while (first < last && characters[first] == U' ') ++first;
    return FromCharacters({characters.data() + first, last - first});
  }

  bool operator==(const FixedText&) const = default;

 private:
  void Assign(std::string_view text) {
    characters.fill(U' ');
    const std::u32string whole = Characters(text);
    for (std::size_t i = 0; i < N && i < whole.size(); ++i) characters[i] = whole[i];
  }
};

// --- code page ----------------------------------------------------------------------------------

// The Windows code page of the user's language: 1252 for Western and unknown ones, otherwise 1250,
// 1251, 1253, 1254, 1255, 1256, 1257, 1258 or 874. Set once at start from the locale; tests set it.
int CodePage();
void SetCodePage(int code_page);

// The code page for a language and territory such as "pl_PL" or "ru".
int CodePageOfLanguage(std::string_view language);

// One byte per character in the code page; what it lacks becomes '?'.
std::string ToCodePage(std::string_view text);

// The text of code page bytes. A byte that the page leaves undefined becomes the character of its
// own number and returns to the same byte, so that files survive reading and writing unchanged.
std::string FromCodePage(std::string_view bytes);

}  // namespace tagwright
