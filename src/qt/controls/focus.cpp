#include "qt/controls/focus.h"

#include <QApplication>
#include <QWidget>

#include "platform/controls/form.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/units.h"

namespace tagwright {
namespace {

int user_moves = 0;

}  // namespace

UserMovesFocus::UserMovesFocus() { ++user_moves; }
UserMovesFocus::~UserMovesFocus() { --user_moves; }
bool UserMovesFocus::UnderWay() { return user_moves > 0; }

void FollowFocus(const Form& form) {
  const Control* active = form.ActiveControl();
  QWidget* wanted = active ? WidgetOf(*active) : nullptr;
  if (wanted) {
    if (!wanted->hasFocus()) wanted->setFocus(Qt::OtherFocusReason);
    return;
  }
  QWidget* holder = QApplication::focusWidget();
  if (!holder || holder->window()->objectName() != ToQt(form.Name())) return;
  if (HasOwnView(holder, *holder->window())) holder->clearFocus();
}

}  // namespace tagwright
