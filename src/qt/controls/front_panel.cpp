#include "qt/controls/front_panel.h"

#include <QLayout>
#include <QStackedWidget>
#include <QVariant>

#include "platform/controls/container.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/focus.h"

namespace tagwright {
namespace {

// The widget within `around` that the form file marks so; null for none.
QWidget* Marked(const QWidget& around, const char* property) {
  for (QWidget* widget : around.findChildren<QWidget*>()) {
    if (widget->property(property).toBool()) return widget;
  }
  return nullptr;
}

}  // namespace

void ShowFrontPanel(QStackedWidget& stack, const Container& container) {
  const Control* front = nullptr;
  for (const Control* child : container.Children()) {
    QWidget* widget = child->View() ? WidgetOf(*child) : nullptr;
    if (!widget || widget->parentWidget() != &stack || !child->Visible()) continue;
    if (!front || child->Order() > front->Order()) front = child;
  }
  if (!front) return;
  QWidget* panel = WidgetOf(*front);
  if (stack.currentWidget() == panel) return;
  QWidget* floating = Marked(stack, "floats");
  QWidget* slot = Marked(*panel, "takesFloating");
  if (floating && slot) {
    slot->layout()->addWidget(floating);
    slot->layout()->setAlignment(floating, Qt::AlignTop);
  }
  stack.setCurrentWidget(panel);
  FollowFocus(*container.ParentForm());
}

}  // namespace tagwright
