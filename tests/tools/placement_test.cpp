// Every tool, from its button over the gesture to the record, by real presses on the board.
#include "tools/placement.h"

#include <cmath>

#include "document/project_load.h"
#include "document/project_save.h"
#include "editing/rubber.h"
#include "tools/hand_fixture.h"
#include "tools/picture_tool.h"

namespace tagwright {
namespace {

class PlacementTest : public HandTest {
 protected:
  PlacementTest() {
    frmMain.txtBCodeData.SetText("12345");
    frmMain.cboBCode.SetListIndex(2);
    DirtyFlag = kFalse;
  }

  std::string PictureFile(const std::string& name, const std::string& content) {
    return Made(name, content);
  }

  void ChoosePicture(const std::string& path) {
    dialogs.files.push_back(path);
    frmMain.cmdTools(2).Press();
  }

  static const ObjectRecord& Newest() { return ObjectAt(ObjectUB); }

  static void ExpectDisarmed() {
    EXPECT_EQ(CurrentTool, 0);
    EXPECT_EQ(CursorShape, 0);
    EXPECT_EQ(frmMain.MousePointer(), 0);
    EXPECT_EQ(RubberBox, 0);
    EXPECT_EQ(RubberLine, 0);
    EXPECT_FALSE(frmMain.shpLine.Visible());
  }

  static void ExpectSelected(int index) {
    EXPECT_EQ(SelectedObject, index);
    EXPECT_EQ(HandlesShown(), "0123");
    EXPECT_TRUE(frmMain.shpBox.Visible());
    EXPECT_EQ(frmMain.shpBox.BorderStyle(), 3);
  }
};

// --- arming -------------------------------------------------------------------------------------

TEST_F(PlacementTest, EveryToolHasItsNumberAndPointer) {
  const struct {
    CommandButton* button;
    int tool, pointer;
  } rows[] = {
      {&frmMain.cmdLine, 10, 2},      {&frmMain.cmdRect, 11, 2},
      {&frmMain.cmdRoundRect, 12, 2}, {&frmMain.cmdEllipse, 13, 2},
      {&frmMain.cmdBCode, 1, 99},     {&frmMain.cmdTools(3), 3, 3},
      {&frmMain.cmdTools(5), 30, 99}, {&frmMain.cmdTools(6), 31, 99},
  };
  const auto redraws = RedrawCount;
  for (const auto& row : rows) {
    row.button->Press();
    EXPECT_EQ(CurrentTool, row.tool) << row.button->Name();
    EXPECT_EQ(CursorShape, row.pointer) << row.button->Name();
  }
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(ObjectUB, -1);
}

TEST_F(PlacementTest, ToolsWithAPointerOfTheirOwnShowIt) {
  frmMain.cmdTools(5).Press();
  EXPECT_EQ(frmMain.MousePointer(), 99);
  EXPECT_EQ(frmMain.MouseIcon(), frmMain.Image3.Icon());
  frmMain.cmdTools(6).Press();
  EXPECT_EQ(frmMain.MouseIcon(), frmMain.Image4.Icon());
  frmMain.cmdBCode.Press();
  EXPECT_EQ(frmMain.MouseIcon(), frmMain.Image5.Icon());
}

TEST_F(PlacementTest, TheBarcodeToolForgetsTheSelection) {
  SelectObject(PutBox(10, 10));
  EnableSelectionCommands(false);
  frmMain.cmdBCode.Press();
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_FALSE(frmMain.mnuEditCut.Enabled());
}

// --- the press ----------------------------------------------------------------------------------

TEST_F(PlacementTest, APressEndsTheEntryAndHidesTheFlyout) {
  TextEntryActive = true;
  RedrawSkip = 4;
  frmMain.picMag.SetVisible(true);
  Press(150, 100, kRightButton);
  EXPECT_FALSE(TextEntryActive);
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_FALSE(frmMain.picMag.Visible());
}

TEST_F(PlacementTest, ALeftPressEndsTheSelection) {
  SelectObject(PutBox(10, 10));
  Click(200, 150);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(HandlesShown(), "");
}

TEST_F(PlacementTest, ALeftPressDropsTheGroup) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  EnableSelectionCommands(true);
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  Click(200, 150);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  for (const Menu* entry : {&frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuArrAlign}) {
    EXPECT_FALSE(entry->Enabled()) << entry->Name();
  }
}

// The tool's own selection begins when its object is there.
TEST_F(PlacementTest, AToolButtonDropsTheGroupToo) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  EnableSelectionCommands(true);
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  frmMain.cmdTools(3).Press();
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  EXPECT_FALSE(frmMain.mnuEditCopy.Enabled());
}

TEST_F(PlacementTest, AGestureWithoutAnObjectEnablesNoCommands) {
  frmMain.cmdBCode.Press();
  ClickOnLabel(10, 10);
  EXPECT_FALSE(frmMain.mnuEditCopy.Enabled());
  frmMain.cmdTools(5).Press();
  ClickOnLabel(10, 10);
  EXPECT_FALSE(frmMain.mnuEditCopy.Enabled());
}

TEST_F(PlacementTest, WhileAGroupIsBuiltThePressKeepsItAndStartsNoTool) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  CurrentTool = kRectangle;
  KeyDown(17, kCtrl);
  Press(200, 150, kLeftButton, kCtrl);
  EXPECT_EQ(SelectedUpper, 1);
  EXPECT_EQ(RubberBox, 0);
}

TEST_F(PlacementTest, TheRightButtonKeepsTheSelectionAndStartsNoTool) {
  SelectObject(PutBox(10, 10));
  CurrentTool = kRectangle;
  Press(200, 150, kRightButton);
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(RubberBox, 0);
}

TEST_F(PlacementTest, TheRubberBoxHasTheShapeOfTheTool) {
  const std::pair<std::int16_t, int> rows[] = {{1, 0},  {2, 0},  {11, 0}, {12, 4},
                                               {13, 2}, {30, 0}, {31, 0}};
  for (const auto& [tool, shape] : rows) {
    CurrentTool = tool;
    Press(150, 100);
    EXPECT_EQ(RubberBox, kTrue) << tool;
    EXPECT_EQ(frmMain.shpBox.ShapeCode(), shape) << tool;
    ExpectFrame(150, 100, 0, 0);
    EXPECT_TRUE(frmMain.shpBox.Visible()) << tool;
    EXPECT_EQ(SizeFields().substr(0, 12), "50.00 25.00 ") << tool;
    RubberBox = kFalse;
    Release(150, 100);
  }
}

TEST_F(PlacementTest, ThePlaceOfTheAnchorShowsInInches) {
  UnitScale = 25.4;
  CurrentTool = kRectangle;
  Press(150.8, 100.4);
  EXPECT_EQ(SizeFields().substr(0, 10), "2.00 1.00 ");
}

TEST_F(PlacementTest, TheAnchorSnapsToTheMagneticRules) {
  SetRuleX(50, 2);
  SetRuleY(25, 2);
  CurrentTool = kRectangle;
  Press(151.5, 98.5);
  ExpectFrame(150, 100, 0, 0);
}

TEST_F(PlacementTest, TheRubberLineStartsAtASnappedXAndARawY) {
  SetRuleX(50, 2);
  SetRuleY(25, 2);
  CurrentTool = kLine;
  Press(151.5, 98.5);
  EXPECT_EQ(RubberLine, kTrue);
  EXPECT_NEAR(frmMain.shpLine.X1(), 150, 1e-9);
  EXPECT_NEAR(frmMain.shpLine.X2(), 150, 1e-9);
  EXPECT_NEAR(frmMain.shpLine.Y1(), 98.5, 1e-9);
  EXPECT_NEAR(frmMain.shpLine.Y2(), 98.5, 1e-9);
  EXPECT_NEAR(AnchorY, 100, 1e-9);
  EXPECT_TRUE(frmMain.shpLine.Visible());
}

TEST_F(PlacementTest, AnotherButtonsPressMovesTheAnchorOfABoxUnderWay) {
  CurrentTool = kRectangle;
  Press(150, 100);
  Press(160, 110, kRightButton);
  ExpectFrame(160, 110, 0, 0);
}

// --- moving -------------------------------------------------------------------------------------

TEST_F(PlacementTest, TheBoxFollowsThePointerInEitherDirection) {
  CurrentTool = kRectangle;
  Press(150, 100);
  MoveTo(170, 110);
  ExpectFrame(150, 100, 20, 10);
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 20.00 Height: 10.00");
  EXPECT_EQ(SizeFields(), "50.00 25.00 20.00 10.00 ");
  MoveTo(140, 85);
  ExpectFrame(140, 85, 10, 15);
}

TEST_F(PlacementTest, AMoveTracksOnlyWhatIsUnderWay) {
  CurrentTool = kRectangle;
  MoveTo(170, 110);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_FALSE(frmMain.shpLine.Visible());
}

// --- shapes -------------------------------------------------------------------------------------

TEST_F(PlacementTest, ShapesTakeTheBoxAndTheSamples) {
  const std::pair<CommandButton*, int> rows[] = {
      {&frmMain.cmdRect, 11}, {&frmMain.cmdRoundRect, 12}, {&frmMain.cmdEllipse, 13}};
  frmMain.lblFCol(6).SetBackColor(0x112233);
  frmMain.lblBCol(6).SetBackColor(0x445566);
  frmMain.cboWeight.SetListIndex(3);
  for (const auto& [button, kind] : rows) {
    button->Press();
    const auto redraws = RedrawCount;
    DragOnLabel(10, 10, 40, 30);
    EXPECT_EQ(Newest().ObjType, kind);
    ExpectRecord(ObjectUB, 10, 10, 30, 20);
    EXPECT_EQ(Newest().ForeColor, 0x112233);
    EXPECT_EQ(Newest().FillColor, 0x445566);
    EXPECT_EQ(Newest().Param, 3);
    EXPECT_EQ(Newest().Text.Trimmed(), "");
    EXPECT_EQ(RedrawCount, redraws + 1);
    EXPECT_EQ(DirtyFlag, kTrue);
    ExpectDisarmed();
    ExpectSelected(ObjectUB);
    RemoveRecord(ObjectUB);
    SelectedObject = -1;
  }
}

TEST_F(PlacementTest, PlacingEnablesTheCommandsOfOneObject) {
  for (Menu* entry : {&frmMain.mnuArrAlign, &frmMain.mnuArrSize}) entry->SetEnabled(true);
  frmMain.cmdRect.Press();
  DragOnLabel(10, 10, 40, 30);
  for (const Menu* entry : {&frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuAHoriz,
                            &frmMain.mnuArrangeBTF, &frmMain.mnuArrangeSTB}) {
    EXPECT_TRUE(entry->Enabled()) << entry->Name();
  }
  EXPECT_FALSE(frmMain.mnuArrAlign.Enabled());
  EXPECT_FALSE(frmMain.mnuArrSize.Enabled());
}

TEST_F(PlacementTest, ATickedBoxMakesTheShapeTransparent) {
  frmMain.chkTransparent.SetValue(1);
  frmMain.cmdRect.Press();
  DragOnLabel(10, 10, 40, 30);
  EXPECT_EQ(Newest().FillColor, -1);
}

TEST_F(PlacementTest, AClickWithAShapeToolMakesAnObjectOfTheTinyBox) {
  frmMain.cmdRect.Press();
  ClickOnLabel(10, 10);
  EXPECT_EQ(Newest().ObjType, kRectangle);
  ExpectRecord(0, 10, 10, 0, 0);
  ExpectSelected(0);
}

TEST_F(PlacementTest, ARectangleKeepsWeightZeroAndDrawsWithoutAPen) {
  frmMain.cboWeight.SetListIndex(0);
  frmMain.cmdRect.Press();
  DragOnLabel(10, 10, 40, 30);
  EXPECT_EQ(Newest().Param, 0);
  EXPECT_EQ(frmMain.cboWeight.ListIndex(), 0);
  EXPECT_EQ(Board().Of(Painted::What::kShape).back().UsedPen().style, kPenNull);
}

TEST_F(PlacementTest, TheTinyBoxOfTheLastGestureIsForgotten) {
  frmMain.cmdRect.Press();
  ClickOnLabel(10, 10);
  EXPECT_TRUE(TinyBox);
  frmMain.cmdRect.Press();
  DragOnLabel(50, 10, 80, 30);
  EXPECT_FALSE(TinyBox);
}

TEST_F(PlacementTest, ARecordLeftBehindByAnotherObjectIsCleared) {
  ObjectRecord old = ShapeObject(kRectangle, 1, 1, 5, 5);
  old.Text = "old";
  old.FontSize = 40;
  old.Bold = kTrue;
  Put(old);
  RemoveRecord(0);
  frmMain.cmdRect.Press();
  DragOnLabel(10, 10, 40, 30);
  EXPECT_EQ(Newest().Text.Trimmed(), "");
  EXPECT_EQ(Newest().FontSize, 0);
  EXPECT_EQ(Newest().Bold, kFalse);
}

// --- lines --------------------------------------------------------------------------------------

TEST_F(PlacementTest, LinesAreLevelOrUpright) {
  const struct {
    double to_x, to_y;
    double left, top, width, height;
  } rows[] = {
      {40, 12, 10, 10, 30, 0.1},     // level
      {12, 40, 10, 10, 0.1, 30},     // upright
      {40, 40, 10, 10, 30, 0.1},     // exactly 45 degrees is level
      {2, 11, 2, 10, 8, 0.1},        // to the left
      {11, 2, 10, 2, 0.1, 8},        // upwards
      {10.9, 10, 10, 10, 0.1, 0.1},  // shorter than a millimetre
  };
  for (const auto& row : rows) {
    frmMain.cmdLine.Press();
    DragOnLabel(10, 10, row.to_x, row.to_y);
    EXPECT_EQ(Newest().ObjType, kLine);
    ExpectRecord(ObjectUB, row.left, row.top, row.width, row.height);
    EXPECT_EQ(Newest().Param, 1);
    EXPECT_EQ(Newest().FillColor, 0);
    ExpectDisarmed();
    RemoveRecord(ObjectUB);
    SelectedObject = -1;
  }
}

TEST_F(PlacementTest, AClickWithTheLineToolMakesADot) {
  frmMain.cmdLine.Press();
  ClickOnLabel(10, 10);
  ExpectRecord(0, 10, 10, 0.1, 0.1);
}

TEST_F(PlacementTest, WeightZeroBecomesOneAtThePressOfALine) {
  frmMain.cboWeight.SetListIndex(0);
  frmMain.cmdLine.Press();
  EXPECT_EQ(frmMain.cboWeight.ListIndex(), 0);
  Press(150, 100);
  EXPECT_EQ(frmMain.cboWeight.ListIndex(), 1);
  MoveTo(170, 100);
  Release(170, 100);
  EXPECT_EQ(Newest().Param, 1);
}

TEST_F(PlacementTest, ALineTakesTheOutlineSample) {
  frmMain.lblFCol(6).SetBackColor(0x010203);
  frmMain.cmdLine.Press();
  DragOnLabel(10, 10, 40, 10);
  EXPECT_EQ(Newest().ForeColor, 0x010203);
}

// --- barcodes -----------------------------------------------------------------------------------

TEST_F(PlacementTest, ABarcodeTakesDataFormatAndFontOfItsPanel) {
  ChooseFontAndSize(1, "8");
  frmMain.chkPriCharacter.SetValue(1);
  frmMain.cmdBCode.Press();
  DragOnLabel(10, 10, 50, 30);
  EXPECT_EQ(Newest().ObjType, kBarcode);
  EXPECT_EQ(Newest().Text.Trimmed(), "12345");
  EXPECT_EQ(Newest().Param, 2);
  EXPECT_EQ(Newest().FontName.Trimmed(), "Courier New");
  EXPECT_EQ(Newest().FontSize, 8);
  EXPECT_EQ(Newest().Bold, kTrue);
  EXPECT_EQ(Newest().FillColor, 0);
  ExpectRecord(0, 10, 10, 40, 20);
  ExpectDisarmed();
  ExpectSelected(0);
}

TEST_F(PlacementTest, AClickWithTheBarcodeToolCreatesNothingAndStaysArmed) {
  frmMain.cmdBCode.Press();
  ClickOnLabel(10, 10);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(CurrentTool, 1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(RubberBox, 0);
  EXPECT_EQ(CursorShape, 0);  // the tool's pointer is gone all the same
}

TEST_F(PlacementTest, AShortDragWithTheBarcodeToolCreatesNothing) {
  const std::pair<double, double> drags[] = {{1.09, 20}, {20, 1.09}, {1.09, 1.09}};
  for (const auto& [dx, dy] : drags) {
    frmMain.cmdBCode.Press();
    DragOnLabel(10, 10, 10 + dx, 10 + dy);
    EXPECT_EQ(ObjectUB, -1) << dx << " " << dy;
    EXPECT_EQ(CurrentTool, 1) << dx << " " << dy;
  }
  DragOnLabel(10, 10, 11.11, 11.11);
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(PlacementTest, WithoutAFormatABlankRecordIsLeftBehind) {
  frmMain.cboBCode.SetListIndex(-1);
  frmMain.cmdBCode.Press();
  DragOnLabel(10, 10, 50, 30);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(Newest(), ObjectRecord());
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(CurrentTool, 1);
}

TEST_F(PlacementTest, PostNetKeepsItsOwnSize) {
  frmMain.cboBCode.SetListIndex(12);
  frmMain.cmdBCode.Press();
  DragOnLabel(10, 10, 50, 30);
  ExpectRecord(0, 10, 10, 32 * 0.508 + 31 * 0.6604, 3.175);
  EXPECT_EQ(Newest().Param, 12);
}

// The redraw that ends the placement has not happened yet here.
TEST_F(PlacementTest, AHitAreaOfPostNetStaysAsItWasUntilTheRedraw) {
  SuspendRedraw = kTrue;
  frmMain.cboBCode.SetListIndex(12);
  frmMain.cmdBCode.Press();
  DragOnLabel(10, 10, 50, 30);
  EXPECT_EQ(HoldAt(0).Width(), 0);
  EXPECT_GT(Newest().Width, 0);
}

TEST_F(PlacementTest, RoyalMailHasItsSizeFromItsCharacters) {
  frmMain.txtBCodeData.SetText("");
  frmMain.cboBCode.SetListIndex(13);
  frmMain.txtBCodeData.SetText("123456");
  frmMain.cmdBCode.Press();
  DragOnLabel(10, 10, 50, 30);
  ExpectRecord(0, 10, 10, 29.5 * 0.76, 4.22);
  EXPECT_NEAR(HoldAt(0).Width(), 29.5 * 0.76, 1e-9);
}

// --- pictures -----------------------------------------------------------------------------------

TEST_F(PlacementTest, InsertPictureShowsTheFileOnItsPanel) {
  const std::string path = PictureFile("a.gif", "1234.4 567.6");
  ChoosePicture(path);
  EXPECT_EQ(&FrontPanel(), &frmMain.picPicture);
  EXPECT_FALSE(frmMain.cboFont.Visible());
  EXPECT_FALSE(frmMain.cboSize.Visible());
  EXPECT_EQ(dialogs.requests.back().filter, "All Picture Formats |*.jpg;*.jpeg;*.wmf;*.gif");
  EXPECT_EQ(PicturePath, path);
  EXPECT_EQ(frmMain.lblGraphicFName.Caption(), path);
  EXPECT_EQ(frmMain.lblGraphicX.Caption(), "1234");
  EXPECT_EQ(frmMain.lblGraphicY.Caption(), "568");
  EXPECT_EQ(CurrentTool, 2);
  EXPECT_EQ(CursorShape, 2);
}

// A click would make a picture without a file, which complains at every redraw.
TEST_F(PlacementTest, ACancelledPictureDialogSaysNothingAndLeavesNoTool) {
  frmMain.cmdTools(2).Press();
  EXPECT_TRUE(dialogs.messages.empty());
  ExpectDisarmed();
  EXPECT_EQ(PicturePath, "");
  ClickOnLabel(10, 10);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PlacementTest, ACancelledDialogDisarmsThePictureThatWasChosenBefore) {
  ChoosePicture(PictureFile("good.gif", "100 100"));
  ASSERT_EQ(CurrentTool, 2);
  frmMain.cmdTools(2).Press();
  ExpectDisarmed();
}

TEST_F(PlacementTest, APictureThatCannotBeReadIsStillChosen) {
  frmMain.lblGraphicX.SetCaption("7");
  ChoosePicture(PictureFile("bad.gif", "bad"));
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(frmMain.lblGraphicX.Caption(), "7");
  EXPECT_EQ(CursorShape, 2);
}

TEST_F(PlacementTest, ADraggedPictureTakesTheBox) {
  const std::string path = PictureFile("a.gif", "2000 1000");
  ChoosePicture(path);
  DragOnLabel(10, 10, 50, 30);
  EXPECT_EQ(Newest().ObjType, kPicture);
  EXPECT_EQ(Newest().Text.Trimmed(), path);
  ExpectRecord(0, 10, 10, 40, 20);
  ExpectDisarmed();
  ExpectSelected(0);
}

// Natural sizes are hundredths of a millimetre and count as twips.
TEST_F(PlacementTest, AClickPlacesThePictureAtItsNaturalSize) {
  ChoosePicture(PictureFile("a.gif", "1440 720"));
  ClickOnLabel(10, 10);
  ExpectRecord(0, 10, 10, 25.4, 12.7);
  EXPECT_NEAR(HoldAt(0).Width(), 25.4, 1e-9);
}

TEST_F(PlacementTest, AClickedPictureIsCutToNineTenthsOfTheLabel) {
  ChoosePicture(PictureFile("wide.gif", "14400 1440"));  // 254 by 25.4 mm
  ClickOnLabel(0, 0);
  ExpectRecord(0, 0, 0, 90, 9);
  ChoosePicture(PictureFile("high.gif", "14400 14400"));
  ClickOnLabel(0, 0);
  ExpectRecord(1, 0, 0, 45, 45);
}

TEST_F(PlacementTest, AnUnreadablePictureIsRefusedAndDropped) {
  ChoosePicture(PictureFile("bad.gif", "bad"));
  DragOnLabel(10, 10, 50, 30);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "This picture type is not supported");
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.mnuEditCut.Enabled());
  EXPECT_EQ(DirtyFlag, kTrue);
}

// The next Delete would take the object before it.
TEST_F(PlacementTest, ARefusedPictureLeavesNothingToDelete) {
  PutBox(60, 30);
  ChoosePicture(PictureFile("bad.gif", "bad"));
  DragOnLabel(10, 10, 50, 30);
  KeyDown(46);
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(PlacementTest, APictureThatHasGoneIsPlacedAllTheSame) {
  PicturePath = folder.File("gone.gif");
  CurrentTool = kPicture;
  DragOnLabel(10, 10, 50, 30);
  EXPECT_EQ(Newest().ObjType, kPicture);
  ExpectRecord(0, 10, 10, 40, 20);
  ASSERT_EQ(dialogs.messages.size(), 1U);  // the redraw's own
  EXPECT_NE(dialogs.messages[0].text.find("has been removed"), std::string::npos);
}

TEST_F(PlacementTest, FaultsOnTheWayAreShownWhereTheyAreAskedFor) {
  Made("tracemark.flg", "");
  PicturePath = folder.File("gone.gif");
  CurrentTool = kPicture;
  SuspendRedraw = kTrue;
  DragOnLabel(10, 10, 50, 30);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text.substr(0, 5), "53 - ");
  EXPECT_EQ(Newest().ObjType, kPicture);
}

// --- texts --------------------------------------------------------------------------------------

TEST_F(PlacementTest, ATextComesIntoBeingAtThePress) {
  ChooseFontAndSize(1, "12");
  frmMain.cmdTools(3).Press();
  ChooseFontAndSize(1, "12");
  frmMain.chkBold.SetValue(1);
  frmMain.chkItalic.SetValue(1);
  frmMain.lblTextColor.SetBackColor(0x0000FF);
  Press(120, 100);
  const ObjectRecord& text = Newest();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(text.ObjType, kText);
  EXPECT_EQ(text.Text.Trimmed(), "");
  EXPECT_EQ(text.FontName.Trimmed(), "Courier New");
  EXPECT_EQ(text.FontSize, 12);
  EXPECT_EQ(text.Bold, kTrue);
  EXPECT_EQ(text.Italic, kTrue);
  EXPECT_EQ(text.ForeColor, 0x0000FF);
  EXPECT_EQ(SelectedObject, 0);
  const Label& hold = HoldAt(0);
  EXPECT_EQ(hold.Caption(), "|");
  EXPECT_TRUE(hold.Visible());
  EXPECT_TRUE(hold.AutoSize());
  EXPECT_EQ(hold.ForeColor(), 0x0000FF);
  EXPECT_EQ(hold.Font(), (FontSpec{"Courier New", 12, true, true}));
  EXPECT_TRUE(frmMain.txtTool.HasFocus());
  EXPECT_EQ(TextEditOpen, kTrue);
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(HandlesShown(), "0123");
}

TEST_F(PlacementTest, ATextSitsAboveTheClick) {
  frmMain.cmdTools(3).Press();
  ChooseFontAndSize(0, "12");
  Press(120, 100);
  EXPECT_NEAR(HoldAt(0).Left(), 120, 1e-9);
  EXPECT_NEAR(HoldAt(0).Top(), 100 - LineHeightOf(12), 1e-9);
  EXPECT_NEAR(Newest().Left, 20, 1e-4);
  EXPECT_NEAR(Newest().Top, 25 - LineHeightOf(12), 1e-4);
}

TEST_F(PlacementTest, ATextStandsOnAMagneticRule) {
  SetRuleX(20, 2);
  SetRuleY(25, 2);
  frmMain.cmdTools(3).Press();
  ChooseFontAndSize(0, "12");
  Press(121, 99);
  EXPECT_NEAR(HoldAt(0).Left(), 120, 1e-9);
  EXPECT_NEAR(HoldAt(0).Top(), 100 - LineHeightOf(12), 1e-9);
}

TEST_F(PlacementTest, ATextTakesTheZoomedSizeOnScreenOnly) {
  frmMain.cboZoom.SetListIndex(17);  // 250 %
  frmMain.cmdTools(3).Press();
  ChooseFontAndSize(0, "12");
  Press(BoardOriginX + 20, BoardOriginY + 25);
  EXPECT_EQ(HoldAt(0).Font().Size, 30);
  EXPECT_EQ(Newest().FontSize, 12);
}

TEST_F(PlacementTest, WhatIsTypedIsTheText) {
  frmMain.cmdTools(3).Press();
  ChooseFontAndSize(0, "12");
  Click(120, 100);
  frmMain.txtTool.UserType(
      "Gr\xC3\xBC\xC3\x9F"
      "e\nan alle");
  EXPECT_EQ(Newest().Text.Trimmed(),
            "Gr\xC3\xBC\xC3\x9F"
            "e\r\nan alle");
  EXPECT_NEAR(Newest().Width, TextWidthOf(7, 12), 1e-6);
  EXPECT_NEAR(Newest().Height, 2 * LineHeightOf(12), 1e-6);
  EXPECT_NEAR(Newest().Left, 20, 1e-4);
}

TEST_F(PlacementTest, ATextWithoutTypingGoesWithTheNextPress) {
  frmMain.cmdTools(3).Press();
  Click(120, 100);
  ASSERT_EQ(ObjectUB, 0);
  Click(200, 150);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(SelectedObject, -1);
}

// What an object that has gone left in the slot and on its hit area is no part of a new text.
TEST_F(PlacementTest, ANewTextIsAlignedLeft) {
  ObjectRecord old = TextObject("centred");
  old.Param = 2;
  Put(old);
  HoldAt(0).SetAlignment(TextAlignment::kCenter);
  RemoveRecord(0);
  frmMain.cmdTools(3).Press();
  Press(120, 100);
  EXPECT_EQ(Newest().Param, 0);
  EXPECT_EQ(HoldAt(0).Alignment(), TextAlignment::kLeft);
}

// A press for a group does not create the text; the tool is armed still at the release.
TEST_F(PlacementTest, AReleaseWithTheTextToolPutsThePointerBack) {
  frmMain.cmdTools(3).Press();
  frmMain.SetMousePointer(3);
  Press(120, 100, kRightButton);
  Release(120, 100, kRightButton);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(CurrentTool, 3);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
}

// The tool was changed while a box was drawn up.
TEST_F(PlacementTest, ABoxCompletedWithTheTextToolMakesAText) {
  frmMain.cmdRect.Press();
  Press(120, 100);
  MoveTo(150, 120);
  CurrentTool = kText;
  Release(150, 120);
  EXPECT_EQ(Newest().ObjType, kText);
  ExpectRecord(0, 20, 25, 30, 20);
}

// --- data fields --------------------------------------------------------------------------------

TEST_F(PlacementTest, ADataFieldIsPlacedWhereTheMouseIsReleased) {
  frmMain.lstFields.AddItem("Name");
  frmMain.lstFields.AddItem("Town");
  frmMain.lstFields.SetListIndex(1);
  ChooseFontAndSize(1, "12");
  CurrentTool = kDataField;
  Press(130, 110);
  EXPECT_EQ(ObjectUB, -1);
  MoveTo(140, 120);
  Release(140, 120);
  ASSERT_EQ(ObjectUB, 0);
  EXPECT_EQ(Newest().ObjType, kDataField);
  EXPECT_EQ(Newest().Text.Trimmed(), "Town");
  EXPECT_EQ(Newest().Param, 1);
  EXPECT_EQ(Newest().FontName.Trimmed(), "Courier New");
  EXPECT_EQ(Newest().FontSize, 12);
  ExpectRecord(0, 40, 45 - LineHeightOf(12), TextWidthOf(4, 12), LineHeightOf(12));
  EXPECT_EQ(HoldAt(0).Caption(), "");
  EXPECT_FALSE(HoldAt(0).AutoSize());
  EXPECT_TRUE(HoldAt(0).Visible());
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
}

TEST_F(PlacementTest, ANewDataFieldHasNoHandles) {
  frmMain.lstFields.AddItem("Name");
  frmMain.lstFields.SetListIndex(0);
  CurrentTool = kDataField;
  Click(130, 110);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(SelectedObject, 0);
}

TEST_F(PlacementTest, ADataFieldSnapsToTheRules) {
  SetRuleX(30, 2);
  SetRuleY(40, 2);
  frmMain.lstFields.AddItem("Name");
  frmMain.lstFields.SetListIndex(0);
  ChooseFontAndSize(0, "12");
  CurrentTool = kDataField;
  Click(131, 114);
  EXPECT_NEAR(Newest().Left, 30, 1e-4);
  EXPECT_NEAR(Newest().Top, 40 - LineHeightOf(12), 1e-4);
}

// --- a line, in pixels --------------------------------------------------------------------------

// Pixels are what a pointer moves in. Board units of the two ways are rounded apart.
TEST_F(PlacementTest, ALineAtExactlyFortyFiveDegreesIsLevelAtEveryZoom) {
  constexpr double kPixel = 15;  // twips
  for (int row = 0; row < frmMain.cboZoom.ListCount(); row += 3) {
    frmMain.cboZoom.SetListIndex(row);
    for (int n = 3; n < 200; n += 7) {
      const double x = (200 + 13 * n % 97) * kPixel, y = (150 + 11 * n % 89) * kPixel;
      const double down = n % 2 ? n * kPixel : -n * kPixel;
      const double across = n % 3 ? n * kPixel : -n * kPixel;
      PictureBox& board = frmMain.picBoard;
      frmMain.cmdLine.Press();
      board.UserMouseDown(kLeftButton, 0, x, y);
      board.UserMouseMove(kLeftButton, 0, x + across, y + down);
      EXPECT_EQ(frmMain.shpLine.Y2(), AnchorY) << row << " " << n;
      EXPECT_NE(frmMain.shpLine.X2(), AnchorX) << row << " " << n;
      board.UserMouseMove(kLeftButton, 0, x + across, y + down + (down > 0 ? kPixel : -kPixel));
      EXPECT_EQ(frmMain.shpLine.X2(), AnchorX) << row << " " << n << " and a pixel more";
      board.UserMouseUp(kLeftButton, 0, x, y);
      DropSelection();
      ObjectUB = -1;
    }
  }
}

// From its hit area, whose corner is rounded too.
TEST_F(PlacementTest, ALineAtFortyFiveDegreesOverAnObjectIsLevelToo) {
  PutBox(10.1F, 10.3F, 60, 30);
  const double corner_x = HoldAt(0).LeftTwips(), corner_y = HoldAt(0).TopTwips();
  for (int n = 20; n < 90; ++n) {
    frmMain.cmdLine.Press();
    const double x = std::ceil(corner_x / 15) * 15 + 15, y = std::ceil(corner_y / 15) * 15 + 15;
    frmMain.picBoard.UserMouseDown(kLeftButton, 0, x, y);
    frmMain.picBoard.UserMouseMove(kLeftButton, 0, x + 15 * n, y + 15 * n);
    EXPECT_EQ(frmMain.shpLine.Y2(), AnchorY) << n;
    frmMain.picBoard.UserMouseUp(kLeftButton, 0, x + 15 * n, y + 15 * n);
    DropSelection();
    ObjectUB = 0;
  }
}

// --- what frames it -----------------------------------------------------------------------------

TEST_F(PlacementTest, ANewLineIsFramedAndHasItsHandles) {
  frmMain.cmdEllipse.Press();
  DragOnLabel(60, 10, 80, 20);
  Click(200, 150);
  ASSERT_FALSE(frmMain.shpBox.Visible());
  frmMain.cmdLine.Press();
  DragOnLabel(20, 20, 45, 22);
  ExpectSelected(1);
  ExpectFrame(BoardOriginX + 20, BoardOriginY + 20, 25, 0.1);
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 0) << "not the oval of the object before";
}

// --- the caret of a new text --------------------------------------------------------------------

TEST_F(PlacementTest, ANewTextHasItsCaretAlsoAfterOneThatWasLeftBlank) {
  for (const char* typed : {"", "  "}) {
    frmMain.cmdTools(3).Press();
    ClickOnLabel(20, 30);
    frmMain.txtTool.UserType(typed);
    frmMain.cmdTools(3).UserFocus();
    frmMain.cmdTools(3).Press();
    ASSERT_EQ(ObjectUB, -1) << '"' << typed << '"';
    ClickOnLabel(20, 30);
    EXPECT_EQ(HoldAt(0).Caption(), "|") << '"' << typed << '"';
    EXPECT_GT(HoldAt(0).Width(), 0) << '"' << typed << '"';
    EXPECT_EQ(frmMain.txtTool.Text(), "") << '"' << typed << '"';
    EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "") << '"' << typed << '"';
    frmMain.cmdTools(0).Press();
  }
}

// A text left open by the label before has no claim to the keys any more.
TEST_F(PlacementTest, ATextThatIsOpenAtALoadLeavesTheKeyboardToTheBoard) {
  Add(TextObject("saved", 10, 10));
  ProjectPath = folder.File("label.twp");
  SaveProject(kFalse);
  frmMain.cmdTools(3).Press();
  ClickOnLabel(60, 40);
  frmMain.txtTool.UserType("open");
  ASSERT_TRUE(frmMain.txtTool.HasFocus());
  LoadProject(folder.File("label.twp"));
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_EQ(TextEditOpen, kFalse);
  EXPECT_FALSE(TextEntryActive);
  ASSERT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "saved");
  frmMain.mnuEditSelectAll.Press();
  EXPECT_EQ(SelectedObject, 0);
}

// --- over another object ------------------------------------------------------------------------

TEST_F(PlacementTest, AToolStartsOverAnObjectToo) {
  PutBox(10, 10, 40, 30);
  frmMain.cmdEllipse.Press();
  DragOnLabel(20, 20, 45, 35);
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(Newest().ObjType, kEllipse);
  ExpectRecord(1, 20, 20, 25, 15);
  ExpectRecord(0, 10, 10, 40, 30);
  EXPECT_EQ(SelectedObject, 1);
}

TEST_F(PlacementTest, ALineOverAnObjectToo) {
  PutBox(10, 10, 40, 30);
  frmMain.cmdLine.Press();
  DragOnLabel(20, 20, 45, 22);
  EXPECT_EQ(Newest().ObjType, kLine);
  ExpectRecord(1, 20, 20, 25, 0.1);
}

// The weight that the line is given is for the line alone.
TEST_F(PlacementTest, ALineOverARectangleWithoutAPenLeavesThatOneWithoutAnOutline) {
  PutBox(10, 10, 40, 30);
  ObjectAt(0).Param = 0;
  frmMain.cboWeight.SetListIndex(0);
  frmMain.cmdLine.Press();
  Press(BoardOriginX + 20, BoardOriginY + 20);
  EXPECT_EQ(ObjectAt(0).Param, 0);
}

TEST_F(PlacementTest, ATextOverAnObjectToo) {
  PutBox(10, 10, 40, 30);
  frmMain.cmdTools(3).Press();
  ClickOnLabel(20, 30);
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(Newest().ObjType, kText);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_TRUE(frmMain.txtTool.HasFocus());
}

// The press shows the font of what lies there, and the end of typing reads the size box.
TEST_F(PlacementTest, ATextOverAnotherTakesThatOnesSizeAsTypingEnds) {
  ObjectRecord below = TextObject("below", 10, 10);
  below.FontName = "Arial";
  below.FontSize = 20;
  below.Width = 40;
  below.Height = 30;
  Put(below);
  frmMain.cmdTools(3).Press();
  ChooseFontAndSize(1, "12");
  ClickOnLabel(20, 30);
  EXPECT_EQ(Newest().FontSize, 12);
  EXPECT_EQ(frmMain.cboSize.Text(), "20");
  frmMain.txtTool.UserType("on top");
  Click(250, 180);
  EXPECT_EQ(Newest().FontName.Trimmed(), "Courier New");
  EXPECT_EQ(Newest().FontSize, 20);
}

// Only a rubber box or line ends in a placement there: a column lands beside what is on the label.
TEST_F(PlacementTest, ADataFieldIsNotPlacedOverAnObject) {
  PutBox(10, 10, 40, 30);
  CurrentTool = kDataField;
  ClickOnLabel(20, 20);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(CurrentTool, kDataField);
  ClickOnLabel(60, 20);
  EXPECT_EQ(ObjectUB, 1);
}

TEST_F(PlacementTest, ABoxThatBeginsOverALineIsAsLargeAsItIsDrawn) {
  Put(ShapeObject(kLine, 10, 10, 40, 3));
  frmMain.cmdRect.Press();
  DragOnLabel(20, 11, 50, 40);
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(Newest().ObjType, kRectangle);
  ExpectRecord(1, 20, 11, 30, 29);
}

// Not even by a command that selects the only object meanwhile.
TEST_F(PlacementTest, ABoxIsNotThinForALineThatIsSelectedWhileItIsDrawn) {
  Put(ShapeObject(kLine, 10, 10, 40, 3));
  frmMain.cmdRect.Press();
  Press(BoardOriginX + 20, BoardOriginY + 20);
  frmMain.mnuEditSelectAll.Press();
  ASSERT_EQ(SelectedObject, 0);
  MoveTo(BoardOriginX + 50, BoardOriginY + 40);
  Release(BoardOriginX + 50, BoardOriginY + 40);
  ExpectRecord(1, 20, 20, 30, 20);
}

TEST_F(PlacementTest, NothingIsSelectedWhileSomethingIsDrawnOverAnObject) {
  PutBox(10, 10, 40, 30);
  for (CommandButton* tool : {&frmMain.cmdLine, &frmMain.cmdRect, &frmMain.cmdRoundRect,
                              &frmMain.cmdEllipse, &frmMain.cmdBCode}) {
    tool->Press();
    Press(BoardOriginX + 20, BoardOriginY + 20);
    EXPECT_EQ(SelectedObject, -1) << tool->Name();
    EXPECT_FALSE(frmMain.mnuEditCopy.Enabled()) << tool->Name();
    MoveTo(BoardOriginX + 45, BoardOriginY + 35);
    Release(BoardOriginX + 45, BoardOriginY + 35);
    EXPECT_EQ(SelectedObject, ObjectUB) << tool->Name();
    ObjectUB = 0;
    DropSelection();
  }
}

// --- size fields --------------------------------------------------------------------------------

TEST_F(PlacementTest, SizeFieldsShowNoPlaceOnceTheGroupIsGone) {
  PutBox(10, 10);
  PutBox(40, 10);
  ClickOnLabel(15, 15);
  KeyDown(17, kCtrl);
  ClickOnLabel(45, 15);
  KeyUp(17);
  ASSERT_EQ(SelectedUpper, 1);
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ") << "a group";
  Click(200, 150);
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ");
}

TEST_F(PlacementTest, SizeFieldsShowNoPlaceOnceTheLastMemberHasLeft) {
  PutBox(10, 10);
  ClickOnLabel(15, 15);
  KeyDown(17, kCtrl);
  ClickOnLabel(15, 15);  // in the list twice
  ClickOnLabel(15, 15);
  ClickOnLabel(15, 15);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ");
}

TEST_F(PlacementTest, SizeFieldsShowNoPlaceAfterAGestureThatSelectsNothing) {
  frmMain.cmdTools(5).Press();
  DragOnLabel(10, 10, 60, 40);
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ") << "a zoom";
  frmMain.cmdTools(0).Press();
  frmMain.cmdBCode.Press();
  ClickOnLabel(20, 20);
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ") << "a refused barcode";
}

TEST_F(PlacementTest, SizeFieldsShowNoPlaceOnceTheBarcodeToolHasTakenTheSelection) {
  PutBox(10, 10);
  ClickOnLabel(15, 15);
  frmMain.cmdBCode.Press();
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ");
}

// --- state --------------------------------------------------------------------------------------

TEST_F(PlacementTest, ResetForgetsPictureAndGesture) {
  PicturePath = "x";
  TinyBox = true;
  ResetPlacement();
  EXPECT_EQ(PicturePath, "");
  EXPECT_FALSE(TinyBox);
}

}  // namespace
}  // namespace tagwright
