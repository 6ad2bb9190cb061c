// Who does not see the window hears it: every control has a name, every button can be pressed by
// that name, the board says what is selected, and Tab goes the way one reads.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>

#include "window/hand_steps.h"

namespace tagwright::window_test {
namespace {

using Names = std::vector<std::string>;

// What is always there, beside and below the panels.
const Names kEverywhere = {"Select Tool",
                           "Generate Barcode",
                           "Insert Picture",
                           "Text Tool",
                           "Drawing Options",
                           "Import Data",
                           "Zoom In",
                           "Zoom Out",
                           "Send to Back",
                           "Bring to Front",
                           "Align to Centre of Label",
                           "Left",
                           "Top",
                           "Width",
                           "Height",
                           "Zoom",
                           "Cross Hairs",
                           "Label",
                           "Scroll up and down",
                           "Scroll left and right",
                           "Centre the label on the board",
                           "Pointer",
                           "Size",
                           "Selection",
                           "Notes"};

// The panel that a group brings with it.
const Names kGroup = {"Align objects left",     "Align objects centre",  "Align objects right",
                      "Align objects top",      "Align objects middle",  "Align objects bottom",
                      "Make same size: height", "Make same size: width", "Make same size: both",
                      "Space evenly across",    "Space evenly down"};

// What a held zoom button brings out.
const Names kFlyout = {"Show All", "Zoom to Height", "Zoom to Width", "View Same Size",
                       "View All Objects"};

// What can be pressed and opens a window.
const std::set<std::string> kOpening = {"Insert Picture", "Text Color", "Fill Colour",
                                        "Outline Colour", "Load File",  "Print",
                                        "Serial Numbers"};

// A panel, by the keys that bring it to the front or the tool that does, one of its buttons first.
struct Panel {
  const char* title;
  const char* keys;
  const char* tool;
  int buttons;
  Names names;
};

const Panel kPanels[] = {
    {"Layout",
     "",
     "Select Tool",
     1,
     {"Design new Label", "Layout", "Label Width", "Label Height", "Left Margin", "Top Margin",
      "No. Across", "No. Down", "Horiz. Gutter", "Vert. Gutter"}},
    {"Text",
     "",
     "Text Tool",
     6,
     {"Text Color", "Text", "Font", "Size", "Colour of the text", "Bold", "Italic",
      "Align text left", "Align text centre", "Align text right"}},
    {"Barcode",
     "",
     "Generate Barcode",
     3,
     {"Place Barcode", "Barcode Format", "Barcode Data", "Generate Checksum",
      "Print Characters on Barcode", "Font", "Size"}},
    {"Drawing",
     "",
     "Drawing Options",
     7,
     {"Line", "Rectangle", "Rounded Rectangle", "Ellipse", "Line Weight", "Fill Colour",
      "Outline Colour", "Fill colour in force", "Outline colour in force", "Fill grey 1",
      "Fill grey 6", "Outline grey 1", "Outline grey 6", "Make Transparent"}},
    {"Import",
     "",
     "Import Data",
     3,
     {"Load File", "Import File Type", "First Row contains Field Names", "Remove Quote Marks",
      "Records", "Filename", "Fields", "Font", "Size"}},
    {"Print",
     "ctrl+p",
     "",
     3,
     {"Preview", "Printer", "From page", "To Page", "No. Copies", "Print", "Serial Numbers"}},
};

// A list with rows that unfold is named by its row; what it is, its caption says.
std::string NameOf(const Spoken& control) {
  return control.role == "combo box" ? control.label : control.name;
}

bool IsForUse(const Spoken& control) {
  const std::set<std::string> roles = {"push button", "toggle button", "check box", "text",
                                       "combo box",   "list",          "scroll bar"};
  return control.showing && roles.contains(control.role);
}

class SpokenWindow : public testing::Test {
 protected:
  std::vector<Spoken> Shown() const {
    std::vector<Spoken> shown = Everything(program);
    std::erase_if(shown, [](const Spoken& control) { return !control.showing; });
    return shown;
  }

  void BringToFront(const Panel& panel) const {
    if (*panel.tool) PressBySpeech(program, panel.tool, "push button");
    if (*panel.keys) Key(panel.keys);
    Find(program, panel.names.front());
  }

  void ExpectNames(const Names& names) const {
    std::set<std::string> heard;
    std::set<std::pair<std::string, std::string>> for_use;
    for (const Spoken& control : Shown()) {
      heard.insert(NameOf(control));
      if (!IsForUse(control)) continue;
      EXPECT_NE(NameOf(control), "") << control.role << " " << control.name;
      EXPECT_TRUE(for_use.insert({control.role, NameOf(control)}).second)
          << "two times " << control.role << " " << NameOf(control);
    }
    for (const std::string& name : names) EXPECT_TRUE(heard.contains(name)) << name;
  }

  void SelectTwoShapes() const {
    const Paper paper(program);
    DrawShape(program, paper, "Rectangle", 10, 5, 20, 10);
    DrawShape(program, paper, "Ellipse", 40, 5, 50, 10);
    Key("ctrl+a");
    Find(program, "Space evenly down");
  }

  void OpenFlyout() const {
    FocusBySpeech(program, "Zoom In", "push button");
    Key("Down");
    Find(program, kFlyout.front());
  }

  // Presses those of `names` that are buttons and enabled. Returns how many there were.
  int PressEach(const Names& names) const {
    const std::set<std::string> buttons = {"push button", "toggle button", "check box"};
    int pressed = 0;
    for (const Spoken& control : Shown()) {
      if (!buttons.contains(control.role) || !control.enabled) continue;
      if (std::ranges::count(names, control.name) == 0) continue;
      PressAndClose(control);
      ++pressed;
    }
    return pressed;
  }

  void PressAndClose(const Spoken& button) const {
    SCOPED_TRACE(button.name);
    PressBySpeech(program, button.name, button.role);
    if (kOpening.contains(button.name)) WaitForAnotherWindow(button.name);
    CloseWhatOpened();
    EXPECT_TRUE(program.Running());
  }

  // The window that has the keyboard; none has while one gives way to another.
  static std::string Active() { return Shell("xdotool getactivewindow", false); }

  void WaitForAnotherWindow(const std::string& button) const {
    WaitFor("the window that " + button + " opens", [&] {
      const std::string active = Active();
      return !active.empty() && active != program.Window();
    });
  }

  // A window may come up late and go late: as long as one is there it is told to go.
  void CloseWhatOpened() const {
    WaitFor("the main window", [&] {
      const std::string active = Active();
      if (active == program.Window()) return true;
      if (!active.empty()) Key("Escape");
      Shell("sleep 0.2");
      return false;
    });
  }

  // Presses keys that bring the keyboard to a control.
  void ExpectFocusAfter(const std::string& keys, const std::string& name) const {
    Key(keys);
    WaitFor("the keyboard in " + name, [&] { return NameOf(Focused(program)) == name; });
  }

  std::string folder = FreshFolder();
  Program program{folder};
};

TEST_F(SpokenWindow, EveryControlOfEveryPanelHasANameOfItsOwn) {
  for (const Panel& panel : kPanels) {
    SCOPED_TRACE(panel.title);
    BringToFront(panel);
    Names names = kEverywhere;
    names.insert(names.end(), panel.names.begin(), panel.names.end());
    ExpectNames(names);
  }
}

TEST_F(SpokenWindow, EveryControlOfTheGroupHasANameOfItsOwn) {
  SelectTwoShapes();
  ExpectNames(kGroup);
}

// Or its name in a list of tests would be where it lies in memory.
void PrintTo(const Panel& panel, std::ostream* out) { *out << panel.title; }

class SpokenPanel : public SpokenWindow, public testing::WithParamInterface<Panel> {};

TEST_P(SpokenPanel, EveryButtonIsPressedByItsName) {
  BringToFront(GetParam());
  EXPECT_EQ(PressEach(GetParam().names), GetParam().buttons);
}

INSTANTIATE_TEST_SUITE_P(All, SpokenPanel, testing::ValuesIn(kPanels),
                         [](const auto& panel) { return panel.param.title; });

TEST_F(SpokenWindow, EveryButtonOfTheToolColumnIsPressedByItsName) {
  EXPECT_EQ(PressEach(kEverywhere), 13);
}

TEST_F(SpokenWindow, EveryButtonOfTheGroupIsPressedByItsName) {
  SelectTwoShapes();
  EXPECT_EQ(PressEach(kGroup), 11);
}

TEST_F(SpokenWindow, TheFlyoutOpensByKeyboardAndItsButtonsArePressedByTheirNames) {
  OpenFlyout();
  ExpectNames(kFlyout);
  ExpectFocusAfter("Escape", "Zoom In");
  WaitFor("the flyout to close", [&] { return !Shows(program, kFlyout.front()); });
  for (const std::string& name : kFlyout) {
    OpenFlyout();
    const Spoken button = Find(program, name);
    EXPECT_TRUE(button.enabled) << name;
    PressAndClose(button);
  }
}

TEST_F(SpokenWindow, APictureSaysItsFileAndItsSize) {
  const Paper paper(program);
  ArmPicture(program, SampleLabel("lighthouse.jpg"));
  paper.Drag(10, 5, 20, 15);
  WaitToHear(program, "Label", "Picture \"lighthouse");
  Names names = kEverywhere;
  names.insert(names.end(), {"Filename", "Original X", "Original Y"});
  ExpectNames(names);
}

TEST_F(SpokenWindow, AMessageIsAnsweredByTheNameOfItsButton) {
  const Paper paper(program);
  DrawShape(program, paper, "Rectangle", 10, 5, 20, 10);
  WaitToHear(program, "Label", "Rectangle at ");
  ChooseMenu(program, {"File", "New"});
  PressBySpeech(program, Find(program, "No", "push button").name, "push button");
  WaitToHear(program, "Label", "Nothing selected");
  EXPECT_TRUE(program.Running());
}

TEST_F(SpokenWindow, TheWindowOfNumbersIsFilledInByItsNames) {
  Key("ctrl+p");
  Find(program, "Serial Numbers", "push button");
  PressBySpeech(program, "Serial Numbers", "push button");
  WaitForWindow("Serial Numbers");
  PressBySpeech(program, "Print as Barcode", "check box");
  ExpectNames({"Prefix", "Incrementing Number", "Incrementation", "Print as Barcode",
               "Barcode Format", "Barcode Width", "Barcode Height",
               "Print Serial Number on Barcode", "Save", "Cancel"});
  PressBySpeech(program, "Cancel", "push button");
  WaitForWindow("Tagwright");
}

// A shape is chosen, and its fill, without a mouse.
TEST_F(SpokenWindow, WhatIsPressedByItsNameWorks) {
  const Paper paper(program);
  PressBySpeech(program, "Drawing Options", "push button");
  const bool was_transparent = Find(program, "Make Transparent").checked;
  PressBySpeech(program, "Make Transparent", "check box");
  WaitFor("the tick to turn over",
          [&] { return Find(program, "Make Transparent").checked != was_transparent; });
  PressBySpeech(program, "Ellipse", "push button");
  paper.Drag(10, 5, 30, 15);
  WaitToHear(program, "Label", "Ellipse at ");
  const auto objects = SavedAs(program, folder + "/label.twp");
  ASSERT_EQ(objects.size(), 1U);
  EXPECT_EQ(objects[0].kind, 13);
  EXPECT_EQ(objects[0].fill_color == -1, !was_transparent);
}

TEST_F(SpokenWindow, TheBoardSaysWhatIsSelected) {
  const Paper paper(program);
  WaitToHear(program, "Label", "Nothing selected");
  PressOn(program, "Text Tool");
  paper.Click(20, 12);
  Type("Fig jam");
  WaitToHear(program, "Label", "Text \"Fig jam\" at ");
  paper.Click(95, 34);
  WaitToHear(program, "Label", "Nothing selected");
}

TEST_F(SpokenWindow, TabFollowsTheReadingOrderAndComesRound) {
  const Names round = {"Layout",
                       "Design new Label",
                       "Label Width",
                       "Left Margin",
                       "No. Across",
                       "Horiz. Gutter",
                       "Label Height",
                       "Top Margin",
                       "No. Down",
                       "Vert. Gutter",
                       "Zoom",
                       "Cross Hairs",
                       "Select Tool",
                       "Generate Barcode",
                       "Insert Picture",
                       "Text Tool",
                       "Drawing Options",
                       "Import Data",
                       "Zoom In",
                       "Zoom Out",
                       "Send to Back",
                       "Bring to Front",
                       "Align to Centre of Label",
                       "Label",
                       "Centre the label on the board"};
  for (int lap = 0; lap < 2; ++lap) {
    for (const std::string& name : round) ExpectFocusAfter("Tab", name);
  }
  ExpectFocusAfter("shift+Tab", "Label");
}

// With an object selected its numbers are on the way, too.
TEST_F(SpokenWindow, TabGoesThroughTheNumbersOfAnObject) {
  const Paper paper(program);
  DrawShape(program, paper, "Rectangle", 20, 8, 40, 18);
  Click(Find(program, "Left", "text").box);
  for (const char* name : {"Width", "Top", "Height", "Zoom"}) ExpectFocusAfter("Tab", name);
}

}  // namespace
}  // namespace tagwright::window_test
