// What all painting goes to: a picture in memory (board, preview), a printed page, or in tests a
// recorder. The base class keeps the state and the arithmetic; a device draws the few primitives at
// the end of this header. User units are mapped to device pixels once and stay real numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/painting/fonts.h"
#include "platform/painting/picture.h"
#include "platform/painting/scale.h"

namespace tagwright {

using Color = std::int32_t;  // 0x00BBGGRR
constexpr Color Rgb(int red, int green, int blue) { return red | green << 8 | blue << 16; }

// Drawing modes that the program uses; any other value draws like a copy. On a picture in memory a
// masked colour is ANDed with what lies beneath, for all but text; a printed page takes a copy.
enum DrawModeCode : int { kMaskPen = 9, kCopyPen = 13 };

enum PenStyle : int { kPenSolid = 0, kPenNull = 5 };
enum BackgroundMode : int { kTransparentBackground = 1, kOpaqueBackground = 2 };
enum StockObject : int { kNullBrush = 5, kNullPen = 8 };

// A pen or a brush made for a surface. Plain values; "selecting" copies them.
struct Pen {
  int style = kPenSolid;
  int width = 1;  // device pixels: logical pixels on a screen, the queue's own on a printer
  Color color = 0;
};
struct Brush {
  bool null = false;
  Color color = 0xFFFFFF;
};

inline Pen CreatePen(int style, int width, Color color) { return {style, width, color}; }
inline Brush CreateSolidBrush(Color color) { return {false, color}; }
inline Brush NullBrush() { return {true, 0}; }  // GetStockObject(5)

enum class ShapeKind { kRectangle, kRoundRect, kEllipse };

class Surface {
 public:
  // Paints on a device of its own scale.
  Surface() = default;
  virtual ~Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  // --- scale: shared with the control that shows the surface, or the surface's own ---
  ScaleSpace& Scale() { return *scale_; }
  const ScaleSpace& Scale() const { return *scale_; }
  void ShareScale(ScaleSpace& scale) { scale_ = &scale; }  // not owned
  double ScaleX(double value, int from, int to) const { return scale_->ScaleX(value, from, to); }
  double ScaleY(double value, int from, int to) const { return scale_->ScaleY(value, from, to); }
  double ScaleWidth() const { return scale_->ScaleWidth(); }
  double ScaleHeight() const { return scale_->ScaleHeight(); }
  int ScaleMode() const { return scale_->ScaleMode(); }

  // --- state; assigned freely ---
  // An empty Name or an unknown family draws in the platform's fallback; Size in points.
  FontSpec Font;
  Color ForeColor = 0;
  Color BackColor = 0xFFFFFF;
  int DrawMode = kCopyPen;
  int DrawStyle = 0;            // 0 solid, 1 dash, 5 invisible: of Line's borders only
  bool FontTransparent = true;  // false: text stands on a box of BackColor
  double CurrentX = 0;          // user units
  double CurrentY = 0;
  // While set, what is painted replaces the persistent image. While clear it goes on top and lasts
  // until the next Cls; the program paints nothing of that kind on a screen.
  bool AutoRedraw = true;

  // --- text, in user units ---
  // Width of the widest line; height is lines times ascent plus descent. 0 for a size of 0 or less.
  double TextWidth(std::string_view text) const;
  double TextHeight(std::string_view text) const;
  // Paints one line with its top left at CurrentX, CurrentY, then moves CurrentX to 0 and CurrentY
  // down by the line height; what follows a line break goes on from there. An empty text paints
  // nothing but opens a printed page.
  void Print(std::string_view text);

  // --- boxes, pictures ---
  // A filled box between two corners in user units, in any order, without a border. The edges are
  // exactly there, on no grid of pixels; a box without an area paints nothing.
  void Line(double x1, double y1, double x2, double y2, Color color);
  // Stretches the picture into the box (user units); a negative size turns it over. A null picture
  // paints nothing.
  void PaintPicture(const PicturePtr& picture, double x, double y, double width, double height);
  // Fills the whole surface with BackColor; CurrentX and CurrentY become 0.
  void Cls();

  // --- drawing calls of the device context, in device pixels (real numbers) ---
  // A shape's edge runs exactly through the coordinates given, right and bottom included, and the
  // pen lies centred on it. Coordinates that are not finite paint nothing, here as everywhere.
  void SelectObject(const Pen& pen) { pen_ = pen; }
  void SelectObject(const Brush& brush) { brush_ = brush; }
  void SetBkMode(int mode) { background_mode_ = mode; }
  void MoveToEx(double x, double y);
  void LineTo(double x, double y);  // draws the last pixel too
  void Rectangle(double x1, double y1, double x2, double y2);
  void RoundRect(double x1, double y1, double x2, double y2, double width, double height);
  void Ellipse(double x1, double y1, double x2, double y2);

  const Pen& SelectedPen() const { return pen_; }
  const Brush& SelectedBrush() const { return brush_; }
  int BackgroundMode() const { return background_mode_; }

 protected:
  // --- what a device draws; coordinates are device pixels from the surface's top left corner ---
  virtual void DeviceClear(Color color) = 0;
  // Called where there is nothing to draw: a printed page opens here all the same. Whatever is
  // drawn opens it by itself.
  virtual void DeviceOpen() {}
  // One line of text; (x, y) is the top left, the baseline lies `ascent` lower. `font.Size` is in
  // points; the device knows its pixels an inch.
  virtual void DeviceText(double x, double y, double ascent, std::string_view text,
                          const FontSpec& font, Color color) = 0;
  virtual void DeviceBox(double x1, double y1, double x2, double y2, Color color) = 0;
  virtual void DeviceShape(ShapeKind kind, double x1, double y1, double x2, double y2,
                           double corner_width, double corner_height, const Pen& pen,
                           const Brush& brush) = 0;
  virtual void DeviceLine(double x1, double y1, double x2, double y2, const Pen& pen) = 0;
  virtual void DevicePicture(const Picture& picture, double x, double y, double width,
                             double height) = 0;

 private:
  void PrintLine(std::string_view line);
  void Shape(ShapeKind kind, double x1, double y1, double x2, double y2, double corner_width,
             double corner_height);
  double PixelX(double units) const { return units * scale_->PixelsX(); }
  double PixelY(double units) const { return units * scale_->PixelsY(); }

  ScaleSpace own_scale_;
  ScaleSpace* scale_ = &own_scale_;
  Pen pen_;
  Brush brush_;
  int background_mode_ = kOpaqueBackground;
  double pen_x_ = 0;
  double pen_y_ = 0;
};

// What all drawing goes to: picBoard's canvas, the printer's page or the preview's. Not owned; null
// until start-up sets it. Every painting folder shares it, down to the bars of a barcode.
inline Surface* DrawTarget = nullptr;

}  // namespace tagwright
