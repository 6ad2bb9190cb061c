// The drawings of the icon family, from which icons and pointers are made.
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace tagwright {

// Makes the drawings known to the toolkit under ":/icons/", where style sheets name them.
void LinkDrawings();

// Whether there is a drawing of that file name without ending.
bool HasDrawing(const QString& name);

// Its bytes; empty when there is none.
QByteArray Drawing(const QString& name);

// The drawing in pixels, as large as fits, on a transparent ground.
QPixmap Raster(const QByteArray& drawing, const QSize& device_size, qreal opacity);

}  // namespace tagwright
