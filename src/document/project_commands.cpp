#include "document/project_commands.h"

#include <string>

#include "common/prog_settings.h"
#include "document/overlays.h"
#include "document/project_load.h"
#include "document/project_record.h"
#include "document/project_save.h"
#include "document/recent_files.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/services/dialogs.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

// Returns false when the user cancels, and where a label that was to be saved has not been: no file
// was named, or it could not be written.
bool MayLeaveLabel() {
  TakeEntryUnderWay();  // which may be the only change
  if (!DirtyFlag) return true;
  const Answer answer = MessageBox("Do you want to save the changes you have made to this label?",
                                   MessageButtons::kYesNoCancel, MessageIcon::kQuestion);
  if (answer != Answer::kYes) return answer != Answer::kCancel;
  SaveProject(kFalse);
  return !DirtyFlag;
}

void EmptyDocument() {
  ObjectUB = -1;
  RedrawSkip = -1;
  UndoUpper = -1;
  frmMain.mnuUndo.SetEnabled(false);
}

void EmptyPanels() {
  frmMain.lblGraphicFName.SetCaption("");
  frmMain.lblGraphicX.SetCaption("");
  frmMain.lblGraphicY.SetCaption("");
  frmMain.txtBCodeData.SetText("");
  frmMain.txtTool.SetText("");
}

// Returns false when the user cancels.
bool AskForProject() {
  CommonDialog& dialog = frmMain.cd1;
  dialog.FileName.clear();
  dialog.Filter = kProjectFilter;
  dialog.CancelError = true;
  return CarryOn([&] { dialog.ShowOpen(); }) && !dialog.FileName.empty();
}

}  // namespace

// The serial settings are kept.
void mnuFileNew_Click() {
  if (!MayLeaveLabel()) return;
  KeyboardToBoard();
  HideHitAreas();
  frmMain.shpBox.SetVisible(false);
  EmptyDocument();
  RedrawBoard();
  HideHandles();
  EmptyPanels();
  ShowSaveNote("");
  DirtyFlag = kFalse;
  ProjectPath.clear();
  ForgetSource();
  frmMain.cmdTools(kSelectButton).Press();
  DropSelection();  // the tool has not ended it where a modifier is held, as in this very shortcut
  frmMain.mnuFileSaveAs.SetEnabled(false);
  frmMain.SetCaption(ProductTitle + " [untitled]");
}

void mnuFileOpen_Click() {
  if (!MayLeaveLabel() || !AskForProject()) return;
  LoadProject(frmMain.cd1.FileName);
}

void mnuFileSave_Click() { SaveProject(kFalse); }

void mnuFileSaveAs_Click() { SaveProject(kTrue); }

// Asks nothing about unsaved changes. The entry's caption has lost the capitals of its file, and
// may read like another one's name.
void mnuFileOld_Click(int Index) {
  const std::string path = Trim(RecentFiles.at(static_cast<std::size_t>(Index)));
  if (FileExists(path)) LoadProject(path);
}

}  // namespace tagwright
