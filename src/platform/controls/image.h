// Icons that are held for a pointer or a bitmap.
#pragma once

#include <string>

#include "platform/controls/control.h"

namespace tagwright {

// A named icon: off-screen holder of a pointer or a bitmap.
class Image : public Control {
 public:
  using Control::Control;
  const std::string& Icon() const { return icon_; }
  void SetIcon(std::string value);

 private:
  std::string icon_;
};

}  // namespace tagwright
