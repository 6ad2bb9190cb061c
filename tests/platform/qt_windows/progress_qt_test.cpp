#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "platform/qt_windows/window_fixture.h"
#include "qt/services/progress.h"

namespace tagwright {
namespace {

constexpr qint64 kLongEnough = 60'000;  // milliseconds: no machine is as slow

class ProgressQtTest : public WindowTest {
 protected:
  ProgressQtTest() { SetProgressService(service_.get()); }
  ~ProgressQtTest() override { SetProgressService(nullptr); }

  static QDialog* Shown() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<QDialog*>(widget);
      if (dialog && dialog->isVisible() && dialog->windowTitle() == "Printing") return dialog;
    }
    return nullptr;
  }

  // Lets a job run in a handler until `done`, looking at its window at each step. Returns whether
  // it has been let to run that far.
  template <class Step>
  static bool RunJob(Step&& step) {
    bool reached = false;
    RunHandler([&] {
      Progress progress("Printing");
      QElapsedTimer since;
      since.start();
      progress.Tell("Pages done: 3", 0.25);
      while (!reached && since.elapsed() < kLongEnough) {
        const bool goes_on = progress.GoesOn();
        reached = step(goes_on);
      }
    });
    return reached;
  }

 private:
  std::unique_ptr<ProgressService> service_ = MakeProgressService();
};

TEST_F(ProgressQtTest, ALongJobSaysHowFarItIs) {
  EXPECT_TRUE(RunJob([](bool) {
    if (!Shown()) return false;
    EXPECT_EQ(Shown()->findChild<QLabel*>()->text(), "Pages done: 3");
    EXPECT_EQ(Shown()->findChild<QProgressBar*>()->value(), 250);
    EXPECT_FALSE(Shown()->findChild<QProgressBar*>()->isTextVisible()) << "the pages say enough";
    return true;
  }));
  EXPECT_EQ(Shown(), nullptr) << "it goes with its job";
}

TEST_F(ProgressQtTest, ItsButtonCancels) {
  EXPECT_TRUE(RunJob([](bool goes_on) {
    if (Shown() && goes_on) Shown()->findChild<QPushButton*>()->click();
    return !goes_on;
  }));
}

TEST_F(ProgressQtTest, ClosingItCancelsAndItStaysUntilTheJobEnds) {
  EXPECT_TRUE(RunJob([](bool goes_on) {
    if (Shown() && goes_on) Shown()->close();
    EXPECT_TRUE(goes_on || Shown());
    return !goes_on;
  }));
}

TEST_F(ProgressQtTest, PressesAndKeysOnTheMainWindowGoNowhere) {
  int presses = 0;
  Front(frmMain.picPrint);
  frmMain.cmdPrint.Events().Click = [&] { ++presses; };
  bool pressed = false;
  EXPECT_TRUE(RunJob([&](bool) {
    if (!Shown()) return false;
    if (pressed) return true;
    // In the midst of the window's own events, as the user's do.
    QTimer::singleShot(0, this->Screen(), [&] {
      Click("cmdPrint");
      Key(Qt::Key_P, Qt::ControlModifier);
      pressed = true;
    });
    return false;
  }));
  Settle();
  EXPECT_TRUE(pressed);
  EXPECT_EQ(presses, 0);
  Click("cmdPrint");
  EXPECT_EQ(presses, 1) << "afterwards it works again";
}

// What a hand does while the program is busy: it waits in the queue until somebody looks.
void PressLater(QWidget& button) {
  const QPointF middle = QRectF(button.rect()).center();
  const QPointF on_screen = button.mapToGlobal(middle);
  for (const bool down : {true, false}) {
    QCoreApplication::postEvent(
        &button, new QMouseEvent(down ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease,
                                 middle, on_screen, Qt::LeftButton,
                                 down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
  }
}

TEST_F(ProgressQtTest, APressAfterTheLastPageOfAShortJobCounts) {
  int presses = 0;
  Front(frmMain.picPrint);
  frmMain.cmdPrint.Events().Click = [&] { ++presses; };
  RunHandler([&] {
    Progress progress("Printing");
    EXPECT_TRUE(progress.GoesOn());
    PressLater(Find("cmdPrint"));
  });
  EXPECT_EQ(presses, 0) << "the job has its handler still";
  Settle();
  EXPECT_EQ(presses, 1);
}

TEST_F(ProgressQtTest, APressInTheMidstOfAShortJobGoesNowhere) {
  int presses = 0;
  Front(frmMain.picPrint);
  frmMain.cmdPrint.Events().Click = [&] { ++presses; };
  RunHandler([&] {
    Progress progress("Printing");
    PressLater(Find("cmdPrint"));
    QElapsedTimer since;
    for (since.start(); since.elapsed() < 100;) progress.GoesOn();
    EXPECT_EQ(Shown(), nullptr);
  });
  Settle();
  EXPECT_EQ(presses, 0);
}

TEST_F(ProgressQtTest, APressUnderTheWindowOfAJobGoesNowhereToItsEnd) {
  int presses = 0;
  Front(frmMain.picPrint);
  frmMain.cmdPrint.Events().Click = [&] { ++presses; };
  EXPECT_TRUE(RunJob([&](bool) {
    if (!Shown()) return false;
    PressLater(Find("cmdPrint"));
    return true;
  }));
  Settle();
  EXPECT_EQ(presses, 0);
}

TEST_F(ProgressQtTest, ClosingTheMainWindowWaitsForTheJob) {
  bool closed = false;
  EXPECT_TRUE(RunJob([&](bool goes_on) {
    EXPECT_TRUE(goes_on) << "it is no cancel";
    EXPECT_TRUE(IsLoaded(frmMain));
    if (Shown() && !closed) {
      Window().close();
      closed = true;
      return false;
    }
    return closed;
  }));
  EXPECT_FALSE(IsLoaded(frmMain));
}

}  // namespace
}  // namespace tagwright
