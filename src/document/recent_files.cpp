#include "document/recent_files.h"

#include <algorithm>
#include <array>
#include <string>

#include "common/prog_settings.h"
#include "document/project_record.h"
#include "forms/frmMain.h"
#include "platform/controls/menu.h"
#include "platform/files/files.h"
#include "platform/services/dialog_folders.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr std::int16_t kLastSlot = 6;
constexpr std::int16_t kLastEntry = 5;  // of the menu and the settings

std::string& Slot(int index) { return RecentFiles.at(static_cast<std::size_t>(index)); }

// One file may have come under two spellings, and two files may differ in no more.
bool MeanTheSame(const std::string& a, const std::string& b) {
  if (!EqualPaths(a, b)) return false;
  return !FileExists(a) || !FileExists(b) || ResolvePath(a) == ResolvePath(b);
}

// The slot that holds `path`, -1 none.
int FindRecent(const std::string& path) {
  for (int i = 0; i <= RecentUB; ++i) {
    if (MeanTheSame(Slot(i), path)) return i;
  }
  return -1;
}

// The slots before `last` move down by one, and the list grows as long as there is room, also when
// `path` was in it already.
void PutFirst(const std::string& path, int last) {
  if (RecentUB < kLastSlot) ++RecentUB;
  for (int i = last; i > 0; --i) Slot(i) = Slot(i - 1);
  Slot(0) = path;
}

void Insert(const std::string& path) {
  if (RecentUB == -1) {
    RecentUB = 0;
    Slot(0) = path;
    return;
  }
  const int found = FindRecent(path);
  if (found != 0) PutFirst(path, found > 0 ? found : kLastSlot);
}

// A file that is gone shows nothing and stays in the list.
void ShowEntry(int index) {
  const std::string path = Trim(Slot(index));
  Menu& entry = frmMain.mnuFileOld(index);
  const bool exists = !path.empty() && FileExists(path);
  entry.SetVisible(exists);
  if (!exists) return;
  frmMain.mnuFileBar4.SetVisible(true);
  entry.SetCaption(Replace(LowerCase(path), "&", "&&"));
}

void CopyToSettings() {
  const std::array<FixedText<150>*, 6> fields = {
      &ProgSettings.RecentFile1, &ProgSettings.RecentFile2, &ProgSettings.RecentFile3,
      &ProgSettings.RecentFile4, &ProgSettings.RecentFile5, &ProgSettings.RecentFile6};
  for (std::size_t i = 0; i < fields.size(); ++i) *fields[i] = RecentFiles.at(i);
}

}  // namespace

void RememberProjectFolder(const std::string& path) {
  RememberFile(kProjectFilter, path);
  RememberMainFile(path);
}

void AddRecentFile(const std::string& Path) {
  // A copy: the caller's text may be one of the slots that move.
  if (!Trim(Path).empty()) Insert(std::string(Path));
  RecentUB = std::min(RecentUB, kLastEntry);
  ShowRecentFiles();
  CopyToSettings();
}

void ShowRecentFiles() {
  for (int i = 0; i <= std::min(RecentUB, kLastEntry); ++i) ShowEntry(i);
}

}  // namespace tagwright
