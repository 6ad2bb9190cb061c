// The wheel over the board: the label of 100 by 50 mm lies in the middle of 300 by 200 mm.
#include "tools/wheel.h"

#include <cmath>

#include "tools/hand_fixture.h"
#include "tools/view.h"

namespace tagwright {
namespace {

class WheelTest : public HandTest {
 protected:
  WheelTest() { ResetWheel(); }

  // The pointer stands here on the board, in millimetres of the screen, wherever the label goes.
  double screen_x = 150, screen_y = 100;

  void Turn(double up, int shift = 0, double left = 0) const {
    frmMain.picBoard.UserMouseWheel(shift, left, up, screen_x * kTwipsPerMillimetre,
                                    screen_y * kTwipsPerMillimetre);
  }

  double LabelXUnderPointer() const { return screen_x / ZoomFactor - BoardOriginX; }
  double LabelYUnderPointer() const { return screen_y / ZoomFactor - BoardOriginY; }

  static void ChooseZoom(const std::string& percent) {
    for (int row = 0; row < frmMain.cboZoom.ListCount(); ++row) {
      if (frmMain.cboZoom.List(row) == percent) frmMain.cboZoom.SetListIndex(row);
    }
  }
};

TEST_F(WheelTest, ScrollsTheBoardUpAndDown) {
  const double top = BoardOriginY;
  Turn(1);  // away from the user: what lies above comes into view
  EXPECT_EQ(BoardOriginY, top + 15);
  EXPECT_EQ(frmMain.vS1.Value(), 235);
  Turn(-3);
  EXPECT_EQ(BoardOriginY, top - 30);
  EXPECT_EQ(BoardOriginX, 100);
}

TEST_F(WheelTest, WithShiftItScrollsSideways) {
  Turn(1, kShift);
  EXPECT_EQ(BoardOriginX, 115);
  EXPECT_EQ(BoardOriginY, 75);
  Turn(-2, kShift);
  EXPECT_EQ(BoardOriginX, 85);
}

TEST_F(WheelTest, AWheelThatTiltsScrollsSidewaysToo) {
  Turn(0, 0, 1);
  EXPECT_EQ(BoardOriginX, 115);
  EXPECT_EQ(BoardOriginY, 75);
}

TEST_F(WheelTest, ANotchIsTheSameWayOnTheScreenAtEveryZoom) {
  for (int row = 0; row < frmMain.cboZoom.ListCount(); ++row) {
    ResetWheel();
    frmMain.cboZoom.SetListIndex(row);
    frmMain.vS1.SetValue(250);
    const double before = BoardOriginY;
    for (int notch = 0; notch < 3; ++notch) Turn(1);
    EXPECT_NEAR((BoardOriginY - before) * ZoomFactor, 45, ZoomFactor) << frmMain.cboZoom.Text();
  }
}

// Touchpads turn by parts of a notch, which add up.
TEST_F(WheelTest, PartsOfANotchAddUp) {
  for (int part = 0; part < 40; ++part) Turn(0.05);
  EXPECT_NEAR(BoardOriginY, 75 + 30, 1);
  for (int part = 0; part < 3; ++part) Turn(0.3, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  Turn(0.3, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.Text(), "110%");
  Turn(-0.9, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.Text(), "110%") << "turned back, it starts anew";
  Turn(-0.1, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
}

TEST_F(WheelTest, ScrollingEndsAtTheBars) {
  Turn(1000);
  EXPECT_EQ(frmMain.vS1.Value(), 0);
  Turn(-1e9);
  EXPECT_EQ(frmMain.vS1.Value(), 500);
}

TEST_F(WheelTest, WithCtrlItGoesThroughTheRowsOfTheZoomList) {
  frmMain.cboZoom.SetListIndex(0);
  for (int row = 1; row < frmMain.cboZoom.ListCount(); ++row) {
    Turn(1, kCtrl);
    EXPECT_EQ(frmMain.cboZoom.ListIndex(), row);
  }
  const int last = frmMain.cboZoom.ListCount() - 1;
  Turn(1, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), last) << "the last row stays";
  for (int row = last - 1; row >= 0; --row) {
    Turn(-1, kCtrl);
    EXPECT_EQ(frmMain.cboZoom.ListIndex(), row);
  }
  Turn(-1, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), 0) << "and the first";
  Turn(5, kCtrl);
  EXPECT_EQ(frmMain.cboZoom.ListIndex(), 5);
}

// A step of a scroll bar is a millimetre of label: nearer than half of one it cannot be.
TEST_F(WheelTest, ThePlaceUnderThePointerStaysThere) {
  const std::pair<double, double> pointers[] = {{150, 100}, {110, 80}, {197, 124}, {120.3, 99.7}};
  for (const auto& [x, y] : pointers) {
    screen_x = x;
    screen_y = y;
    ChooseZoom("100%");
    cmdXC_Click();
    const double label_x = LabelXUnderPointer(), label_y = LabelYUnderPointer();
    for (int row = 0; row < 19; ++row) {
      Turn(1, kCtrl);
      EXPECT_NEAR(LabelXUnderPointer(), label_x, 0.5 + 1e-9) << x << " at " << ZoomFactor;
      EXPECT_NEAR(LabelYUnderPointer(), label_y, 0.5 + 1e-9) << y << " at " << ZoomFactor;
    }
    for (int row = 0; row < 19; ++row) Turn(-1, kCtrl);
    EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
    EXPECT_NEAR(LabelXUnderPointer(), label_x, 0.5 + 1e-9) << x;
    EXPECT_NEAR(LabelYUnderPointer(), label_y, 0.5 + 1e-9) << y;
  }
}

TEST_F(WheelTest, AZoomIsOneRedrawAndKeepsTheToolArmed) {
  frmMain.cmdTools(5).Press();
  const auto redraws = RedrawCount;
  Turn(1, kCtrl);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(SuspendRedraw, 0);
  EXPECT_EQ(CurrentTool, kZoomIn);
  EXPECT_EQ(CursorShape, 99);
  EXPECT_EQ(frmMain.MousePointer(), 99);
}

TEST_F(WheelTest, TheMarksOfTheSelectionGoAlong) {
  SelectObject(PutBox(10, 10));
  Turn(2);
  Turn(-1, kShift);
  Turn(1, kCtrl);
  EXPECT_EQ(HandlesShown(), "0123");
  ExpectFrame(ObjectAt(0).Left + BoardOriginX, ObjectAt(0).Top + BoardOriginY, ObjectAt(0).Width,
              ObjectAt(0).Height);
}

TEST_F(WheelTest, TheFrameOfAGroupGoesAlong) {
  PutBox(10, 10);
  PutBox(40, 20);
  SelectGroup({0, 1});
  Turn(1);
  EXPECT_NEAR(frmMain.shpBox.Left(), ObjectAt(0).Left + BoardOriginX, 1e-6);
  EXPECT_NEAR(frmMain.shpBox.Top(), ObjectAt(0).Top + BoardOriginY, 1e-6);
}

// The label has moved under the pointer: the status bar says what lies there now.
TEST_F(WheelTest, ThePlaceOfThePointerIsShown) {
  Turn(1);
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X: 50.00 - Y:10.00mm");
}

// What is drawn or moved counts from a board that stands still.
TEST_F(WheelTest, NothingWhileAButtonIsDown) {
  Press(150, 100);
  Turn(1);
  Turn(1, kCtrl);
  EXPECT_EQ(BoardOriginY, 75);
  EXPECT_EQ(frmMain.cboZoom.Text(), "100%");
  Release(150, 100);
  Turn(1);
  EXPECT_EQ(BoardOriginY, 90);
}

TEST_F(WheelTest, TheLabelStaysClean) {
  PutBox(10, 10);
  DirtyFlag = kFalse;
  Turn(1);
  Turn(1, kCtrl);
  EXPECT_EQ(DirtyFlag, kFalse);
}

}  // namespace
}  // namespace tagwright
