// Any bytes as a project: opening them, painting what came of them and saving it again ends without
// a fault, and a bound always lies within the array.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "document/objects.h"
#include "document/project_load.h"
#include "document/project_save.h"
#include "platform/controls/event.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/services/desktop.h"
#include "shell/startup.h"

namespace tagwright {
namespace {

// A folder of the process's own for the file under test.
const std::string& Folder() {
  static const std::string folder = [] {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "tagwright-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) std::abort();
    return pattern;
  }();
  return folder;
}

// The whole program, so that what its controls do while a project loads is tried as well.
void StartAnew() {
  SetExecutableFolder(Folder());
  StartProgram();
  if (BoardReady == 0) std::abort();
}

void CheckBound() {
  if (ObjectUB < -1 || static_cast<std::size_t>(ObjectUB + 1) > Objects.size()) std::abort();
}

void OpenAndSave(std::string_view bytes) {
  const std::string path = Folder() + "/label.twp";
  if (FileExists(path)) DeleteFile(path);
  WriteFile(path, bytes);
  LoadProject(path);
  CheckBound();
  SaveProject(kFalse);
  CheckBound();
}

}  // namespace
}  // namespace tagwright

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tagwright::SetFaultReporter([](const tagwright::Fault&) { std::abort(); });
  tagwright::StartAnew();
  tagwright::OpenAndSave({reinterpret_cast<const char*>(data), size});
  return 0;
}
