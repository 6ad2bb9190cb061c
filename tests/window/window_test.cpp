// What a user does from the first start to the second, and the files that remain.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>

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

constexpr std::uint32_t kRulerBand = 0xFFFFDC;
constexpr std::uint32_t kMist = 0xEAF2F8;  // a large area of the address label

void WaitForLabel(const Program& program, double width) {
  WaitFor("a label of " + std::to_string(width) + " pixels",
          [&] { return std::abs(LabelSpan(program).width - width) <= 2; });
}

void WaitForText(const Program& program, const std::string& field, const std::string& text) {
  WaitFor(text + " in " + field, [&] { return Find(program, field, "text").text == text; });
}

bool IsTicked(const Program& program, const std::vector<std::string>& path) {
  Click(Find(program, path[0], "menu item").box);
  const bool ticked = Find(program, path[1], "menu item").checked;
  Key("Escape");
  Key("Escape");
  return ticked;
}

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

TEST_F(Window, TheMiddleButtonPastesWhatIsSelectedSomewhere) {
  Program program(folder);
  Click(Find(program, "Text Tool").box);
  const Box text = Find(program, "Text", "text").box;
  Click(text);
  Type("Dz7z");
  WaitForText(program, "Text", "Dz7z");
  Drag(text.x + 60, text.y + 12, text.x + 2, text.y + 12);
  Key("ctrl+p");
  const Box copies = Find(program, "No. Copies", "text").box;
  Click(copies.x + 4, copies.y + copies.height / 2, 2);
  WaitForText(program, "No. Copies", "Dz7z1");
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
  } samples[] = {
      {"Address label.twp", kMist}, {"Product label.twp", 0x6B2154}, {"Shelf label.twp", 0xBE202E}};
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
    WaitForLabel(program, kLabelWidth * kPixelsPerMillimetre * percent / 100);
  }
}

TEST_F(Window, ALabelIsAsLargeAsTheScreensScaleMakesAMillimetre) {
  for (const char* factor : {"1.25", "1.5", "2"}) {
    Program program(FreshFolder(), {std::string("QT_SCALE_FACTOR=") + factor});
    WaitForLabel(program, kLabelWidth * kPixelsPerMillimetre * std::stod(factor));
  }
}

TEST_F(Window, AFieldTakesADecimalPointFromTheKeyboard) {
  Program program(folder);
  Click(Find(program, "Left Margin", "text").box);
  Key("ctrl+a");
  Type("12.5");
  WaitForText(program, "Left Margin", "12.5");
}

TEST_F(Window, InchesAndMillimetresChangeWhatIsShownButNotTheLabel) {
  Program program(folder);
  ChooseRow(program, "Layout", "A4 24 per sheet");  // not the one that a new label has
  WaitForText(program, "Label Width", "63.00");
  const int before = LabelSpan(program).width;
  ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
  WaitForText(program, "Label Width", "2.48");
  EXPECT_EQ(LabelSpan(program).width, before);
  ChooseMenu(program, {"Options", "Units of Measure", "Millimeters"});
  WaitForText(program, "Label Width", "63.00");
  EXPECT_EQ(LabelSpan(program).width, before);
}

TEST_F(Window, UnitsRulersAndHairsOutliveTheProgram) {
  {
    Program program(folder);
    EXPECT_GT(Coloured(program, kRulerBand), 1000);
    ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
    WaitForText(program, "Label Width", "3.90");
    ChooseMenu(program, {"Options", "Show Rulers"});
    WaitFor("no rulers", [&] { return Coloured(program, kRulerBand) == 0; });
    ChooseMenu(program, {"Options", "Show Cross Hairs"});
    EXPECT_EQ(Leave(program), 0);
  }
  Program program(folder);
  EXPECT_EQ(Find(program, "Label Width", "text").text, "3.90");
  EXPECT_EQ(Coloured(program, kRulerBand), 0);
  EXPECT_FALSE(IsTicked(program, {"Options", "Show Rulers"}));
  EXPECT_FALSE(IsTicked(program, {"Options", "Show Cross Hairs"}));
}

TEST_F(Window, TheScrollBarsMoveTheLabelAndTheirCornerBringsItBack) {
  Program program(folder);
  const int middle = LabelSpan(program).left;
  const Box bar = Find(program, "Scroll left and right").box;
  Click(bar.x + bar.width * 9 / 10, bar.y + bar.height / 2);
  WaitFor("the label further left", [&] { return LabelSpan(program).left < middle; });
  Click(Find(program, "Centre the label on the board").box);
  WaitFor("the label in the middle", [&] { return LabelSpan(program).left == middle; });
}

// The column of the board that a vertical guide fills, from the ruler to the bar at the bottom; -1
// for none.
int GuideColumn(const Program& program) {
  constexpr std::uint32_t kAccent = 0x2F6BD8;
  constexpr int kScrollBar = 20;
  const Box board = Board(program);
  const auto pixels = Pixels(board);
  for (int x = 0; x < board.width; ++x) {
    int filled = 0;
    for (int y = 0; y < board.height; ++y) {
      const std::ptrdiff_t row = y;
      filled += pixels.begin()[row * board.width + x] == kAccent;
    }
    if (filled >= board.height - kScrollBar) return board.x + x;
  }
  return -1;
}

TEST_F(Window, AGuideStaysOnItsPlaceOfTheLabelAcrossTheWholeBoard) {
  Program program(folder);
  const Box board = Board(program);
  const Span label = LabelSpan(program);
  const int y = board.y + board.height * 3 / 4;
  constexpr int kFromTheEdge = 95;  // pixels of the label at 100 %
  Drag(board.x + 3, y, label.left + kFromTheEdge, y);
  MoveMouse(board.x + board.width - 60, board.y + 60);  // the cross hairs cover it no longer
  const auto stands = [&](double zoom) {
    return std::abs(GuideColumn(program) - LabelSpan(program).left - zoom * kFromTheEdge) <= 2;
  };
  WaitFor("the guide", [&] { return stands(1); });

  Shell("xdotool keydown shift click 5 keyup shift");
  WaitFor("the label further left", [&] { return LabelSpan(program).left < label.left - 30; });
  WaitFor("the guide with it", [&] { return stands(1); });

  Shell("xdotool keydown ctrl click 5 keyup ctrl");
  WaitForLabel(program, kLabelWidth * kPixelsPerMillimetre * 0.9);
  WaitFor("the guide in the smaller label", [&] { return stands(0.9); });

  const Box frame = program.Frame();
  PlaceWindow(program, {frame.x, frame.y, frame.width + 160, frame.height + 120});
  WaitFor("the guide across the larger board",
          [&] { return Board(program).height > board.height + 60 && stands(0.9); });
}

TEST_F(Window, TheWheelScrollsUpAndDown) {
  Program program(folder);
  const Box board = Board(program);
  const auto white_at_the_bottom = [&] {
    Box row = board;
    row.y += board.height / 2 + 60;  // the label is 144 pixels high
    row.height = 1;
    const auto pixels = Pixels(row);
    return std::ranges::count(pixels, 0xFFFFFFU) > 100;
  };
  MoveMouse(board.x + board.width / 2, board.y + board.height / 2);
  WaitFor("the label", white_at_the_bottom);
  Shell("xdotool click 5");
  WaitFor("the label further up", [&] { return !white_at_the_bottom(); });
  Shell("xdotool click 4");
  WaitFor("the label back", white_at_the_bottom);
}

TEST_F(Window, AnArmedToolIsToldAsPressedUntilItHasPlacedItsObject) {
  Program program(folder);
  Click(Find(program, "Drawing Options").box);
  EXPECT_FALSE(Find(program, "Rectangle").checked);
  Click(Find(program, "Rectangle").box);
  WaitFor("the armed tool", [&] { return Find(program, "Rectangle").checked; });
  EXPECT_TRUE(Find(program, "Drawing Options").checked);
  const Box board = Board(program);
  const int x = board.x + board.width / 2, y = board.y + board.height / 2;
  Drag(x, y, x + 60, y + 40);
  WaitFor("no armed tool", [&] { return !Find(program, "Rectangle").checked; });
  EXPECT_FALSE(Find(program, "Drawing Options").checked);
}

TEST_F(Window, HoldingZoomInOpensTheFlyoutWhoseButtonsZoom) {
  Program program(folder);
  const Box zoom_in = Find(program, "Zoom In").box;
  EXPECT_FALSE(Shows(program, "Zoom to Width"));
  MoveMouse(zoom_in.x + zoom_in.width / 2, zoom_in.y + zoom_in.height / 2);
  Press();
  const Box to_width = Find(program, "Zoom to Width").box;
  Release();
  Click(to_width);
  WaitFor("the flyout to close", [&] { return !Shows(program, "Zoom to Width"); });
  EXPECT_GT(LabelSpan(program).width, 2 * kLabelWidth * kPixelsPerMillimetre);
}

TEST_F(Window, AShortClickOnZoomInOpensNoFlyout) {
  Program program(folder);
  Click(Find(program, "Zoom In").box);
  Shell("sleep 0.5");  // longer than a hold
  EXPECT_FALSE(Shows(program, "Zoom to Width"));
}

TEST_F(Window, AboutIsModalAndClosesWithItsButton) {
  Program program(folder);
  ChooseMenu(program, {"Help", "About ..."});
  WaitForWindow("About Tagwright Designer Gold");
  Key("ctrl+q");  // reaches the modal window, not the main one
  Click(Find(program, "OK", "push button").box);
  WaitForWindow("[untitled]");
  EXPECT_EQ(Leave(program), 0);
}

TEST_F(Window, IsNeverLowerThanItsFloor) {
  Program program(folder);
  WaitFor("the floor", [&] {
    const int height = program.Frame().height;
    if (height > kSmallestHeight) Shell("xdotool windowsize " + program.Window() + " 900 300");
    return height == kSmallestHeight;
  });
  EXPECT_LT(program.Frame().width, 1000);
}

TEST_F(Window, TheBoardFillsAFullScreen) {
  Program program(folder);
  const Box frame = program.Frame();
  Shell("xdotool mousemove " + std::to_string(frame.x + frame.width / 2) + " " +
        std::to_string(frame.y + 8) + " click --repeat 2 --delay 60 1");
  WaitFor("the full screen", [&] { return program.Client().width > kScreenWidth - 10; });
  const Box client = program.Client();
  constexpr int kMargin = 4;  // 60 twips right of the board
  WaitFor("the board to fill it", [&] {
    const Box board = Board(program);
    return board.x + board.width == client.x + client.width - kMargin;
  });
  WaitForLabel(program,
               kLabelWidth * kPixelsPerMillimetre);  // a larger window shows more, not larger
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
  // The window manager frames a window after it has shown it.
  WaitFor("the window at its place", [&] { return program.Frame() == place; });
  ChooseMenu(program, {"File", RecentName(saved)});
  WaitFor("the recent file", [&] { return Coloured(program, kMist) > 1000; });
  EXPECT_NE(program.Title().find("[Harbour Label.twp]"), std::string::npos);
}

// A label that travels without its files still opens: each file that is gone is asked or told
// about.
TEST_F(Window, ALabelWithoutItsPictureAndDataOpensWithWhatIsLeft) {
  std::string bytes = Contents(SampleLabel("Address label.twp"));
  for (const char* name : {"lighthouse.jpg", "addresses.csv"}) {
    bytes[bytes.find(name)] = '-';
  }
  const std::string travelled = folder + "/travelled.twp";
  std::ofstream(travelled, std::ios::binary) << bytes;

  Program program(folder);
  ChooseMenu(program, {"File", "Open"});
  WaitForWindow("Open");
  Type(travelled);
  Key("Return");
  AnswerMessage(program, "Yes");  // go on without the data
  AnswerMessage(program, "OK");   // the picture is taken off the label, which is told once
  WaitFor("the rest of the label", [&] { return Coloured(program, kMist) > 1000; });
}

// A viewer of the test's own stands in for the desktop's.
TEST_F(Window, TheHelpKeyShowsTheHelpFileOfTheFolder) {
  const std::string viewer = folder + "/xdg-open", seen = folder + "/seen";
  std::ofstream(viewer) << "#!/bin/sh\necho \"$1\" > '" << seen << "'\n";
  fs::permissions(viewer, fs::perms::owner_all);
  Program program(folder, {"PATH=" + folder + ":" + std::getenv("PATH")});
  Key("F1");
  AnswerMessage(program, "OK");  // the file is missing
  EXPECT_FALSE(fs::exists(seen));
  std::ofstream(folder + "/twlabel.chm") << "help";
  Key("F1");
  WaitFor("the viewer", [&] { return Contents(seen).ends_with("/twlabel.chm\n"); });
}

TEST_F(Window, AMenuOpenedByKeyLeavesNoModifierBehind) {
  Program program(folder);
  Key("alt+f");
  Find(program, "Exit", "menu item");
  Key("Escape");
  ChooseRow(program, "Zoom", "150%");
  WaitForLabel(program, kLabelWidth * kPixelsPerMillimetre * 1.5);
}

}  // namespace
}  // namespace tagwright::window_test
