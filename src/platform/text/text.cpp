#include "platform/text/text.h"

#include <iconv.h>
#include <locale.h>
#include <wctype.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <unordered_map>

namespace tagwright {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsScalar(char32_t c) { return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF); }

// The form of a UTF-8 sequence by its first byte: how many bytes, the bits the first one carries,
// and the least value that may be written so. Length 0 marks a byte that starts nothing.
struct Lead {
  int length;
  unsigned char bits;
  char32_t least;
};

Lead LeadOf(unsigned char byte) {
  if (byte < 0x80) return {1, 0x7F, 0};
  if (byte >= 0xC0 && byte < 0xE0) return {2, 0x1F, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return {3, 0x0F, 0x800};
  if (byte >= 0xF0 && byte < 0xF8) return {4, 0x07, 0x10000};
  return {0, 0, 0};
}

// The character at the start of `text`, and how many bytes it takes.
struct Decoded {
  char32_t character;
  std::size_t bytes;
};

// A malformed byte is passed over alone, so that what follows it is read afresh.
Decoded Decode(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const Lead lead = LeadOf(byte(0));
  const auto length = static_cast<std::size_t>(lead.length);
  if (length == 0 || text.size() < length) return {kReplacement, 1};
  char32_t value = byte(0) & lead.bits;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {kReplacement, 1};
    value = (value << 6) | (byte(i) & 0x3F);
  }
  if (value < lead.least || !IsScalar(value)) return {kReplacement, 1};
  return {value, length};
}

void Append(std::string& out, char32_t c) {
  const auto put = [&](char32_t bits) { out.push_back(static_cast<char>(bits)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | (c >> 6));
    put(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    put(0xE0 | (c >> 12));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  } else {
    put(0xF0 | (c >> 18));
    put(0x80 | ((c >> 12) & 0x3F));
    put(0x80 | ((c >> 6) & 0x3F));
    put(0x80 | (c & 0x3F));
  }
}

// The byte at which character `count` starts, or the end.
std::size_t ByteOfCharacter(std::string_view text, std::size_t count) {
  if (IsAscii(text)) return std::min(count, text.size());
  std::size_t at = 0;
  for (; count > 0 && at < text.size(); --count) at += Decode(text.substr(at)).bytes;
  return at;
}

// The system's own UTF-8 character tables: the process locale of a user may know ASCII only.
locale_t CaseTables() {
  static const locale_t tables = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return tables;
}

char32_t AsciiUpper(char32_t c) { return c >= 'a' && c <= 'z' ? c - 32 : c; }
char32_t AsciiLower(char32_t c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; }

template <class Map>
std::string Mapped(std::string_view text, Map map) {
  std::string out;
  out.reserve(text.size());
  for (const char32_t c : Characters(text)) Append(out, map(c));
  return out;
}

// --- code pages ---

// A code page both ways.
struct Page {
  std::array<char32_t, 256> characters;
  std::unordered_map<char32_t, unsigned char> bytes;
};

// The character of one byte, or the byte's own number where the page leaves it undefined.
char32_t CharacterOfByte(iconv_t converter, unsigned char byte) {
  char in = static_cast<char>(byte);
  char32_t out = 0;
  char* from = &in;
  char* to = reinterpret_cast<char*>(&out);
  std::size_t in_left = 1;
  std::size_t out_left = sizeof out;
  iconv(converter, nullptr, nullptr, nullptr, nullptr);
  const bool defined = iconv(converter, &from, &in_left, &to, &out_left) == 0;
  // Pages with combining marks hold a letter back until they know what follows.
  iconv(converter, nullptr, nullptr, &to, &out_left);
  return defined && out_left == 0 ? out : byte;
}

Page MakePage(int code_page) {
  Page page;
  const std::string name = "CP" + std::to_string(code_page);
  const iconv_t converter = iconv_open("UCS-4LE", name.c_str());
  const bool known = reinterpret_cast<std::intptr_t>(converter) != -1;
  for (int byte = 0; byte < 256; ++byte) {
    const auto b = static_cast<unsigned char>(byte);
    page.characters[b] = known ? CharacterOfByte(converter, b) : b;
    page.bytes.emplace(page.characters[b], b);
  }
  if (known) iconv_close(converter);
  return page;
}

int code_page_in_force = 1252;

const Page& PageInForce() {
  static std::map<int, Page> pages;
  const auto found = pages.find(code_page_in_force);
  if (found != pages.end()) return found->second;
  return pages.emplace(code_page_in_force, MakePage(code_page_in_force)).first->second;
}

// Languages whose Windows code page is not 1252, by their codes.
struct PageLanguages {
  int code_page;
  std::string_view languages;  // each between blanks
};

constexpr PageLanguages kPageLanguages[] = {
    {1250, " bs cs dsb hr hsb hu pl ro sk sl sq tk "},  // Central Europe
    {1251, " ba be bg ky mk mn ru sah sr tg tt uk "},   // Cyrillic
    {1253, " el "},                                     // Greek
    {1254, " az tr uz "},                               // Turkish and its relatives
    {1255, " he iw yi "},                               // Hebrew
    {1256, " ar fa ug ur "},                            // Arabic script
    {1257, " et lt lv "},                               // Baltic
    {1258, " vi "},                                     // Vietnamese
    {874, " th "},                                      // Thai
};

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

}  // namespace

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

// Most text is ASCII, and redraws convert a great deal of it: the short way is worth having.
std::u32string Characters(std::string_view text) {
  if (IsAscii(text)) return {text.begin(), text.end()};
  std::u32string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const Decoded next = Decode(text);
    out.push_back(next.character);
    text.remove_prefix(next.bytes);
  }
  return out;
}

std::string FromCharacters(std::u32string_view characters) {
  std::string out(characters.size(), '\0');
  std::size_t ascii = 0;
  for (; ascii < characters.size() && characters[ascii] < 0x80; ++ascii) {
    out[ascii] = static_cast<char>(characters[ascii]);
  }
  out.resize(ascii);
  for (const char32_t c : characters.substr(ascii)) Append(out, IsScalar(c) ? c : kReplacement);
  return out;
}

std::size_t Length(std::string_view text) {
  if (IsAscii(text)) return text.size();
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(Decode(text).bytes);
  return count;
}

std::string Mid(std::string_view text, std::size_t start, std::size_t count) {
  text.remove_prefix(ByteOfCharacter(text, start));
  return std::string(text.substr(0, ByteOfCharacter(text, count)));
}

std::string Left(std::string_view text, std::size_t count) { return Mid(text, 0, count); }

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

char32_t UpperCase(char32_t character) {
  if (character < 0x80 || !CaseTables()) return AsciiUpper(character);
  return static_cast<char32_t>(towupper_l(static_cast<wint_t>(character), CaseTables()));
}

char32_t LowerCase(char32_t character) {
  if (character < 0x80 || !CaseTables()) return AsciiLower(character);
  return static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), CaseTables()));
}

std::string UpperCase(std::string_view text) {
  return Mapped(text, [](char32_t c) { return UpperCase(c); });
}

std::string LowerCase(std::string_view text) {
  return Mapped(text, [](char32_t c) { return LowerCase(c); });
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return CompareIgnoringCase(a, b) == 0;
}

int CompareIgnoringCase(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    const Decoded left = Decode(a);
    const Decoded right = Decode(b);
    const char32_t x = UpperCase(left.character);
    const char32_t y = UpperCase(right.character);
    if (x != y) return x < y ? -1 : 1;
    a.remove_prefix(left.bytes);
    b.remove_prefix(right.bytes);
  }
  return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(text);
  std::string out;
  for (std::size_t hit = text.find(from); hit != std::string_view::npos; hit = text.find(from)) {
    out.append(text.substr(0, hit)).append(to);
    text.remove_prefix(hit + from.size());
  }
  return out.append(text);
}

std::string ZeroBytesAsBlanks(std::string_view text) {
  std::string out(text);
  std::replace(out.begin(), out.end(), '\0', ' ');
  return out;
}

int CodePage() { return code_page_in_force; }

void SetCodePage(int code_page) { code_page_in_force = code_page; }

// Serbian, Azeri and others are written in two scripts; where it is the rarer one the name says so,
// as in "sr_RS@latin" or "sr-Latn-RS".
int CodePageOfLanguage(std::string_view language) {
  const std::string name = LowerCase(language);
  const std::string code = name.substr(0, name.find_first_of("_-.@"));
  if (code == "sr" && Contains(name, "lat")) return 1250;
  if (Contains(name, "cyr")) return 1251;
  for (const PageLanguages& page : kPageLanguages) {
    if (Contains(page.languages, " " + code + " ")) return page.code_page;
  }
  return 1252;
}

std::string ToCodePage(std::string_view text) {
  const Page& page = PageInForce();
  std::string out;
  out.reserve(text.size());
  for (const char32_t c : Characters(text)) {
    const auto found = page.bytes.find(c);
    out.push_back(found == page.bytes.end() ? '?' : static_cast<char>(found->second));
  }
  return out;
}

std::string FromCodePage(std::string_view bytes) {
  const Page& page = PageInForce();
  std::string out;
  out.reserve(bytes.size());
  for (const char byte : bytes) Append(out, page.characters[static_cast<unsigned char>(byte)]);
  return out;
}

}  // namespace tagwright
