// Pointers: the toolkit's own shapes and those drawn from icons.
#pragma once

#include <QCursor>
#include <QString>

namespace tagwright {

// A pointer drawn from an icon, sharp at `device_pixel_ratio`; "pointer-zoom-in" and
// "pointer-zoom-out" point with the centre of their lens, others with the centre of their cross.
QCursor IconPointer(const QString& name, qreal device_pixel_ratio);

// The pointer for one of the codes of Control::SetMousePointer (99 is IconPointer's work).
Qt::CursorShape PointerShape(int code);

}  // namespace tagwright
