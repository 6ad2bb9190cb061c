#include "platform/controls/scroll_bar.h"

#include <algorithm>

#include "platform/faults/fault.h"

namespace tagwright {

void ScrollBar::SetValue(int value) {
  CheckRange(value, min_, max_);
  if (value == value_) return;
  value_ = value;
  Notify(Aspect::kValue);
  Events().Change.Raise(Index());
}

void ScrollBar::SetRange(int min, int max) {
  if (max < min) RaiseFault(kBadValue);
  min_ = min;
  max_ = max;
  Notify(Aspect::kValue);
  SetValue(std::clamp(value_, min_, max_));
}

void ScrollBar::SetSteps(int small_change, int large_change) {
  small_change_ = small_change;
  large_change_ = large_change;
  Notify(Aspect::kValue);
}

void ScrollBar::UserScroll(int value) {
  if (!Waits() && IsUsable()) SetValue(std::clamp(value, min_, max_));
}

}  // namespace tagwright
