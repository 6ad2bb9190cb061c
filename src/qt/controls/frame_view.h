// The view of a picture box that only holds other controls.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/picture_box.h"

class QWidget;

namespace tagwright {

// `widget` is a frame or panel.
std::unique_ptr<ControlView> MakeFrameView(PictureBox& box, QWidget& widget);

}  // namespace tagwright
