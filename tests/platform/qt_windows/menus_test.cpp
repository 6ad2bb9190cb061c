#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "platform/qt_windows/window_fixture.h"

namespace tagwright {
namespace {

using MenusTest = WindowTest;

// A menu's entries as "name caption [shortcut]", submenus with a ">", separators as "-".
std::vector<std::string> Entries(const QMenu& menu) {
  std::vector<std::string> entries;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator()) {
      entries.push_back(("- " + action->objectName()).trimmed().toStdString());
      continue;
    }
    const QString name = action->menu() ? action->menu()->objectName() : action->objectName();
    const QString caption = action->text();
    QString entry = name + " " + caption;
    if (action->menu()) entry += " >";
    if (!action->shortcut().isEmpty()) entry += " [" + action->shortcut().toString() + "]";
    entries.push_back(entry.toStdString());
  }
  return entries;
}

struct MenuCase {
  const char* menu;
  const char* title;
  std::vector<std::string> entries;
};

const MenuCase kMenus[] = {
    {"mnuFile",
     "&File",
     {"mnuFileNew &New",
      "mnuFileOpen &Open",
      "mnuFileSave &Save [Ctrl+S]",
      "mnuFileSaveAs Save &As",
      "-",
      "mnuFilePrint Print [Ctrl+P]",
      "-",
      "mnuFileImport Import Data [Ctrl+I]",
      "mnuFileSerial Serial Number Setup",
      "mnuFileDesign Design Label Layouts",
      "mnuFileDefault Default Settings",
      "- mnuFileBar4",
      "mnuFileOld_0 ",
      "mnuFileOld_1 ",
      "mnuFileOld_2 ",
      "mnuFileOld_3 ",
      "mnuFileOld_4 ",
      "mnuFileOld_5 ",
      "-",
      "mnuFileExit E&xit [Ctrl+Q]"}},
    {"mnuFileEdit",
     "&Edit",
     {"mnuUndo Undo [Alt+Backspace]", "-", "mnuEditCut Cut [Ctrl+X]", "mnuEditCopy Copy [Ctrl+C]",
      "mnuEditPaste Paste [Ctrl+V]", "-", "mnuEditSelectAll Select All [Ctrl+A]"}},
    {"mnuArrange",
     "&Arrange",
     {"mnuArrAlign Align >", "mnuArrSize Make Same Size >",
      "mnuAHoriz Horizontal Centre to Label [Ctrl+H]", "-", "mnuArrangeBTF Bring to Front [Ctrl+F]",
      "mnuArrangeSTB Send to Back [Ctrl+B]"}},
    {"mnuArrAlign",
     "Align",
     {"mnuAAlign_0 Left", "mnuAAlign_1 Centre", "mnuAAlign_2 Right", "mnuAAlign_3 Top",
      "mnuAAlign_4 Middle", "mnuAAlign_5 Bottom"}},
    {"mnuArrSize", "Make Same Size", {"mnuASize_0 Height", "mnuASize_1 Width", "mnuASize_2 Both"}},
    {"mnuFileOptions",
     "&Options",
     {"mnuFileRulers Show Rulers", "mnuOptXHair Show Cross Hairs", "mnuUnits Units of Measure >",
      "mnuMagRuleArea Magnetic Rule Zone >"}},
    {"mnuUnits", "Units of Measure", {"mnuUnitMM Millimeters", "mnuUnitIn Inches"}},
    {"mnuMagRuleArea",
     "Magnetic Rule Zone",
     {"mnuMagRule_0 0.5 mm", "mnuMagRule_1 1.0 mm", "mnuMagRule_2 1.5 mm", "mnuMagRule_3 2.0 mm",
      "mnuMagRule_4 2.5 mm", "mnuMagRule_5 3.0 mm", "mnuMagRule_6 3.5 mm"}},
    {"mnuHelp",
     "&Help",
     {"mnuHelpHelp &Help       F1", "mnuHelpWebsite Tagwright Website", "mnuHelpAbout About ..."}},
    {"mnuFields",
     "Data Field",
     {"mnuField_0 Standard", "mnuField_1 Currency", "mnuField_2 1,000.00", "mnuFieldBC Barcode >",
      "mnuBCSettings Barcode Settings >"}},
    {"mnuFieldBC",
     "Barcode",
     {"mnuFBC_0 UPC-A", "mnuFBC_1 UPC-E", "mnuFBC_2 EAN-13", "mnuFBC_3 EAN-8",
      "mnuFBC_4 Code 2 of 5", "mnuFBC_5 Interleaved 2 of 5", "mnuFBC_6 Code 128-A",
      "mnuFBC_7 Code 128-B", "mnuFBC_8 Code 128-C", "mnuFBC_9 Code 39",
      "mnuFBC_10 Code 39 Extended", "mnuFBC_11 Codabar", "mnuFBC_12 PostNet",
      "mnuFBC_13 Royal Mail CBC", "mnuFBC_14 Bookland + 2", "mnuFBC_15 Bookland + 5"}},
    {"mnuBCSettings",
     "Barcode Settings",
     {"mnuBCSetWid Barcode Width", "mnuBCSetHgt Barcode Height",
      "mnuBCSetChars Print Characters on Barcode"}},
    {"mnuDrawing", "Shape", {"mnuDChange Change Shape to >", "mnuAspect Aspect >"}},
    {"mnuDChange",
     "Change Shape to",
     {"mnuDrawChange_0 Ellipse", "mnuDrawChange_1 Rectangle", "mnuDrawChange_2 Rounded Rectangle"}},
    {"mnuAspect",
     "Aspect",
     {"mnuShpAspect_0 Make Width = Height", "mnuShpAspect_1 Make Height = Width"}},
    {"mnuGraphic", "Picture", {"mnuGraphicRestore Restore Aspect Ratio >"}},
    {"mnuGraphicRestore",
     "Restore Aspect Ratio",
     {"mnuGraphicWidth Adjust Width", "mnuGraphicHeight Adjust Height"}},
    {"mnuText", "Text", {"mnuTextCopy Copy Properties from"}},
};

TEST_F(MenusTest, EveryMenuHasItsEntriesCaptionsAndShortcuts) {
  for (const MenuCase& expected : kMenus) {
    const QMenu& menu = Find<QMenu>(expected.menu);
    EXPECT_EQ(menu.title().toStdString(), expected.title);
    EXPECT_EQ(Entries(menu), expected.entries) << expected.menu;
  }
}

TEST_F(MenusTest, TheBarHasItsMenusInOrder) {
  std::vector<std::string> names;
  for (const QAction* action : qobject_cast<QMainWindow*>(&Window())->menuBar()->actions()) {
    names.push_back(action->menu()->objectName().toStdString());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"mnuFile", "mnuFileEdit", "mnuArrange",
                                             "mnuFileOptions", "mnuHelp", "mnuFields", "mnuDrawing",
                                             "mnuGraphic", "mnuText"}));
}

TEST_F(MenusTest, AnEntryFollowsTheModel) {
  QAction& entry = Find<QAction>("mnuFileOld_3");
  EXPECT_FALSE(entry.isVisible());
  frmMain.mnuFileOld(3).SetCaption("&4 /tmp/label.twp");
  frmMain.mnuFileOld(3).SetVisible(true);
  EXPECT_EQ(entry.text(), "&4 /tmp/label.twp");
  EXPECT_TRUE(entry.isVisible());
  EXPECT_FALSE(Find<QAction>("mnuFileSave").isEnabled());
  frmMain.mnuFileSave.SetEnabled(true);
  EXPECT_TRUE(Find<QAction>("mnuFileSave").isEnabled());
}

TEST_F(MenusTest, AHiddenMenuLeavesTheBar) {
  frmMain.mnuFields.SetVisible(false);
  EXPECT_FALSE(Find<QMenu>("mnuFields").menuAction()->isVisible());
}

TEST_F(MenusTest, TheModelTicksNotTheToolkit) {
  QAction& rulers = Find<QAction>("mnuFileRulers");
  frmMain.mnuFileRulers.SetChecked(true);
  EXPECT_TRUE(rulers.isChecked());
  rulers.trigger();  // nothing is bound: the tick stays
  EXPECT_TRUE(rulers.isChecked());
}

TEST_F(MenusTest, ChoosingAnEntryRaisesItsClickWithItsIndex) {
  frmMain.mnuAAlign.Events().Click = [this](int index) { log.push_back(std::to_string(index)); };
  Find<QAction>("mnuAAlign_4").trigger();
  EXPECT_EQ(log, std::vector<std::string>{"4"});
}

TEST_F(MenusTest, TickingInTheModelRaisesNothing) {
  frmMain.mnuUnitMM.Events().Click = [this] { log.push_back("click"); };
  frmMain.mnuUnitMM.SetChecked(true);
  Settle();
  EXPECT_TRUE(log.empty());
}

TEST_F(MenusTest, OpeningAMenuEndsHeldKeys) {
  frmMain.WindowEvents().KeyUp = [this](int code, int shift) {
    log.push_back(std::to_string(code) + "/" + std::to_string(shift));
  };
  QMenu& menu = Find<QMenu>("mnuFile");
  menu.popup(QPoint(0, 0));
  menu.close();
  EXPECT_EQ(log, std::vector<std::string>{"0/0"});
}

}  // namespace
}  // namespace tagwright
