// The view of a timer: nobody sees it, but it ticks.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/timer.h"

namespace tagwright {

// Ticks while the window stands.
std::unique_ptr<ControlView> MakeTimerView(Timer& timer);

}  // namespace tagwright
