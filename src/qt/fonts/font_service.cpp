#include "qt/fonts/font_service.h"

#include <QFontDatabase>
#include <QString>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "qt/fonts/faces.h"
#include "qt/fonts/shaping.h"

namespace tagwright {
namespace {

class ToolkitFontService : public FontService {
 public:
  double Width(std::string_view text, const FontSpec& font) override {
    return ShapeText(text, font).width * font.Size / kReferencePixels;
  }
  double Ascent(const FontSpec& font) override {
    return FaceOf(font).ascent * font.Size / kReferencePixels;
  }
  double Descent(const FontSpec& font) override {
    return FaceOf(font).descent * font.Size / kReferencePixels;
  }
  std::vector<std::string> Families() override;
};

// The toolkit tells families of the same name from several makers apart by "Name [Maker]".
std::string PlainFamily(const QString& family) {
  return family.section(QStringLiteral(" ["), 0, 0).toStdString();
}

bool Holds(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

void AddOnce(std::vector<std::string>& names, const std::string& name) {
  if (!Holds(names, name)) names.push_back(name);
}

// Labels name these fonts, "Arial" the defaults too. Where a twin of the same measures answers to
// the name, the name is one to choose, or nobody could choose the default font.
void AddNamesOfTwins(std::vector<std::string>& names) {
  constexpr std::pair<const char*, const char*> kTwins[] = {{"Liberation Sans", "Arial"},
                                                            {"Liberation Serif", "Times New Roman"},
                                                            {"Liberation Mono", "Courier New"}};
  for (const auto& [twin, name] : kTwins) {
    if (Holds(names, twin)) AddOnce(names, name);
  }
}

std::vector<std::string> ToolkitFontService::Families() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (QFontDatabase::isSmoothlyScalable(family)) AddOnce(names, PlainFamily(family));
  }
  AddNamesOfTwins(names);
  return names;
}

}  // namespace

FontService& ToolkitFonts() {
  static ToolkitFontService fonts;
  return fonts;
}

}  // namespace tagwright
