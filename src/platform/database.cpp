#include "platform/database.h"

#include <utility>

#include "platform/fault.h"

namespace tagwright {
namespace {

DatabaseEngine engine_in_force;

}  // namespace

std::unique_ptr<Database> OpenDatabase(const std::string& path, const std::string& connect) {
  if (!engine_in_force) RaiseFault(kDatabaseFault);
  return engine_in_force(path, connect);
}

void SetDatabaseEngine(DatabaseEngine engine) { engine_in_force = std::move(engine); }

}  // namespace tagwright
