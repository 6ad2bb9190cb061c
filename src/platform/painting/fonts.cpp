#include "platform/painting/fonts.h"

#include "platform/text/text.h"

namespace tagwright {
namespace {

FontService* service_in_force = nullptr;

class FixedFontService : public FontService {
 public:
  double Width(std::string_view text, const FontSpec& font) override {
    const double character = font.Bold ? 0.55 : 0.5;
    return static_cast<double>(Length(text)) * character * font.Size;
  }
  double Ascent(const FontSpec& font) override { return 0.9 * font.Size; }
  double Descent(const FontSpec& font) override { return 0.2 * font.Size; }
  std::vector<std::string> Families() override {
    return {"Arial", "Courier New", "Times New Roman"};
  }
};

}  // namespace

FontService& Fonts() { return service_in_force ? *service_in_force : FixedFonts(); }

void SetFonts(FontService* service) { service_in_force = service; }

FontService& FixedFonts() {
  static FixedFontService fonts;
  return fonts;
}

}  // namespace tagwright
