#include "platform/text/locale.h"

#include <locale.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/faults/fault.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

UserLocale locale_in_force;

// --- reading numbers ---

// Blanks that locales use to group digits; people type whichever is at hand.
bool IsBlank(char32_t c) { return c == U' ' || c == U'\t' || c == 0xA0 || c == 0x202F; }

// Reads a number's text from left to right. Each `Take...` steps over what it names, if it is next.
class NumberReader {
 public:
  explicit NumberReader(std::u32string text) : text_(std::move(text)) {}

  std::optional<double> Read();

 private:
  bool AtEnd() const { return at_ == text_.size(); }
  bool Take(std::u32string_view symbol);
  bool TakeGroup();
  bool TakeSign(bool before);
  bool TakeAround(bool before);
  void TakeWhole();
  void TakeFraction();
  void TakeExponent();
  void TakeDigits();
  std::optional<double> Value() const;

  std::u32string text_;
  std::size_t at_ = 0;
  std::string digits_;  // as the C locale writes the number
  int digit_count_ = 0;
  bool negative_ = false;
  bool signed_ = false;  // a sign or a parenthesis was seen: there is room for one only
  bool open_ = false;    // a parenthesis waits to be closed
  bool currency_ = false;
};

bool NumberReader::Take(std::u32string_view symbol) {
  if (symbol.empty() || text_.compare(at_, symbol.size(), symbol) != 0) return false;
  at_ += symbol.size();
  return true;
}

bool NumberReader::TakeGroup() {
  const std::u32string group = Characters(Locale().group);
  if (group.size() != 1 || !IsBlank(group[0])) return Take(group);
  // A blank separates groups only between digits; elsewhere it is one of those around the number.
  if (at_ + 1 >= text_.size() || !IsBlank(text_[at_]) || !IsDigit(text_[at_ + 1])) return false;
  ++at_;
  return true;
}

// A sign, or the parenthesis that stands for one; only one of all these is read.
bool NumberReader::TakeSign(bool before) {
  if (signed_) return false;
  open_ = before && Take(U"(");
  negative_ = open_ || Take(U"-");
  signed_ = negative_ || Take(U"+");
  return signed_;
}

// One of the things that may stand before or after the digits.
bool NumberReader::TakeAround(bool before) {
  if (AtEnd()) return false;
  if (IsBlank(text_[at_])) {
    ++at_;
    return true;
  }
  if (!currency_ && Take(Characters(Locale().currency))) {
    currency_ = true;
    return true;
  }
  if (!before && open_ && Take(U")")) {
    open_ = false;
    return true;
  }
  return TakeSign(before);
}

void NumberReader::TakeDigits() {
  for (; !AtEnd() && IsDigit(text_[at_]); ++at_, ++digit_count_) {
    digits_.push_back(static_cast<char>(text_[at_]));
  }
}

void NumberReader::TakeWhole() {
  TakeDigits();
  while (digit_count_ > 0 && TakeGroup()) TakeDigits();
}

void NumberReader::TakeFraction() {
  if (!Take(Characters(Locale().decimal))) return;
  digits_.push_back('.');
  TakeDigits();
}

// An "e" without digits after it is left where it is, and makes the text no number.
void NumberReader::TakeExponent() {
  const std::size_t start = at_;
  if (digit_count_ == 0 || !(Take(U"e") || Take(U"E"))) return;
  std::string exponent = "e";
  if (Take(U"-"))
    exponent.push_back('-');
  else
    Take(U"+");
  if (AtEnd() || !IsDigit(text_[at_])) {
    at_ = start;
    return;
  }
  digits_ += exponent;
  TakeDigits();
}

// In the C locale whatever the process has set. Too small counts as 0; too large is no number.
std::optional<double> NumberReader::Value() const {
  static const locale_t c_locale = newlocale(LC_ALL_MASK, "C", nullptr);
  const double value = strtod_l(digits_.c_str(), nullptr, c_locale);
  if (!std::isfinite(value)) return std::nullopt;
  return negative_ ? -value : value;
}

std::optional<double> NumberReader::Read() {
  while (TakeAround(true)) continue;
  TakeWhole();
  TakeFraction();
  if (digit_count_ == 0) return std::nullopt;
  TakeExponent();
  while (TakeAround(false)) continue;
  if (!AtEnd() || open_) return std::nullopt;
  return Value();
}

// --- writing numbers ---

// The digits of a magnitude, rounded: before and after the decimal symbol.
struct Decimal {
  std::string whole;
  std::string fraction;
  bool IsZero() const { return (whole + fraction).find_first_not_of('0') == std::string::npos; }
};

// Adds one to a row of decimal digits.
void Increment(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  digits.insert(0, 1, '1');
}

// The magnitude as its first fifteen significant digits, "d.dddddddddddddde+xx" taken apart: what a
// double is sure to hold. Rounding from these digits makes 2.675 a half, as it reads, though its
// nearest double lies a little below.
struct Significant {
  std::string digits;
  int exponent;
};

Significant FifteenDigits(double magnitude) {
  char buffer[64];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific, 14)
          .ptr;
  const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
  const std::size_t e = text.find('e');
  int exponent = 0;
  const std::size_t number = text[e + 1] == '+' ? e + 2 : e + 1;
  std::from_chars(buffer + number, end, exponent);
  return {std::string(text.substr(0, 1)) + std::string(text.substr(2, e - 2)), exponent};
}

Decimal Rounded(double magnitude, int decimals) {
  auto [digits, exponent] = FifteenDigits(magnitude);
  if (exponent < 0) digits.insert(0, static_cast<std::size_t>(-exponent), '0');
  const auto whole = static_cast<std::size_t>(exponent < 0 ? 1 : exponent + 1);
  const std::size_t kept = whole + static_cast<std::size_t>(decimals);
  digits.resize(std::max(digits.size(), kept + 1), '0');
  const bool up = digits[kept] >= '5';
  digits.resize(kept);
  if (up) Increment(digits);
  const std::size_t split = digits.size() - static_cast<std::size_t>(decimals);
  return {digits.substr(0, split), digits.substr(split)};
}

std::string Grouped(const std::string& whole) {
  std::string out;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (i > 0 && (whole.size() - i) % 3 == 0) out += Locale().group;
    out.push_back(whole[i]);
  }
  return out;
}

std::string Joined(const std::string& whole, const std::string& fraction) {
  return fraction.empty() ? whole : whole + Locale().decimal + fraction;
}

std::string NotFinite(double value) {
  if (std::isnan(value)) return "NaN";
  return value < 0 ? "-Infinity" : "Infinity";
}

// --- dates and times ---

std::string Padded(int number, std::size_t width) {
  std::string out = std::to_string(number);
  if (out.size() < width) out.insert(0, width - out.size(), '0');
  return out;
}

// What a run of one letter of a date pattern stands for; nothing when it is no part of a date.
std::optional<std::string> DatePart(char letter, std::size_t count, const Date& date) {
  if (letter == 'd' && count <= 2) return Padded(date.day, count);
  if (letter == 'M' && count <= 2) return Padded(date.month, count);
  if (letter == 'y') return Padded(date.year, 4);
  return std::nullopt;
}

// The same for a time.
std::optional<std::string> TimePart(char letter, std::size_t count, const TimeOfDay& time) {
  if (count > 2) return std::nullopt;
  if (letter == 'h') return Padded((time.hour + 11) % 12 + 1, count);
  if (letter == 'H') return Padded(time.hour, count);
  if (letter == 'm') return Padded(time.minute, count);
  if (letter == 's') return Padded(time.second, count);
  if (letter == 't') return time.hour < 12 ? Locale().before_noon : Locale().after_noon;
  return std::nullopt;
}

// A pattern with its runs of letters replaced by what `part_of(letter, count)` makes of them. What
// it knows nothing of stands for itself, and so does all between single quotes.
template <class PartOf>
std::string Filled(const std::string& pattern, PartOf part_of) {
  std::string out;
  bool quoted = false;
  for (std::size_t i = 0; i < pattern.size();) {
    const std::size_t next = std::min(pattern.find_first_not_of(pattern[i], i), pattern.size());
    const std::optional<std::string> part = quoted ? std::nullopt : part_of(pattern[i], next - i);
    if (part) {
      out += *part;
      i = next;
      continue;
    }
    if (pattern[i] == '\'')
      quoted = !quoted;
    else
      out.push_back(pattern[i]);
    ++i;
  }
  return out;
}

}  // namespace

Date AddDays(const Date& date, std::int64_t days) {
  using namespace std::chrono;
  constexpr std::int64_t kLongestSpan = 9900 * 366LL;
  if (days < -kLongestSpan || days > kLongestSpan) RaiseFault(kOverflow);
  const year_month_day start{year(date.year), month(static_cast<unsigned>(date.month)),
                             day(static_cast<unsigned>(date.day))};
  const year_month_day moved{sys_days(start) + std::chrono::days(days)};
  const int moved_year = static_cast<int>(moved.year());
  if (moved_year < 100 || moved_year > 9999) RaiseFault(kOverflow);
  return {moved_year, static_cast<int>(static_cast<unsigned>(moved.month())),
          static_cast<int>(static_cast<unsigned>(moved.day()))};
}

const UserLocale& Locale() { return locale_in_force; }

void SetLocale(const UserLocale& locale) { locale_in_force = locale; }

bool IsNumeric(std::string_view text) { return ParseNumber(text).has_value(); }

std::optional<double> ParseNumber(std::string_view text) {
  return NumberReader(Characters(text)).Read();
}

std::string FormatFixed(double value, int decimals) {
  if (!std::isfinite(value)) return NotFinite(value);
  const Decimal rounded = Rounded(std::fabs(value), decimals);
  const bool negative = value < 0 && !rounded.IsZero();
  return (negative ? "-" : "") + Joined(rounded.whole, rounded.fraction);
}

std::string FormatStandard(double value) {
  if (!std::isfinite(value)) return NotFinite(value);
  const Decimal rounded = Rounded(std::fabs(value), 2);
  const bool negative = value < 0 && !rounded.IsZero();
  return (negative ? "-" : "") + Joined(Grouped(rounded.whole), rounded.fraction);
}

std::string FormatCurrency(double value) {
  if (!std::isfinite(value)) return NotFinite(value);
  const Decimal rounded = Rounded(std::fabs(value), Locale().currency_digits);
  const bool negative = value < 0 && !rounded.IsZero();
  const std::string& form = negative ? Locale().currency_negative : Locale().currency_positive;
  std::string out;
  for (const char32_t c : Characters(form)) {
    if (c == U'n') {
      out += Joined(Grouped(rounded.whole), rounded.fraction);
    } else {
      out += c == U'¤' ? Locale().currency : FromCharacters({&c, 1});
    }
  }
  return out;
}

std::string FormatShortDate(const Date& date) {
  return Filled(Locale().short_date,
                [&](char letter, std::size_t count) { return DatePart(letter, count, date); });
}

std::string FormatTime(const TimeOfDay& time) {
  return Filled(Locale().time,
                [&](char letter, std::size_t count) { return TimePart(letter, count, time); });
}

std::string FormatNumber(double value, int digits) {
  if (!std::isfinite(value)) return NotFinite(value);
  if (value == 0) return "0";
  char buffer[64];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits).ptr;
  std::string out(buffer, end);
  if (const std::size_t e = out.find('e'); e != std::string::npos) out[e] = 'E';
  return Replace(out, ".", Locale().decimal);
}

}  // namespace tagwright
