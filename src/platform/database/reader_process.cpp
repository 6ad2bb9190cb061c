#include "platform/database/reader_process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

constexpr std::chrono::milliseconds kMeanwhileEvery{50};

struct Pipe {
  int read = -1;
  int write = -1;
};

// Neither end reaches other programs that are started meanwhile.
Pipe MakePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) RaiseFault(kDatabaseFault);
  return {ends[0], ends[1]};
}

// Where the new process's input, output and messages go. The output first: the pipe could have one
// of the other numbers.
class Redirections {
 public:
  explicit Redirections(int output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  }
  ~Redirections() { posix_spawn_file_actions_destroy(&actions_); }
  Redirections(const Redirections&) = delete;
  Redirections& operator=(const Redirections&) = delete;
  const posix_spawn_file_actions_t* Get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

// Starts `program`, its standard output going to `output`. Returns 0 when it cannot be started.
pid_t Start(const std::string& program, std::vector<std::string> arguments, int output) {
  arguments.insert(arguments.begin(), program);
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  const Redirections redirections(output);
  pid_t process = 0;
  const int failed =
      posix_spawn(&process, program.c_str(), redirections.Get(), nullptr, pointers.data(), environ);
  return failed == 0 ? process : 0;
}

}  // namespace

ReaderProcess::ReaderProcess(const ReaderProgram& program, std::vector<std::string> question)
    : silence_(program.silence), meanwhile_(program.meanwhile) {
  const Pipe pipe = MakePipe();
  process_ = Start(program.path, std::move(question), pipe.write);
  close(pipe.write);
  output_ = pipe.read;
  if (process_ != 0) return;
  close(output_);
  RaiseFault(kDatabaseFault, "The program that reads databases does not start: " + program.path);
}

// A reader that still has something to say, or hangs, is of no use any more.
ReaderProcess::~ReaderProcess() {
  close(output_);
  kill(process_, SIGKILL);
  while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) continue;
}

bool ReaderProcess::HasOutput(std::chrono::milliseconds within) const {
  pollfd waiting{output_, POLLIN, 0};
  return poll(&waiting, 1, static_cast<int>(within.count())) > 0;
}

void ReaderProcess::RunMeanwhile() {
  if (Clock::now() - looked_ < kMeanwhileEvery) return;
  if (meanwhile_) meanwhile_();
  looked_ = Clock::now();
}

void ReaderProcess::AwaitOutput() {
  const auto latest = Clock::now() + silence_;
  RunMeanwhile();
  while (!HasOutput(kMeanwhileEvery)) {
    if (Clock::now() > latest) RaiseFault(kDatabaseFault);
    RunMeanwhile();
  }
}

std::optional<Frame> ReaderProcess::Next() {
  constexpr std::size_t kPiece = 64 << 10;
  std::array<char, kPiece> piece;
  while (!ended_) {
    if (std::optional<Frame> frame = frames_.Next()) {
      ended_ = frame->kind == FrameKind::kEnd;
      if (!ended_) return frame;
      break;
    }
    AwaitOutput();
    const ssize_t count = read(output_, piece.data(), piece.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) RaiseFault(kDatabaseFault);
    frames_.Feed({piece.data(), static_cast<std::size_t>(count)});
  }
  return std::nullopt;
}

}  // namespace tagwright
