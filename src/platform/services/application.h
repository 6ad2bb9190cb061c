// The process: starts the toolkit, installs the platform's services and runs the event loop.
#pragma once

#include <memory>

namespace tagwright {

// One per process, created first in main(). Installs fonts, pictures, printers, dialogs, windows,
// locale, clock and desktop services of the toolkit; without a display server it faults with a
// message on standard error and exit code 1.
class Application {
 public:
  Application(int& argc, char** argv);
  ~Application();
  // Runs until the last window is gone. Returns the process's exit code.
  int Run();

 private:
  struct Toolkit;
  std::unique_ptr<Toolkit> toolkit_;
};

}  // namespace tagwright
