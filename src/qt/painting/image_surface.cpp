#include "qt/painting/image_surface.h"

#include <algorithm>
#include <cmath>

#include "qt/fonts/text_painting.h"
#include "qt/look/colors.h"
#include "qt/painting/drawing.h"

namespace tagwright {
namespace {

constexpr int kLargestSide = 20000;  // image pixels; beyond lies a wrong number, not a picture
constexpr double kFarthest = 1e6;    // pixels; the toolkit counts in integers beneath

double Within(double value) { return std::clamp(value, -kFarthest, kFarthest); }

QRectF BoxOf(double x1, double y1, double x2, double y2) {
  return QRectF(QPointF(Within(x1), Within(y1)), QPointF(Within(x2), Within(y2))).normalized();
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

}  // namespace tagwright
