// The pointers that Control::SetMousePointer takes, by code. The others of 0 to 15 have no meaning
// in this program.
#pragma once

#include <cstdint>

namespace tagwright {

enum PointerCode : std::int16_t {
  kDefaultPointer = 0,  // the container's
  kArrowPointer = 1,
  kCrossPointer = 2,
  kIBeamPointer = 3,
  kMovePointer = 5,
  kRisingPointer = 6,   // sizing along the diagonal that goes up to the right
  kFallingPointer = 8,  // and along the one that goes down
  kWaitPointer = 11,
  kQuestionPointer = 14,  // an arrow and a question mark
  kCustomPointer = 99,    // the picture that MouseIcon names
};

}  // namespace tagwright
