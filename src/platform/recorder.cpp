#include "platform/recorder.h"

#include <algorithm>
#include <iterator>

namespace tagwright {
namespace {

constexpr double kPointsPerInch = 72;

}  // namespace

RecordingSurface::RecordingSurface(double width_twips, double height_twips,
                                   double pixels_per_inch) {
  Scale().SetPixelsPerInch(pixels_per_inch);
  Scale().Resize(width_twips, height_twips);
}

std::vector<Painted> RecordingSurface::Of(Painted::What what) const {
  std::vector<Painted> found;
  std::copy_if(painted.begin(), painted.end(), std::back_inserter(found),
               [&](const Painted& entry) { return entry.what == what; });
  return found;
}

std::vector<std::string> RecordingSurface::Texts() const {
  std::vector<std::string> texts;
  for (const Painted& entry : Of(Painted::What::kText)) texts.push_back(entry.text);
  return texts;
}

// Made in its place: symbols are timed on this surface, and their boxes should cost nothing else.
Painted& RecordingSurface::Append(Painted::What what, double x1, double y1, double x2, double y2) {
  Painted& entry = painted.emplace_back();
  entry.what = what;
  entry.draw_mode = DrawMode;
  entry.x1 = x1;
  entry.y1 = y1;
  entry.x2 = x2;
  entry.y2 = y2;
  return entry;
}

Painted& RecordingSurface::Add(Painted::What what, double x1, double y1, double x2, double y2) {
  DeviceOpen();
  return Append(what, x1, y1, x2, y2);
}

void RecordingSurface::DeviceClear(Color color) {
  Append(Painted::What::kClear, 0, 0, 0, 0).color = color;
}

// One entry a page is enough: what comes first opens it.
void RecordingSurface::DeviceOpen() {
  if (painted.empty()) Append(Painted::What::kOpen, 0, 0, 0, 0);
}

void RecordingSurface::DeviceText(double x, double y, double, std::string_view text,
                                  const FontSpec& font, Color color) {
  const double pixels_per_point = Scale().PixelsPerInch() / kPointsPerInch;
  const double width = Fonts().Width(text, font) * pixels_per_point;
  const double height = (Fonts().Ascent(font) + Fonts().Descent(font)) * pixels_per_point;
  Painted& entry = Add(Painted::What::kText, x, y, x + width, y + height);
  entry.text = text;
  entry.font = font;
  entry.color = color;
}

void RecordingSurface::DeviceBox(double x1, double y1, double x2, double y2, Color color) {
  Add(Painted::What::kBox, x1, y1, x2, y2).color = color;
}

void RecordingSurface::DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2,
                                   double corner_width, double corner_height, const Pen& pen,
                                   const Brush& brush) {
  Painted& entry = Add(Painted::What::kShape, x1, y1, x2, y2);
  entry.shape = kind;
  entry.corner_width = corner_width;
  entry.corner_height = corner_height;
  entry.pen = pen;
  entry.brush = brush;
}

void RecordingSurface::DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) {
  Add(Painted::What::kLine, x1, y1, x2, y2).pen = pen;
}

void RecordingSurface::DevicePicture(const Picture&, double x, double y, double width,
                                     double height) {
  Add(Painted::What::kPicture, x, y, x + width, y + height);
}

}  // namespace tagwright
