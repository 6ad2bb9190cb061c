// The four fields of place and size.
#include <string>

#include "common/public_functions.h"
#include "document/redraw.h"
#include "editing/object_panels.h"
#include "editing/selected_object.h"
#include "forms/frmMain.h"
#include "platform/fault.h"
#include "platform/locale.h"

namespace tagwright {
namespace {

enum Field { kLeft = 0, kTop = 1, kWidth = 2, kHeight = 3 };

constexpr int kDefaultPointer = 0;
constexpr int kArrow = 1;

// A barcode that is marked as postal keeps its size. No barcode ever is: its format stands in
// Param, and FillColor is 0. Postal symbols can be typed over.
constexpr std::int32_t kPostNetMark = 12;

bool OneIsSelected() { return SelectedObject > -1 && SelectedUpper < 0; }

void Show(int field, double millimetres) {
  frmMain.txtDSize(field).SetText(FormatFixed(millimetres / UnitScale, 2));
}

double Entered(int field) { return ToNumber(frmMain.txtDSize(field).Text()) * UnitScale; }

void TakePlace() {
  CarryOn([] { SelectedRecord().Left = ToSingle(Entered(kLeft)); });
  CarryOn([] { SelectedRecord().Top = ToSingle(Entered(kTop)); });
}

void MoveHoldToPlace() {
  Label& hold = SelectedHold();
  hold.Move(SelectedRecord().Left + BoardOriginX, SelectedRecord().Top + BoardOriginY);
  ShowHandles(hold);
}

bool KeepsItsSize(const ObjectRecord& record) {
  return record.ObjType == kBarcode && record.FillColor == kPostNetMark;
}

void TakeSize() {
  ObjectRecord& record = SelectedRecord();
  if (KeepsItsSize(record)) return;
  CarryOn([&] { record.Width = ToFinite(Entered(kWidth)); });
  CarryOn([&] { record.Height = ToFinite(Entered(kHeight)); });
}

}  // namespace

void ShowSizeFields() {
  CarryOn([] {
    const ObjectRecord& record = SelectedRecord();
    Show(kLeft, record.Left);
    Show(kTop, record.Top);
    Show(kWidth, record.Width);
    Show(kHeight, record.Height);
  });
}

void txtDSize_GotFocus(int /*Index*/) {
  if (OneIsSelected()) {
    TextEntryActive = true;
  } else {
    CarryOn([] { frmMain.txtSetFocus(0).SetFocus(); });
  }
}

void txtDSize_MouseMove(int Index) {
  frmMain.txtDSize(Index).SetMousePointer(OneIsSelected() ? kDefaultPointer : kArrow);
}

void txtDSize_KeyPress(int Index, int& KeyAscii) {
  KeyAscii = FilterKey(KeyAscii, kFalse, kFalse, kFalse, kTrue, kFalse, frmMain.txtDSize(Index));
}

void txtDSize_LostFocus(int /*Index*/) {
  if (SelectedObject < 0) return;
  TakePlace();
  if (IsMeasured(SelectedKind())) CarryOn(MoveHoldToPlace);
  CarryOn(TakeSize);
  RedrawBoard();
}

}  // namespace tagwright
