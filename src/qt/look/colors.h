// Colours of the program in the toolkit's form.
#pragma once

#include <QColor>

#include "platform/painting/surface.h"

namespace tagwright {

// 0x00BBGGRR; the highest byte, which files may carry, says nothing.
inline QColor ToQColor(Color color) {
  return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

}  // namespace tagwright
