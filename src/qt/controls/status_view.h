// The view of the status bar.
#pragma once

#include <memory>

#include "platform/controls/controls.h"

class QWidget;

namespace tagwright {

// Stands along the bottom edge of the window, as high as the model says.
std::unique_ptr<ControlView> MakeStatusView(StatusBar& bar, QWidget& widget);

}  // namespace tagwright
