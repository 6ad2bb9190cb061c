#include "qt/pictures/metafile_pens.h"

#include <algorithm>
#include <cmath>

namespace tagwright {
namespace {

constexpr double kHatchPixels = 8;     // one hatch pattern at 96 an inch
constexpr double kHatchesPerBox = 50;  // so many lie across the picture

Qt::PenStyle PenStyleOf(int style) {
  switch (style) {
    case PS_DASH:
      return Qt::DashLine;
    case PS_DOT:
      return Qt::DotLine;
    case PS_DASHDOT:
      return Qt::DashDotLine;
    case PS_DASHDOTDOT:
      return Qt::DashDotDotLine;
    case PS_NULL:
      return Qt::NoPen;
    default:
      return Qt::SolidLine;
  }
}

Qt::PenCapStyle CapOf(int cap) {
  if (cap == PS_ENDCAP_SQUARE) return Qt::SquareCap;
  return cap == PS_ENDCAP_FLAT ? Qt::FlatCap : Qt::RoundCap;
}

Qt::PenJoinStyle JoinOf(int join) {
  if (join == PS_JOIN_MITER) return Qt::MiterJoin;
  return join == PS_JOIN_BEVEL ? Qt::BevelJoin : Qt::RoundJoin;
}

// However thin a pen is told, it draws one pixel.
QPen PenOf(const wmfDC& dc, double thinnest) {
  if (!dc.pen) return QPen(Qt::NoPen);
  const double width = std::max((std::abs(dc.pen->width) + std::abs(dc.pen->height)) / 2, thinnest);
  return QPen(ColorOf(dc.pen->lopnColor), width, PenStyleOf(WMF_PEN_STYLE(dc.pen)),
              CapOf(WMF_PEN_ENDCAP(dc.pen)), JoinOf(WMF_PEN_JOIN(dc.pen)));
}

Qt::BrushStyle HatchOf(int hatch) {
  switch (hatch) {
    case HS_HORIZONTAL:
      return Qt::HorPattern;
    case HS_VERTICAL:
      return Qt::VerPattern;
    case HS_FDIAGONAL:
      return Qt::FDiagPattern;
    case HS_BDIAGONAL:
      return Qt::BDiagPattern;
    case HS_CROSS:
      return Qt::CrossPattern;
    default:
      return Qt::DiagCrossPattern;
  }
}

// Patterns grow with the picture: in pixels of the device they would be grey on paper.
QBrush Patterned(QBrush brush, const Stage& stage) {
  const double side = std::max(stage.box.width(), stage.box.height()) / kHatchesPerBox;
  brush.setTransform(QTransform::fromScale(side / kHatchPixels, side / kHatchPixels));
  return brush;
}

}  // namespace

QBrush BrushOf(const wmfDC& dc, const Stage& stage) {
  if (!dc.brush) return Qt::NoBrush;
  switch (dc.brush->lbStyle) {
    case BS_SOLID:
      return ColorOf(dc.brush->lbColor);
    case BS_HATCHED:
      return Patterned(QBrush(ColorOf(dc.brush->lbColor), HatchOf(dc.brush->lbHatch)), stage);
    case BS_PATTERN:
    case BS_DIBPATTERN: {
      const QImage* tile = BitmapOf(stage, dc.brush->bmp);
      return tile ? Patterned(QBrush(*tile), stage) : QBrush(Qt::NoBrush);
    }
    default:
      return Qt::NoBrush;
  }
}

namespace {

// Between the lines of a hatch lies the background colour where the drawing asks for it.
void FillBackground(QPainter& painter, const wmfDC& dc, const QPainterPath& path) {
  if (dc.brush && dc.brush->lbStyle == BS_HATCHED && dc.bgmode == OPAQUE) {
    painter.fillPath(path, ColorOf(dc.bgcolor));
  }
}

}  // namespace

void DrawFilled(wmfAPI* api, const wmfDC& dc, QPainterPath path) {
  const Stage& stage = StageOf(api);
  if (!stage.painter) return;
  path.setFillRule(dc.polyfillmode == WINDING ? Qt::WindingFill : Qt::OddEvenFill);
  FillBackground(*stage.painter, dc, path);
  stage.painter->setPen(PenOf(dc, stage.unit));
  stage.painter->setBrush(BrushOf(dc, stage));
  stage.painter->drawPath(path);
}

void DrawOpen(wmfAPI* api, const wmfDC& dc, const QPainterPath& path) {
  const Stage& stage = StageOf(api);
  if (stage.painter) stage.painter->strokePath(path, PenOf(dc, stage.unit));
}

}  // namespace tagwright
