#include "editing/pointer.h"

#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/controls/image.h"

namespace tagwright {

void SetBoardPointer(PointerCode shape) {
  CursorShape = shape;
  frmMain.SetMousePointer(shape);
}

void SetToolPointer(const Image& picture) {
  frmMain.SetMouseIcon(picture.Icon());
  SetBoardPointer(kCustomPointer);
}

void RestorePointer() {
  if (frmMain.MousePointer() != kCustomPointer) frmMain.SetMousePointer(CursorShape);
}

}  // namespace tagwright
