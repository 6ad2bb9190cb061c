// Message boxes, input boxes and the common dialog. All go through one replaceable service, so that
// tests script the answers and read what was asked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tagwright {

enum class MessageButtons { kOk, kYesNo, kYesNoCancel };
enum class MessageIcon { kNone, kCritical, kQuestion, kExclamation, kInformation };
enum class Answer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

// What a file dialog is told. `filter` is "description|pattern|description|pattern", patterns
// separated by ";". `default_extension` is added to a name that has none.
struct FileDialogRequest {
  std::string filter;
  std::string default_extension;
  std::string file_name;
};

class DialogService {
 public:
  virtual ~DialogService() = default;
  // Modal; an empty title stands for the program's name. Esc or closing gives kCancel where there
  // is such a button, kNo under yes and no, otherwise kOk.
  virtual Answer MessageBox(const std::string& text, MessageButtons buttons, MessageIcon icon,
                            const std::string& title) = 0;
  // Modal; empty when the user cancels.
  virtual std::string InputBox(const std::string& prompt, const std::string& title,
                               const std::string& initial) = 0;
  // The full path chosen, or nothing when cancelled.
  virtual std::optional<std::string> OpenFile(const FileDialogRequest& request) = 0;
  // Likewise; the dialog itself asks before an existing file is chosen.
  virtual std::optional<std::string> SaveFile(const FileDialogRequest& request) = 0;
  // A colour 0x00BBGGRR, or nothing when cancelled.
  virtual std::optional<std::int32_t> ChooseColor(std::int32_t initial) = 0;
};

// The service in force. Until one is set every question is answered with its cancelling answer.
DialogService& Dialogs();

// Not owned; null: the cancelling one. From then on a fault that no routine has trapped is shown
// with its number and description (see SetUsualFaultReporter).
void SetDialogs(DialogService* service);

// Shorthands.
Answer MessageBox(const std::string& text, MessageButtons buttons = MessageButtons::kOk,
                  MessageIcon icon = MessageIcon::kExclamation, const std::string& title = {});
std::string InputBox(const std::string& prompt, const std::string& title = {},
                     const std::string& initial = {});

// The common dialog control: properties set before, read after. `Show...` faults 32755 when the
// user cancels and `CancelError` is set; without it a cancelled dialog leaves the properties alone.
struct CommonDialog {
  std::string Filter;
  std::string DefaultExt;
  std::string FileName;   // full path, in and out
  std::string FileTitle;  // its last part, out
  std::int32_t Color = 0;
  bool CancelError = false;

  void ShowOpen();
  void ShowSave();
  void ShowColor();
};

}  // namespace tagwright
