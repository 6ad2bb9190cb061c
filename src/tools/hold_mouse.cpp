#include "tools/hold_mouse.h"

#include <string>

#include "common/diagnostics.h"
#include "document/board_space.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/geometry.h"
#include "editing/move.h"
#include "editing/object_panels.h"
#include "editing/panel_stack.h"
#include "editing/pointer.h"
#include "editing/property_pick.h"
#include "editing/rubber.h"
#include "editing/selection.h"
#include "editing/track_status.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/menu.h"
#include "platform/controls/mouse.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/windows.h"
#include "platform/text/locale.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

constexpr double kGroupFontLeft = 7000;  // twips, of the font boxes over the group's panel

bool OffersItsProperties(int index) {
  bool is_text = false;
  Traced([&] { is_text = ObjectAt(index).ObjType == kText; });
  return is_text;
}

// The object has gone and left its hit area behind.
void HideStaleHold(int index) {
  HoldAt(index).SetVisible(false);
  HideHandles();
}

// --- the group ----------------------------------------------------------------------------------

void ShowOverGroupPanel(ComboBox& box) {
  box.SetLeft(kGroupFontLeft);
  box.SetVisible(true);
  box.ZOrder();
}

void ShowGroup() {
  ShowPanel(frmMain.picSellAll);
  ShowOverGroupPanel(frmMain.cboFont);
  ShowOverGroupPanel(frmMain.cboSize);
  EnableSelectionCommands(true);
  Traced(ShowGroupBox);
}

void HideGroup() {
  DisableSelectionCommands();
  HideHandles();
}

void EditGroup(int index) {
  if (SelectedObject >= 0) Traced([] { HoldAt(SelectedObject).SetAutoSize(false); });
  Traced([&] { ToggleInSelection(index); });
  SelectedObject = -1;
  SelectedUpper < 0 ? HideGroup() : ShowGroup();
  ShowSizeFields();
}

// --- the menus of objects -----------------------------------------------------------------------

void CheckFormat(std::int32_t format) {
  for (const auto& [i, entry] : frmMain.mnuField) entry->SetChecked(false);
  for (const auto& [i, entry] : frmMain.mnuFBC) entry->SetChecked(false);
  const bool barcode = format >= kFirstBarcodeFormat;
  Traced([&] {
    Menu& entry = barcode ? frmMain.mnuFBC(format - kFirstBarcodeFormat) : frmMain.mnuField(format);
    entry.SetChecked(true);
  });
  frmMain.mnuBCSettings.SetEnabled(barcode);
}

std::string ShownSize(double millimetres, double default_size) {
  return InUsersUnit(millimetres == 0 ? default_size : millimetres);
}

void SetFieldMenu(const ObjectRecord& field) {
  CheckFormat(field.FillColor);
  frmMain.mnuBCSetWid.SetCaption("Barcode width " + ShownSize(field.Width, kDefaultBarcodeWidth));
  frmMain.mnuBCSetHgt.SetCaption("Barcode height " +
                                 ShownSize(field.Height, kDefaultBarcodeHeight));
  frmMain.mnuBCSetChars.SetChecked(field.Italic != kFalse);
}

void OpenMenuOf(int index) {
  switch (ObjectAt(index).ObjType) {
    case kPicture:
      return PopupMenu(frmMain, frmMain.mnuGraphic);
    case kRectangle:
    case kRoundedRectangle:
    case kEllipse:
      PopupMenu(frmMain, frmMain.mnuDrawing);
      return frmMain.cboFont.SetVisible(false);
    case kDataField:
      SetFieldMenu(ObjectAt(index));
      return PopupMenu(frmMain, frmMain.mnuFields);
    default:
      return;
  }
}

// --- one object ---------------------------------------------------------------------------------

bool HasFont(const ObjectRecord& object) {
  return object.ObjType == kBarcode || IsMeasured(object.ObjType);
}

// As text, so that a size without a row of its own is not lost to the nearest one.
void ShowFont(const ObjectRecord& object) {
  if (!HasFont(object)) return;
  SuspendRedraw = kTrue;
  frmMain.cboFont.SetText(object.FontName.Trimmed());
  frmMain.cboSize.SetText(FormatNumber(object.FontSize));
  SuspendRedraw = kFalse;
}

void ShowHoldSize(const Label& hold) {
  frmMain.sB1.SetPanelText(kExtentPanel,
                           "Width: " + FormatFixed(hold.Width() / UnitScale, 1) +
                               " Height: " + FormatFixed(hold.Height() / UnitScale, 1));
}

void ShowObject(int index) {
  Traced([&] { ShowFont(ObjectAt(index)); });
  ShowHoldSize(HoldAt(index));
}

void TakeHold(int index, double x, double y) {
  RedrawSkip = -1;
  Traced([&] { FitHoldToText(index); });
  BeginObjectDrag(index, x, y);
}

double BoardX(int index, double x) { return HoldAt(index).Left() + BoardUnitsX(x); }

double BoardY(int index, double y) { return HoldAt(index).Top() + BoardUnitsY(y); }

void SelectAlone(int index) {
  EndGroup();
  EnableSelectionCommands(false);
  SelectedObject = static_cast<std::int16_t>(index);
}

void ShowFrameOf(int index) {
  frmMain.shpBox.SetShape(FrameShapeOf(ObjectAt(index).ObjType));
  ShowHandles(HoldAt(index));
}

// A column lands beside what is on the label, and a zoom leaves it selected.
bool ToolMakesAnObjectHere() { return CurrentTool != kDataField && CurrentTool < kZoomIn; }

// What lies under a new object is not selected while that is drawn: it would take the weight that a
// line is given, and a line there would keep the box as thin as itself.
void BeginToolOver(int index, double x, double y) {
  if (ToolMakesAnObjectHere()) SelectedObject = -1;
  BeginTool(BoardX(index, x), BoardY(index, y));
  if (SelectedObject < 0) DisableSelectionCommands();
}

// The former selection may have been an empty text, with which this object has gone, or which has
// left everything selected.
void SelectOne(int index, int button, double x, double y) {
  DeselectObject();
  if (index > ObjectUB) return HoldAt(index).SetVisible(false);
  SelectAlone(index);
  const bool left = button == kLeftButton;
  if (!left) Traced([&] { ShowFrameOf(index); });
  if (button == kRightButton) Traced([&] { OpenMenuOf(index); });
  if (CurrentTool > kNoTool) {
    if (left) Traced([&] { BeginToolOver(index, x, y); });
  } else {
    if (left) Traced([&] { TakeHold(index, x, y); });
    FillPanelFromObject();
  }
  if (!GestureUnderWay()) ShowSizeFields();
  Traced([&] { ShowObject(index); });
}

}  // namespace

void lblHold_MouseDown(int Index, int Button, int /*Shift*/, double X, double Y) {
  if (CopyPropsPending && OffersItsProperties(Index)) return PickProperties(Index);
  EndPropertyPick();
  if (Index > ObjectUB) return HideStaleHold(Index);
  TextEntryActive = false;
  frmMain.sB1.SetPanelText(kSelectionPanel, "");
  if (ModifierHeld) return EditGroup(Index);
  if (!InGroup(Index)) EndGroup();
  if (SelectedUpper < 0) return SelectOne(Index, Button, X, Y);
  if (Button == kLeftButton) Traced([&] { BeginGroupDrag(Index, X, Y); });
}

void SelectWithoutMouse(int index) {
  SelectAlone(index);
  CarryOn([&] { FitHoldToText(index); });
  CarryOn([&] { ShowFrameOf(index); });
  FillPanelFromObject(false);
  ShowObject(index);
  ShowSizeFields();
}

void lblHold_MouseMove(int Index, int /*Button*/, int /*Shift*/, double X, double Y) {
  Traced(RestorePointer);
  Traced([&] { TrackStatus(HoldAt(Index), X, Y); });
  if (Dragging) Traced([&] { DragHold(Index, X, Y); });
  if (RubberBox) {
    Traced([&] { TrackRubberBox(BoardX(Index, X), BoardY(Index, Y), kAnchorTopLeft); });
  }
  if (RubberLine) Traced([&] { TrackRubberLine(BoardX(Index, X), BoardY(Index, Y)); });
}

void lblHold_MouseUp(int Index, int /*Button*/, int /*Shift*/, double /*X*/, double /*Y*/) {
  if (Dragging) Traced([&] { EndDrag(Index); });
  DragMoved = false;
  if (RubberBox || RubberLine) Traced(PlaceObject);
}

}  // namespace tagwright
