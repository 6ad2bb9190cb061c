// What hands have lost on the label, each with the real mouse and keys, and read back from the
// saved label.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <system_error>

#include "window/hand_steps.h"

namespace tagwright::window_test {
namespace {

constexpr double kPixel = 0.45;  // of which there are nearly four to a millimetre
constexpr int kLine = 10;
constexpr int kRectangle = 11;
constexpr int kEllipse = 13;
constexpr int kRightButton = 3;

class HandFaultsWindow : public testing::Test {
 protected:
  std::vector<SavedObject> Saved() const { return SavedAs(program, folder + "/label.twp"); }

  void WaitForField(const std::string& field, const std::string& text) const {
    WaitFor("\"" + text + "\" in " + field,
            [&] { return Find(program, field, "text").text == text; });
  }

  void ArmShape(const std::string& shape) const {
    if (!Shows(program, shape)) PressOn(program, "Drawing Options");
    PressOn(program, shape);
  }

  // The board as it is after it has been painted anew, twice.
  std::vector<std::uint32_t> PixelsPaintedAnew(const Box& part) const {
    ChooseMenu(program, {"Options", "Show Rulers"});
    ChooseMenu(program, {"Options", "Show Rulers"});
    return Pixels(part);
  }

  std::string folder = FreshFolder();
  Program program{folder};
  Paper paper{program};
};

TEST_F(HandFaultsWindow, AWidthTypedForANewLineLeavesItWhereItIs) {
  DrawShape(program, paper, "Line", 20, 12, 45, 13);
  const SavedObject drawn = Saved().at(0);
  Retype(program, "Width", "60");
  WaitForField("Width", "60.00");
  const SavedObject typed = SavedAs(program, folder + "/typed.twp").at(0);
  EXPECT_EQ(typed.left, drawn.left);
  EXPECT_EQ(typed.top, drawn.top);
  EXPECT_EQ(typed.width, 60);
  EXPECT_EQ(typed.height, drawn.height);
  EXPECT_NEAR(typed.left, 20, kPixel);
  EXPECT_NEAR(typed.top, 12, kPixel);
}

TEST_F(HandFaultsWindow, SizeFieldsFollowATextAndReadNothingAfterwards) {
  PressOn(program, "Text Tool");
  paper.Click(20, 20);
  Type("Fig");
  const std::string three_letters = [&] {
    WaitToHear(program, "Label", "Fig");
    return Find(program, "Width", "text").text;
  }();
  EXPECT_NE(three_letters, "0.00");
  Type(" jam");
  WaitToHear(program, "Label", "Fig jam");
  EXPECT_NE(Find(program, "Width", "text").text, three_letters);
  paper.Click(95, 34);
  for (const char* field : {"Left", "Top", "Width", "Height"}) WaitForField(field, "0.00");
}

TEST_F(HandFaultsWindow, LinesAtExactlyFortyFiveDegreesLie) {
  const int ways[] = {23, 41, 58, 67, 79, 92, 101, 117};
  for (int i = 0; i < 8; ++i) {
    ArmShape("Line");
    const int x = paper.X(3) + 31 * i, y = paper.Y(1) + i;
    Drag(x, y, x + ways[i], y + ways[i]);
  }
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 8U);
  for (const SavedObject& line : objects) {
    EXPECT_EQ(line.kind, kLine);
    EXPECT_GT(line.width, line.height);
  }
}

TEST_F(HandFaultsWindow, AShapeBegunOverALineIsAsLargeAsItIsDrawn) {
  ArmShape("Line");
  const int x = paper.X(10), y = paper.Y(10);
  Drag(x, y, paper.X(60), y);
  ArmShape("Rectangle");
  Drag(x + 40, y, x + 160, y + 60);
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[1].kind, kRectangle);
  EXPECT_NEAR(objects[1].width, 120 / 96.0 * 25.4, kPixel);
  EXPECT_NEAR(objects[1].height, 60 / 96.0 * 25.4, kPixel);
}

TEST_F(HandFaultsWindow, ALineBegunOverAShapeWithoutAnOutlineGivesItNone) {
  PressOn(program, "Drawing Options");
  ChooseRow(program, "Line Weight", "0");
  DrawShape(program, paper, "Rectangle", 10, 5, 40, 25);
  DrawShape(program, paper, "Line", 15, 10, 60, 11);
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0].param, 0);
  EXPECT_EQ(objects[1].param, 1);
}

TEST_F(HandFaultsWindow, ATextUnderHalfAMillimetreWideKeepsItsSizeByAHandle) {
  PressOn(program, "Text Tool");
  ChooseRow(program, "Size", "6");
  paper.Click(30, 20);
  Type("i");
  paper.Click(95, 34);
  const SavedObject text = Saved().at(0);
  ASSERT_LT(text.width, 0.5);
  ASSERT_EQ(text.font_size, 6);
  paper.Click(text.left + text.width / 2, text.top + text.height / 2);
  WaitForField("Left", Find(program, "Left", "text").text);
  paper.DragHandle(3, text.left, text.top, text.width, text.height, 10, 5);
  EXPECT_EQ(Saved().at(0).font_size, 6);
}

TEST_F(HandFaultsWindow, ADataFieldDraggedByAHandleShowsOnce) {
  PressOn(program, "Import Data");
  BrowseToData(program, "Comma Separated Text File", SampleLabel("addresses.csv"));
  ChooseColumn(program, "City");
  paper.Click(20, 15);
  const SavedObject field = Saved().at(0);
  paper.Click(field.left + field.width / 2, field.top + field.height / 2);
  paper.DragHandle(3, field.left, field.top, field.width, field.height, 3 * field.width, 2);
  const double grown = Saved().at(0).width;
  ASSERT_GT(grown, 2 * field.width);
  const Box around{paper.X(15), paper.Y(5), paper.X(60) - paper.X(15), paper.Y(35) - paper.Y(5)};
  const auto dragged = Pixels(around);
  EXPECT_EQ(dragged, PixelsPaintedAnew(around));
}

// Each change by itself: a label that was saved since is asked for again.
TEST_F(HandFaultsWindow, WhatAMenuAKeyAndAListChangeIsAskedForAtExit) {
  const auto asks = [&] {
    Key("ctrl+q");
    return AnswerMessage(program, "Cancel").starts_with("Do you want to save the changes");
  };
  DrawShape(program, paper, "Rectangle", 20, 8, 60, 30);
  Saved();
  paper.Click(40, 19, kRightButton);
  Find(program, "Change Shape to");
  for (const char* key : {"Down", "Right", "Return"}) Key(key);
  WaitToHear(program, "Label", "Ellipse at");
  EXPECT_TRUE(asks());
  EXPECT_EQ(Saved().at(0).kind, kEllipse);

  Key("Delete");
  WaitToHear(program, "Label", "Nothing selected");
  EXPECT_TRUE(asks());
  EXPECT_TRUE(Saved().empty());

  PressOn(program, "Select Tool");
  ChooseRow(program, "Layout", "A4 24 per sheet");
  EXPECT_TRUE(asks());
}

// Before a look at the flag once a second has enabled anything.
TEST_F(HandFaultsWindow, CtrlSRightAfterAChangeSavesIt) {
  constexpr std::uintmax_t kWithoutObjects = 666;
  const std::string label = folder + "/label.twp";
  DrawShape(program, paper, "Rectangle", 20, 8, 60, 30);
  Saved();
  ASSERT_GT(std::filesystem::file_size(label), kWithoutObjects);
  Shell("xdotool key Delete ctrl+s");
  WaitFor("the label without its rectangle", [&] {
    std::error_code gone;  // for a moment, while it is replaced
    return std::filesystem::file_size(label, gone) == kWithoutObjects;
  });
}

// A recent label replaces an unsaved one without a question. What its lists say while they are
// filled is no change.
TEST_F(HandFaultsWindow, ALabelFromTheRecentListLeavesNothingToAskFor) {
  DrawShape(program, paper, "Rectangle", 20, 8, 40, 18);
  Saved();
  DrawShape(program, paper, "Ellipse", 30, 8, 50, 18);
  ChooseMenu(program, {"File", RecentName(folder + "/label.twp")});
  WaitToHear(program, "Label", "Nothing selected");
  Key("ctrl+q");
  EXPECT_EQ(program.WaitForExit(), 0);
}

}  // namespace
}  // namespace tagwright::window_test
