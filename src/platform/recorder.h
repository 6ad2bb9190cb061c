// A surface that keeps what was painted as plain data: the program's tests read it back.
#pragma once

#include <string>
#include <vector>

#include "platform/surface.h"

namespace tagwright {

// One thing painted. Coordinates are device pixels; text lies with its top left at x1, y1.
struct Painted {
  enum class What { kClear, kOpen, kText, kBox, kShape, kLine, kPicture };
  What what = What::kClear;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // for pictures the box; for text x2, y2 are its extent
  std::string text;
  FontSpec font;
  Color color = 0;  // of clear, text and box
  ShapeKind shape = ShapeKind::kRectangle;
  double corner_width = 0, corner_height = 0;
  Pen pen;
  Brush brush;
  int draw_mode = kCopyPen;

  // Written out: a defaulted one wipes the whole entry before it fills it in.
  Painted() {}
};

class RecordingSurface : public Surface {
 public:
  // A page or board of this size; screens have 96 pixels an inch.
  explicit RecordingSurface(double width_twips = 12000, double height_twips = 9000,
                            double pixels_per_inch = 96);

  std::vector<Painted> painted;  // in painting order; Cls adds a kClear and keeps what was before

  // The entries of one sort, and all texts in order: for short tests.
  std::vector<Painted> Of(Painted::What what) const;
  std::vector<std::string> Texts() const;

 protected:
  void DeviceClear(Color color) override;
  void DeviceOpen() final;
  void DeviceText(double x, double y, double ascent, std::string_view text, const FontSpec& font,
                  Color color) override;
  void DeviceBox(double x1, double y1, double x2, double y2, Color color) override;
  void DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2, double corner_width,
                   double corner_height, const Pen& pen, const Brush& brush) override;
  void DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void DevicePicture(const Picture& picture, double x, double y, double width,
                     double height) override;

 private:
  Painted& Append(Painted::What what, double x1, double y1, double x2, double y2);
  Painted& Add(Painted::What what, double x1, double y1, double x2, double y2);  // opens first
};

}  // namespace tagwright
