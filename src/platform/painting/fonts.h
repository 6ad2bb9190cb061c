// Fonts by name and size, measured without a device.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tagwright {

// What text is drawn with. `Size` is in points.
struct FontSpec {
  std::string Name = "Arial";
  double Size = 8.25;
  bool Bold = false;
  bool Italic = false;
  bool operator==(const FontSpec&) const = default;
};

// Measures in points, linear in the size: measured once at a large reference size, so that widths
// agree on every zoom and device.
class FontService {
 public:
  virtual ~FontService() = default;
  virtual double Width(std::string_view text, const FontSpec& font) = 0;  // advance width
  virtual double Ascent(const FontSpec& font) = 0;
  virtual double Descent(const FontSpec& font) = 0;  // below the baseline, positive
  // Scalable families, one entry each; also names that a font of the same measures answers to.
  virtual std::vector<std::string> Families() = 0;
};

// The service in force. Until the platform sets one it is FixedFonts.
FontService& Fonts();
void SetFonts(FontService* service);  // not owned; null: FixedFonts

// Fonts for tests: every character half the size wide (a tenth of that more in bold), ascent 0.9
// and descent 0.2 of the size, families "Arial", "Courier New", "Times New Roman".
FontService& FixedFonts();

}  // namespace tagwright
