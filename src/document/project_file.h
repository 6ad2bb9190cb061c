// Project files: fixed records of 333 bytes, little-endian, with two trailers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/objects.h"

namespace tagwright {

constexpr int kProjectRecordSize = 333;

// One record's bytes and back. Reading takes what is there: blank text and zeros for the rest.
std::string ProjectRecordBytes(const ObjectRecord& record);
ObjectRecord ProjectRecordFromBytes(std::string_view bytes);

// Saves the document with its trailers to ProjectPath, or to a name asked for when that is empty or
// `ForceDialog` is set. Clears DirtyFlag, updates the caption and the recent files. A cancelled
// dialog changes nothing.
void SaveProject(const Flag& ForceDialog);

// Replaces the document by the file `Path`.
void LoadProject(const std::string& Path);

// Recent files: slots 0 to 6, RecentUB the highest used one (-1 none).
inline std::vector<std::string> RecentFiles = std::vector<std::string>(7);
inline std::int16_t RecentUB = -1;

// Puts `Path` first in the recent list (a blank one only rebuilds), shows the menu entries and
// copies the list to ProgSettings.
void AddRecentFile(const std::string& Path);

// Shows mnuFileBar4 and one entry mnuFileOld(i) per slot whose file exists, captioned by its trimmed
// path in lower case. Start-up calls it alone: the settings keep their gaps until the list changes.
void ShowRecentFiles();

// --- state of the data source that a project carries ---
inline std::string DatabasePassword;  // plain; blank for none
inline std::string CurrentTable;
inline std::int32_t RecordCount = -1;

// --- commands ---
void mnuFileNew_Click();
void mnuFileOpen_Click();
void mnuFileSave_Click();
void mnuFileSaveAs_Click();
void mnuFileOld_Click(int Index);

}  // namespace tagwright
