// The coordinate scale of a surface or a container, and conversion between the scale codes.
#pragma once

namespace tagwright {

// The scale codes that the program uses.
enum ScaleCode : int { kUserScale = 0, kTwips = 1, kPixels = 3, kMillimetres = 6 };

constexpr double kTwipsPerInch = 1440.0;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kHundredthsPerInch = 2540;  // of a millimetre: the natural sizes of pictures
constexpr double kPointsPerInch = 72;
constexpr double kTwipsPerPoint = kTwipsPerInch / kPointsPerInch;
constexpr double kScreenPixelsPerInch = 96;
constexpr double kTwipsPerMillimetre = kTwipsPerInch / kMillimetresPerInch;
constexpr double kTwipsPerPixel = 15.0;  // one logical screen pixel

// So many inches in millimetres.
constexpr double Inches(double inches) { return inches * kMillimetresPerInch; }

// An area of a physical size, measured in one of the scales. In twips, pixels and millimetres the
// scale width follows the physical size; a user scale keeps the numbers it was given, so that its
// unit stretches when the area is resized.
class ScaleSpace {
 public:
  // Size in twips; `pixels_per_inch` of the device (on a printer the queue's).
  ScaleSpace(double width_twips = 0, double height_twips = 0,
             double pixels_per_inch = kScreenPixelsPerInch);

  double WidthTwips() const { return width_twips_; }
  double HeightTwips() const { return height_twips_; }
  double PixelsPerInch() const { return pixels_per_inch_; }
  void Resize(double width_twips, double height_twips);
  void SetPixelsPerInch(double pixels_per_inch);

  int ScaleMode() const { return mode_; }
  // Faults 380 for a code that is none of the four. Code 0 keeps the present numbers.
  void SetScaleMode(int code);
  double ScaleWidth() const;
  double ScaleHeight() const;
  // Each switches to user scale; the other side keeps its present number. Faults 380 for 0, for
  // negative and for non-finite values.
  void SetScaleWidth(double units);
  void SetScaleHeight(double units);

  // Converts a distance between scale codes; code 0 is the present scale whatever its mode.
  double ScaleX(double value, int from, int to) const;
  double ScaleY(double value, int from, int to) const;

  // Twips of one unit of the present scale; never 0 (an empty area counts as one twip a unit).
  double UnitX() const;
  double UnitY() const;

  // Device pixels of one unit of the present scale: what painting multiplies by.
  double PixelsX() const { return pixels_x_; }
  double PixelsY() const { return pixels_y_; }

 private:
  double UnitOf(int code, bool horizontal) const;
  void DerivePixels();

  double width_twips_;
  double height_twips_;
  double pixels_per_inch_;
  int mode_ = kTwips;
  double user_width_ = 0;
  double user_height_ = 0;
  double pixels_x_ = 1;
  double pixels_y_ = 1;
};

}  // namespace tagwright
