// What a user does from the first start to the second, and the files that remain.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "window/steps.h"

namespace tagwright::window_test {
namespace {

namespace fs = std::filesystem;

constexpr int kSettingsSize = 1190;
constexpr int kLayoutsSize = 14 * 61;
constexpr int kObjectSize = 333;
constexpr int kSmallestHeight = 8250 / 15;  // twips to logical pixels
constexpr double kPixelsPerMillimetre = 96 / 25.4;
constexpr double kLabelWidth = 99;  // of the layout that a fresh installation chooses

class Window : public testing::Test {
 protected:
  std::string folder = FreshFolder();
  std::string Installed(const std::string& name) const { return folder + "/" + name; }
};

TEST_F(Window, FirstStartInAnEmptyFolderShowsAnUntitledLabel) {
  Program program(folder);
  EXPECT_EQ(program.Title(), "Tagwright Designer Gold [untitled]");
  EXPECT_EQ(fs::file_size(Installed("label.dta")), kLayoutsSize);
  EXPECT_FALSE(fs::exists(Installed("progsettings.twd")));
}

TEST_F(Window, ExitLeavesTheSettingsFile) {
  Program program(folder);
  EXPECT_EQ(Leave(program), 0);
  EXPECT_EQ(fs::file_size(Installed("progsettings.twd")), kSettingsSize);
  EXPECT_EQ(fs::file_size(Installed("label.dta")), kLayoutsSize);
}

TEST_F(Window, CtrlQAndTheCloseButtonLeaveAsExitDoes) {
  for (const char* keys : {"ctrl+q", "alt+F4"}) {
    Program program(folder);
    Key(keys);
    EXPECT_EQ(program.WaitForExit(), 0) << keys;
    EXPECT_EQ(fs::file_size(Installed("progsettings.twd")), kSettingsSize) << keys;
    fs::remove(Installed("progsettings.twd"));
  }
}

TEST_F(Window, EachSampleOpensFromTheMenu) {
  Program program(folder);
  const struct {
    const char* name;
    std::uint32_t color;  // of a large area of that label
  } samples[] = {{"Address label.twp", 0xEAF2F8},
                 {"Product label.twp", 0x6B2154},
                 {"Shelf label.twp", 0xBE202E}};
  for (const auto& sample : samples) {
    EXPECT_EQ(Coloured(program, sample.color), 0) << sample.name;
    OpenProject(program, SampleLabel(sample.name));
    EXPECT_EQ(program.Title(), std::string("Tagwright Designer Gold [") + sample.name + "]");
    WaitFor("its paint", [&] { return Coloured(program, sample.color) > 1000; });
  }
}

TEST_F(Window, ZoomShowsTheLabelAtItsSize) {
  Program program(folder);
  for (const int percent : {100, 50, 200, 150, 100}) {
    ChooseRow(program, "Zoom", std::to_string(percent) + "%");
    const double expected = kLabelWidth * kPixelsPerMillimetre * percent / 100;
    WaitFor("a label at " + std::to_string(percent) + " per cent",
            [&] { return std::abs(LabelPixels(program) - expected) <= 2; });
  }
}

TEST_F(Window, InchesAndMillimetresChangeWhatIsShownButNotTheLabel) {
  Program program(folder);
  const int before = LabelPixels(program);
  EXPECT_EQ(Find(program, "Label Width", "text").text, "99.00");
  ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
  WaitFor("inches", [&] { return Find(program, "Label Width", "text").text == "3.90"; });
  EXPECT_EQ(LabelPixels(program), before);
  ChooseMenu(program, {"Options", "Units of Measure", "Millimeters"});
  WaitFor("millimetres", [&] { return Find(program, "Label Width", "text").text == "99.00"; });
  EXPECT_EQ(LabelPixels(program), before);
}

TEST_F(Window, UnitsRulersAndHairsOutliveTheProgram) {
  {
    Program program(folder);
    ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
    WaitFor("inches", [&] { return Find(program, "Label Width", "text").text == "3.90"; });
    EXPECT_EQ(Leave(program), 0);
  }
  Program program(folder);
  EXPECT_EQ(Find(program, "Label Width", "text").text, "3.90");
}

TEST_F(Window, IsNeverLowerThanItsFloor) {
  Program program(folder);
  Shell("xdotool windowsize " + program.Window() + " 900 300");
  WaitFor("the floor", [&] { return program.Frame().height == kSmallestHeight; });
}

TEST_F(Window, TheBoardFillsAFullScreen) {
  Program program(folder);
  const Box small = Board(program);
  const Box frame = program.Frame();
  Shell("xdotool mousemove " + std::to_string(frame.x + frame.width / 2) + " " +
        std::to_string(frame.y + 8) + " click --repeat 2 --delay 60 1");
  WaitFor("the full screen", [&] { return program.Frame().width == kScreenWidth; });
  WaitFor("the board to grow", [&] { return Board(program).width > small.width; });
  const Box client = program.Client();
  const Box board = Board(program);
  constexpr int kMargin = 4;  // 60 twips right of the board
  EXPECT_EQ(board.x + board.width, client.x + client.width - kMargin);
}

TEST_F(Window, SavesUnderANewNameAndFindsItAgainAfterTheNextStart) {
  const std::string labels = folder + "/My Labels";
  fs::create_directory(labels);
  const std::string saved = labels + "/Harbour Label.twp";
  const Box place{140, 60, 1240, 760};
  {
    Program program(folder);
    OpenProject(program, SampleLabel("Address label.twp"));
    SaveProjectAs(program, saved);
    EXPECT_NE(program.Title().find("Harbour Label.twp"), std::string::npos);
    EXPECT_EQ(Contents(saved), Contents(SampleLabel("Address label.twp")));
    EXPECT_EQ(fs::file_size(saved) % kObjectSize, 0U);
    PlaceWindow(program, place);
    EXPECT_EQ(Leave(program), 0);
  }
  EXPECT_EQ(fs::file_size(Installed("progsettings.twd")), kSettingsSize);

  Program program(folder);
  EXPECT_EQ(program.Frame(), place);
  std::string listed = saved;
  for (char& letter : listed) letter = static_cast<char>(std::tolower(letter));
  ChooseMenu(program, {"File", listed});
  WaitFor("the recent file", [&] { return Coloured(program, 0xEAF2F8) > 1000; });
  EXPECT_NE(program.Title().find("[harbour label.twp]"), std::string::npos);
}

TEST_F(Window, AMenuOpenedByKeyLeavesNoModifierBehind) {
  Program program(folder);
  Key("alt+f");
  Find(program, "Exit", "menu item");
  Key("Escape");
  ChooseRow(program, "Zoom", "150%");
  WaitFor("150 per cent", [&] {
    return std::abs(LabelPixels(program) - kLabelWidth * kPixelsPerMillimetre * 1.5) <= 2;
  });
}

}  // namespace
}  // namespace tagwright::window_test
