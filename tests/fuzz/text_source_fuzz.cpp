// Any bytes are a text source: the program must count its rows, list its columns and merge it. The
// first byte chooses the separator and whether quotes are taken out.
#include <cstdint>
#include <cstdlib>
#include <filesystem>

#include "document/objects.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "output/data_sources.h"
#include "output/text_source.h"
#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/text/text.h"

using namespace tagwright;

namespace {

// A folder of this run's own, and the panel that chooses a source.
std::string Prepared() {
  std::string folder = (std::filesystem::temp_directory_path() / "text-fuzz-XXXXXX").string();
  if (!mkdtemp(folder.data())) std::abort();
  SetCodePage(1252);
  Load(frmMain);
  for (const char* kind : {"database", "comma", "tab"}) frmMain.cboImportType.AddItem(kind);
  return folder + "/data.csv";
}

void Require(bool holds) {
  if (!holds) std::abort();
}

void RequireColumns() {
  Require(FieldUB >= 0 && FieldUB < static_cast<int>(kFieldSlots));
  for (const std::string& value : FieldValues) Require(FromCharacters(Characters(value)) == value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = Prepared();
  if (size == 0) return 0;
  const bool comma = (data[0] & 1) == 0;
  CarryOn([] { DeleteFile(path); });
  WriteFile(path, std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
  frmMain.cboImportType.SetListIndex(comma ? kCommaSource : kTabSource);
  frmMain.chkQuote.SetValue((data[0] & 2) == 0 ? 0 : 1);
  frmMain.cd1.FileName = path;
  frmMain.lblFileName.SetCaption(path);

  FieldUB = -1;
  OpenTextSource(comma);
  RequireColumns();
  Require(frmMain.lstFields.ListCount() == FieldUB + 1);
  std::int32_t rows = RecordCount == 0 ? 0 : 1;
  OpenMergeSource();
  for (bool more = true; NextMergeRecord(more), more; ++rows) RequireColumns();
  CloseMergeSource();
  Require(rows == RecordCount);
  return 0;
}
