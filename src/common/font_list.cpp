#include "common/font_list.h"

#include <string>

#include "platform/painting/fonts.h"

namespace tagwright {

int AddFontToCombo(std::string_view face_name, ComboBox& combo) {
  combo.AddItem(std::string(face_name.substr(0, face_name.find('\0'))));
  return -1;
}

void FillFontList(ComboBox& combo) {
  for (const std::string& family : Fonts().Families()) {
    if (AddFontToCombo(family, combo) == 0) return;
  }
}

}  // namespace tagwright
