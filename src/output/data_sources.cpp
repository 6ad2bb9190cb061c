#include "output/data_sources.h"

#include <string>

#include "common/diagnostics.h"
#include "document/objects.h"
#include "editing/pointer.h"
#include "forms/frmMain.h"
#include "output/database_source.h"
#include "output/text_source.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/services/dialog_folders.h"
#include "platform/services/dialogs.h"

namespace tagwright {
namespace {

// What the file dialog offers, by kind.
constexpr const char* kFilters[] = {
    "Microsoft Access 97 Database *.mdb|*.mdb",
    "Comma Separated Text *.csv;*.txt|*.csv;*.txt",
    "Tab delimited Text *.txt|*.txt",
};

int ChosenKind() { return frmMain.cboImportType.ListIndex(); }

// Returns false when the user cancels or names no file.
bool AskForDataFile() {
  CommonDialog& dialog = frmMain.cd1;
  if (ChosenKind() >= kDatabaseSource && ChosenKind() <= kTabSource) {
    dialog.Filter = kFilters[ChosenKind()];
    RememberFile(dialog.Filter, frmMain.lblFileName.Caption());
  }
  dialog.FileName.clear();
  dialog.CancelError = true;
  try {
    dialog.ShowOpen();
  } catch (const Fault& fault) {
    if (fault.number != kDialogCancelled) MarkerTail(fault);
  }
  return !dialog.FileName.empty();
}

void OpenSource() {
  switch (ChosenKind()) {
    case kDatabaseSource:
      return OpenDatabaseSource();
    case kCommaSource:
      return OpenTextSource(true);
    case kTabSource:
      return OpenTextSource(false);
    default:
      return;
  }
}

void RefusePassword() {
  MessageBox("Not a Valid Password", MessageButtons::kOk, MessageIcon::kNone);
  DatabasePassword.clear();
}

void OpenChosenSource() {
  try {
    OpenSource();
  } catch (const Fault& fault) {
    if (fault.number != kPasswordNeeded) return MarkerTail(fault);
    RefusePassword();
  }
}

// The load of a project has named the file and opened it where it is a database.
void ReadTextOfProject() {
  const std::string path = frmMain.lblFileName.Caption();
  if (ChosenKind() == kDatabaseSource || !FileExists(path)) return;
  FieldUB = -1;
  TakeTextSource(path, ChosenKind() == kCommaSource);
}

std::string WhyNoRows(const std::string& file) {
  if (ChosenKind() != kDatabaseSource) return "the data file " + file + " cannot be read";
  const std::string table = frmMain.cboRSet.Text();
  if (table.empty()) return "no table of the data file " + file + " is chosen";
  return "the table " + table + " of the data file " + file + " cannot be read";
}

}  // namespace

void cmdBrowse_Click() {
  if (!AskForDataFile()) return;
  DirtyFlag = kTrue;
  const std::string path = frmMain.cd1.FileName;
  CloseSource();
  OpenChosenSource();
  frmMain.lblFName(kTableCaption).SetVisible(frmMain.cboRSet.Visible());
  frmMain.lblFileName.SetCaption(path);
}

void FillFieldList() {
  frmMain.lstFields.Clear();
  for (int i = 0; i <= FieldUB; ++i) {
    Traced([&] { frmMain.lstFields.AddItem(FieldValueAt(i)); });
  }
}

void ShowRecordCount() { frmMain.lblRCount.SetCaption("Records: " + std::to_string(RecordCount)); }

void cboImportType_Click() {
  if (ChosenKind() == -1) return;
  DirtyFlag = kTrue;
  if (LoadingProject) return ReadTextOfProject();
  frmMain.cmdBrowse.Press();
}

void chkFirstRow_Click() { DirtyFlag = kTrue; }
void chkQuote_Click() { DirtyFlag = kTrue; }

void lstFields_DblClick() {
  CurrentTool = kDataField;
  SetToolPointer(frmMain.Image2);
}

void OpenMergeSource() {
  switch (ChosenKind()) {
    case kDatabaseSource:
      return OpenDatabaseRows();
    case kCommaSource:
      return OpenTextRows(true);
    case kTabSource:
      return OpenTextRows(false);
    default:
      return;
  }
}

std::string WhyNoSource() {
  if (ChosenKind() == kDatabaseSource ? SourceRecordset != nullptr : SourceFile != nullptr) {
    return {};
  }
  const std::string file = frmMain.lblFileName.Caption();
  if (file.empty()) return "no data file is chosen";
  if (!FileExists(file)) return "the data file " + file + " does not exist";
  return WhyNoRows(file);
}

void NextMergeRecord(bool& More) {
  More = false;
  switch (ChosenKind()) {
    case kDatabaseSource:
      return NextDatabaseRow(More);
    case kCommaSource:
    case kTabSource:
      return NextTextRow(More);
    default:
      return;
  }
}

void CloseMergeSource() {
  if (ChosenKind() == kCommaSource || ChosenKind() == kTabSource) SourceFile.reset();
}

void ResetDataSources() {
  FieldSeparator.clear();
  SourceTable = {};
  SourceRecordset.reset();
  SourceFile.reset();
}

}  // namespace tagwright
