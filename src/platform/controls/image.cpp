#include "platform/controls/image.h"

#include <utility>

namespace tagwright {

void Image::SetIcon(std::string value) {
  if (value == icon_) return;
  icon_ = std::move(value);
  Notify(Aspect::kLook);
}

}  // namespace tagwright
