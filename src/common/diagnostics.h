// Faults shown to the person at the machine, where that person has asked for it: with a file named
// tracemark.flg in the application folder, routines that trace say which fault they passed over.
#pragma once

#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {

// The marker tail: shows the fault's number, " - " and its description if AppFolder holds the
// marker file. Changes nothing else.
void MarkerTail(const Fault& fault);

// The marker tail of the barcode engine, which forms the path from the program's own place. The
// file found is the same.
void EngineMarkerTail(const Fault& fault);

// Carries on after a fault in `statement`, which goes through the marker tail.
template <class Statement>
bool Traced(Statement&& statement) {
  return CarryOn(std::forward<Statement>(statement), MarkerTail);
}

// The same for the routines of the barcode engine.
template <class Statement>
bool EngineTraced(Statement&& statement) {
  return CarryOn(std::forward<Statement>(statement), EngineMarkerTail);
}

}  // namespace tagwright
