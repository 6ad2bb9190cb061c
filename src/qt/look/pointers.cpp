#include "qt/look/pointers.h"

#include <QPixmap>
#include <QSize>

#include "qt/look/drawings.h"

namespace tagwright {
namespace {

constexpr int kPointerSize = 24;  // logical pixels

}  // namespace

QCursor IconPointer(const QString& name, qreal device_pixel_ratio) {
  constexpr int kLensCentre = 10;
  constexpr int kCrossCentre = 7;
  QPixmap pixmap =
      Raster(Drawing(name), QSize(kPointerSize, kPointerSize) * device_pixel_ratio, 1.0);
  pixmap.setDevicePixelRatio(device_pixel_ratio);
  const int hot = name.startsWith("pointer-zoom") ? kLensCentre : kCrossCentre;
  return QCursor(pixmap, hot, hot);
}

Qt::CursorShape PointerShape(int code) {
  switch (code) {
    case 2:
      return Qt::CrossCursor;
    case 3:
      return Qt::IBeamCursor;
    case 4:
    case 5:
      return Qt::SizeAllCursor;
    case 6:
      return Qt::SizeBDiagCursor;
    case 7:
      return Qt::SizeVerCursor;
    case 8:
      return Qt::SizeFDiagCursor;
    case 9:
      return Qt::SizeHorCursor;
    case 10:
      return Qt::UpArrowCursor;
    case 11:
      return Qt::WaitCursor;
    case 12:
      return Qt::ForbiddenCursor;
    case 13:
      return Qt::BusyCursor;
    case 14:
      return Qt::WhatsThisCursor;
    case 15:
      return Qt::SizeAllCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace tagwright
