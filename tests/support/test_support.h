// What every test builds on: a program as fresh as at its start, on a fixed day, in a fixed locale,
// with fixed fonts, scripted dialogs, a folder of its own and no printer but a fake one.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/painting/recorder.h"
#include "platform/services/dialogs.h"
#include "support/fake_printer.h"
#include "support/scripted_progress.h"

namespace tagwright {

// Answers from a script and remembers what was asked. An unscripted message box answers kOk and an
// unscripted choice is cancelled; both are remembered.
class ScriptedDialogs : public DialogService {
 public:
  struct Message {
    std::string text;
    MessageButtons buttons;
    MessageIcon icon;
    std::string title;
  };
  std::vector<Message> messages;
  std::vector<FileDialogRequest> requests;
  std::vector<std::string> prompts;
  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> files;
  std::deque<std::string> inputs;
  std::deque<std::optional<std::int32_t>> colors;

  Answer MessageBox(const std::string& text, MessageButtons buttons, MessageIcon icon,
                    const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& initial) override;
  std::optional<std::string> OpenFile(const FileDialogRequest& request) override;
  std::optional<std::string> SaveFile(const FileDialogRequest& request) override;
  std::optional<std::int32_t> ChooseColor(std::int32_t initial) override;
};

// A folder under the system's temporary one, gone with its owner.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  const std::string& Path() const { return path_; }  // no trailing separator
  std::string File(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

// A picture of a given natural size that paints nothing (hundredths of a millimetre).
PicturePtr BlankPicture(double width, double height);

// The folder of the repository's own test data, and of the larger data that only some machines
// have: empty when it is not there (tests on it are skipped with a line that says so).
std::string TestDataFolder();
std::string SharedDataFolder();

// Everything back to program start, then frmMain loaded with nothing bound.
void FreshProgram(const std::string& app_folder);

// The usual fixture.
class ProgramTest : public testing::Test {
 protected:
  ProgramTest();
  ~ProgramTest() override;
  // A board of this client size, ready to redraw, as after the first activation.
  void ReadyBoard(double width_mm = 300, double height_mm = 200);
  RecordingSurface& Board();  // picBoard's canvas

  TempFolder folder;
  ScriptedDialogs dialogs;
  FakePrinterList printers;
  ScriptedProgress progress;
};

}  // namespace tagwright
