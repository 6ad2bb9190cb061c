// The control types that the user does not type in.
#include "platform/controls/controls.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "platform/painting/recorder.h"

namespace tagwright {
namespace {

void CheckRange(int value, int low, int high) {
  if (value < low || value > high) RaiseFault(kBadValue);
}

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

// --- label --------------------------------------------------------------------------------------

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

// --- lists --------------------------------------------------------------------------------------

const std::string& ListBox::List(int row) const {
  if (row < 0 || row >= ListCount()) RaiseFault(kOutOfBounds);
  return rows_[static_cast<std::size_t>(row)];
}

std::string ListBox::Text() const { return list_index_ < 0 ? std::string() : List(list_index_); }

void ListBox::AddItem(std::string row) {
  rows_.push_back(std::move(row));
  Notify(Aspect::kList);
}

void ListBox::Clear() {
  rows_.clear();
  list_index_ = -1;
  Notify(Aspect::kList);
}

void ListBox::SetListIndex(int row) {
  if (row < -1 || row >= ListCount()) RaiseFault(kBadValue);
  list_index_ = row;
  Notify(Aspect::kSelection);
  if (row >= 0) Events().Click.Raise(Index());
}

void ListBox::UserChoose(int row) {
  if (Waits() || !IsUsable() || row < 0 || row >= ListCount()) return;
  SetListIndex(row);
}

// --- buttons ------------------------------------------------------------------------------------

void CheckBox::SetValue(int value) {
  CheckRange(value, 0, 2);
  if (value == value_) return;
  value_ = value;
  Notify(Aspect::kValue);
  Events().Click.Raise(Index());
}

void CheckBox::Press() {
  if (IsLive()) SetValue(value_ == 0 ? 1 : 0);
}

void CommandButton::SetCaption(std::string value) {
  if (value == caption_) return;
  caption_ = std::move(value);
  Notify(Aspect::kText);
}

void CommandButton::SetDown(bool value) {
  if (value == down_) return;
  down_ = value;
  Notify(Aspect::kValue);
}

void CommandButton::Press() {
  if (IsLive()) Events().Click.Raise(Index());
}

// --- scroll bar ---------------------------------------------------------------------------------

void ScrollBar::SetValue(int value) {
  CheckRange(value, min_, max_);
  if (value == value_) return;
  value_ = value;
  Notify(Aspect::kValue);
  Events().Change.Raise(Index());
}

void ScrollBar::SetRange(int min, int max) {
  if (max < min) RaiseFault(kBadValue);
  min_ = min;
  max_ = max;
  Notify(Aspect::kValue);
  SetValue(std::clamp(value_, min_, max_));
}

void ScrollBar::SetSteps(int small_change, int large_change) {
  small_change_ = small_change;
  large_change_ = large_change;
  Notify(Aspect::kValue);
}

void ScrollBar::UserScroll(int value) {
  if (!Waits() && IsUsable()) SetValue(std::clamp(value, min_, max_));
}

// --- picture box --------------------------------------------------------------------------------

PictureBox::PictureBox(Container* container, std::string name, int index)
    : Container(container, std::move(name), index) {
  SetCanvas(std::make_unique<RecordingSurface>());
}

void PictureBox::SetCanvas(std::unique_ptr<Surface> surface) {
  surface_ = std::move(surface);
  surface_->ShareScale(Scale());
  Notify(Aspect::kImage);
}

void PictureBox::SetBackColor(Color value) {
  if (value == back_color_) return;
  back_color_ = value;
  Notify(Aspect::kLook);
}

void PictureBox::SetImage(PicturePtr picture) {
  picture_ = std::move(picture);
  Notify(Aspect::kLook);
}

void PictureBox::SizeChanged() {
  ResizeScale(WidthTwips(), HeightTwips());
  Notify(Aspect::kGeometry);
}

// --- shapes -------------------------------------------------------------------------------------

void Image::SetIcon(std::string value) {
  if (value == icon_) return;
  icon_ = std::move(value);
  Notify(Aspect::kLook);
}

void Shape::SetShape(int value) {
  CheckRange(value, 0, 5);
  if (value == shape_) return;
  shape_ = value;
  Notify(Aspect::kLook);
}

void Shape::SetBorderStyle(int value) {
  CheckRange(value, 0, 6);
  if (value == border_style_) return;
  border_style_ = value;
  Notify(Aspect::kLook);
}

void Shape::SetBorderColor(Color value) {
  if (value == border_color_) return;
  border_color_ = value;
  Notify(Aspect::kLook);
}

void Shape::SetCornerSize(double value) {
  if (value == corner_size_) return;
  corner_size_ = value;
  Notify(Aspect::kLook);
}

void LineControl::SetX1(double value) { Set(x1_, value); }

void LineControl::SetY1(double value) { Set(y1_, value); }

void LineControl::SetX2(double value) { Set(x2_, value); }

void LineControl::SetY2(double value) { Set(y2_, value); }

void LineControl::Set(double& field, double value) {
  if (value == field) return;
  field = value;
  Notify(Aspect::kGeometry);
}

void LineControl::SetBorderColor(Color value) {
  if (value == border_color_) return;
  border_color_ = value;
  Notify(Aspect::kLook);
}

void LineControl::Rescaled(double factor_x, double factor_y) {
  Control::Rescaled(factor_x, factor_y);
  x1_ *= factor_x;
  x2_ *= factor_x;
  y1_ *= factor_y;
  y2_ *= factor_y;
}

// --- timer --------------------------------------------------------------------------------------

void Timer::SetInterval(int value) {
  if (value < 0) RaiseFault(kBadValue);
  interval_ = value;
  Notify(Aspect::kValue);
}

// Views start the wait at each notice, so enabling what is enabled must give one.
void Timer::SetEnabled(bool value) {
  const bool again = value && Enabled();
  Control::SetEnabled(value);
  if (again) Notify(Aspect::kEnabled);
}

void Timer::Elapsed() {
  if (Waits() || !Enabled() || interval_ == 0) return;
  Events().Timer.Raise(Index());
}

// --- menus --------------------------------------------------------------------------------------

Menu::Menu(Form* form, std::string name) : Control(std::move(name), form, -1, nullptr) {
  form->menus_.push_back(this);
}

Menu::Menu(Menu* parent, std::string name, int index, std::shared_ptr<ControlEvents> events)
    : Control(std::move(name), parent->ParentForm(), index, std::move(events)), parent_(parent) {
  parent->items_.push_back(this);
}

Menu::~Menu() {
  for (Menu* item : items_) item->parent_ = nullptr;
  if (parent_) std::erase(parent_->items_, this);
  if (Form* form = ParentForm()) std::erase(form->menus_, this);
}

void Menu::SetCaption(std::string value) {
  if (value == caption_) return;
  caption_ = std::move(value);
  Notify(Aspect::kText);
}

void Menu::SetChecked(bool value) {
  if (value == checked_) return;
  checked_ = value;
  Notify(Aspect::kValue);
}

bool Menu::CanPress() const { return Enabled() && (!parent_ || parent_->CanPress()); }

void Menu::Press() {
  if (CanPress()) Events().Click.Raise(Index());
}

// --- status bar ---------------------------------------------------------------------------------

StatusBar::StatusBar(Container* container, std::string name, int panels)
    : Control(container, std::move(name)), panels_(static_cast<std::size_t>(panels)) {}

const std::string& StatusBar::PanelText(int panel) const {
  if (panel < 1 || panel > PanelCount()) RaiseFault(kOutOfBounds);
  return panels_[static_cast<std::size_t>(panel) - 1];
}

void StatusBar::SetPanelText(int panel, std::string value) {
  if (value == PanelText(panel)) return;
  panels_[static_cast<std::size_t>(panel) - 1] = std::move(value);
  Notify(Aspect::kText);
}

}  // namespace tagwright
