#include "document/overlays.h"

#include "document/document_support.h"
#include "platform/faults/fault.h"
#include "support/fault_of.h"

namespace tagwright {
namespace {

class OverlaysTest : public LabelTest {
 protected:
  // The handles' size in board units: 90 twips, as 96 pixels an inch and 15 twips a pixel give
  // 1440 / 25.4 twips a millimetre.
  static double Handle() { return frmMain.lblHandle(0).Width(); }

  static void ExpectHandlesAround(double left, double top, double right, double bottom,
                                  double gap) {
    const double size = Handle();
    EXPECT_NEAR(frmMain.lblHandle(0).Left(), left - size - gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(0).Top(), top - size - gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(1).Left(), right + gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(1).Top(), top - size - gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(2).Left(), left - size - gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(2).Top(), bottom + gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(3).Left(), right + gap, 1e-9);
    EXPECT_NEAR(frmMain.lblHandle(3).Top(), bottom + gap, 1e-9);
  }
};

TEST_F(OverlaysTest, HandlesStandAMillimetreOutsideTheHitArea) {
  HoldAt(0).Move(10, 20, 30, 40);
  ShowHandles(HoldAt(0));
  ExpectHandlesAround(10, 20, 40, 60, 1.0);
  EXPECT_EQ(frmMain.shpBox.Left(), 10);
  EXPECT_EQ(frmMain.shpBox.Top(), 20);
  EXPECT_EQ(frmMain.shpBox.Width(), 30);
  EXPECT_EQ(frmMain.shpBox.Height(), 40);
  EXPECT_TRUE(frmMain.shpBox.Visible());
  EXPECT_EQ(frmMain.shpBox.BorderStyle(), 3);
}

TEST_F(OverlaysTest, HandlesKeepTheirDistanceOnScreenAtAnyZoom) {
  ZoomFactor = 4;
  ReadyBoard();
  HoldAt(0).Move(10, 20, 30, 40);
  ShowHandles(HoldAt(0));
  ExpectHandlesAround(10, 20, 40, 60, 0.25);
}

TEST_F(OverlaysTest, HandlesAreShownAndRaisedInOrder) {
  ShowHandles(HoldAt(0));
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(frmMain.lblHandle(i).Visible()) << i;
  for (int i = 1; i < 4; ++i) {
    EXPECT_GT(frmMain.lblHandle(i).Order(), frmMain.lblHandle(i - 1).Order()) << i;
  }
  EXPECT_GT(frmMain.lblHandle(0).Order(), frmMain.lblHold(0).Order());
}

TEST_F(OverlaysTest, GroupBoxSurroundsTheRecordsAndHasNoHandles) {
  Add(ShapeObject(kRectangle, 10, 30, 5, 5));
  Add(ShapeObject(kRectangle, 90, 90, 5, 5));  // not in the group
  Add(ShapeObject(kRectangle, 20, 4, 40, 2));
  SelectedList[0] = 0;
  SelectedList[1] = 2;
  SelectedUpper = 1;
  BoardOriginX = 100;
  BoardOriginY = 75;
  frmMain.shpBox.SetShape(2);
  frmMain.lblHandle(3).SetVisible(true);
  ShowGroupBox();
  // Left 10, top 4, right 60, bottom 35, moved by the origin.
  EXPECT_EQ(frmMain.shpBox.Left(), 110);
  EXPECT_EQ(frmMain.shpBox.Top(), 79);
  EXPECT_EQ(frmMain.shpBox.Width(), 50);
  EXPECT_EQ(frmMain.shpBox.Height(), 31);
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 0);
  EXPECT_TRUE(frmMain.shpBox.Visible());
  ExpectHandlesAround(110, 79, 160, 110, 1.0);
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(frmMain.lblHandle(i).Visible()) << i;
}

TEST_F(OverlaysTest, GroupOfOneIsItsOwnBox) {
  Add(ShapeObject(kRectangle, 3, 4, 5, 6));
  SelectedList[0] = 0;
  SelectedUpper = 0;
  ShowGroupBox();
  EXPECT_EQ(frmMain.shpBox.Left(), 3);
  EXPECT_EQ(frmMain.shpBox.Width(), 5);
}

TEST_F(OverlaysTest, GroupBoxWithoutAGroupChangesNothing) {
  frmMain.shpBox.SetVisible(false);
  ShowGroupBox();
  EXPECT_FALSE(frmMain.shpBox.Visible());
}

TEST_F(OverlaysTest, GroupBoxTakesTheFirstMemberAsItStandsEvenTurnedInsideOut) {
  Add(ShapeObject(kRectangle, 30, 40, -5, -6));
  SelectedList[0] = 0;
  SelectedUpper = 0;
  ShowGroupBox();
  EXPECT_EQ(frmMain.shpBox.Left(), 30);
  EXPECT_EQ(frmMain.shpBox.Width(), -5);
  EXPECT_EQ(frmMain.shpBox.Height(), -6);
}

TEST_F(OverlaysTest, GroupBeyondItsListOrTheArrayFaults) {
  for (int i = 0; i < 3; ++i) Add(ShapeObject(kRectangle, 3, 4, 5, 6));
  SelectedUpper = 256;
  EXPECT_EQ(FaultOf([] { ShowGroupBox(); }), 0) << "the last place of the list";
  SelectedUpper = 257;
  EXPECT_EQ(FaultOf([] { ShowGroupBox(); }), kOutOfBounds);
  SelectedUpper = 0;
  SelectedList[0] = 3;
  EXPECT_EQ(FaultOf([] { ShowGroupBox(); }), kOutOfBounds);
}

TEST_F(OverlaysTest, HideHandlesHidesBoxAndHandles) {
  ShowHandles(HoldAt(0));
  HideHandles();
  EXPECT_FALSE(frmMain.shpBox.Visible());
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(frmMain.lblHandle(i).Visible()) << i;
}

}  // namespace
}  // namespace tagwright
