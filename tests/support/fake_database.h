// Databases in memory, behind the program's own interface: tables as rows of texts, passwords, and
// calls that fail where a test wants them to.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/database/database.h"

namespace tagwright {

using FakeRow = std::vector<std::optional<std::string>>;

struct FakeTable {
  std::string name;
  std::vector<std::string> fields;
  std::vector<FakeRow> rows;
  bool linked = false;  // lies in another file
};

struct FakeFile {
  std::vector<FakeTable> tables;
  std::string password{};  // empty: opens without one
  bool damaged = false;    // does not open at all
};

// Every database that the program opens, from construction to destruction. Recordsets read the
// tables as they are at the time.
class FakeDatabases {
 public:
  FakeDatabases();
  ~FakeDatabases();
  FakeDatabases(const FakeDatabases&) = delete;
  FakeDatabases& operator=(const FakeDatabases&) = delete;

  std::map<std::string, FakeFile> files;  // by path; others are missing: fault 53
  bool rows_fail = false;                 // every call on a recordset faults
  bool columns_fail = false;              // so does asking for a table's columns
  std::vector<std::string> log;           // "open PATH CONNECT", "rows SOURCE", moves
};

}  // namespace tagwright
