// The present date, replaceable so that tests run on a fixed day.
#pragma once

#include <optional>

#include "platform/text/locale.h"

namespace tagwright {

// Today in the user's time zone, or the day that tests have fixed.
Date Today();

// Fixes the day; nothing returns to the real clock.
void FixToday(std::optional<Date> date);

}  // namespace tagwright
