// What the desktop around the program offers, replaceable in tests.
#pragma once

#include <functional>
#include <string>

namespace tagwright {

// The folder of the running executable, without a trailing separator. Tests set their own.
std::string ExecutableFolder();
void SetExecutableFolder(std::string folder);  // empty: the real one again

// Opens a file or address in its default application. Returns a value above 32 on success and a
// number of 32 or less otherwise, as the shell call that users of this program know does.
// The function is filled by the platform; until then it returns 31 (nothing is associated).
using OpenTarget = std::function<int(const std::string& target, int show_command)>;
OpenTarget& DesktopOpen();

// The application-wide wait cursor: 11 hourglass, 0 default. The view follows.
int ScreenMousePointer();
void SetScreenMousePointer(int pointer);
std::function<void(int)>& ScreenMousePointerView();

// Shows the help file `path`; returns false when it is missing or cannot be shown.
using ShowHelp = std::function<bool(const std::string& path)>;
ShowHelp& DesktopShowHelp();

}  // namespace tagwright
