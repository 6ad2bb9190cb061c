// The user's locale as the toolkit knows it.
#pragma once

#include <string>

#include "platform/text/locale.h"

namespace tagwright {

// The names of the locales that count, such as "de_DE.UTF-8"; "C" and empty ones keep the built-in
// forms.
struct LocaleNames {
  std::string numeric;
  std::string monetary;
  std::string time;
  std::string language;  // decides the code page
};

// From LC_ALL, then LC_NUMERIC, LC_MONETARY, LC_TIME and LC_CTYPE, then LANG.
LocaleNames UserLocaleNames();

UserLocale LocaleOf(const LocaleNames& names);

}  // namespace tagwright
