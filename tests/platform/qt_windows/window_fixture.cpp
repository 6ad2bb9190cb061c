#include "platform/qt_windows/window_fixture.h"

#include "platform/controls/event.h"
#include "qt/controls/windows.h"
#include "qt/forms/form_files.h"
#include "qt/look/theme.h"

namespace tagwright {

QApplication& Toolkit() {
  static int count = 1;
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  // Never destroyed: forms and icons of the process look back at it until the very end.
  static QApplication& application = *new QApplication(count, arguments);
  return application;
}

WindowTest::WindowTest() {
  UseTheme(Toolkit(), LightTheme());
  service_ = MakeWindowService();
  UnloadAll();
  SetDialogs(&dialogs);
  SetWindowService(service_.get());
  Load(frmMain);
  window_ = WindowOf(frmMain);
  // Start-up does this when the window is resized; here nothing is bound.
  frmMain.picFunctions.Move(120, 0, 18960, frmMain.picFunctions.Height());
  frmMain.picTools.Move(60, 1980);
  frmMain.picBoard.Move(1500, 1980, 17580, 8400);
  frmMain.vS1.Move(17320, 0, 260, 8140);
  frmMain.hS1.Move(20, 8140, 17300, 260);
  frmMain.cmdXC.Move(17320, 8140, 260, 260);
  frmMain.Move(0, 0);  // or it would shrink to the screen, which is a small one
  Show(frmMain);
  (void)QTest::qWaitForWindowActive(window_);
}

WindowTest::~WindowTest() {
  UnloadAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  SetWindowService(nullptr);
  SetDialogs(nullptr);
}

void WindowTest::Front(PictureBox& panel) {
  panel.ZOrder();
  Settle();
}

void WindowTest::Click(const QString& name) {
  QWidget& widget = Find(name);
  const QPoint at = widget.mapTo(window_, widget.rect().center());
  QTest::mouseClick(Screen(), Qt::LeftButton, Qt::NoModifier, at);
}

void WindowTest::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(Screen(), key, modifiers);
}

void WindowTest::Type(const QString& text) {
  for (const QChar character : text) QTest::keyClick(Screen(), character.toLatin1());
}

void WindowTest::Settle() { QCoreApplication::processEvents(); }

}  // namespace tagwright
