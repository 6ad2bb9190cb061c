// A surface that keeps what was painted as plain data: the program's tests read it back.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/painting/surface.h"

namespace tagwright {

// One thing painted. Coordinates are device pixels; text lies with its top left at x1, y1. A label
// is boxes for the most part, thousands of them: what only texts and shapes have lies apart.
struct Painted {
  enum class What { kClear, kOpen, kText, kBox, kShape, kLine, kPicture };
  struct Details {
    std::string text;
    FontSpec font;
    ShapeKind shape = ShapeKind::kRectangle;
    double corner_width = 0, corner_height = 0;
    Pen pen;
    Brush brush;
  };

  What what = What::kClear;
  int draw_mode = kCopyPen;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // for pictures the box; for text x2, y2 are its extent
  Color color = 0;                        // of clear, text and box
  std::shared_ptr<const Details> details;

  // Those of its sort; what another sort has is as a fresh one.
  const std::string& Text() const { return Own().text; }
  const FontSpec& Font() const { return Own().font; }
  ShapeKind Shape() const { return Own().shape; }
  double CornerWidth() const { return Own().corner_width; }
  double CornerHeight() const { return Own().corner_height; }
  const Pen& UsedPen() const { return Own().pen; }
  const Brush& UsedBrush() const { return Own().brush; }

 private:
  const Details& Own() const;
};

class RecordingSurface : public Surface {
 public:
  // A page or board of this size.
  explicit RecordingSurface(double width_twips = 12000, double height_twips = 9000,
                            double pixels_per_inch = kScreenPixelsPerInch);

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
  void Append(Painted::What what, double x1, double y1, double x2, double y2, Color color = 0);
  // Both open first.
  void Add(Painted::What what, double x1, double y1, double x2, double y2, Color color = 0);
  Painted::Details& AddDetailed(Painted::What what, double x1, double y1, double x2, double y2,
                                Color color = 0);
};

}  // namespace tagwright
