// Files by name. A name to be found is taken as users of this program's files expect: exactly
// first, then ignoring case component by component. A name to be written is taken exactly, in a
// folder that is found. "/" and "\" both separate. Bytes are std::string.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tagwright {

// Whether two names or paths are equal when case is ignored, whichever way it is folded: a few
// letters, such as the sign for kelvin, have a lower case whose upper case is another letter.
bool EqualPaths(std::string_view a, std::string_view b);

// The existing file or folder that `path` means: the exact name, or the first one (in code point
// order) that differs only in case, component by component. `path` itself when there is none,
// with as many leading components resolved as exist. The result uses the system's separator.
std::string ResolvePath(std::string_view path);

// Whether `path` means an existing regular file. An empty or blank path does not.
bool FileExists(std::string_view path);

// Length in bytes. Faults 53 when there is no such file.
std::int64_t FileLength(std::string_view path);

// What tells one state of a file from another: which file it is, its length and when it last
// changed.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t number = 0;
  std::int64_t length = 0;
  std::int64_t changed = 0;  // nanoseconds since 1970
  // Whether it changed so long ago that a further change is sure to show in `changed`: clocks of
  // files are coarse.
  bool settled = false;

  bool operator==(const FileStamp&) const = default;
};

// The present state of a file. Faults 53 when there is no such file.
FileStamp StampOfFile(std::string_view path);

// The whole file. Faults 53 when there is none, 75 when it cannot be read, 57 on a device fault.
std::string ReadFile(std::string_view path);

// The first `limit` bytes at most. Faults as ReadFile.
std::string ReadFileStart(std::string_view path, std::size_t limit);

// Creates or overwrites the file of exactly this name with `bytes` from its start. An existing file
// that is longer keeps its tail (ReplaceFile leaves none). Faults 75, 57, 61 (disk full).
void WriteFile(std::string_view path, std::string_view bytes);

// Puts a file of exactly this name in the place of what was there: a former file goes first, and
// after a failure no part of the new one stays. A former one that cannot be deleted is written
// over. Faults as WriteFile.
void ReplaceFile(std::string_view path, std::string_view bytes);

// Deletes. Faults 53 when there is no such file, 75 when it cannot be deleted.
void DeleteFile(std::string_view path);

// The part after the last "/" or "\"; the whole path when there is none.
std::string FileBaseName(std::string_view path);

}  // namespace tagwright
