// Events of the control model: one handler each, run at once, with faults ending at its boundary.
#pragma once

#include <functional>
#include <type_traits>
#include <utility>

#include "platform/fault.h"

namespace tagwright {

// How many event handlers are on the stack. 0 means that the program is at rest.
int RunningHandlers();

// What to do with a fault that no routine trapped: the event ends and this is called. The default
// shows the fault's number and description in a message box. Returns the former function.
using FaultReporter = std::function<void(const Fault&)>;
FaultReporter SetFaultReporter(FaultReporter reporter);

// Runs `body` as one event handler: counts it in RunningHandlers and ends any fault at this
// boundary. When the outermost handler is done, work that had to wait (see AfterHandlers) runs.
void RunHandler(const std::function<void()>& body);

// Runs `work` when no handler is on the stack: now, or when the outermost handler ends. `key`
// identifies the work: of several waiting under one non-null key the last one wins.
void AfterHandlers(const void* key, std::function<void()> work);

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
