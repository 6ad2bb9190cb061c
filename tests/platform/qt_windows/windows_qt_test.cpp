#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/units.h"
#include "qt/controls/windows.h"

namespace tagwright {
namespace {

class WindowsQtTest : public WindowTest {
 protected:
  using Log = std::vector<std::string>;
};

TEST_F(WindowsQtTest, TheTitleIsTheCaption) {
  frmMain.SetCaption("Tagwright Gold [wine.twp]");
  EXPECT_EQ(Window().windowTitle(), "Tagwright Gold [wine.twp]");
}

TEST_F(WindowsQtTest, TheClientAreaIsWhatLiesBelowTheMenuBar) {
  EXPECT_EQ(frmMain.ScaleWidth(), Twips(Find("client").width()));
  EXPECT_EQ(frmMain.ScaleHeight(), Twips(Find("client").height()));
  EXPECT_LT(Find("client").height(), Window().height());
}

TEST_F(WindowsQtTest, TheModelSizesTheWindow) {
  int resizes = 0;
  frmMain.WindowEvents().Resize = [&] { ++resizes; };
  frmMain.SetWidth(15000);
  Settle();
  EXPECT_EQ(Window().frameGeometry().width(), 1000);
  EXPECT_EQ(frmMain.ScaleWidth(), Twips(Find("client").width()));
  EXPECT_EQ(resizes, 1);
}

TEST_F(WindowsQtTest, TheUserSizesTheModel) {
  int resizes = 0;
  frmMain.WindowEvents().Resize = [&] { ++resizes; };
  Window().resize(900, 700);
  Settle();
  EXPECT_EQ(frmMain.Width(), Twips(Window().frameGeometry().width()));
  EXPECT_EQ(frmMain.Height(), Twips(Window().frameGeometry().height()));
  EXPECT_GE(resizes, 1);
  EXPECT_EQ(Find("sB1").geometry().bottom() + 1, Find("client").height())
      << "the status bar stands along the bottom edge";
}

TEST_F(WindowsQtTest, AHandlerThatSnapsTheHeightBackWins) {
  frmMain.WindowEvents().Resize = [] {
    if (frmMain.Height() < 8250) frmMain.SetHeight(8250);
  };
  Window().resize(900, 300);
  Settle();
  EXPECT_EQ(frmMain.Height(), 8250);
  EXPECT_EQ(Window().frameGeometry().height(), 550);
}

TEST_F(WindowsQtTest, ANumberBetweenPixelsStaysAsAssigned) {
  frmMain.SetLeft(301.5);
  frmMain.SetWidth(15003.25);
  Settle();
  EXPECT_EQ(frmMain.Left(), 301.5);
  EXPECT_EQ(frmMain.Width(), 15003.25);
}

// The display of these tests counts a frame of two pixels into some places and not into others.
TEST_F(WindowsQtTest, AWindowGoesWhereTheModelPutsItEvenOffTheScreen) {
  frmMain.SetLeft(-60000);
  frmMain.SetTop(3900);
  Settle();
  EXPECT_NEAR(Window().frameGeometry().x(), -4000, 2);
  EXPECT_NEAR(Window().frameGeometry().y(), 260, 2);
}

TEST_F(WindowsQtTest, AWindowThatNobodyHasPlacedComesUpWithinItsScreen) {
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  Unload(frmMain);
  Load(frmMain);
  ASSERT_GT(frmMain.Width(), Twips(screen.width())) << "or there is nothing to see here";
  Show(frmMain);
  EXPECT_EQ(frmMain.Width(), Twips(screen.width()));
  EXPECT_LE(frmMain.Height(), Twips(screen.height()));
  EXPECT_EQ(WindowOf(frmMain)->frameGeometry().width(), screen.width());
}

TEST_F(WindowsQtTest, AWindowIsNeverMuchLargerThanAllScreens) {
  const QSize screens = QGuiApplication::primaryScreen()->virtualSize();
  frmMain.SetWidth(300000);
  frmMain.SetHeight(300000);
  Settle();
  EXPECT_EQ(Window().frameGeometry().size(), screens * 2);
  EXPECT_EQ(frmMain.Width(), Twips(screens.width() * 2)) << "the model hears what came of it";
  EXPECT_EQ(frmMain.Height(), Twips(screens.height() * 2));
}

// A place of 0, 0 that somebody has given is none to be left to the window manager.
TEST_F(WindowsQtTest, AWindowThatIsSentToTheVeryCornerIsPlacedThere) {
  Unload(frmMain);
  Load(frmMain);
  EXPECT_FALSE(WindowOf(frmMain)->testAttribute(Qt::WA_Moved));
  frmMain.Move(0, 0);
  EXPECT_TRUE(WindowOf(frmMain)->testAttribute(Qt::WA_Moved));
}

TEST_F(WindowsQtTest, StatesAreReported) {
  Window().showMinimized();
  Settle();
  EXPECT_EQ(frmMain.State(), WindowState::kMinimized);
  Window().showMaximized();
  Settle();
  EXPECT_EQ(frmMain.State(), WindowState::kMaximized);
  Window().showNormal();
  Settle();
  EXPECT_EQ(frmMain.State(), WindowState::kNormal);
}

TEST_F(WindowsQtTest, ClosingAsksTheForm) {
  frmMain.WindowEvents().Unload = [this](bool& stay) {
    log.push_back("unload");
    stay = log.size() == 1;
  };
  Window().close();
  EXPECT_TRUE(IsLoaded(frmMain));
  EXPECT_TRUE(Window().isVisible());
  const QPointer<QWidget> window = &Window();
  Window().close();
  EXPECT_FALSE(IsLoaded(frmMain));
  EXPECT_FALSE(window && window->isVisible());
  EXPECT_EQ(log.size(), 2U);
}

TEST_F(WindowsQtTest, AWindowThatIsHiddenLeavesTheScreenAndStaysLoaded) {
  Load(frmAbout);
  Show(frmAbout);
  ASSERT_TRUE(WindowOf(frmAbout)->isVisible());
  frmAbout.SetVisible(false);
  EXPECT_FALSE(WindowOf(frmAbout)->isVisible());
  EXPECT_TRUE(IsLoaded(frmAbout));
  frmAbout.SetVisible(true);
  EXPECT_TRUE(WindowOf(frmAbout)->isVisible());
}

TEST_F(WindowsQtTest, TheActiveWindowIsNotActivatedAgain) {
  frmMain.WindowEvents().Activate = [this] { log.push_back("activate"); };
  ASSERT_EQ(ActiveForm(), &frmMain);
  QEvent once_more(QEvent::WindowActivate);
  QCoreApplication::sendEvent(&Window(), &once_more);
  EXPECT_EQ(log, Log({}));
  frmMain.UserDeactivate();
  QCoreApplication::sendEvent(&Window(), &once_more);
  EXPECT_EQ(log, Log({"activate"}));
}

// A handler may go on for long after it has unloaded a window.
TEST_F(WindowsQtTest, AnUnloadedWindowIsGoneAtOnce) {
  Load(frmAbout);
  Show(frmAbout);
  const QPointer<QWidget> window = WindowOf(frmAbout);
  ASSERT_TRUE(window->isVisible());
  Unload(frmAbout);
  EXPECT_FALSE(window && window->isVisible());
}

TEST_F(WindowsQtTest, TheSessionsEndHearsWhetherTheWindowStays) {
  bool stays = true;
  frmMain.WindowEvents().Unload = [&](bool& stay) { stay = stays; };
  QWidget* window = &Window();
  EXPECT_FALSE(window->close());
  stays = false;
  EXPECT_TRUE(window->close());
}

TEST_F(WindowsQtTest, AClosedWindowComesBackFresh) {
  frmMain.txtNoCopies.SetText("9");
  Unload(frmMain);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Load(frmMain);
  Show(frmMain);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "1");
  ASSERT_NE(WindowOf(frmMain), nullptr);
  EXPECT_TRUE(WindowOf(frmMain)->isVisible());
}

TEST_F(WindowsQtTest, LosingTheWindowEndsHeldKeys) {
  frmMain.WindowEvents().KeyUp = [this](int code, int shift) {
    log.push_back(std::to_string(code) + "/" + std::to_string(shift));
  };
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_EQ(log, Log({"0/0"}));
  EXPECT_EQ(ActiveForm(), nullptr);
}

TEST_F(WindowsQtTest, AModalWindowHoldsTheProgramUntilItIsUnloaded) {
  QTimer::singleShot(0, [this] {
    EXPECT_EQ(ActiveForm(), &frmAbout);
    EXPECT_TRUE(frmAbout.cmdOK.HasFocus()) << "its first field has the keyboard";
    frmAbout.cmdOK.Events().Click = [] { Unload(frmAbout); };
    log.push_back("open");
    QTest::mouseClick(WindowOf(frmAbout)->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  Load(frmAbout);
  ShowModal(frmAbout);
  log.push_back("back");
  EXPECT_EQ(log, Log({"open", "back"}));
  EXPECT_FALSE(IsLoaded(frmAbout));
}

TEST_F(WindowsQtTest, EscapeClosesADialogThroughItsForm) {
  Load(frmAbout);
  frmAbout.WindowEvents().Unload = [this](bool&) { log.push_back("unload"); };
  QTimer::singleShot(0,
                     [] { QTest::keyClick(WindowOf(frmAbout)->windowHandle(), Qt::Key_Escape); });
  ShowModal(frmAbout);
  EXPECT_EQ(log, Log({"unload"}));
}

TEST_F(WindowsQtTest, AModalWindowThatHidesItselfLetsTheProgramGoOn) {
  Load(frmAbout);
  QTimer::singleShot(0, [] { frmAbout.SetVisible(false); });
  ShowModal(frmAbout);
  EXPECT_TRUE(IsLoaded(frmAbout));
}

TEST_F(WindowsQtTest, ReturnSavesTheSerialNumbersFromAField) {
  int saved = 0;
  Load(frmSerialNumber);
  frmSerialNumber.cmdSave.Events().Click = [&] {
    ++saved;
    Unload(frmSerialNumber);
  };
  QTimer::singleShot(0, [&] {
    QWindow* window = WindowOf(frmSerialNumber)->windowHandle();
    EXPECT_TRUE(frmSerialNumber.txtSerPref.HasFocus());
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    frmSerialNumber.txtSerIncr.UserFocus();
    QTest::keyClick(window, Qt::Key_Return);
  });
  ShowModal(frmSerialNumber);
  EXPECT_EQ(saved, 1);
  EXPECT_FALSE(IsLoaded(frmSerialNumber));
}

TEST_F(WindowsQtTest, ADialogOpensOverTheMainWindow) {
  Load(frmAbout);
  EXPECT_EQ(WindowOf(frmAbout)->parentWidget(), &Window());
  EXPECT_EQ(WindowForDialogs(), &Window());
}

// While another program is in front.
TEST_F(WindowsQtTest, ADialogHasItsWindowAlsoWhileNoneIsActive) {
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  other.hide();
  Settle();
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  EXPECT_EQ(WindowForDialogs(), &Window());
  Window().hide();
  EXPECT_EQ(WindowForDialogs(), nullptr);
}

TEST_F(WindowsQtTest, ALargerFontMakesTheStripHigherBeforeStartUp) {
  Unload(frmMain);
  const QFont usual = Toolkit().font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 1.6);
  Toolkit().setFont(large);
  Load(frmMain);
  EXPECT_GT(frmMain.picFunctions.Height(), 1860);
  Toolkit().setFont(usual);
}

}  // namespace
}  // namespace tagwright
