#include "platform/services/application.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>
#include <cstdio>
#include <cstdlib>

#include "platform/controls/windows.h"
#include "platform/database/database.h"
#include "platform/files/files.h"
#include "platform/services/desktop.h"
#include "platform/services/dialogs.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"
#include "qt/controls/spoken.h"
#include "qt/forms/form_files.h"
#include "qt/look/pointers.h"
#include "qt/look/theme.h"
#include "qt/services/database.h"
#include "qt/services/dialogs.h"
#include "qt/services/locale.h"
#include "qt/services/paint_services.h"
#include "qt/services/progress.h"

namespace tagwright {
namespace {

// Without a display the toolkit would abort; people get a sentence and an exit code instead.
void EndOnFatalMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "tagwright: %s\n", qPrintable(message));
  std::_Exit(EXIT_FAILURE);
}

std::unique_ptr<QApplication> StartToolkit(int& argc, char** argv) {
  const QtMessageHandler usual = qInstallMessageHandler(EndOnFatalMessage);
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(usual);
  return application;
}

void TakeUserLocale() {
  const UserLocale locale = LocaleOf(UserLocaleNames());
  SetLocale(locale);
  SetCodePage(locale.code_page);
}

int OpenOnDesktop(const std::string& target, int) {
  constexpr int kOpened = 33;
  constexpr int kNotFound = 2;
  const QUrl url = QUrl::fromUserInput(QString::fromStdString(target));
  return QDesktopServices::openUrl(url) ? kOpened : kNotFound;
}

// The desktop's own viewer of such files shows it.
bool ShowHelpFile(const std::string& path) {
  const bool there = FileExists(path);
  if (there && QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path))))
    return true;
  const std::string name = FileBaseName(path);
  MessageBox(there ? "The help file " + name + " cannot be shown on this system."
                   : "The help file " + name + " is missing.",
             MessageButtons::kOk, MessageIcon::kInformation);
  return false;
}

// One wait pointer over all windows, however often it is asked for.
void ShowScreenPointer(int pointer) {
  QApplication::restoreOverrideCursor();
  if (pointer != 0) QApplication::setOverrideCursor(PointerShape(pointer));
}

void InstallDesktop() {
  DesktopOpen() = OpenOnDesktop;
  DesktopShowHelp() = ShowHelpFile;
  ScreenMousePointerView() = ShowScreenPointer;
}

}  // namespace

struct Application::Toolkit {
  std::unique_ptr<QApplication> application;
  std::unique_ptr<WindowService> windows = MakeWindowService();
  std::unique_ptr<DialogService> dialogs = MakeDialogService();
  std::unique_ptr<ProgressService> progress = MakeProgressService();
};

Application::Application(int& argc, char** argv) : toolkit_(std::make_unique<Toolkit>()) {
  toolkit_->application = StartToolkit(argc, argv);
  TakeUserLocale();
  FollowDesktopTheme(*toolkit_->application);
  InstallSpokenControls();
  InstallPaintServices();
  InstallDesktop();
  SetDatabaseEngine(MakeDatabaseEngine(ReaderBesideProgram()));
  SetDialogs(toolkit_->dialogs.get());
  SetProgressService(toolkit_->progress.get());
  SetWindowService(toolkit_->windows.get());
}

Application::~Application() {
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  SetDatabaseEngine(nullptr);
  SetWindowService(nullptr);
  SetProgressService(nullptr);
  SetDialogs(nullptr);
  ScreenMousePointerView() = nullptr;
}

// The last window to go ends the loop.
int Application::Run() {
  if (Forms().empty()) return EXIT_SUCCESS;
  return QApplication::exec();
}

}  // namespace tagwright
