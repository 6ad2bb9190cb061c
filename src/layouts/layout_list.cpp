#include "layouts/layout_list.h"

#include "document/objects.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "layouts/label_layouts.h"
#include "platform/controls/text_controls.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

const LabelLayout& ChosenLayout() {
  const int index = frmMain.cboLabelLayout.ListIndex();
  if (index < 0 || index > LabelLayoutTop) RaiseFault(kOutOfBounds);
  return LabelLayouts[static_cast<std::size_t>(index)];
}

void ShowCount(int box, std::int16_t count) {
  frmMain.txtLabLayout(box).SetText(FormatFixed(count, 0));
}

// A 32-bit length is widened before it is divided and rounded: 3.175 shows as 3.17.
void ShowLength(int box, float millimetres) {
  const double length = static_cast<double>(millimetres) / UnitScale;
  frmMain.txtLabLayout(box).SetText(FormatFixed(length, 2));
}

void ListTitles() {
  frmMain.cboLabelLayout.Clear();
  for (int i = 0; i <= LabelLayoutTop; ++i) {
    frmMain.cboLabelLayout.AddItem(LabelLayouts[static_cast<std::size_t>(i)].Title.Trimmed());
  }
}

// What a list says while it is filled is no change of the user's.
class UnchangedLabel {
 public:
  UnchangedLabel() = default;
  ~UnchangedLabel() { DirtyFlag = dirty_; }
  UnchangedLabel(const UnchangedLabel&) = delete;
  UnchangedLabel& operator=(const UnchangedLabel&) = delete;

 private:
  Flag dirty_ = DirtyFlag;
};

}  // namespace

void FillLayoutList() {
  const UnchangedLabel unchanged;
  ListTitles();
  ComboBox& list = frmMain.cboLabelLayout;
  for (int i = 0; i <= LabelLayoutTop; ++i) {
    if (LabelLayouts[static_cast<std::size_t>(i)].IsDefault != kFalse) list.SetListIndex(i);
  }
  if (list.ListIndex() == -1) list.SetListIndex(0);
}

void RefillLayoutList() {
  const UnchangedLabel unchanged;
  const int chosen = frmMain.cboLabelLayout.ListIndex();
  ListTitles();
  if (chosen >= 0) frmMain.cboLabelLayout.SetListIndex(chosen);
}

void ShowLayout() {
  const LabelLayout layout = ChosenLayout();
  ShowCount(kAcrossBox, layout.NoAcross);
  ShowCount(kDownBox, layout.NoDown);
  ShowLength(kLabelWidthBox, layout.LabelWidth);
  ShowLength(kLabelHeightBox, layout.LabelHeight);
  ShowLength(kLeftMarginBox, layout.LeftMargin);
  ShowLength(kTopMarginBox, layout.TopMargin);
  ShowLength(kHorizGutterBox, layout.HorizGutter);
  ShowLength(kVertGutterBox, layout.VertGutter);
  LabelWidth = layout.LabelWidth;
  LabelHeight = layout.LabelHeight;
  RedrawBoard();
}

// The project stores which layout it has.
void cboLabelLayout_Click() {
  DirtyFlag = kTrue;
  CarryOn(ShowLayout);
}

}  // namespace tagwright
