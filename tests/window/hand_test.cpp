// A label made by hand: the real program, real mouse and keys, and what the saved label holds.
#include <gtest/gtest.h>

#include <filesystem>

#include "window/hand_steps.h"

namespace tagwright::window_test {
namespace {

// The mouse meets whole pixels, of which there are nearly four to a millimetre.
constexpr double kPixel = 0.45;

enum Kind { kBarcode = 1, kPicture = 2, kText = 3, kLine = 10, kRectangle = 11 };

class HandWindow : public testing::Test {
 protected:
  static void ExpectBox(const SavedObject& object, double left, double top, double width,
                        double height) {
    EXPECT_NEAR(object.left, left, kPixel);
    EXPECT_NEAR(object.top, top, kPixel);
    EXPECT_NEAR(object.width, width, kPixel);
    EXPECT_NEAR(object.height, height, kPixel);
  }

  // The one list that takes typing, too.
  void RetypeFont(const std::string& name) const {
    Click(FindCombo(program, "Font").box);
    Key("ctrl+a");
    Type(name);
    Key("Tab");
  }

  std::vector<SavedObject> Saved() const { return SavedAs(program, folder + "/label.twp"); }

  std::string folder = FreshFolder();
  Program program{folder};
  Paper paper{program};
};

// A keyboard with keys for umlauts; others would have to be mapped anew while one types.
class GermanKeyboard {
 public:
  GermanKeyboard() { Shell("setxkbmap de"); }
  ~GermanKeyboard() { Shell("setxkbmap us", false); }
};

// --- drawing ------------------------------------------------------------------------------------

TEST_F(HandWindow, EachOfTheEightKindsIsDrawn) {
  DrawShape(program, paper, "Line", 5, 5, 45, 7);
  DrawShape(program, paper, "Rectangle", 5, 10, 25, 20);
  DrawShape(program, paper, "Rounded Rectangle", 30, 10, 50, 20);
  DrawShape(program, paper, "Ellipse", 55, 10, 75, 20);
  ArmBarcode(program, "EAN-13", "400638133393");
  paper.Drag(5, 24, 35, 35);
  ArmPicture(program, SampleLabel("lighthouse.jpg"));
  paper.Drag(80, 10, 95, 20);
  PressOn(program, "Text Tool");
  paper.Click(45, 32);
  Type("Fig jam");
  PressOn(program, "Import Data");
  BrowseToData(program, "Comma Separated Text File", SampleLabel("addresses.csv"));
  ChooseColumn(program, "City");
  paper.Click(70, 32);

  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 8U);
  const int kinds[] = {10, 11, 12, 13, 1, 2, 3, 20};
  for (std::size_t i = 0; i < objects.size(); ++i) EXPECT_EQ(objects[i].kind, kinds[i]) << i;
  ExpectBox(objects[0], 5, 5, 40, 0.1);
  ExpectBox(objects[1], 5, 10, 20, 10);
  ExpectBox(objects[2], 30, 10, 20, 10);
  ExpectBox(objects[3], 55, 10, 20, 10);
  ExpectBox(objects[4], 5, 24, 30, 11);
  ExpectBox(objects[5], 80, 10, 15, 10);
  EXPECT_EQ(objects[4].text, "400638133393");
  EXPECT_EQ(objects[5].text, SampleLabel("lighthouse.jpg"));
  EXPECT_EQ(objects[6].text, "Fig jam");
  EXPECT_NEAR(objects[6].left, 45, kPixel);
  EXPECT_NEAR(objects[6].top + objects[6].height, 32, 3 * kPixel);  // the text stands on the click
  EXPECT_EQ(objects[7].text, "City");
  EXPECT_NEAR(objects[7].left, 70, kPixel);
}

TEST_F(HandWindow, ATinyBarcodeIsRefusedAndTheToolStaysArmed) {
  ArmBarcode(program, "Code 39", "FIG");
  paper.Drag(20, 10, 20.6, 20);
  paper.Drag(20, 10, 50, 20);
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 1U);
  ExpectBox(objects[0], 20, 10, 30, 10);
}

TEST_F(HandWindow, ATextOfTwoLinesWithUmlautsIsTyped) {
  const GermanKeyboard keyboard;
  PressOn(program, "Text Tool");
  paper.Click(20, 15);
  Type(
      "Gr\xC3\xBC\xC3\x9F"
      "e");
  const double one_line = [&] {
    WaitToHear(program, "Label",
               "Gr\xC3\xBC\xC3\x9F"
               "e");
    return Saved().at(0).height;
  }();
  Click(Find(program, "Text", "text").box);
  Key("ctrl+End");
  Key("Return");
  Type("aus K\xC3\xB6ln am Rhein");
  paper.Click(95, 34);
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 1U);
  EXPECT_EQ(objects[0].text,
            "Gr\xFC\xDF"
            "e\r\naus K\xF6ln am Rhein");
  EXPECT_NEAR(objects[0].height, 2 * one_line, 0.1);
}

// --- moving and resizing ------------------------------------------------------------------------

TEST_F(HandWindow, AnObjectIsMoved) {
  DrawShape(program, paper, "Rectangle", 20, 8, 40, 18);
  paper.Drag(30, 13, 50, 23);
  ExpectBox(Saved().at(0), 40, 18, 20, 10);
}

TEST_F(HandWindow, AnObjectIsResizedByEachHandle) {
  DrawShape(program, paper, "Ellipse", 40, 14, 60, 24);
  const struct {
    double by_x, by_y;
    double left, top, width, height;  // after it
  } rows[] = {{-10, -4, 30, 10, 30, 14},
              {10, -4, 30, 6, 40, 18},
              {-10, 5, 20, 6, 50, 23},
              {10, 5, 20, 6, 60, 28}};
  SavedObject before = Saved().at(0);
  for (int handle = 0; handle < 4; ++handle) {
    const auto& row = rows[handle];
    paper.Click(50, 19);
    paper.DragHandle(handle, before.left, before.top, before.width, before.height, row.by_x,
                     row.by_y);
    before = Saved().at(0);
    SCOPED_TRACE(handle);
    ExpectBox(before, row.left, row.top, row.width, row.height);
  }
}

TEST_F(HandWindow, ABoxIsFlippedAcrossItsCorner) {
  DrawShape(program, paper, "Rectangle", 50, 16, 60, 22);
  paper.DragHandle(3, 50, 16, 10, 6, -30, -16);
  ExpectBox(Saved().at(0), 30, 6, 20, 10);
}

// --- groups -------------------------------------------------------------------------------------

TEST_F(HandWindow, AGroupIsBuiltByModifierAndDragged) {
  DrawShape(program, paper, "Rectangle", 10, 5, 20, 10);
  DrawShape(program, paper, "Ellipse", 40, 5, 50, 10);
  DrawShape(program, paper, "Rectangle", 70, 5, 80, 10);
  paper.Click(95, 34);
  Shell("xdotool keydown ctrl");
  paper.Click(15, 7);
  paper.Click(45, 7);
  Shell("xdotool keyup ctrl");
  WaitToHear(program, "Selection", "Objects Selected: 2");
  WaitToHear(program, "Label", "2 objects selected");
  paper.Drag(45, 7, 50, 27);
  const auto objects = Saved();
  ASSERT_EQ(objects.size(), 3U);
  ExpectBox(objects[0], 15, 25, 10, 5);
  ExpectBox(objects[1], 45, 25, 10, 5);
  ExpectBox(objects[2], 70, 5, 10, 5);
}

TEST_F(HandWindow, FontAndSizeOfAGroupAreChanged) {
  for (const double y : {12, 28}) {
    PressOn(program, "Text Tool");
    paper.Click(20, y);
    Type("Fig jam");
    paper.Click(95, 34);
  }
  const auto before = Saved();
  Key("ctrl+a");
  WaitToHear(program, "Selection", "Objects Selected: 2");
  RetypeFont("DejaVu Sans");
  ChooseRow(program, "Size", "18");
  const auto after = Saved();
  ASSERT_EQ(after.size(), 2U);
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_NE(before[i].font, "DejaVu Sans");
    EXPECT_EQ(after[i].font, "DejaVu Sans");
    EXPECT_EQ(after[i].font_size, 18);
    EXPECT_GT(after[i].width, before[i].width);
  }
}

// --- magnetic rules -----------------------------------------------------------------------------

TEST_F(HandWindow, AMagneticRuleIsSetMovedSnappedToAndRemoved) {
  ChooseMenu(program, {"Options", "Magnetic Rule Zone", "2.0 mm"});
  DrawShape(program, paper, "Rectangle", 50, 5, 60, 10);
  DrawShape(program, paper, "Rectangle", 50, 15, 60, 20);
  const int edge = Board(program).x + 4;
  const auto drop_at = [&](double from, double to) {
    paper.Drag(from + 5, 7, to + 5, 7);
    return Saved().at(0).left;
  };

  MoveMouse(edge, paper.Y(30));
  Press();
  WaitToHear(program, "Selection", "Magnetic Rule - Zone: 2.0 mm");
  Release();
  Drag(edge, paper.Y(30), paper.X(20), paper.Y(30));
  const double first = drop_at(50, 21.2);
  EXPECT_NEAR(first, 20, kPixel);
  paper.Drag(55, 17, 24, 17);  // from the other side
  EXPECT_EQ(Saved().at(1).left, first);

  paper.Drag(20, 30, 40, 30);
  EXPECT_NEAR(drop_at(20, 41.2), 40, kPixel);

  Drag(paper.X(40), paper.Y(30), edge, paper.Y(30));
  EXPECT_NEAR(drop_at(40, 41.2), 41.2, kPixel);
}

// --- numbers ------------------------------------------------------------------------------------

TEST_F(HandWindow, PlaceAndSizeAreTypedInInches) {
  DrawShape(program, paper, "Rectangle", 20, 8, 40, 18);
  ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
  paper.Click(30, 13);
  Retype(program, "Left", "0.5");
  Retype(program, "Top", "0.25");
  Retype(program, "Width", "1.5");
  Retype(program, "Height", "0.75");
  WaitToHear(program, "Label", "Rectangle at 0.50, 0.25, 1.50 by 0.75 in");
  const SavedObject object = Saved().at(0);
  EXPECT_NEAR(object.left, 12.7, 1e-5);
  EXPECT_NEAR(object.top, 6.35, 1e-5);
  EXPECT_NEAR(object.width, 38.1, 1e-9);
  EXPECT_NEAR(object.height, 19.05, 1e-9);
}

}  // namespace
}  // namespace tagwright::window_test
