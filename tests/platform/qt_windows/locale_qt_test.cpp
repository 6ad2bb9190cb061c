#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "qt/services/dialogs.h"
#include "qt/services/locale.h"

namespace tagwright {
namespace {

UserLocale All(const std::string& name) { return LocaleOf({name, name, name, name}); }

TEST(LocaleQtTest, WithoutALocaleTheBuiltInFormsHold) {
  EXPECT_EQ(All(""), UserLocale());
  EXPECT_EQ(All("C"), UserLocale());
  EXPECT_EQ(All("C.UTF-8"), UserLocale());
  EXPECT_EQ(All("POSIX"), UserLocale());
}

TEST(LocaleQtTest, German) {
  const UserLocale german = All("de_DE.UTF-8");
  EXPECT_EQ(german.decimal, ",");
  EXPECT_EQ(german.group, ".");
  EXPECT_EQ(german.currency, "€");
  EXPECT_EQ(german.currency_positive, "n\u00A0¤");
  EXPECT_EQ(german.currency_negative, "-n\u00A0¤");
  EXPECT_EQ(german.currency_digits, 2);
  EXPECT_EQ(german.short_date, "dd.MM.yyyy");
  EXPECT_EQ(german.code_page, 1252);
}

TEST(LocaleQtTest, American) {
  const UserLocale american = All("en_US.UTF-8");
  EXPECT_EQ(american.decimal, ".");
  EXPECT_EQ(american.group, ",");
  EXPECT_EQ(american.currency, "$");
  EXPECT_EQ(american.currency_positive, "¤n");
  EXPECT_EQ(american.short_date, "M/d/yyyy");
}

TEST(LocaleQtTest, BritishYearsAreWrittenInFull) {
  EXPECT_EQ(All("en_GB.UTF-8").short_date, "dd/MM/yyyy");
}

TEST(LocaleQtTest, TimesHaveTheirSecondsAndNoZone) {
  EXPECT_EQ(All("de_DE.UTF-8").time, "HH:mm:ss");
  EXPECT_EQ(All("en_US.UTF-8").time, "h:mm:ss tt");
  EXPECT_EQ(All("en_US.UTF-8").after_noon, "PM");
  EXPECT_EQ(All("en_GB.UTF-8").time, "HH:mm:ss");
  EXPECT_EQ(All("es_ES.UTF-8").time, "H:mm:ss") << "the zone stood in parentheses";
  EXPECT_EQ(All("zh_CN.UTF-8").time, "HH:mm:ss") << "the zone stood in front";
  EXPECT_EQ(All("zh_HK.UTF-8").time, "tth:mm:ss") << "the zone stood in square brackets";
  EXPECT_EQ(All("sq_AL.UTF-8").time, "h:mm:ss tt") << "the zone stood behind a comma";
  EXPECT_EQ(All("ko_KR.UTF-8").time, "tt h시 m분 s초");
  EXPECT_EQ(All("fr_CA.UTF-8").time, "HH 'h' mm 'min' ss 's'") << "what is quoted stays";
}

TEST(LocaleQtTest, JapaneseMoneyHasNoDecimals) { EXPECT_EQ(All("ja_JP.UTF-8").currency_digits, 0); }

TEST(LocaleQtTest, PolishAndRussianHaveTheirCodePages) {
  EXPECT_EQ(All("pl_PL.UTF-8").code_page, 1250);
  EXPECT_EQ(All("ru_RU.UTF-8").code_page, 1251);
}

TEST(LocaleQtTest, EachCategoryCountsForItself) {
  const UserLocale mixed = LocaleOf({"de_DE", "en_US", "fr_FR", "pl_PL"});
  EXPECT_EQ(mixed.decimal, ",");
  EXPECT_EQ(mixed.currency, "$");
  EXPECT_EQ(mixed.short_date, "dd/MM/yyyy");
  EXPECT_EQ(mixed.code_page, 1250);
}

// The script stands behind the territory, where numbers and dates have no use for it.
TEST(LocaleQtTest, TheScriptOfALanguageDecidesItsCodePage) {
  EXPECT_EQ(LocaleOf({"", "", "", "sr_RS.UTF-8"}).code_page, 1251);
  EXPECT_EQ(LocaleOf({"", "", "", "sr_RS.UTF-8@latin"}).code_page, 1250);
  EXPECT_EQ(LocaleOf({"", "", "", "uz_UZ.UTF-8@cyrillic"}).code_page, 1251);
  EXPECT_EQ(LocaleOf({"", "", "", "de_DE@euro"}).code_page, 1252);
}

class Environment : public testing::Test {
 protected:
  ~Environment() override {
    for (const auto& [name, value] : former_) {
      value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }
  }
  void Set(const std::string& name, const char* value) {
    const char* former = std::getenv(name.c_str());
    former_.emplace(name, former ? std::optional<std::string>(former) : std::nullopt);
    value ? setenv(name.c_str(), value, 1) : unsetenv(name.c_str());
  }

 private:
  std::map<std::string, std::optional<std::string>> former_;
};

TEST_F(Environment, LcAllComesBeforeItsPartsAndLangComesLast) {
  Set("LC_ALL", nullptr);
  Set("LC_NUMERIC", "de_DE");
  Set("LC_TIME", nullptr);
  Set("LANG", "en_GB");
  EXPECT_EQ(UserLocaleNames().numeric, "de_DE");
  EXPECT_EQ(UserLocaleNames().time, "en_GB");
  Set("LC_ALL", "fr_FR");
  EXPECT_EQ(UserLocaleNames().numeric, "fr_FR");
  EXPECT_EQ(UserLocaleNames().time, "fr_FR");
}

TEST(NameFiltersTest, DescriptionsAndPatternsComeInPairs) {
  const QStringList filters = NameFilters("All Picture Formats |*.jpg;*.jpeg;*.gif|Labels|*.twp");
  EXPECT_EQ(filters, QStringList({"All Picture Formats (*.jpg *.jpeg *.gif)", "Labels (*.twp)"}));
}

TEST(NameFiltersTest, ADescriptionThatNamesItsPatternDoesNotNameItTwice) {
  EXPECT_EQ(NameFilters("Tagwright Project (*.twp)|*.twp"),
            QStringList("Tagwright Project (*.twp)"));
}

TEST(NameFiltersTest, ADescriptionAloneShowsEverything) {
  EXPECT_EQ(NameFilters("All files"), QStringList("All files (*)"));
  EXPECT_TRUE(NameFilters("").isEmpty());
}

}  // namespace
}  // namespace tagwright
