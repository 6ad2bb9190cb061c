#include "output/database_source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "output/data_sources.h"
#include "platform/faults/fault.h"
#include "platform/services/dialogs.h"

namespace tagwright {
namespace {

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

// A file that does not open leaves none open. Says so, and returns false for its callers to do the
// same.
bool Refused(const std::string& path, const Fault& fault) {
  MarkerTail(fault);
  TellNoDatabase(path, fault);
  return false;
}

bool OpenWithPassword(const std::string& path) {
  try {
    SourceDatabase = OpenDatabase(path, Connect());
    return true;
  } catch (const Fault& fault) {
    if (fault.number != kPasswordNeeded) return Refused(path, fault);
    MessageBox("Not a valid Password", MessageButtons::kOk, MessageIcon::kNone);
    throw;
  }
}

bool AskForPassword(const std::string& path, const Fault& fault) {
  DatabasePassword = InputBox("Please enter Password");
  if (!DatabasePassword.empty()) return OpenWithPassword(path);
  TellNoDatabase(path, fault);
  return false;
}

bool OpenAsking(const std::string& path) {
  try {
    SourceDatabase = OpenDatabase(path);
    return true;
  } catch (const Fault& fault) {
    return fault.number == kPasswordNeeded ? AskForPassword(path, fault) : Refused(path, fault);
  }
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

// Returns whether the table's columns are known. Those of a table that another file holds are not.
bool ReadColumns() {
  try {
    SourceTable.Fields = OpenedDatabase().FieldNames(SourceTable.Name);
    return true;
  } catch (const Fault& fault) {
    MarkerTail(fault);
    if (fault.number == kLinkedTable) {
      MessageBox("The table " + SourceTable.Name + " lies in another file");
    }
    return false;
  }
}

void LeaveTable() {
  SourceTable = {};
  SourceRecordset.reset();
  FieldValues.assign(kFieldSlots, {});
  FieldUB = -1;
}

// A table may have more columns than there are slots: FieldUB counts them all the same.
void StoreColumnNames() {
  FieldUB = static_cast<std::int16_t>(SourceTable.Fields.size() - 1);
  for (std::size_t i = 0; i < SourceTable.Fields.size(); ++i) {
    Traced([&] { FieldValueAt(static_cast<int>(i)) = SourceTable.Fields[i]; });
  }
}

// The engine knows the number of rows when it has met the last one.
void MeetAllRows() {
  Traced([] { OpenedRows().MoveLast(); });
  Traced([] { OpenedRows().MoveFirst(); });
}

}  // namespace

void OpenDatabaseSource() {
  ShowSourceFields(true);
  frmMain.cboRSet.Clear();
  if (!OpenAsking(frmMain.cd1.FileName)) return;
  Traced(ListTables);
}

void cboRSet_Click() {
  const int row = frmMain.cboRSet.ListIndex();
  if (row == -1) return;
  DirtyFlag = kTrue;
  LeaveTable();
  Traced([&] { TakeTable(row); });
  if (ReadColumns()) StoreColumnNames();
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
  SourceRecordset.reset();
  SourceDatabase.reset();
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
    Traced([&] { FieldValueAt(i) = SourceRecordset->Value(i).value_or(""); });
  }
  More = true;
}

}  // namespace tagwright
