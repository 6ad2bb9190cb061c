#include <QAbstractButton>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <fstream>
#include <functional>

#include "platform/qt_windows/window_fixture.h"
#include "platform/services/dialog_folders.h"
#include "qt/services/dialogs.h"

namespace tagwright {
namespace {

class DialogsQtTest : public WindowTest {
 protected:
  DialogsQtTest() { SetDialogs(service_.get()); }

  // Does `act` with the dialog once it is up.
  template <class Dialog>
  void Meanwhile(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, [act] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      act(*dialog);
    });
  }
  static void Press(QMessageBox& box, QMessageBox::StandardButton button) {
    box.button(button)->click();
  }

 private:
  std::unique_ptr<DialogService> service_ = MakeDialogService();
};

TEST_F(DialogsQtTest, AMessageWithoutATitleBearsTheProgramsName) {
  Meanwhile<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Tagwright");
    EXPECT_EQ(box.text(), "<b>53</b> - File not found");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    Press(box, QMessageBox::Ok);
  });
  EXPECT_EQ(MessageBox("<b>53</b> - File not found"), Answer::kOk);
}

TEST_F(DialogsQtTest, ATitleIsShown) {
  Meanwhile<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Save");
    Press(box, QMessageBox::No);
  });
  EXPECT_EQ(MessageBox("Save?", MessageButtons::kYesNo, MessageIcon::kQuestion, "Save"),
            Answer::kNo);
}

struct EscapeCase {
  MessageButtons buttons;
  Answer answer;
};

TEST_F(DialogsQtTest, EscapeGivesTheAnswerThatBacksOut) {
  for (const EscapeCase& expected : {EscapeCase{MessageButtons::kOk, Answer::kOk},
                                     EscapeCase{MessageButtons::kYesNo, Answer::kNo},
                                     EscapeCase{MessageButtons::kYesNoCancel, Answer::kCancel}}) {
    Meanwhile<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(MessageBox("Text", expected.buttons), expected.answer);
  }
}

TEST_F(DialogsQtTest, AnInputBoxGivesItsTextOrNothing) {
  Meanwhile<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.labelText(), "Please enter the width (mm) of the barcode");
    EXPECT_EQ(box.textValue(), "35");
    box.setTextValue("40");
    box.accept();
  });
  EXPECT_EQ(InputBox("Please enter the width (mm) of the barcode", "", "35"), "40");
  Meanwhile<QInputDialog>([](QInputDialog& box) { box.reject(); });
  EXPECT_EQ(InputBox("Please enter the width (mm) of the barcode", "", "35"), "");
}

TEST_F(DialogsQtTest, AFileIsChosenByItsPatternAndGetsItsEnding) {
  TempFolder folder;
  CommonDialog dialog;
  dialog.Filter = "Label Projects|*.twp";
  dialog.DefaultExt = "twp";
  Meanwhile<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.nameFilters(), QStringList("Label Projects (*.twp)"));
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
    box.setDirectory(QString::fromStdString(folder.Path()));
    box.selectFile("wine");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileName, folder.File("wine.twp"));
  EXPECT_EQ(dialog.FileTitle, "wine.twp");
}

TEST_F(DialogsQtTest, SaveAsProposesTheNameAndOpensWhereItLies) {
  const TempFolder folder;
  CommonDialog dialog;
  dialog.Filter = "Label Projects|*.twp";
  dialog.FileName = folder.File("wine.twp");
  Meanwhile<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.findChild<QLineEdit*>()->text(), "wine.twp");
    EXPECT_EQ(box.directory().absolutePath().toStdString(), folder.Path());
    box.reject();
  });
  dialog.ShowSave();
}

TEST_F(DialogsQtTest, ADialogOpensWhereTheLastFileOfItsKindLies) {
  const TempFolder labels, pictures;
  ForgetDialogFolders();
  RememberMainFile(labels.File("wine.twp"));
  RememberFile("Pictures|*.gif", pictures.File("grape.gif"));
  const auto opens_in = [&](const std::string& filter) {
    std::string opened;
    CommonDialog dialog;
    dialog.Filter = filter;
    Meanwhile<QFileDialog>([&](QFileDialog& box) {
      opened = box.directory().absolutePath().toStdString();
      box.reject();
    });
    dialog.ShowOpen();
    return opened;
  };
  EXPECT_EQ(opens_in("Pictures|*.gif"), pictures.Path());
  EXPECT_EQ(opens_in("Tables|*.csv"), labels.Path());
  RememberFile("Pictures|*.gif", "/no/such/folder/grape.gif");
  EXPECT_TRUE(QDir(QString::fromStdString(opens_in("Pictures|*.gif"))).exists());
  ForgetDialogFolders();
}

TEST_F(DialogsQtTest, ACancelledFileDialogIsAFaultForThoseWhoAsked) {
  CommonDialog dialog;
  dialog.CancelError = true;
  Meanwhile<QFileDialog>([](QFileDialog& box) { box.reject(); });
  int number = 0;
  try {
    dialog.ShowOpen();
  } catch (const Fault& fault) {
    number = fault.number;
  }
  EXPECT_EQ(number, kDialogCancelled);
}

// Notes whether the dialog stood yet when the list of completions went. One that is being taken
// down is no file dialog any more.
class PopupWatcher : public QObject {
 public:
  PopupWatcher(QWidget* popup, QFileDialog* dialog) : QObject(popup), dialog_(dialog) {
    popup->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Hide) {
      dialog_stood = qobject_cast<QFileDialog*>(dialog_.data()) != nullptr;
    }
    return QObject::eventFilter(watched, event);
  }
  static inline bool dialog_stood = false;

 private:
  QPointer<QObject> dialog_;
};

// While they hang open they hold the mouse, and a dialog takes its time to go.
TEST_F(DialogsQtTest, TheCompletionsOfANameGoBeforeTheDialogDoes) {
  const TempFolder folder;
  std::ofstream(folder.File("wine.twp")) << "label";
  PopupWatcher::dialog_stood = false;
  CommonDialog dialog;
  Meanwhile<QFileDialog>([&](QFileDialog& box) {
    box.setDirectory(QString::fromStdString(folder.Path()));
    auto* name = box.findChild<QLineEdit*>();
    ASSERT_TRUE(QTest::qWaitFor([&] {
      name->clear();
      QTest::keyClicks(name, "wine.tw");
      return QApplication::activePopupWidget() != nullptr;
    }));
    QTest::keyClicks(name, "p");
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    new PopupWatcher(QApplication::activePopupWidget(), &box);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  });
  dialog.ShowOpen();
  EXPECT_EQ(dialog.FileTitle, "wine.twp");
  EXPECT_TRUE(PopupWatcher::dialog_stood);
}

TEST_F(DialogsQtTest, AColourComesAsTheProgramHoldsColours) {
  CommonDialog dialog;
  dialog.Color = Rgb(1, 2, 3);
  Meanwhile<QColorDialog>([](QColorDialog& box) {
    EXPECT_EQ(box.currentColor(), QColor(1, 2, 3));
    box.setCurrentColor(QColor(10, 20, 30));
    box.accept();
  });
  dialog.ShowColor();
  EXPECT_EQ(dialog.Color, Rgb(10, 20, 30));
}

}  // namespace
}  // namespace tagwright
