// Scroll bars.
#pragma once

#include "platform/controls/control.h"

namespace tagwright {

// Values from Min to Max; Change only on a change.
class ScrollBar : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  int Value() const { return value_; }
  void SetValue(int value);  // outside: fault 380, value kept
  int Min() const { return min_; }
  int Max() const { return max_; }
  void SetRange(int min, int max);  // faults 380 when max < min; cuts the value, raising Change
  int SmallChange() const { return small_change_; }
  int LargeChange() const { return large_change_; }
  void SetSteps(int small_change, int large_change);
  void UserScroll(int value);  // as SetValue, cut to the range

 private:
  int value_ = 0, min_ = 0, max_ = 32767, small_change_ = 1, large_change_ = 1;
};

}  // namespace tagwright
