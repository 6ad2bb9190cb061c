#include "common/diagnostics.h"

#include <string>

#include "common/prog_settings.h"
#include "platform/files/files.h"
#include "platform/services/desktop.h"
#include "platform/services/dialogs.h"

namespace tagwright {
namespace {

constexpr const char* kMarkerFile = "tracemark.flg";

void ShowIfMarked(const std::string& marker_path, const Fault& fault) {
  if (!FileExists(marker_path)) return;
  MessageBox(std::to_string(fault.number) + " - " + fault.description, MessageButtons::kOk,
             MessageIcon::kNone);
}

}  // namespace

void MarkerTail(const Fault& fault) { ShowIfMarked(AppFolder + kMarkerFile, fault); }

void EngineMarkerTail(const Fault& fault) {
  ShowIfMarked(ExecutableFolder() + "/" + kMarkerFile, fault);
}

}  // namespace tagwright
