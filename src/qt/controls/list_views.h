// The views of lists: those that unfold, with a text to type or without, and those that lie open.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/list_box.h"
#include "platform/controls/text_controls.h"

class QComboBox;
class QListWidget;

namespace tagwright {

// A list that unfolds.
std::unique_ptr<ControlView> MakeComboView(ComboBox& combo, QComboBox& widget);

// A list that lies open.
std::unique_ptr<ControlView> MakeListView(ListBox& list, QListWidget& widget);

}  // namespace tagwright
