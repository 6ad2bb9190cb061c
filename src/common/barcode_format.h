// The barcode formats by code, as records, settings and lists hold them. What belongs to each is a
// row of the table in barcode/formats.h; these names are for the folders that only store a code.
#pragma once

#include <cstdint>

namespace tagwright {

enum BarcodeFormat : std::int16_t {
  kFormatUpcA = 0,
  kFormatUpcE = 1,
  kFormatEan13 = 2,
  kFormatEan8 = 3,
  kFormatTwoOfFive = 4,
  kFormatInterleaved = 5,
  kFormatCode128A = 6,
  kFormatCode128B = 7,
  kFormatCode128C = 8,
  kFormatCode39 = 9,
  kFormatCode39Extended = 10,
  kFormatCodabar = 11,
  kFormatPostNet = 12,
  kFormatRoyalMail = 13,
};

}  // namespace tagwright
