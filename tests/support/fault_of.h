// What number a statement faults with.
#pragma once

#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {

// Runs `statement` and returns the number of the fault that ended it, 0 when it ran to its end.
template <class Statement>
int FaultOf(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return 0;
  } catch (const Fault& fault) {
    return fault.number;
  }
}

}  // namespace tagwright
