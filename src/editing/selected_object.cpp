#include "editing/selected_object.h"

#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/faults/fault.h"

namespace tagwright {

ObjectRecord& SelectedRecord() { return ObjectAt(SelectedObject); }

Label& SelectedHold() { return HoldAt(SelectedObject); }

std::int16_t SelectedKind() {
  std::int16_t kind = kBlank;
  CarryOn([&] { kind = SelectedRecord().ObjType; });
  return kind;
}

bool ShapeIsSelected() { return IsShape(SelectedKind()); }

bool TextIsSelected() { return SelectedKind() == kText; }

bool BarcodeIsSelected() { return SelectedKind() == kBarcode; }

bool IsText(int index) {
  bool is_text = false;
  CarryOn([&] { is_text = ObjectAt(index).ObjType == kText; });
  return is_text;
}

}  // namespace tagwright
