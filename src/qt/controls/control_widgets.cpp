#include "qt/controls/control_widgets.h"

#include <QVariant>
#include <QWidget>

#include "platform/controls/container.h"
#include "qt/controls/board_view.h"
#include "qt/controls/units.h"
#include "qt/controls/widget_view.h"
#include "qt/look/pointers.h"

namespace tagwright {
namespace {

constexpr int kIconPointer = 99;

}  // namespace

QString ObjectName(const Control& control) {
  const QString name = ToQt(control.Name());
  return control.Index() < 0 ? name : name + "_" + QString::number(control.Index());
}

QWidget* WidgetOf(const Control& control) {
  if (auto* view = dynamic_cast<WidgetView*>(control.View())) return &view->Widget();
  if (auto* board = dynamic_cast<BoardView*>(control.View())) return board;
  return control.Parent() && control.Parent()->View() ? WidgetOf(*control.Parent()) : nullptr;
}

bool HasOwnView(const QWidget* widget, const QWidget& container) {
  while (widget && widget != &container) {
    if (widget->property("control").toBool()) return true;
    widget = widget->parentWidget();
  }
  return false;
}

QCursor PointerOf(const Control& control, qreal device_pixel_ratio) {
  if (control.MousePointer() != kIconPointer) return PointerShape(control.MousePointer());
  return IconPointer(ToQt(control.MouseIcon()), device_pixel_ratio);
}

}  // namespace tagwright
