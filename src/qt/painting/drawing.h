// What a surface in memory and one on a page have in common: pens, brushes and shapes in the
// toolkit's form.
#pragma once

#include <QBrush>
#include <QPainter>
#include <QPen>
#include <QRectF>

#include "platform/painting/fonts.h"
#include "platform/painting/surface.h"
#include "qt/pictures/pictures.h"

namespace tagwright {

constexpr Color kWhite = 0xFFFFFF;

bool PaintsNothing(const Pen& pen);

// Square corners and ends: a line is as long as told, a frame has the corners of its box.
QPen ToQPen(const Pen& pen);

QBrush ToQBrush(const Brush& brush);

// Draws with the painter's pen and brush. The corners' sizes are those of a whole ellipse and count
// for a rounded rectangle only.
void DrawShape(QPainter& painter, ShapeKind kind, const QRectF& box, double corner_width,
               double corner_height);

// The picture as one that the toolkit paints; null for others.
const PaintedPicture* Paintable(const Picture& picture);

// Whether the font's glyphs are of a size that says something: one larger than every page is not
// painted.
bool Legible(const FontSpec& font, double pixels_per_inch);

}  // namespace tagwright
