#include "tools/tool_buttons.h"

#include "document/objects.h"
#include "forms/frmMain.h"
#include "support/test_support.h"
#include "tools/panels.h"

namespace tagwright {
namespace {

class ToolButtonsTest : public ProgramTest {
 protected:
  ToolButtonsTest() {
    frmMain.cmdTools.Events().Click = cmdTools_Click;
    frmMain.mnuFileImport.Events().Click = mnuFileImport_Click;
    HoldTicks = 0;
  }

  static PictureBox& Front() {
    PictureBox* front = &frmMain.picProperties;
    for (PictureBox* panel :
         {&frmMain.picText, &frmMain.picBCode, &frmMain.picDrawing, &frmMain.picPicture,
          &frmMain.picFields, &frmMain.picPrint, &frmMain.picSellAll}) {
      if (panel->Order() > front->Order()) front = panel;
    }
    return *front;
  }

  static void ExpectFontBoxesAt(double left, double top) {
    EXPECT_TRUE(frmMain.cboFont.Visible());
    EXPECT_TRUE(frmMain.cboSize.Visible());
    EXPECT_EQ(frmMain.cboFont.Left(), left);
    EXPECT_EQ(frmMain.cboFont.Top(), top);
    EXPECT_EQ(frmMain.cboSize.Left(), left);
    EXPECT_EQ(frmMain.cboSize.Top(), top + 360);
    EXPECT_GT(frmMain.cboFont.Order(), Front().Order());
    EXPECT_GT(frmMain.cboSize.Order(), Front().Order());
  }

  static void ExpectFontBoxesHidden() {
    EXPECT_FALSE(frmMain.cboFont.Visible());
    EXPECT_FALSE(frmMain.cboSize.Visible());
  }
};

TEST_F(ToolButtonsTest, EachToolBringsItsPanelForward) {
  const std::pair<int, PictureBox*> rows[] = {{1, &frmMain.picBCode},  {2, &frmMain.picPicture},
                                              {3, &frmMain.picText},   {4, &frmMain.picDrawing},
                                              {7, &frmMain.picFields}, {0, &frmMain.picProperties}};
  for (const auto& [tool, panel] : rows) {
    panel->Move(4000, 300);
    frmMain.cmdTools(tool).Press();
    EXPECT_EQ(&Front(), panel) << tool;
    EXPECT_EQ(panel->Left(), 50) << tool;
    EXPECT_EQ(panel->Top(), 0) << tool;
  }
}

TEST_F(ToolButtonsTest, FontBoxesGoToTheToolThatNeedsThem) {
  frmMain.cmdTools(1).Press();
  ExpectFontBoxesAt(7250, 290);
  frmMain.cmdTools(3).Press();
  ExpectFontBoxesAt(8950, 290);
  frmMain.cmdTools(7).Press();
  ExpectFontBoxesAt(9840, 600);
}

TEST_F(ToolButtonsTest, FontBoxesHideForTheOthers) {
  for (int tool : {0, 2, 4, 5}) {
    frmMain.cmdTools(3).Press();
    frmMain.cmdTools(tool).Press();
    ExpectFontBoxesHidden();
  }
}

// Zoom out is the one tool that leaves them where they are.
TEST_F(ToolButtonsTest, ZoomOutLeavesTheFontBoxes) {
  frmMain.cmdTools(3).Press();
  frmMain.cmdTools(6).Press();
  ExpectFontBoxesAt(8950, 290);
}

TEST_F(ToolButtonsTest, TheSelectToolDisarms) {
  CurrentTool = 11;
  CursorShape = 2;
  frmMain.cmdTools(0).Press();
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(CursorShape, 0);
}

TEST_F(ToolButtonsTest, EveryToolHidesTheFlyout) {
  for (int tool = 0; tool < 8; ++tool) {
    frmMain.picMag.SetVisible(true);
    frmMain.cmdTools(tool).Press();
    EXPECT_FALSE(frmMain.picMag.Visible()) << tool;
  }
}

TEST_F(ToolButtonsTest, AfterAHoldTheZoomButtonsClickDoesNothing) {
  for (int tool : {5, 6}) {
    frmMain.cmdTools(3).Press();
    frmMain.picMag.SetVisible(true);
    HoldTicks = 1000;
    frmMain.cmdTools(tool).Press();
    EXPECT_TRUE(frmMain.picMag.Visible()) << tool;
    ExpectFontBoxesAt(8950, 290);
  }
}

TEST_F(ToolButtonsTest, TheHoldEndsAboveAHundredTicks) {
  HoldTicks = 100;
  frmMain.picMag.SetVisible(true);
  frmMain.cmdTools(5).Press();
  EXPECT_FALSE(frmMain.picMag.Visible());
  HoldTicks = 101;
  frmMain.picMag.SetVisible(true);
  frmMain.cmdTools(5).Press();
  EXPECT_TRUE(frmMain.picMag.Visible());
}

TEST_F(ToolButtonsTest, AHoldConcernsTheZoomButtonsOnly) {
  HoldTicks = 1000;
  frmMain.cmdTools(4).Press();
  EXPECT_EQ(&Front(), &frmMain.picDrawing);
}

TEST_F(ToolButtonsTest, ImportDisarmsAndPutsThePointerBack) {
  CurrentTool = 11;
  CursorShape = 99;
  frmMain.SetMousePointer(99);
  frmMain.mnuFileImport.Press();
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
}

TEST_F(ToolButtonsTest, ResetForgetsTheHold) {
  HoldTicks = 1000;
  HoldKind = 101;
  ResetToolButtons();
  EXPECT_EQ(HoldTicks, 0);
  EXPECT_EQ(HoldKind, 0);
}

}  // namespace
}  // namespace tagwright
