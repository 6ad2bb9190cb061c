#include "qt/controls/views.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>

#include "platform/controls/event.h"
#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/units.h"

namespace tagwright {
namespace {

class ViewsTest : public WindowTest {
 protected:
  // Notes every event of a control under a name.
  void Note(ControlEvents& events, const std::string& name) {
    events.Click = [=, this] { log.push_back(name + " Click"); };
    events.DblClick = [=, this] { log.push_back(name + " DblClick"); };
    events.Change = [=, this] { log.push_back(name + " Change"); };
    events.GotFocus = [=, this] { log.push_back(name + " GotFocus"); };
    events.LostFocus = [=, this] { log.push_back(name + " LostFocus"); };
  }
  std::string Panel() {
    return Find<QStackedWidget>("panels").currentWidget()->objectName().toStdString();
  }
  using Log = std::vector<std::string>;
};

// --- the model renders, and nothing comes back --------------------------------------------------

TEST_F(ViewsTest, SettingTheModelIsNoActOfTheUser) {
  Note(frmMain.cboZoom.Events(), "zoom");
  Note(frmMain.txtNoCopies.Events(), "copies");
  Note(frmMain.chkBold.Events(), "bold");
  Note(frmMain.hS1.Events(), "scroll");
  Note(frmMain.lstFields.Events(), "fields");
  Note(frmMain.txtTool.Events(), "tool");
  frmMain.cboZoom.AddItem("100%");
  frmMain.cboZoom.SetText("100%");
  frmMain.cboZoom.Clear();
  frmMain.lstFields.AddItem("Name");
  frmMain.txtNoCopies.SetSelStart(1);
  Settle();
  EXPECT_EQ(log, Log());
  frmMain.txtNoCopies.SetText("12");
  frmMain.chkBold.SetValue(1);
  frmMain.hS1.SetValue(251);
  frmMain.lstFields.SetListIndex(0);
  frmMain.txtTool.SetText("a\r\nb");
  Settle();
  EXPECT_EQ(log,
            Log({"copies Change", "bold Click", "scroll Change", "fields Click", "tool Change"}));
}

TEST_F(ViewsTest, TextsListsAndValuesAreShown) {
  frmMain.txtNoCopies.SetText("25");
  EXPECT_EQ(Find<QLineEdit>("txtNoCopies").text(), "25");
  frmMain.txtTool.SetText("one\r\ntwo");
  EXPECT_EQ(Find<QPlainTextEdit>("txtTool").toPlainText(), "one\ntwo");
  frmMain.lblGraphicX.SetCaption("640");
  EXPECT_EQ(Find<QLabel>("lblGraphicX").text(), "640");
  frmMain.chkItalic.SetValue(2);
  EXPECT_EQ(Find<QCheckBox>("chkItalic").checkState(), Qt::PartiallyChecked);
  frmMain.vS1.SetRange(0, 90);
  frmMain.vS1.SetValue(40);
  EXPECT_EQ(Find<QScrollBar>("vS1").maximum(), 90);
  EXPECT_EQ(Find<QScrollBar>("vS1").value(), 40);
  frmMain.sB1.SetPanelText(3, "1 selected");
  EXPECT_EQ(Find<QLabel>("statusPanel_3").text(), "1 selected");
}

TEST_F(ViewsTest, AnEmptyCaptionKeepsThatOfTheForm) {
  EXPECT_EQ(Find<QLabel>("lblFName_1").text(), "Recordset");
  frmMain.lblFName(1).SetCaption("Table");
  EXPECT_EQ(Find<QLabel>("lblFName_1").text(), "Table");
}

TEST_F(ViewsTest, ALongPathLosesItsBeginningAndIsWholeInItsToolTip) {
  Front(frmMain.picFields);
  Settle();
  auto& label = Find<QLabel>("lblFileName");
  frmMain.lblFileName.SetCaption("/a/b.csv");
  EXPECT_EQ(label.text(), "/a/b.csv");
  const std::string path = "/" + std::string(200, 'x') + "/people.csv";
  frmMain.lblFileName.SetCaption(path);
  EXPECT_TRUE(label.text().startsWith("…")) << label.text().toStdString();
  EXPECT_TRUE(label.text().endsWith("/people.csv")) << label.text().toStdString();
  EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width());
  EXPECT_EQ(label.toolTip().toStdString(), path);
  EXPECT_EQ(label.accessibleDescription().toStdString(), path);
  label.resize(4000, label.height());
  EXPECT_EQ(label.text().toStdString(), path);
}

TEST_F(ViewsTest, APickListShowsATextThatIsNoRow) {
  frmMain.cboPrinter.AddItem("Print to PDF");
  frmMain.cboPrinter.SetText("Old printer");
  auto& list = Find<QComboBox>("cboPrinter");
  EXPECT_EQ(list.currentIndex(), -1);
  EXPECT_EQ(list.placeholderText(), "Old printer");
}

TEST_F(ViewsTest, ToolTipsAndEnablingFollow) {
  const QString designed = Find("cboPrinter").toolTip();
  EXPECT_EQ(designed, "Printer");
  frmMain.cboPrinter.SetToolTipText("LaserJet");
  EXPECT_EQ(Find("cboPrinter").toolTip(), "LaserJet");
  frmMain.cmdBCode.SetEnabled(false);
  EXPECT_FALSE(Find("cmdBCode").isEnabled());
}

TEST_F(ViewsTest, TouchingControlsLeaveNoGap) {
  EXPECT_EQ(Find("vS1").geometry().bottom() + 1, Find("cmdXC").geometry().top());
  EXPECT_EQ(Find("hS1").geometry().right() + 1, Find("cmdXC").geometry().left());
}

TEST_F(ViewsTest, ThePointerOfAFieldIsTheTextCaretUnlessToldOtherwise) {
  EXPECT_EQ(Find("txtDSize_0").cursor().shape(), Qt::IBeamCursor);
  frmMain.txtDSize(0).SetMousePointer(1);
  EXPECT_EQ(Find("txtDSize_0").cursor().shape(), Qt::ArrowCursor);
  frmMain.txtDSize(0).SetMousePointer(0);
  EXPECT_EQ(Find("txtDSize_0").cursor().shape(), Qt::IBeamCursor);
}

TEST_F(ViewsTest, TheFormsPointerCoversWhatHasNoneOfItsOwn) {
  frmMain.SetMousePointer(11);
  EXPECT_EQ(Find("cmdTools_0").cursor().shape(), Qt::WaitCursor);
  frmMain.SetMousePointer(99);
  frmMain.SetMouseIcon("pointer-zoom-in");
  EXPECT_EQ(Window().cursor().shape(), Qt::BitmapCursor);
  frmMain.SetMousePointer(0);
  EXPECT_EQ(Window().cursor().shape(), Qt::ArrowCursor);
}

// --- stacked panels -----------------------------------------------------------------------------

TEST_F(ViewsTest, ThePanelInFrontIsTheOneThatIsShown) {
  Front(frmMain.picDrawing);
  EXPECT_EQ(Panel(), "picDrawing");
  EXPECT_FALSE(Find("cmdPrint").isVisible());
  EXPECT_TRUE(frmMain.cmdPrint.IsShown()) << "covered, but visible to the program";
  Front(frmMain.picPrint);
  EXPECT_EQ(Panel(), "picPrint");
  frmMain.picPrint.SetVisible(false);
  EXPECT_EQ(Panel(), "picDrawing");
  frmMain.picPrint.SetVisible(true);
  EXPECT_EQ(Panel(), "picPrint");
}

TEST_F(ViewsTest, FontAndSizeAppearInThePanelInFront) {
  frmMain.cboFont.SetVisible(true);
  frmMain.cboSize.SetVisible(true);
  for (PictureBox* panel :
       {&frmMain.picText, &frmMain.picBCode, &frmMain.picFields, &frmMain.picSellAll}) {
    Front(*panel);
    EXPECT_TRUE(Find("cboFont").isVisible()) << panel->Name();
    EXPECT_TRUE(Find("cboSize").isVisible()) << panel->Name();
    EXPECT_TRUE(Find(ToQt(panel->Name())).isAncestorOf(&Find("cboFont"))) << panel->Name();
  }
  frmMain.cboFont.SetVisible(false);
  EXPECT_FALSE(Find("cboFont").isVisible());
  EXPECT_FALSE(Find("captionFont").isVisible()) << "a caption goes with its field";
}

TEST_F(ViewsTest, MovingFontAndSizeInTheModelMovesNothingOnTheScreen) {
  frmMain.cboFont.SetVisible(true);
  Front(frmMain.picText);
  const QRect before = Find("cboFont").geometry();
  frmMain.cboFont.Move(8950, 290);
  Settle();
  EXPECT_EQ(Find("cboFont").geometry(), before);
  EXPECT_EQ(frmMain.cboFont.Left(), 8950);
}

TEST_F(ViewsTest, TheFlyoutComesBeforeTheBoard) {
  frmMain.picMag.Move(1440, 4000);
  frmMain.picMag.SetVisible(true);
  frmMain.picMag.ZOrder();
  const QPoint middle = Find("picMag").geometry().center();
  QWidget* client = Find("picMag").parentWidget();
  EXPECT_TRUE(Find("picMag").isAncestorOf(client->childAt(middle)));
}

// --- the user chooses ---------------------------------------------------------------------------

TEST_F(ViewsTest, ChoosingTheSameRowAgainIsAClick) {
  frmMain.cboZoom.AddItem("50%");
  frmMain.cboZoom.AddItem("100%");
  frmMain.cboZoom.SetListIndex(1);
  Note(frmMain.cboZoom.Events(), "zoom");
  for (int times = 0; times < 2; ++times) {
    Click("cboZoom");
    auto& list = Find<QComboBox>("cboZoom");
    ASSERT_TRUE(list.view()->isVisible());
    EXPECT_EQ(list.view()->currentIndex().row(), 1);
    QTest::keyClick(list.view(), Qt::Key_Return);
    QTest::qWait(20);
  }
  EXPECT_EQ(log, Log({"zoom GotFocus", "zoom Click", "zoom Click"}));
}

TEST_F(ViewsTest, ChoosingAnotherRowTellsTheModelOnce) {
  for (const char* row : {"50%", "100%", "200%"}) frmMain.cboZoom.AddItem(row);
  frmMain.cboZoom.SetListIndex(1);
  frmMain.cboZoom.SetFocus();
  Note(frmMain.cboZoom.Events(), "zoom");
  Key(Qt::Key_Down);
  EXPECT_EQ(log, Log({"zoom Click"}));
  EXPECT_EQ(frmMain.cboZoom.Text(), "200%");
}

TEST_F(ViewsTest, TheWheelChangesOnlyAListThatHasTheKeyboard) {
  for (const char* row : {"50%", "100%"}) frmMain.cboZoom.AddItem(row);
  frmMain.cboZoom.SetListIndex(0);
  auto& list = Find("cboZoom");
  const QPointF middle = list.rect().center();
  QWheelEvent wheel(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), 0);
  frmMain.cboZoom.SetFocus();
  QCoreApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), 1);
}

TEST_F(ViewsTest, AButtonTakesTheKeyboardThenClicks) {
  Note(frmMain.cmdTools.Events(), "tool");
  frmMain.cmdTools.Events().MouseDown = [this](int index, int, int, double, double) {
    log.push_back("down " + std::to_string(index));
  };
  frmMain.cmdTools.Events().MouseUp = [this](int, int, int, double, double) {
    log.push_back("up");
  };
  Click("cmdTools_3");
  EXPECT_EQ(log, Log({"tool GotFocus", "down 3", "up", "tool Click"}));
  EXPECT_TRUE(frmMain.cmdTools(3).HasFocus());
}

// As assistive tools press it: no mouse has brought the keyboard.
TEST_F(ViewsTest, AButtonThatIsPressedWithoutAMouseTakesTheKeyboardToo) {
  frmMain.txtNoCopies.SetFocus();
  Note(frmMain.txtNoCopies.Events(), "copies");
  Note(frmMain.cmdTools.Events(), "tool");
  Find<QAbstractButton>("cmdTools_3").click();
  EXPECT_EQ(log, Log({"copies LostFocus", "tool GotFocus", "tool Click"}));
  EXPECT_TRUE(frmMain.cmdTools(3).HasFocus());
}

// The toolkit lets an assistive tool press what a modal window covers.
TEST_F(ViewsTest, WhatIsPressedBehindAModalWindowIsNotPressed) {
  Note(frmMain.cmdPreview.Events(), "preview");
  Note(frmMain.chkXHair.Events(), "hairs");
  const int hairs = frmMain.chkXHair.Value();
  Load(frmAbout);
  QTimer::singleShot(0, [this] {
    Find<QAbstractButton>("cmdPreview").click();
    Find<QCheckBox>("chkXHair").toggle();
    Unload(frmAbout);
  });
  RunHandler([] { ShowModal(frmAbout); });
  EXPECT_EQ(log, Log());
  EXPECT_EQ(frmMain.chkXHair.Value(), hairs);
  EXPECT_EQ(Find<QCheckBox>("chkXHair").isChecked(), hairs != 0);
}

TEST_F(ViewsTest, AQuickSecondPressIsAPress) {
  frmMain.cmdTools.Events().Click = [this] { log.push_back("click"); };
  QWidget& button = Find("cmdTools_0");
  const QPoint at = button.mapTo(&Window(), button.rect().center());
  QTest::mouseClick(Screen(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(Screen(), Qt::LeftButton, {}, at);
  EXPECT_EQ(log.size(), 3U);
}

// As assistive tools do it.
TEST_F(ViewsTest, ACheckBoxThatIsTurnedWithoutAClickIsPressedOnce) {
  int presses = 0;
  frmMain.chkItalic.Events().Click = [&] { ++presses; };
  auto& tick = Find<QCheckBox>("chkItalic");
  tick.toggle();
  EXPECT_EQ(frmMain.chkItalic.Value(), 1);
  EXPECT_TRUE(tick.isChecked());
  EXPECT_EQ(presses, 1);
  tick.click();
  EXPECT_EQ(frmMain.chkItalic.Value(), 0);
  EXPECT_FALSE(tick.isChecked());
  EXPECT_EQ(presses, 2);
}

TEST_F(ViewsTest, ACheckBoxIsTurnedByTheModel) {
  Note(frmMain.chkXHair.Events(), "hairs");
  Click("chkXHair");
  EXPECT_EQ(frmMain.chkXHair.Value(), 0);
  EXPECT_FALSE(Find<QCheckBox>("chkXHair").isChecked());
  EXPECT_EQ(log, Log({"hairs GotFocus", "hairs Click"}));
}

TEST_F(ViewsTest, ASwatchIsClickedWithoutTakingTheKeyboard) {
  Front(frmMain.picDrawing);
  frmMain.lblBCol.Events().Click = [this](int index) { log.push_back(std::to_string(index)); };
  Click("lblBCol_4");
  EXPECT_EQ(log, Log({"4"}));
  EXPECT_EQ(frmMain.ActiveControl(), nullptr);
}

TEST_F(ViewsTest, ASwatchShowsItsColour) {
  Front(frmMain.picDrawing);
  frmMain.lblBCol(4).SetBackColor(Rgb(12, 200, 34));
  const QImage shown = Find("lblBCol_4").grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.rect().center()), QColor(12, 200, 34));
}

TEST_F(ViewsTest, DraggingOverATextSelectsIt) {
  Front(frmMain.picPrint);
  frmMain.txtNoCopies.SetText("1234");
  QWidget& field = Find("txtNoCopies");
  const int middle = field.height() / 2;
  const auto at = [&](int x) { return field.mapTo(&Window(), QPoint(x, middle)); };
  QTest::mousePress(Screen(), Qt::LeftButton, {}, at(field.width() - 3));
  QTest::mouseMove(Screen(), at(2));
  QTest::mouseRelease(Screen(), Qt::LeftButton, {}, at(2));
  EXPECT_EQ(frmMain.txtNoCopies.SelText(), "1234");
}

// A file may be named so.
TEST_F(ViewsTest, ACaptionIsShownLetterByLetter) {
  frmMain.lblGraphicX.SetCaption("<b>6</b>");
  EXPECT_EQ(Find<QLabel>("lblGraphicX").textFormat(), Qt::PlainText);
}

TEST_F(ViewsTest, ScrollingRaisesChange) {
  Note(frmMain.vS1.Events(), "scroll");
  Find<QScrollBar>("vS1").triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(log, Log({"scroll Change"}));
  EXPECT_EQ(frmMain.vS1.Value(), 300);
}

TEST_F(ViewsTest, AListIsClickedAndDoubleClicked) {
  Front(frmMain.picFields);
  for (const char* row : {"Name", "Street"}) frmMain.lstFields.AddItem(row);
  auto& list = Find<QListWidget>("lstFields");
  Note(frmMain.lstFields.Events(), "fields");
  const QPoint second = list.visualItemRect(list.item(1)).center();
  const QPoint at = list.viewport()->mapTo(&Window(), second);
  QTest::mouseClick(Screen(), Qt::LeftButton, {}, at);
  EXPECT_EQ(frmMain.lstFields.Text(), "Street");
  QTest::mouseDClick(Screen(), Qt::LeftButton, {}, at);
  ASSERT_FALSE(log.empty());
  EXPECT_EQ(log.back(), "fields DblClick");
  EXPECT_EQ(log[1], "fields Click");
}

TEST_F(ViewsTest, LeavingAButtonForItsPanelMovesOverThePanel) {
  frmMain.picTools.Events().MouseMove = [this](int, int, double, double) {
    log.push_back("panel");
  };
  frmMain.cmdTools.Events().MouseMove = [this](int, int, int, double, double) {
    log.push_back("tool");
  };
  QWidget& button = Find("cmdTools_0");
  QTest::mouseMove(Screen(), button.mapTo(&Window(), button.rect().center()));
  EXPECT_EQ(log, Log({"tool"})) << "and not what lies under it";
  log.clear();
  QWidget& column = Find("picTools");
  QTest::mouseMove(Screen(), column.mapTo(&Window(), QPoint(2, 2)));
  EXPECT_EQ(log, Log({"panel"}));
}

TEST_F(ViewsTest, TimersTickWhileTheyAreEnabled) {
  int ticks = 0;
  frmMain.Timer1.SetEnabled(false);
  frmMain.tmrButtons.SetInterval(1);
  frmMain.tmrButtons.Events().Timer = [&] { ++ticks; };
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }, 2000));
  frmMain.tmrButtons.SetEnabled(false);
  const int then = ticks;
  QTest::qWait(20);
  EXPECT_EQ(ticks, then);
}

}  // namespace
}  // namespace tagwright
