#include "shell/reset.h"

#include "barcode/mod_bar_code.h"
#include "common/prog_settings.h"
#include "document/objects.h"
#include "editing/drag.h"
#include "editing/magnetic_rule.h"
#include "editing/object_panels.h"
#include "editing/selection.h"
#include "editing/undo.h"
#include "layouts/label_layouts.h"
#include "layouts/serial_number.h"
#include "output/data_sources.h"
#include "platform/controls/event.h"
#include "platform/controls/pointers.h"
#include "platform/controls/windows.h"
#include "platform/painting/printer.h"
#include "platform/services/desktop.h"
#include "platform/services/dialog_folders.h"
#include "shell/help.h"
#include "tools/barcode_panel.h"
#include "tools/font_box.h"
#include "tools/placement.h"
#include "tools/rule_drag.h"
#include "tools/tool_buttons.h"
#include "tools/view.h"
#include "tools/wheel.h"

namespace tagwright {
namespace {

void ResetInstallation() {
  ProgSettings = {};
  AppFolder.clear();
  HelpFile.clear();
  LabelLayouts.clear();
  LabelLayoutTop = -1;
}

void ResetTools() {
  FontComboTyped = kFalse;
  serial_number::ComboTyped = kFalse;
  ResetBarcodePanel();
  ResetBarcodeState();
  ResetMagneticRules();
  ResetSelectionKeys();
  ResetDrag();
  ResetUndo();
  ResetObjectPanels();
  ResetPlacement();
  ResetRuleDrag();
  ResetToolButtons();
  ResetView();
  ResetWheel();
}

}  // namespace

void ResetProgram() {
  UnloadAll();
  ForgetAfterHandlers(nullptr);
  ForgetDialogFolders();
  SetScreenMousePointer(kDefaultPointer);
  ResetPrinter();
  ResetDataSources();
  ResetInstallation();
  ResetDocumentState();
  ResetTools();
}

}  // namespace tagwright
