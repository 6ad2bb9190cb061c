#include "tools/panels.h"

#include "document/objects.h"
#include "forms/frmMain.h"

namespace tagwright {

void mnuFileImport_Click() {
  CurrentTool = 0;
  CursorShape = 0;
  frmMain.SetMousePointer(0);
  ShowPanel(frmMain.picFields);
  ShowFontBoxes(9840, 600);
}

}  // namespace tagwright
