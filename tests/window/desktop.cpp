#include "window/desktop.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <atspi/atspi.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <utility>

namespace tagwright::window_test {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

[[noreturn]] void Fail(const std::string& what) { throw std::runtime_error(what); }

void Pause(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// Starts a program that ends with us at the latest; its output goes to `log`, unless empty.
pid_t Spawn(const std::vector<std::string>& arguments, const std::string& log) {
  const pid_t pid = fork();
  if (pid < 0) Fail("no new process");
  if (pid > 0) return pid;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int output = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
  dup2(output, STDOUT_FILENO);
  dup2(output, STDERR_FILENO);
  std::vector<char*> raw;
  for (const std::string& argument : arguments) raw.push_back(const_cast<char*>(argument.c_str()));
  raw.push_back(nullptr);
  execvp(raw[0], raw.data());
  _exit(127);
}

// As Spawn, for a program that reports a line on file descriptor `report`: returns that line.
pid_t SpawnReporting(const std::vector<std::string>& arguments, int report, const std::string& log,
                     std::string& line) {
  std::array<int, 2> pipe_ends{};
  if (pipe(pipe_ends.data()) != 0) Fail("no pipe");
  const int kept = dup(report);
  dup2(pipe_ends[1], report);
  const pid_t pid = Spawn(arguments, log);
  if (kept >= 0) {
    dup2(kept, report);
    close(kept);
  } else {
    close(report);
  }
  close(pipe_ends[1]);
  char letter = 0;
  while (read(pipe_ends[0], &letter, 1) == 1 && letter != '\n') line += letter;
  close(pipe_ends[0]);
  if (line.empty()) Fail(arguments[0] + " did not start");
  return pid;
}

void EndProcess(pid_t pid) {
  if (pid <= 0) return;
  kill(pid, SIGKILL);
  waitpid(pid, nullptr, 0);
}

// The display and what runs on it.
struct Session {
  std::string folder;
  std::vector<pid_t> processes;
  std::vector<std::string> made;

  Session() {
    std::string pattern = (fs::temp_directory_path() / "tagwright-window-XXXXXX").string();
    if (!mkdtemp(pattern.data())) Fail("no temporary folder");
    folder = pattern;
    PlainEnvironment();
    StartDisplay();
    StartBus();
    StartWindowManager();
    atspi_init();
    atspi_accessible_set_cache_mask(atspi_get_desktop(0), ATSPI_CACHE_NONE);
    constexpr int kAnswer = 30'000;  // milliseconds: a busy machine may keep the program waiting
    atspi_set_timeout(kAnswer, kAnswer);
  }

  ~Session() {
    for (auto pid = processes.rbegin(); pid != processes.rend(); ++pid) EndProcess(*pid);
    std::error_code ignored;  // leftovers are not worth a failing test
    fs::remove_all(folder, ignored);
  }

  // Nothing of the user's own desktop gets in.
  void PlainEnvironment() {
    for (const char* name : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR", "LANGUAGE",
                             "LC_NUMERIC", "LC_MONETARY", "LC_TIME", "XDG_CURRENT_DESKTOP"}) {
      unsetenv(name);
    }
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
      const std::string place = folder + "/" + name;
      fs::create_directory(place);
      fs::permissions(place, fs::perms::owner_all);
      setenv(name, place.c_str(), 1);
    }
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
  }

  void StartDisplay() {
    const std::string size =
        std::to_string(kScreenWidth) + "x" + std::to_string(kScreenHeight) + "x24";
    std::string number;
    processes.push_back(SpawnReporting(
        {"Xvfb", "-displayfd", "9", "-screen", "0", size, "-nolisten", "tcp", "-noreset"}, 9,
        Log("display"), number));
    setenv("DISPLAY", (":" + number).c_str(), 1);
  }

  void StartBus() {
    std::string address;
    processes.push_back(
        SpawnReporting({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=9"},
                       9, Log("bus"), address));
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
  }

  // A window that is mapped while the manager starts may never be managed: wait for it.
  void StartWindowManager() {
    processes.push_back(Spawn({"openbox"}, Log("window-manager")));
    Shell("xsetroot -solid '#5f6b76'");
    WaitFor("the window manager", [] {
      return Shell("xprop -root _NET_SUPPORTING_WM_CHECK", false).find('#') != std::string::npos;
    });
  }

  std::string Log(const std::string& name) const { return folder + "/" + name + ".log"; }
};

Session& TheSession() {
  static Session session;
  return session;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char letter : text) {
    if (letter == '\'') {
      quoted += "'\\''";
    } else {
      quoted += letter;
    }
  }
  return quoted + "'";
}

void Xdotool(const std::string& arguments) { Shell("xdotool " + arguments); }

// Keeps a picture of the screen on which something did not come, for who reads the failure.
std::string ScreenAtFailure() {
  const std::string file =
      TAGWRIGHT_FAILURES "/waited-in-vain-" + std::to_string(getpid()) + ".png";
  Shell("import -window root " + Quoted(file), false);
  return "; the screen was " + file;
}

// A value that xwininfo prints after `label`.
int Printed(const std::string& report, const std::string& label) {
  const std::size_t at = report.find(label);
  if (at == std::string::npos) Fail("no \"" + label + "\" in " + report);
  return std::stoi(report.substr(at + label.size()));
}

Box WindowBox(const std::string& window) {
  const std::string report = Shell("xwininfo -id " + window);
  return {Printed(report, "Absolute upper-left X:"), Printed(report, "Absolute upper-left Y:"),
          Printed(report, "Width:"), Printed(report, "Height:")};
}

std::string Geometry(const Box& part) {
  std::ostringstream text;
  text << part.width << 'x' << part.height << '+' << part.x << '+' << part.y;
  return text.str();
}

// --- the tree of spoken names --------------------------------------------------------------------

std::string Taken(char* text) {
  std::string taken = text ? text : "";
  g_free(text);
  return taken;
}

bool Has(AtspiAccessible* node, AtspiStateType state) {
  AtspiStateSet* states = atspi_accessible_get_state_set(node);
  const bool has = states && atspi_state_set_contains(states, state);
  if (states) g_object_unref(states);
  return has;
}

std::string TextOf(AtspiAccessible* node) {
  AtspiText* text = atspi_accessible_get_text_iface(node);
  if (!text) return "";
  std::string contents = Taken(atspi_text_get_text(text, 0, -1, nullptr));
  g_object_unref(text);
  return contents;
}

Box BoxOf(AtspiAccessible* node, double scale) {
  AtspiComponent* component = atspi_accessible_get_component_iface(node);
  if (!component) return {};
  AtspiRect* rect = atspi_component_get_extents(component, ATSPI_COORD_TYPE_SCREEN, nullptr);
  Box box;
  const auto pixels = [scale](int value) { return static_cast<int>(std::lround(value * scale)); };
  if (rect) box = {pixels(rect->x), pixels(rect->y), pixels(rect->width), pixels(rect->height)};
  g_free(rect);
  g_object_unref(component);
  return box;
}

std::string LabelOf(AtspiAccessible* node) {
  GArray* relations = atspi_accessible_get_relation_set(node, nullptr);
  std::string label;
  for (guint i = 0; relations && i < relations->len; ++i) {
    AtspiRelation* relation = g_array_index(relations, AtspiRelation*, i);
    if (atspi_relation_get_relation_type(relation) == ATSPI_RELATION_LABELLED_BY) {
      AtspiAccessible* target = atspi_relation_get_target(relation, 0);
      label = Taken(atspi_accessible_get_name(target, nullptr));
      g_object_unref(target);
    }
    g_object_unref(relation);
  }
  if (relations) g_array_free(relations, TRUE);
  return label;
}

// Newer versions of the accessibility bus call a push button a "button".
std::string RoleOf(AtspiAccessible* node) {
  const std::string role = Taken(atspi_accessible_get_role_name(node, nullptr));
  return role == "button" ? "push button" : role;
}

Spoken Described(AtspiAccessible* node, double scale) {
  Spoken spoken;
  spoken.name = Taken(atspi_accessible_get_name(node, nullptr));
  spoken.role = RoleOf(node);
  spoken.text = TextOf(node);
  spoken.description = Taken(atspi_accessible_get_description(node, nullptr));
  spoken.box = BoxOf(node, scale);
  spoken.enabled = Has(node, ATSPI_STATE_ENABLED);
  spoken.checked = Has(node, ATSPI_STATE_CHECKED);
  spoken.showing = Has(node, ATSPI_STATE_SHOWING);
  spoken.label = LabelOf(node);
  return spoken;
}

// Visits the tree under `node` until `visit` returns true, which is then the answer. The rows of
// lists are left out: there are hundreds, and they are chosen by typing.
bool Walk(AtspiAccessible* node, const std::function<bool(AtspiAccessible*)>& visit) {
  if (visit(node)) return true;
  if (atspi_accessible_get_role(node, nullptr) == ATSPI_ROLE_COMBO_BOX) return false;
  const int count = atspi_accessible_get_child_count(node, nullptr);
  for (int i = 0; i < count; ++i) {
    AtspiAccessible* child = atspi_accessible_get_child_at_index(node, i, nullptr);
    if (!child) continue;
    const bool found = Walk(child, visit);
    g_object_unref(child);
    if (found) return true;
  }
  return false;
}

bool WalkProgram(const Program& program, const std::function<bool(AtspiAccessible*)>& visit) {
  AtspiAccessible* desktop = atspi_get_desktop(0);
  const int count = atspi_accessible_get_child_count(desktop, nullptr);
  bool found = false;
  for (int i = 0; i < count && !found; ++i) {
    AtspiAccessible* application = atspi_accessible_get_child_at_index(desktop, i, nullptr);
    if (!application) continue;
    if (static_cast<pid_t>(atspi_accessible_get_process_id(application, nullptr)) ==
        program.Pid()) {
      found = Walk(application, visit);
    }
    g_object_unref(application);
  }
  g_object_unref(desktop);
  return found;
}

bool Matches(AtspiAccessible* node, const std::string& name, const std::string& role) {
  if (Taken(atspi_accessible_get_name(node, nullptr)) != name) return false;
  if (!role.empty() && RoleOf(node) != role) return false;
  return Has(node, ATSPI_STATE_SHOWING);
}

// The first action of a button is to press or to turn it; the last one of all to give it the
// keyboard.
bool PressNode(AtspiAccessible* node) {
  AtspiAction* action = atspi_accessible_get_action_iface(node);
  if (!action) return false;
  const std::string first = Taken(atspi_action_get_action_name(action, 0, nullptr));
  const bool done = first != "SetFocus" && atspi_action_do_action(action, 0, nullptr);
  g_object_unref(action);
  return done;
}

bool FocusNode(AtspiAccessible* node) {
  AtspiComponent* component = atspi_accessible_get_component_iface(node);
  if (!component) return false;
  const bool done = atspi_component_grab_focus(component, nullptr);
  g_object_unref(component);
  return done;
}

// A menu entry is found in the menu that was opened last: the innermost match.
bool FindInto(const Program& program, const std::string& name, const std::string& role,
              Spoken& found) {
  return WalkProgram(program, [&](AtspiAccessible* node) {
    if (!Matches(node, name, role)) return false;
    found = Described(node, program.Scale());
    return found.box.width > 0 && found.box.height > 0;
  });
}

}  // namespace

std::string Shell(const std::string& command, bool must) {
  FILE* pipe = popen(must ? command.c_str() : ("(" + command + ") 2>/dev/null").c_str(), "r");
  if (!pipe) Fail("no shell");
  std::string output;
  std::array<char, 4096> chunk{};
  while (const std::size_t count = fread(chunk.data(), 1, chunk.size(), pipe)) {
    output.append(chunk.data(), count);
  }
  if (pclose(pipe) != 0 && must) Fail("failed: " + command);
  if (!output.empty() && output.back() == '\n') output.pop_back();
  return output;
}

void WaitFor(const std::string& what, const std::function<bool()>& holds, double seconds) {
  const auto end = Clock::now() + std::chrono::duration<double>(seconds);
  bool last_look = false;  // on a busy machine a single one may take all the time there is
  while (!holds()) {
    if (last_look) Fail("waited in vain for " + what + ScreenAtFailure());
    last_look = Clock::now() > end;
    Pause(20);
  }
}

// --- the program ---------------------------------------------------------------------------------

Program::Program(const std::string& folder, const std::vector<std::string>& variables) {
  const std::string log = TheSession().Log("program");
  const fs::path executable = fs::path(folder) / "tagwright";
  const fs::path built = fs::path(TAGWRIGHT_EXECUTABLE).parent_path();
  for (const char* name : {"tagwright", "tagwright-reader"}) {
    if (!fs::exists(fs::path(folder) / name)) fs::copy_file(built / name, fs::path(folder) / name);
  }
  std::vector<std::string> command = {"env"};
  command.insert(command.end(), variables.begin(), variables.end());
  const std::string scale_variable = "QT_SCALE_FACTOR=";
  for (const std::string& variable : variables) {
    if (!variable.starts_with(scale_variable)) continue;
    scale_ = std::stod(variable.substr(scale_variable.size()));
  }
  command.push_back(executable.string());
  pid_ = Spawn(command, log);
  WaitFor("the main window", [&] {
    if (!Running()) Fail("the program ended before it showed a window:\n" + Contents(log));
    window_ = Shell("xdotool search --onlyvisible --pid " + std::to_string(pid_) +
                        " --name '^Tagwright Designer Gold ' | head -n 1",
                    false);
    return !window_.empty();
  });
  WaitFor("the keyboard to be in the main window",
          [&] { return Shell("xdotool getactivewindow", false) == window_; });
}

Program::~Program() {
  if (Running()) EndProcess(pid_);
}

std::string Program::Title() const { return Shell("xdotool getwindowname " + window_); }
Box Program::Client() const { return WindowBox(window_); }

Box Program::Frame() const {
  // "_NET_FRAME_EXTENTS(CARDINAL) = left, right, top, bottom"
  std::string report = Shell("xprop -notype -id " + window_ + " _NET_FRAME_EXTENTS");
  report.erase(0, report.find('=') + 1);
  std::ranges::replace(report, ',', ' ');
  std::istringstream numbers(report);
  int left = 0, right = 0, top = 0, bottom = 0;
  if (!(numbers >> left >> right >> top >> bottom)) Fail("no frame around the window");
  const Box client = Client();
  return {client.x - left, client.y - top, client.width + left + right,
          client.height + top + bottom};
}

bool Program::Running() const {
  if (pid_ > 0 && waitpid(pid_, &status_, WNOHANG) == pid_) pid_ = -1;
  return pid_ > 0;
}

int Program::WaitForExit(double seconds) {
  WaitFor(
      "the end of the program", [&] { return !Running(); }, seconds);
  return WIFEXITED(status_) ? WEXITSTATUS(status_) : -WTERMSIG(status_);
}

long Program::PeakMemory() const {
  const std::string status = Contents("/proc/" + std::to_string(pid_) + "/status");
  const std::size_t at = status.find("VmHWM:");
  return at == std::string::npos ? 0 : std::stol(status.substr(at + 6));
}

// --- mouse and keyboard --------------------------------------------------------------------------

void MoveMouse(int x, int y) {
  Xdotool("mousemove --sync " + std::to_string(x) + " " + std::to_string(y));
}

void Click(int x, int y, int button) {
  Xdotool("mousemove " + std::to_string(x) + " " + std::to_string(y) + " click " +
          std::to_string(button));
}

void Click(const Box& box) { Click(box.x + box.width / 2, box.y + box.height / 2); }

void Press(int button) { Xdotool("mousedown " + std::to_string(button)); }
void Release(int button) { Xdotool("mouseup " + std::to_string(button)); }

void Drag(int from_x, int from_y, int to_x, int to_y) {
  constexpr int kSteps = 8;
  Xdotool("mousemove " + std::to_string(from_x) + " " + std::to_string(from_y));
  Press();
  for (int step = 1; step <= kSteps; ++step) {
    Xdotool("mousemove " + std::to_string(from_x + (to_x - from_x) * step / kSteps) + " " +
            std::to_string(from_y + (to_y - from_y) * step / kSteps));
  }
  Release();
}

void Key(const std::string& keys) { Xdotool("key " + keys); }
void Type(const std::string& text) { Xdotool("type --delay 5 " + Quoted(text)); }

// --- what is on the screen -----------------------------------------------------------------------

std::vector<Spoken> Everything(const Program& program) {
  std::vector<Spoken> all;
  WalkProgram(program, [&](AtspiAccessible* node) {
    all.push_back(Described(node, program.Scale()));
    return false;
  });
  return all;
}

Spoken Find(const Program& program, const std::string& name, const std::string& role) {
  Spoken found;
  WaitFor("\"" + name + "\" " + role, [&] { return FindInto(program, name, role, found); });
  return found;
}

bool Shows(const Program& program, const std::string& name, const std::string& role) {
  Spoken found;
  return FindInto(program, name, role, found);
}

Spoken Focused(const Program& program) {
  Spoken found;
  WalkProgram(program, [&](AtspiAccessible* node) {
    if (!Has(node, ATSPI_STATE_FOCUSED)) return false;
    found = Described(node, program.Scale());
    return true;
  });
  return found;
}

// Waits for the control and does it once.
static bool DoBySpeech(const Program& program, const std::string& name, const std::string& role,
                       bool (*act)(AtspiAccessible*)) {
  bool done = false;
  WaitFor("\"" + name + "\" " + role, [&] {
    return WalkProgram(program, [&](AtspiAccessible* node) {
      if (!Matches(node, name, role)) return false;
      done = act(node);
      return true;
    });
  });
  return done;
}

void PressBySpeech(const Program& program, const std::string& name, const std::string& role) {
  if (!DoBySpeech(program, name, role, PressNode)) Fail("\"" + name + "\" cannot be pressed");
  Pause(300);
}

void FocusBySpeech(const Program& program, const std::string& name, const std::string& role) {
  if (!DoBySpeech(program, name, role, FocusNode)) Fail("\"" + name + "\" takes no keyboard");
  WaitFor("the keyboard in " + name, [&] { return Focused(program).name == name; });
}

std::vector<std::string> WindowTitles() {
  std::istringstream numbers(Shell("xdotool search --onlyvisible --name ''", false));
  std::vector<std::string> titles;
  for (std::string number; std::getline(numbers, number);) {
    const std::string title = Shell("xdotool getwindowname " + number, false);
    if (!title.empty()) titles.push_back(title);
  }
  return titles;
}

void WaitForWindow(const std::string& title_part) {
  WaitFor("the window \"" + title_part + "\"", [&] {
    return Shell("xdotool getactivewindow getwindowname", false).find(title_part) !=
           std::string::npos;
  });
}

void ChooseMenu(const Program& program, const std::vector<std::string>& path) {
  for (const std::string& name : path) {
    Spoken entry = Find(program, name, "menu item");
    // A menu may still be unfolding, and Save is enabled by a tick after a change: click when
    // the entry can be chosen and has come to rest.
    WaitFor("the menu to rest with \"" + name + "\" to choose", [&] {
      const Spoken before = std::exchange(entry, Find(program, name, "menu item"));
      return before.box == entry.box && entry.enabled;
    });
    Click(entry.box);
  }
}

int Middle(const Box& box) { return box.y + box.height / 2; }

Spoken FindCombo(const Program& program, const std::string& label) {
  const Box beside = Find(program, label, "label").box;
  Spoken found;
  WaitFor("a list beside \"" + label + "\"", [&] {
    WalkProgram(program, [&](AtspiAccessible* node) {
      if (atspi_accessible_get_role(node, nullptr) != ATSPI_ROLE_COMBO_BOX) return false;
      const Spoken combo = Described(node, program.Scale());
      const bool same_row = std::abs(Middle(combo.box) - Middle(beside)) < beside.height / 2;
      const bool nearer = found.role.empty() || combo.box.x < found.box.x;
      if (combo.showing && same_row && combo.box.x > beside.x && nearer) found = combo;
      return false;
    });
    return !found.role.empty();
  });
  return found;
}

void ChooseRow(const Program& program, const std::string& label, const std::string& row) {
  Click(FindCombo(program, label).box);
  WaitFor("the list to unfold", [&] {
    const std::string popups = Shell("xdotool search --onlyvisible --class tagwright", false);
    return std::ranges::count(popups, '\n') > 0;
  });
  Type(row);
  Key("Return");
  WaitFor("the row " + row, [&] { return FindCombo(program, label).name == row; });
}

std::vector<std::uint32_t> Pixels(const Box& part) {
  Display* display = XOpenDisplay(nullptr);
  if (!display) Fail("no display");
  XImage* image = XGetImage(display, DefaultRootWindow(display), part.x, part.y, part.width,
                            part.height, AllPlanes, ZPixmap);
  std::vector<std::uint32_t> pixels;
  for (int y = 0; image && y < part.height; ++y) {
    for (int x = 0; x < part.width; ++x) {
      pixels.push_back(static_cast<std::uint32_t>(XGetPixel(image, x, y)) & 0xFFFFFF);
    }
  }
  if (image) XDestroyImage(image);
  XCloseDisplay(display);
  if (pixels.empty()) Fail("no picture");
  return pixels;
}

void Screenshot(const std::string& file, const Box& part) {
  Shell("import -window root -crop " + Geometry(part) + " +repage " + Quoted(file));
}

// --- files ---------------------------------------------------------------------------------------

std::string FreshFolder() {
  Session& session = TheSession();
  const std::string folder = session.folder + "/" + std::to_string(session.made.size() + 1);
  fs::create_directory(folder);
  session.made.push_back(folder);
  return folder;
}

std::string Contents(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace tagwright::window_test
