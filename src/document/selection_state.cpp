#include "document/selection_state.h"

#include "document/objects.h"
#include "document/overlays.h"
#include "document/shown_size.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/menu.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

// All of them: a text that has joined a group shows by its hit area until the next redraw, also
// after the group is gone, and what lies beyond the last record is not redrawn at all.
void EndMeasuringEverywhere() {
  for (const auto& [index, hold] : frmMain.lblHold) EndMeasuring(*hold);
}

}  // namespace

void EnableSelectionCommands(bool group) {
  for (Menu* entry : {&frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuAHoriz,
                      &frmMain.mnuArrangeBTF, &frmMain.mnuArrangeSTB}) {
    entry->SetEnabled(true);
  }
  frmMain.mnuArrAlign.SetEnabled(group);
  frmMain.mnuArrSize.SetEnabled(group);
}

void DisableSelectionCommands() {
  for (Menu* entry :
       {&frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuArrAlign, &frmMain.mnuArrSize,
        &frmMain.mnuAHoriz, &frmMain.mnuArrangeBTF, &frmMain.mnuArrangeSTB}) {
    entry->SetEnabled(false);
  }
}

bool IsShownByHold(int index) {
  if (index != SelectedObject || !frmMain.lblHold.Exists(index)) return false;
  const Label& hold = frmMain.lblHold(index);
  return ObjectAt(index).ObjType == kText && hold.Visible() && !hold.Caption().empty();
}

void HideHitAreas() {
  for (const auto& [index, hold] : frmMain.lblHold) hold->SetVisible(false);
}

void ForgetCount() {
  if (frmMain.sB1.PanelText(kSelectionPanel).starts_with("Objects Selected: "))
    frmMain.sB1.SetPanelText(kSelectionPanel, "");
}

void EndGroup() {
  if (SelectedUpper < 0) return;
  SelectedUpper = -1;
  HideHandles();
  ForgetCount();
}

void KeyboardToBoard() {
  CarryOn([] { frmMain.txtSetFocus(0).SetFocus(); });
}

void TakeEntryUnderWay() {
  if (frmMain.txtBCodeData.HasFocus()) frmMain.txtBCodeData.Events().LostFocus.Raise(-1);
  if (frmMain.cboFont.HasFocus()) frmMain.cboFont.Events().LostFocus.Raise(-1);
  for (const auto& [index, field] : frmMain.txtDSize) {
    if (field->HasFocus()) frmMain.txtDSize.Events().LostFocus.Raise(index);
  }
}

void DropSelection() {
  DisableSelectionCommands();
  EndMeasuringEverywhere();
  ForgetCount();
  SelectedUpper = -1;
  SelectedObject = -1;
  HideHandles();
  ShowSizeFields();
}

}  // namespace tagwright
