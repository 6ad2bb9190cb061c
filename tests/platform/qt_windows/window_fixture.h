// The main window of the program with nothing bound, shown on a display in memory.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "forms/frmAbout.h"
#include "forms/frmMain.h"
#include "forms/frmSerialNumber.h"
#include "platform/controls/windows.h"
#include "support/test_support.h"

namespace tagwright {

// The toolkit, started once for all tests of the program.
QApplication& Toolkit();

class WindowTest : public testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override;

  // The widget of a control by its object name, such as "txtDSize_2".
  template <class T = QWidget>
  T& Find(const QString& name) {
    T* widget = window_->findChild<T*>(name);
    if (!widget) throw std::runtime_error(name.toStdString() + " is missing");
    return *widget;
  }
  QWidget& Window() { return *window_; }
  QWindow* Screen() { return window_->windowHandle(); }

  // A control of `panel` can be used: the panel comes to the front.
  void Front(PictureBox& panel);
  void Click(const QString& name);
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Type(const QString& text);
  void Settle();

  ScriptedDialogs dialogs;
  std::vector<std::string> log;  // for handlers of tests

 private:
  std::unique_ptr<WindowService> service_;
  QWidget* window_ = nullptr;
};

}  // namespace tagwright
