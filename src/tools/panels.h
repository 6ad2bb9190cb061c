// The panel of data sources coming forward; the stack itself is in editing/panel_stack.h.
#pragma once

#include "editing/panel_stack.h"

namespace tagwright {

// Disarms the tool, puts the pointer back and brings the panel of data sources forward with the
// font boxes, which take the style of the label's last data field, or without one the default.
void mnuFileImport_Click();

}  // namespace tagwright
