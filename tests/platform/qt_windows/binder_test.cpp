#include "qt/controls/binder.h"

#include <QAccessible>
#include <QAccessibleInterface>

#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/control_widgets.h"
#include "qt/forms/form_files.h"

namespace tagwright {
namespace {

using BinderTest = WindowTest;

std::string Joined(const QStringList& names) { return names.join(", ").toStdString(); }

TEST_F(BinderTest, EveryControlOfTheMainWindowHasItsWidget) {
  EXPECT_EQ(Joined(ControlsWithoutWidget(frmMain, Window())), "");
}

TEST_F(BinderTest, EveryWidgetNamedLikeAControlHasItsControl) {
  EXPECT_EQ(Joined(WidgetsWithoutControl(frmMain, Window())), "");
}

TEST_F(BinderTest, TheAboutWindowMatchesBothWays) {
  const auto window = BuildWindow(frmAbout, nullptr);
  EXPECT_EQ(Joined(ControlsWithoutWidget(frmAbout, *window)), "");
  EXPECT_EQ(Joined(WidgetsWithoutControl(frmAbout, *window)), "");
}

TEST_F(BinderTest, TheWindowOfSerialNumbersMatchesBothWaysAndSpeaks) {
  const auto window = BuildWindow(frmSerialNumber, nullptr);
  EXPECT_EQ(Joined(ControlsWithoutWidget(frmSerialNumber, *window)), "");
  EXPECT_EQ(Joined(WidgetsWithoutControl(frmSerialNumber, *window)), "");
  for (const Control* control : frmSerialNumber.AllControls()) {
    const auto* widget = window->findChild<QWidget*>(ObjectName(*control));
    ASSERT_NE(widget, nullptr) << ObjectName(*control).toStdString();
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << ObjectName(*control).toStdString();
  }
}

TEST_F(BinderTest, AMissingWidgetAndAStrangerAreNamed) {
  Find("cmdLine").setObjectName("cmdLime");
  EXPECT_EQ(Joined(ControlsWithoutWidget(frmMain, Window())), "cmdLine");
  EXPECT_EQ(Joined(WidgetsWithoutControl(frmMain, Window())), "cmdLime");
}

TEST_F(BinderTest, AFormWithoutAFileHasNoWindow) {
  EXPECT_EQ(BuildWindow(Form("frmNowhere"), nullptr), nullptr);
}

TEST_F(BinderTest, EveryControlThatIsSeenHasASpokenName) {
  for (const Control* control : frmMain.AllControls()) {
    const QWidget* widget = Window().findChild<QWidget*>(ObjectName(*control));
    if (!widget || dynamic_cast<const Menu*>(control)) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << ObjectName(*control).toStdString();
    QAccessibleInterface* spoken =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    ASSERT_NE(spoken, nullptr);
    EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << ObjectName(*control).toStdString();
  }
}

TEST_F(BinderTest, ASpokenNameThatTheProgramGivesIsHeard) {
  frmMain.chkMailshot.SetSpokenName("from the third row");
  EXPECT_EQ(Find("chkMailshot").accessibleName(), "from the third row");
  frmMain.chkMailshot.SetToolTipText("seen");
  EXPECT_EQ(Find("chkMailshot").accessibleName(), "from the third row");
  EXPECT_EQ(Find("chkMailshot").toolTip(), "seen");
}

TEST_F(BinderTest, EveryButtonAndFieldSaysWhatItIsFor) {
  for (const Control* control : frmMain.AllControls()) {
    const bool acts = dynamic_cast<const CommandButton*>(control) ||
                      dynamic_cast<const CheckBox*>(control) ||
                      dynamic_cast<const ComboBox*>(control);
    if (!acts) continue;
    const QString name = ObjectName(*control);
    EXPECT_FALSE(Find(name).toolTip().isEmpty()) << name.toStdString();
  }
}

}  // namespace
}  // namespace tagwright
