// A database file in the Jet format, read through libmdb: only for the reader's own process, since
// a damaged file can crash that library, hold it up for ever or make it ask for all memory.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/database/stored_value.h"

namespace tagwright {

// An open file and the table that is read from it.
class JetFile {
 public:
  // Faults kDatabaseFault for a file that is no database.
  explicit JetFile(const std::string& path);
  ~JetFile();

  // A table, and whether it only points to one in another file.
  struct Table {
    std::string name;
    bool linked = false;
  };

  // All tables in the order of their catalogue, system tables and linked ones included; queries,
  // forms and the like are none. Faults kDatabaseFault without a readable catalogue.
  std::vector<Table> Tables();

  // Goes to a table and before its first row. Faults kDatabaseFault when there is no such table in
  // this file.
  void OpenTable(const std::string& name);

  // The names of the open table's fields.
  std::vector<std::string> FieldNames() const;

  // The next row of the open table, in the order in which the file keeps them: whether there was
  // one. Memos come whole; binary values and OLE objects, which no label can print, as empty text;
  // a GUID as its digits in braces.
  bool NextRow(std::vector<StoredValue>& row);

 private:
  struct Library;
  struct CatalogueEntry;
  void OpenPage(unsigned long page, const std::string& name);
  void ForEachTable(const std::function<void(const CatalogueEntry&)>& visit);

  std::unique_ptr<Library> library_;
};

}  // namespace tagwright
