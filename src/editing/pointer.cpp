#include "editing/pointer.h"

#include "document/objects.h"
#include "forms/frmMain.h"

namespace tagwright {
namespace {

constexpr std::int16_t kCustomPointer = 99;

}  // namespace

void SetBoardPointer(std::int16_t shape) {
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
