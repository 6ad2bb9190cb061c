#include "tools/view.h"

#include <string>

#include "common/arithmetic.h"
#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "editing/pointer.h"
#include "editing/selected_object.h"
#include "editing/selection.h"
#include "editing/size_fields.h"
#include "forms/frmMain.h"
#include "layouts/layout_list.h"
#include "platform/controls/label.h"
#include "platform/controls/menu.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/pointers.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/text_controls.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

enum FitMode { kFitLongerSide = 0, kFitHeight = 1, kFitWidth = 2 };

constexpr int kRowOf100Percent = 8;
constexpr double kFits = 0.9;            // from this share of the board on a label fits well enough
constexpr double kAir = 0.95;            // of the board is used
constexpr double kAirUnderRuler = 0.85;  // where the ruler takes its part of the height

int Middle(const ScrollBar& bar) { return ToInt16(bar.Max() / 2.0); }

// --- zoom ---

// A new text has no caption of its own yet: the caret stays.
void ShowCaption(Label& hold, const std::string& text) {
  if (!text.empty()) hold.SetCaption(text);
}

// Fonts are not as wide at every size, and redraws leave the hit area as large as it is.
void FitToZoom(Label& hold, const ObjectRecord& text) {
  const bool grows = hold.AutoSize();
  CarryOn([&] { hold.SetAutoSize(true); });
  CarryOn([&] { hold.SetFontSize(text.FontSize * ZoomFactor); });
  CarryOn([&] { ShowCaption(hold, text.Text.Trimmed()); });
  hold.SetAutoSize(grows);
}

// A selected text is shown by its hit area and not by the painter, so the hit area takes the new
// size, and one that was only painted so far its whole style. Whatever becomes of the hit area, the
// board is painted and the mark of the object to skip does not outlive it.
void RedrawWithSelectedText() {
  if (!IsShownByHold(SelectedObject)) CarryOn([] { FitHoldToText(SelectedObject); });
  CarryOn([] { FitToZoom(SelectedHold(), SelectedRecord()); });
  RedrawBoard();
  RedrawSkip = -1;
  CarryOn([] { ShowHandles(SelectedHold()); });
}

void RedrawWithSelection() {
  RedrawBoard();
  CarryOn([] {
    if (SelectedObject > -1) ShowHandles(HoldAt(SelectedObject));
  });
  CarryOn([] {
    if (SelectedUpper > -1) ShowGroupBox();
  });
}

// A redraw takes the marks of one object along, and not the frame of a group.
void RedrawScrolled() {
  RedrawBoard();
  CarryOn(ShowGroupBox);
}

bool FitsWellEnough(double label, double board) { return label <= board && label >= kFits * board; }

bool LabelFitsWellEnough() {
  return FitsWellEnough(LabelWidth, frmMain.picBoard.ScaleWidth()) ||
         FitsWellEnough(LabelHeight, frmMain.picBoard.ScaleHeight());
}

double FittingZoom(int mode) {
  const double air = frmMain.mnuFileRulers.Checked() ? kAirUnderRuler : kAir;
  const double zoom = mode == kFitHeight ? Quotient(BoardHeight() * air, LabelHeight)
                                         : Quotient(BoardWidth() * kAir, LabelWidth);
  return ToNumber(FormatFixed(zoom * kAir, 2));
}

void ViewSameSize() {
  SuspendRedraw = kTrue;
  CentreLabel();
  ZoomFactor = 1.0;
  ScaleBoardToZoom();
  SuspendRedraw = kFalse;
  frmMain.cboZoom.SetListIndex(kRowOf100Percent);
}

// --- cross hairs and unit ---

void ShowCrossHairs(bool shown) {
  frmMain.HairX.SetVisible(shown);
  frmMain.HairY.SetVisible(shown);
}

void TurnOver(Menu& entry) { entry.SetChecked(!entry.Checked()); }

void ShowUnit(bool metric, double ruler_scale, double unit_scale) {
  RulerScale = ruler_scale;
  UnitScale = unit_scale;
  frmMain.mnuUnitMM.SetChecked(metric);
  frmMain.mnuUnitIn.SetChecked(!metric);
}

void AddPercents(int first, int last, int step) {
  for (int n = first; n <= last; n += step) frmMain.cboZoom.AddItem(std::to_string(n) + "%");
}

}  // namespace

double BoardWidth() {
  return frmMain.picBoard.ScaleX(frmMain.picBoard.Width(), kTwips, kMillimetres);
}

double BoardHeight() {
  return frmMain.picBoard.ScaleY(frmMain.picBoard.Height(), kTwips, kMillimetres);
}

void CentreLabel() {
  frmMain.hS1.SetValue(Middle(frmMain.hS1));
  frmMain.vS1.SetValue(Middle(frmMain.vS1));
}

bool SelectZoomRow(double zoom) {
  ComboBox& list = frmMain.cboZoom;
  for (int i = 0; i < list.ListCount() - 1; ++i) {
    if (ParsePercent(list.List(i)) > zoom || zoom >= ParsePercent(list.List(i + 1))) continue;
    list.SetListIndex(i);
    return true;
  }
  return false;
}

void FillZoomList() {
  AddPercents(20, 150, 10);
  AddPercents(175, 250, 25);
  AddPercents(300, 750, 50);
  frmMain.chkXHair.SetValue(1);
}

double ParsePercent(std::string_view text) {
  if (!text.ends_with('%')) return 0;
  return ToNumber(text.substr(0, text.size() - 1)) / 100;
}

double ZoomOfCombo() {
  const std::string& text = frmMain.cboZoom.Text();
  if (text.empty()) RaiseFault(kInvalidCall);
  return ToNumber(Left(text, Length(text) - 1)) / 100;
}

void ScaleBoardToZoom() {
  PictureBox& board = frmMain.picBoard;
  CarryOn([&] { board.SetScaleWidth(Quotient(BoardWidth(), ZoomFactor)); });
  CarryOn([&] { board.SetScaleHeight(Quotient(BoardHeight(), ZoomFactor)); });
}

void cboZoom_Click() {
  CarryOn([] { ZoomFactor = ZoomOfCombo(); });
  ScaleBoardToZoom();
  DrawOnBoard();
  TextIsSelected() ? RedrawWithSelectedText() : RedrawWithSelection();
  SetBoardPointer(kDefaultPointer);
}

void cmdMagnify_Click(int Index) {
  if (Index <= kFitWidth) FitZoom(Index);
  if (Index == 3) ViewSameSize();
  frmMain.picMag.SetVisible(false);
}

void FitZoom(int mode) {
  if (mode == kFitLongerSide) mode = LabelWidth > LabelHeight ? kFitWidth : kFitHeight;
  if (mode != kFitHeight && LabelFitsWellEnough()) return;
  const double old_zoom = ZoomFactor;
  double zoom = 0;
  SuspendRedraw = kTrue;
  CarryOn([&] { zoom = FittingZoom(mode); });
  const bool found = SelectZoomRow(zoom);
  if (found) CentreLabel();
  SuspendRedraw = kFalse;
  RedrawBoard();
  if (!found) ZoomFactor = old_zoom;
  DeselectObject();
}

void cmdXC_Click() {
  SuspendRedraw = kTrue;
  CentreLabel();
  SuspendRedraw = kFalse;
  RedrawScrolled();
  KeyboardToBoard();
}

void hS1_Change() { RedrawScrolled(); }
void vS1_Change() { RedrawScrolled(); }
void hS1_GotFocus() { KeyboardToBoard(); }
void vS1_GotFocus() { KeyboardToBoard(); }

void chkXHair_Click() {
  CrossHairsShown = ToInt16(frmMain.chkXHair.Value());
  ShowCrossHairs(CrossHairsShown != 0);
}

void mnuOptXHair_Click() {
  TurnOver(frmMain.mnuOptXHair);
  ShowCrossHairs(frmMain.mnuOptXHair.Checked());
  ProgSettings.ShowCrossHairs = frmMain.mnuOptXHair.Checked() ? kTrue : kFalse;
}

void mnuFileRulers_Click() {
  TurnOver(frmMain.mnuFileRulers);
  RedrawBoard();
  ProgSettings.ShowRulers = frmMain.mnuFileRulers.Checked() ? kTrue : kFalse;
}

void UseMillimetres() { ShowUnit(true, 1.0, 1.0); }
void UseInches() { ShowUnit(false, 2.54, kMillimetresPerInch); }

// A unit is how numbers are shown: the label keeps its layout.
void mnuUnitMM_Click() {
  TakeSizeEntry();
  ProgSettings.MetricUnits = kTrue;
  UseMillimetres();
  RedrawBoard();
  ShowSizeFields();
  CarryOn(RefillLayoutList);
}

void mnuUnitIn_Click() {
  TakeSizeEntry();
  ProgSettings.MetricUnits = kFalse;
  UseInches();
  RedrawBoard();
  ShowSizeFields();
  CarryOn(RefillLayoutList);
}

void ResetView() { CrossHairsShown = kTrue; }

}  // namespace tagwright
