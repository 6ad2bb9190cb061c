// A field's value as a database holds it, and the text that the program makes of it.
#pragma once

#include <optional>
#include <string>
#include <variant>

namespace tagwright {

// An exact number (a whole one, currency, decimal) as its digits: perhaps a minus, and a point only
// before digits that count, as in "-1110.554".
struct DecimalValue {
  std::string digits;
  bool operator==(const DecimalValue&) const = default;
};

// A point in time as days since 1899-12-30. The part after the point is always counted forwards
// from midnight, so -1.25 is six o'clock of the day before that one.
struct DateValue {
  double days = 0;
  bool operator==(const DateValue&) const = default;
};

// Null, Boolean, exact number, single, double, date or text (UTF-8).
using StoredValue =
    std::variant<std::monostate, bool, DecimalValue, float, double, DateValue, std::string>;

// The value as the user writes it: numbers with the decimal symbol, without group separators or
// padding zeros; Booleans as "True" and "False"; a date in the short form, followed by a blank and
// the time where that is not midnight. A time of the day on which the count begins is a time
// without a date and shows alone. What lies outside the years 100 to 9999 is no date and shows its
// number. Nothing for null.
std::optional<std::string> TextOf(const StoredValue& value);

}  // namespace tagwright
