// The views of labels: a text, or a sample of a colour.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/label.h"

class QFrame;
class QLabel;

namespace tagwright {

// Text. An empty caption leaves what the form file says; one that may be cut off keeps its end.
std::unique_ptr<ControlView> MakeLabelView(Label& label, QLabel& widget);

// A label whose back colour is what it is there for.
std::unique_ptr<ControlView> MakeSwatchView(Label& label, QFrame& widget);

}  // namespace tagwright
