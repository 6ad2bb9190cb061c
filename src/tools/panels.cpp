#include "tools/panels.h"

#include <string>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/selection_state.h"
#include "editing/pointer.h"
#include "editing/text_panel.h"
#include "forms/frmMain.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"
#include "tools/font_box.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

// The last data field on the label, null for none.
const ObjectRecord* LastField() {
  for (int i = ObjectUB; i >= 0; --i) {
    if (ObjectAt(i).ObjType == kDataField) return &ObjectAt(i);
  }
  return nullptr;
}

void SelectStyle(const std::string& font, double size) {
  CarryOn([&] { SelectFontRow(font); });
  CarryOn([&] { SelectSizeRow(FormatNumber(size)); });
}

// The next data field takes the style of the last one, or on a label without any the default.
void SelectStyleOfLastField() {
  if (const ObjectRecord* field = LastField()) {
    SelectStyle(field->FontName.Trimmed(), field->FontSize);
  } else {
    SelectStyle(ProgSettings.DefaultFontName.Trimmed(), ProgSettings.DefaultFontSize);
  }
}

}  // namespace

// A menu leaves the keyboard in a text that is open, which would take the size shown here at its
// end.
void mnuFileImport_Click() {
  if (TextEditOpen) KeyboardToBoard();
  CurrentTool = kNoTool;
  SetBoardPointer(kDefaultPointer);
  ShowPanel(frmMain.picFields);
  SelectStyleOfLastField();
  ShowFontBoxes(9840, 600);
}

}  // namespace tagwright
