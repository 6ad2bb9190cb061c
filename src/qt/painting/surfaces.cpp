#include "qt/painting/surfaces.h"

#include <algorithm>
#include <cmath>

#include "platform/painting/scale.h"
#include "qt/pictures/pictures.h"

namespace tagwright {
namespace {

constexpr int kLargestSide = 20000;   // image pixels; beyond lies a wrong number, not a picture
constexpr double kFarthest = 1e6;     // pixels; the toolkit counts in integers beneath
constexpr double kTallestText = 2e4;  // pixels; a glyph larger than every page says nothing
constexpr std::size_t kPicturesStored = 32;
constexpr double kFarthestOnPage = 2e7;  // painter's units, of which text takes 64ths
constexpr std::size_t kBoxesAtOnce = 4096;
constexpr Color kWhite = 0xFFFFFF;

double Within(double value) { return std::clamp(value, -kFarthest, kFarthest); }

double WithinPage(double units) { return std::clamp(units, -kFarthestOnPage, kFarthestOnPage); }

QRectF BoxOf(double x1, double y1, double x2, double y2) {
  return QRectF(QPointF(Within(x1), Within(y1)), QPointF(Within(x2), Within(y2))).normalized();
}

bool PaintsNothing(const Pen& pen) { return pen.style == kPenNull || pen.width <= 0; }

// Square corners and ends: a line is as long as told, a frame has the corners of its box.
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

// --- AND ----------------------------------------------------------------------------------------

// Bits know no smooth edges.
void BeginMask(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
}

void EndMask(QPainter& painter) {
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setRenderHint(QPainter::Antialiasing, true);
}

// Black wins whatever lies beneath, so that it may keep its smooth edges: bars are black.
bool NeedsMask(int draw_mode, Color color) {
  return draw_mode == kMaskPen && (color & kWhite) != 0;
}

template <class Draw>
void Masked(QPainter& painter, bool mask, Draw&& draw) {
  if (mask) BeginMask(painter);
  draw();
  if (mask) EndMask(painter);
}

}  // namespace

// Sums of millimetres in different orders, and records that keep 32 bits, leave a noise of up to
// 5e-5 of a pixel, which must not decide between two of them.
double OnScreenPixel(double place, double pen_width, double ratio) {
  constexpr double kSamePlace = 0.001;  // screen pixels
  const double pixel = place * ratio + kSamePlace;
  const bool odd = std::lround(pen_width * ratio) % 2 == 1;
  return (odd ? std::floor(pixel) + 0.5 : std::floor(pixel + 0.5)) / ratio;
}

// --- picture in memory --------------------------------------------------------------------------

ImageSurface::ImageSurface(double device_pixel_ratio) : ratio_(std::max(device_pixel_ratio, 0.1)) {}

const QImage& ImageSurface::Image() const {
  Fit();
  if (painter_.isActive()) painter_.end();
  return image_;
}

void ImageSurface::SetDevicePixelRatio(double ratio) { ratio_ = std::max(ratio, 0.1); }

void ImageSurface::Fit() const {
  const auto pixels = [&](double twips) {
    const double side = std::round(twips / kTwipsPerPixel * ratio_);
    return static_cast<int>(std::clamp(side, 1.0, double(kLargestSide)));
  };
  const QSize size(pixels(Scale().WidthTwips()), pixels(Scale().HeightTwips()));
  if (image_.size() == size && image_.devicePixelRatio() == ratio_) return;
  if (painter_.isActive()) painter_.end();
  QImage fitted(size, QImage::Format_RGB32);
  if (!fitted.isNull()) {
    fitted.fill(ToQColor(BackColor));
    QPainter(&fitted).drawImage(0, 0, image_);
    fitted.setDevicePixelRatio(ratio_);
  }
  image_ = std::move(fitted);
}

QPainter* ImageSurface::Open() {
  Fit();
  if (image_.isNull()) return nullptr;
  if (!painter_.isActive()) {
    painter_.begin(&image_);
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  }
  return &painter_;
}

void ImageSurface::DeviceClear(Color color) {
  QPainter* painter = Open();
  if (painter) painter->fillRect(image_.rect(), ToQColor(color));
}

void ImageSurface::DeviceText(double x, double y, double ascent, std::string_view text,
                              const FontSpec& font, Color color) {
  QPainter* painter = Open();
  if (!painter || !Legible(font, Scale().PixelsPerInch())) return;
  PaintText(*painter, Within(x), Within(y + ascent), text, font, color, Scale().PixelsPerInch());
}

void ImageSurface::DeviceBox(double x1, double y1, double x2, double y2, Color color) {
  QPainter* painter = Open();
  if (!painter) return;
  const QRectF box = BoxOf(x1, y1, x2, y2);
  Masked(*painter, NeedsMask(DrawMode, color), [&] { painter->fillRect(box, ToQColor(color)); });
}

void ImageSurface::DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2,
                               double corner_width, double corner_height, const Pen& pen,
                               const Brush& brush) {
  QPainter* painter = Open();
  if (!painter) return;
  QRectF box = BoxOf(x1, y1, x2, y2);
  const double width = PaintsNothing(pen) ? 0 : pen.width;
  // What is thinner than a pixel stays where it is, or it might vanish.
  if (kind != ShapeKind::kEllipse && std::min(box.width(), box.height()) * ratio_ >= 1) {
    box = QRectF(QPointF(Snapped(box.left(), width), Snapped(box.top(), width)),
                 QPointF(Snapped(box.right(), width), Snapped(box.bottom(), width)));
  }
  painter->setPen(ToQPen(pen));
  painter->setBrush(ToQBrush(brush));
  const bool mask = (width > 0 && NeedsMask(DrawMode, pen.color)) ||
                    (!brush.null && NeedsMask(DrawMode, brush.color));
  Masked(*painter, mask, [&] { DrawShape(*painter, kind, box, corner_width, corner_height); });
}

void ImageSurface::DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) {
  QPainter* painter = Open();
  if (!painter || PaintsNothing(pen)) return;
  QLineF line(Within(x1), Within(y1), Within(x2), Within(y2));
  if (line.x1() == line.x2()) {
    const double x = Snapped(line.x1(), pen.width);
    line = QLineF(x, line.y1(), x, line.y2());
  } else if (line.y1() == line.y2()) {
    const double y = Snapped(line.y1(), pen.width);
    line = QLineF(line.x1(), y, line.x2(), y);
  }
  painter->setPen(ToQPen(pen));
  Masked(*painter, NeedsMask(DrawMode, pen.color), [&] { painter->drawLine(line); });
}

void ImageSurface::DevicePicture(const Picture& picture, double x, double y, double width,
                                 double height) {
  QPainter* painter = Open();
  const PaintedPicture* paintable = Paintable(picture);
  if (!painter || !paintable) return;
  const QRectF box(Within(x), Within(y), Within(width), Within(height));
  if (DrawMode == kMaskPen) {
    MaskPicture(picture, box);
  } else {
    paintable->Paint(*painter, box);
  }
}

// Painted on white first: what is transparent or lies outside the picture then changes nothing.
void ImageSurface::MaskPicture(const Picture& picture, const QRectF& box) {
  QImage source(image_.size(), QImage::Format_RGB32);
  if (source.isNull()) return;
  source.setDevicePixelRatio(ratio_);
  source.fill(Qt::white);
  QPainter on_white(&source);
  on_white.setRenderHints(painter_.renderHints());
  Paintable(picture)->Paint(on_white, box);
  on_white.end();
  Masked(painter_, true, [&] { painter_.drawImage(QPointF(), source); });
}

// --- printed page -------------------------------------------------------------------------------

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
