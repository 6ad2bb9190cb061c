// A display of our own for tests that drive the real program with mouse and keyboard: an X server
// in memory, a window manager, a session bus for spoken names. One per test process, started on
// first use and gone with the process. Nothing here links against the program: it sees what a user
// sees, and the files that the program leaves.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tagwright::window_test {

// A place on the screen in pixels.
struct Box {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool operator==(const Box&) const = default;
};

// Room for the main window at twice its size.
constexpr int kScreenWidth = 2600;
constexpr int kScreenHeight = 1700;

// Output of a shell command, without its last newline. Throws when it fails and `must` is set.
std::string Shell(const std::string& command, bool must = true);

// Polls until `holds` is true; throws with `what` in the message when it is not after `seconds`.
// They are many for a busy machine: who waits for what comes waits no longer for it.
void WaitFor(const std::string& what, const std::function<bool()>& holds, double seconds = 30);

// --- the program ---------------------------------------------------------------------------------

// One run of the real executable, copied into a folder since all its files lie beside it.
class Program {
 public:
  // Copies the executable into `folder` unless it lies there, starts it and waits for its main
  // window. Variables come on top of a plain environment, as "LC_ALL=de_DE.UTF-8".
  explicit Program(const std::string& folder, const std::vector<std::string>& variables = {});
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  pid_t Pid() const { return pid_; }
  // Screen pixels of one of the program's own; the tree of spoken names counts the latter.
  double Scale() const { return scale_; }
  // Number of the main window.
  const std::string& Window() const { return window_; }
  std::string Title() const;
  // The main window's place inside its frame, and the whole with its frame.
  Box Client() const;
  Box Frame() const;
  bool Running() const;
  // Waits for the end by itself; returns the exit code, or minus the signal that ended it.
  int WaitForExit(double seconds = 30);
  // Peak memory in kilobytes.
  long PeakMemory() const;

 private:
  mutable pid_t pid_ = -1;
  mutable int status_ = 0;
  std::string window_;
  double scale_ = 1;
};

// --- mouse and keyboard --------------------------------------------------------------------------

void MoveMouse(int x, int y);
// Button 1 left, 2 middle, 3 right.
void Click(int x, int y, int button = 1);
void Click(const Box& box);
void Press(int button = 1);
void Release(int button = 1);
// Presses, moves in a few steps, releases.
void Drag(int from_x, int from_y, int to_x, int to_y);
// Keys by name, as "ctrl+s" or "Return".
void Key(const std::string& keys);
void Type(const std::string& text);

// --- what is on the screen -----------------------------------------------------------------------

// A control as assistive tools see it.
struct Spoken {
  std::string name;
  std::string role;
  std::string text;         // of fields and combos
  std::string description;  // of labels: what they show
  Box box;                  // on the screen
  bool enabled = false;
  bool checked = false;
  bool showing = false;
  std::string label;  // the caption beside it, for what is named by its own text
};

// Every control of the program, windows and menus included, in the order of the tree.
std::vector<Spoken> Everything(const Program& program);
// The first shown control with this spoken name (and role unless empty); waits for it.
Spoken Find(const Program& program, const std::string& name, const std::string& role = "");
// Whether one is shown now.
bool Shows(const Program& program, const std::string& name, const std::string& role = "");

// The one that has the keyboard; without a name when none has.
Spoken Focused(const Program& program);
// Presses it as an assistive tool does, without a mouse, and waits: a button shows for a moment
// that it is pressed before it acts. Throws when it cannot be pressed so.
void PressBySpeech(const Program& program, const std::string& name, const std::string& role);
// Gives it the keyboard likewise.
void FocusBySpeech(const Program& program, const std::string& name, const std::string& role);

// Titles of all shown windows of the screen.
std::vector<std::string> WindowTitles();
// Waits until a window with this in its title has the keyboard.
void WaitForWindow(const std::string& title_part);

// Opens a menu and clicks through its entries: {"File", "Open"}. Names are without marks. Waits for
// an entry to be enabled.
void ChooseMenu(const Program& program, const std::vector<std::string>& path);

// The unfolding list on the right of a caption; its name is the row that it shows.
Spoken FindCombo(const Program& program, const std::string& label);
// Unfolds it and chooses a row by its text.
void ChooseRow(const Program& program, const std::string& label, const std::string& row);

// The pixels of a part of the screen, row by row, as 0xRRGGBB.
std::vector<std::uint32_t> Pixels(const Box& part);

// Saves a part of the screen as PNG.
void Screenshot(const std::string& file, const Box& part = {0, 0, kScreenWidth, kScreenHeight});

// --- files ---------------------------------------------------------------------------------------

// A new empty folder under the system's temporary one, removed at the end of the process.
std::string FreshFolder();
std::string Contents(const std::string& file);

}  // namespace tagwright::window_test
