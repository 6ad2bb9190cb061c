// What assistive tools are told, asked as they ask.
#include "qt/controls/spoken.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QListWidget>

#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/control_widgets.h"

namespace tagwright {
namespace {

// Once, as the program does, and before there is a window that could be asked.
class SpokenControls {
 public:
  SpokenControls() {
    [[maybe_unused]] static const bool installed = (Toolkit(), InstallSpokenControls(), true);
  }
};

class SpokenTest : private SpokenControls, public WindowTest {
 protected:
  QAccessibleInterface& Spoken(const QString& name) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Find(name));
    if (!spoken) throw std::runtime_error(name.toStdString() + " says nothing");
    return *spoken;
  }

  // Every list and every row below `from`, however deep.
  static void Collect(QAccessibleInterface& from, std::vector<QAccessibleInterface*>& found) {
    for (int i = 0; i < from.childCount(); ++i) {
      QAccessibleInterface* child = from.child(i);
      if (!child) continue;
      const auto role = child->role();
      if (role == QAccessible::List || role == QAccessible::ListItem) found.push_back(child);
      Collect(*child, found);
    }
  }
  static std::vector<QAccessibleInterface*> ListsIn(QAccessibleInterface& from) {
    std::vector<QAccessibleInterface*> found;
    Collect(from, found);
    return found;
  }

  void FillLists() {
    for (const char* row : {"Name", "City", "Country"}) {
      frmMain.lstFields.AddItem(row);
      frmMain.cboBCode.AddItem(row);
      frmMain.cboLabelLayout.AddItem(row);
    }
    frmMain.lstFields.SetListIndex(1);
    Settle();
  }
};

// --- lists --------------------------------------------------------------------------------------

TEST_F(SpokenTest, ListsOfHiddenPanelsAreNotToldAsShowing) {
  FillLists();
  Front(frmMain.picProperties);
  int lists = 0;
  for (const char* panel : {"picFields", "picBCode", "picText", "picDrawing", "picPrint"}) {
    for (const QAccessibleInterface* spoken : ListsIn(Spoken(panel))) {
      ++lists;
      EXPECT_TRUE(spoken->state().invisible)
          << panel << " " << spoken->text(QAccessible::Name).toStdString();
    }
  }
  EXPECT_GT(lists, 8);
}

TEST_F(SpokenTest, AFoldedListIsNotToldAsShowing) {
  FillLists();
  Front(frmMain.picProperties);
  const auto folded = ListsIn(Spoken("cboLabelLayout"));
  ASSERT_FALSE(folded.empty());
  for (const QAccessibleInterface* spoken : folded) EXPECT_TRUE(spoken->state().invisible);
  auto& combo = Find<QComboBox>("cboLabelLayout");
  combo.showPopup();
  Settle();
  const auto open = ListsIn(Spoken("cboLabelLayout"));
  ASSERT_FALSE(open.empty());
  EXPECT_EQ(open.front()->role(), QAccessible::List);
  EXPECT_EQ(open.front()->parent(), &Spoken("cboLabelLayout"));
  for (const QAccessibleInterface* spoken : open) EXPECT_FALSE(spoken->state().invisible);
  combo.hidePopup();
}

TEST_F(SpokenTest, AListIsToldWithItsRows) {
  FillLists();
  Front(frmMain.picFields);
  QAccessibleInterface& list = Spoken("lstFields");
  EXPECT_EQ(list.role(), QAccessible::List);
  EXPECT_EQ(list.text(QAccessible::Name), "Fields");
  EXPECT_FALSE(list.state().invisible);
  ASSERT_EQ(list.childCount(), 3);
  const char* const names[] = {"Name", "City", "Country"};
  for (int row = 0; row < 3; ++row) {
    QAccessibleInterface* spoken = list.child(row);
    EXPECT_EQ(spoken->role(), QAccessible::ListItem);
    EXPECT_EQ(spoken->text(QAccessible::Name), names[row]);
    EXPECT_EQ(spoken->parent(), &list);
    EXPECT_EQ(list.indexOfChild(spoken), row);
    EXPECT_EQ(spoken->state().selected, row == 1) << row;
    const QPoint middle = spoken->rect().center();
    EXPECT_TRUE(list.rect().contains(middle)) << row;
    EXPECT_EQ(list.childAt(middle.x(), middle.y()), spoken) << row;
  }
  EXPECT_EQ(list.child(3), nullptr);
  EXPECT_EQ(list.child(-1), nullptr);
}

TEST_F(SpokenTest, ARowIsChosenByItsPress) {
  FillLists();
  Front(frmMain.picFields);
  QAccessibleInterface* row = Spoken("lstFields").child(2);
  ASSERT_NE(row->actionInterface(), nullptr);
  row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(frmMain.lstFields.ListIndex(), 2);
  EXPECT_TRUE(row->state().selected);
}

TEST_F(SpokenTest, ARowThatIsGoneIsNoneAnyMore) {
  FillLists();
  Front(frmMain.picFields);
  QAccessibleInterface* row = Spoken("lstFields").child(2);
  frmMain.lstFields.Clear();
  EXPECT_FALSE(row->isValid());
  EXPECT_TRUE(row->text(QAccessible::Name).isEmpty());
  EXPECT_TRUE(row->rect().isEmpty());
}

// --- armed tools --------------------------------------------------------------------------------

TEST_F(SpokenTest, AButtonThatStaysPressedIsToldAsPressed) {
  for (CommandButton* button : {&frmMain.cmdTools(3), &frmMain.cmdLine, &frmMain.cmdTools(7)}) {
    QAccessibleInterface& spoken = Spoken(ObjectName(*button));
    EXPECT_FALSE(spoken.state().pressed);
    EXPECT_FALSE(spoken.state().checkable) << "there is nothing to tick";
    button->SetDown(true);
    EXPECT_TRUE(spoken.state().pressed);
    EXPECT_TRUE(spoken.state().checked);
    EXPECT_EQ(spoken.role(), QAccessible::Button);
    EXPECT_TRUE(Find<QAbstractButton>(ObjectName(*button)).isChecked()) << "and looks so";
    button->SetDown(false);
    EXPECT_FALSE(spoken.state().pressed);
    EXPECT_FALSE(spoken.state().checkable);
    EXPECT_FALSE(Find<QAbstractButton>(ObjectName(*button)).isChecked());
  }
}

// Whether it stays pressed is said by the tool that is armed, not by the clicks.
TEST_F(SpokenTest, AClickAloneNeitherPressesNorReleases) {
  auto& face = Find<QAbstractButton>("cmdTools_3");
  Click("cmdTools_3");
  EXPECT_FALSE(face.isChecked());
  frmMain.cmdTools(3).SetDown(true);
  Click("cmdTools_3");
  EXPECT_TRUE(face.isChecked());
  int pressed = 0;
  frmMain.cmdTools.Events().Click = [&](int index) { pressed += index == 3; };
  Click("cmdTools_3");
  EXPECT_EQ(pressed, 1);
}

TEST_F(SpokenTest, APressedButtonLooksPressed) {
  auto& face = Find<QAbstractButton>("cmdTools_3");
  QTest::mouseMove(Screen(), QPoint(2, 2));
  const QImage before = face.grab().toImage();
  frmMain.cmdTools(3).SetDown(true);
  EXPECT_NE(face.grab().toImage(), before);
  frmMain.cmdTools(3).SetDown(false);
  EXPECT_EQ(face.grab().toImage(), before);
}

// --- colours ------------------------------------------------------------------------------------

TEST_F(SpokenTest, ColoursHaveWords) {
  const std::pair<Color, const char*> rows[] = {
      {Rgb(0, 0, 0), "Black"},
      {Rgb(255, 255, 255), "White"},
      {Rgb(128, 128, 128), "Grey, 50 per cent light"},
      {Rgb(192, 192, 192), "Grey, 75 per cent light"},
      {Rgb(200, 30, 20), "Red 200, green 30, blue 20"},
      {Rgb(128, 128, 129), "Red 128, green 128, blue 129"}};
  for (const auto& [color, words] : rows) EXPECT_EQ(ColorInWords(color), words);
}

TEST_F(SpokenTest, SamplesAreToldAsColours) {
  frmMain.lblBCol(6).SetBackColor(Rgb(255, 255, 255));
  frmMain.lblFCol(6).SetBackColor(Rgb(200, 30, 20));
  frmMain.lblTextColor.SetBackColor(Rgb(0, 0, 0));
  EXPECT_EQ(Spoken("lblBCol_6").text(QAccessible::Description), "White");
  EXPECT_EQ(Spoken("lblFCol_6").text(QAccessible::Description), "Red 200, green 30, blue 20");
  EXPECT_EQ(Spoken("lblTextColor").text(QAccessible::Description), "Black");
  EXPECT_EQ(Spoken("lblFCol_6").text(QAccessible::Name), "Outline colour in force");
}

}  // namespace
}  // namespace tagwright
