// What is pressed: check boxes and command buttons.
#pragma once

#include <string>

#include "platform/controls/control.h"

namespace tagwright {

// Value 0 clear, 1 ticked, 2 greyed.
class CheckBox : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  int Value() const { return value_; }
  void SetValue(int value);  // raises Click only on a change; outside 0 to 2: fault 380
  // The user: turns it over (a greyed one to clear), which raises Click. Nothing when disabled.
  void Press();

 private:
  int value_ = 0;
};

class CommandButton : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  const std::string& Caption() const { return caption_; }  // empty: as the form file has it
  void SetCaption(std::string value);
  // Looks pressed for as long as what it has started is in force. Raises nothing.
  bool Down() const { return down_; }
  void SetDown(bool value);
  void Press();  // raises Click; nothing when disabled

 private:
  std::string caption_;
  bool down_ = false;
};

}  // namespace tagwright
