#include "tools/tool_buttons.h"

#include "common/prog_settings.h"
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

TEST_F(ToolButtonsTest, AfterAHoldTheZoomButtonsClickShowsNothing) {
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

// --- the style of the last one ------------------------------------------------------------------

class ToolStyleTest : public ToolButtonsTest {
 protected:
  ToolStyleTest() {
    for (const char* name : {"Arial", "Courier New"}) frmMain.cboFont.AddItem(name);
    for (const char* size : {"6", "8", "11", "13"}) frmMain.cboSize.AddItem(size);
    for (int n = 0; n <= 13; ++n) frmMain.cboBCode.AddItem(std::to_string(n));
  }

  static void Add(std::int16_t kind, const char* font, double size, std::int16_t param = 0) {
    GrowObjects();
    ClearObject(ObjectUB);
    ObjectRecord& record = ObjectAt(ObjectUB);
    record.ObjType = kind;
    record.FontName = font;
    record.FontSize = size;
    record.Param = param;
  }
};

TEST_F(ToolStyleTest, OnAnEmptyLabelToolsBeginWithTheSettings) {
  ProgSettings.DefaultFontName = "Courier New";
  ProgSettings.DefaultFontSize = 13;
  ProgSettings.BarcodeFontSize = 6.5;
  ProgSettings.AlphaBarcodeType = 9;
  frmMain.cmdTools(1).Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "6.5");
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), 9);
  frmMain.cmdTools(3).Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "13");
}

TEST_F(ToolStyleTest, ABarcodeBeginsLikeTheLastOne) {
  Add(kBarcode, "Arial", 11, 3);
  Add(kBarcode, "Courier New", 8.5, 7);
  Add(kText, "Arial", 13);
  frmMain.cmdTools(1).Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "8.5");
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), 7);
}

// The whole part: a text of 13.5 points goes on with 13.
TEST_F(ToolStyleTest, ATextBeginsLikeTheLastOneInWholePoints) {
  Add(kText, "Arial", 11);
  Add(kText, "Courier New", 13.5);
  Add(kBarcode, "Arial", 8);
  frmMain.cmdTools(3).Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "13");
  EXPECT_EQ(frmMain.cboSize.ListIndex(), 3);
}

TEST_F(ToolStyleTest, AFontThatIsNotThereLeavesTheBox) {
  Add(kText, "Unknown", 15);
  frmMain.cboFont.SetListIndex(1);
  frmMain.cmdTools(3).Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "15");
  EXPECT_EQ(frmMain.cboSize.ListIndex(), -1);
}

// What lies beyond the bound is no part of the label.
TEST_F(ToolStyleTest, RecordsThatHaveGoneDoNotCount) {
  Add(kText, "Arial", 11);
  Add(kText, "Courier New", 13);
  --ObjectUB;
  frmMain.cmdTools(3).Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Arial");
}

TEST_F(ToolStyleTest, AFormatThatTheListLacksIsPassedOver) {
  Add(kBarcode, "Courier New", 8, 99);
  frmMain.cboBCode.SetListIndex(4);
  frmMain.cmdTools(1).Press();
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), 4);
  EXPECT_EQ(&Front(), &frmMain.picBCode);
  ExpectFontBoxesAt(7250, 290);
}

// --- the selection ------------------------------------------------------------------------------

TEST_F(ToolStyleTest, EveryToolEndsTheSelection) {
  Add(kRectangle, "", 0);
  for (int tool = 0; tool < 8; ++tool) {
    SelectedObject = 0;
    frmMain.mnuEditCopy.SetEnabled(true);
    frmMain.cmdTools(tool).Press();
    EXPECT_EQ(SelectedObject, -1) << tool;
    EXPECT_FALSE(frmMain.mnuEditCopy.Enabled()) << tool;
  }
}

TEST_F(ToolStyleTest, AfterAHoldTheSelectionEndsAllTheSame) {
  Add(kRectangle, "", 0);
  for (int tool : {5, 6}) {
    SelectedObject = 0;
    HoldTicks = 1000;
    CurrentTool = 0;
    frmMain.cmdTools(tool).Press();
    EXPECT_EQ(SelectedObject, -1) << tool;
    EXPECT_EQ(CurrentTool, 0) << tool;
  }
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
