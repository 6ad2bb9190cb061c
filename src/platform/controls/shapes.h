// Outlines and lines on the board.
#pragma once

#include "platform/controls/control.h"
#include "platform/painting/surface.h"

namespace tagwright {

// An outline on the board.
class Shape : public Control {
 public:
  using Control::Control;
  int ShapeCode() const { return shape_; }  // 0 rectangle, 2 oval, 4 rounded rectangle
  void SetShape(int value);
  int BorderStyle() const { return border_style_; }  // 0 none, 1 solid, 3 dots
  void SetBorderStyle(int value);
  Color BorderColor() const { return border_color_; }
  void SetBorderColor(Color value);
  // Diameter of the corners of a rounded rectangle, logical pixels.
  double CornerSize() const { return corner_size_; }
  void SetCornerSize(double value);

 protected:
  // Negative sizes are not an error for a shape under the mouse; they are stored and painted as 0.
  bool TakesNegativeSize() const override { return true; }

 private:
  int shape_ = 0;
  int border_style_ = 1;
  Color border_color_ = 0;
  double corner_size_ = 0;
};

// A straight solid line on the board, in the container's unit.
class LineControl : public Control {
 public:
  using Control::Control;
  double X1() const { return x1_; }
  double Y1() const { return y1_; }
  double X2() const { return x2_; }
  double Y2() const { return y2_; }
  void SetX1(double value);
  void SetY1(double value);
  void SetX2(double value);
  void SetY2(double value);
  Color BorderColor() const { return border_color_; }
  void SetBorderColor(Color value);
  void Rescaled(double factor_x, double factor_y) override;

 private:
  void Set(double& field, double value);
  double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
  Color border_color_ = 0;
};

}  // namespace tagwright
