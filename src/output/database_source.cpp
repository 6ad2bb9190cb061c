#include "output/database_source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/project_file.h"
#include "forms/frmMain.h"
#include "output/data_sources.h"
#include "platform/dialogs.h"
#include "platform/fault.h"

namespace tagwright {
namespace {

void ShowDatabaseControls() {
  frmMain.cboRSet.SetVisible(true);
  frmMain.lblFName(1).SetVisible(true);
  frmMain.chkFirstRow.SetVisible(false);
  frmMain.chkQuote.SetVisible(false);
}

std::string Connect() { return ";PWD=" + DatabasePassword; }

std::string Query(const std::string& table) { return "SELECT * FROM " + table; }

// Faults 5 where none is open.
Database& OpenedDatabase() {
  if (!SourceDatabase) RaiseFault(kInvalidCall);
  return *SourceDatabase;
}

Recordset& OpenedRows() {
  if (!SourceRecordset) RaiseFault(kInvalidCall);
  return *SourceRecordset;
}

// --- choosing -----------------------------------------------------------------------------------

// A fault is the caller's: this runs where one is being dealt with already.
void OpenWithPassword(const std::string& path) {
  try {
    SourceDatabase = OpenDatabase(path, Connect());
  } catch (const Fault& fault) {
    if (fault.number == kPasswordNeeded) {
      MessageBox("Not a valid Password", MessageButtons::kOk, MessageIcon::kNone);
    }
    throw;
  }
}

// Returns false where the user gives no password.
bool AskForPassword(const std::string& path) {
  DatabasePassword = InputBox("Please enter Password");
  if (DatabasePassword.empty()) return false;
  OpenWithPassword(path);
  return true;
}

// Returns false where the user gives no password. A database that does not open for another reason
// leaves the one before it open.
bool OpenAsking(const std::string& path) {
  try {
    SourceDatabase = OpenDatabase(path);
  } catch (const Fault& fault) {
    if (fault.number == kPasswordNeeded) return AskForPassword(path);
    MarkerTail(fault);
  }
  return true;
}

void ListTables() {
  for (const std::string& table : OpenedDatabase().TableNames()) frmMain.cboRSet.AddItem(table);
}

// --- the chosen table ---------------------------------------------------------------------------

void TakeTable(int row) {
  const std::vector<std::string> tables = OpenedDatabase().TableNames();
  if (static_cast<std::size_t>(row) >= tables.size()) RaiseFault(kOutOfBounds);
  SourceTable = {tables[static_cast<std::size_t>(row)], {}};
}

void ReadColumns() { SourceTable.Fields = OpenedDatabase().FieldNames(SourceTable.Name); }

// A table may have more columns than there are slots: FieldUB counts them all the same.
void StoreColumnNames() {
  FieldUB = static_cast<std::int16_t>(SourceTable.Fields.size() - 1);
  for (std::size_t i = 0; i < SourceTable.Fields.size(); ++i) {
    Traced([&] { FieldValueAt(i) = SourceTable.Fields[i]; });
  }
}

// The engine knows the number of rows when it has met the last one.
void MeetAllRows() {
  Traced([] { OpenedRows().MoveLast(); });
  Traced([] { OpenedRows().MoveFirst(); });
}

}  // namespace

void OpenDatabaseSource() {
  ShowDatabaseControls();
  frmMain.cboRSet.Clear();
  if (!OpenAsking(frmMain.cd1.FileName)) return;
  Traced(ListTables);
}

void cboRSet_Click() {
  const int row = frmMain.cboRSet.ListIndex();
  if (row == -1) return;
  DirtyFlag = kTrue;
  Traced([&] { TakeTable(row); });
  if (Traced(ReadColumns)) StoreColumnNames();
  CurrentTable = frmMain.cboRSet.Text();
  Traced([] { SourceRecordset = OpenedDatabase().OpenRecordset(Query(SourceTable.Name)); });
  RecordCount = 0;
  MeetAllRows();
  Traced([] { RecordCount = OpenedRows().RecordCount(); });
  ShowRecordCount();
  FillFieldList();
}

void OpenDatabaseRows() {
  const std::string path = frmMain.lblFileName.Caption();
  Traced([&] { SourceDatabase = OpenDatabase(path, DatabasePassword.empty() ? "" : Connect()); });
  Traced([] { SourceRecordset = OpenedDatabase().OpenRecordset(Query(frmMain.cboRSet.Text())); });
  MeetAllRows();
}

// Where the engine cannot even tell whether there is a row, there is none.
void NextDatabaseRow(bool& More) {
  if (!SourceRecordset) return;
  bool at_end = true;
  Traced([] { SourceRecordset->MoveNext(); });
  Traced([&] { at_end = SourceRecordset->Eof(); });
  if (at_end) return;
  for (int i = 0; i < SourceRecordset->FieldCount(); ++i) {
    Traced([&] {
      FieldValueAt(static_cast<std::size_t>(i)) = SourceRecordset->Value(i).value_or("");
    });
  }
  More = true;
}

}  // namespace tagwright
