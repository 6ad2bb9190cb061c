#include "editing/undo.h"

#include <algorithm>

#include "common/diagnostics.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

ObjectRecord& UndoPlace(int place) { return UndoRecords.at(static_cast<std::size_t>(place)); }

int LastSlot() { return static_cast<int>(kSelectionSlots) - 1; }

void SaveGroup() {
  UndoUpper = SelectedUpper;
  for (int i = 0; i <= std::min<int>(ObjectUB, LastSlot()); ++i) {
    Traced([&] { UndoPlace(i) = ObjectAt(SelectedMember(i)); });
  }
}

}  // namespace

void SaveUndoDelete() {
  if (SelectedObject == -1 && SelectedUpper == -1) return;
  UndoKind = UndoOf::kDelete;
  if (SelectedObject != -1) {
    Traced([] { UndoPlace(0) = ObjectAt(SelectedObject); });
    UndoUpper = 0;
  }
  if (SelectedUpper != -1) SaveGroup();
  frmMain.mnuUndo.SetCaption("Undo Object Delete");
  frmMain.mnuUndo.SetEnabled(true);
}

void ForgetUndo() {
  UndoUpper = -1;
  frmMain.mnuUndo.SetEnabled(false);
}

void ResetUndo() {
  UndoUpper = -1;
  UndoKind = UndoOf::kDelete;
  UndoRecords.assign(kSelectionSlots, {});
  UndoIndexes.assign(kSelectionSlots, 0);
}

}  // namespace tagwright
