#include "platform/painting/scale.h"

#include <algorithm>
#include <cmath>

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

void CheckUnits(double units) {
  if (!std::isfinite(units) || units <= 0) RaiseFault(kBadValue);
}

double UserUnit(double twips, double units) { return twips > 0 && units > 0 ? twips / units : 1; }

}  // namespace

ScaleSpace::ScaleSpace(double width_twips, double height_twips, double pixels_per_inch)
    : pixels_per_inch_(pixels_per_inch) {
  Resize(width_twips, height_twips);
}

void ScaleSpace::Resize(double width_twips, double height_twips) {
  width_twips_ = std::max(width_twips, 0.0);
  height_twips_ = std::max(height_twips, 0.0);
  DerivePixels();
}

void ScaleSpace::SetPixelsPerInch(double pixels_per_inch) {
  CheckUnits(pixels_per_inch);
  pixels_per_inch_ = pixels_per_inch;
  DerivePixels();
}

void ScaleSpace::SetScaleMode(int code) {
  if (code != kUserScale && code != kTwips && code != kPixels && code != kMillimetres) {
    RaiseFault(kBadValue);
  }
  user_width_ = ScaleWidth();
  user_height_ = ScaleHeight();
  mode_ = code;
  DerivePixels();
}

double ScaleSpace::ScaleWidth() const {
  return mode_ == kUserScale ? user_width_ : width_twips_ / UnitOf(mode_, true);
}

double ScaleSpace::ScaleHeight() const {
  return mode_ == kUserScale ? user_height_ : height_twips_ / UnitOf(mode_, false);
}

void ScaleSpace::SetScaleWidth(double units) {
  CheckUnits(units);
  SetScaleMode(kUserScale);
  user_width_ = units;
  DerivePixels();
}

void ScaleSpace::SetScaleHeight(double units) {
  CheckUnits(units);
  SetScaleMode(kUserScale);
  user_height_ = units;
  DerivePixels();
}

double ScaleSpace::ScaleX(double value, int from, int to) const {
  return from == to ? value : value * UnitOf(from, true) / UnitOf(to, true);
}

double ScaleSpace::ScaleY(double value, int from, int to) const {
  return from == to ? value : value * UnitOf(from, false) / UnitOf(to, false);
}

double ScaleSpace::UnitX() const {
  return mode_ == kUserScale ? UserUnit(width_twips_, user_width_) : UnitOf(mode_, true);
}

double ScaleSpace::UnitY() const {
  return mode_ == kUserScale ? UserUnit(height_twips_, user_height_) : UnitOf(mode_, false);
}

// Once for each change of the scale, not for each bar of a label.
void ScaleSpace::DerivePixels() {
  const double pixel = UnitOf(kPixels, true);
  pixels_x_ = UnitX() / pixel;
  pixels_y_ = UnitY() / pixel;
}

double ScaleSpace::UnitOf(int code, bool horizontal) const {
  switch (code) {
    case kUserScale:
      return horizontal ? UnitX() : UnitY();
    case kTwips:
      return 1;
    case kPixels:
      return kTwipsPerInch / pixels_per_inch_;
    case kMillimetres:
      return kTwipsPerMillimetre;
    default:
      RaiseFault(kBadValue);
  }
}

}  // namespace tagwright
