#include "shell/shutdown.h"

#include <vector>

#include "document/objects.h"
#include "forms/frmAbout.h"
#include "shell/shell_fixture.h"

namespace tagwright {
namespace {

class ShutdownTest : public ShellTest {
 protected:
  ShutdownTest() { StartProgram(); }

  // What happened, in order: the other window's unload, with what was on disk and in memory then.
  struct Moment {
    bool settings_written;
    bool dirty;
    std::size_t questions;
  };
  std::vector<Moment> moments;

  void OpenAbout() {
    Load(frmAbout);
    frmAbout.WindowEvents().Unload = [this](bool&) {
      moments.push_back({FileExists(SettingsFile()), DirtyFlag != 0, dialogs.messages.size()});
    };
  }
};

TEST_F(ShutdownTest, ACleanExitAsksNothingAndEndsTheWindow) {
  frmMain.mnuFileExit.Press();
  EXPECT_FALSE(IsLoaded(frmMain));
  EXPECT_TRUE(Forms().empty());
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(FileLength(SettingsFile()), 1190);
}

TEST_F(ShutdownTest, AChangedLabelAsksWithThreeAnswers) {
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kNo};
  EXPECT_TRUE(Unload(frmMain));
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text,
            "Do you want to save the changes you have made to this label?");
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kYesNoCancel);
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(ShutdownTest, YesSavesAndEnds) {
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kYes};
  dialogs.files = {folder.File("label.twp")};
  EXPECT_TRUE(Unload(frmMain));
  EXPECT_EQ(FileLength(folder.File("label.twp")), 666);
  EXPECT_EQ(SettingsOnDisk().RecentFile1.Trimmed(), folder.File("label.twp"));
}

TEST_F(ShutdownTest, BackingOutOfTheFileDialogCancelsTheExit) {
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kYes};
  dialogs.files = {std::nullopt};
  EXPECT_FALSE(Unload(frmMain));
  EXPECT_TRUE(IsLoaded(frmMain));
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ShutdownTest, BackingOutClosesTheOtherWindowsAndRewritesTheSettingsToo) {
  OpenAbout();
  frmMain.SetLeft(1234);
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kYes};
  dialogs.files = {std::nullopt};
  EXPECT_FALSE(Unload(frmMain));
  EXPECT_FALSE(IsLoaded(frmAbout));
  EXPECT_EQ(SettingsOnDisk().WindowLeft, 1234);
}

TEST_F(ShutdownTest, AnExitAfterACancelledOneAsksAgainAndEnds) {
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kCancel, Answer::kNo};
  EXPECT_FALSE(Unload(frmMain));
  EXPECT_TRUE(Unload(frmMain));
  EXPECT_EQ(dialogs.messages.size(), 2U);
  EXPECT_TRUE(Forms().empty());
}

// A window that wants to stay keeps neither the others nor the settings from their steps.
TEST_F(ShutdownTest, AnotherWindowThatStaysDoesNotHoldTheExitUp) {
  Load(frmAbout);
  frmAbout.WindowEvents().Unload = [](bool& Cancel) { Cancel = true; };
  EXPECT_TRUE(Unload(frmMain));
  EXPECT_FALSE(IsLoaded(frmMain));
  EXPECT_EQ(FileLength(SettingsFile()), 1190);
}

// The settings file is rewritten all the same, with the place that the window has now.
TEST_F(ShutdownTest, CancelKeepsTheLabelAndRewritesTheSettings) {
  DirtyFlag = kTrue;
  GrowObjects();
  frmMain.SetLeft(1234);
  frmMain.SetTop(567);
  dialogs.answers = {Answer::kCancel};
  EXPECT_FALSE(Unload(frmMain));
  EXPECT_TRUE(IsLoaded(frmMain));
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SettingsOnDisk().WindowLeft, 1234);
  EXPECT_EQ(SettingsOnDisk().WindowTop, 567);
}

TEST_F(ShutdownTest, CancelClosesTheOtherWindows) {
  OpenAbout();
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kCancel};
  EXPECT_FALSE(Unload(frmMain));
  EXPECT_FALSE(IsLoaded(frmAbout));
  EXPECT_EQ(Forms().size(), 1U);
}

// First the question and the save, then the other windows, then the file.
TEST_F(ShutdownTest, StepsInTheirOrder) {
  OpenAbout();
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kYes};
  dialogs.files = {folder.File("label.twp")};
  EXPECT_TRUE(Unload(frmMain));
  ASSERT_EQ(moments.size(), 1U);
  EXPECT_EQ(moments[0].questions, 1U);
  EXPECT_FALSE(moments[0].dirty);
  EXPECT_FALSE(moments[0].settings_written);
  EXPECT_TRUE(FileExists(SettingsFile()));
}

TEST_F(ShutdownTest, TheWindowsPlaceIsWrittenInTwips) {
  frmMain.UserResize(300, 450, 15000, 9000, 14880, 8400, WindowState::kNormal);
  ASSERT_TRUE(Unload(frmMain));
  const SettingsRecord saved = SettingsOnDisk();
  EXPECT_EQ(saved.WindowLeft, 300);
  EXPECT_EQ(saved.WindowTop, 450);
  EXPECT_EQ(saved.WindowWidth, 15000);
  EXPECT_EQ(saved.WindowHeight, 9000);
}

TEST_F(ShutdownTest, AMinimisedWindowsCoordinatesAreStoredAndRestoredAsTheyAre) {
  frmMain.UserResize(-480000, -480000, 2400, 500, 2400, 0, WindowState::kMinimized);
  ASSERT_TRUE(Unload(frmMain));
  EXPECT_EQ(SettingsOnDisk().WindowLeft, -480000);
  EXPECT_EQ(SettingsOnDisk().WindowHeight, 500);
  StartProgram();
  EXPECT_EQ(frmMain.Left(), -480000);
  EXPECT_EQ(frmMain.Top(), -480000);
  EXPECT_EQ(frmMain.Width(), 2400);
  EXPECT_EQ(frmMain.Height(), 8250);  // the resize that follows makes the least height of 500
}

TEST_F(ShutdownTest, SettingsMakeTheRoundTripThroughExitAndStart) {
  frmMain.mnuFileRulers.Press();
  frmMain.mnuOptXHair.Press();
  frmMain.mnuUnitIn.Press();
  frmMain.mnuMagRule(6).Press();
  ProgSettings.DefaultFontName = "Courier New";
  ProgSettings.Reserved1[7] = 0x9A;
  ProgSettings.Reserved2[3] = 0x42;
  ASSERT_TRUE(Unload(frmMain));
  StartProgram();
  EXPECT_FALSE(frmMain.mnuFileRulers.Checked());
  EXPECT_FALSE(frmMain.mnuOptXHair.Checked());
  EXPECT_FALSE(frmMain.HairX.Visible());
  EXPECT_TRUE(frmMain.mnuUnitIn.Checked());
  EXPECT_EQ(UnitScale, 25.4);
  EXPECT_TRUE(frmMain.mnuMagRule(6).Checked());
  EXPECT_EQ(ProgSettings.MagneticZone, 3.5);
  EXPECT_EQ(ProgSettings.DefaultFontName.Trimmed(), "Courier New");
  EXPECT_EQ(ProgSettings.Reserved1[7], 0x9A);
  EXPECT_EQ(ProgSettings.Reserved2[3], 0x42);
}

TEST_F(ShutdownTest, NothingIsWrittenBeforeTheExit) {
  frmMain.mnuUnitIn.Press();
  frmMain.mnuFileRulers.Press();
  EXPECT_FALSE(FileExists(SettingsFile()));
}

TEST_F(ShutdownTest, AnExitOnlyAsksTheWindowToUnload) {
  DirtyFlag = kTrue;
  dialogs.answers = {Answer::kCancel};
  frmMain.mnuFileExit.Press();
  EXPECT_TRUE(IsLoaded(frmMain));
}

}  // namespace
}  // namespace tagwright
