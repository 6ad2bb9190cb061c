#include "platform/painting/picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/faults/fault.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

// No picture for a label is larger; without a limit a wrong name could fill the memory.
constexpr std::int64_t kLargestFile = std::int64_t{256} * 1024 * 1024;

// What is kept at most, counted in pixels of the screen, of which a decoded one takes four bytes.
constexpr double kMostKept = 32e6;
constexpr std::ptrdiff_t kMostPictures = 256;

PictureReader reader_in_force = nullptr;

// --- pictures that have been read ---------------------------------------------------------------

struct KeptPicture {
  std::string path;
  FileStamp stamp;
  PicturePtr picture;
};

// The newest last. Never destroyed: what a picture holds may need the toolkit to go.
std::vector<KeptPicture>& Kept() {
  static std::vector<KeptPicture>& kept = *new std::vector<KeptPicture>;
  return kept;
}

double SizeOf(const Picture& picture) {
  return picture.Width * picture.Height / (kHundredthsPerPixel * kHundredthsPerPixel);
}

void Forget(std::string_view path) {
  std::erase_if(Kept(), [&](const KeptPicture& kept) { return kept.path == path; });
}

// One alone may be larger than all that is kept otherwise: a label shows it again and again.
void MakeRoom() {
  double size = 0;
  auto first = Kept().end();
  while (first != Kept().begin() && size < kMostKept && Kept().end() - first < kMostPictures) {
    size += SizeOf(*(--first)->picture);
  }
  Kept().erase(Kept().begin(), first);
}

void Keep(std::string_view path, const FileStamp& stamp, const PicturePtr& picture) {
  Forget(path);
  if (!stamp.settled) return;
  Kept().push_back({std::string(path), stamp, picture});
  MakeRoom();
}

PicturePtr KeptUnder(std::string_view path, const FileStamp& stamp) {
  const auto found = std::find_if(Kept().begin(), Kept().end(), [&](const KeptPicture& kept) {
    return kept.path == path && kept.stamp == stamp;
  });
  return found == Kept().end() ? nullptr : found->picture;
}

PicturePtr ReadPictureFile(std::string_view path, std::int64_t length) {
  if (length > kLargestFile || !reader_in_force) RaiseFault(kBadPicture);
  PicturePtr picture = reader_in_force(ReadFile(path), FileBaseName(path));
  if (!picture) RaiseFault(kBadPicture);
  return picture;
}

}  // namespace

PicturePtr LoadPicture(std::string_view path) {
  const FileStamp stamp = StampOfFile(path);
  if (PicturePtr kept = KeptUnder(path, stamp)) return kept;
  PicturePtr picture = ReadPictureFile(path, stamp.length);
  Keep(path, stamp, picture);
  return picture;
}

void SetPictureReader(PictureReader reader) {
  if (reader != reader_in_force) Kept().clear();
  reader_in_force = reader;
}

}  // namespace tagwright
