// What the barcode panel refuses, before anything is painted.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tagwright {

// The rules last set by ValidateBarcodeData. Before any format has been tested no character is
// valid and no text short enough.
inline std::string ValidChars;
inline std::int16_t MaxChars = 0;  // longest data in characters, -1 no limit

// Every character of `Data` that the format does not allow, in order, repeats kept; empty when all
// are allowed. Stores the format's rules in ValidChars and MaxChars. Code 13 has no rules here: it
// is judged by those of the format tested before it, and so is any code outside 0 to 13.
std::string ValidateBarcodeData(std::int16_t Format, std::string_view Data);

}  // namespace tagwright
