#include "barcode/validation.h"

#include "barcode/formats.h"
#include "platform/text/text.h"

namespace tagwright {

std::string ValidateBarcodeData(std::int16_t Format, std::string_view Data) {
  const BarcodeFormatRow* format = FormatRow(Format);
  if (format && Format != kFormatRoyalMail) {
    ValidChars = format->set.characters;
    MaxChars = format->limit;
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
