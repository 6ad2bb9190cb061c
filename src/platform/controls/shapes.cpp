#include "platform/controls/shapes.h"

namespace tagwright {

void Shape::SetShape(int value) {
  CheckRange(value, 0, 5);
  if (value == shape_) return;
  shape_ = value;
  Notify(Aspect::kLook);
}

void Shape::SetBorderStyle(int value) {
  CheckRange(value, 0, 6);
  if (value == border_style_) return;
  border_style_ = value;
  Notify(Aspect::kLook);
}

void Shape::SetBorderColor(Color value) {
  if (value == border_color_) return;
  border_color_ = value;
  Notify(Aspect::kLook);
}

void Shape::SetCornerSize(double value) {
  if (value == corner_size_) return;
  corner_size_ = value;
  Notify(Aspect::kLook);
}

void LineControl::SetX1(double value) { Set(x1_, value); }

void LineControl::SetY1(double value) { Set(y1_, value); }

void LineControl::SetX2(double value) { Set(x2_, value); }

void LineControl::SetY2(double value) { Set(y2_, value); }

void LineControl::Set(double& field, double value) {
  if (value == field) return;
  field = value;
  Notify(Aspect::kGeometry);
}

void LineControl::SetBorderColor(Color value) {
  if (value == border_color_) return;
  border_color_ = value;
  Notify(Aspect::kLook);
}

void LineControl::Rescaled(double factor_x, double factor_y) {
  Control::Rescaled(factor_x, factor_y);
  x1_ *= factor_x;
  x2_ *= factor_x;
  y1_ *= factor_y;
  y2_ *= factor_y;
}

}  // namespace tagwright
