// Events of the control model: one handler each, run at once, with faults ending at its boundary.
//
// While a handler runs the program is busy: its windows get no events, except the window that the
// handler itself has opened modally. Each modal window therefore opens a level of its own above the
// handler that waits for it; level 0 is the program without any.
#pragma once

#include <functional>
#include <type_traits>
#include <utility>

#include "platform/faults/fault.h"

namespace tagwright {

// How many event handlers are on the stack. 0 means that the program is at rest.
int RunningHandlers();

// Whether events of windows at `level` have to wait: a handler of that level runs, or a modal
// window stands above it. A level above the present one counts as the present one.
bool HandlerRuns(int level = 0);

// One modal window's level, from construction to destruction. Levels end in the reverse order of
// their beginning.
class ModalLevel {
 public:
  ModalLevel();
  ~ModalLevel();
  ModalLevel(const ModalLevel&) = delete;
  ModalLevel& operator=(const ModalLevel&) = delete;
  int Number() const { return number_; }  // 1 for the first modal window, 2 for one above it

 private:
  int number_;
};

// What to do with a fault that no routine trapped: the event ends and this is called. Returns the
// former function; an empty one stands for the usual one, in both directions.
using FaultReporter = std::function<void(const Fault&)>;
FaultReporter SetFaultReporter(FaultReporter reporter);

// What to do where nobody has said otherwise: the dialogs set it, which lie above this. Without any
// a fault ends its event and nothing is said.
void SetUsualFaultReporter(FaultReporter reporter);

// Runs `body` as one event handler: counts it in RunningHandlers and ends any fault at this
// boundary, as also exceptions of the libraries below (as faults 7 and 51). When the outermost
// handler of the level is done, work that had to wait (see AfterHandlers) runs.
void RunHandler(const std::function<void()>& body);

// Runs `work` when no handler of `level` is on the stack: now, or when the outermost one ends, in
// the order of asking. `key` identifies the work: of several waiting under one non-null key only
// the last one runs, at its own place. A fault in it is reported and ends it.
void AfterHandlers(const void* key, std::function<void()> work, int level = 0);

// What is to run each time the program comes to rest, when the outermost handler of a level is done
// and before the work that waited for it. For what shows state that every handler may change; it
// replaces the former one, and an empty function stands for nothing.
void SetAfterEachHandler(std::function<void()> work);

// Forgets the waiting work of `key` (its owner is going away); with null, all waiting work.
void ForgetAfterHandlers(const void* key);

// One event of one control (or of all elements of a control array: then the first argument is the
// element's index). At most one handler; binding again replaces it.
//
// `Args` always begin with the index; a handler may leave the index out of its parameters.
template <class... Args>
class Event {
 public:
  // Binds a handler that takes (index, args...) or, for a single control, just (args...).
  template <class Handler>
  Event& operator=(Handler handler) {
    if constexpr (std::is_invocable_v<Handler, int, Args...>) {
      handler_ = std::move(handler);
    } else {
      handler_ = [handler = std::move(handler)](int, Args... args) { handler(args...); };
    }
    return *this;
  }

  // Runs the handler, if there is one, before it returns. Never throws a Fault.
  void Raise(int index, Args... args) const {
    if (!handler_) return;
    const auto handler = handler_;  // a handler may rebind its own event
    RunHandler([&] { handler(index, args...); });
  }

  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(int, Args...)> handler_;
};

}  // namespace tagwright
