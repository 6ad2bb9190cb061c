#include "platform/database/stored_value.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/text/locale.h"

namespace tagwright {
namespace {

class StoredValueTest : public testing::Test {
 protected:
  StoredValueTest() { SetLocale({}); }
  ~StoredValueTest() override { SetLocale({}); }

  static void UseGerman() {
    UserLocale german;
    german.decimal = ",";
    german.group = ".";
    german.short_date = "dd.MM.yyyy";
    german.time = "HH:mm:ss";
    SetLocale(german);
  }

  static std::string Text(const StoredValue& value) { return TextOf(value).value_or("null"); }
};

TEST_F(StoredValueTest, NullHasNoText) { EXPECT_EQ(TextOf({}), std::nullopt); }

TEST_F(StoredValueTest, EmptyTextIsNotNull) { EXPECT_EQ(TextOf(std::string()), ""); }

TEST_F(StoredValueTest, BooleansAreWords) {
  EXPECT_EQ(Text(true), "True");
  EXPECT_EQ(Text(false), "False");
  UseGerman();
  EXPECT_EQ(Text(true), "True") << "in every language";
}

TEST_F(StoredValueTest, TextIsItself) {
  UseGerman();
  EXPECT_EQ(Text(std::string("1.5 Grüße")), "1.5 Grüße");
}

TEST_F(StoredValueTest, ExactNumbersHaveTheDecimalSymbol) {
  EXPECT_EQ(Text(DecimalValue{"-1110.554"}), "-1110.554");
  EXPECT_EQ(Text(DecimalValue{"922337203685477.5807"}), "922337203685477.5807") << "all digits";
  UseGerman();
  EXPECT_EQ(Text(DecimalValue{"-1110.554"}), "-1110,554");
  EXPECT_EQ(Text(DecimalValue{"12000"}), "12000") << "no group separators";
}

TEST_F(StoredValueTest, RealNumbersHaveTheDigitsOfTheirKind) {
  EXPECT_EQ(Text(0.1F), "0.1") << "a single holds seven digits";
  EXPECT_EQ(Text(0.1), "0.1");
  EXPECT_EQ(Text(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(Text(-80.6195833), "-80.6195833");
  EXPECT_EQ(Text(2.0), "2") << "no padding";
  UseGerman();
  EXPECT_EQ(Text(0.25F), "0,25");
  EXPECT_EQ(Text(41.1304722), "41,1304722");
}

TEST_F(StoredValueTest, DateAtMidnightIsTheShortDate) {
  EXPECT_EQ(Text(DateValue{34654}), "11/16/1994");
  UseGerman();
  EXPECT_EQ(Text(DateValue{34654}), "16.11.1994");
}

TEST_F(StoredValueTest, DateWithATimeHasItBehind) {
  const DateValue date{37947 + (22 * 3600 + 42 * 60 + 58) / 86400.0};
  EXPECT_EQ(Text(date), "11/22/2003 10:42:58 PM");
  UseGerman();
  EXPECT_EQ(Text(date), "22.11.2003 22:42:58");
}

TEST_F(StoredValueTest, TimeWithoutADateShowsAlone) {
  UseGerman();
  EXPECT_EQ(Text(DateValue{0.5}), "12:00:00");
  EXPECT_EQ(Text(DateValue{-0.25}), "06:00:00") << "the part after the point counts forwards";
  EXPECT_EQ(Text(DateValue{0}), "30.12.1899") << "midnight of that day has nothing else to show";
}

TEST_F(StoredValueTest, DatesBeforeTheCountCountTheirTimesForwards) {
  UseGerman();
  EXPECT_EQ(Text(DateValue{-1}), "29.12.1899");
  EXPECT_EQ(Text(DateValue{-1.25}), "29.12.1899 06:00:00");
  EXPECT_EQ(Text(DateValue{-728}), "01.01.1898");
}

TEST_F(StoredValueTest, SecondsAreRounded) {
  UseGerman();
  EXPECT_EQ(Text(DateValue{1 + 0.4 / 86400}), "31.12.1899");
  EXPECT_EQ(Text(DateValue{1 + 0.6 / 86400}), "31.12.1899 00:00:01");
  EXPECT_EQ(Text(DateValue{1 + 86399.6 / 86400}), "01.01.1900") << "midnight is the next day's";
  EXPECT_EQ(Text(DateValue{-1 - 86399.6 / 86400}), "30.12.1899");
}

TEST_F(StoredValueTest, CalendarHasTwoEnds) {
  UseGerman();
  EXPECT_EQ(Text(DateValue{-657434}), "01.01.0100");
  EXPECT_EQ(Text(DateValue{-657435}), "-657435");
  EXPECT_EQ(Text(DateValue{2958465}), "31.12.9999");
  EXPECT_EQ(Text(DateValue{2958466}), "2958466");
  EXPECT_EQ(Text(DateValue{2958465 + 86399.9 / 86400}), "2958465,99999884")
      << "its seconds would round to a day too late";
  EXPECT_EQ(Text(DateValue{std::numeric_limits<double>::infinity()}), "Infinity");
  EXPECT_EQ(Text(DateValue{std::numeric_limits<double>::quiet_NaN()}), "NaN");
}

}  // namespace
}  // namespace tagwright
