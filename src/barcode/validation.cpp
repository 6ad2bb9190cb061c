#include "barcode/validation.h"

#include "barcode/data_rules.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr std::int16_t kFormatsWithRules = 13;  // all but the last

}  // namespace

std::string ValidateBarcodeData(std::int16_t Format, std::string_view Data) {
  if (Format >= 0 && Format < kFormatsWithRules) {
    const DataRule& rule = kDataRules[static_cast<std::size_t>(Format)];
    ValidChars = rule.set.characters;
    MaxChars = rule.limit;
  }
  std::u32string refused;
  for (const char32_t character : Characters(Data)) {
    const bool valid =
        character < 128 && ValidChars.find(static_cast<char>(character)) != std::string::npos;
    if (!valid) refused.push_back(character);
  }
  return FromCharacters(refused);
}

}  // namespace tagwright
