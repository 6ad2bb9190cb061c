#include "editing/size_fields.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "common/arithmetic.h"
#include "common/barcode_format.h"
#include "common/public_functions.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/selected_object.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

// A barcode that is marked as postal keeps its size. No barcode ever is: its format stands in
// Param, and FillColor is 0. Postal symbols can be typed over.
constexpr std::int32_t kPostNetMark = kFormatPostNet;

// Which of the fields say something else than the record, and than was shown there: a field that
// shows what is no longer so has not been typed in.
class Entries {
 public:
  explicit Entries(const ObjectRecord& record) : shown_(ShownSizeOf(record)) {}

  bool Has(SizeField field) const {
    const std::string& record_says = shown_[static_cast<std::size_t>(field)];
    return !IsAsShown(field) && frmMain.txtDSize(field).Text() != record_says;
  }

  // Gives the number to `take` if there is one.
  template <class Take>
  void Give(SizeField field, Take&& take) const {
    if (!Has(field)) return;
    CarryOn([&] { take(ToNumber(frmMain.txtDSize(field).Text()) * UnitScale); });
  }

 private:
  ShownSize shown_;
};

void TakePlace(const Entries& entries, ObjectRecord& record) {
  entries.Give(kLeftField, [&](double millimetres) { record.Left = ToSingle(millimetres); });
  entries.Give(kTopField, [&](double millimetres) { record.Top = ToSingle(millimetres); });
}

void MoveHoldToPlace() {
  Label& hold = SelectedHold();
  hold.Move(SelectedRecord().Left + BoardOriginX, SelectedRecord().Top + BoardOriginY);
  ShowHandles(hold);
}

bool IsMarkedAsPostal(const ObjectRecord& record) {
  return record.ObjType == kBarcode && record.FillColor == kPostNetMark;
}

void TakeSize(const Entries& entries, ObjectRecord& record) {
  if (IsMarkedAsPostal(record)) return;
  entries.Give(kWidthField, [&](double millimetres) { record.Width = Finite(millimetres); });
  entries.Give(kHeightField, [&](double millimetres) { record.Height = Finite(millimetres); });
}

// What shows a text keeps its size through redraws, and gives it to the record in the end.
void SizeHoldOfOpenText(const Entries& entries) {
  if (!IsShownByHold(SelectedObject)) return;
  if (entries.Has(kWidthField)) SelectedHold().SetWidth(SelectedRecord().Width);
  if (entries.Has(kHeightField)) SelectedHold().SetHeight(SelectedRecord().Height);
}

void TakeEntries() {
  ObjectRecord& record = SelectedRecord();
  const Entries entries(record);
  const bool moved = entries.Has(kLeftField) || entries.Has(kTopField);
  TakePlace(entries, record);
  if (moved && IsMeasured(record.ObjType)) CarryOn(MoveHoldToPlace);
  TakeSize(entries, record);
  CarryOn([&] { SizeHoldOfOpenText(entries); });
}

bool OneIsBeingTypedIn() {
  return std::ranges::any_of(frmMain.txtDSize,
                             [](const auto& element) { return element.second->HasFocus(); });
}

}  // namespace

void txtDSize_GotFocus(int /*Index*/) {
  if (OneIsSelected()) {
    TextEntryActive = true;
  } else {
    KeyboardToBoard();
  }
}

void txtDSize_MouseMove(int Index) {
  frmMain.txtDSize(Index).SetMousePointer(OneIsSelected() ? kDefaultPointer : kArrowPointer);
}

void txtDSize_KeyPress(int Index, int& KeyAscii) {
  KeyAscii = FilterKey(KeyAscii, kFalse, kFalse, kFalse, kTrue, kFalse, frmMain.txtDSize(Index));
}

void TakeSizeEntry() {
  if (OneIsBeingTypedIn() && OneIsSelected() && !GestureUnderWay()) CarryOn(TakeEntries);
}

void txtDSize_LostFocus(int /*Index*/) {
  if (GestureUnderWay()) return;
  if (OneIsSelected()) {
    CarryOn(TakeEntries);
    RedrawBoard();
  }
  ShowSizeFields();
}

}  // namespace tagwright
