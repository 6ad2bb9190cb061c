// The reader of databases, a program of its own (see reader_protocol.h), as a process: one
// question, and its answer as it comes in.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/database/reader_protocol.h"

namespace tagwright {

// How the reader is started and how long it may say nothing before it counts as hanging.
struct ReaderProgram {
  std::string path;
  std::chrono::milliseconds silence = std::chrono::seconds(10);
  // Called about every 50 milliseconds while the reader is waited for; empty for nothing.
  std::function<void()> meanwhile = nullptr;
};

// One question to the reader, and its answer as it comes in. The pipe holds some sixty thousand
// bytes; then the reader waits until more is asked for. Gone, it takes the process along.
class ReaderProcess {
 public:
  // Starts the reader with the words of a question. Faults kDatabaseFault when it does not start.
  ReaderProcess(const ReaderProgram& program, std::vector<std::string> question);
  ~ReaderProcess();
  ReaderProcess(const ReaderProcess&) = delete;
  ReaderProcess& operator=(const ReaderProcess&) = delete;

  // The next frame; nothing after the last one. Faults kDatabaseFault.
  std::optional<Frame> Next();

 private:
  using Clock = std::chrono::steady_clock;

  void AwaitOutput();
  bool HasOutput(std::chrono::milliseconds within) const;
  void RunMeanwhile();

  std::chrono::milliseconds silence_;
  std::function<void()> meanwhile_;
  int output_ = -1;
  pid_t process_ = 0;
  FrameReader frames_;
  bool ended_ = false;
  Clock::time_point looked_ = Clock::now();
};

}  // namespace tagwright
