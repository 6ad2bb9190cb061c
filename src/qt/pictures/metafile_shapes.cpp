#include "qt/pictures/metafile_shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/pictures/metafile_pens.h"
#include "qt/pictures/metafile_stage.h"

namespace tagwright {
namespace {

QPolygonF PolygonOf(const wmfD_Coord* points, int count) {
  QPolygonF polygon;
  polygon.reserve(count);
  for (int i = 0; i < count; ++i) polygon.append(PointOf(points[i]));
  return polygon;
}

void DrawLine(wmfAPI* api, wmfDrawLine_t* line) {
  QPainterPath path(PointOf(line->from));
  path.lineTo(PointOf(line->to));
  DrawOpen(api, *line->dc, path);
}

void DrawPolyLine(wmfAPI* api, wmfPolyLine_t* lines) {
  QPainterPath path;
  path.addPolygon(PolygonOf(lines->pt, lines->count));
  DrawOpen(api, *lines->dc, path);
}

void DrawPolygon(wmfAPI* api, wmfPolyLine_t* polygon) {
  QPainterPath path;
  path.addPolygon(PolygonOf(polygon->pt, polygon->count));
  path.closeSubpath();
  DrawFilled(api, *polygon->dc, path);
}

void DrawPolyPolygon(wmfAPI* api, wmfPolyPoly_t* polygons) {
  QPainterPath path;
  for (int i = 0; i < polygons->npoly; ++i) {
    path.addPolygon(PolygonOf(polygons->pt[i], polygons->count[i]));
    path.closeSubpath();
  }
  DrawFilled(api, *polygons->dc, path);
}

void DrawRectangle(wmfAPI* api, wmfDrawRectangle_t* shape) {
  if (std::exchange(StageOf(api).framed, false)) {
    StageOf(api).box = BoxOf(shape->TL, shape->BR);
    return;
  }
  QPainterPath path;
  path.addRoundedRect(BoxOf(shape->TL, shape->BR), std::abs(shape->width) / 2,
                      std::abs(shape->height) / 2);
  DrawFilled(api, *shape->dc, path);
}

void DrawEllipse(wmfAPI* api, wmfDrawArc_t* shape) {
  QPainterPath path;
  path.addEllipse(BoxOf(shape->TL, shape->BR));
  DrawFilled(api, *shape->dc, path);
}

// The angle of a ray from the middle of the box, in degrees against the clock, on the circle that
// the ellipse is stretched from.
double AngleOf(const QRectF& box, const wmfD_Coord& ray) {
  const double x = ray.x / std::max(box.width(), 1e-9);
  const double y = ray.y / std::max(box.height(), 1e-9);
  return std::atan2(-y, x) * 180 / M_PI;
}

struct Arc {
  QRectF box;
  double start, sweep;
};

// Against the clock from the drawing's first ray to its second, which the library hands on by each
// other's name, for a way with the clock; equal rays make the whole ellipse.
Arc ArcOf(const wmfDrawArc_t& arc) {
  const QRectF box = BoxOf(arc.TL, arc.BR);
  const double start = AngleOf(box, arc.end);
  double sweep = AngleOf(box, arc.start) - start;
  if (sweep <= 0) sweep += 360;
  return {box, start, sweep};
}

void DrawArc(wmfAPI* api, wmfDrawArc_t* shape) {
  const Arc arc = ArcOf(*shape);
  QPainterPath path;
  path.arcMoveTo(arc.box, arc.start);
  path.arcTo(arc.box, arc.start, arc.sweep);
  DrawOpen(api, *shape->dc, path);
}

void DrawPie(wmfAPI* api, wmfDrawArc_t* shape) {
  const Arc arc = ArcOf(*shape);
  QPainterPath path(arc.box.center());
  path.arcTo(arc.box, arc.start, arc.sweep);
  path.closeSubpath();
  DrawFilled(api, *shape->dc, path);
}

void DrawChord(wmfAPI* api, wmfDrawArc_t* shape) {
  const Arc arc = ArcOf(*shape);
  QPainterPath path;
  path.arcMoveTo(arc.box, arc.start);
  path.arcTo(arc.box, arc.start, arc.sweep);
  path.closeSubpath();
  DrawFilled(api, *shape->dc, path);
}

void DrawPixel(wmfAPI* api, wmfDrawPixel_t* pixel) {
  const QRectF box(PointOf(pixel->pt), QSizeF(pixel->pixel_width, pixel->pixel_height));
  if (PainterOf(api)) PainterOf(api)->fillRect(box.normalized(), ColorOf(pixel->color));
}

// Filling up to a colour needs pixels to look at; a drawing in vectors has none.
void Flood(wmfAPI*, wmfFlood_t*) {}

// --- regions ------------------------------------------------------------------------------------

QPainterPath RegionOf(const wmfPolyRectangle_t& region) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (unsigned i = 0; i < region.count; ++i) path.addRect(BoxOf(region.TL[i], region.BR[i]));
  return path;
}

void PaintRegion(wmfAPI* api, wmfPolyRectangle_t* region) {
  Stage& stage = StageOf(api);
  if (stage.painter) stage.painter->fillPath(RegionOf(*region), BrushOf(*region->dc, stage));
}

void FrameRegion(wmfAPI* api, wmfPolyRectangle_t* region) {
  Stage& stage = StageOf(api);
  if (!stage.painter) return;
  const double width = std::max<double>(std::abs(region->width), stage.unit);
  stage.painter->strokePath(RegionOf(*region), QPen(BrushOf(*region->dc, stage), width));
}

// A region of no boxes lifts the clipping: a drawing may reach beyond its frame.
void ClipRegion(wmfAPI* api, wmfPolyRectangle_t* region) {
  QPainter* painter = PainterOf(api);
  if (!painter) return;
  if (region->count > 0) {
    painter->setClipPath(RegionOf(*region), Qt::ReplaceClip);
  } else {
    painter->setClipping(false);
  }
}

}  // namespace

void AddShapes(wmfFunctionReference& functions) {
  functions.flood_interior = functions.flood_exterior = Flood;
  functions.draw_pixel = DrawPixel;
  functions.draw_pie = DrawPie;
  functions.draw_chord = DrawChord;
  functions.draw_arc = DrawArc;
  functions.draw_ellipse = DrawEllipse;
  functions.draw_line = DrawLine;
  functions.poly_line = DrawPolyLine;
  functions.draw_polygon = DrawPolygon;
  functions.draw_polypolygon = DrawPolyPolygon;
  functions.draw_rectangle = DrawRectangle;
  functions.region_frame = FrameRegion;
  functions.region_paint = PaintRegion;
  functions.region_clip = ClipRegion;
}

}  // namespace tagwright
