#include "platform/files/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/faults/fault.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

std::string WithSystemSeparators(std::string_view path) {
  std::string out(path);
  std::replace(out.begin(), out.end(), '\\', '/');
  return out;
}

// A name with a zero byte in it would be cut there on its way to the system and mean another file.
bool CanBeName(std::string_view path) {
  return !Trim(path).empty() && path.find('\0') == std::string_view::npos;
}

std::optional<struct stat> Status(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return std::nullopt;
  return status;
}

bool Exists(const std::string& path) { return Status(path).has_value(); }

bool IsFolder(const std::string& path) {
  const auto status = Status(path);
  return status && S_ISDIR(status->st_mode);
}

std::vector<std::string> Entries(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
  if (!listing) return names;
  while (const dirent* entry = readdir(listing.get())) names.emplace_back(entry->d_name);
  return names;
}

// The entry of `folder` that `name` means: the exact one, else the first that differs only in case.
// Empty when there is none. A name that more of the path follows can only be a folder.
std::string EntryNamed(const std::string& folder, const std::string& name, bool is_last) {
  const auto fits = [&](const std::string& entry) {
    return is_last ? Exists(folder + entry) : IsFolder(folder + entry);
  };
  if (fits(name)) return name;
  std::string best;
  for (const std::string& entry : Entries(folder.empty() ? "." : folder)) {
    if (!EqualPaths(entry, name) || !fits(entry)) continue;
    if (best.empty() || entry < best) best = entry;
  }
  return best;
}

// Where `path` is to be written: under exactly its name, in the folder that the rest of it means.
std::string PathToWrite(std::string_view path) {
  const std::string whole = WithSystemSeparators(path);
  const std::size_t name = whole.rfind('/') + 1;
  return ResolvePath(whole.substr(0, name)) + whole.substr(name);
}

// A device, or a link to one, is not ours to remove.
void RemoveIfFile(const std::string& path) {
  const auto status = Status(path);
  if (status && S_ISREG(status->st_mode)) unlink(path.c_str());
}

// --- descriptors ---

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return number_; }
  // Closes now and returns whether all that was written has been taken.
  bool Close() { return close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

int FaultOfError(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return kFileNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    case EIO:
      return kDeviceFault;
    default:
      return kFileAccess;
  }
}

// Without blocking: a pipe by that name would hold the program until somebody writes to it.
int OpenForReading(std::string_view path) {
  const std::string resolved = ResolvePath(path);
  if (!CanBeName(path) || !Exists(resolved)) RaiseFault(kFileNotFound);
  const int number = open(resolved.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (number < 0) RaiseFault(FaultOfError(errno));
  return number;
}

void RequireRegular(const Descriptor& file) {
  struct stat status {};
  if (fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) RaiseFault(kFileAccess);
}

// In writing a missing folder is no missing file: there was none to be found.
[[noreturn]] void RaiseWriteFault(int error) {
  const int fault = FaultOfError(error);
  RaiseFault(fault == kFileNotFound ? static_cast<int>(kFileAccess) : fault);
}

}  // namespace

bool EqualPaths(std::string_view a, std::string_view b) {
  return EqualIgnoringCase(a, b) || LowerCase(a) == LowerCase(b);
}

std::string ResolvePath(std::string_view path) {
  std::string whole = WithSystemSeparators(path);
  if (!CanBeName(path) || Exists(whole)) return whole;
  std::string resolved;
  std::size_t at = 0;
  while (at < whole.size()) {
    const std::size_t slash = std::min(whole.find('/', at), whole.size());
    const bool is_last = slash == whole.size();
    const std::string name = whole.substr(at, slash - at);
    const std::string entry = name.empty() ? name : EntryNamed(resolved, name, is_last);
    if (entry.empty() && !name.empty()) return resolved + whole.substr(at);
    resolved += entry;
    if (!is_last) resolved += '/';
    at = slash + 1;
  }
  return resolved;
}

bool FileExists(std::string_view path) {
  if (!CanBeName(path)) return false;
  const auto status = Status(ResolvePath(path));
  return status && S_ISREG(status->st_mode);
}

std::int64_t FileLength(std::string_view path) {
  if (!FileExists(path)) RaiseFault(kFileNotFound);
  const auto status = Status(ResolvePath(path));
  if (!status) RaiseFault(kFileNotFound);
  return status->st_size;
}

FileStamp StampOfFile(std::string_view path) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  constexpr std::int64_t kCoarsestClock = 3 * kNanoseconds;  // two seconds on some file systems
  const auto status = CanBeName(path) ? Status(ResolvePath(path)) : std::nullopt;
  if (!status || !S_ISREG(status->st_mode)) RaiseFault(kFileNotFound);
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  const std::int64_t changed = status->st_ctim.tv_sec * kNanoseconds + status->st_ctim.tv_nsec;
  const std::int64_t age = now.tv_sec * kNanoseconds + now.tv_nsec - changed;
  return {status->st_dev, status->st_ino, status->st_size, changed, age > kCoarsestClock};
}

std::string ReadFile(std::string_view path) { return ReadFileStart(path, std::string::npos); }

std::string ReadFileStart(std::string_view path, std::size_t limit) {
  const Descriptor file(OpenForReading(path));
  RequireRegular(file);
  std::string bytes;
  char chunk[65536];
  while (bytes.size() < limit) {
    const std::size_t wanted = std::min(sizeof chunk, limit - bytes.size());
    const ssize_t got = read(file.Number(), chunk, wanted);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) RaiseFault(FaultOfError(errno));
    if (got == 0) break;
    bytes.append(chunk, static_cast<std::size_t>(got));
  }
  return bytes;
}

void WriteFile(std::string_view path, std::string_view bytes) {
  if (!CanBeName(path)) RaiseFault(kFileAccess);
  Descriptor file(open(PathToWrite(path).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
  if (file.Number() < 0) RaiseWriteFault(errno);
  while (!bytes.empty()) {
    const ssize_t put = write(file.Number(), bytes.data(), bytes.size());
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) RaiseWriteFault(errno);
    bytes.remove_prefix(static_cast<std::size_t>(put));
  }
  if (!file.Close()) RaiseWriteFault(errno);
}

void ReplaceFile(std::string_view path, std::string_view bytes) {
  const std::string target = PathToWrite(path);
  if (CanBeName(path)) RemoveIfFile(target);
  try {
    WriteFile(path, bytes);
  } catch (const Fault&) {
    if (CanBeName(path)) RemoveIfFile(target);
    throw;
  }
}

void DeleteFile(std::string_view path) {
  const std::string resolved = ResolvePath(path);
  if (!CanBeName(path) || unlink(resolved.c_str()) != 0) {
    RaiseFault(CanBeName(path) ? FaultOfError(errno) : static_cast<int>(kFileNotFound));
  }
}

std::string FileBaseName(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

}  // namespace tagwright
