#include "editing/selected_object.h"

#include <cmath>
#include <limits>

#include "forms/frmMain.h"
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

bool IsMeasured(std::int16_t kind) { return kind == kText || kind == kDataField; }

float ToSingle(double value) {
  const bool fits = std::abs(value) <= std::numeric_limits<float>::max();
  if (!fits) RaiseFault(kOverflow);
  return static_cast<float>(value);
}

double ToFinite(double value) {
  if (!std::isfinite(value)) RaiseFault(kOverflow);
  return value;
}

}  // namespace tagwright
