#include "platform/controls/control.h"

#include <utility>

#include "platform/controls/container.h"
#include "platform/controls/form.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

std::shared_ptr<ControlEvents> OwnUnlessShared(std::shared_ptr<ControlEvents> shared) {
  return shared ? std::move(shared) : std::make_shared<ControlEvents>();
}

}  // namespace

Control::Control(Container* container, std::string name, int index,
                 std::shared_ptr<ControlEvents> events)
    : name_(std::move(name)),
      index_(index),
      container_(container),
      form_(container ? container->ParentForm() : nullptr),
      events_(OwnUnlessShared(std::move(events))) {
  if (container_) container_->Adopt(this);
  if (form_) form_->Enroll(this);
}

Control::Control(std::string name, Form* form, int index, std::shared_ptr<ControlEvents> events)
    : name_(std::move(name)),
      index_(index),
      form_(form),
      events_(OwnUnlessShared(std::move(events))) {
  if (form_) form_->Enroll(this);
}

Control::~Control() {
  ForgetPress();
  if (container_) container_->Release(this);
  if (form_) form_->Dismiss(this);
}

// --- place and size -----------------------------------------------------------------------------

void Control::SetLeft(double value) { Move(value, top_); }

void Control::SetTop(double value) { Move(left_, value); }

void Control::SetWidth(double value) { Resize(value, height_); }

void Control::SetHeight(double value) { Resize(width_, value); }

void Control::Move(double left, double top) {
  const bool changed = left != left_ || top != top_;
  left_ = left;
  top_ = top;
  Placed(changed);
}

void Control::Move(double left, double top, double width, double height) {
  CheckSize(width, height);
  Move(left, top);
  Resize(width, height);
}

void Control::CheckSize(double width, double height) const {
  const bool proper = width >= 0 && height >= 0;  // false for what is no number, too
  if (!proper && !TakesNegativeSize()) RaiseFault(kBadValue);
}

void Control::Resize(double width, double height) {
  CheckSize(width, height);
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  SizeChanged();
}

double Control::LeftTwips() const {
  return container_ ? left_ * container_->Scale().UnitX() : left_;
}

double Control::TopTwips() const { return container_ ? top_ * container_->Scale().UnitY() : top_; }

double Control::WidthTwips() const {
  return container_ ? width_ * container_->Scale().UnitX() : width_;
}

double Control::HeightTwips() const {
  return container_ ? height_ * container_->Scale().UnitY() : height_;
}

// Nothing moves on screen, so no view has anything to do.
void Control::Rescaled(double factor_x, double factor_y) {
  left_ *= factor_x;
  width_ *= factor_x;
  top_ *= factor_y;
  height_ *= factor_y;
}

// --- state --------------------------------------------------------------------------------------

void Control::SetVisible(bool value) {
  if (value == visible_) return;
  visible_ = value;
  Notify(Aspect::kVisible);
}

void Control::SetEnabled(bool value) {
  if (value == enabled_) return;
  enabled_ = value;
  Notify(Aspect::kEnabled);
}

bool Control::IsShown() const {
  const Control* control = this;
  while (control && control->visible_) control = control->container_;
  return !control;
}

bool Control::IsLive() const {
  const Control* control = this;
  while (control && control->enabled_) control = control->container_;
  return !control;
}

void Control::ZOrder(int position) {
  if (position != 0 && position != 1) RaiseFault(kBadValue);
  if (!container_) return;
  order_ = position == 0 ? ++container_->front_ : --container_->back_;
  Notify(Aspect::kOrder);
}

void Control::SetToolTipText(std::string value) {
  if (value == tool_tip_) return;
  tool_tip_ = std::move(value);
  Notify(Aspect::kText);
}

void Control::SetSpokenName(std::string value) {
  if (value == spoken_name_) return;
  spoken_name_ = std::move(value);
  Notify(Aspect::kText);
}

void Control::SetMousePointer(int value) {
  constexpr int kLastPointer = 15;
  if ((value < 0 || value > kLastPointer) && value != kCustomPointer) RaiseFault(kBadValue);
  if (value == pointer_) return;
  pointer_ = value;
  Notify(Aspect::kLook);
}

void Control::SetMouseIcon(std::string value) {
  if (value == mouse_icon_) return;
  mouse_icon_ = std::move(value);
  Notify(Aspect::kLook);
}

// --- focus --------------------------------------------------------------------------------------

void Control::SetFocus() {
  if (!CanTakeFocus()) RaiseFault(kInvalidCall);
  form_->GiveFocus(this);
}

bool Control::HasFocus() const { return form_ && form_->ActiveControl() == this; }

void Control::UserFocus() {
  if (!Waits() && CanTakeFocus()) form_->GiveFocus(this);
}

void Control::UserDblClick() {
  if (!Waits() && IsUsable()) events_->DblClick.Raise(index_);
}

// --- views --------------------------------------------------------------------------------------

void Control::AttachView(ControlView* view) { view_ = view; }

void Control::Notify(Aspect aspect) const {
  ControlView* view = view_ ? view_ : container_ ? container_->View() : nullptr;
  if (view) view->Changed(*this, aspect);
}

int Control::WaitLevel() const { return form_ ? form_->EventLevel() : 0; }

bool Control::Waits() const { return HandlerRuns(WaitLevel()); }

// --- values -------------------------------------------------------------------------------------

void Control::CheckRange(int value, int low, int high) {
  if (value < low || value > high) RaiseFault(kBadValue);
}

}  // namespace tagwright
