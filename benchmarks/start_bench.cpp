// From the start of a process to the first painted pixel of its window, on a display without a
// window manager: ours beside a bare window. A program paints nothing before its first paint, so
// the screen under the window changes at that moment and not earlier.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

// Inside either window, which both stand at the display's corner.
constexpr int kProbeX = 300;
constexpr int kProbeY = 300;
constexpr double kLongestStart = 20;  // seconds

Display* OpenDisplay() {
  Display* display = XOpenDisplay(nullptr);
  if (!display) throw std::runtime_error("no display");
  return display;
}

unsigned long ProbePixel(Display* display) {
  XImage* image =
      XGetImage(display, DefaultRootWindow(display), kProbeX, kProbeY, 1, 1, AllPlanes, ZPixmap);
  const unsigned long pixel = XGetPixel(image, 0, 0);
  XDestroyImage(image);
  return pixel;
}

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

pid_t Start(const fs::path& executable) {
  const pid_t pid = fork();
  if (pid == 0) {
    execl(executable.c_str(), executable.c_str(), nullptr);
    _exit(127);
  }
  return pid;
}

void End(pid_t pid) {
  kill(pid, SIGKILL);
  waitpid(pid, nullptr, 0);
}

double SecondsToFirstPaint(Display* display, const fs::path& executable) {
  XClearWindow(display, DefaultRootWindow(display));
  const unsigned long bare_screen = ProbePixel(display);
  const auto start = Clock::now();
  const pid_t pid = Start(executable);
  double taken = 0;
  do {
    taken = SecondsSince(start);
    if (taken > kLongestStart || waitpid(pid, nullptr, WNOHANG) == pid) {
      throw std::runtime_error(executable.string() + " showed no window");
    }
    usleep(200);
  } while (ProbePixel(display) == bare_screen);
  taken = SecondsSince(start);
  End(pid);
  while (ProbePixel(display) != bare_screen) usleep(1000);
  return taken;
}

void StartToFirstPaint(benchmark::State& state, const fs::path& executable) {
  Display* display = OpenDisplay();
  SecondsToFirstPaint(display, executable);  // into the file cache
  for (auto _ : state) state.SetIterationTime(SecondsToFirstPaint(display, executable));
  XCloseDisplay(display);
}

// All files of an installation lie beside the executable: each run of the benchmark has its own.
fs::path FreshCopy(const fs::path& executable) {
  std::string pattern = (fs::temp_directory_path() / "tagwright-bench-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
  const fs::path copy = fs::path(pattern) / executable.filename();
  fs::copy_file(executable, copy);
  return copy;
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  const fs::path program = FreshCopy(TAGWRIGHT_EXECUTABLE);
  for (const auto& [name, executable] :
       {std::pair<const char*, fs::path>{"start to first paint/ours", program},
        {"start to first paint/floor", BARE_WINDOW}}) {
    benchmark::RegisterBenchmark(name, StartToFirstPaint, executable)
        ->UseManualTime()
        ->Iterations(15)
        ->Unit(benchmark::kMillisecond);
  }
  benchmark::RunSpecifiedBenchmarks();
  fs::remove_all(program.parent_path());
}
