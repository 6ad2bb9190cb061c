// What holds other controls: their scale, their order and which of them the mouse meets.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/controls/control.h"
#include "platform/painting/scale.h"

namespace tagwright {

// A control that holds others: a form or a picture box.
class Container : public Control {
 public:
  using Control::Control;
  ~Container() override;

  const std::vector<Control*>& Children() const { return children_; }  // in creation order

  ScaleSpace& Scale() { return scale_; }
  const ScaleSpace& Scale() const { return scale_; }
  // The scale as members of the control; changing it keeps the children where they are on screen.
  int ScaleMode() const { return scale_.ScaleMode(); }
  void SetScaleMode(int code);
  double ScaleWidth() const { return scale_.ScaleWidth(); }
  double ScaleHeight() const { return scale_.ScaleHeight(); }
  void SetScaleWidth(double units);
  void SetScaleHeight(double units);
  double ScaleX(double value, int from, int to) const { return scale_.ScaleX(value, from, to); }
  double ScaleY(double value, int from, int to) const { return scale_.ScaleY(value, from, to); }

  // The child under a point (twips from this container's corner) that takes the mouse: the topmost
  // visible label by ZOrder, or null for the container itself. Shapes, lines and disabled labels
  // are passed over; a disabled label does not cover what lies under it.
  Control* ChildAt(double x_twips, double y_twips) const;

  // The control that a press in this container holds; null without one.
  Control* Captured() const;

  // A control that stands for this container and its labels when the user presses there and the
  // keyboard has to go somewhere; null: the keyboard stays where it is.
  Control* FocusStandIn() const { return focus_stand_in_; }
  void SetFocusStandIn(Control* control) { focus_stand_in_ = control; }

 protected:
  void ResizeScale(double width_twips, double height_twips);
  Control* FocusTarget() override { return focus_stand_in_; }
  Control& MouseTarget(double x_twips, double y_twips) override;
  double MouseUnitX() const override { return scale_.UnitX(); }
  double MouseUnitY() const override { return scale_.UnitY(); }
  // Runs `change` on the scale, then converts the children's numbers.
  template <class Change>
  void ChangeScale(Change&& change);

 private:
  friend class Control;
  void Adopt(Control* child);
  void Release(Control* child);

  std::vector<Control*> children_;
  ScaleSpace scale_;
  Control* focus_stand_in_ = nullptr;
  std::int64_t front_ = 0;
  std::int64_t back_ = 0;
};

}  // namespace tagwright
