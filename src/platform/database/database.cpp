#include "platform/database/database.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/faults/fault.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

DatabaseEngine engine_in_force;

// --- names in a source ---

// Whether it stands beyond the first 128 characters for a letter of some alphabet: neither a sign
// of the second 128 nor one of the blocks of punctuation, symbols, drawings and pictures.
bool IsForeignLetter(char32_t c) {
  if (c < 0xC0) return c == U'ª' || c == U'µ' || c == U'º';
  if (c == U'×' || c == U'÷') return false;
  if (c >= 0x2000 && c <= 0x2BFF) return false;
  if (c >= 0x3000 && c <= 0x3004) return false;
  if (c >= 0x3008 && c <= 0x3020) return false;
  return c < 0xD800 || (c >= 0xF900 && c < 0xFE00) || (c >= 0x20000 && c < 0x40000);
}

bool IsLetter(char32_t c) {
  if (c < 0x80) return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
  return IsForeignLetter(c);
}

// Whether the language that sources are written in takes `name` for one without any quotes.
bool IsPlainName(const std::string& name) {
  const std::u32string characters = Characters(name);
  if (characters.empty() || IsDigit(characters.front())) return false;
  return std::all_of(characters.begin(), characters.end(),
                     [](char32_t c) { return IsLetter(c) || IsDigit(c) || c == U'_'; });
}

}  // namespace

std::unique_ptr<Database> OpenDatabase(const std::string& path, const std::string& connect) {
  if (!engine_in_force) RaiseFault(kDatabaseFault);
  return engine_in_force(path, connect);
}

std::string TableOfSource(const std::string& source) {
  constexpr std::string_view kSelect = "SELECT * FROM ";
  if (!source.starts_with(kSelect)) RaiseFault(kDatabaseFault);
  std::string name = source.substr(kSelect.size());
  if (!IsPlainName(name)) RaiseFault(kDatabaseFault);
  return name;
}

void SetDatabaseEngine(DatabaseEngine engine) { engine_in_force = std::move(engine); }

}  // namespace tagwright
