#include "platform/services/clock.h"

#include <ctime>

namespace tagwright {
namespace {

std::optional<Date> fixed_today;

}  // namespace

Date Today() {
  if (fixed_today) return *fixed_today;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

void FixToday(std::optional<Date> date) { fixed_today = date; }

}  // namespace tagwright
