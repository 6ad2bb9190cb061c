// What is selected, and what merely looks so: the real program with real mouse and keys, where a
// wrong guess would cost an object.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "window/hand_steps.h"

namespace tagwright::window_test {
namespace {

constexpr std::uint32_t kAccent = 0x2F6BD8;  // of frames and handles
constexpr std::uint32_t kInk = 0x000000;
constexpr int kText = 3;

class SelectionWindow : public testing::Test {
 protected:
  void TypeText(const std::string& text, double x, double y) const {
    PressOn(program, "Text Tool");
    paper.Click(x, y);
    Type(text);
    WaitToHear(program, "Label", "Text \"" + text + "\"");
  }

  void Redraw() const { ChooseMenu(program, {"Options", "Show Rulers"}); }

  bool CanCopy() const {
    for (const Spoken& control : Everything(program)) {
      if (control.name == "Copy" && control.role == "menu item") return control.enabled;
    }
    throw std::runtime_error("no entry Copy");
  }

  void TabToTheBoard() const {
    constexpr int kAllFields = 60;
    for (int i = 0; i < kAllFields && Focused(program).name != "Label"; ++i) Key("Tab");
    ASSERT_EQ(Focused(program).name, "Label");
  }

  std::vector<SavedObject> Saved() const { return SavedAs(program, folder + "/label.twp"); }

  std::string folder = FreshFolder();
  Program program{folder};
  Paper paper{program};
};

TEST_F(SelectionWindow, DeleteInAFieldDeletesNoObject) {
  DrawShape(program, paper, "Rectangle", 20, 8, 40, 18);
  WaitToHear(program, "Label", "Rectangle at");
  Click(Find(program, "Width", "text").box);
  WaitFor("the keyboard in Width", [&] { return Focused(program).name == "Width"; });
  Key("Delete");
  TypeText("Fig", 60, 20);
  Click(FindCombo(program, "Font").box);
  Key("Delete");
  EXPECT_EQ(Saved().size(), 2U);
  paper.Click(60, 18);
  WaitToHear(program, "Label", "Text \"Fig\"");
  PressOn(program, "Select Tool");
  WaitToHear(program, "Label", "Nothing selected");
  EXPECT_EQ(Saved().size(), 2U);
}

TEST_F(SelectionWindow, APictureThatIsRefusedLeavesNothingToDelete) {
  const std::string picture = folder + "/picture.jpg";
  std::filesystem::copy_file(SampleLabel("lighthouse.jpg"), picture);
  DrawShape(program, paper, "Rectangle", 5, 5, 25, 15);
  ArmPicture(program, picture);
  paper.Drag(60, 5, 80, 25);
  WaitToHear(program, "Label", "Picture");
  std::ofstream(picture) << "rubbish";
  Redraw();
  Find(program, "Invalid Picture Format");
  Key("Return");
  WaitToHear(program, "Label", "Nothing selected");
  Key("Delete");
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 1U);
  EXPECT_EQ(objects[0].kind, 11);
}

TEST_F(SelectionWindow, AnOpenTextStandsOnceOnTheBoardAndGoesWhenItIsErased) {
  const int before = Coloured(program, kInk);
  TypeText("MMMM", 20, 20);
  EXPECT_GT(Coloured(program, kInk), before);
  const Box bar = Find(program, "Scroll left and right").box;
  Click(bar.x + bar.width * 9 / 10, bar.y + bar.height / 2);
  Redraw();
  Redraw();
  Click(Find(program, "Text", "text").box);
  Key("ctrl+a");
  Key("BackSpace");
  WaitFor("an empty label", [&] { return Coloured(program, kInk) == before; });
}

TEST_F(SelectionWindow, OfAGroupThatIsGoneNothingIsLeftToSee) {
  DrawShape(program, paper, "Rectangle", 10, 5, 20, 10);
  DrawShape(program, paper, "Ellipse", 40, 5, 50, 10);
  const auto group = [&] {
    Key("ctrl+a");
    WaitToHear(program, "Selection", "Objects Selected: 2");
    EXPECT_GT(Coloured(program, kAccent), 0);
    EXPECT_TRUE(CanCopy());
  };
  const auto expect_nothing = [&] {
    WaitToHear(program, "Label", "Nothing selected");
    WaitFor("no frame", [&] { return Coloured(program, kAccent) == 0; });
    EXPECT_EQ(Find(program, "Selection").description, "");
    EXPECT_FALSE(CanCopy());
  };
  group();
  paper.Click(95, 34);
  expect_nothing();
  group();
  PressOn(program, "Select Tool");
  expect_nothing();
}

TEST_F(SelectionWindow, WithoutAPictureThereIsNoTool) {
  PressOn(program, "Insert Picture");
  WaitForWindow("Open");
  Key("Escape");
  WaitForWindow("Tagwright");
  paper.Drag(20, 10, 40, 20);
  EXPECT_TRUE(Saved().empty());
}

TEST_F(SelectionWindow, TheMenuKeyCopiesPropertiesToAnOpenTextWhichStaysShown) {
  PressOn(program, "Text Tool");
  ChooseRow(program, "Size", "20");
  paper.Click(10, 14);
  Type("Source");
  paper.Click(95, 34);
  PressOn(program, "Text Tool");
  ChooseRow(program, "Size", "10");
  paper.Click(10, 32);
  Type("Target");
  for (const char* keys : {"Menu", "shift+F10"}) {
    Key(keys);
    Find(program, "Copy Properties from");
    if (keys == std::string("Menu")) Key("Escape");
  }
  Key("Down");
  Key("Return");
  paper.Click(15, 12);
  const Box target{paper.X(10), paper.Y(22), paper.X(40) - paper.X(10), paper.Y(33) - paper.Y(22)};
  WaitFor("the text", [&] { return std::ranges::count(Pixels(target), kInk) > 20; });
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0].font_size, 20);
  EXPECT_EQ(objects[1].font_size, 20);
  EXPECT_EQ(objects[1].text, "Target");
  EXPECT_EQ(objects[1].kind, kText);
}

TEST_F(SelectionWindow, SelectAllByItsMenuEndsATextThatIsBeingTyped) {
  DrawShape(program, paper, "Rectangle", 50, 8, 80, 30);
  TypeText("Fig", 20, 20);
  ChooseMenu(program, {"Edit", "Select All"});
  WaitToHear(program, "Label", "2 objects selected");
  EXPECT_EQ(Focused(program).name, "Label");
  Type("lost");
  EXPECT_EQ(Saved().at(1).text, "Fig");
}

// The panel of data fields proposes a style for the next field.
TEST_F(SelectionWindow, ImportByItsKeyLeavesTheSelectedTextAsItIs) {
  PressOn(program, "Text Tool");
  ChooseRow(program, "Size", "20");
  paper.Click(20, 20);
  Type("Fig");
  WaitToHear(program, "Label", "Text \"Fig\"");
  const SavedObject typed = Saved().at(0);
  Key("ctrl+i");
  Find(program, "Import File Type", "label");
  const SavedObject after = SavedAs(program, folder + "/after.twp").at(0);
  EXPECT_EQ(after.font_size, 20);
  EXPECT_EQ(after.font, typed.font);
  EXPECT_EQ(after.width, typed.width);
}

// The panel shows its menu wherever nothing of it lies.
TEST_F(SelectionWindow, ARightPressOnThePanelOfTextsOpensTheirMenu) {
  TypeText("Fig", 20, 20);
  const Box lines = Find(program, "Text", "text").box;
  Click(lines.x + lines.width + 4, lines.y + lines.height / 2, 3);
  Find(program, "Copy Properties from");
}

TEST_F(SelectionWindow, AShapeIsPlacedAndOthersAreReachedWithoutAMouse) {
  DrawShape(program, paper, "Ellipse", 5, 5, 15, 10);
  PressBySpeech(program, "Rectangle", "push button");
  TabToTheBoard();
  Key("Return");
  WaitToHear(program, "Label", "Rectangle at");
  Key("Prior");
  WaitToHear(program, "Label", "Ellipse at");
  Key("Next");
  WaitToHear(program, "Label", "Rectangle at");
  Key("Next");
  WaitToHear(program, "Label", "Ellipse at");
  Key("Delete");
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 1U);
  EXPECT_EQ(objects[0].kind, 11);
  EXPECT_NEAR(objects[0].left, objects[0].width / 2, 0.5);
}

}  // namespace
}  // namespace tagwright::window_test
