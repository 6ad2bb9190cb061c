#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/input_codes.h"
#include "qt/controls/units.h"

namespace tagwright {
namespace {

class KeyboardTest : public WindowTest {
 protected:
  KeyboardTest() {
    Front(frmMain.picPrint);
    frmMain.txtNoCopies.SetText("");
    frmMain.txtNoCopies.SetFocus();
  }
  void NoteKeys() {
    frmMain.WindowEvents().KeyDown = [this](int& code, int shift) {
      log.push_back("down " + std::to_string(code) + "/" + std::to_string(shift));
    };
    frmMain.WindowEvents().KeyUp = [this](int code, int shift) {
      log.push_back("up " + std::to_string(code) + "/" + std::to_string(shift));
    };
  }
  void Commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  void Compose(const QString& text) {
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  // The field of several lines, with `text` in it and the keyboard at its end.
  QPlainTextEdit& Lines(const std::string& text) {
    Front(frmMain.picText);
    frmMain.txtTool.SetText(text);
    frmMain.txtTool.SetFocus();
    frmMain.txtTool.SetSelStart(static_cast<int>(text.size()));
    return Find<QPlainTextEdit>("txtTool");
  }
  // The field of a list that is typed in.
  QLineEdit& EditOf(ComboBox& combo) {
    Front(frmMain.picText);
    combo.SetVisible(true);
    Settle();
    return *Find<QComboBox>(ToQt(combo.Name())).lineEdit();
  }
  static QString Composed(const QPlainTextEdit& lines) {
    return lines.textCursor().block().layout()->preeditAreaText();
  }
  using Log = std::vector<std::string>;
};

// --- characters ---------------------------------------------------------------------------------

TEST_F(KeyboardTest, EachCharacterIsAskedForOnce) {
  frmMain.txtNoCopies.Events().KeyPress = [this](int& key) { log.push_back(std::to_string(key)); };
  frmMain.txtNoCopies.Events().Change = [this] { log.push_back(frmMain.txtNoCopies.Text()); };
  Type("12");
  EXPECT_EQ(log, Log({"49", "1", "50", "12"}));
  EXPECT_EQ(Find<QLineEdit>("txtNoCopies").text(), "12");
}

// Most of these keys have no code that handlers would know them by.
TEST_F(KeyboardTest, PunctuationAndAccentsArriveWhetherOrNotTheWindowListens) {
  const QString signs = "1.5-,;:+/*%_#'\"\\!?()[]{}<>=@&$~^|` ";
  const auto type_all = [&] {
    Type(signs);
    QTest::sendKeyEvent(QTest::Click, Screen(), Qt::Key_Adiaeresis, QStringLiteral("\u00E4"),
                        Qt::NoModifier);
  };
  const std::string expected = signs.toStdString() + "\u00E4";
  type_all();
  EXPECT_EQ(frmMain.txtNoCopies.Text(), expected);
  frmMain.txtNoCopies.SetText("");
  frmMain.WindowEvents().KeyDown = [](int&, int) {};
  type_all();
  EXPECT_EQ(frmMain.txtNoCopies.Text(), expected);
}

TEST_F(KeyboardTest, AHandlerSwallowsOrReplacesACharacter) {
  frmMain.txtNoCopies.Events().KeyPress = [](int& key) {
    if (key == 'x') key = 0;
    if (key == 'a') key = 'A';
  };
  Type("xaxb");
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "Ab");
  EXPECT_EQ(Find<QLineEdit>("txtNoCopies").text(), "Ab");
}

TEST_F(KeyboardTest, APasteComesAsCharacters) {
  int keys = 0;
  frmMain.txtNoCopies.Events().KeyPress = [&](int& key) {
    ++keys;
    if (key == '-') key = 0;
  };
  QApplication::clipboard()->setText("1-2-3");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(keys, 5);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "123");
}

TEST_F(KeyboardTest, ThePasteOfTheContextMenuComesAsCharactersToo) {
  int keys = 0;
  frmMain.txtNoCopies.Events().KeyPress = [&](int&) { ++keys; };
  QApplication::clipboard()->setText("77");
  auto& field = Find<QLineEdit>("txtNoCopies");
  QTimer::singleShot(0, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* entry : menu->actions()) {
      if (entry->text() == "Paste") entry->trigger();
    }
    menu->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, field.rect().center(),
                          field.mapToGlobal(field.rect().center()));
  QCoreApplication::sendEvent(&field, &event);
  EXPECT_EQ(keys, 2);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "77");
}

TEST_F(KeyboardTest, AnInputMethodComesAsCharacters) {
  frmMain.txtNoCopies.Events().KeyPress = [this](int& key) { log.push_back(std::to_string(key)); };
  Commit("é𝄞");
  EXPECT_EQ(log, Log({"233", "119070"}));
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "é𝄞");
  EXPECT_EQ(Find<QLineEdit>("txtNoCopies").text(), QString::fromUtf8("é𝄞"));
}

// What an input method composes is shown where it will stand, and is no text before it is entered.
TEST_F(KeyboardTest, WhatIsBeingComposedIsShownUntilItIsEntered) {
  const QPlainTextEdit& lines = Lines("a");
  frmMain.txtTool.Events().Change = [this] { log.push_back(frmMain.txtTool.Text()); };
  Compose("ka");
  EXPECT_EQ(Composed(lines), "ka");
  EXPECT_EQ(log, Log());
  Commit("か");
  EXPECT_EQ(Composed(lines), "") << "or it would stand there twice";
  EXPECT_EQ(lines.toPlainText(), "aか");
  EXPECT_EQ(log, Log({"aか"}));
}

// A handler that takes what was composed takes it off the screen, too.
TEST_F(KeyboardTest, WhatWasComposedIsGoneWhenAHandlerSwallowsIt) {
  const QPlainTextEdit& lines = Lines("a");
  frmMain.txtTool.Events().KeyPress = [](int& key) { key = 0; };
  Compose("ka");
  Commit("か");
  EXPECT_EQ(Composed(lines), "");
  EXPECT_EQ(lines.toPlainText(), "a");
  QLineEdit& edit = EditOf(frmMain.cboFont);
  frmMain.cboFont.SetFocus();
  frmMain.cboFont.Events().KeyPress = [](int& key) { key = 0; };
  const auto caret = [&] { return edit.inputMethodQuery(Qt::ImCursorRectangle).toRectF().x(); };
  const double before = caret();
  Compose("nnn");
  EXPECT_GT(caret(), before + 5);
  Commit("n");
  EXPECT_EQ(caret(), before);
}

TEST_F(KeyboardTest, WhatIsBeingComposedInOneLineIsShownUntilItIsEntered) {
  frmMain.cboFont.Clear();
  QLineEdit& line = EditOf(frmMain.cboFont);
  for (TextControl* field :
       std::initializer_list<TextControl*>{&frmMain.txtNoCopies, &frmMain.cboFont}) {
    Front(field == &frmMain.cboFont ? frmMain.picText : frmMain.picPrint);
    field->SetFocus();
    QLineEdit& edit = field == &frmMain.cboFont ? line : Find<QLineEdit>("txtNoCopies");
    const auto caret = [&] { return edit.inputMethodQuery(Qt::ImCursorRectangle).toRectF().x(); };
    const double before = caret();
    Compose("nnn");
    EXPECT_GT(caret(), before + 5) << field->Name();
    EXPECT_EQ(field->Text(), "");
    Commit("i");
    EXPECT_LT(caret(), before + 5) << field->Name();
    EXPECT_EQ(field->Text(), "i");
    EXPECT_EQ(edit.text(), "i");
  }
}

TEST_F(KeyboardTest, BackspaceIsACharacterAndDeleteIsNot) {
  frmMain.txtNoCopies.Events().KeyPress = [this](int& key) { log.push_back(std::to_string(key)); };
  frmMain.txtNoCopies.SetText("abc");
  frmMain.txtNoCopies.SetSelStart(3);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "ab");
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "b");
  EXPECT_EQ(log, Log({"8"}));
}

TEST_F(KeyboardTest, TheCaretCountsCharacters) {
  Commit("𝄞x");
  Key(Qt::Key_Left);
  EXPECT_EQ(frmMain.txtNoCopies.SelStart(), 1);
  Type("y");
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "𝄞yx");
}

TEST_F(KeyboardTest, SeveralLinesEndInReturnAndLineFeed) {
  Front(frmMain.picText);
  frmMain.txtTool.SetFocus();
  Type("a");
  Key(Qt::Key_Return);
  Type("b");
  EXPECT_EQ(frmMain.txtTool.Text(), "a\r\nb");
  EXPECT_EQ(Find<QPlainTextEdit>("txtTool").toPlainText(), "a\nb");
  EXPECT_EQ(frmMain.txtTool.SelStart(), 4);
  Key(Qt::Key_Left);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(frmMain.txtTool.Text(), "ab");
}

// The caret stays where it was: only the selection tells.
TEST_F(KeyboardTest, SelectingAllFromTheEndIsReported) {
  Lines("a\r\nb");
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(frmMain.txtTool.SelStart(), 0);
  EXPECT_EQ(frmMain.txtTool.SelLength(), 4);
  Type("c");
  EXPECT_EQ(frmMain.txtTool.Text(), "c");
}

// What the toolkit does by itself in the field becomes the text, too.
TEST_F(KeyboardTest, CuttingAndDeletingInSeveralLinesReachTheText) {
  Lines("ab\r\nc");
  frmMain.txtTool.Events().Change = [this] { log.push_back(frmMain.txtTool.Text()); };
  frmMain.txtTool.SetSelStart(1);
  frmMain.txtTool.SetSelLength(1);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "b");
  EXPECT_EQ(frmMain.txtTool.SelStart(), 1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(log, Log({"a\r\nc", "ac"}));
}

TEST_F(KeyboardTest, ALockedFieldKeepsItsText) {
  const QPlainTextEdit& lines = Lines("ab");
  frmMain.txtTool.SetLocked(true);
  frmMain.txtNoCopies.SetText("12");
  frmMain.txtNoCopies.SetLocked(true);
  for (TextBox* field : {&frmMain.txtTool, &frmMain.txtNoCopies}) {
    Front(field == &frmMain.txtTool ? frmMain.picText : frmMain.picPrint);
    field->SetFocus();
    field->SetSelStart(0);
    Key(Qt::Key_Delete);
    Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_X, Qt::ControlModifier);
    Type("5");
  }
  EXPECT_EQ(lines.toPlainText(), "ab");
  EXPECT_EQ(frmMain.txtTool.Text(), "ab");
  EXPECT_EQ(Find<QLineEdit>("txtNoCopies").text(), "12");
  frmMain.txtTool.SetLocked(false);
  Front(frmMain.picText);
  frmMain.txtTool.SetFocus();
  frmMain.txtTool.SetSelStart(2);
  Type("c");
  EXPECT_EQ(frmMain.txtTool.Text(), "abc");
}

TEST_F(KeyboardTest, APickListTellsTheKeyAndKeepsItsText) {
  frmMain.cboZoom.AddItem("100%");
  frmMain.cboZoom.AddItem("200%");
  frmMain.cboZoom.SetListIndex(0);
  frmMain.cboZoom.SetFocus();
  frmMain.cboZoom.Events().KeyPress = [this](int& key) { log.push_back(std::to_string(key)); };
  Type("2");
  EXPECT_EQ(log, Log({"50"}));
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
}

TEST_F(KeyboardTest, AComboThatCompletesShowsItsSelection) {
  Front(frmMain.picText);
  frmMain.cboFont.SetVisible(true);
  frmMain.cboFont.SetFocus();
  frmMain.cboFont.Events().KeyPress = [](int& key) {
    frmMain.cboFont.SetText("Arial");
    frmMain.cboFont.SetSelStart(1);
    frmMain.cboFont.SetSelLength(4);
    key = 0;
  };
  Type("a");
  const QLineEdit* edit = Find<QComboBox>("cboFont").lineEdit();
  EXPECT_EQ(edit->text(), "Arial");
  EXPECT_EQ(edit->selectedText(), "rial");
}

// --- the middle button --------------------------------------------------------------------------

// It pastes what is selected somewhere, and its release is a release.
TEST_F(KeyboardTest, TheMiddleButtonIsPressedAndReleased) {
  frmMain.txtNoCopies.Events().MouseDown = [this](int button, int, double, double) {
    log.push_back("down " + std::to_string(button));
  };
  frmMain.txtNoCopies.Events().MouseUp = [this](int button, int, double, double) {
    log.push_back("up " + std::to_string(button));
  };
  QWidget& field = Find("txtNoCopies");
  QTest::mouseClick(Screen(), Qt::MiddleButton, {}, field.mapTo(&Window(), field.rect().center()));
  EXPECT_EQ(log, Log({"down 4", "up 4"}));
}

TEST_F(KeyboardTest, TheFieldOfAListIsPressedLikeAnyOther) {
  QLineEdit& edit = EditOf(frmMain.cboFont);
  frmMain.cboFont.Events().GotFocus = [this] { log.push_back("focus"); };
  frmMain.cboFont.Events().MouseDown = [this](int button, int, double, double) {
    log.push_back("down " + std::to_string(button));
  };
  frmMain.cboFont.Events().MouseUp = [this](int button, int, double, double) {
    log.push_back("up " + std::to_string(button));
  };
  QTest::mouseClick(Screen(), Qt::LeftButton, {}, edit.mapTo(&Window(), edit.rect().center()));
  EXPECT_EQ(log, Log({"focus", "down 1", "up 1"}));
}

// A field of lines consists of two widgets, and the one hands the other what it does not use
// itself.
TEST_F(KeyboardTest, TheLinesOfATextArePressedOnceByEachButton) {
  frmMain.txtTool.SetVisible(true);
  frmMain.txtTool.ZOrder();
  frmMain.txtTool.Events().MouseDown = [this](int button, int, double, double) {
    log.push_back("down " + std::to_string(button));
  };
  frmMain.txtTool.Events().MouseUp = [this](int button, int, double, double) {
    log.push_back("up " + std::to_string(button));
  };
  auto& lines = Find<QPlainTextEdit>("txtTool");
  const QPoint middle = lines.viewport()->rect().center();
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    QTest::mouseClick(lines.viewport(), button, {}, middle);
  }
  EXPECT_EQ(log, Log({"down 1", "up 1", "down 4", "up 4", "down 2", "up 2"}));
}

// --- the window sees every key first ------------------------------------------------------------

TEST_F(KeyboardTest, TheWindowSeesAKeyBeforeTheField) {
  NoteKeys();
  frmMain.txtNoCopies.Events().KeyPress = [this](int&) { log.push_back("press"); };
  Key(Qt::Key_7);
  EXPECT_EQ(log, Log({"down 55/0", "press", "up 55/0"}));
}

TEST_F(KeyboardTest, AKeyThatTheWindowTakesGoesNoFurther) {
  frmMain.WindowEvents().KeyDown = [](int& code, int) { code = 0; };
  Type("7");
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "");
  frmMain.mnuFilePrint.Events().Click = [this] { log.push_back("print"); };
  Key(Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(log.empty()) << "nor to the menus";
}

// An arrow would go on to a neighbour, as the toolkit's buttons have it.
TEST_F(KeyboardTest, AnArrowThatTheWindowTakesMovesTheKeyboardWhereTheProgramSays) {
  frmMain.WindowEvents().KeyDown = [](int& code, int) {
    frmMain.picMag.SetVisible(true);
    frmMain.cmdMagnify(0).SetFocus();
    code = 0;
  };
  frmMain.cmdTools(5).SetFocus();
  Key(Qt::Key_Down);
  EXPECT_TRUE(frmMain.cmdMagnify(0).HasFocus());
  EXPECT_TRUE(Find("cmdMagnify_0").hasFocus());
}

TEST_F(KeyboardTest, ShortcutsAreSeenByTheWindowOnceAndThenByTheMenu) {
  NoteKeys();
  frmMain.mnuArrangeSTB.Events().Click = [this] { log.push_back("to back"); };
  Key(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(log, Log({"down 17/2", "down 66/2", "to back", "up 66/2", "up 17/0"}));
}

TEST_F(KeyboardTest, EveryShortcutOfTheMenusWorksFromWithinAField) {
  const std::pair<Menu*, QKeyCombination> shortcuts[] = {
      {&frmMain.mnuFileSave, Qt::CTRL | Qt::Key_S},
      {&frmMain.mnuFilePrint, Qt::CTRL | Qt::Key_P},
      {&frmMain.mnuFileImport, Qt::CTRL | Qt::Key_I},
      {&frmMain.mnuFileExit, Qt::CTRL | Qt::Key_Q},
      {&frmMain.mnuUndo, Qt::ALT | Qt::Key_Backspace},
      {&frmMain.mnuAHoriz, Qt::CTRL | Qt::Key_H},
      {&frmMain.mnuArrangeBTF, Qt::CTRL | Qt::Key_F},
      {&frmMain.mnuArrangeSTB, Qt::CTRL | Qt::Key_B},
  };
  frmMain.txtNoCopies.SetText("12");
  frmMain.txtNoCopies.SetSelStart(2);
  for (const auto& [entry, keys] : shortcuts) {
    int clicks = 0;
    entry->SetEnabled(true);
    entry->Events().Click = [&] { ++clicks; };
    Key(keys.key(), keys.keyboardModifiers());
    EXPECT_EQ(clicks, 1) << entry->Name();
  }
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "12");
}

TEST_F(KeyboardTest, FieldsKeepTheFourKeysOfEditing) {
  for (Menu* entry : {&frmMain.mnuEditCut, &frmMain.mnuEditCopy, &frmMain.mnuEditPaste,
                      &frmMain.mnuEditSelectAll}) {
    entry->SetEnabled(true);
    entry->Events().Click = [this, entry] { log.push_back(entry->Name()); };
  }
  frmMain.txtNoCopies.SetText("12");
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(frmMain.txtNoCopies.SelLength(), 2);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "12");
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "12");
  EXPECT_EQ(log, Log());
  frmMain.txtSetFocus(0).SetFocus();
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_C, Qt::Key_V, Qt::Key_A}) {
    Key(key, Qt::ControlModifier);
  }
  EXPECT_EQ(log, Log({"mnuEditCut", "mnuEditCopy", "mnuEditPaste", "mnuEditSelectAll"}));
}

TEST_F(KeyboardTest, ADisabledEntryHasNoShortcut) {
  frmMain.mnuFileSave.SetEnabled(false);
  frmMain.mnuFileSave.Events().Click = [this] { log.push_back("save"); };
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(log, Log());
}

TEST_F(KeyboardTest, F1IsHelp) {
  frmMain.mnuHelpHelp.Events().Click = [this] { log.push_back("help"); };
  Key(Qt::Key_F1);
  EXPECT_EQ(log, Log({"help"}));
}

TEST_F(KeyboardTest, KeysHaveTheirCodes) {
  const std::pair<Qt::Key, int> keys[] = {
      {Qt::Key_A, 65},       {Qt::Key_Z, 90},        {Qt::Key_0, 48},        {Qt::Key_9, 57},
      {Qt::Key_F1, 112},     {Qt::Key_F12, 123},     {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},
      {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},
      {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},      {Qt::Key_Escape, 27},   {Qt::Key_Space, 32},
      {Qt::Key_PageUp, 33},  {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},      {Qt::Key_Home, 36},
      {Qt::Key_Left, 37},    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},    {Qt::Key_Down, 40},
      {Qt::Key_Insert, 45},  {Qt::Key_Delete, 46},   {Qt::Key_Menu, 93},     {Qt::Key_VolumeUp, 0}};
  for (const auto& [key, code] : keys) {
    EXPECT_EQ(KeyCode(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)), code) << key;
  }
}

// --- where the keyboard is ----------------------------------------------------------------------

TEST_F(KeyboardTest, TheTabKeyMovesTheKeyboard) {
  frmMain.txtNoCopies.Events().LostFocus = [this] { log.push_back("lost"); };
  frmMain.chkMailshot.Events().GotFocus = [this] { log.push_back("got"); };
  Key(Qt::Key_Tab);
  EXPECT_EQ(log, Log({"lost", "got"}));
  EXPECT_TRUE(Find("chkMailshot").hasFocus());
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(frmMain.txtNoCopies.HasFocus());
}

TEST_F(KeyboardTest, TheTabKeyVisitsTheFlyoutWhileItIsShown) {
  frmMain.cmdCenterLab.SetFocus();
  Key(Qt::Key_Tab);
  EXPECT_FALSE(frmMain.cmdMagnify(0).HasFocus());
  frmMain.picMag.SetVisible(true);
  frmMain.cmdCenterLab.SetFocus();
  for (int i = 0; i < 5; ++i) {
    Key(Qt::Key_Tab);
    EXPECT_TRUE(frmMain.cmdMagnify(i).HasFocus()) << i;
  }
}

// As the fields of place and size do while nothing is selected, and the board's scroll bars always.
TEST_F(KeyboardTest, TheTabKeyPassesOverWhatHandsTheKeyboardOn) {
  frmMain.txtDSize.Events().GotFocus = [] { frmMain.txtSetFocus(0).SetFocus(); };
  frmMain.cmdSerNo.SetFocus();
  Key(Qt::Key_Tab);
  EXPECT_TRUE(frmMain.cboZoom.HasFocus());
  EXPECT_TRUE(Find("cboZoom").hasFocus());
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(frmMain.cmdSerNo.HasFocus());
  EXPECT_TRUE(Find("cmdSerNo").hasFocus());
}

TEST_F(KeyboardTest, AFieldThatHandsTheKeyboardOnKeepsNoCaret) {
  const auto fields = [this] {
    std::vector<QImage> images;
    for (int i = 0; i < 4; ++i) {
      images.push_back(Find("txtDSize_" + QString::number(i)).grab().toImage());
    }
    return images;
  };
  frmMain.txtDSize.Events().GotFocus = [] { frmMain.txtSetFocus(0).SetFocus(); };
  frmMain.cmdSerNo.SetFocus();
  const auto before = fields();
  Key(Qt::Key_Tab);
  EXPECT_EQ(fields(), before) << "by the tab key";
  Click("txtDSize_1");
  EXPECT_EQ(fields(), before) << "by a click";
  frmMain.txtDSize.Events().GotFocus = {};
  frmMain.txtDSize(1).SetFocus();
  EXPECT_NE(fields(), before) << "one that keeps the keyboard has its caret";
}

TEST_F(KeyboardTest, TheTabKeyLeavesTheBoardAgain) {
  for (ScrollBar* bar : {&frmMain.hS1, &frmMain.vS1}) {
    bar->Events().GotFocus = [] { frmMain.txtSetFocus(0).SetFocus(); };
  }
  frmMain.txtSetFocus(0).SetFocus();
  Key(Qt::Key_Tab);
  EXPECT_TRUE(frmMain.cmdXC.HasFocus());
  Key(Qt::Key_Tab);
  EXPECT_FALSE(frmMain.cmdXC.HasFocus());
  EXPECT_FALSE(frmMain.txtSetFocus(0).HasFocus());
}

TEST_F(KeyboardTest, TheModelMovesTheToolkitsFocus) {
  frmMain.cmdPreview.SetFocus();
  EXPECT_TRUE(Find("cmdPreview").hasFocus());
}

TEST_F(KeyboardTest, AFieldThatRefusesSendsTheKeyboardOn) {
  frmMain.txtDSize.Events().GotFocus = [] { frmMain.txtSetFocus(0).SetFocus(); };
  Click("txtDSize_1");
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_TRUE(Find("picBoard").hasFocus()) << "the board stands for its invisible text box";
  Type("5");
  EXPECT_EQ(Find<QLineEdit>("txtDSize_1").text(), "0.00");
}

TEST_F(KeyboardTest, HidingTheHolderTellsNobody) {
  frmMain.txtNoCopies.Events().LostFocus = [this] { log.push_back("lost"); };
  frmMain.chkMailshot.Events().GotFocus = [this] { log.push_back("got"); };
  frmMain.cmdPrint.Events().GotFocus = [this] { log.push_back("got"); };
  frmMain.txtNoCopies.SetVisible(false);
  Settle();
  EXPECT_EQ(log, Log());
  EXPECT_EQ(frmMain.ActiveControl(), nullptr);
  QWidget* focus = QApplication::focusWidget();
  EXPECT_TRUE(!focus || !focus->property("control").toBool());
}

TEST_F(KeyboardTest, CoveringThePanelOfTheHolderTellsNobody) {
  frmMain.txtNoCopies.Events().LostFocus = [this] { log.push_back("lost"); };
  Front(frmMain.picText);
  EXPECT_EQ(log, Log());
  EXPECT_TRUE(frmMain.txtNoCopies.HasFocus()) << "it is covered, not hidden";
}

// A routine gives the keyboard to a field before it brings the field's panel to the front.
TEST_F(KeyboardTest, AFieldOfAPanelThatIsShownLaterHasTheKeyboardThen) {
  frmMain.txtTool.SetText("");
  frmMain.txtTool.SetFocus();
  Settle();
  Front(frmMain.picText);
  EXPECT_TRUE(Find("txtTool").hasFocus());
  Type("a");
  EXPECT_EQ(frmMain.txtTool.Text(), "a");
}

TEST_F(KeyboardTest, APanelThatComesBackBringsTheKeyboardBackToItsField) {
  Front(frmMain.picDrawing);
  Front(frmMain.picPrint);
  EXPECT_TRUE(Find("txtNoCopies").hasFocus());
  Type("7");
  EXPECT_EQ(frmMain.txtNoCopies.Text(), "7");
}

// The list of fonts goes along from panel to panel.
TEST_F(KeyboardTest, AListThatGoesAlongToTheNextPanelKeepsTheKeyboard) {
  frmMain.cboFont.SetVisible(true);
  Front(frmMain.picText);
  frmMain.cboFont.SetFocus();
  for (PictureBox* panel : {&frmMain.picBCode, &frmMain.picFields, &frmMain.picText}) {
    Front(*panel);
    EXPECT_TRUE(Find("cboFont").hasFocus()) << panel->Name();
    frmMain.cboFont.SetText("");
    Type("7");
    EXPECT_EQ(frmMain.cboFont.Text(), "7") << panel->Name();
  }
}

TEST_F(KeyboardTest, APanelLaidOverTheBoardsKeyboardTakesNone) {
  frmMain.txtSetFocus(0).SetFocus();
  Front(frmMain.picText);
  EXPECT_TRUE(Find("picBoard").hasFocus());
}

TEST_F(KeyboardTest, TheTabKeyOfTheProgramLeavesTheField) {
  frmMain.txtNoCopies.Events().KeyPress = [](int& key) {
    if (key == 13) SendTab();
  };
  Key(Qt::Key_Return);
  ASSERT_TRUE(QTest::qWaitFor([] { return frmMain.chkMailshot.HasFocus(); }, 1000));
}

// A held key repeats its press and its release; only its real release ends the modifiers.
TEST_F(KeyboardTest, AHeldKeyThatRepeatsEndsNothing) {
  NoteKeys();
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
    QKeyEvent repeated(type, Qt::Key_Right, Qt::ShiftModifier, QString(), true);
    QCoreApplication::sendEvent(Screen(), &repeated);
  }
  EXPECT_EQ(log, Log({"down 39/1", "down 39/1"}));
  QKeyEvent up(QEvent::KeyRelease, Qt::Key_Right, Qt::ShiftModifier);
  QCoreApplication::sendEvent(Screen(), &up);
  EXPECT_EQ(log.back(), "up 39/1");
}

// The window system asks for a menu first and sends the key then.
TEST_F(KeyboardTest, TheMenuKeyIsHeardOnceAndBeforeTheFieldsOwnMenu) {
  const auto press = [this] {
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(Screen(), &asked);
    Key(Qt::Key_Menu);
  };
  frmMain.WindowEvents().KeyDown = [this](int& code, int) {
    log.push_back("down " + std::to_string(code));
    code = 0;
  };
  press();
  press();
  EXPECT_EQ(log, Log({"down 93", "down 93"}));
}

}  // namespace
}  // namespace tagwright
