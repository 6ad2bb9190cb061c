#include "editing/property_pick.h"

#include "common/diagnostics.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "editing/object_panels.h"
#include "editing/pointer.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/pointers.h"

namespace tagwright {
namespace {

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

// Measuring takes the caption off the hit area, which an open text is shown by. Its panel follows:
// what ends the next entry reads the size from there.
void CopyToSelectedObject(const ObjectRecord& source) {
  if (SelectedObject < 0) return;
  Label& hold = HoldAt(SelectedObject);
  const bool open = IsShownByHold(SelectedObject);
  CopyProperties(source, SelectedObject);
  if (open) hold.SetCaption(ObjectAt(SelectedObject).Text.Trimmed());
  ShowTextStyle();
  ShowHandles(hold);
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
  SetBoardPointer(kQuestionPointer);
  CopyPropsPending = true;
}

void PickProperties(int index) {
  const ObjectRecord source = ObjectAt(index);
  Traced([&] { CopyToSelectedObject(source); });
  CopyToGroup(source);
  EndPropertyPick();
}

void EndPropertyPick() {
  SetBoardPointer(kDefaultPointer);
  CopyPropsPending = false;
}

}  // namespace tagwright
