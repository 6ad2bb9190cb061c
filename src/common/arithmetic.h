// Arithmetic that faults where a result has no place in its type, instead of going on with another
// number.
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {

// `value`, unless it is infinite or no number at all: then fault 6.
inline double Finite(double value) {
  if (!std::isfinite(value)) RaiseFault(kOverflow);
  return value;
}

// To single precision, as a record's Left and Top are kept. Faults 6 outside it and for no number.
inline float ToSingle(double value) {
  if (!(std::abs(value) <= FLT_MAX)) RaiseFault(kOverflow);
  return static_cast<float>(value);
}

// A whole number as a smaller type. Faults 6 outside it.
template <class Integer>
Integer Narrowed(std::int64_t value) {
  if (!std::in_range<Integer>(value)) RaiseFault(kOverflow);
  return static_cast<Integer>(value);
}

// Faults 11 for a zero divisor. The quotient may be infinite, as of two numbers far apart.
inline double Quotient(double value, double divisor) {
  if (divisor == 0) RaiseFault(kDivisionByZero);
  return value / divisor;
}

}  // namespace tagwright
