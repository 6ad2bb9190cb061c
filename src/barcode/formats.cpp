#include "barcode/formats.h"

#include "barcode/codabar.h"
#include "barcode/code_128.h"
#include "barcode/code_39.h"
#include "barcode/postal.h"
#include "barcode/two_of_five.h"
#include "barcode/upc_ean.h"
#include "platform/controls/text_controls.h"

namespace tagwright {
namespace {

// --- what they carry ----------------------------------------------------------------------------

constexpr CharacterSet kDigits{"0123456789"};

// Code 128 carries the comma too; the program has never let it in.
constexpr CharacterSet kCode128A{
    "!#$%&'()*+.-/0123456789:;<=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_\""};
constexpr CharacterSet kCode128B{
    "!#$%&'()*+.-/0123456789:;<=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
    " abcdefghijklmnopqrstuvwxyz{|}~\""};
constexpr CharacterSet kCode39{" -.*$/+%0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"};
constexpr CharacterSet kCode39Extended{
    "!#$%&'()*+,-./0123456789:;<=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
    " abcdefghijklmnopqrstuvwxyz{|}~\""};
// Small letters only, although the pattern table knows capitals.
constexpr CharacterSet kCodabar{"0123456789-$:/.+abcdtn*e"};
constexpr CharacterSet kRoyalMail{"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ()"};

constexpr std::int16_t kNoLimit = -1;

// The text takes more room under the symbols that print all of it at once.
constexpr double kByDigit = 0.65;
constexpr double kAtOnce = 0.85;

// --- what paints them ---------------------------------------------------------------------------

// A family whose data stays as it is.
template <auto Draw>
void Paint(std::string& data, std::int16_t format, float x, float y, double height, double width,
           bool text, double font_size) {
  Draw(data, format, x, y, height, width, text, font_size);
}

// Its three formats are its code sets in their order.
void PaintCode128(std::string& data, std::int16_t format, float x, float y, double height,
                  double width, bool text, double font_size) {
  const auto code_set = static_cast<std::int16_t>(format - kFormatCode128A);
  DrawCode128(data, code_set, x, y, height, width, text, font_size);
}

// Of a size of its own, and without text.
template <void (*Draw)(std::string_view, float, float)>
void PaintPostal(std::string& data, std::int16_t, float x, float y, double, double, bool, double) {
  Draw(data, x, y);
}

}  // namespace

// clang-format off
constexpr std::array<BarcodeFormatRow, kBarcodeFormatCount> kBarcodeFormats = {{
    {"UPC-A",              kDigits,         12,       kByDigit, DrawUpcEan},
    {"UPC-E",              kDigits,         8,        kByDigit, DrawUpcEan},
    {"EAN-13",             kDigits,         13,       kByDigit, DrawUpcEan},
    {"EAN-8",              kDigits,         8,        kByDigit, DrawUpcEan},
    {"Code 2 of 5",        kDigits,         kNoLimit, kAtOnce,  Paint<DrawTwoOfFive>},
    {"Interleaved 2 of 5", kDigits,         kNoLimit, kAtOnce,  Paint<DrawInterleaved>},
    {"Code 128-A",         kCode128A,       kNoLimit, kAtOnce,  PaintCode128},
    {"Code 128-B",         kCode128B,       kNoLimit, kAtOnce,  PaintCode128},
    {"Code 128-C",         kDigits,         kNoLimit, kAtOnce,  PaintCode128},
    {"Code 39",            kCode39,         kNoLimit, kAtOnce,  Paint<DrawCode39>},
    {"Code 39 Extended",   kCode39Extended, kNoLimit, kAtOnce,  Paint<DrawCode39Extended>},
    {"Codabar",            kCodabar,        kNoLimit, kAtOnce,  Paint<DrawCodabar>},
    {"PostNet",            kDigits,         kNoLimit, kAtOnce,  PaintPostal<DrawPostNet>},
    {"Royal Mail CBC",     kRoyalMail,      kNoLimit, kAtOnce,  PaintPostal<DrawRoyalMail>},
}};
// clang-format on
static_assert(kBarcodeFormats.size() == kFormatRoyalMail + 1);

const BarcodeFormatRow* FormatRow(std::int16_t format) {
  const bool known = format >= 0 && static_cast<std::size_t>(format) < kBarcodeFormats.size();
  return known ? &kBarcodeFormats[static_cast<std::size_t>(format)] : nullptr;
}

void FillBarcodeFormats(ComboBox& combo) {
  for (const BarcodeFormatRow& format : kBarcodeFormats) combo.AddItem(format.name);
}

}  // namespace tagwright
