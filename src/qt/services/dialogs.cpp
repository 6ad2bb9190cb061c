#include "qt/services/dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QSplitter>

#include "platform/services/dialog_folders.h"
#include "qt/controls/modal_run.h"
#include "qt/controls/units.h"
#include "qt/controls/windows.h"
#include "qt/look/colors.h"
#include "qt/look/icons.h"

namespace tagwright {
namespace {

QString IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return "message-critical";
    case MessageIcon::kQuestion:
      return "message-question";
    case MessageIcon::kExclamation:
      return "message-exclamation";
    case MessageIcon::kInformation:
      return "message-information";
    default:
      return {};
  }
}

void SetIcon(QMessageBox& box, MessageIcon icon) {
  constexpr QSize kSize(40, 40);
  if (icon == MessageIcon::kNone) return;
  box.setIconPixmap(ThemedIcon(IconName(icon)).pixmap(kSize, box.devicePixelRatioF()));
}

void AddButtons(QMessageBox& box, MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kYesNo:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      box.setEscapeButton(QMessageBox::No);
      break;
    case MessageButtons::kYesNoCancel:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
      break;
    default:
      box.setStandardButtons(QMessageBox::Ok);
  }
}

Answer ToAnswer(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    case QMessageBox::Cancel:
      return Answer::kCancel;
    default:
      return Answer::kOk;
  }
}

QString TitleOf(const std::string& title) { return title.empty() ? ProgramName() : ToQt(title); }

class ToolkitDialogs : public DialogService {
 public:
  Answer MessageBox(const std::string& text, MessageButtons buttons, MessageIcon icon,
                    const std::string& title) override {
    const ModalRun run;
    QMessageBox box(WindowForDialogs());
    box.setWindowTitle(TitleOf(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    SetIcon(box, icon);
    AddButtons(box, buttons);
    return ToAnswer(box.exec());
  }

  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& initial) override {
    const ModalRun run;
    QInputDialog box(WindowForDialogs());
    box.setWindowTitle(TitleOf(title));
    box.setLabelText(ToQt(prompt));
    box.setTextValue(ToQt(initial));
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
  }

  std::optional<std::string> OpenFile(const FileDialogRequest& request) override {
    return ChooseFile(request, QFileDialog::AcceptOpen);
  }

  std::optional<std::string> SaveFile(const FileDialogRequest& request) override {
    return ChooseFile(request, QFileDialog::AcceptSave);
  }

  std::optional<std::int32_t> ChooseColor(std::int32_t initial) override {
    const ModalRun run;
    QColorDialog dialog(ToQColor(initial), WindowForDialogs());
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QColor color = dialog.selectedColor();
    return Rgb(color.red(), color.green(), color.blue());
  }

 private:
  std::optional<std::string> ChooseFile(const FileDialogRequest& request,
                                        QFileDialog::AcceptMode mode) {
    const ModalRun run;
    const bool opens = mode == QFileDialog::AcceptOpen;
    QFileDialog dialog(WindowForDialogs(), opens ? "Open" : "Save As", FolderFor(request));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setNameFilters(NameFilters(request.filter));
    dialog.setDefaultSuffix(ToQt(request.default_extension));
    if (!request.file_name.empty()) Preselect(dialog, ToQt(request.file_name));
    GiveRoom(dialog);
    const int result = dialog.exec();
    CloseCompletions();
    if (result != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    folder_ = dialog.directory().absolutePath();
    return QDir::toNativeSeparators(dialog.selectedFiles().front()).toStdString();
  }

  QString FolderFor(const FileDialogRequest& request) const {
    const QString folder = ToQt(DialogFolder(request.filter));
    return !folder.isEmpty() && QDir(folder).exists() ? folder : folder_;
  }

  // Names of folders and files are read whole, on the left and on the right.
  static void GiveRoom(QFileDialog& dialog) {
    constexpr int kPlaces = 160;
    dialog.resize(dialog.sizeHint().expandedTo(QSize(820, 480)));
    if (auto* parts = dialog.findChild<QSplitter*>()) {
      parts->setSizes({kPlaces, dialog.width() - kPlaces});
    }
  }

  // A name accepted while its completions hang open leaves them holding the mouse until the dialog
  // is gone, which waits for the thread that lists the folder: a quick drag on the board was lost.
  static void CloseCompletions() {
    if (QWidget* completions = QApplication::activePopupWidget()) completions->close();
  }

  static void Preselect(QFileDialog& dialog, const QString& file) {
    const QFileInfo info(file);
    if (info.isAbsolute() && info.dir().exists()) dialog.setDirectory(info.dir());
    dialog.selectFile(info.fileName());
  }

  // Where the last file was chosen: a dialog that is told nothing better starts there.
  QString folder_ = QDir::homePath();
};

}  // namespace

std::unique_ptr<DialogService> MakeDialogService() { return std::make_unique<ToolkitDialogs>(); }

QString ProgramName() { return "Tagwright"; }

QStringList NameFilters(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (int i = 0; i < parts.size(); i += 2) {
    const QString description = parts[i].trimmed();
    const QString patterns = i + 1 < parts.size() ? parts[i + 1].trimmed() : QString();
    if (description.isEmpty() && patterns.isEmpty()) continue;
    const QStringList list = patterns.split(';', Qt::SkipEmptyParts);
    QStringList trimmed;
    for (const QString& pattern : list) trimmed << pattern.trimmed();
    const QString told = "(" + (trimmed.isEmpty() ? "*" : trimmed.join(' ')) + ")";
    filters << (description.endsWith(told) ? description : description + " " + told);
  }
  return filters;
}

}  // namespace tagwright
