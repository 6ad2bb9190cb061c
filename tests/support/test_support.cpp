#include "support/test_support.h"

#include <cstdlib>
#include <memory>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/controls/windows.h"
#include "platform/services/clock.h"
#include "platform/services/desktop.h"
#include "platform/services/dialog_folders.h"
#include "platform/services/progress.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

template <class T>
T Next(std::deque<T>& script, T otherwise) {
  if (script.empty()) return otherwise;
  T value = script.front();
  script.pop_front();
  return value;
}

class SizedPicture : public Picture {
 public:
  SizedPicture(double width, double height) {
    Width = width;
    Height = height;
  }
};

}  // namespace

Answer ScriptedDialogs::MessageBox(const std::string& text, MessageButtons buttons,
                                   MessageIcon icon, const std::string& title) {
  messages.push_back({text, buttons, icon, title});
  return Next(answers, Answer::kOk);
}

std::string ScriptedDialogs::InputBox(const std::string& prompt, const std::string&,
                                      const std::string&) {
  prompts.push_back(prompt);
  return Next(inputs, std::string());
}

std::optional<std::string> ScriptedDialogs::OpenFile(const FileDialogRequest& request) {
  requests.push_back(request);
  return Next(files, std::optional<std::string>());
}

std::optional<std::string> ScriptedDialogs::SaveFile(const FileDialogRequest& request) {
  requests.push_back(request);
  return Next(files, std::optional<std::string>());
}

std::optional<std::int32_t> ScriptedDialogs::ChooseColor(std::int32_t) {
  return Next(colors, std::optional<std::int32_t>());
}

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "tagwright-test-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
  path_ = pattern;
}

TempFolder::~TempFolder() {
  std::error_code ignored;  // a leftover folder is not worth a failing test
  std::filesystem::remove_all(path_, ignored);
}

PicturePtr BlankPicture(double width, double height) {
  return std::make_shared<SizedPicture>(width, height);
}

std::string TestDataFolder() { return TAGWRIGHT_TEST_DATA; }

std::string SharedDataFolder() {
  const std::string folder = TAGWRIGHT_SHARED_DATA;
  return std::filesystem::is_directory(folder) ? folder : std::string();
}

void FreshProgram(const std::string& app_folder) {
  UnloadAll();
  ForgetAfterHandlers(nullptr);
  ForgetDialogFolders();
  SetFaultReporter({});
  SetLocale({});
  SetCodePage(1252);
  SetFonts(nullptr);
  FixToday(Date{2026, 3, 14});
  ResetPrinter();
  FakePrinterList::Reset();
  ProgSettings = {};
  SetExecutableFolder(app_folder);
  AppFolder = app_folder + "/";
  ResetDocumentState();
  Load(frmMain);
}

ProgramTest::ProgramTest() {
  SetDialogs(&dialogs);
  SetPrinterList(&printers);
  SetProgressService(&progress);
  FreshProgram(folder.Path());
}

ProgramTest::~ProgramTest() {
  UnloadAll();
  ResetPrinter();
  SetDialogs(nullptr);
  SetPrinterList(nullptr);
  SetProgressService(nullptr);
  SetExecutableFolder("");
}

void ProgramTest::ReadyBoard(double width_mm, double height_mm) {
  frmMain.picBoard.SetWidth(width_mm * kTwipsPerMillimetre);
  frmMain.picBoard.SetHeight(height_mm * kTwipsPerMillimetre);
  frmMain.picBoard.SetScaleWidth(width_mm / ZoomFactor);
  frmMain.picBoard.SetScaleHeight(height_mm / ZoomFactor);
  DrawTarget = &frmMain.picBoard.Canvas();
  BoardReady = -1;
}

RecordingSurface& ProgramTest::Board() {
  return dynamic_cast<RecordingSurface&>(frmMain.picBoard.Canvas());
}

}  // namespace tagwright

// The font configuration keeps what it has read until the process ends: not a leak of ours.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the sanitizer's.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
