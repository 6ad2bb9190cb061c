#include "platform/controls/form.h"

#include <algorithm>
#include <utility>

#include "platform/controls/control.h"
#include "platform/controls/control_view.h"
#include "platform/controls/erase_last.h"
namespace tagwright {
namespace {

Form* active_form = nullptr;

}  // namespace

Form* ActiveForm() { return active_form; }

Form::Form(std::string name) : Container(nullptr, std::move(name)) { form_ = this; }

Form::~Form() {
  DropUserActs();
  for (Control* control : all_) control->form_ = nullptr;
  form_ = nullptr;
}

void Form::Enroll(Control* control) { all_.push_back(control); }

void Form::Dismiss(Control* control) {
  EraseLast(all_, control);
  if (focus_ == control) focus_ = nullptr;
  if (holder_ == control) holder_ = nullptr;
}

Control* Form::Find(std::string_view name, int index) const {
  const auto found = std::find_if(all_.begin(), all_.end(), [&](const Control* control) {
    return control->Index() == index && control->Name() == name;
  });
  return found == all_.end() ? nullptr : *found;
}

void Form::SetCaption(std::string value) {
  if (value == caption_) return;
  caption_ = std::move(value);
  Notify(Aspect::kText);
}

// --- size and state -----------------------------------------------------------------------------

// The first place is news even where its numbers are those that it has: 0, 0 is a place too.
void Form::Placed(bool changed) {
  const bool first = !std::exchange(placed_, true);
  if (changed || first) Notify(Aspect::kGeometry);
}

void Form::SizeChanged() {
  const double client_width = Scale().WidthTwips() + Width() - framed_width_;
  const double client_height = Scale().HeightTwips() + Height() - framed_height_;
  framed_width_ = Width();
  framed_height_ = Height();
  ResizeScale(client_width, client_height);
  Notify(Aspect::kGeometry);
  form_events_->Resize.Raise(-1);
}

void Form::TakeFrame(double left, double top, double width, double height, double client_width,
                     double client_height, WindowState state) {
  const bool changed = width != width_ || height != height_ || state != state_ ||
                       client_width != Scale().WidthTwips() ||
                       client_height != Scale().HeightTwips();
  left_ = left;
  top_ = top;
  width_ = framed_width_ = width;
  height_ = framed_height_ = height;
  state_ = state;
  if (!changed) return;
  ResizeScale(client_width, client_height);
  form_events_->Resize.Raise(-1);
}

void Form::UserResize(double left, double top, double width, double height, double client_width,
                      double client_height, WindowState state) {
  AfterHandlers(
      &waits_.resize,
      [=, this] { TakeFrame(left, top, width, height, client_width, client_height, state); },
      event_level_);
}

void Form::UserMove(double left, double top) {
  const auto take = [=, this] {
    left_ = left;
    top_ = top;
  };
  AfterHandlers(&waits_.move, take, event_level_);
}

// --- keyboard -----------------------------------------------------------------------------------

Control* Form::ActiveControl() const { return focus_ && focus_->IsUsable() ? focus_ : nullptr; }

// A control is told of a loss only if it was told of the gain: one that a nested SetFocus passes
// over hears of neither.
void Form::GiveFocus(Control* control) {
  if (control == focus_) return;
  const int change = ++focus_changes_;
  Control* former = std::exchange(holder_, nullptr);
  Control* passed = std::exchange(focus_, control);
  if (passed) passed->Notify(Aspect::kFocus);
  control->Notify(Aspect::kFocus);
  if (former) former->events_->LostFocus.Raise(former->index_);
  if (change != focus_changes_ || focus_ != control) return;
  holder_ = control;
  control->events_->GotFocus.Raise(control->index_);
}

void Form::UserActivate() {
  active_form = this;
  AfterHandlers(
      &waits_.activate, [this] { form_events_->Activate.Raise(-1); }, event_level_);
}

void Form::UserDeactivate() {
  if (active_form == this) active_form = nullptr;
  KeyboardLeaves();
}

bool Form::UserKeyDown(int key_code, int shift) {
  if (Waits()) return false;
  const bool has_code = key_code != 0;
  form_events_->KeyDown.Raise(-1, key_code, shift);
  return key_code != 0 || !has_code;
}

void Form::UserKeyUp(int key_code, int shift) {
  key_ups_.emplace_back(key_code, shift);
  const auto raise = [this] {
    for (const auto& [code, state] : std::exchange(key_ups_, {})) {
      form_events_->KeyUp.Raise(-1, code, state);
    }
  };
  AfterHandlers(&waits_.key_up, raise, event_level_);
}

void Form::DropUserActs() {
  for (const char* key : {&waits_.resize, &waits_.move, &waits_.activate, &waits_.key_up}) {
    ForgetAfterHandlers(key);
  }
  key_ups_.clear();
  DropPresses();
  if (active_form == this) active_form = nullptr;
}

void Form::KeyboardLeaves() { form_events_->KeyUp.Raise(-1, 0, 0); }

}  // namespace tagwright
