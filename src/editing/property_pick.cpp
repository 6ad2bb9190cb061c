#include "editing/property_pick.h"

#include "common/diagnostics.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "editing/selection.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

constexpr std::int16_t kPickPointer = 14;  // arrow and question mark

void SetPointer(std::int16_t shape) {
  CursorShape = shape;
  frmMain.SetMousePointer(shape);
}

void CopyProperties(const ObjectRecord& source, int index) {
  ObjectRecord& target = ObjectAt(index);
  DirtyFlag = kTrue;
  target.FontName = source.FontName;
  target.FontSize = source.FontSize;
  target.Bold = source.Bold;
  target.Italic = source.Italic;
  target.ForeColor = source.ForeColor;
  FitHoldToText(index);
}

void CopyToSelectedObject(const ObjectRecord& source) {
  if (SelectedObject < 0) return;
  CopyProperties(source, SelectedObject);
  ShowHandles(HoldAt(SelectedObject));
}

void CopyToGroup(const ObjectRecord& source) {
  if (SelectedUpper < 0) return;
  for (int i = 0; i <= SelectedUpper; ++i) {
    Traced([&] { CopyProperties(source, SelectedMember(i)); });
  }
  RedrawBoard();
}

}  // namespace

void mnuTextCopy_Click() {
  SetPointer(kPickPointer);
  CopyPropsPending = true;
}

void PickProperties(int index) {
  const ObjectRecord source = ObjectAt(index);
  Traced([&] { CopyToSelectedObject(source); });
  CopyToGroup(source);
  EndPropertyPick();
}

void EndPropertyPick() {
  SetPointer(0);
  CopyPropsPending = false;
}

}  // namespace tagwright
