#include "platform/services/desktop.h"

#include <unistd.h>

#include <climits>
#include <utility>

namespace tagwright {
namespace {

constexpr int kNothingAssociated = 31;

std::string folder_of_tests;
int screen_mouse_pointer = 0;

std::string RealExecutableFolder() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  if (length <= 0) return ".";
  const std::string whole(path, static_cast<std::size_t>(length));
  return whole.substr(0, whole.rfind('/'));
}

}  // namespace

std::string ExecutableFolder() {
  return folder_of_tests.empty() ? RealExecutableFolder() : folder_of_tests;
}

void SetExecutableFolder(std::string folder) { folder_of_tests = std::move(folder); }

OpenTarget& DesktopOpen() {
  static OpenTarget open = [](const std::string&, int) { return kNothingAssociated; };
  return open;
}

int ScreenMousePointer() { return screen_mouse_pointer; }

void SetScreenMousePointer(int pointer) {
  screen_mouse_pointer = pointer;
  if (ScreenMousePointerView()) ScreenMousePointerView()(pointer);
}

std::function<void(int)>& ScreenMousePointerView() {
  static std::function<void(int)> view;
  return view;
}

ShowHelp& DesktopShowHelp() {
  static ShowHelp show = [](const std::string&) { return false; };
  return show;
}

}  // namespace tagwright
