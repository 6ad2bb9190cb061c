// The view of a scroll bar.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/scroll_bar.h"

class QScrollBar;

namespace tagwright {

// Range, steps and value are the model's.
std::unique_ptr<ControlView> MakeScrollView(ScrollBar& bar, QScrollBar& widget);

}  // namespace tagwright
