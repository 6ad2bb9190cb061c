// Makes small database files in the Jet format, versions 3 and 4, for tests: as much of the format
// as a reader looks at, and no more. No index, no properties, no rights.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tagwright {

// By the numbers of the format.
enum class JetType : unsigned char {
  kBoolean = 1,
  kByte = 2,
  kInteger = 3,
  kLong = 4,
  kCurrency = 5,
  kSingle = 6,
  kDouble = 7,
  kDate = 8,
  kBinary = 9,
  kText = 10,
  kOle = 11,
  kMemo = 12,
  kGuid = 15,
  kNumeric = 16,
};

struct JetColumn {
  std::string name;
  JetType type;
  int scale = 0;                                  // of kNumeric: digits after the point
  std::optional<std::uint16_t> stated_size = {};  // the definition's, when it is to be wrong
};

// By type: bool; whole numbers, currency (in ten-thousandths) and numeric (in units of its scale);
// single, double and date; texts and memos in UTF-8, the others as their bytes. monostate is null;
// a Boolean has none.
using JetCell = std::variant<std::monostate, bool, std::int64_t, double, std::string>;

struct JetTable {
  std::string name;
  std::vector<JetColumn> columns;  // at least one of text, memo or binary
  std::vector<std::vector<JetCell>> rows;
  std::optional<std::uint32_t> stated_rows = {};  // the header's count, when it is to be wrong
};

// An object that is no table: a line of the catalogue.
struct JetObject {
  std::string name;
  std::int64_t type;  // 5 a query; 6 and 4 a linked table, of a file of this format or another
};

struct JetDatabase {
  int version = 3;
  std::string password = {};  // UTF-8; single-byte characters only in version 3
  double created = 38000.5;   // masks the password of version 4
  std::vector<JetTable> tables = {};
  std::vector<JetObject> others = {};
};

// The file's bytes. The catalogue lists itself, then the other objects, then the tables. A table's
// columns have to fit on one page, and a row of version 3 in 256 bytes, memos not counted.
std::string JetBytes(const JetDatabase& database);

}  // namespace tagwright
