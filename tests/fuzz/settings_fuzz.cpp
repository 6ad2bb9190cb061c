// Any bytes are a settings file: reading must take them, and what has been read must come back from
// its own bytes.
#include <cstdint>
#include <cstdlib>

#include "shell/settings_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tagwright;
  const std::string_view file(reinterpret_cast<const char*>(data), size);
  const std::string bytes = SettingsBytes(SettingsFromBytes(file));
  if (bytes.size() != kSettingsSize) std::abort();
  if (SettingsBytes(SettingsFromBytes(bytes)) != bytes) std::abort();
  return 0;
}
