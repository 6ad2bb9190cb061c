#include "qt/painting/page_surface.h"

#include <algorithm>
#include <cmath>

#include "qt/fonts/page_steps.h"
#include "qt/fonts/text_painting.h"
#include "qt/look/colors.h"
#include "qt/painting/drawing.h"

namespace tagwright {
namespace {

constexpr std::size_t kPicturesStored = 32;
constexpr double kFarthestOnPage = 2e7;  // painter's units, of which text takes 64ths
constexpr std::size_t kBoxesAtOnce = 4096;

double WithinPage(double units) { return std::clamp(units, -kFarthestOnPage, kFarthestOnPage); }

}  // namespace

PageSurface::PageSurface(double pixels_per_inch, double units_per_inch,
                         std::function<QPainter&()> open)
    : units_per_inch_(units_per_inch),
      units_per_pixel_(units_per_inch / pixels_per_inch),
      step_(units_per_inch / kPageStepsPerInch),
      open_(std::move(open)) {
  Scale().SetPixelsPerInch(pixels_per_inch);
}

double PageSurface::Placed(double pixels) const {
  return std::round(WithinPage(pixels * units_per_pixel_) / step_) * step_;
}

QRectF PageSurface::PlacedBox(double x1, double y1, double x2, double y2) const {
  return QRectF(QPointF(Placed(x1), Placed(y1)), QPointF(Placed(x2), Placed(y2))).normalized();
}

QPen PageSurface::ScaledPen(const Pen& pen) const {
  QPen scaled = ToQPen(pen);
  scaled.setWidthF(pen.width * units_per_pixel_);
  return scaled;
}

// Boxes are the many small things of a label, the bars of its symbols: one call for all of them,
// with one colour and one place, costs a fraction of a call for each, in time and on the page.
void PageSurface::Flush() {
  if (boxes_.empty()) return;
  QPainter& painter = open_();
  if (boxes_color_ != box_brush_color_) {
    box_brush_ = QBrush(ToQColor(boxes_color_));
    box_brush_color_ = boxes_color_;
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(box_brush_);
  painter.translate(boxes_corner_);
  painter.drawRects(boxes_.data(), static_cast<int>(boxes_.size()));
  painter.translate(-boxes_corner_);
  boxes_.clear();
}

void PageSurface::ForgetJob() {
  boxes_.clear();
  pictures_.clear();
}

QPainter& PageSurface::Painter() {
  Flush();
  return open_();
}

// Paper is not wiped; a page that has a colour of its own is given one.
void PageSurface::DeviceClear(Color color) {
  if ((color & kWhite) == kWhite) return;
  const double pixels_per_twip = Scale().PixelsPerInch() / kTwipsPerInch;
  DeviceBox(0, 0, Scale().WidthTwips() * pixels_per_twip, Scale().HeightTwips() * pixels_per_twip,
            color);
}

void PageSurface::DeviceOpen() { open_(); }

void PageSurface::DeviceText(double x, double y, double ascent, std::string_view text,
                             const FontSpec& font, Color color) {
  QPainter& painter = Painter();
  if (!Legible(font, Scale().PixelsPerInch())) return;
  PaintPageText(painter, Placed(x), Placed(y + ascent), text, font, color, units_per_inch_);
}

void PageSurface::DeviceBox(double x1, double y1, double x2, double y2, Color color) {
  open_();
  if (color != boxes_color_ || boxes_.size() >= kBoxesAtOnce) Flush();
  const QRectF box = PlacedBox(x1, y1, x2, y2);
  if (box.isEmpty()) return;  // some readers show one without an area as a hair
  if (boxes_.empty()) boxes_corner_ = box.topLeft();
  boxes_color_ = color;
  boxes_.push_back(box.translated(-boxes_corner_));
}

void PageSurface::DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2,
                              double corner_width, double corner_height, const Pen& pen,
                              const Brush& brush) {
  QPainter& painter = Painter();
  painter.setPen(ScaledPen(pen));
  painter.setBrush(ToQBrush(brush));
  DrawShape(painter, kind, PlacedBox(x1, y1, x2, y2), corner_width * units_per_pixel_,
            corner_height * units_per_pixel_);
}

void PageSurface::DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) {
  QPainter& painter = Painter();
  painter.setPen(ScaledPen(pen));
  painter.drawLine(QLineF(Placed(x1), Placed(y1), Placed(x2), Placed(y2)));
}

void PageSurface::DevicePicture(const Picture& picture, double x, double y, double width,
                                double height) {
  QPainter& painter = Painter();
  const QPointF corner(Placed(x), Placed(y));
  const QRectF box(corner, QSizeF(Placed(x + width) - corner.x(), Placed(y + height) - corner.y()));
  if (const auto* pixels = dynamic_cast<const PixelPicture*>(&picture)) {
    painter.setRenderHint(QPainter::LosslessImageRendering, pixels->lossless);
    PaintPixels(painter, box, StoredPixels(pixels->digest, pixels->pixels));
  } else if (const PaintedPicture* paintable = Paintable(picture)) {
    paintable->Paint(painter, box);
  }
}

QImage PageSurface::StoredPixels(const std::string& digest, const QImage& pixels) {
  if (const auto known = pictures_.find(digest); known != pictures_.end()) return known->second;
  if (pictures_.size() >= kPicturesStored) pictures_.clear();
  return pictures_.emplace(digest, pixels).first->second;
}

}  // namespace tagwright
