// A printed page as pixels, rendered by an independent tool.
#pragma once

#include <string>
#include <vector>

namespace tagwright {

constexpr double kRenderedPixelsPerInch = 600;

class RenderedPage {
 public:
  // Renders a page of a PDF file, or the first one of a PostScript file. Fails the test when that
  // cannot be done.
  explicit RenderedPage(const std::string& file, int page = 1);

  double Width() const { return width_ * kPixel; }  // millimetres
  double Height() const { return height_ * kPixel; }

  // How much of a box is dark, 0 to 1. Millimetres from the page's top left corner.
  double Ink(double left, double top, double right, double bottom) const;

  // The dark extent, in millimetres, of what a row or a column of pixels meets between two places;
  // both ends are `from` where there is nothing.
  struct Extent {
    double first = 0;
    double last = 0;
  };
  Extent AlongRow(double y, double from, double to) const;
  Extent AlongColumn(double x, double from, double to) const;

 private:
  static constexpr double kPixel = 25.4 / kRenderedPixelsPerInch;
  bool Dark(int x, int y) const;

  int width_ = 0;
  int height_ = 0;
  std::vector<unsigned char> grey_;
};

}  // namespace tagwright
