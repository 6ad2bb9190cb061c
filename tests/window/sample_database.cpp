// Writes the database that the scenarios of data sources open: the window's tests link nothing of
// the program's.
//
//   sample_database FILE
#include <cstdint>
#include <fstream>

#include "support/jet_writer.h"

int main(int argc, char** argv) {
  using namespace tagwright;
  if (argc != 2) return 2;
  JetDatabase database{.version = 4};
  database.others = {{"Far", 6}};
  database.tables = {
      {"People",
       {{"Number", JetType::kLong}, {"Name", JetType::kText}},
       {{std::int64_t{1}, "Ada"}, {std::int64_t{2}, "Bob"}, {std::int64_t{3}, "Cyd"}}}};
  std::ofstream file(argv[1], std::ios::binary);
  file << JetBytes(database);
  return file.flush() ? 0 : 1;
}
