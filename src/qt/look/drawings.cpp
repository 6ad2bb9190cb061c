#include "qt/look/drawings.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

// Resources of a static library are linked only when somebody asks for them; the macro must stand
// outside every namespace.
static void LinkIcons() { Q_INIT_RESOURCE(icons); }

namespace tagwright {
namespace {

QString PlaceOf(const QString& name) { return ":/icons/" + name + ".svg"; }

void PaintDrawing(QPainter& painter, const QByteArray& drawing, const QRectF& box) {
  QSvgRenderer renderer(drawing);
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  renderer.render(&painter, box);
}

}  // namespace

void LinkDrawings() { LinkIcons(); }

bool HasDrawing(const QString& name) {
  LinkDrawings();
  return QFile::exists(PlaceOf(name));
}

QByteArray Drawing(const QString& name) {
  LinkDrawings();
  QFile file(PlaceOf(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap Raster(const QByteArray& drawing, const QSize& device_size, qreal opacity) {
  QPixmap pixmap(device_size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setOpacity(opacity);
  PaintDrawing(painter, drawing, QRectF(QPointF(), QSizeF(device_size)));
  return pixmap;
}

}  // namespace tagwright
