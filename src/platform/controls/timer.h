// Timers.
#pragma once

#include "platform/controls/control.h"

namespace tagwright {

// A timer. Ticks that fall due while a handler runs are dropped.
class Timer : public Control {
 public:
  using Control::Control;
  int Interval() const { return interval_; }  // milliseconds; 0 never ticks
  void SetInterval(int value);                // faults 380 when negative
  void SetEnabled(bool value) override;       // enabling a running timer starts its wait again
  // The platform: the interval is over. Raises Timer, unless it is disabled or a handler runs.
  void Elapsed();

 private:
  int interval_ = 0;
};

}  // namespace tagwright
