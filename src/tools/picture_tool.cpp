#include "tools/picture_tool.h"

#include "common/diagnostics.h"
#include "document/selection_state.h"
#include "editing/object_panels.h"
#include "editing/panel_stack.h"
#include "forms/frmMain.h"
#include "platform/controls/pointers.h"
#include "platform/controls/shapes.h"
#include "platform/faults/fault.h"
#include "platform/painting/picture.h"
#include "platform/services/dialogs.h"
#include "platform/text/text.h"
#include "tools/new_object.h"
#include "tools/placement.h"
#include "tools/placement_arithmetic.h"

namespace tagwright {
namespace {

const char kPictureFilter[] = "All Picture Formats |*.jpg;*.jpeg;*.wmf;*.gif";

// The natural size counts as twips, whatever unit the picture carries.
Extent NaturalExtent(const Picture& picture) {
  return {frmMain.picBoard.ScaleX(picture.Width, kTwips, kMillimetres),
          frmMain.picBoard.ScaleY(picture.Height, kTwips, kMillimetres)};
}

void TakeNaturalSize(const Picture& picture) {
  const Extent extent = PictureExtent(NaturalExtent(picture), {LabelWidth, LabelHeight});
  TakeExtent(NewHold(), extent);
  TakeExtent(NewRecord(), extent);
  const Shape& box = frmMain.shpBox;
  if (CentrePicture) {
    frmMain.shpBox.Move(box.Left() - extent.width / 2, box.Top() - extent.height / 2);
  }
}

void RefusePicture() {
  MessageBox("This picture type is not supported");
  --ObjectUB;
  DropSelection();
  CurrentTool = kNoTool;
}

// Null for a picture that cannot be had for another reason than its format, which is traced.
// Returns false for an unreadable one.
bool LoadChosenPicture(PicturePtr& picture) {
  try {
    picture = LoadPicture(PicturePath);
  } catch (const Fault& fault) {
    if (fault.number == kBadPicture) return false;
    MarkerTail(fault);
  }
  return true;
}

}  // namespace

bool FillPicture() {
  PicturePtr picture;
  if (!LoadChosenPicture(picture)) {
    RefusePicture();
    return false;
  }
  if (TinyBox && picture) Traced([&] { TakeNaturalSize(*picture); });
  NewRecord().Text = PicturePath;
  return true;
}

void InsertPicture() {
  ShowPanel(frmMain.picPicture);
  HideFontBoxes();
  CommonDialog& dialog = frmMain.cd1;
  dialog.FileName.clear();
  dialog.Filter = kPictureFilter;
  dialog.CancelError = true;
  if (!CarryOn([&] { dialog.ShowOpen(); }) || dialog.FileName.empty()) return Disarm();
  PicturePath = dialog.FileName;
  frmMain.lblGraphicFName.SetCaption(PicturePath);
  CarryOn([] { ShowPictureSize(PicturePath); });
  CursorShape = kCrossPointer;
}

}  // namespace tagwright
