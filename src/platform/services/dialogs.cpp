#include "platform/services/dialogs.h"

#include <string_view>

#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/services/dialog_folders.h"

namespace tagwright {
namespace {

// A program without anybody before it: every question is backed out of.
class CancellingDialogs : public DialogService {
 public:
  Answer MessageBox(const std::string&, MessageButtons buttons, MessageIcon,
                    const std::string&) override {
    switch (buttons) {
      case MessageButtons::kYesNoCancel:
        return Answer::kCancel;
      case MessageButtons::kYesNo:
        return Answer::kNo;
      default:
        return Answer::kOk;
    }
  }
  std::string InputBox(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::optional<std::string> OpenFile(const FileDialogRequest&) override { return std::nullopt; }
  std::optional<std::string> SaveFile(const FileDialogRequest&) override { return std::nullopt; }
  std::optional<std::int32_t> ChooseColor(std::int32_t) override { return std::nullopt; }
};

DialogService* service_in_force = nullptr;

std::string LastPart(const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

// A cancelled common dialog is a fault only for those who asked for it.
template <class Chosen>
bool WasChosen(const std::optional<Chosen>& chosen, bool cancel_error) {
  if (!chosen && cancel_error) RaiseFault(kDialogCancelled);
  return chosen.has_value();
}

void TakeFile(CommonDialog& dialog, const std::optional<std::string>& chosen) {
  if (!WasChosen(chosen, dialog.CancelError)) return;
  dialog.FileName = *chosen;
  dialog.FileTitle = LastPart(*chosen);
  RememberFile(dialog.Filter, *chosen);
}

}  // namespace

DialogService& Dialogs() {
  static CancellingDialogs cancelling;
  return service_in_force ? *service_in_force : cancelling;
}

void SetDialogs(DialogService* service) {
  service_in_force = service;
  SetUsualFaultReporter([](const Fault& fault) {
    MessageBox(std::to_string(fault.number) + " - " + fault.description);
  });
}

Answer MessageBox(const std::string& text, MessageButtons buttons, MessageIcon icon,
                  const std::string& title) {
  ModalOpens();
  return Dialogs().MessageBox(text, buttons, icon, title);
}

std::string InputBox(const std::string& prompt, const std::string& title,
                     const std::string& initial) {
  ModalOpens();
  return Dialogs().InputBox(prompt, title, initial);
}

void CommonDialog::ShowOpen() {
  ModalOpens();
  TakeFile(*this, Dialogs().OpenFile({Filter, DefaultExt, FileName}));
}

void CommonDialog::ShowSave() {
  ModalOpens();
  TakeFile(*this, Dialogs().SaveFile({Filter, DefaultExt, FileName}));
}

void CommonDialog::ShowColor() {
  ModalOpens();
  const std::optional<std::int32_t> chosen = Dialogs().ChooseColor(Color);
  if (WasChosen(chosen, CancelError)) Color = *chosen;
}

}  // namespace tagwright
