// The data source as its panel and a project carry it, and how it is let go. Choosing one and
// reading its rows are in output/data_sources.h.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/database/database.h"
#include "platform/faults/fault.h"

namespace tagwright {

// The kinds of source: the rows of cboImportType.
enum SourceKind : int { kDatabaseSource = 0, kCommaSource = 1, kTabSource = 2 };

// A table as its database describes it.
struct TableDef {
  std::string Name;
  std::vector<std::string> Fields;  // names of the columns
};

// What a project carries of its source.
inline std::string DatabasePassword;              // plain; blank for none
inline std::string CurrentTable;                  // the chosen table's name
inline std::int32_t UnlistedTable = -1;           // its row, while no database fills cboRSet
inline std::int32_t RecordCount = -1;             // rows of the source, -1 none
inline std::unique_ptr<Database> SourceDatabase;  // the open database, null none

inline TableDef SourceTable;                        // the chosen table
inline std::unique_ptr<Recordset> SourceRecordset;  // its open rows, null none

// Lets go of what a source has given: the database with its password, its tables, the columns, the
// rows and their count. Whatever comes next, labels never come from a former source.
void CloseSource();

// No source at all: as CloseSource, and no file is named. Without one there is nothing to merge, so
// chkMailshot is unticked and hidden.
void ForgetSource();

// Shows what a database asks for, the table, or what a text file does: titles and quotes.
void ShowSourceFields(bool database);

// Says that the file `path` cannot be read as a database, and why where the fault knows more than
// that.
void TellNoDatabase(const std::string& path, const Fault& fault);

}  // namespace tagwright
