// The reader: answers one question about a database file (see platform/database/reader_protocol.h).
// It exits with 0 after a whole answer.
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/database/reader_protocol.h"
#include "platform/faults/fault.h"
#include "reader/jet_file.h"

namespace tagwright {
namespace {

// --- what surrounds the library -----------------------------------------------------------------

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;  // address space is what that needs in plenty
#else
constexpr bool kSanitized = false;
#endif

void Limit(decltype(RLIMIT_AS) what, rlim_t most) {
  const rlimit limit{most, most};
  setrlimit(what, &limit);
}

// Whatever a damaged file makes the library do stays here: it gets no more memory than a large row
// needs, leaves no core file behind, and does not outlive the program that asked.
void Confine() {
  constexpr rlim_t kMostMemory = rlim_t{1} << 30;
  if (!kSanitized) Limit(RLIMIT_AS, kMostMemory);
  Limit(RLIMIT_CORE, 0);
  prctl(PR_SET_PDEATHSIG, SIGKILL);
}

// The library takes options and code pages from the environment, and may print: neither must reach
// the answer. Returns where that goes.
int TakeOutput() {
  clearenv();
  const int output = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (output < 0 || nowhere < 0) RaiseFault(kDatabaseFault);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  return output;
}

// --- the answer ---------------------------------------------------------------------------------

// Collects frames into larger pieces, yet never keeps one back for long: silence means that the
// library hangs.
class Answer {
 public:
  explicit Answer(int output) : output_(output) {}

  void Put(FrameKind kind, std::string_view content = {}) {
    bytes_ += FrameBytes(kind, content);
    if (bytes_.size() >= kPiece || Clock::now() - sent_ > kLongestDelay) Send();
  }

  void End() {
    Put(FrameKind::kEnd);
    Send();
  }

 private:
  using Clock = std::chrono::steady_clock;
  static constexpr std::size_t kPiece = 16 << 10;
  static constexpr std::chrono::seconds kLongestDelay{1};

  void Send() {
    for (std::size_t at = 0; at < bytes_.size();) {
      const ssize_t sent = write(output_, bytes_.data() + at, bytes_.size() - at);
      if (sent < 0 && errno != EINTR) RaiseFault(kDatabaseFault);
      if (sent > 0) at += static_cast<std::size_t>(sent);
    }
    bytes_.clear();
    sent_ = Clock::now();
  }

  int output_;
  std::string bytes_;
  Clock::time_point sent_ = Clock::now();
};

void PutNames(Answer& answer, const std::vector<std::string>& names) {
  for (const std::string& name : names) answer.Put(FrameKind::kName, name);
}

void PutTables(Answer& answer, JetFile& file) {
  for (const JetFile::Table& table : file.Tables()) {
    answer.Put(table.linked ? FrameKind::kLinked : FrameKind::kName, table.name);
  }
}

void PutRows(Answer& answer, JetFile& file) {
  std::vector<StoredValue> row;
  while (file.NextRow(row)) answer.Put(FrameKind::kRow, RowContent(row));
}

void AnswerQuestion(const std::vector<std::string>& arguments, Answer& answer) {
  if (arguments.size() < 2) RaiseFault(kDatabaseFault);
  const std::string& question = arguments[0];
  JetFile file(arguments[1]);
  if (question == "tables" && arguments.size() == 2) {
    PutTables(answer, file);
  } else if ((question == "fields" || question == "rows") && arguments.size() == 3) {
    file.OpenTable(arguments[2]);
    PutNames(answer, file.FieldNames());
    if (question == "rows") PutRows(answer, file);
  } else {
    RaiseFault(kDatabaseFault);
  }
  answer.End();
}

}  // namespace
}  // namespace tagwright

int main(int argc, char** argv) {
  using namespace tagwright;
  Confine();
  const bool answered = CarryOn([&] {
    Answer answer(TakeOutput());
    AnswerQuestion(std::vector<std::string>(argv + 1, argv + argc), answer);
  });
  return answered ? EXIT_SUCCESS : EXIT_FAILURE;
}
