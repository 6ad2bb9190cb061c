#include "platform/text/locale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>

#include "platform/services/clock.h"
#include "support/fault_of.h"

namespace tagwright {
namespace {

UserLocale GermanLocale() {
  UserLocale german;
  german.decimal = ",";
  german.group = ".";
  german.currency = "€";
  german.currency_positive = "n ¤";
  german.currency_negative = "-n ¤";
  german.short_date = "dd.MM.yyyy";
  return german;
}

UserLocale FrenchLocale() {
  UserLocale french = GermanLocale();
  french.group = "\u202F";
  french.short_date = "dd/MM/yyyy";
  return french;
}

class LocaleTest : public testing::Test {
 protected:
  LocaleTest() { SetLocale({}); }
  ~LocaleTest() override { SetLocale({}); }
};

struct NumberRow {
  const char* text;
  double value;
  const char* reason;
};

void ExpectNumbers(std::initializer_list<NumberRow> rows) {
  for (const NumberRow& row : rows) {
    const auto value = ParseNumber(row.text);
    EXPECT_TRUE(IsNumeric(row.text)) << row.text << ": " << row.reason;
    ASSERT_TRUE(value) << row.text << ": " << row.reason;
    EXPECT_DOUBLE_EQ(*value, row.value) << row.text << ": " << row.reason;
  }
}

void ExpectNoNumbers(std::initializer_list<const char*> texts) {
  for (const char* text : texts) EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
}

TEST_F(LocaleTest, NumbersWithADecimalPoint) {
  ExpectNumbers({
      {"0", 0, "plain"},
      {"2.5", 2.5, "plain"},
      {".5", 0.5, "no whole digits"},
      {"5.", 5, "no fraction"},
      {"+7", 7, "sign"},
      {"-7", -7, "sign"},
      {"- 7", -7, "blanks around the sign"},
      {"7-", -7, "sign behind, as some currency forms have it"},
      {"  7\t", 7, "blanks around"},
      {"1,234,567.5", 1234567.5, "groups"},
      {"1,2", 12, "the spacing of groups is not judged"},
      {"1,", 1, "nor is a group separator at the end"},
      {"1e3", 1000, "exponent"},
      {"1.5E-2", 0.015, "exponent with sign"},
      {"1e+2", 100, "exponent with sign"},
      {"$5", 5, "currency symbol"},
      {"5 $", 5, "currency symbol behind"},
      {"-$1,234.50", -1234.5, "all together"},
      {"$-5", -5, "in any order"},
      {"(5)", -5, "parentheses stand for negative"},
      {"($5.25)", -5.25, "parentheses around the symbol"},
      {"( 5 )", -5, "blanks inside"},
      {"1e-999", 0, "too small counts as zero"},
      {"007", 7, "leading zeros"},
  });
}

TEST_F(LocaleTest, TextsThatAreNoNumbers) {
  ExpectNoNumbers({"",    " ",   "abc",   ".",     "-",    "+",     "$",     "()",
                   "(5",  "5)",  "--5",   "-5-",   "(-5)", "-(5)",  "$5$",   "1e",
                   "1e+", "e5",  ",5",    "1.2.3", "1 2",  "1.5,",  "5x",    "0x10",
                   "inf", "nan", "1e999", "€5",    "1+2",  "((5))", "5e1.5", "1.2,3"});
}

TEST_F(LocaleTest, ADecimalCommaTurnsTheRolesAround) {
  SetLocale(GermanLocale());
  ExpectNumbers({
      {"2,5", 2.5, "decimal comma"},
      {"1.234,5", 1234.5, "points group"},
      {"2.5", 25, "a point groups, wherever it stands"},
      {"5,00 €", 5, "currency"},
      {"-5,00 €", -5, "currency"},
  });
  ExpectNoNumbers({"2,5,1", "$5"});
}

TEST_F(LocaleTest, AnyBlankGroupsWhereABlankGroups) {
  SetLocale(FrenchLocale());
  ExpectNumbers({
      {"1\u202F234,5", 1234.5, "the locale's own"},
      {"1 234,5", 1234.5, "the one on the keyboard"},
      {"1\u00A0234,5", 1234.5, "the one of older systems"},
      {"1 234 ", 1234, "a blank behind the number is no separator"},
  });
  ExpectNoNumbers({"1  234", "1 x"});
}

TEST_F(LocaleTest, ALocaleWithoutSymbolsStillReadsNumbers) {
  UserLocale bare;
  bare.group.clear();
  bare.currency.clear();
  SetLocale(bare);
  ExpectNumbers({{"12.5", 12.5, "plain"}});
  ExpectNoNumbers({"1,2", "$5"});
}

// The toolkit sets the process locale; numbers follow the program's own.
TEST_F(LocaleTest, TheProcessLocaleHasNoSay) {
  const char* const set = std::setlocale(LC_ALL, "de_DE.UTF-8");
  EXPECT_DOUBLE_EQ(ParseNumber("2.5").value_or(0), 2.5);
  EXPECT_EQ(FormatFixed(2.5, 2), "2.50");
  EXPECT_EQ(FormatNumber(2.5), "2.5");
  std::setlocale(LC_ALL, "C");
  if (!set) GTEST_SKIP() << "no German process locale here: checked under the C locale only";
}

// --- writing ---

TEST_F(LocaleTest, FormatFixedHasExactlyItsDecimals) {
  struct Row {
    double value;
    int decimals;
    const char* expected;
    const char* reason;
  };
  const Row rows[] = {
      {0, 2, "0.00", "zero"},
      {99, 2, "99.00", "whole"},
      {101.6F, 2, "101.60", "32-bit value"},
      {3.175F, 2, "3.17", "a 32-bit 3.175 lies below the half"},
      {3.175, 2, "3.18", "a 64-bit one reads as the half"},
      {2.675, 2, "2.68", "likewise"},
      {0.125, 2, "0.13", "half away from zero"},
      {-0.125, 2, "-0.13", "half away from zero"},
      {0.5, 0, "1", "half away from zero"},
      {1.5, 0, "2", "half away from zero"},
      {2.5, 0, "3", "half away from zero, not to even"},
      {-2.5, 0, "-3", "half away from zero"},
      {0.05, 1, "0.1", "half away from zero"},
      {0.049, 1, "0.0", "below the half"},
      {-0.001, 2, "0.00", "no sign on a zero"},
      {-0.0, 2, "0.00", "no sign on a zero"},
      {0.005, 2, "0.01", "leading zeros of the fraction"},
      {0.0049, 2, "0.00", "below the half"},
      {9.999, 2, "10.00", "carries into a new digit"},
      {99.5, 0, "100", "carries into a new digit"},
      {1234567.891, 2, "1234567.89", "no groups"},
      {1e15, 0, "1000000000000000", "past fifteen digits"},
      {1.25e20, 1, "125000000000000000000.0", "zeros behind the fifteen digits"},
      {1e-300, 2, "0.00", "tiny"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FormatFixed(row.value, row.decimals), row.expected) << row.reason;
  }
}

TEST_F(LocaleTest, WhatIsNotFiniteIsNamedAndReadsBackAsNoNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(FormatFixed(std::nan(""), 2), "NaN");
  EXPECT_EQ(FormatFixed(infinity, 2), "Infinity");
  EXPECT_EQ(FormatStandard(-infinity), "-Infinity");
  EXPECT_EQ(FormatCurrency(std::nan("")), "NaN");
  EXPECT_EQ(FormatNumber(infinity), "Infinity");
  ExpectNoNumbers({"NaN", "Infinity", "-Infinity"});
}

TEST_F(LocaleTest, StandardHasTwoDecimalsAndGroups) {
  EXPECT_EQ(FormatStandard(0), "0.00");
  EXPECT_EQ(FormatStandard(999.995), "1,000.00");
  EXPECT_EQ(FormatStandard(1234567.5), "1,234,567.50");
  EXPECT_EQ(FormatStandard(-1234.5), "-1,234.50");
  EXPECT_EQ(FormatStandard(-0.001), "0.00");
  SetLocale(GermanLocale());
  EXPECT_EQ(FormatStandard(1234567.5), "1.234.567,50");
}

TEST_F(LocaleTest, CurrencyIsTheLocalesOwnForm) {
  EXPECT_EQ(FormatCurrency(1234.5), "$1,234.50");
  EXPECT_EQ(FormatCurrency(-1234.5), "-$1,234.50");
  EXPECT_EQ(FormatCurrency(-0.001), "$0.00");
  SetLocale(GermanLocale());
  EXPECT_EQ(FormatCurrency(1234.5), "1.234,50 €");
  EXPECT_EQ(FormatCurrency(-5), "-5,00 €");
}

TEST_F(LocaleTest, CurrencyDigitsAndLettersOfTheSymbolAreTheLocales) {
  UserLocale yen;
  yen.currency = "¥";
  yen.currency_digits = 0;
  SetLocale(yen);
  EXPECT_EQ(FormatCurrency(1234.5), "¥1,235");
  UserLocale kuna = GermanLocale();
  kuna.currency = "kn";  // holds the letter that stands for the number
  SetLocale(kuna);
  EXPECT_EQ(FormatCurrency(5), "5,00 kn");
  UserLocale accounting;
  accounting.currency_negative = "(¤n)";
  SetLocale(accounting);
  EXPECT_EQ(FormatCurrency(-5), "($5.00)");
}

TEST_F(LocaleTest, WhatCurrencyAndStandardWriteReadsBack) {
  for (const UserLocale& locale : {UserLocale{}, GermanLocale(), FrenchLocale()}) {
    SetLocale(locale);
    for (const double value : {0.0, 0.01, -12.34, 1234567.89, -99999.5}) {
      EXPECT_DOUBLE_EQ(ParseNumber(FormatCurrency(value)).value_or(-1e9), value);
      EXPECT_DOUBLE_EQ(ParseNumber(FormatStandard(value)).value_or(-1e9), value);
      EXPECT_DOUBLE_EQ(ParseNumber(FormatFixed(value, 2)).value_or(-1e9), value);
    }
  }
}

TEST_F(LocaleTest, FormatNumberHasNoPadding) {
  EXPECT_EQ(FormatNumber(0), "0");
  EXPECT_EQ(FormatNumber(-0.0), "0");
  EXPECT_EQ(FormatNumber(11), "11");
  EXPECT_EQ(FormatNumber(8.25), "8.25");
  EXPECT_EQ(FormatNumber(-0.5), "-0.5");
  EXPECT_EQ(FormatNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(FormatNumber(3.175F, 7), "3.175");
  EXPECT_EQ(FormatNumber(1e14), "100000000000000");
  EXPECT_EQ(FormatNumber(1e15), "1E+15");
  EXPECT_EQ(FormatNumber(0.0001), "0.0001");
  EXPECT_EQ(FormatNumber(0.00001), "1E-05");
  SetLocale(GermanLocale());
  EXPECT_EQ(FormatNumber(8.25), "8,25");
}

// --- dates ---

TEST_F(LocaleTest, TimeOfTwelveHoursHasItsHalfOfTheDay) {
  EXPECT_EQ(FormatTime({0, 0, 0}), "12:00:00 AM");
  EXPECT_EQ(FormatTime({1, 2, 3}), "1:02:03 AM");
  EXPECT_EQ(FormatTime({11, 59, 59}), "11:59:59 AM");
  EXPECT_EQ(FormatTime({12, 0, 0}), "12:00:00 PM");
  EXPECT_EQ(FormatTime({23, 59, 59}), "11:59:59 PM");
}

TEST_F(LocaleTest, TimeOf24HoursHasNone) {
  UserLocale german = GermanLocale();
  german.time = "HH:mm:ss";
  SetLocale(german);
  EXPECT_EQ(FormatTime({0, 0, 0}), "00:00:00");
  EXPECT_EQ(FormatTime({22, 42, 58}), "22:42:58");
}

TEST_F(LocaleTest, TimeKeepsWhatIsQuotedAndEveryOtherSign) {
  UserLocale canadian;
  canadian.time = "H 'h' m 'min' s 's'";
  SetLocale(canadian);
  EXPECT_EQ(FormatTime({7, 5, 9}), "7 h 5 min 9 s");
}

TEST_F(LocaleTest, ShortDateFollowsItsPattern) {
  const Date date{2026, 3, 4};
  EXPECT_EQ(FormatShortDate(date), "3/4/2026");
  SetLocale(GermanLocale());
  EXPECT_EQ(FormatShortDate(date), "04.03.2026");
  EXPECT_EQ(FormatShortDate({2026, 12, 31}), "31.12.2026");
  EXPECT_EQ(FormatShortDate({987, 12, 31}), "31.12.0987");
}

TEST_F(LocaleTest, ShortDateKeepsWhatIsQuotedAndEveryOtherSign) {
  UserLocale locale;
  locale.short_date = "d.MM.yyyy 'г.'";
  SetLocale(locale);
  EXPECT_EQ(FormatShortDate({2026, 3, 4}), "4.03.2026 г.");
  locale.short_date = "yyyy-MM-dd 'day'";
  SetLocale(locale);
  EXPECT_EQ(FormatShortDate({2026, 3, 4}), "2026-03-04 day");
}

TEST(AddDays, KnowsMonthsAndLeapYears) {
  EXPECT_EQ(AddDays({2026, 3, 14}, 0), (Date{2026, 3, 14}));
  EXPECT_EQ(AddDays({2026, 12, 31}, 1), (Date{2027, 1, 1}));
  EXPECT_EQ(AddDays({2024, 2, 28}, 1), (Date{2024, 2, 29}));
  EXPECT_EQ(AddDays({2100, 2, 28}, 1), (Date{2100, 3, 1}));
  EXPECT_EQ(AddDays({2026, 3, 1}, -1), (Date{2026, 2, 28}));
  EXPECT_EQ(AddDays({1970, 1, 1}, 20000), (Date{2024, 10, 4}));
}

TEST(AddDays, FaultsOutsideTheYears100To9999) {
  EXPECT_EQ(AddDays({9999, 12, 30}, 1), (Date{9999, 12, 31}));
  EXPECT_EQ(FaultOf([] { AddDays({9999, 12, 31}, 1); }), kOverflow);
  EXPECT_EQ(AddDays({100, 1, 2}, -1), (Date{100, 1, 1}));
  EXPECT_EQ(FaultOf([] { AddDays({100, 1, 1}, -1); }), kOverflow);
  EXPECT_EQ(FaultOf([] {
              AddDays({2026, 1, 1}, std::numeric_limits<std::int64_t>::max());
            }),
            kOverflow);
  EXPECT_EQ(FaultOf([] {
              AddDays({2026, 1, 1}, std::numeric_limits<std::int64_t>::min());
            }),
            kOverflow);
}

TEST(Today, CanBeFixedAndReturnsToTheClock) {
  FixToday(Date{2001, 2, 3});
  EXPECT_EQ(Today(), (Date{2001, 2, 3}));
  FixToday(std::nullopt);
  EXPECT_GE(Today().year, 2024);
}

}  // namespace
}  // namespace tagwright
