// From controls to the widgets of a window: finds that of each control by its name.
#pragma once

#include <QStringList>
#include <memory>
#include <vector>

#include "platform/controls/control_view.h"
#include "platform/controls/form.h"

class QWidget;

namespace tagwright {

// The part of a window inside frame and menu bar.
QWidget& ClientOf(QWidget& window);

// Makes the views of all controls, menus and timers of `form`. Controls without a widget have none:
// the board paints its children, and what is off screen needs none.
std::vector<std::unique_ptr<ControlView>> BindControls(Form& form, QWidget& window);

// The names that do not match: controls that should have a widget or an action and have none, and
// widgets and actions named like a control that no control answers to.
QStringList ControlsWithoutWidget(const Form& form, const QWidget& window);
QStringList WidgetsWithoutControl(const Form& form, const QWidget& window);

}  // namespace tagwright
