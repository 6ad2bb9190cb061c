#include "editing/drag.h"

#include <limits>

#include "editing/editing_support.h"
#include "editing/geometry.h"
#include "editing/rubber.h"

namespace tagwright {
namespace {

class DragTest : public EditingTest {
 protected:
  ObjectRecord LineObject(double width, double height) {
    return ShapeObject(kLine, 10, 10, width, height);
  }

  // Selects a text of 20 points at 10, 10, as high as 8.
  void SelectAbcd(double width) {
    ObjectRecord text = TextObject("Abcd", 10, 10);
    text.FontSize = 20;
    text.Width = width;
    text.Height = 8;
    SelectObject(Put(text));
  }

  static double FrameRight() { return frmMain.shpBox.Left() + frmMain.shpBox.Width(); }
};

// --- snapping -----------------------------------------------------------------------------------

// The rule at 50 of the label stands at 150 of the board.
TEST_F(DragTest, APlaceSnapsToTheRuleOnTheLabel) {
  SetRuleX(50, 1);
  EXPECT_EQ(SnapX(150.9), 150);
  EXPECT_TRUE(SnapHit);
  SetRuleY(20, 1);
  EXPECT_EQ(SnapY(94.1), 95);
}

TEST_F(DragTest, APlaceOutsideTheZoneStaysAndLeavesTheMarkAlone) {
  SetRuleX(50, 1);
  EXPECT_EQ(SnapX(151), 151);
  EXPECT_FALSE(SnapHit);
  SnapHit = true;
  EXPECT_EQ(SnapX(151), 151);
  EXPECT_TRUE(SnapHit);
}

TEST_F(DragTest, ARuleIsInForceWhileItsLineIsVisible) {
  SetRuleX(50, 1);
  frmMain.lnMX.SetVisible(false);
  EXPECT_EQ(SnapX(150), 150);
  EXPECT_FALSE(SnapHit);
  EXPECT_EQ(SnapY(94.1), 94.1);
}

// --- the rubber box -----------------------------------------------------------------------------

TEST_F(DragTest, TheRubberBoxHasOneOfFourAnchors) {
  AnchorX = 110;
  AnchorY = 85;
  AnchorRight = 130;
  AnchorBottom = 95;
  const struct {
    int corner;
    double left, top, width, height;
  } rows[] = {{0, 110, 85, 10, 5}, {1, 120, 90, 10, 5}, {2, 110, 90, 10, 5}, {3, 120, 85, 10, 5}};
  for (const auto& row : rows) {
    TrackRubberBox(120, 90, row.corner);
    ExpectFrame(row.left, row.top, row.width, row.height);
  }
}

TEST_F(DragTest, TheRubberBoxShowsItsSizeInTheUsersUnit) {
  AnchorX = 110;
  AnchorY = 85;
  TrackRubberBox(84.6, 87.54, 0);
  EXPECT_EQ(frmMain.txtDSize(2).Text(), "25.40");
  EXPECT_EQ(frmMain.txtDSize(3).Text(), "2.54");
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 25.40 Height: 2.54");
  UnitScale = 25.4;
  TrackRubberBox(84.6, 87.54, 0);
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 1.00 Height: 0.10");
}

TEST_F(DragTest, TheRubberLineIsLevelOrUpright) {
  AnchorX = 110;
  AnchorY = 85;
  TrackRubberLine(120, 95);
  EXPECT_EQ(frmMain.shpLine.X2(), 120);
  EXPECT_EQ(frmMain.shpLine.Y2(), 85);
  TrackRubberLine(120, 95.1);
  EXPECT_EQ(frmMain.shpLine.X2(), 110);
  EXPECT_EQ(frmMain.shpLine.Y2(), 95.1);
}

TEST_F(DragTest, FramesFollowTheKind) {
  const struct {
    std::int16_t kind;
    int shape;
  } rows[] = {{kBarcode, 0},   {kPicture, 0},          {kText, 0},    {kLine, 0},
              {kRectangle, 0}, {kRoundedRectangle, 4}, {kEllipse, 2}, {kDataField, 0}};
  for (const auto& row : rows) EXPECT_EQ(FrameShapeOf(row.kind), row.shape) << row.kind;
}

// --- resizing -----------------------------------------------------------------------------------

TEST_F(DragTest, EachHandleMovesItsCornerAndTheOppositeOneStays) {
  const struct {
    int handle;
    double left, top, width, height;
  } rows[] = {{0, 14, 13, 16, 7}, {1, 10, 13, 24, 7}, {2, 14, 10, 16, 13}, {3, 10, 10, 24, 13}};
  for (const auto& row : rows) {
    ObjectUB = -1;
    SelectObject(PutBox(10, 10));
    DragHandle(row.handle, 4, 3);
    ExpectRecord(0, row.left, row.top, row.width, row.height);
  }
}

TEST_F(DragTest, PastTheOppositeCornerTheBoxFlips) {
  const struct {
    int handle;
    double dx, dy, left, top;
  } rows[] = {{0, 30, 20, 30, 20}, {1, -30, 20, 0, 20}, {2, 30, -20, 30, 0}, {3, -30, -20, 0, 0}};
  for (const auto& row : rows) {
    ObjectUB = -1;
    SelectObject(PutBox(10, 10));
    DragHandle(row.handle, row.dx, row.dy);
    ExpectRecord(0, row.left, row.top, 10, 10);
  }
}

TEST_F(DragTest, WhileAHandleIsDraggedAllAreHiddenAndTheFrameIsSolid) {
  SelectObject(PutBox(10, 10));
  const auto redraws = RedrawCount;
  const Label& handle = frmMain.lblHandle(3);
  Press(handle.Left() + 0.5, handle.Top() + 0.5);
  EXPECT_EQ(HandlesShown(), "0123");
  MoveTo(handle.Left() + 3, handle.Top() + 2);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_EQ(frmMain.shpBox.BorderStyle(), 1);
  ExpectRecord(0, 10, 10, 20, 10);  // the record waits
  EXPECT_EQ(RedrawCount, redraws);
  MoveTo(handle.Left() + 1, handle.Top() + 1);  // the hidden handle goes on receiving them
  Release(150, 110);
  EXPECT_EQ(HandlesShown(), "0123");
  EXPECT_EQ(frmMain.shpBox.BorderStyle(), 3);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_FALSE(Dragging);
}

TEST_F(DragTest, AResizeSetsTheDirtyFlagAndLeavesUndoAlone) {
  SelectObject(PutBox(10, 10));
  SaveUndoDelete();
  DragHandle(3, 4, 3);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(UndoUpper, 0);
  EXPECT_TRUE(frmMain.mnuUndo.Enabled());
}

TEST_F(DragTest, AResizeRemembersWidthInWholeUnitsHalvesToTheEvenOne) {
  const struct {
    double width;
    int start;
  } rows[] = {{20.4, 20}, {20.5, 20}, {21.5, 22}, {0.5, 0}, {0.51, 1}};
  for (const auto& row : rows) {
    ObjectUB = -1;
    SelectObject(PutBox(10, 10, row.width, 7.25));
    const Label& handle = frmMain.lblHandle(3);
    Press(handle.Left() + 0.5, handle.Top() + 0.5);
    EXPECT_EQ(StartWidth, row.start) << row.width;
    EXPECT_EQ(StartHeight, 7.25);
    Release(0, 0);
  }
}

TEST_F(DragTest, TheRightButtonResizesNothing) {
  SelectObject(PutBox(10, 10));
  Press(frmMain.lblHandle(3).Left() + 0.5, frmMain.lblHandle(3).Top() + 0.5, kRightButton);
  EXPECT_FALSE(Dragging);
  MoveTo(160, 120);
  Release(160, 120, kRightButton);
  ExpectRecord(0, 10, 10, 20, 10);
}

TEST_F(DragTest, APostNetBarcodeCannotBeResizedAndOthersCan) {
  for (const std::int16_t format : {11, 12, 13}) {
    ObjectUB = -1;
    ObjectRecord barcode = ShapeObject(kBarcode, 10, 10, 20, 10);
    barcode.Param = format;
    SelectObject(Put(barcode));
    DragHandle(3, 4, 3);
    EXPECT_NEAR(ObjectAt(0).Width, format == 12 ? 20 : 24, 1e-4) << format;
  }
  ObjectUB = -1;
  ObjectRecord shape = ShapeObject(kRectangle, 10, 10, 20, 10);
  shape.Param = 12;
  SelectObject(Put(shape));
  DragHandle(3, 4, 3);
  EXPECT_NEAR(ObjectAt(0).Width, 24, 1e-4);
}

TEST_F(DragTest, HandlesHaveSizingPointersUnlessACustomOneShows) {
  SelectObject(PutBox(10, 10));
  const int pointers[] = {8, 6, 6, 8};
  for (int i = 0; i < 4; ++i) {
    lblHandle_MouseMove(i, 0, 0, 10, 10);
    EXPECT_EQ(frmMain.MousePointer(), pointers[i]) << i;
  }
  frmMain.SetMousePointer(99);
  lblHandle_MouseMove(1, 0, 0, 10, 10);
  EXPECT_EQ(frmMain.MousePointer(), 99);
}

TEST_F(DragTest, OverAHandleTheStatusFollowsThePointer) {
  SelectObject(PutBox(10, 10));
  frmMain.lblHandle(1).Move(120, 80);
  lblHandle_MouseMove(1, 0, 0, 0, 0);
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X:20.00 - Y:5.00mm");
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "10.00");
}

TEST_F(DragTest, AResizeSnapsTheBoxWithoutStretchingIt) {
  SelectObject(PutBox(10, 10));
  SetRuleX(35, 1);
  DragHandle(3, 4.5, 0);  // to a right edge of 34.5: the rule takes it, and the left edge follows
  ExpectRecord(0, 10.5, 10, 24.5, 10);
}

TEST_F(DragTest, AResizeSnapsAcrossAndDownByItself) {
  SelectObject(PutBox(10, 10));
  SetRuleX(10.5, 1);
  SetRuleY(25.5, 1);
  DragHandle(3, 10, 5);
  ExpectRecord(0, 10.5, 10.5, 30, 15);
}

TEST_F(DragTest, AtAnotherZoomHandlesStayAMillimetreAway) {
  ZoomFactor = 2;
  ReadyBoard();
  RedrawBoard();
  SelectObject(PutBox(10, 10));
  const Label& handle = frmMain.lblHandle(3);
  EXPECT_NEAR(handle.Left() - FrameRight(), 0.5, 1e-9);
  DragHandle(3, 4, 3);
  ExpectRecord(0, 10, 10, 24, 13);
}

// --- lines --------------------------------------------------------------------------------------

TEST_F(DragTest, ALyingLinesFrameStaysHalfAMillimetreThickAndItsHandleOnItsAxis) {
  SelectObject(Put(LineObject(20, 3)));
  const Label& handle = frmMain.lblHandle(3);
  const double top = handle.Top();
  Press(handle.Left() + 0.5, handle.Top() + 0.5);
  MoveTo(handle.Left() + 5.5, handle.Top() + 8.5);
  EXPECT_EQ(handle.Top(), top);
  ExpectFrame(110, 85, 25, 0.5);
  Release(200, 100);
  ExpectRecord(0, 10, 10, 25, 3);
}

TEST_F(DragTest, AStandingLineAndOneOfEqualSidesMoveDownwardOnly) {
  for (const double width : {3.0, 20.0}) {
    ObjectUB = -1;
    SelectObject(Put(LineObject(width, 20)));
    DragHandle(3, 9, 5);
    ExpectRecord(0, 10, 10, width, 25);
  }
}

// As thick as a line is that was drawn, not as its frame, and that at every drag.
TEST_F(DragTest, ALineKeepsItsThicknessWhenItIsResized) {
  SelectObject(Put(LineObject(20, 0.1)));
  DragHandle(3, 5, 0);
  ExpectRecord(0, 10, 10, 25, 0.1);
  DragHandle(0, -3, 0);
  ExpectRecord(0, 7, 10, 28, 0.1);
  ObjectUB = -1;
  SelectObject(Put(LineObject(0.1, 20)));
  DragHandle(3, 0, 5);
  ExpectRecord(0, 10, 10, 0.1, 25);
}

// Or it would lie from there on.
TEST_F(DragTest, AThickLineThatIsDraggedShorterThanItsThicknessStandsStill) {
  SelectObject(Put(LineObject(6, 20)));
  DragHandle(3, 0, -16);
  ExpectRecord(0, 10, 10, 0.5, 4);
  ObjectUB = -1;
  SelectObject(Put(LineObject(20, 6)));
  DragHandle(3, -16, 0);
  ExpectRecord(0, 10, 10, 4, 0.5);
}

TEST_F(DragTest, AThinLinesFrameIsHalfAMillimetreOfScreen) {
  ZoomFactor = 2;
  ReadyBoard();
  RedrawBoard();
  SelectObject(Put(LineObject(20, 3)));
  const Label& handle = frmMain.lblHandle(3);
  Press(handle.Left() + 0.5, handle.Top() + 0.5);
  MoveTo(handle.Left() + 5.5, handle.Top() + 0.5);
  EXPECT_NEAR(frmMain.shpBox.Height(), 0.25, 1e-9);
  Release(handle.Left() + 5.5, handle.Top() + 0.5);
}

// --- texts --------------------------------------------------------------------------------------

// "Abcd" at 20 points on a hit area of 20 units; dragged to 30, half as wide again.
TEST_F(DragTest, ATextTakesItsFontFromTheWidth) {
  SelectAbcd(20);
  const auto redraws = RedrawCount;
  DragHandle(3, 10, 5);
  EXPECT_EQ(ObjectAt(0).FontSize, 30);
  EXPECT_EQ(frmMain.cboSize.Text(), "30");
  EXPECT_NEAR(ObjectAt(0).Width, 30, 1e-4);  // as dragged, until it is deselected
  EXPECT_NEAR(ObjectAt(0).Height, 8, 1e-9);
  const Label& hold = frmMain.lblHold(0);
  EXPECT_EQ(hold.Caption(), "Abcd");
  EXPECT_FALSE(hold.AutoSize());
  EXPECT_EQ(hold.Font().Size, 30);
  const double fitted = 4 * 15 * 25.4 / 72;  // half of 30 points a character
  EXPECT_NEAR(hold.Width(), fitted, 1e-6);
  ExpectFrame(110, 85, fitted, 33 * 25.4 / 72);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(HandlesShown(), "0123");
  DeselectObject();
  EXPECT_NEAR(ObjectAt(0).Width, fitted, 1e-6);
}

TEST_F(DragTest, DraggedOnlyDownwardATextKeepsItsSize) {
  SelectAbcd(20);
  DragHandle(3, 0, 25);
  EXPECT_EQ(ObjectAt(0).FontSize, 20);
}

// What it began with is remembered in whole units, so a width that is not whole counts as a change:
// 10.6 of 11 are less, while 10.4 of 10 are not a point more.
TEST_F(DragTest, DraggedOnlyDownwardOrNotAtAllATextOfABrokenWidthMayLoseAPoint) {
  const struct {
    double width, dy, size;
  } rows[] = {{10.6, 25, 11}, {10.6, 0, 11}, {10.4, 25, 12}, {10.4, 0, 12}};
  for (const auto& row : rows) {
    ObjectUB = -1;
    DropSelection();
    ObjectRecord text = TextObject("Abcd", 10, 10);
    text.FontSize = 12;
    text.Width = row.width;
    text.Height = 8;
    SelectObject(Put(text));
    const Label& handle = frmMain.lblHandle(3);
    const double x = handle.Left() + 0.5, y = handle.Top() + 0.5;
    Press(x, y);
    if (row.dy > 0) MoveTo(x, y + row.dy);
    Release(x, y + row.dy);
    EXPECT_EQ(ObjectAt(0).FontSize, row.size) << row.width << " " << row.dy;
  }
}

TEST_F(DragTest, AVerySmallTextHasOnePoint) {
  SelectAbcd(20);
  DragHandle(3, -19.5, 0);
  EXPECT_EQ(ObjectAt(0).FontSize, 1);
}

// The ratio of a width that rounds to 0 cannot be formed: the event ends there.
TEST_F(DragTest, ATextThatBeganAtNoWidthKeepsItsSizeAndPlace) {
  for (const int handle : {0, 3}) {
    ObjectUB = -1;
    SelectAbcd(0.4);
    const ObjectRecord before = ObjectAt(0);
    DragHandle(handle, 30, 5);
    EXPECT_EQ(ObjectAt(0), before) << handle;
    ExpectFrame(110, 85, 0.4, 8);
    EXPECT_EQ(frmMain.shpBox.BorderStyle(), 3) << handle;
    EXPECT_EQ(HandlesShown(), "0123") << handle;
    EXPECT_FALSE(Dragging) << handle;
  }
  EXPECT_TRUE(faults.empty());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DragTest, WithTheMarkerFileTheRatioThatCannotBeFormedIsTold) {
  AppFolder = folder.File("");
  WriteFile(AppFolder + "tracemark.flg", "");
  SelectAbcd(0.4);
  DragHandle(3, 30, 0);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text.substr(0, 5), "11 - ");
}

TEST_F(DragTest, OnlyTheMarkerTellsOfAHandleAroundNothing) {
  SelectAbcd(20);
  SelectedObject = 7;
  AppFolder = folder.File("");
  lblHandle_MouseDown(3, kLeftButton, 0, 0, 0);
  EXPECT_TRUE(dialogs.messages.empty());
  WriteFile(AppFolder + "tracemark.flg", "");
  lblHandle_MouseDown(3, kLeftButton, 0, 0, 0);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "9 - Subscript out of range");
  EXPECT_FALSE(Dragging);
}

// It takes its size from the box and not from its font.
TEST_F(DragTest, AFieldShownAsABarcodeGrowsFromNoWidth) {
  ObjectRecord field = Field(0, 100, "Abcd");
  field.Left = 10;
  field.Top = 10;
  field.Height = 8;
  SelectObject(Put(field));
  DragHandle(3, 30, 0);
  EXPECT_NEAR(ObjectAt(0).Width, 30, 1e-4);
  EXPECT_EQ(ObjectAt(0).FontSize, field.FontSize);
}

// A width that no whole number holds leaves the start of the last drag.
TEST_F(DragTest, AFontThatWouldBeEndlessStaysAsItIs) {
  SelectAbcd(1e308);
  StartWidth = 2;
  lblHandle_MouseDown(3, kLeftButton, 0, 0, 0);
  lblHandle_MouseUp(3, kLeftButton, 0, 0, 0);
  EXPECT_EQ(ObjectAt(0).FontSize, 20);
  EXPECT_TRUE(faults.empty());
}

TEST_F(DragTest, ADataFieldTakesTheFittedSizeOneShownAsABarcodeDoesNot) {
  for (const int format : {99, 100}) {
    ObjectUB = -1;
    ObjectRecord field = Field(0, format, "Abcd");
    field.Left = 10;
    field.Top = 10;
    field.FontSize = 20;
    field.Width = 20;
    field.Height = 8;
    SelectObject(Put(field));
    const auto redraws = RedrawCount;
    DragHandle(3, 10, 0);
    EXPECT_EQ(ObjectAt(0).FontSize, 30);
    const double fitted = 4 * 15 * 25.4 / 72;
    EXPECT_NEAR(ObjectAt(0).Width, format == 99 ? fitted : 30, 1e-4) << format;
    EXPECT_NEAR(ObjectAt(0).Height, format == 99 ? 33 * 25.4 / 72 : 8, 1e-4) << format;
    EXPECT_EQ(RedrawCount, redraws + 1);
    EXPECT_EQ(HoldAt(0).Caption(), "") << "the painter shows it, and that once";
    ExpectFrame(110, 85, ObjectAt(0).Width, ObjectAt(0).Height);
    EXPECT_EQ(HandlesShown(), "0123");
  }
}

// --- what a key does meanwhile ------------------------------------------------------------------

TEST_F(DragTest, AnObjectDeletedUnderTheHandleIsLeftAlone) {
  PutBox(40, 10);
  SelectObject(PutBox(10, 10));
  const Label& handle = frmMain.lblHandle(3);
  Press(handle.Left() + 0.5, handle.Top() + 0.5);
  MoveTo(150, 110);
  KeyDown(46);
  MoveTo(151, 111);
  Release(152, 112);
  EXPECT_EQ(ObjectUB, 0);
  ExpectRecord(0, 40, 10, 20, 10);
  EXPECT_FALSE(Dragging);
  EXPECT_TRUE(faults.empty());
}

TEST_F(DragTest, AFrameThatIsNoNumberLeavesPlaceAndSize) {
  SelectObject(PutBox(10, 10));
  lblHandle_MouseDown(3, kLeftButton, 0, 0, 0);
  frmMain.shpBox.SetLeft(std::numeric_limits<double>::quiet_NaN());
  frmMain.shpBox.SetWidth(std::numeric_limits<double>::infinity());
  frmMain.shpBox.SetHeight(25);
  lblHandle_MouseUp(3, kLeftButton, 0, 0, 0);
  ExpectRecord(0, 10, 10, 20, 25);
}

// A size that a file can hold and no control takes.
TEST_F(DragTest, ANegativeSizeIsDraggedWithoutAFault) {
  SelectObject(Put(ShapeObject(kRectangle, 10, 10, -20, -10)));
  DragHandle(3, 4, 3);
  EXPECT_TRUE(faults.empty());
  EXPECT_GE(ObjectAt(0).Width, 0);
}

}  // namespace
}  // namespace tagwright
