#include "qt/controls/front_panel.h"

#include <QLayout>
#include <QStackedWidget>
#include <QString>

#include "platform/controls/controls.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/focus.h"

namespace tagwright {
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
  auto* floating = stack.findChild<QWidget*>("fontSlot");
  auto* slot = panel->findChild<QWidget*>(panel->objectName().replace("pic", "slot"));
  if (floating && slot) {
    slot->layout()->addWidget(floating);
    slot->layout()->setAlignment(floating, Qt::AlignTop);
  }
  stack.setCurrentWidget(panel);
  FollowFocus(*container.ParentForm());
}

}  // namespace tagwright
