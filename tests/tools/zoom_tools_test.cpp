// What clicks and drags with the zoom tools make of the view.
#include "tools/zoom_tools.h"

#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

class ZoomToolsTest : public HandTest {
 protected:
  static void ArmZoomIn() { frmMain.cmdTools(5).Press(); }
  static void ArmZoomOut() { frmMain.cmdTools(6).Press(); }

  static void ChooseZoom(const std::string& percent) {
    for (int row = 0; row < frmMain.cboZoom.ListCount(); ++row) {
      if (frmMain.cboZoom.List(row) == percent) frmMain.cboZoom.SetListIndex(row);
    }
  }

  static void ExpectArmed(int tool) {
    EXPECT_EQ(CurrentTool, tool);
    EXPECT_EQ(CursorShape, 99);
    EXPECT_EQ(frmMain.MousePointer(), 99);
  }

  // Where a place of the label stands on the board, as a share of the view.
  static double ShareX(double x) { return (x + BoardOriginX) / frmMain.picBoard.ScaleWidth(); }
  static double ShareY(double y) { return (y + BoardOriginY) / frmMain.picBoard.ScaleHeight(); }
};

// --- clicks -------------------------------------------------------------------------------------

TEST_F(ZoomToolsTest, ClicksGoToTheRowBelowTheFactor) {
  const struct {
    const char* from;
    const char* in;
    const char* out;
  } rows[] = {{"100%", "150%", "70%"},  {"150%", "225%", "110%"}, {"60%", "90%", "40%"},
              {"300%", "450%", "225%"}, {"450%", "650%", "300%"}, {"30%", "40%", "20%"}};
  for (const auto& row : rows) {
    ChooseZoom(row.from);
    ArmZoomIn();
    ClickOnLabel(50, 25);
    EXPECT_EQ(frmMain.cboZoom.Text(), row.in) << row.from;
    ExpectArmed(kZoomIn);
    ChooseZoom(row.from);
    ArmZoomOut();
    ClickOnLabel(50, 25);
    EXPECT_EQ(frmMain.cboZoom.Text(), row.out) << row.from;
    ExpectArmed(kZoomOut);
  }
}

TEST_F(ZoomToolsTest, AClickLeavesNoRecordAndNoBox) {
  ArmZoomIn();
  const auto redraws = RedrawCount;
  ClickOnLabel(50, 25);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_EQ(SuspendRedraw, 0);
  EXPECT_EQ(RedrawCount, redraws + 1);
}

TEST_F(ZoomToolsTest, TheAnchorComesToTheMiddleOfTheView) {
  const std::pair<double, double> places[] = {{50, 25}, {0, 0}, {100, 50}, {-20, 70}};
  for (const auto& [x, y] : places) {
    ChooseZoom("100%");
    ArmZoomIn();
    ClickOnLabel(x, y);
    EXPECT_NEAR(ShareX(x), 0.5, 1 / frmMain.picBoard.ScaleWidth()) << x;
    EXPECT_NEAR(ShareY(y), 0.5, 1 / frmMain.picBoard.ScaleHeight()) << y;
  }
}

TEST_F(ZoomToolsTest, ScrollingEndsAtTheBars) {
  LabelWidth = 1000;
  RedrawBoard();
  ArmZoomIn();
  Click(299, 100);  // far to the right of the label's middle, but within reach
  EXPECT_LE(frmMain.hS1.Value(), frmMain.hS1.Max());
  AnchorX = 1e9;
  AnchorY = -1e9;
  ZoomAtAnchor();
  EXPECT_EQ(frmMain.hS1.Value(), frmMain.hS1.Max());
  EXPECT_EQ(frmMain.vS1.Value(), frmMain.vS1.Min());
}

// A factor without a pair of rows around it: the zoom stays and the tool is laid down.
TEST_F(ZoomToolsTest, BeyondTheListTheZoomStaysAndTheToolIsDisarmed) {
  const struct {
    const char* zoom;
    bool in;
  } rows[] = {{"750%", true}, {"650%", true}, {"20%", false}};
  for (const auto& row : rows) {
    ChooseZoom(row.zoom);
    const double before = ZoomFactor;
    row.in ? ArmZoomIn() : ArmZoomOut();
    ClickOnLabel(50, 25);
    EXPECT_EQ(ZoomFactor, before) << row.zoom;
    EXPECT_EQ(frmMain.cboZoom.Text(), row.zoom);
    EXPECT_EQ(CurrentTool, 0) << row.zoom;
    EXPECT_EQ(CursorShape, 0) << row.zoom;
    EXPECT_EQ(frmMain.MousePointer(), 0) << row.zoom;
  }
}

// The list ends there, so the pair below it is the last that a click can reach.
TEST_F(ZoomToolsTest, FromFiveHundredTheNextRowIsTheLastButOne) {
  ChooseZoom("450%");
  ArmZoomIn();
  ClickOnLabel(50, 25);
  EXPECT_EQ(frmMain.cboZoom.Text(), "650%");
}

// --- what was selected --------------------------------------------------------------------------

TEST_F(ZoomToolsTest, AClickOverAnObjectKeepsItSelected) {
  PutBox(10, 10, 40, 30);
  PutBox(60, 10, 10, 10);
  ArmZoomIn();
  ClickOnLabel(20, 20);
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(HandlesShown(), "0123");
  EXPECT_TRUE(frmMain.shpBox.Visible());
  ExpectArmed(kZoomIn);
}

// By a click and by a box, each begun beside the objects.
TEST_F(ZoomToolsTest, AGroupThatCameDuringTheGestureIsSelectedStill) {
  PutBox(10, 10);
  PutBox(40, 10);
  for (const double width : {0.0, 59.9}) {
    ArmZoomIn();
    const double x = BoardOriginX + 5, y = BoardOriginY + 5;
    Press(x, y);
    frmMain.mnuEditSelectAll.Press();
    MoveTo(x + width, y + width / 3);
    Release(x + width, y + width / 3);
    EXPECT_EQ(SelectedObject, -1) << width;
    EXPECT_EQ(GroupMembers(), (std::vector<std::int16_t>{0, 1})) << width;
    EXPECT_TRUE(frmMain.shpBox.Visible()) << width;
    ExpectFrame(BoardOriginX + 10, BoardOriginY + 10, 50, 10);
    EXPECT_EQ(HandlesShown(), "") << width;
    ExpectArmed(kZoomIn);
  }
}

// Left past the last record the selection would have Delete take that one.
TEST_F(ZoomToolsTest, AfterAZoomTheSelectionIsNotTheDroppedRecord) {
  PutBox(10, 10, 40, 30);
  ArmZoomIn();
  Click(BoardOriginX + 90, BoardOriginY + 45);
  EXPECT_EQ(SelectedObject, -1);
  KeyDown(46);
  KeyUp(46);
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(ZoomToolsTest, ATextUnderTheClickTakesTheZoomedSize) {
  PutText("Ag");
  ObjectAt(0).FontSize = 12;
  ArmZoomIn();
  ClickOnLabel(12, 12);
  EXPECT_EQ(HoldAt(0).Font().Size, 18);
}

// --- boxes --------------------------------------------------------------------------------------

TEST_F(ZoomToolsTest, ABoxGoesToTheRowBelowTheFactorThatFillsTheView) {
  const struct {
    double left, top, width, height;
    const char* row;
  } rows[] = {
      {10, 10, 59.9, 20, "500%"},  // 300 / 59.9 is 5.01, 200 / 20 is 10: the wider side decides
      {10, 10, 59.9, 45, "400%"},  // 200 / 45 is 4.44: here the higher one
      {0, 0, 99.9, 50, "300%"},    // the label, almost: 3.003
      {10, 10, 10, 5, "750%"},     // beyond the list: its last row
      {-90, -70, 250, 180, "110%"},
  };
  for (const auto& row : rows) {
    ChooseZoom("100%");
    frmMain.cmdXC.Press();
    ArmZoomIn();
    DragOnLabel(row.left, row.top, row.left + row.width, row.top + row.height);
    EXPECT_EQ(frmMain.cboZoom.Text(), row.row) << row.width << " " << row.height;
    ExpectArmed(kZoomIn);
    EXPECT_FALSE(frmMain.shpBox.Visible());
  }
}

TEST_F(ZoomToolsTest, BothToolsZoomToABox) {
  ArmZoomOut();
  DragOnLabel(10, 10, 69.9, 30);
  EXPECT_EQ(frmMain.cboZoom.Text(), "500%");
  ExpectArmed(kZoomOut);
}

// As much of the view as whole steps of the bars allow.
TEST_F(ZoomToolsTest, TheBoxComesToTheViewsTopLeftCorner) {
  const struct {
    double left, top, width, height;
  } rows[] = {{0, 0, 60, 20}, {40, 10, 60, 20}, {30, 20, 30, 15}, {70, 35, 30, 15}, {80, 45, 6, 4}};
  for (const auto& row : rows) {
    ChooseZoom("100%");
    frmMain.cmdXC.Press();
    ArmZoomIn();
    DragOnLabel(row.left, row.top, row.left + row.width, row.top + row.height);
    EXPECT_NEAR(BoardOriginX + row.left, 0, 1) << row.left;
    EXPECT_NEAR(BoardOriginY + row.top, 0, 1) << row.top;
    EXPECT_LE(row.width, frmMain.picBoard.ScaleWidth()) << "all of the box is in view";
    EXPECT_LE(row.height, frmMain.picBoard.ScaleHeight());
  }
}

TEST_F(ZoomToolsTest, ABoxLargerThanTheLabelLeavesTheLabelInTheMiddle) {
  ArmZoomIn();
  DragOnLabel(-20, -20, 120, 70);
  EXPECT_EQ(frmMain.hS1.Value(), 250);
  EXPECT_EQ(frmMain.vS1.Value(), 250);
}

TEST_F(ZoomToolsTest, ABoxNarrowerButHigherMovesAcrossOnly) {
  ArmZoomIn();
  DragOnLabel(60, -10, 90, 60);
  EXPECT_NE(frmMain.hS1.Value(), 250);
  EXPECT_EQ(frmMain.vS1.Value(), 250);
}

TEST_F(ZoomToolsTest, TheBoardsScaleIsThatOfTheRow) {
  ArmZoomIn();
  DragOnLabel(10, 10, 69.9, 30);
  EXPECT_EQ(ZoomFactor, 5.0);
  EXPECT_NEAR(frmMain.picBoard.ScaleWidth(), 60, 1e-9);
  EXPECT_NEAR(frmMain.picBoard.ScaleHeight(), 40, 1e-9);
}

}  // namespace
}  // namespace tagwright
