#include "platform/painting/recorder.h"

#include <algorithm>
#include <iterator>

namespace tagwright {

const Painted::Details& Painted::Own() const {
  static const Details kNone;
  return details ? *details : kNone;
}

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
  for (const Painted& entry : Of(Painted::What::kText)) texts.push_back(entry.Text());
  return texts;
}

void RecordingSurface::Append(Painted::What what, double x1, double y1, double x2, double y2,
                              Color color) {
  painted.push_back({what, DrawMode, x1, y1, x2, y2, color, nullptr});
}

void RecordingSurface::Add(Painted::What what, double x1, double y1, double x2, double y2,
                           Color color) {
  DeviceOpen();
  Append(what, x1, y1, x2, y2, color);
}

Painted::Details& RecordingSurface::AddDetailed(Painted::What what, double x1, double y1, double x2,
                                                double y2, Color color) {
  Add(what, x1, y1, x2, y2, color);
  const auto details = std::make_shared<Painted::Details>();
  painted.back().details = details;
  return *details;
}

void RecordingSurface::DeviceClear(Color color) {
  Append(Painted::What::kClear, 0, 0, 0, 0, color);
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
  Painted::Details& details = AddDetailed(Painted::What::kText, x, y, x + width, y + height, color);
  details.text = text;
  details.font = font;
}

void RecordingSurface::DeviceBox(double x1, double y1, double x2, double y2, Color color) {
  Add(Painted::What::kBox, x1, y1, x2, y2, color);
}

void RecordingSurface::DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2,
                                   double corner_width, double corner_height, const Pen& pen,
                                   const Brush& brush) {
  Painted::Details& details = AddDetailed(Painted::What::kShape, x1, y1, x2, y2);
  details.shape = kind;
  details.corner_width = corner_width;
  details.corner_height = corner_height;
  details.pen = pen;
  details.brush = brush;
}

void RecordingSurface::DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) {
  AddDetailed(Painted::What::kLine, x1, y1, x2, y2).pen = pen;
}

void RecordingSurface::DevicePicture(const Picture&, double x, double y, double width,
                                     double height) {
  Add(Painted::What::kPicture, x, y, x + width, y + height);
}

}  // namespace tagwright
