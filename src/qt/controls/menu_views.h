// The views of menus and their entries.
#pragma once

#include <memory>

#include "platform/controls/control_view.h"
#include "platform/controls/menu.h"

class QAction;

namespace tagwright {

// The view of a menu entry, or of a menu as its parent's entry (then `action` is its menuAction).
std::unique_ptr<ControlView> MakeMenuView(Menu& menu, QAction& action);

}  // namespace tagwright
