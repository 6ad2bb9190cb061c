// The form files of this program, and the windows that they describe.
#pragma once

#include <memory>

#include "platform/controls/form.h"
#include "platform/controls/windows.h"

class QWidget;

namespace tagwright {

// The window that the form file of `form` describes, with its icons; null when there is no file of
// that name. `parent` is the window that it opens over.
std::unique_ptr<QWidget> BuildWindow(const Form& form, QWidget* parent);

// The window service over these files.
std::unique_ptr<WindowService> MakeWindowService();

}  // namespace tagwright
