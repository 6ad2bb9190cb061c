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

#include "platform/dialogs.h"
#include "platform/printer.h"
#include "platform/recorder.h"

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

// A printer that records its pages. Paper in twips; the surface is the full page unless margins are
// given (twips, left and top; the scale is then the printable area).
class FakePrinter : public PrinterDevice {
 public:
  FakePrinter(std::string name, double pixels_per_inch);
  std::string DeviceName() const override { return name_; }
  Surface& Page() override { return *page_; }
  int Orientation() const override { return orientation_; }
  void SetOrientation(int value) override;
  int PaperSize() const override { return paper_; }
  void SetPaperSize(int value) override;
  double Width() const override;
  double Height() const override;
  void NewPage() override;
  void EndDoc() override;
  void KillDoc() override;

  RecordingSurface& Recorder() { return *page_; }

 private:
  std::string name_;
  double pixels_per_inch_;
  int orientation_ = 1;
  int paper_ = 9;
  std::unique_ptr<RecordingSurface> page_;
};

// Finished pages and jobs of all fake printers.
struct FakePrinterLog {
  std::vector<std::vector<Painted>> pages;
  int jobs = 0;
  int dropped = 0;
};

class FakePrinterList : public PrinterService {
 public:
  std::vector<std::string> names = {"Test printer"};
  double pixels_per_inch = 600;
  static FakePrinterLog& Log();
  std::vector<std::string> Names() override { return names; }
  std::string DefaultName() override { return names.empty() ? "" : names.front(); }
  std::unique_ptr<PrinterDevice> Open(const std::string& name) override;
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
};

}  // namespace tagwright
