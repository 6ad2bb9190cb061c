#include "platform/controls/label.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "platform/controls/container.h"

namespace tagwright {
namespace {

constexpr double kTwipsPerPoint = 20;

struct Extent {
  double width = 0;
  double height = 0;
};

// What `text` takes in twips: its widest line by all its lines.
Extent Measure(std::string_view text, const FontSpec& font) {
  if (font.Size <= 0) return {};
  const double line_height = Fonts().Ascent(font) + Fonts().Descent(font);
  Extent extent;
  std::size_t end = 0;
  for (std::size_t start = 0; end != std::string_view::npos;) {
    end = text.find_first_of("\r\n", start);
    const std::string_view line = text.substr(start, end - start);
    extent.width = std::max(extent.width, Fonts().Width(line, font) * kTwipsPerPoint);
    extent.height += line_height * kTwipsPerPoint;
    start = end + (text.substr(std::min(end, text.size()), 2) == "\r\n" ? 2 : 1);
  }
  return extent;
}

}  // namespace

void Label::SetCaption(std::string value) {
  if (value != caption_) {
    caption_ = std::move(value);
    Notify(Aspect::kText);
  }
  Fit();
}

void Label::SetFont(const FontSpec& font) {
  if (font != font_) {
    font_ = font;
    Notify(Aspect::kLook);
  }
  Fit();
}

void Label::SetFontName(std::string name) {
  FontSpec font = font_;
  if (!name.empty()) font.Name = std::move(name);
  SetFont(font);
}

void Label::SetFontSize(double points) {
  FontSpec font = font_;
  font.Size = points;
  SetFont(font);
}

void Label::SetFontBold(bool value) {
  FontSpec font = font_;
  font.Bold = value;
  SetFont(font);
}

void Label::SetFontItalic(bool value) {
  FontSpec font = font_;
  font.Italic = value;
  SetFont(font);
}

void Label::SetAutoSize(bool value) {
  auto_size_ = value;
  Fit();
}

void Label::SetForeColor(Color value) {
  if (value == fore_color_) return;
  fore_color_ = value;
  Notify(Aspect::kLook);
}

void Label::SetBackColor(Color value) {
  if (value == back_color_) return;
  back_color_ = value;
  Notify(Aspect::kLook);
}

void Label::SetBackStyle(int value) {
  CheckRange(value, 0, 1);
  if (value == back_style_) return;
  back_style_ = value;
  Notify(Aspect::kLook);
}

void Label::SetAlignment(TextAlignment value) {
  CheckRange(static_cast<int>(value), 0, static_cast<int>(TextAlignment::kCenter));
  if (value == alignment_) return;
  alignment_ = value;
  Notify(Aspect::kLook);
}

void Label::SetBorderStyle(int value) {
  CheckRange(value, 0, 1);
  if (value == border_style_) return;
  border_style_ = value;
  Notify(Aspect::kLook);
}

void Label::Press() {
  if (IsLive()) Events().Click.Raise(Index());
}

Control* Label::FocusTarget() { return Parent() ? Parent()->FocusStandIn() : nullptr; }

void Label::Fit() {
  if (!auto_size_) return;
  const Extent extent = Measure(caption_, font_);
  if (std::isinf(extent.width) || std::isinf(extent.height)) return;
  const double unit_x = Parent() ? Parent()->Scale().UnitX() : 1;
  const double unit_y = Parent() ? Parent()->Scale().UnitY() : 1;
  SetWidth(extent.width / unit_x);
  SetHeight(extent.height / unit_y);
}

}  // namespace tagwright
