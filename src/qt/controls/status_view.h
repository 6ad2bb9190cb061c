// The view of the status bar.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/status_bar.h"

class QWidget;

namespace tagwright {

// Stands along the bottom edge of the window, as high as the model says. The labels of its panels
// carry their number, from 1, in the property "panel" of the form file.
std::unique_ptr<ControlView> MakeStatusView(StatusBar& bar, QWidget& widget);

}  // namespace tagwright
