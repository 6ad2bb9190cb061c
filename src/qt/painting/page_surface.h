// A surface on the page of a printer.
#pragma once

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/painting/surface.h"

namespace tagwright {

// Paints on the page of a printer through a painter that its owner opens. A pen counts the pixels
// of the printer; places lie on thousandths of a millimetre and on no pixel. Text stays text.
class PageSurface : public Surface {
 public:
  // `open` is called before anything is painted; it returns the painter of the open page, or faults
  // when there can be none. The painter has `units_per_inch`, which need not be the pixels.
  PageSurface(double pixels_per_inch, double units_per_inch, std::function<QPainter&()> open);
  // The same on a painter whose units are the pixels.
  PageSurface(double pixels_per_inch, std::function<QPainter&()> open)
      : PageSurface(pixels_per_inch, pixels_per_inch, std::move(open)) {}

  // Paints what is held back: boxes of one colour that follow each other are painted together. To
  // be called before the page ends.
  void Flush();

  // A job is over: what is held back and not painted is dropped, and pictures of the next job are
  // stored anew.
  void ForgetJob();

 protected:
  void DeviceClear(Color color) override;
  void DeviceOpen() override;
  void DeviceText(double x, double y, double ascent, std::string_view text, const FontSpec& font,
                  Color color) override;
  void DeviceBox(double x1, double y1, double x2, double y2, Color color) override;
  void DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2, double corner_width,
                   double corner_height, const Pen& pen, const Brush& brush) override;
  void DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void DevicePicture(const Picture& picture, double x, double y, double width,
                     double height) override;

 private:
  // The open painter with nothing held back that lies beneath what comes now.
  QPainter& Painter();
  QPen ScaledPen(const Pen& pen) const;
  // In painter's units, on page steps.
  double Placed(double pixels) const;
  QRectF PlacedBox(double x1, double y1, double x2, double y2) const;
  // The pixels under which a document already knows this picture; the picture's own when it is new.
  QImage StoredPixels(const std::string& digest, const QImage& pixels);

  double units_per_inch_;
  double units_per_pixel_;
  double step_;  // the finest step of the page in painter's units
  std::function<QPainter&()> open_;
  // Boxes not painted yet, from the corner of the first one.
  std::vector<QRectF> boxes_;
  QPointF boxes_corner_;
  Color boxes_color_ = 0;
  // The brush of boxes: the engine knows it again by its address.
  QBrush box_brush_;
  Color box_brush_color_ = -1;
  // A sheet shows the same logo in every cell, loaded anew each time: the document holds it once.
  std::unordered_map<std::string, QImage> pictures_;
};

}  // namespace tagwright
