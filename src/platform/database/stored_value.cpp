#include "platform/database/stored_value.h"

#include <cmath>
#include <cstdint>

#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr Date kDayZero{1899, 12, 30};
constexpr std::int64_t kFirstDay = -657434;  // 1 January 100
constexpr std::int64_t kLastDay = 2958465;   // 31 December 9999
constexpr std::int64_t kSecondsOfDay = 86400;

// A day, counted from day zero, and the seconds since its midnight.
struct Moment {
  std::int64_t day;
  std::int64_t second;
};

// To the nearest second; half a second before midnight is the next day.
Moment MomentOf(double days) {
  const double whole = std::trunc(days);
  const auto second = std::llround(std::fabs(days - whole) * kSecondsOfDay);
  return {static_cast<std::int64_t>(whole) + second / kSecondsOfDay, second % kSecondsOfDay};
}

bool IsDate(double days) {
  return days >= static_cast<double>(kFirstDay) && days < static_cast<double>(kLastDay + 1);
}

std::string TimeText(std::int64_t second) {
  return FormatTime({.hour = static_cast<int>(second / 3600),
                     .minute = static_cast<int>(second / 60 % 60),
                     .second = static_cast<int>(second % 60)});
}

std::string DateText(double days) {
  if (!IsDate(days)) return FormatNumber(days);
  const Moment moment = MomentOf(days);
  if (moment.day > kLastDay) return FormatNumber(days);
  if (moment.day == 0 && moment.second > 0) return TimeText(moment.second);
  const std::string date = FormatShortDate(AddDays(kDayZero, moment.day));
  return moment.second == 0 ? date : date + " " + TimeText(moment.second);
}

constexpr int kDigitsOfSingle = 7;

struct Texts {
  std::optional<std::string> operator()(std::monostate) const { return std::nullopt; }
  std::optional<std::string> operator()(bool value) const { return value ? "True" : "False"; }
  std::optional<std::string> operator()(const DecimalValue& value) const {
    return Replace(value.digits, ".", Locale().decimal);
  }
  std::optional<std::string> operator()(float value) const {
    return FormatNumber(static_cast<double>(value), kDigitsOfSingle);
  }
  std::optional<std::string> operator()(double value) const { return FormatNumber(value); }
  std::optional<std::string> operator()(const DateValue& value) const {
    return DateText(value.days);
  }
  std::optional<std::string> operator()(const std::string& value) const { return value; }
};

}  // namespace

std::optional<std::string> TextOf(const StoredValue& value) { return std::visit(Texts{}, value); }

}  // namespace tagwright
