// Databases as the program reads them. Without an engine every database is one that cannot be
// opened.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tagwright {

// The rows of a table, with a cursor that stands on one row or past the last. Opened, it stands on
// the first row. Only the row under the cursor is in memory. Every call may fault kDatabaseFault,
// as when the file turns out to be damaged; moving in a recordset without rows does.
class Recordset {
 public:
  virtual ~Recordset() = default;
  // The number of rows met so far, exact once the last row has been reached; -1 where it is
  // unknown.
  virtual std::int32_t RecordCount() = 0;
  // Back to the first row, which reads the table anew.
  virtual void MoveFirst() = 0;
  // On to the last row, which reads all rows between.
  virtual void MoveLast() = 0;
  // On to the next row, or from the last one past the end. Faults past the end.
  virtual void MoveNext() = 0;
  // Whether the cursor is past the last row.
  virtual bool Eof() = 0;
  // The number of fields of each row.
  virtual int FieldCount() = 0;
  // The text of field `index`, from 0, of the row under the cursor; nothing for null. Numbers,
  // currency and dates read as the user writes them (see locale.h), Booleans "True" and "False".
  // Faults kOutOfBounds for a field that does not exist, kDatabaseFault past the end.
  virtual std::optional<std::string> Value(int index) = 0;
};

class Database {
 public:
  virtual ~Database() = default;
  // The names of all tables in the engine's order, system tables and linked ones included.
  virtual std::vector<std::string> TableNames() = 0;
  // The names of a table's fields in their order, without reading any row. Unlike OpenRecordset it
  // takes every table's name, whatever characters are in it. Faults kLinkedTable for a table that
  // lies in another file, kDatabaseFault otherwise.
  virtual std::vector<std::string> FieldNames(const std::string& table) = 0;
  // The rows of one table: `source` is "SELECT * FROM " and its name. Unquoted as it is, the name
  // has to consist of letters, digits and underscores and begin with no digit. Faults
  // kDatabaseFault for any other source and for a table that is not there, kLinkedTable for one
  // that lies in another file.
  virtual std::unique_ptr<Recordset> OpenRecordset(const std::string& source) = 0;
};

// Opens a database file. `connect` is empty, or ";PWD=" and the password. Faults 53 for a missing
// file, 3031 for a password that is missing or wrong, kDatabaseFault for a file that is no readable
// database, and for everything while there is no engine.
std::unique_ptr<Database> OpenDatabase(const std::string& path, const std::string& connect = {});

// The table that a recordset's source names (see OpenRecordset). Faults kDatabaseFault for any
// other source. Letters are those of all alphabets, not only of ours.
std::string TableOfSource(const std::string& source);

// The engine in force; an empty function takes it away.
using DatabaseEngine =
    std::function<std::unique_ptr<Database>(const std::string& path, const std::string& connect)>;
void SetDatabaseEngine(DatabaseEngine engine);

}  // namespace tagwright
