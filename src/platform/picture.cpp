#include "platform/picture.h"

#include <cstdint>

#include "platform/fault.h"
#include "platform/files.h"

namespace tagwright {
namespace {

// No picture for a label is larger; without a limit a wrong name could fill the memory.
constexpr std::int64_t kLargestFile = std::int64_t{256} * 1024 * 1024;

PictureReader reader_in_force = nullptr;

}  // namespace

PicturePtr LoadPicture(std::string_view path) {
  if (FileLength(path) > kLargestFile || !reader_in_force) RaiseFault(kBadPicture);
  PicturePtr picture = reader_in_force(ReadFile(path), FileBaseName(path));
  if (!picture) RaiseFault(kBadPicture);
  return picture;
}

void SetPictureReader(PictureReader reader) { reader_in_force = reader; }

}  // namespace tagwright
