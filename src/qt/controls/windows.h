// Windows of the toolkit for the forms of the program.
#pragma once

#include <functional>
#include <memory>

#include "platform/controls/form.h"
#include "platform/controls/windows.h"

class QWidget;

namespace tagwright {

// Makes the window of a form, over `parent`; null for a form that has none.
using WindowBuilder = std::function<std::unique_ptr<QWidget>(const Form& form, QWidget* parent)>;

// The window service, whose windows `build` makes. One window per loaded form; it reports what user
// and window system do to it.
std::unique_ptr<WindowService> MakeWindowService(WindowBuilder build);

// The window of a loaded form; null when it has none.
QWidget* WindowOf(const Form& form);

// The window over which a dialog opens: the active one, otherwise any that is shown; null for none.
QWidget* WindowForDialogs();

}  // namespace tagwright
