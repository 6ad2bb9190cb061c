// The views of buttons and check boxes.
#pragma once

#include <memory>

#include "platform/controls/buttons.h"
#include "platform/controls/control_view.h"

class QAbstractButton;
class QCheckBox;

namespace tagwright {

// A button of a dialog or one that shows an icon; whether it stays pressed is the model's affair.
std::unique_ptr<ControlView> MakeButtonView(CommandButton& button, QAbstractButton& widget);

// A box to tick; the model turns it over.
std::unique_ptr<ControlView> MakeCheckView(CheckBox& box, QCheckBox& widget);

}  // namespace tagwright
