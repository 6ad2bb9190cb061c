// Which tool is armed shows at its buttons.
#include "output/data_sources.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

class ArmedToolTest : public HandTest {
 protected:
  // The buttons that look pressed, by name.
  static std::string Pressed() {
    std::string names;
    for (const auto& [index, button] : frmMain.cmdTools) {
      if (button->Down()) names += "cmdTools" + std::to_string(index) + " ";
    }
    for (const CommandButton* button : {&frmMain.cmdLine, &frmMain.cmdRect, &frmMain.cmdRoundRect,
                                        &frmMain.cmdEllipse, &frmMain.cmdBCode}) {
      if (button->Down()) names += button->Name() + " ";
    }
    return names;
  }
};

TEST_F(ArmedToolTest, NoneLooksPressedWithoutATool) {
  frmMain.cmdTools(0).Press();
  EXPECT_EQ(Pressed(), "");
  frmMain.cmdTools(1).Press();  // opens its panel, and arms nothing yet
  EXPECT_EQ(Pressed(), "");
}

TEST_F(ArmedToolTest, TheButtonOfTheArmedToolLooksPressed) {
  frmMain.cmdTools(3).Press();
  EXPECT_EQ(Pressed(), "cmdTools3 ");
  frmMain.cmdTools(5).Press();
  EXPECT_EQ(Pressed(), "cmdTools5 ");
  frmMain.cmdTools(6).Press();
  EXPECT_EQ(Pressed(), "cmdTools6 ");
  frmMain.cmdTools(0).Press();
  EXPECT_EQ(Pressed(), "");
}

TEST_F(ArmedToolTest, AShapeShowsOnItsPanelAndInTheColumn) {
  frmMain.cmdTools(4).Press();
  EXPECT_EQ(Pressed(), "");
  const std::pair<CommandButton*, std::string> rows[] = {
      {&frmMain.cmdLine, "cmdTools4 cmdLine "},
      {&frmMain.cmdRect, "cmdTools4 cmdRect "},
      {&frmMain.cmdRoundRect, "cmdTools4 cmdRoundRect "},
      {&frmMain.cmdEllipse, "cmdTools4 cmdEllipse "}};
  for (const auto& [button, pressed] : rows) {
    button->Press();
    EXPECT_EQ(Pressed(), pressed);
  }
}

TEST_F(ArmedToolTest, ABarcodeShowsOnceItCanBePlaced) {
  frmMain.cmdTools(1).Press();
  frmMain.cboBCode.SetListIndex(9);
  TypeInto(frmMain.txtBCodeData, "FIG");
  frmMain.cmdBCode.Press();
  ASSERT_EQ(CurrentTool, kBarcode);
  EXPECT_EQ(Pressed(), "cmdTools1 cmdBCode ");
}

TEST_F(ArmedToolTest, AColumnsDoubleClickShowsAtTheImport) {
  frmMain.cmdTools(7).Press();
  frmMain.lstFields.AddItem("City");
  frmMain.lstFields.UserChoose(0);
  frmMain.lstFields.UserDblClick();
  ASSERT_EQ(CurrentTool, kDataField);
  EXPECT_EQ(Pressed(), "cmdTools7 ");
}

TEST_F(ArmedToolTest, PlacingAnObjectReleasesTheButton) {
  frmMain.cmdRect.Press();
  DragOnLabel(10, 10, 30, 20);
  ASSERT_EQ(CurrentTool, kNoTool);
  EXPECT_EQ(Pressed(), "");
}

TEST_F(ArmedToolTest, AToolThatStaysArmedStaysPressed) {
  frmMain.cmdTools(5).Press();
  ClickOnLabel(50, 25);
  EXPECT_EQ(Pressed(), "cmdTools5 ");
}

// Holding a zoom button opens the flyout and disarms, with no press of a button.
TEST_F(ArmedToolTest, AHoldThatDisarmsReleasesTheButton) {
  frmMain.cmdRect.Press();
  frmMain.tmrButtons.SetEnabled(true);
  HoldTicks = 2;
  frmMain.tmrButtons.Elapsed();
  ASSERT_EQ(CurrentTool, kNoTool);
  EXPECT_EQ(Pressed(), "");
}

}  // namespace
}  // namespace tagwright
