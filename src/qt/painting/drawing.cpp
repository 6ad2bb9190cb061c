#include "qt/painting/drawing.h"

#include <cmath>

#include "platform/painting/scale.h"
#include "qt/look/colors.h"

namespace tagwright {
namespace {

constexpr double kTallestText = 2e4;  // pixels; a glyph larger than every page says nothing

}  // namespace

bool PaintsNothing(const Pen& pen) { return pen.style == kPenNull || pen.width <= 0; }

QPen ToQPen(const Pen& pen) {
  if (PaintsNothing(pen)) return QPen(Qt::NoPen);
  return QPen(ToQColor(pen.color), pen.width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

QBrush ToQBrush(const Brush& brush) {
  return brush.null ? QBrush(Qt::NoBrush) : QBrush(ToQColor(brush.color));
}

void DrawShape(QPainter& painter, ShapeKind kind, const QRectF& box, double corner_width,
               double corner_height) {
  switch (kind) {
    case ShapeKind::kRectangle:
      return painter.drawRect(box);
    case ShapeKind::kRoundRect:
      return painter.drawRoundedRect(box, std::abs(corner_width) / 2, std::abs(corner_height) / 2);
    case ShapeKind::kEllipse:
      return painter.drawEllipse(box);
  }
}

const PaintedPicture* Paintable(const Picture& picture) {
  return dynamic_cast<const PaintedPicture*>(&picture);
}

bool Legible(const FontSpec& font, double pixels_per_inch) {
  return font.Size * pixels_per_inch / kPointsPerInch < kTallestText;
}

}  // namespace tagwright
