// The projects that were used last, in the file menu and in the file dialogs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tagwright {

// Recent files: slots 0 to 6, RecentUB the highest used one (-1 none).
constexpr std::size_t kRecentSlots = 7;
inline std::vector<std::string> RecentFiles = std::vector<std::string>(kRecentSlots);
inline std::int16_t RecentUB = -1;

// Puts `Path` first in the recent list (a blank one only rebuilds), shows the menu entries and
// copies the list to ProgSettings.
void AddRecentFile(const std::string& Path);

// Where the project `path` lies file dialogs open.
void RememberProjectFolder(const std::string& path);

// Shows mnuFileBar4 and one entry mnuFileOld(i) per slot whose file exists, captioned by its
// trimmed path in lower case, "&" doubled since one alone would mark the letter behind it. Start-up
// calls it alone: the settings keep their gaps until the list changes.
void ShowRecentFiles();

}  // namespace tagwright
