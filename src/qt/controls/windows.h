// Windows of the toolkit for the forms of the program.
#pragma once

#include <QString>
#include <memory>

#include "platform/controls/windows.h"

class QWidget;

namespace tagwright {

// The window service. One window per loaded form; it reports what user and window system do to it.
std::unique_ptr<WindowService> MakeWindowService();

// The window of a loaded form; null when it has none.
QWidget* WindowOf(const Form& form);

// The window over which a dialog opens: the active one, otherwise any that is shown; null for none.
QWidget* WindowForDialogs();

}  // namespace tagwright
