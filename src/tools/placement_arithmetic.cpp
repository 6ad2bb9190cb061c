#include "tools/placement_arithmetic.h"

#include <algorithm>

#include "common/arithmetic.h"
#include "common/public_functions.h"
#include "platform/painting/scale.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

constexpr double kLabelShare = 0.9;
constexpr double kThinnest = 1;
constexpr double kThinLine = 0.1;

// PostNet in inches. Single-precision constants, as the sizes in saved labels came from.
constexpr float kPostNetHeight = 0.125F;
constexpr float kPostNetBar = 0.02F;
constexpr float kPostNetGap = 0.026F;

constexpr double kRoyalMailHeight = 4.22;
constexpr double kRoyalMailBar = 0.76;

constexpr double kIn = 1.5;
constexpr double kOut = 0.75;
constexpr double kLargestZoom = 50;

double OnTwoDecimals(double zoom) { return ToNumber(FormatFixed(zoom, 2)); }

}  // namespace

bool IsTiny(const Extent& box) { return box.width < kSmallestDrag || box.height < kSmallestDrag; }

Extent PictureExtent(const Extent& picture, const Extent& label) {
  const double widest = kLabelShare * label.width;
  const double highest = kLabelShare * label.height;
  double factor = 1;
  if (widest < picture.width) factor = Quotient(widest, picture.width);
  if (highest < picture.height * factor) factor = Quotient(highest, picture.height);
  return {picture.width * factor, picture.height * factor};
}

Extent LineExtent(const Extent& drawn) {
  return {drawn.width < kThinnest ? kThinLine : drawn.width,
          drawn.height < kThinnest ? kThinLine : drawn.height};
}

Extent PostNetExtent(double length) {
  const double bars = (length + 1) * 5 + 2;
  const double gaps = bars - 1;
  return {bars * Inches(kPostNetBar) + gaps * Inches(kPostNetGap), Inches(kPostNetHeight)};
}

Extent RoyalMailExtent(double length) {
  return {((length + 1) * 4 + 1.5) * kRoyalMailBar, kRoyalMailHeight};
}

double ZoomedIn(double zoom, double last) {
  return OnTwoDecimals(zoom >= last ? zoom : zoom * kIn);
}

double ZoomedOut(double zoom) { return OnTwoDecimals(std::min(zoom, kLargestZoom) * kOut); }

}  // namespace tagwright
