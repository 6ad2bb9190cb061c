// Databases as the program reads them. Without an engine every database is one that cannot be
// opened.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tagwright {

// The rows of a table or query, with a cursor. Every call may fault kDatabaseFault; moving in a
// recordset without rows does.
class Recordset {
 public:
  virtual ~Recordset() = default;
  // The number of rows, exact only after the last row has been reached; -1 where it is unknown.
  virtual std::int32_t RecordCount() = 0;
  virtual void MoveFirst() = 0;
  virtual void MoveLast() = 0;
  virtual void MoveNext() = 0;
  // Whether the cursor is past the last row.
  virtual bool Eof() = 0;
};

class Database {
 public:
  virtual ~Database() = default;
  // The names of all tables in the engine's order, system tables included.
  virtual std::vector<std::string> TableNames() = 0;
  // The rows of a table or of a query. Faults kDatabaseFault.
  virtual std::unique_ptr<Recordset> OpenRecordset(const std::string& source) = 0;
};

// Opens a database file. `connect` is empty, or ";PWD=" and the password. Faults 53, 3031 and
// kDatabaseFault; the last for everything while there is no engine.
std::unique_ptr<Database> OpenDatabase(const std::string& path, const std::string& connect = {});

// The engine in force; an empty function takes it away.
using DatabaseEngine =
    std::function<std::unique_ptr<Database>(const std::string& path, const std::string& connect)>;
void SetDatabaseEngine(DatabaseEngine engine);

}  // namespace tagwright
