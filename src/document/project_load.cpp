#include "document/project_load.h"

#include <algorithm>
#include <set>
#include <string>

#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "document/project_record.h"
#include "document/project_save.h"
#include "document/recent_files.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/services/dialogs.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

// --- records ------------------------------------------------------------------------------------

// What the status bar says is of the label before.
void EmptySelectionStatus() {
  frmMain.sB1.SetPanelText(kExtentPanel, "");
  frmMain.sB1.SetPanelText(kSelectionPanel, "");
}

// Only the file's length tells how many records there are; a remainder counts from half a record.
void RecreateObjects(const std::string& path) {
  CarryOn([&] {
    const auto length = static_cast<double>(FileLength(path));
    ObjectUB = ToInt16(length / kProjectRecordSize - 1);
  });
  Objects = std::vector<ObjectRecord>(static_cast<std::size_t>(ObjectUB + 1));
}

// The open call takes the length as a 16-bit record length: a file of 32,768 bytes or more does not
// open. Faults 6 for it.
std::string ReadWhole(const std::string& path) {
  ToInt16(static_cast<double>(FileLength(path)));
  return ReadFile(path);
}

// A file that does not open leaves blank records.
void ReadRecords(const std::string& path) {
  CarryOn([&] {
    const std::string bytes = ReadWhole(path);
    std::string_view rest = bytes;
    for (ObjectRecord& record : Objects) {
      record = ProjectRecordFromBytes(rest.substr(0, kProjectRecordSize));
      rest.remove_prefix(std::min<std::size_t>(rest.size(), kProjectRecordSize));
    }
  });
}

bool LastIs(Kind kind) { return ObjectUB >= 0 && ObjectAt(ObjectUB).ObjType == kind; }

// A redraw under way may have dropped a record already.
void DropLast() {
  if (ObjectUB >= 0) --ObjectUB;
}

// --- data source --------------------------------------------------------------------------------

bool GoOnWithout(const std::string& data_file) {
  return MessageBox("The data file " + data_file +
                        " referenced in this project does not exist\r\n" +
                        "Continue loading anyway?",
                    MessageButtons::kYesNo, MessageIcon::kQuestion) == Answer::kYes;
}

// A database that does not open leaves the list of tables empty, and says so: one that is missing
// has been asked about already.
void ListTables(const std::string& path) {
  try {
    SourceDatabase = OpenDatabase(path, DatabasePassword.empty() ? "" : ";PWD=" + DatabasePassword);
    for (const std::string& table : SourceDatabase->TableNames()) frmMain.cboRSet.AddItem(table);
  } catch (const Fault& fault) {
    if (FileExists(path)) TellNoDatabase(path, fault);
  }
}

void PrepareSource(bool database, const std::string& path) {
  if (!database) {
    ShowSourceFields(false);
  } else if (!path.empty()) {
    ListTables(path);
    ShowSourceFields(true);
  }
}

// A database that is away leaves nothing to choose from: the row waits for the next save.
void ChooseTable(int row) {
  if (row < 0) return;
  if (frmMain.cboRSet.ListCount() == 0) UnlistedTable = row;
  CarryOn([&] { frmMain.cboRSet.SetListIndex(row); });
  CurrentTable = frmMain.cboRSet.Text();
}

// Choosing the kind reads the columns and rows of a text file. Returns false when the user would
// rather not load a project without its data.
bool TakeSourceTrailer() {
  if (!LastIs(kSourceTrailer)) return true;
  const ObjectRecord trailer = ObjectAt(ObjectUB);
  CarryOn([&] { frmMain.cboLabelLayout.SetListIndex(trailer.ForeColor); });
  const std::string path = PathOf(trailer);
  if (!path.empty() && !FileExists(path) && !GoOnWithout(path)) {
    ObjectUB = -1;
    return false;
  }
  frmMain.lblFileName.SetCaption(path);
  DatabasePassword = trailer.FontName.Trimmed();
  PrepareSource(trailer.Param == kDatabaseSource, path);
  CarryOn([&] { frmMain.cboImportType.SetListIndex(trailer.Param); });
  ChooseTable(trailer.FillColor);
  DropLast();
  return true;
}

// --- serial numbers -----------------------------------------------------------------------------

int Digit(const std::string& text) { return static_cast<int>(ToNumber(text)); }

void TakeCheckBoxes(const std::string& digits) {
  const std::size_t length = Length(digits);
  CarryOn([&] { frmMain.chkFirstRow.SetValue(Digit(Left(digits, 1))); });
  CarryOn([&] { frmMain.chkQuote.SetValue(Digit(Mid(digits, length == 0 ? 0 : length - 1, 1))); });
}

void TakeSerialTrailer() {
  if (!LastIs(kSerialTrailer)) return;
  const ObjectRecord trailer = ObjectAt(ObjectUB);
  SerialPrefix = trailer.Text.Trimmed();
  SerialValue = trailer.Param;
  CarryOn([&] { SerialIncrement = ToInt16(trailer.FontSize); });
  SerialBarcodeHeight = trailer.FillColor;
  SerialBarcodeWidth = trailer.ForeColor;
  SerialPrintText = trailer.Bold;
  CarryOn([&] { SerialBarcodeType = ToInt16(trailer.Top); });
  TakeCheckBoxes(trailer.FontName.Trimmed());
  DropLast();
}

// --- hit areas ----------------------------------------------------------------------------------

// A font that measures to no size at all is passed over step by step.
void FitToText(Label& hold, const ObjectRecord& object) {
  CarryOn([&] { hold.SetAutoSize(true); });
  CarryOn([&] { hold.SetFontName(object.FontName.Trimmed()); });
  CarryOn([&] { hold.SetFontSize(object.FontSize); });
  CarryOn([&] { hold.SetFontBold(object.Bold != kFalse); });
  if (object.ObjType == kText) CarryOn([&] { hold.SetFontItalic(object.Italic != kFalse); });
  CarryOn([&] { hold.SetCaption(object.Text.Trimmed()); });
  EndMeasuring(hold);
}

void PlaceHold(int index) {
  const ObjectRecord& object = ObjectAt(index);
  Label& hold = HoldAt(index);
  hold.SetVisible(true);
  hold.Move(object.Left + BoardOriginX, object.Top + BoardOriginY);
  if (IsMeasured(object.ObjType)) {
    FitToText(hold, object);
    return;
  }
  CarryOn([&] { hold.SetWidth(object.Width); });
  CarryOn([&] { hold.SetHeight(object.Height); });
}

void PlaceHolds() {
  for (int i = 0; i <= ObjectUB; ++i) PlaceHold(i);
}

// --- pictures that are gone ---------------------------------------------------------------------

bool IsMissingPicture(int index) {
  return ObjectAt(index).ObjType == kPicture && !FileExists(PathOf(ObjectAt(index)));
}

// Told once for each file, however many objects show it.
void RemovePicture(int index, std::set<std::string>& told) {
  const std::string path = PathOf(ObjectAt(index));
  if (told.insert(path).second) {
    MessageBox("The file " + path +
               " referenced in this project does not exist and will be removed");
  }
  RemoveRecord(index);
}

void RemoveMissingPictures() {
  std::set<std::string> told;
  for (int i = 0; i <= ObjectUB;) {
    if (IsMissingPicture(i)) {
      RemovePicture(i, told);
    } else {
      ++i;
    }
  }
}

void Load(const std::string& path) {
  frmMain.SetCaption(ProductTitle + " [" + FileBaseName(path) + "]");
  ProjectPath = path;
  RememberProjectFolder(path);
  KeyboardToBoard();
  DropSelection();
  frmMain.txtTool.SetText("");
  EmptySelectionStatus();
  ForgetSource();
  RecreateObjects(path);
  AddRecentFile(path);
  ReadRecords(path);
  const MissingPictures untold(MissingPictures::kUntold);  // the load has its own words for them
  LoadingProject = true;
  if (TakeSourceTrailer()) {
    TakeSerialTrailer();
  } else {
    HideHitAreas();  // of the label before: there are no others
  }
  LoadingProject = false;
  PlaceHolds();
  RemoveMissingPictures();
  RedrawBoard();
}

}  // namespace

void LoadProject(const std::string& Path) {
  Load(ResolvePath(Path));
  ShowSaveNote("");
  DirtyFlag = kFalse;
}

}  // namespace tagwright
