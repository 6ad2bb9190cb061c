// Project files: fixed records of 333 bytes, little-endian, with two trailers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/objects.h"
#include "platform/database/database.h"

namespace tagwright {

// Bytes of one record. Text takes one byte a character in the user's code page, blank padded.
// Offset and size of the fields, in their order: Left 0, 4; Top 4, 4; Width 8, 8; Height 16, 8;
// ObjType 24, 2; Text 26, 250; Param 276, 2; FontName 278, 35; FontSize 313, 8; Bold 321, 2;
// Italic 323, 2; ForeColor 325, 4; FillColor 329, 4.
constexpr int kProjectRecordSize = 333;

// What the file dialogs offer.
inline const std::string kProjectFilter = "Tagwright Project (*.twp)|*.twp";

// One record's bytes and back. Reading takes what is there: blank text and zeros for the rest.
std::string ProjectRecordBytes(const ObjectRecord& record);
ObjectRecord ProjectRecordFromBytes(std::string_view bytes);

// Saves the document, an entry under way included, with its trailers to ProjectPath, or to a name
// asked for when that is empty or `ForceDialog` is set: then the caption shows that name, which is
// taken exactly. Deletes an existing file before it writes. Clears DirtyFlag; where the file could
// not be written that stays as it was, and the status bar says why. Updates the recent files in
// either case. The trailers stay in the slots beyond ObjectUB. A cancelled dialog changes nothing.
// Never faults.
void SaveProject(const Flag& ForceDialog);

// What the status bar says of the last save: nothing where it went well.
void ShowSaveNote(const std::string& note);

// Replaces the document by the file `Path`: records, serial settings, data source, layout, hit
// areas, selection, caption and recent files; ends in a redraw. The project keeps the name that the
// file has on disk. DirtyFlag is clear at the end, whatever the lists that are filled have said. A
// file of 32,768 bytes or more opens as that many blank records, and one that cannot be read
// likewise. If the user will not go on without the data file the document is empty, and so is the
// board. Never faults.
void LoadProject(const std::string& Path);

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

// --- state of the data source that a project carries ---
inline std::string DatabasePassword;              // plain; blank for none
inline std::string CurrentTable;                  // the chosen table's name
inline std::int32_t UnlistedTable = -1;           // its row, while no database fills cboRSet
inline std::int32_t RecordCount = -1;             // rows of the source, -1 none
inline std::unique_ptr<Database> SourceDatabase;  // the open database, null none

// --- commands: the entries of the file menu that go by these names ---
void mnuFileNew_Click();
void mnuFileOpen_Click();
void mnuFileSave_Click();
void mnuFileSaveAs_Click();
void mnuFileOld_Click(int Index);

}  // namespace tagwright
