// The settings file: one record of 1190 bytes in the application folder, read at start and written
// at exit.
#pragma once

#include <string>
#include <string_view>

#include "common/prog_settings.h"

namespace tagwright {

constexpr int kSettingsSize = 1190;  // bytes of the record

// The record's bytes, packed: little-endian numbers, text in the user's code page.
std::string SettingsBytes(const SettingsRecord& settings);

// The record of a file of any length: what is missing is zero and, in text fields, blank; what lies
// behind the record is ignored. Zero bytes in text fields count as blanks.
SettingsRecord SettingsFromBytes(std::string_view bytes);

// The record of the file `path`. Faults as ReadFile.
SettingsRecord ReadSettings(const std::string& path);

// Writes `settings` to the file `path`; an existing one is deleted first, so that the new one is as
// long as the record, and a write that fails leaves none. One that cannot be deleted is written
// over. Faults as WriteFile.
void WriteSettings(const std::string& path, const SettingsRecord& settings);

}  // namespace tagwright
