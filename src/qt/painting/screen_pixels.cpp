#include "qt/painting/screen_pixels.h"

#include <cmath>

namespace tagwright {
// Sums of millimetres in different orders, and records that keep 32 bits, leave a noise of up to
// 5e-5 of a pixel, which must not decide between two of them.
double OnScreenPixel(double place, double pen_width, double ratio) {
  constexpr double kSamePlace = 0.001;  // screen pixels
  const double pixel = place * ratio + kSamePlace;
  const bool odd = std::lround(pen_width * ratio) % 2 == 1;
  return (odd ? std::floor(pixel) + 0.5 : std::floor(pixel + 0.5)) / ratio;
}

}  // namespace tagwright
