// How finely a printed page is divided.
#pragma once

namespace tagwright {

// The finest step of a printed page, in inches: a thousandth of a millimetre. What lies on whole
// steps is written in few digits that repeat, which is most of what makes a page small.
constexpr double kPageStepsPerInch = 25400;

}  // namespace tagwright
