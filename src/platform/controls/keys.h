// The keys that handlers of KeyDown and KeyUp know, by code.
#pragma once

namespace tagwright {

enum KeyCode : int {
  kReturnKey = 13,
  kEscapeKey = 27,
  kPageUpKey = 33,
  kPageDownKey = 34,
  kDownKey = 40,
  kDeleteKey = 46,
  kMenuKey = 93,
  kF10Key = 121,
};

}  // namespace tagwright
