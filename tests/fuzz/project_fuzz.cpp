// Any bytes as a project: opening them, painting what came of them and saving it again ends without
// a fault, and a bound always lies within the array.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/project_file.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "platform/event.h"
#include "platform/fault.h"
#include "platform/files.h"
#include "platform/recorder.h"
#include "platform/scale.h"
#include "platform/windows.h"

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

void StartProgram() {
  UnloadAll();
  ResetDocumentState();
  ProgSettings = {};
  AppFolder = Folder() + "/";
  Load(frmMain);
  frmMain.cboLabelLayout.AddItem("a");
  for (const char* kind : {"database", "comma", "tab"}) frmMain.cboImportType.AddItem(kind);
  frmMain.picBoard.SetWidth(300 * kTwipsPerMillimetre);
  frmMain.picBoard.SetHeight(200 * kTwipsPerMillimetre);
  frmMain.picBoard.SetScaleWidth(300);
  frmMain.picBoard.SetScaleHeight(200);
  LabelWidth = 100;
  LabelHeight = 50;
  DrawTarget = &frmMain.picBoard.Canvas();
  BoardReady = -1;
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
  tagwright::StartProgram();
  tagwright::OpenAndSave({reinterpret_cast<const char*>(data), size});
  return 0;
}
