// Views of the controls: each renders its control with signals blocked and reports what the user
// did, and nothing else. This finds the one for a control; each kind has a file of its own.
#pragma once

#include <memory>

#include "platform/controls/control.h"
#include "platform/controls/control_view.h"
#include "platform/controls/form.h"
#include "platform/controls/menu.h"
#include "platform/controls/mouse.h"
#include "platform/controls/timer.h"

class QWidget;

namespace tagwright {

// The view for a control and its widget. The widget's class must suit the control's: a text box is
// shown by a QLineEdit or QPlainTextEdit, a label by a QLabel or, as a colour sample, by a QFrame.
// Null when no view suits both.
std::unique_ptr<ControlView> MakeView(Control& control, QWidget& widget);

}  // namespace tagwright
