#include "platform/controls/timer.h"

#include "platform/faults/fault.h"

namespace tagwright {

void Timer::SetInterval(int value) {
  if (value < 0) RaiseFault(kBadValue);
  interval_ = value;
  Notify(Aspect::kValue);
}

// Views start the wait at each notice, so enabling what is enabled must give one.
void Timer::SetEnabled(bool value) {
  const bool again = value && Enabled();
  Control::SetEnabled(value);
  if (again) Notify(Aspect::kEnabled);
}

void Timer::Elapsed() {
  if (Waits() || !Enabled() || interval_ == 0) return;
  Events().Timer.Raise(Index());
}

}  // namespace tagwright
