#include "platform/text/text.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace tagwright {
namespace {

// --- characters ---

TEST(Characters, ReadsSequencesOfEveryLength) {
  EXPECT_EQ(Characters("a"), U"a");
  EXPECT_EQ(Characters("é"), U"\u00E9");
  EXPECT_EQ(Characters("€"), U"\u20AC");
  EXPECT_EQ(Characters("\xF0\x9F\x8F\xB7"), U"\U0001F3F7");
}

TEST(Characters, AMalformedByteCountsAsOneReplacement) {
  struct Row {
    const char* bytes;
    std::u32string expected;
    const char* reason;
  };
  const Row rows[] = {
      {"\x80", U"\uFFFD", "a continuation that nothing starts"},
      {"a\xC3", U"a\uFFFD", "cut at the end"},
      {"\xC3(", U"\uFFFD(", "what follows is read afresh"},
      {"\xC0\xAF", U"\uFFFD\uFFFD", "an overlong slash"},
      {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD", "a surrogate"},
      {"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", "above U+10FFFF"},
      {"\xFF", U"\uFFFD", "never a first byte"},
  };
  for (const Row& row : rows) EXPECT_EQ(Characters(row.bytes), row.expected) << row.reason;
}

TEST(FromCharacters, ReplacesWhatIsNoCharacter) {
  EXPECT_EQ(FromCharacters(U"a\u00E9\u20AC\U0010FFFF"), "aé€\xF4\x8F\xBF\xBF");
  const char32_t bad[] = {0xD800, 0xDFFF, 0x110000};
  EXPECT_EQ(FromCharacters({bad, 3}), "\uFFFD\uFFFD\uFFFD");
}

TEST(Length, CountsCharactersNotBytes) {
  EXPECT_EQ(Length(""), 0U);
  EXPECT_EQ(Length("abc"), 3U);
  EXPECT_EQ(Length("Größe €"), 7U);
}

TEST(Mid, CutsByCharacters) {
  EXPECT_EQ(Mid("Größe", 0, 3), "Grö");
  EXPECT_EQ(Mid("Größe", 2, 2), "öß");
  EXPECT_EQ(Mid("Größe", 4), "e");
  EXPECT_EQ(Mid("Größe", 5), "");
  EXPECT_EQ(Mid("Größe", 9, 4), "");
  EXPECT_EQ(Left("Größe", 4), "Größ");
  EXPECT_EQ(Left("Größe", 99), "Größe");
}

TEST(Trim, CutsBlanksAndNothingElse) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\ta\n"), "\ta\n");
}

TEST(Case, FollowsTheSimpleMappingAndKeepsTheLength) {
  EXPECT_EQ(UpperCase("größe"), "GRÖßE");  // its capital would be two letters
  EXPECT_EQ(LowerCase("ÀÉЖΩ"), "àéжω");
  EXPECT_EQ(UpperCase("ÿœ"), "ŸŒ");
  EXPECT_EQ(UpperCase(U'z'), U'Z');
  EXPECT_EQ(LowerCase(U'@'), U'@');
  EXPECT_EQ(UpperCase(U'÷'), U'÷');
}

TEST(Compare, IgnoresCase) {
  EXPECT_TRUE(EqualIgnoringCase("Größe", "GRÖßE"));
  EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
  EXPECT_LT(CompareIgnoringCase("arial", "Courier"), 0);
  EXPECT_GT(CompareIgnoringCase("b", "A"), 0);
  EXPECT_LT(CompareIgnoringCase("ab", "ABC"), 0);
  EXPECT_EQ(CompareIgnoringCase("", ""), 0);
}

TEST(Replace, TakesEveryOccurrenceOnce) {
  EXPECT_EQ(Replace("aXbXc", "X", "--"), "a--b--c");
  EXPECT_EQ(Replace("aaa", "aa", "a"), "aa");
  EXPECT_EQ(Replace("abc", "", "x"), "abc");
  EXPECT_EQ(Replace("abc", "b", ""), "ac");
}

TEST(ZeroBytesAsBlanks, TurnsEachOne) {
  EXPECT_EQ(ZeroBytesAsBlanks(std::string("a\0b\0\0", 5)), "a b  ");
}

// --- fixed text ---

TEST(FixedText, PadsAndCutsByCharacters) {
  const FixedText<4> padded("ab");
  EXPECT_EQ(padded.Padded(), "ab  ");
  EXPECT_EQ(FixedText<4>("äöüßx").Padded(), "äöüß");
  EXPECT_EQ(FixedText<4>().Padded(), "    ");
}

TEST(FixedText, TrimsForReaders) {
  EXPECT_EQ(FixedText<6>("  ab").Trimmed(), "ab");
  EXPECT_EQ(FixedText<6>("a b").Trimmed(), "a b");
  EXPECT_EQ(FixedText<6>().Trimmed(), "");
}

TEST(FixedText, IsAPlainValue) {
  EXPECT_TRUE(std::is_trivially_copyable_v<FixedText<250>>);
  EXPECT_EQ(FixedText<3>("a"), FixedText<3>("a  "));
  EXPECT_NE(FixedText<3>("a"), FixedText<3>("b"));
}

// --- code pages ---

class CodePageTest : public testing::Test {
 protected:
  ~CodePageTest() override { SetCodePage(1252); }
};

// One telling byte or two of every page.
TEST_F(CodePageTest, EveryPageHasItsOwnCharacters) {
  struct Row {
    int page;
    const char* bytes;
    const char* text;
  };
  const Row rows[] = {
      {1252, "\x80\x8C\xE9", "€Œé"}, {1250, "\xA3\xB3\xEC", "Łłě"}, {1251, "\xC0\xFF\x80", "АяЂ"},
      {1253, "\xC1\xF9\xA2", "ΑωΆ"}, {1254, "\xD0\xFD\xDE", "ĞıŞ"}, {1255, "\xE0\xFA\xA4", "את₪"},
      {1256, "\xC7\x81\xA1", "اپ،"}, {1257, "\xC0\xEB\xFE", "Ąėž"}, {1258, "\xD0\xFE\x80", "Đ₫€"},
      {874, "\xA1\xFB\x80", "ก๛€"},
  };
  for (const Row& row : rows) {
    SetCodePage(row.page);
    EXPECT_EQ(FromCodePage(row.bytes), row.text) << row.page;
    EXPECT_EQ(ToCodePage(row.text), row.bytes) << row.page;
  }
}

TEST_F(CodePageTest, EveryByteOfEveryPageSurvivesReadingAndWriting) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  for (const int page : {1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 874}) {
    SetCodePage(page);
    const std::string text = FromCodePage(all);
    EXPECT_EQ(Length(text), 256U) << page;
    EXPECT_EQ(ToCodePage(text), all) << page;
  }
}

TEST_F(CodePageTest, AnUndefinedByteIsTheCharacterOfItsOwnNumber) {
  EXPECT_EQ(Characters(FromCodePage("\x81\x8D\x8F\x90\x9D")), U"\u0081\u008D\u008F\u0090\u009D");
}

TEST_F(CodePageTest, WhatThePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(ToCodePage("aŁ語b"), "a??b");
  SetCodePage(1250);
  EXPECT_EQ(ToCodePage("aŁ語b"), "a\xA3?b");
}

TEST_F(CodePageTest, ZeroBytesAreKept) {
  const std::string bytes("a\0b", 3);
  EXPECT_EQ(FromCodePage(bytes), bytes);
  EXPECT_EQ(ToCodePage(bytes), bytes);
}

TEST_F(CodePageTest, AnUnknownPageKeepsEveryByteByItsNumber) {
  SetCodePage(99999);
  EXPECT_EQ(FromCodePage("a\xE9"), "aé");
  EXPECT_EQ(ToCodePage("aé€"), "a\xE9?");
}

TEST(CodePageOfLanguage, FollowsTheLanguage) {
  struct Row {
    const char* language;
    int page;
  };
  const Row rows[] = {
      {"en_US", 1252},      {"de_AT.UTF-8", 1252}, {"", 1252},           {"C", 1252},
      {"xx", 1252},         {"pl_PL", 1250},       {"cs", 1250},         {"hu_HU.UTF-8", 1250},
      {"ru", 1251},         {"uk_UA", 1251},       {"sr_RS", 1251},      {"sr_RS@latin", 1250},
      {"sr-Latn-RS", 1250}, {"el_GR", 1253},       {"tr_TR", 1254},      {"az", 1254},
      {"az-Cyrl-AZ", 1251}, {"he_IL", 1255},       {"ar_EG", 1256},      {"fa-IR", 1256},
      {"lt_LT", 1257},      {"vi_VN", 1258},       {"th_TH.UTF-8", 874},
  };
  for (const Row& row : rows) EXPECT_EQ(CodePageOfLanguage(row.language), row.page) << row.language;
}

}  // namespace
}  // namespace tagwright
