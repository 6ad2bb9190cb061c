// Which widget belongs to which control.
#pragma once

#include <QCursor>
#include <QString>

#include "platform/controls/control.h"

class QWidget;

namespace tagwright {

// Name of the widget or action of a control: elements of arrays carry their index, as in "name_2".
QString ObjectName(const Control& control);

// The widget that shows `control`: its own, or that of the container which paints it; null for
// none.
QWidget* WidgetOf(const Control& control);

// Whether `widget` or one that lies around it shows a control of its own below `container`.
bool HasOwnView(const QWidget* widget, const QWidget& container);

// The pointer that `control` has of its own (see Control::SetMousePointer).
QCursor PointerOf(const Control& control, qreal device_pixel_ratio);

}  // namespace tagwright
