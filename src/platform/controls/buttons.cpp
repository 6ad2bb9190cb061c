#include "platform/controls/buttons.h"

#include <utility>

namespace tagwright {

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

}  // namespace tagwright
