// A surface in memory: the persistent picture that a window shows.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <string_view>

#include "platform/painting/surface.h"
#include "qt/painting/screen_pixels.h"

namespace tagwright {

// Paints to an image of the screen's own pixels. The image follows Scale()'s size in twips (15
// twips are one logical pixel) whenever it is painted on or asked for; what lay in the part that
// stays is kept, the rest has BackColor. Text and boxes lie at real positions with smooth edges.
// The straight edges of rectangles and lines move by up to half a screen pixel onto whole ones, so
// that a thin pen is crisp.
class ImageSurface : public Surface {
 public:
  explicit ImageSurface(double device_pixel_ratio = 1);

  // The image as painted so far; its device pixel ratio is set. Good until the next painting.
  const QImage& Image() const;

  double DevicePixelRatio() const { return ratio_; }
  // Screen pixels of one logical pixel. A change lets the image be painted anew.
  void SetDevicePixelRatio(double ratio);

 protected:
  void DeviceClear(Color color) override;
  void DeviceText(double x, double y, double ascent, std::string_view text, const FontSpec& font,
                  Color color) override;
  void DeviceBox(double x1, double y1, double x2, double y2, Color color) override;
  void DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2, double corner_width,
                   double corner_height, const Pen& pen, const Brush& brush) override;
  void DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void DevicePicture(const Picture& picture, double x, double y, double width,
                     double height) override;

 private:
  // The open painter in logical pixels; null when the image has no pixels.
  QPainter* Open();
  // Lets the image have the size that the scale asks for.
  void Fit() const;
  double Snapped(double value, double pen_width) const {
    return OnScreenPixel(value, pen_width, ratio_);
  }
  void MaskPicture(const Picture& picture, const QRectF& box);

  double ratio_;
  mutable QImage image_;
  // Opened by the first painting and closed when the image is asked for: opening one for every
  // call would cost more than most calls. After the image, since it must go first.
  mutable QPainter painter_;
};

}  // namespace tagwright
