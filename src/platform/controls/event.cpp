#include "platform/controls/event.h"

#include <algorithm>
#include <exception>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace tagwright {
namespace {

struct Waiting {
  const void* key;
  int level;
  std::function<void()> work;
};

struct Level {
  int base;               // handlers that ran when the level began
  bool draining = false;  // waiting work of this level is being run
};

struct EventState {
  int running = 0;
  std::vector<Level> levels{Level{0}};
  std::vector<Waiting> waiting;
  FaultReporter reporter;
  FaultReporter usual_reporter;  // for when there is no other
  std::function<void()> after_each;
};

// Never destroyed: forms stand before main() and live until the process ends.
EventState& State() {
  static EventState& state = *new EventState;
  return state;
}

int TopLevel() { return static_cast<int>(State().levels.size()) - 1; }

void Report(const Fault& fault) {
  const FaultReporter reporter = State().reporter ? State().reporter : State().usual_reporter;
  // A report that fails itself has nobody left to tell.
  if (reporter) CarryOn([&] { reporter(fault); });
}

void RunBounded(const std::function<void()>& body) {
  try {
    body();
  } catch (const Fault& fault) {
    Report(fault);
  } catch (const std::bad_alloc&) {
    Report({kOutOfMemory, FaultDescription(kOutOfMemory)});
  } catch (const std::exception& error) {
    Report({kInternalError, FaultDescription(kInternalError) + ": " + error.what()});
  }
}

// The first work that may run now. Work of a level that is gone belongs to the present one.
std::optional<Waiting> TakeWaiting() {
  std::vector<Waiting>& waiting = State().waiting;
  const auto first = std::find_if(waiting.begin(), waiting.end(),
                                  [](const Waiting& entry) { return entry.level >= TopLevel(); });
  if (first == waiting.end()) return std::nullopt;
  Waiting taken = std::move(*first);
  waiting.erase(first);
  return taken;
}

void RunWaiting() {
  const std::size_t top = State().levels.size() - 1;
  if (HandlerRuns(TopLevel()) || State().levels[top].draining) return;
  // Work that is added by work runs after it, not in its middle.
  State().levels[top].draining = true;
  while (const std::optional<Waiting> next = TakeWaiting()) RunBounded(next->work);
  State().levels[top].draining = false;
}

}  // namespace

int RunningHandlers() { return State().running; }

bool HandlerRuns(int level) {
  if (level < TopLevel()) return true;
  return State().running > State().levels.back().base;
}

ModalLevel::ModalLevel() : number_(TopLevel() + 1) { State().levels.push_back({State().running}); }

ModalLevel::~ModalLevel() {
  State().levels.pop_back();
  RunWaiting();
}

FaultReporter SetFaultReporter(FaultReporter reporter) {
  return std::exchange(State().reporter, std::move(reporter));
}

void SetUsualFaultReporter(FaultReporter reporter) { State().usual_reporter = std::move(reporter); }

void RunHandler(const std::function<void()>& body) {
  ++State().running;
  RunBounded(body);
  --State().running;
  if (State().after_each && !HandlerRuns(TopLevel())) RunBounded(State().after_each);
  RunWaiting();
}

void SetAfterEachHandler(std::function<void()> work) { State().after_each = std::move(work); }

void AfterHandlers(const void* key, std::function<void()> work, int level) {
  if (key) ForgetAfterHandlers(key);
  State().waiting.push_back({key, level, std::move(work)});
  RunWaiting();
}

void ForgetAfterHandlers(const void* key) {
  std::erase_if(State().waiting, [&](const Waiting& entry) { return !key || entry.key == key; });
}

}  // namespace tagwright
