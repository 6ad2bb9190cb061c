#include "editing/selection.h"

#include <algorithm>
#include <string>

#include "common/arithmetic.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/panel_stack.h"
#include "editing/selected_object.h"
#include "editing/text_panel.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/outlines.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

bool selecting_all = false;

auto Group() { return SelectedList.begin() + SelectedUpper + 1; }

void CountSelected() {
  frmMain.sB1.SetPanelText(kSelectionPanel,
                           "Objects Selected: " + std::to_string(SelectedUpper + 1));
}

bool IsEmptyText(int index) { return IsText(index) && ObjectAt(index).Text.Trimmed().empty(); }

void LeaveFields() {
  KeyboardToBoard();
  if (TextEditOpen) CommitTextEdit();
}

// A menu leaves the keyboard where it is: what was typed there is for the object that was selected
// then, and Delete is for those that are selected now.
void LeaveEntryFields() {
  if (frmMain.txtBCodeData.HasFocus() || frmMain.txtTool.HasFocus()) KeyboardToBoard();
  for (const auto& [index, field] : frmMain.txtDSize) {
    if (field->HasFocus()) KeyboardToBoard();
  }
}

// --- the end of a text's selection --------------------------------------------------------------

void TakePlaceOfHold(ObjectRecord& text, const Label& hold) {
  CarryOn([&] { text.Left = ToSingle(hold.Left() - BoardOriginX); });
  CarryOn([&] { text.Top = ToSingle(hold.Top() - BoardOriginY); });
}

// From here on the painter shows it again. Nothing may be selected when txtTool is emptied, or the
// object would be emptied with it.
void ReturnToPainter(ObjectRecord& text, Label& hold) {
  EndMeasuring(hold);
  hold.SetBackStyle(kTransparentBack);
  TakePlaceOfHold(text, hold);
  SelectedObject = -1;
  frmMain.txtTool.SetText("");
}

void DropEmptyText(int index) {
  if (index == ObjectUB) {
    HoldAt(index).SetVisible(false);
    --ObjectUB;
  } else {
    CarryOn(mnuEditSelectAll_Click);
  }
}

void EndText(int index) {
  ObjectRecord& text = ObjectAt(index);
  Label& hold = HoldAt(index);
  text.Width = hold.Width();
  text.Height = hold.Height();
  TakePlaceOfHold(text, hold);
  if (IsEmptyText(index)) {
    DropEmptyText(index);
  } else {
    ReturnToPainter(text, hold);
  }
  RedrawBoard();
}

// An empty text has gone, and all that is left was selected: a group of it stays and keeps its
// frame, while one object alone is deselected like the text.
void ShowWhatIsLeft() {
  if (SelectedUpper > -1) {
    CarryOn(ShowGroupBox);
  } else {
    DisableSelectionCommands();
    ForgetCount();
  }
}

// --- group ---------------------------------------------------------------------------------------

void Put(int index) {
  SelectedMember(SelectedUpper + 1) = static_cast<std::int16_t>(index);
  ++SelectedUpper;
}

// The object that is selected by itself is not looked for in the list, which is empty then: pressed
// once more with a modifier it is in it twice.
void Append(int index) {
  const bool joins = SelectedUpper == -1 && SelectedObject >= 0;
  const int last = SelectedUpper + (joins ? 2 : 1);
  if (last >= static_cast<int>(SelectedList.size())) RaiseFault(kOutOfBounds);
  if (joins) Put(SelectedObject);
  Put(index);
}

// --- select all ---------------------------------------------------------------------------------

bool RemoveFirstEmptyText() {
  for (int i = 0; i <= ObjectUB; ++i) {
    if (!IsText(i)) continue;
    ObjectAt(i).Text = ObjectAt(i).Text.Trimmed();
    if (!IsEmptyText(i)) continue;
    SelectedObject = static_cast<std::int16_t>(i);
    RemoveObject();
    return true;
  }
  return false;
}

// Each removal ends a selection, which for an empty text comes here again: the scan under way finds
// the others by itself.
void RemoveEmptyTexts() {
  selecting_all = true;
  CarryOn([] {
    while (RemoveFirstEmptyText()) {
    }
  });
  selecting_all = false;
}

void ListAllObjects() {
  if (ObjectUB >= static_cast<int>(SelectedList.size())) RaiseFault(kOutOfBounds);
  for (int i = 0; i <= ObjectUB; ++i) {
    SelectedMember(i) = static_cast<std::int16_t>(i);
  }
  SelectedUpper = ObjectUB;
}

void SelectTheOnlyObject() {
  SelectedUpper = -1;
  SelectedObject = 0;
  ShowHandles(HoldAt(0));
}

void SelectGroup() {
  SelectedObject = -1;
  ShowPanel(frmMain.picSellAll);
  CarryOn(ShowGroupBox);
}

}  // namespace

// --- one object ---------------------------------------------------------------------------------

void DeselectObject() {
  if (ModifierHeld) return;
  DisableSelectionCommands();
  EndGroup();
  if (SelectedObject == -1) return ShowSizeFields();
  LeaveFields();
  frmMain.sB1.SetPanelText(kExtentPanel, "");
  if (IsText(SelectedObject)) CarryOn([] { EndText(SelectedObject); });
  HideHandles();
  SelectedObject = -1;
  ShowWhatIsLeft();
  ShowSizeFields();
}

void EndSelection() {
  if (SelectedObject > -1) DeselectObject();
  if (SelectedUpper > -1) DeselectObject();
}

// The fields are left while the record still stands in its place: what was typed there must not
// reach the one that takes it.
void RemoveObject() {
  LeaveFields();
  const int upper = ObjectUB;
  MoveRecordsDown(SelectedObject);
  const bool ends_empty = IsEmptyText(upper);
  DeselectObject();
  const bool gone = ends_empty && ObjectUB < upper;  // an empty text at the end goes by itself
  if (ObjectUB < 0 || gone) return;
  HoldAt(ObjectUB).SetVisible(false);
  --ObjectUB;
}

void FitHoldToText(int index) {
  ObjectRecord& object = ObjectAt(index);
  const bool is_text = object.ObjType == kText;
  if (!IsMeasured(object.ObjType) || IsShownAsBarcode(object)) return;
  object.Text = object.Text.Trimmed();
  object.FontName = object.FontName.Trimmed();
  Label& hold = HoldAt(index);
  CarryOn([&] { hold.SetAutoSize(true); });
  CarryOn([&] { hold.SetFontName(object.FontName.Trimmed()); });
  CarryOn([&] { hold.SetFontSize(object.FontSize * ZoomFactor); });
  if (is_text) {
    CarryOn([&] { hold.SetFontBold(object.Bold != kFalse); });
    CarryOn([&] { hold.SetFontItalic(object.Italic != kFalse); });
    CarryOn([&] { hold.SetForeColor(object.ForeColor); });
  }
  CarryOn([&] { hold.SetCaption(object.Text.Trimmed()); });
  EndMeasuring(hold);
}

// --- the group ----------------------------------------------------------------------------------

bool InGroup(int index) { return std::find(SelectedList.begin(), Group(), index) != Group(); }

void ToggleInSelection(int index) {
  const auto found = std::find(SelectedList.begin(), Group(), index);
  if (found != Group()) {
    std::copy(found + 1, Group(), found);
    --SelectedUpper;
  } else {
    Append(index);
  }
  CountSelected();
}

void mnuEditSelectAll_Click() {
  if (selecting_all) return;
  frmMain.sB1.SetPanelText(kSelectionPanel, "");
  if (ObjectUB < 0) return;
  LeaveEntryFields();
  RemoveEmptyTexts();
  if (ObjectUB < 0) return DropSelection();
  ListAllObjects();
  CountSelected();
  SelectedUpper < 1 ? SelectTheOnlyObject() : SelectGroup();
  ShowSizeFields();
  EnableSelectionCommands(true);
}

void ResetSelectionKeys() {
  ControlHeld = false;
  ModifierHeld = false;
  CopyPropsPending = false;
}

}  // namespace tagwright
