#include "common/diagnostics.h"

#include <filesystem>
#include <fstream>

#include "common/prog_settings.h"
#include "platform/services/desktop.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class DiagnosticsTest : public ProgramTest {
 protected:
  void Mark(const std::string& name = "tracemark.flg") { std::ofstream(folder.File(name)).close(); }
};

void Overflow() { RaiseFault(kOverflow, "Overflow"); }

TEST_F(DiagnosticsTest, WithoutTheMarkerAFaultIsPassedOverInSilence) {
  EXPECT_FALSE(Traced(Overflow));
  EXPECT_FALSE(EngineTraced(Overflow));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DiagnosticsTest, WithTheMarkerTheFaultIsShown) {
  Mark();
  EXPECT_FALSE(Traced(Overflow));
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "6 - Overflow");
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kOk);
  EXPECT_EQ(dialogs.messages[0].title, "");
}

TEST_F(DiagnosticsTest, TheFaultsOwnDescriptionIsShown) {
  Mark();
  Traced([] { RaiseFault(kBadPicture, "the colours are missing"); });
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "481 - the colours are missing");
}

TEST_F(DiagnosticsTest, TheRoutineGoesOnAfterTheStatementThatFailed) {
  Mark();
  int target = 1;
  Traced([&] {
    Overflow();
    target = 2;
  });
  EXPECT_EQ(target, 1);  // keeps its old value
  EXPECT_TRUE(Traced([&] { target = 3; }));
  EXPECT_EQ(target, 3);
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

// The two forms of the tail form the path differently; the file found is the same.
TEST_F(DiagnosticsTest, TheEngineFindsTheSameMarkerFromTheProgramsOwnPlace) {
  Mark();
  AppFolder = folder.File("elsewhere/");
  EXPECT_FALSE(Traced(Overflow));
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_FALSE(EngineTraced(Overflow));
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "6 - Overflow");
}

TEST_F(DiagnosticsTest, TheMarkerIsLookedForByAnOrdinaryFileSearch) {
  std::filesystem::create_directory(folder.File("tracemark.flg"));
  Traced(Overflow);
  EXPECT_TRUE(dialogs.messages.empty()) << "a folder is no marker";
  std::filesystem::remove(folder.File("tracemark.flg"));
  Mark("TraceMark.FLG");
  Traced(Overflow);
  EXPECT_EQ(dialogs.messages.size(), 1U) << "case does not matter";
}

TEST_F(DiagnosticsTest, OnlyPresenceCounts) {
  std::ofstream(folder.File("tracemark.flg")) << "off";
  Traced(Overflow);
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(DiagnosticsTest, AStatementThatRunsToItsEndShowsNothing) {
  Mark();
  EXPECT_TRUE(Traced([] {}));
  EXPECT_TRUE(EngineTraced([] {}));
  EXPECT_TRUE(dialogs.messages.empty());
}

// A handler that only goes on, marker or not.
TEST_F(DiagnosticsTest, CarryingOnAsksForNoMarker) {
  Mark();
  EXPECT_FALSE(CarryOn(Overflow));
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace tagwright
