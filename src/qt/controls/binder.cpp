#include "qt/controls/binder.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QWidget>

#include "platform/controls/control.h"
#include "platform/controls/image.h"
#include "platform/controls/label.h"
#include "platform/controls/menu.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/shapes.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/timer.h"
#include "qt/controls/board_view.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/menu_views.h"
#include "qt/controls/timer_view.h"
#include "qt/controls/views.h"

namespace tagwright {
namespace {

bool IsOnBoard(const Control& control, const QWidget& window) {
  if (!control.Parent()) return false;
  auto* parent = window.findChild<QWidget*>(ObjectName(*control.Parent()));
  return dynamic_cast<BoardView*>(parent) != nullptr;
}

// A picture that no window shows: the program keeps it to paint with.
bool IsOffScreen(const Control& control) {
  const auto* picture = dynamic_cast<const PictureBox*>(&control);
  return picture && !picture->Visible() && picture->Children().empty();
}

// What nobody sees as a widget: the board's painted children, the text box that stands for the
// board, timers, holders of icons, the off-screen picture.
bool NeedsNoWidget(const Control& control, const QWidget& window) {
  const bool painted =
      dynamic_cast<const Label*>(&control) || dynamic_cast<const Shape*>(&control) ||
      dynamic_cast<const LineControl*>(&control) || dynamic_cast<const TextBox*>(&control);
  return (painted && IsOnBoard(control, window)) || dynamic_cast<const Timer*>(&control) ||
         dynamic_cast<const Image*>(&control) || IsOffScreen(control);
}

// The entry of a menu or of one of its items; null when the form file has none.
QAction* ActionOf(const Control& menu, const QWidget& window) {
  const QString name = ObjectName(menu);
  if (const auto* submenu = window.findChild<QMenu*>(name)) return submenu->menuAction();
  return window.findChild<QAction*>(name);
}

bool IsNamedLikeControl(const QString& name) {
  static const QRegularExpression pattern(
      "^(cbo|chk|cmd|lbl|pic|txt|lst|shp|tmr|mnu|vS|hS|sB)[A-Z0-9]\\w*$");
  return pattern.match(name).hasMatch();
}

bool Matches(const QObject& object, const Form& form) {
  for (const Control* control : form.AllControls()) {
    if (ObjectName(*control) == object.objectName()) return true;
  }
  return false;
}

std::unique_ptr<ControlView> Bind(Control& control, QWidget& window) {
  if (auto* menu = dynamic_cast<Menu*>(&control)) {
    QAction* action = ActionOf(*menu, window);
    return action ? MakeMenuView(*menu, *action) : nullptr;
  }
  if (auto* timer = dynamic_cast<Timer*>(&control)) return MakeTimerView(*timer);
  auto* widget = window.findChild<QWidget*>(ObjectName(control));
  if (!widget) return nullptr;
  if (auto* board = dynamic_cast<BoardView*>(widget)) {
    board->setProperty("control", true);
    board->Attach(dynamic_cast<PictureBox&>(control));
    return nullptr;  // the widget is the view
  }
  return MakeView(control, *widget);
}

}  // namespace

QWidget& ClientOf(QWidget& window) {
  auto* main = qobject_cast<QMainWindow*>(&window);
  return main ? *main->centralWidget() : window;
}

std::vector<std::unique_ptr<ControlView>> BindControls(Form& form, QWidget& window) {
  std::vector<std::unique_ptr<ControlView>> views;
  const std::vector<Control*> controls = form.AllControls();
  for (Control* control : controls) {
    if (auto view = Bind(*control, window)) views.push_back(std::move(view));
  }
  return views;
}

QStringList ControlsWithoutWidget(const Form& form, const QWidget& window) {
  QStringList missing;
  for (const Control* control : form.AllControls()) {
    if (control == &form || NeedsNoWidget(*control, window)) continue;
    const bool is_menu = dynamic_cast<const Menu*>(control) != nullptr;
    const bool found = is_menu ? ActionOf(*control, window) != nullptr
                               : window.findChild<QWidget*>(ObjectName(*control)) != nullptr;
    if (!found) missing << ObjectName(*control);
  }
  return missing;
}

QStringList WidgetsWithoutControl(const Form& form, const QWidget& window) {
  QStringList strangers;
  for (const QObject* object : window.findChildren<QObject*>()) {
    if (!IsNamedLikeControl(object->objectName())) continue;
    if (!Matches(*object, form)) strangers << object->objectName();
  }
  return strangers;
}

}  // namespace tagwright
