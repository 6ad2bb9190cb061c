#include "output/data_fields.h"

#include "common/diagnostics.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "platform/controls/label.h"

namespace tagwright {
namespace {

bool FieldIsSelected() {
  bool is_field = false;
  Traced([&] { is_field = SelectedObject > -1 && ObjectAt(SelectedObject).ObjType == kDataField; });
  return is_field;
}

void TakeSizeOfHold(int index) {
  const Label& hold = HoldAt(index);
  ObjectAt(index).Width = hold.Width();
  ObjectAt(index).Height = hold.Height();
}

}  // namespace

void mnuField_Click(int Index) {
  if (!FieldIsSelected()) return;
  DirtyFlag = kTrue;
  ObjectAt(SelectedObject).FillColor = Index;
  TakeSizeOfHold(SelectedObject);
  RedrawBoard();
}

void mnuFBC_Click(int Index) {
  if (!FieldIsSelected()) return;
  DirtyFlag = kTrue;
  ObjectAt(SelectedObject).FillColor = Index + kFirstBarcodeFormat;
  RedrawBoard();
}

}  // namespace tagwright
