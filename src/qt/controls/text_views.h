// The views of text boxes, of one line and of several.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/text_controls.h"

class QLineEdit;
class QPlainTextEdit;

namespace tagwright {

// Of one line.
std::unique_ptr<ControlView> MakeLineView(TextBox& box, QLineEdit& widget);

// Of several.
std::unique_ptr<ControlView> MakeLinesView(TextBox& box, QPlainTextEdit& widget);

}  // namespace tagwright
