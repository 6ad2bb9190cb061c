#include "window/steps.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace tagwright::window_test {
namespace {

std::string FileName(const std::string& path) {
  return std::filesystem::path(path).filename().string();
}

std::string Numbers(int first, int second) {
  return " " + std::to_string(first) + " " + std::to_string(second);
}

}  // namespace

std::string SampleLabel(const std::string& name) { return TAGWRIGHT_SAMPLES "/" + name; }

void OpenProject(const Program& program, const std::string& path) {
  ChooseMenu(program, {"File", "Open"});
  WaitForWindow("Open");
  Type(path);
  Key("Return");
  WaitFor("\"" + path + "\" in the title",
          [&] { return program.Title().find("[" + FileName(path)) != std::string::npos; });
  WaitForWindow("Tagwright");
}

void SaveProjectAs(const Program& program, const std::string& path) {
  ChooseMenu(program, {"File", "Save As"});
  WaitForWindow("Save");
  Type(path);
  Key("Return");
  WaitForWindow("Tagwright");
  WaitFor("the file " + path, [&] { return std::filesystem::exists(path); });
}

std::string RecentName(std::string path) {
  for (char& letter : path) letter = static_cast<char>(std::tolower(letter));
  return path;
}

void BrowseToData(const Program& program, const std::string& kind, const std::string& path) {
  ChooseRow(program, "Import File Type", kind);
  WaitForWindow("Open");
  Type(path);
  Key("Return");
  // A slow machine gives the keyboard back before the dialog is gone from the screen.
  WaitFor("the dialog to close", [] { return std::ranges::count(WindowTitles(), "Open") == 0; });
  WaitForWindow("Tagwright");
}

void StartPrintToPdf(const Program& program, const std::string& path) {
  ChooseMenu(program, {"File", "Print"});
  ChooseRow(program, "Printer", "Print to PDF");
  Click(Find(program, "Print", "push button").box);
  WaitForWindow("Save");
  Type(path);
  Key("Return");
}

std::string AnswerMessage(const Program& program, const std::string& button) {
  std::string box;  // nothing is active for a moment while one window gives way to another
  WaitFor("the message to have the keyboard", [&] {
    box = Shell("xdotool getactivewindow", false);
    return !box.empty() && box != program.Window();
  });
  const Spoken pressed = Find(program, button, "push button");
  std::string text;  // the last one before the button
  for (const Spoken& spoken : Everything(program)) {
    if (spoken.role == "label" && spoken.showing && !spoken.name.empty()) text = spoken.name;
    if (spoken.name == button && spoken.role == pressed.role && spoken.showing) break;
  }
  Click(pressed.box);
  WaitFor("the message to go", [&] { return Shell("xdotool getactivewindow", false) != box; });
  return text;
}

int Leave(Program& program) {
  ChooseMenu(program, {"File", "Exit"});
  return program.WaitForExit();
}

Box Board(const Program& program) { return Find(program, "Label").box; }

Span LabelSpan(const Program& program) {
  constexpr std::uint32_t kWhite = 0xFFFFFF;
  Box middle = Board(program);
  middle.y += middle.height / 2;
  middle.height = 1;
  const auto pixels = Pixels(middle);
  const auto first = std::ranges::find(pixels, kWhite);
  return {middle.x + static_cast<int>(first - pixels.begin()),
          static_cast<int>(std::ranges::count(pixels, kWhite))};
}

int Coloured(const Program& program, std::uint32_t color) {
  const auto pixels = Pixels(Board(program));
  return static_cast<int>(std::ranges::count(pixels, color));
}

// What is asked of a window that is still being framed is lost.
void PlaceWindow(const Program& program, const Box& frame) {
  WaitFor("the window at its place", [&] {
    const Box client = program.Client();
    const Box outer = program.Frame();
    if (outer == frame) return true;
    Shell("xdotool windowsize " + program.Window() +
          Numbers(frame.width - (outer.width - client.width),
                  frame.height - (outer.height - client.height)));
    // The toolkit's windows count their place inside the frame.
    Shell("xdotool windowmove " + program.Window() +
          Numbers(frame.x + client.x - outer.x, frame.y + client.y - outer.y));
    return false;
  });
}

}  // namespace tagwright::window_test
