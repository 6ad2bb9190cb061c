// A disk without room, as far as one process is concerned.
#pragma once

#include <sys/resource.h>

#include <csignal>
#include <fstream>
#include <string>

namespace tagwright {

// Files of this process may not grow beyond a limit while this lives: a write that would fails, as
// on a disk that has become full.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  // Whether this system holds a process to its limit; tried with a file of this name.
  static bool CanBeArranged(const std::string& file) {
    constexpr int kLimit = 100;
    const FileSizeLimit disk(kLimit);
    std::ofstream tried(file, std::ios::binary);
    return tried && !(tried << std::string(2 * kLimit, 'x')).flush();
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace tagwright
