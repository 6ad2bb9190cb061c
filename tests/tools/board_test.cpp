#include "tools/board.h"

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/files/files.h"
#include "support/test_support.h"
#include "tools/view.h"

namespace tagwright {
namespace {

// The label's corner stands at 100, 50 on a board of 300 by 200 millimetres.
class BoardTest : public ProgramTest {
 protected:
  BoardTest() {
    ReadyBoard(300, 200);
    BoardOriginX = 100;
    BoardOriginY = 50;
  }
};

TEST_F(BoardTest, StatusBarShowsThePlaceOnTheLabel) {
  picBoard_MouseMove(0, 0, 112.346, 49);
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X: 12.35 - Y:-1.00mm");
}

TEST_F(BoardTest, StatusBarShowsInches) {
  UnitScale = 25.4;
  picBoard_MouseMove(0, 0, 150.8, 62.7);
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X: 2.00 - Y:0.50in");
}

TEST_F(BoardTest, CrossHairsReachFiveBoardsFarInFrontAndShown) {
  frmMain.mnuOptXHair.SetChecked(true);
  frmMain.HairX.SetVisible(false);
  frmMain.HairY.SetVisible(false);
  frmMain.lblHold(0).ZOrder();
  picBoard_MouseMove(0, 0, 120, 70);
  EXPECT_EQ(frmMain.HairX.X1(), 120);
  EXPECT_EQ(frmMain.HairX.X2(), 120);
  EXPECT_EQ(frmMain.HairX.Y1(), 0);
  EXPECT_DOUBLE_EQ(frmMain.HairX.Y2(), 1000);
  EXPECT_EQ(frmMain.HairY.Y1(), 70);
  EXPECT_EQ(frmMain.HairY.Y2(), 70);
  EXPECT_EQ(frmMain.HairY.X1(), 0);
  EXPECT_DOUBLE_EQ(frmMain.HairY.X2(), 1500);
  EXPECT_TRUE(frmMain.HairX.Visible());
  EXPECT_TRUE(frmMain.HairY.Visible());
  EXPECT_GT(frmMain.HairX.Order(), frmMain.lblHold(0).Order());
  EXPECT_EQ(HairPositionX, 20);
  EXPECT_EQ(HairPositionY, 20);
}

// chkXHair hides the lines, but the menu entry decides at the next move.
TEST_F(BoardTest, ACheckedMenuEntryBringsHairsBackThatTheBoxHasHidden) {
  frmMain.chkXHair.Events().Click = chkXHair_Click;
  frmMain.mnuOptXHair.SetChecked(true);
  frmMain.chkXHair.SetValue(0);
  ASSERT_FALSE(frmMain.HairX.Visible());
  picBoard_MouseMove(0, 0, 120, 70);
  EXPECT_TRUE(frmMain.HairX.Visible());
  EXPECT_EQ(frmMain.chkXHair.Value(), 0);
}

TEST_F(BoardTest, UncheckedCrossHairsStayHidden) {
  frmMain.mnuOptXHair.SetChecked(false);
  frmMain.HairX.SetVisible(false);
  picBoard_MouseMove(0, 0, 120, 70);
  EXPECT_FALSE(frmMain.HairX.Visible());
}

TEST_F(BoardTest, TheToolsPointerReturnsUnlessItIsACustomOne) {
  CursorShape = 3;
  picBoard_MouseMove(0, 0, 0, 0);
  EXPECT_EQ(frmMain.MousePointer(), 3);
  frmMain.SetMousePointer(99);
  picBoard_MouseMove(0, 0, 0, 0);
  EXPECT_EQ(frmMain.MousePointer(), 99);
}

TEST_F(BoardTest, OnlyTheMarkerTellsOfAFaultAndTheMouseGoesOnAfterIt) {
  CursorShape = 50;  // no pointer
  EXPECT_NO_THROW(picBoard_MouseMove(0, 0, 100, 50));
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X: 0.00 - Y:0.00mm");
  EXPECT_TRUE(dialogs.messages.empty());
  WriteFile(AppFolder + "tracemark.flg", "");
  picBoard_MouseMove(0, 0, 110, 50);
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X: 10.00 - Y:0.00mm");
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "380 - Invalid property value");
}

}  // namespace
}  // namespace tagwright
