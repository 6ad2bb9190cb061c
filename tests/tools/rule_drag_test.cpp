// Magnetic rules under the mouse: 125 twips are the strip along the edge, 200 the way back.
#include "tools/rule_drag.h"

#include "editing/rubber.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

class RuleDragTest : public HandTest {
 protected:
  RuleDragTest() { ProgSettings.MagneticZone = 2.0; }

  static void PressTwips(double x, double y, int button = kLeftButton) {
    frmMain.picBoard.UserMouseDown(button, 0, x, y);
  }
  static void ReleaseTwips(double x, double y) {
    frmMain.picBoard.UserMouseUp(kLeftButton, 0, x, y);
  }
  static std::string Zone() { return frmMain.sB1.PanelText(3); }
};

TEST_F(RuleDragTest, ThePressDecidesByTheStrip) {
  const struct {
    double x, y;
    bool grabs_x, grabs_y;
  } rows[] = {{124, 3000, true, false},  {125, 3000, false, false}, {3000, 124, false, true},
              {3000, 125, false, false}, {100, 100, true, true},    {-5, 3000, true, false}};
  for (const auto& row : rows) {
    PressTwips(row.x, row.y);
    EXPECT_EQ(DraggingRuleX, row.grabs_x) << row.x << " " << row.y;
    EXPECT_EQ(DraggingRuleY, row.grabs_y) << row.x << " " << row.y;
    ReleaseTwips(row.x, row.y);
  }
}

TEST_F(RuleDragTest, OnlyTheLeftButtonGrabs) {
  PressTwips(100, 3000, kRightButton);
  EXPECT_FALSE(DraggingRuleX);
}

TEST_F(RuleDragTest, AGrabKeepsTheSelectionAndStartsNoTool) {
  SelectObject(PutBox(10, 10));
  CurrentTool = kRectangle;
  PressTwips(100, 3000);
  EXPECT_TRUE(DraggingRuleX);
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(RubberBox, 0);
}

TEST_F(RuleDragTest, ThePanelShowsTheZone) {
  PressTwips(100, 3000);
  EXPECT_EQ(Zone(), "Magnetic Rule - Zone: 2.0 mm");
}

// No conversion: the figure of inches is the zone times 25.4.
TEST_F(RuleDragTest, InInchesTheZoneIsMultiplied) {
  UnitScale = 25.4;
  PressTwips(100, 3000);
  EXPECT_EQ(Zone(), "Magnetic Rule - Zone: 50.800in");
}

TEST_F(RuleDragTest, ARuleFollowsThePointerAcrossTheWholeBoard) {
  PressTwips(100, 3000);
  MoveTo(140, 60);
  EXPECT_TRUE(frmMain.lnMX.Visible());
  EXPECT_FALSE(frmMain.lnMY.Visible());
  EXPECT_NEAR(frmMain.lnMX.X1(), 140, 1e-9);
  EXPECT_NEAR(frmMain.lnMX.X2(), 140, 1e-9);
  EXPECT_EQ(frmMain.lnMX.Y1(), 0);
  EXPECT_NEAR(frmMain.lnMX.Y2(), 200, 1e-9);
  EXPECT_GT(frmMain.lnMX.Order(), frmMain.lblHold(0).Order());
  Release(140, 60);
  EXPECT_NEAR(MagRuleX, 40, 1e-9);
  EXPECT_TRUE(frmMain.lnMX.Visible());
  EXPECT_FALSE(DraggingRuleX);
}

TEST_F(RuleDragTest, FromTheCornerBothFollow) {
  PressTwips(60, 60);
  MoveTo(150, 100);
  Release(150, 100);
  EXPECT_NEAR(MagRuleX, 50, 1e-9);
  EXPECT_NEAR(MagRuleY, 25, 1e-9);
  EXPECT_NEAR(frmMain.lnMY.X2(), 300, 1e-9);
  EXPECT_EQ(frmMain.lnMY.X1(), 0);
  EXPECT_NEAR(frmMain.lnMY.Y1(), 100, 1e-9);
  EXPECT_NEAR(frmMain.lnMY.Y2(), 100, 1e-9);
}

// Where objects snap is where the rule is seen.
TEST_F(RuleDragTest, ScrollingAndZoomTakeARuleAlongWithTheLabel) {
  PressTwips(60, 60);
  MoveTo(150, 100);
  Release(150, 100);
  frmMain.hS1.SetValue(262);
  frmMain.vS1.SetValue(240);
  frmMain.cboZoom.SetListIndex(15);  // 200 %
  EXPECT_NEAR(frmMain.lnMX.X1(), MagRuleX + BoardOriginX, 1e-9);
  EXPECT_NEAR(frmMain.lnMX.X2(), SnapX(MagRuleX + BoardOriginX + 0.5), 1e-9);
  EXPECT_NEAR(frmMain.lnMY.Y1(), MagRuleY + BoardOriginY, 1e-9);
  EXPECT_NEAR(frmMain.lnMY.Y2(), SnapY(MagRuleY + BoardOriginY - 0.5), 1e-9);
  EXPECT_NEAR(frmMain.lnMX.Y2(), 100, 1e-9);
  EXPECT_NEAR(frmMain.lnMY.X2(), 150, 1e-9);
}

TEST_F(RuleDragTest, ARuleThatStandsIsGrabbedWithinHalfAUnit) {
  const struct {
    double x, y;
    bool grabs_x, grabs_y;
  } rows[] = {{149.6, 10, true, false},  {150.4, 10, true, false}, {149.5, 10, false, false},
              {150.5, 10, false, false}, {30, 100.4, false, true}, {30, 100.5, false, false}};
  for (const auto& row : rows) {
    SetRuleX(50, 2);
    SetRuleY(25, 2);
    Press(row.x, row.y);
    EXPECT_EQ(DraggingRuleX, row.grabs_x) << row.x;
    EXPECT_EQ(DraggingRuleY, row.grabs_y) << row.y;
    Release(row.x, row.y);
  }
}

TEST_F(RuleDragTest, WithAToolArmedAStandingRuleIsLeftAlone) {
  SetRuleX(50, 2);
  CurrentTool = kRectangle;
  Press(150, 10);
  EXPECT_FALSE(DraggingRuleX);
  EXPECT_EQ(RubberBox, kTrue);
}

TEST_F(RuleDragTest, ARuleThatIsRemovedIsNotThereToGrab) {
  SetRuleX(50, 2);
  frmMain.lnMX.SetVisible(false);
  Press(150, 10);
  EXPECT_FALSE(DraggingRuleX);
}

TEST_F(RuleDragTest, ARuleReleasedAtItsEdgeIsRemoved) {
  for (const double twips : {199.0, 200.0}) {
    SetRuleX(50, 2);
    frmMain.sB1.SetPanelText(3, "zone");
    Press(150, 10);
    ReleaseTwips(twips, 3000);
    const bool removed = twips < 200;
    EXPECT_EQ(frmMain.lnMX.Visible(), !removed) << twips;
    EXPECT_EQ(MagRuleX == -1.0, removed) << twips;
    EXPECT_EQ(Zone().empty(), removed) << twips;
  }
}

TEST_F(RuleDragTest, TheHorizontalRuleGoesBackToTheTop) {
  SetRuleY(25, 2);
  Press(30, 100);
  ReleaseTwips(3000, 199);
  EXPECT_FALSE(frmMain.lnMY.Visible());
  EXPECT_EQ(MagRuleY, -1.0);
}

// The release of a rule is a release with the field tool as well.
TEST_F(RuleDragTest, WithTheFieldToolARulesReleasePlacesAField) {
  CurrentTool = kDataField;
  frmMain.lstFields.AddItem("Name");
  frmMain.lstFields.SetListIndex(0);
  PressTwips(100, 3000);
  Release(150, 100);
  EXPECT_NEAR(MagRuleX, 50, 1e-9);
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(RuleDragTest, ResetLetsGo) {
  DraggingRuleX = true;
  DraggingRuleY = true;
  ResetRuleDrag();
  EXPECT_FALSE(DraggingRuleX);
  EXPECT_FALSE(DraggingRuleY);
}

}  // namespace
}  // namespace tagwright
