// The barcode formats by code. A format's code is its row in every list of formats.
#pragma once

#include <array>

#include "platform/controls/controls.h"

namespace tagwright {

constexpr std::array<const char*, 14> kBarcodeFormatNames = {"UPC-A",
                                                             "UPC-E",
                                                             "EAN-13",
                                                             "EAN-8",
                                                             "Code 2 of 5",
                                                             "Interleaved 2 of 5",
                                                             "Code 128-A",
                                                             "Code 128-B",
                                                             "Code 128-C",
                                                             "Code 39",
                                                             "Code 39 Extended",
                                                             "Codabar",
                                                             "PostNet",
                                                             "Royal Mail CBC"};

// Adds the names of the formats 0 to 13, in order, to `combo`. Selects nothing.
void FillBarcodeFormats(ComboBox& combo);

}  // namespace tagwright
