#include "barcode/formats.h"

namespace tagwright {

void FillBarcodeFormats(ComboBox& combo) {
  for (const char* name : kBarcodeFormatNames) combo.AddItem(name);
}

}  // namespace tagwright
