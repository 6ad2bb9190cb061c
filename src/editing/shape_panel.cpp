#include "editing/shape_panel.h"

#include "common/public_functions.h"
#include "document/redraw.h"
#include "editing/selected_object.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

Label& FillSample() { return frmMain.lblBCol(kCurrentSample); }
Label& OutlineSample() { return frmMain.lblFCol(kCurrentSample); }

void RedrawAsChanged() {
  RedrawBoard();
  DirtyFlag = kTrue;
}

// Whatever is selected is painted again, but only a shape takes the colour.
void FillSelected() {
  if (SelectedObject < 0) return;
  if (ShapeIsSelected()) SelectedRecord().FillColor = FillSample().BackColor();
  RedrawAsChanged();
}

void OutlineSelected() {
  if (SelectedObject < 0) return;
  if (ShapeIsSelected()) SelectedRecord().ForeColor = OutlineSample().BackColor();
  RedrawAsChanged();
}

// Returns false when the user cancels; the colour is in cd1 otherwise. A dialog that fails in any
// other way is passed over and leaves the sample's own colour there.
bool AskForColor(const Label& sample) {
  frmMain.cd1.Color = sample.BackColor();
  frmMain.cd1.CancelError = true;
  try {
    frmMain.cd1.ShowColor();
  } catch (const Fault& fault) {
    return fault.number != kDialogCancelled;
  }
  return true;
}

void ColorSelectedText() {
  SelectedRecord().ForeColor = frmMain.cd1.Color;
  SelectedHold().SetForeColor(frmMain.cd1.Color);
  DirtyFlag = kTrue;
}

}  // namespace

// The box stays ticked for a transparent shape that is filled here: the colour shows at once, and
// the palette is the way to an opaque shape whose box agrees.
void cmdColor_Click() {
  if (!AskForColor(FillSample())) return;
  FillSample().SetBackColor(frmMain.cd1.Color);
  FillSelected();
}

void cmdFColor_Click() {
  if (!AskForColor(OutlineSample())) return;
  OutlineSample().SetBackColor(frmMain.cd1.Color);
  OutlineSelected();
}

// The hit area shows the text, so nothing is painted.
void cmdTextColor_Click() {
  if (!AskForColor(frmMain.lblTextColor)) return;
  if (TextIsSelected()) CarryOn(ColorSelectedText);
  frmMain.lblTextColor.SetBackColor(frmMain.cd1.Color);
}

void lblBCol_Click(int Index) {
  FillSample().SetBackColor(frmMain.lblBCol(Index).BackColor());
  frmMain.chkTransparent.SetValue(0);
  FillSelected();
}

void lblFCol_Click(int Index) {
  OutlineSample().SetBackColor(frmMain.lblFCol(Index).BackColor());
  OutlineSelected();
}

// The only owner of "no fill": the sample keeps the colour meanwhile.
void chkTransparent_Click() {
  if (PanelLoading || !ShapeIsSelected()) return;
  const bool transparent = frmMain.chkTransparent.Value() != 0;
  SelectedRecord().FillColor = transparent ? kNoFill : FillSample().BackColor();
  RedrawAsChanged();
}

void cboWeight_Click() {
  if (PanelLoading || frmMain.cboWeight.ListIndex() == -1 || !ShapeIsSelected()) return;
  SelectedRecord().Param = ToInt16(frmMain.cboWeight.ListIndex());
  RedrawAsChanged();
}

}  // namespace tagwright
