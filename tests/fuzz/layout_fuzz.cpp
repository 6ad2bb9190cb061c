// Any bytes are a layout file: the program must load them, fill its list and show the chosen one.
#include <cstdint>
#include <cstdlib>
#include <filesystem>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "layouts/label_layouts.h"
#include "layouts/layout_list.h"
#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"

using namespace tagwright;

namespace {

// A folder of this run's own, with a window to show layouts in.
std::string Prepared() {
  std::string folder = (std::filesystem::temp_directory_path() / "layout-fuzz-XXXXXX").string();
  if (!mkdtemp(folder.data())) std::abort();
  AppFolder = folder + "/";
  Load(frmMain);
  frmMain.cboLabelLayout.Events().Click = cboLabelLayout_Click;
  DrawTarget = &frmMain.picBoard.Canvas();
  BoardReady = -1;
  return AppFolder + "label.dta";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = Prepared();
  CarryOn([] { DeleteFile(path); });
  WriteFile(path, std::string_view(reinterpret_cast<const char*>(data), size));
  LoadLabelLayouts();
  if (LabelLayouts.size() != static_cast<std::size_t>(LabelLayoutTop) + 1) std::abort();
  FillLayoutList();
  SaveLabelLayouts();
  const std::vector<LabelLayout> before = LabelLayouts;
  LoadLabelLayouts();
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (LabelLayoutBytes(LabelLayouts[i]) != LabelLayoutBytes(before[i])) std::abort();
  }
  return 0;
}
