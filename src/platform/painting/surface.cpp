#include "platform/painting/surface.h"

#include <algorithm>
#include <cmath>

namespace tagwright {
namespace {

// Records come from files, and a file can hold anything: what lies nowhere is not painted.
template <class... Doubles>
bool AreFinite(Doubles... values) {
  return (std::isfinite(values) && ...);
}

bool Measurable(const FontSpec& font) { return std::isfinite(font.Size) && font.Size > 0; }

double LineHeight(const FontSpec& font) {
  if (!Measurable(font)) return 0;
  return Fonts().Ascent(font) + Fonts().Descent(font);
}

// Calls `visit` for each line; CR LF, LF and CR all end one.
template <class Visit>
void ForEachLine(std::string_view text, Visit&& visit) {
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    visit(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
  }
}

}  // namespace

// --- text ---------------------------------------------------------------------------------------

double Surface::TextWidth(std::string_view text) const {
  if (!Measurable(Font)) return 0;
  double widest = 0;
  ForEachLine(text,
              [&](std::string_view line) { widest = std::max(widest, Fonts().Width(line, Font)); });
  return widest * kTwipsPerPoint / scale_->UnitX();
}

double Surface::TextHeight(std::string_view text) const {
  int lines = 0;
  ForEachLine(text, [&](std::string_view) { ++lines; });
  return lines * LineHeight(Font) * kTwipsPerPoint / scale_->UnitY();
}

void Surface::Print(std::string_view text) {
  ForEachLine(text, [&](std::string_view line) { PrintLine(line); });
}

void Surface::PrintLine(std::string_view line) {
  const double height = LineHeight(Font) * kTwipsPerPoint / scale_->UnitY();
  if (!line.empty() && height > 0 && AreFinite(CurrentX, CurrentY)) {
    if (!FontTransparent) {
      Line(CurrentX, CurrentY, CurrentX + TextWidth(line), CurrentY + height, BackColor);
    }
    const double pixels_per_point = scale_->PixelsPerInch() / kPointsPerInch;
    DeviceText(PixelX(CurrentX), PixelY(CurrentY), Fonts().Ascent(Font) * pixels_per_point, line,
               Font, ForeColor);
  } else {
    DeviceOpen();
  }
  CurrentX = 0;
  CurrentY += height;
}

// --- boxes, pictures ----------------------------------------------------------------------------

void Surface::Line(double x1, double y1, double x2, double y2, Color color) {
  if (!AreFinite(x1, y1, x2, y2)) return DeviceOpen();
  DeviceBox(PixelX(std::min(x1, x2)), PixelY(std::min(y1, y2)), PixelX(std::max(x1, x2)),
            PixelY(std::max(y1, y2)), color);
}

void Surface::PaintPicture(const PicturePtr& picture, double x, double y, double width,
                           double height) {
  if (!picture || !AreFinite(x, y, width, height)) return DeviceOpen();
  DevicePicture(*picture, PixelX(x), PixelY(y), PixelX(width), PixelY(height));
}

void Surface::Cls() {
  DeviceClear(BackColor);
  CurrentX = 0;
  CurrentY = 0;
}

// --- drawing calls of the device context --------------------------------------------------------

void Surface::MoveToEx(double x, double y) {
  pen_x_ = x;
  pen_y_ = y;
}

void Surface::LineTo(double x, double y) {
  if (AreFinite(pen_x_, pen_y_, x, y)) {
    DeviceLine(pen_x_, pen_y_, x, y, pen_);
  } else {
    DeviceOpen();
  }
  MoveToEx(x, y);
}

void Surface::Rectangle(double x1, double y1, double x2, double y2) {
  Shape(ShapeKind::kRectangle, x1, y1, x2, y2, 0, 0);
}

void Surface::RoundRect(double x1, double y1, double x2, double y2, double width, double height) {
  Shape(ShapeKind::kRoundRect, x1, y1, x2, y2, width, height);
}

void Surface::Ellipse(double x1, double y1, double x2, double y2) {
  Shape(ShapeKind::kEllipse, x1, y1, x2, y2, 0, 0);
}

void Surface::Shape(ShapeKind kind, double x1, double y1, double x2, double y2, double corner_width,
                    double corner_height) {
  if (!AreFinite(x1, y1, x2, y2, corner_width, corner_height)) return DeviceOpen();
  DeviceShape(kind, x1, y1, x2, y2, corner_width, corner_height, pen_, brush_);
}

}  // namespace tagwright
