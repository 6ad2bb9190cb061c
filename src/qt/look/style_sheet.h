// The style sheet of every window (style.qss), in which colours stand as %name%.
#pragma once

#include <QString>

#include "qt/look/theme.h"

namespace tagwright {

// The style sheet with the colours of `theme` filled in.
QString StyleSheetOf(const Theme& theme);

}  // namespace tagwright
