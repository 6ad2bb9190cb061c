// Reads bars back, by the published table of Code 128 and nothing of the program's.
#pragma once

#include <span>
#include <string>

#include "support/pdf_reader.h"

namespace tagwright {

// The text of a symbol in code set B, from its bars in their order. Empty when it is none. The
// check character is passed over: the program has a pattern of its own for one of its values.
std::string ReadCode128B(std::span<const PdfMark> bars);

}  // namespace tagwright
