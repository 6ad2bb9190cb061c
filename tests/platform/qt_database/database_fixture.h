// Database files in a folder of the test's own, opened through the reader as the program opens
// them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qt/services/database.h"
#include "support/fault_of.h"
#include "support/jet_writer.h"
#include "support/test_support.h"

namespace tagwright {

// The reader as it has been built.
ReaderProgram BuiltReader();

// The rows of a table that are still to come, the one under the cursor first; null as "null".
using Rows = std::vector<std::vector<std::string>>;
Rows RestOf(Recordset& rows);

// A database with every type of column and every way to store a memo; the tables "Items" (three
// rows, the third of nulls), "Empty", "Order Details" and "Umsätze", one query and one linked table
// between them.
JetDatabase SampleDatabase(int version);
std::string LongMemo();  // the one in pieces

class DatabaseTest : public testing::Test {
 protected:
  DatabaseTest();
  ~DatabaseTest() override;

  // The path of a file with these bytes.
  std::string Made(const std::string& bytes, const std::string& name = "a.mdb");
  std::unique_ptr<Database> Open(const std::string& path, const std::string& connect = {});
  int FaultOfOpening(const std::string& path, const std::string& connect = {});

  TempFolder folder;
};

}  // namespace tagwright
