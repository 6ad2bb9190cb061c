#include "shell/shutdown.h"

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/project_save.h"
#include "document/selection_state.h"
#include "forms/frmMain.h"
#include "platform/controls/windows.h"
#include "platform/services/dialogs.h"
#include "shell/settings_file.h"
#include "shell/startup.h"

namespace tagwright {
namespace {

void OfferToSave(bool& cancel) {
  TakeEntryUnderWay();  // which may be the only change
  if (!DirtyFlag) return;
  const Answer answer = MessageBox("Do you want to save the changes you have made to this label?",
                                   MessageButtons::kYesNoCancel, MessageIcon::kQuestion);
  if (answer == Answer::kYes) {
    CarryOn([] { SaveProject(kFalse); });
    if (DirtyFlag) cancel = true;  // no file was named, or it could not be written
  }
  if (answer == Answer::kCancel) cancel = true;
}

// The main window was loaded first and stays.
void UnloadOtherForms() {
  for (std::size_t i = Forms().size(); i-- > 1;) {
    if (i < Forms().size()) Unload(*Forms()[i]);
  }
}

void KeepWindowPlace() {
  ProgSettings.WindowTop = frmMain.Top();
  ProgSettings.WindowLeft = frmMain.Left();
  ProgSettings.WindowWidth = frmMain.Width();
  ProgSettings.WindowHeight = frmMain.Height();
}

}  // namespace

void mnuFileExit_Click() { Unload(frmMain); }

// The last three run after a cancelled exit too: the file then holds the window's present place.
void Form_Unload(bool& Cancel) {
  CarryOn([&] { OfferToSave(Cancel); });
  CarryOn(UnloadOtherForms);
  CarryOn(KeepWindowPlace);
  CarryOn([] { WriteSettings(SettingsPath(), ProgSettings); });
}

}  // namespace tagwright
