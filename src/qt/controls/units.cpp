#include "qt/controls/units.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tagwright {
int Pixels(double twips) {
  constexpr double kLimit = QWIDGETSIZE_MAX;
  if (std::isnan(twips)) return 0;
  return qRound(std::clamp(twips / kTwipsPerPixel, -kLimit, kLimit));
}

QRect PixelBox(const Control& control) {
  const int left = Pixels(control.LeftTwips());
  const int top = Pixels(control.TopTwips());
  return {left, top, Pixels(control.LeftTwips() + control.WidthTwips()) - left,
          Pixels(control.TopTwips() + control.HeightTwips()) - top};
}

}  // namespace tagwright
