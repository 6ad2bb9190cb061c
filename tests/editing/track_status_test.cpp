#include "editing/track_status.h"

#include "document/objects.h"
#include "editing/pointer.h"
#include "forms/frmMain.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

// The label's corner stands at 100, 50 on a board of 300 by 200 millimetres; the hit area at 110,
// 60, so 10 mm inside the label both ways. 1440 twips are 25.4 mm.
class TrackStatusTest : public ProgramTest {
 protected:
  TrackStatusTest() {
    ReadyBoard(300, 200);
    BoardOriginX = 100;
    BoardOriginY = 50;
    frmMain.lblHold(0).Move(110, 60, 20, 10);
  }
};

TEST_F(TrackStatusTest, ShowsThePlaceOnTheLabelToATenthOfAMillimetre) {
  TrackStatus(frmMain.lblHold(0), 1440, 720);  // 25.4 and 12.7 mm inside the hit area
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X:35.40 - Y:22.70mm");
}

// 35.44 mm become 35.4 before the inches are worked out: 1.3937, and not 1.3953.
TEST_F(TrackStatusTest, RoundsInMillimetresBeforeItConverts) {
  UnitScale = 25.4;
  TrackStatus(frmMain.lblHold(0), 25.44 * kTwipsPerMillimetre, 3.96 * kTwipsPerMillimetre);
  // y: 13.96 -> 14.0 / 25.4 = 0.5512
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X:1.39 - Y:0.55in");
}

TEST_F(TrackStatusTest, TheRoundingOfMillimetresShowsInInches) {
  UnitScale = 25.4;
  // 10 + 2.56 = 12.56 -> 12.6 / 25.4 = 0.49606 "0.50", where 12.56 / 25.4 = 0.49449 is "0.49".
  TrackStatus(frmMain.lblHold(0), 2.56 * kTwipsPerMillimetre, 0);
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X:0.50 - Y:0.39in");
}

TEST_F(TrackStatusTest, CrossHairsGoThroughThePointerAcrossTheBoard) {
  frmMain.mnuOptXHair.SetChecked(true);
  TrackStatus(frmMain.lblHold(0), 1440, 720);
  EXPECT_DOUBLE_EQ(frmMain.HairX.X1(), 135.4);
  EXPECT_DOUBLE_EQ(frmMain.HairX.X2(), 135.4);
  EXPECT_EQ(frmMain.HairX.Y1(), 0);
  EXPECT_DOUBLE_EQ(frmMain.HairX.Y2(), 200);
  EXPECT_EQ(frmMain.HairY.X1(), 0);
  EXPECT_DOUBLE_EQ(frmMain.HairY.X2(), 300);
  EXPECT_DOUBLE_EQ(frmMain.HairY.Y1(), 72.7);
  EXPECT_DOUBLE_EQ(frmMain.HairY.Y2(), 72.7);
  EXPECT_DOUBLE_EQ(HairPositionX, 35.4);
  EXPECT_DOUBLE_EQ(HairPositionY, 22.7);
}

TEST_F(TrackStatusTest, UncheckedCrossHairsStay) {
  frmMain.HairX.SetX1(7);
  TrackStatus(frmMain.lblHold(0), 1440, 720);
  EXPECT_EQ(frmMain.HairX.X1(), 7);
}

TEST_F(TrackStatusTest, PositionFieldsFollowTheSelectedObject) {
  TrackStatus(frmMain.lblHold(0), 0, 0);
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "0.00");  // nothing is selected
  GrowObjects();
  ObjectAt(0).Left = 10;
  ObjectAt(0).Top = 10;
  SelectedObject = 0;
  TrackStatus(frmMain.lblHold(0), 0, 0);
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "10.00");
  EXPECT_EQ(frmMain.txtDSize(1).Text(), "10.00");
  UnitScale = 25.4;
  TrackStatus(frmMain.lblHold(0), 0, 0);
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "0.39");  // 10 / 25.4 = 0.3937
}

TEST_F(TrackStatusTest, TheBoardsPointerReturnsUnlessItIsACustomOne) {
  CursorShape = 2;
  RestorePointer();
  EXPECT_EQ(frmMain.MousePointer(), 2);
  frmMain.SetMousePointer(99);
  RestorePointer();
  EXPECT_EQ(frmMain.MousePointer(), 99);
}

}  // namespace
}  // namespace tagwright
