// The user's locale as plain data, and the number and date forms that follow from it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tagwright {

// A calendar day. Months and days count from 1.
struct Date {
  int year = 1970;
  int month = 1;
  int day = 1;
  bool operator==(const Date&) const = default;
};

// A time of the day, on the 24-hour clock.
struct TimeOfDay {
  int hour = 0;
  int minute = 0;
  int second = 0;
  bool operator==(const TimeOfDay&) const = default;
};

// `date` moved by `days`, proleptic Gregorian. Faults 6 outside the years 100 to 9999.
Date AddDays(const Date& date, std::int64_t days);

// What the program uses of LC_ALL, LC_NUMERIC, LC_MONETARY and LC_TIME. Texts are UTF-8.
struct UserLocale {
  std::string decimal = ".";             // decimal symbol
  std::string group = ",";               // group separator
  std::string currency = "$";            // currency symbol
  std::string currency_positive = "¤n";  // "¤" stands for the symbol, "n" for the number
  std::string currency_negative = "-¤n";
  int currency_digits = 2;  // digits after the decimal symbol
  // d, dd, M, MM, yyyy; everything else stands for itself, in single quotes these letters too
  std::string short_date = "M/d/yyyy";
  // h, hh (of twelve), H, HH (of 24), m, mm, s, ss, tt (the half of the day); otherwise as above
  std::string time = "h:mm:ss tt";
  std::string before_noon = "AM";  // what tt stands for
  std::string after_noon = "PM";
  int code_page = 1252;  // Windows code page of the language
  bool operator==(const UserLocale&) const = default;
};

// The locale in force. The platform sets it at start; tests set their own.
const UserLocale& Locale();
void SetLocale(const UserLocale& locale);

// Whether `text` is a number for the user: digits with group separators (wherever between the
// whole digits), decimal symbol and exponent; around them in any order blanks, the currency symbol
// and one sign, which may follow the number or be parentheses for negative. Empty text is not, nor
// is a value beyond a double. Where a blank of some kind groups digits, every kind of blank does.
bool IsNumeric(std::string_view text);

// The number of a text for which IsNumeric holds, otherwise nothing.
std::optional<double> ParseNumber(std::string_view text);

// `value` with exactly `decimals` digits (no group separators), halves away from zero, with the
// user's decimal symbol: the picture "0", "0.0", "0.00". Rounds the fifteen significant digits that
// a double is sure to hold, so 2.675 is a half, and a 32-bit 3.175 (3.17499995...) is not. A
// negative value that rounds to zero has no sign. Here and below a value that is not finite gives
// "NaN", "Infinity" or "-Infinity", which read back as no number.
std::string FormatFixed(double value, int decimals);

// "Standard": two decimals with group separators.
std::string FormatStandard(double value);

// "Currency": the locale's form with its symbol.
std::string FormatCurrency(double value);

// "short date".
std::string FormatShortDate(const Date& date);

// The time with its seconds.
std::string FormatTime(const TimeOfDay& time);

// `value` as plain decimal text with up to `digits` significant digits and the user's decimal
// symbol, no padding zeros, an exponent only where the magnitude asks for one.
std::string FormatNumber(double value, int digits = 15);

}  // namespace tagwright
