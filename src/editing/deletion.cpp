#include "editing/deletion.h"

#include <utility>

#include "common/diagnostics.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "editing/selection.h"
#include "editing/undo.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

void MarkGroup() {
  for (int i = 0; i <= SelectedUpper; ++i) {
    Traced([&] { ObjectAt(SelectedMember(i)).ObjType = kDeleteMark; });
  }
}

void RemoveAt(int index) {
  SelectedObject = static_cast<std::int16_t>(index);
  RemoveObject();
}

// Downwards, so that the places of those still to come stay right. A removal can take empty texts
// along, hence the second test.
void RemoveMarked() {
  for (int i = ObjectUB; i >= 0; --i) {
    if (i <= ObjectUB && ObjectAt(i).ObjType == kDeleteMark) Traced([&] { RemoveAt(i); });
  }
}

void RemoveGroup() {
  MarkGroup();
  RemoveMarked();
}

void RemoveSelected() { SelectedUpper < 0 ? RemoveObject() : RemoveGroup(); }

}  // namespace

void SortSelection() {
  for (int pass = 0; pass < SelectedUpper; ++pass) {
    for (int i = 0; i < SelectedUpper; ++i) {
      if (SelectedMember(i) > SelectedMember(i + 1)) {
        std::swap(SelectedMember(i), SelectedMember(i + 1));
      }
    }
  }
}

void DeleteSelection() {
  if (SelectedObject == -1 && SelectedUpper == -1) return;
  DirtyFlag = kTrue;
  frmMain.sB1.SetPanelText(kSelectionPanel, "");
  Traced(SortSelection);
  SaveUndoDelete();
  Traced(RemoveSelected);
  DropSelection();
  RedrawBoard();
}

}  // namespace tagwright
