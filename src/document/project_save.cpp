#include "document/project_save.h"

#include <string>

#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "document/project_record.h"
#include "document/recent_files.h"
#include "document/selection_state.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

// Returns false when the user cancels or names nothing.
bool AskForName() {
  CommonDialog& dialog = frmMain.cd1;
  dialog.FileName.clear();
  dialog.Filter = kProjectFilter;
  dialog.DefaultExt = ".twp";
  dialog.CancelError = true;
  CarryOn([&] { dialog.ShowSave(); });
  if (dialog.FileName.empty()) return false;
  ProjectPath = dialog.FileName;
  RememberProjectFolder(ProjectPath);
  frmMain.SetCaption(ProductTitle + " [" + ProjectPath + "]");
  return true;
}

// What does not fit its field leaves there what the slot held.
void FillSerialTrailer(ObjectRecord& trailer) {
  trailer.ObjType = kSerialTrailer;
  trailer.Text = SerialPrefix;
  CarryOn([&] { trailer.Param = ToInt16(SerialValue); });
  trailer.FontSize = SerialIncrement;
  CarryOn([&] { trailer.FillColor = ToInt32(SerialBarcodeHeight); });
  CarryOn([&] { trailer.ForeColor = ToInt32(SerialBarcodeWidth); });
  trailer.Bold = SerialPrintText;
  trailer.Top = SerialBarcodeType;
  trailer.FontName =
      std::to_string(frmMain.chkFirstRow.Value()) + std::to_string(frmMain.chkQuote.Value());
}

// A project whose database is away keeps its table until another source is named.
std::int32_t ChosenTable() {
  return frmMain.cboRSet.ListCount() == 0 ? UnlistedTable : frmMain.cboRSet.ListIndex();
}

void FillSourceTrailer(ObjectRecord& trailer) {
  trailer.ObjType = kSourceTrailer;
  trailer.Text = frmMain.lblFileName.Caption();
  CarryOn([&] { trailer.Param = ToInt16(frmMain.cboImportType.ListIndex()); });
  trailer.FillColor = ChosenTable();
  trailer.FontName = DatabasePassword;
  trailer.ForeColor = frmMain.cboLabelLayout.ListIndex();
}

void AppendTrailer(void (*fill)(ObjectRecord&)) {
  GrowObjects();
  fill(ObjectAt(ObjectUB));
}

std::string DocumentBytes() {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(ObjectUB + 1) * kProjectRecordSize);
  for (int i = 0; i <= ObjectUB; ++i) bytes += ProjectRecordBytes(ObjectAt(i));
  return bytes;
}

// Returns why the file could not be written, and nothing when it has been.
std::string WriteDocument() {
  try {
    ReplaceFile(ProjectPath, DocumentBytes());
  } catch (const Fault& fault) {
    return "Not saved: " + fault.description;
  }
  return {};
}

}  // namespace

void ShowSaveNote(const std::string& note) { frmMain.sB1.SetPanelText(kNotesPanel, note); }

void SaveProject(const Flag& ForceDialog) {
  if ((ProjectPath.empty() || ForceDialog) && !AskForName()) return;
  TakeEntryUnderWay();
  const std::int16_t objects = ObjectUB;
  CarryOn([] { AppendTrailer(FillSerialTrailer); });
  CarryOn([] { AppendTrailer(FillSourceTrailer); });
  const std::string trouble = WriteDocument();
  ShowSaveNote(trouble);
  if (trouble.empty()) DirtyFlag = kFalse;
  ObjectUB = objects;  // the trailers stay in their slots
  AddRecentFile(ProjectPath);
}

}  // namespace tagwright
