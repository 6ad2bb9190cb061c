// A label without a mouse: tools that place by Return, objects that are reached by page keys.
#include "tools/board_keys.h"

#include "editing/property_pick.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

constexpr int kReturn = 13;
constexpr int kEscape = 27;
constexpr int kPageUp = 33;
constexpr int kPageDown = 34;
constexpr int kLeftArrow = 37;

class BoardKeysTest : public HandTest {
 protected:
  BoardKeysTest() { ToBoard(); }

  static void ToBoard() { frmMain.txtSetFocus(0).SetFocus(); }
  // Whether the key goes on to what has the keyboard.
  static bool GoesOn(int key, int shift = 0) { return frmMain.UserKeyDown(key, shift); }
  static void Arm(CommandButton& button) {
    button.SetFocus();  // as a press does, which ends an entry
    button.Press();
    ToBoard();
  }
};

// --- placing ------------------------------------------------------------------------------------

TEST_F(BoardKeysTest, ReturnPlacesAShapeOfAQuarterOfTheLabelInItsMiddle) {
  for (CommandButton* button : {&frmMain.cmdRect, &frmMain.cmdRoundRect, &frmMain.cmdEllipse}) {
    Arm(*button);
    const int kind = CurrentTool;
    EXPECT_FALSE(GoesOn(kReturn));
    ExpectRecord(ObjectUB, 25, 12.5, 50, 25);
    EXPECT_EQ(ObjectAt(ObjectUB).ObjType, kind);
    EXPECT_EQ(SelectedObject, ObjectUB);
    EXPECT_EQ(CurrentTool, 0);
  }
  EXPECT_EQ(ObjectUB, 2);
}

TEST_F(BoardKeysTest, ReturnPlacesALineOfHalfTheLabelsWidth) {
  Arm(frmMain.cmdLine);
  KeyDown(kReturn);
  ExpectRecord(0, 25, 25, 50, 0.1);
}

TEST_F(BoardKeysTest, ReturnPlacesABarcodeWhichNoClickDoes) {
  frmMain.cboBCode.SetListIndex(9);
  frmMain.txtBCodeData.SetText("FIG");
  Arm(frmMain.cmdBCode);
  KeyDown(kReturn);
  ASSERT_EQ(ObjectUB, 0);
  ExpectRecord(0, 25, 12.5, 50, 25);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "FIG");
}

TEST_F(BoardKeysTest, ReturnPlacesAPictureOfItsNaturalSizeAroundTheMiddle) {
  dialogs.files = {Made("a.gif", "1440 720")};  // 25.4 by 12.7 mm
  Arm(frmMain.cmdTools(2));
  KeyDown(kReturn);
  ExpectRecord(0, 50 - 12.7F, 25 - 6.35F, 25.4, 12.7);
  dialogs.files = {Made("a.gif", "1440 720")};
  frmMain.cmdTools(2).Press();
  ClickOnLabel(10, 10);
  ExpectRecord(1, 10, 10, 25.4, 12.7);  // a click's begins there
}

TEST_F(BoardKeysTest, ReturnOpensATextAndIsNotTypedIntoIt) {
  Arm(frmMain.cmdTools(3));
  EXPECT_FALSE(GoesOn(kReturn));
  ASSERT_EQ(ObjectUB, 0);
  EXPECT_TRUE(frmMain.txtTool.HasFocus());
  frmMain.txtTool.UserType("Fig jam");
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Fig jam");
  EXPECT_EQ(ObjectAt(0).Left, 50);
  EXPECT_TRUE(GoesOn(kReturn));  // from here on it breaks the line
}

TEST_F(BoardKeysTest, ReturnPlacesADataField) {
  frmMain.lstFields.AddItem("City");
  frmMain.lstFields.SetListIndex(0);
  CurrentTool = kDataField;
  KeyDown(kReturn);
  ASSERT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "City");
  EXPECT_EQ(ObjectAt(0).Left, 50);
  EXPECT_EQ(CurrentTool, 0);
}

TEST_F(BoardKeysTest, ReturnZoomsIn) {
  Arm(frmMain.cmdTools(5));
  KeyDown(kReturn);
  EXPECT_EQ(ZoomFactor, 1.5);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(CurrentTool, 30);
}

// Scrolled by 80 to the right, 30 mm of the label are left at the board's right edge.
TEST_F(BoardKeysTest, TheMiddleIsThatOfTheLabelsPartInSight) {
  frmMain.hS1.SetValue(250 - 170);
  Arm(frmMain.cmdRect);
  KeyDown(kReturn);
  ExpectRecord(0, 15 - 25, 12.5, 50, 25);
}

TEST_F(BoardKeysTest, OfALabelOutOfSightItIsTheBoards) {
  frmMain.hS1.SetValue(0);
  Arm(frmMain.cmdRect);
  KeyDown(kReturn);
  ExpectRecord(0, static_cast<float>(150 - BoardOriginX - 25), 12.5, 50, 25);
}

TEST_F(BoardKeysTest, ReturnEndsTheFormerSelectionFirst) {
  SelectObject(PutText("Ab"));
  FillPanelFromObject();
  frmMain.txtTool.UserType("cd");
  Arm(frmMain.cmdRect);
  KeyDown(kReturn);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Abcd");
}

TEST_F(BoardKeysTest, ReturnElsewhereOrWithoutAToolPlacesNothing) {
  EXPECT_TRUE(GoesOn(kReturn));
  frmMain.cmdRect.Press();
  frmMain.cmdRect.SetFocus();
  EXPECT_TRUE(GoesOn(kReturn));
  frmMain.txtBCodeData.SetFocus();
  EXPECT_TRUE(GoesOn(kReturn));
  ToBoard();
  EXPECT_TRUE(GoesOn(kReturn, kShift));
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(CurrentTool, 11);
}

// --- selecting ----------------------------------------------------------------------------------

TEST_F(BoardKeysTest, PageKeysSelectInStackingOrderAndGoAround) {
  PutBox(10, 10);
  Put(ShapeObject(kEllipse, 40, 10, 20, 10));
  PutBox(70, 10);
  for (const int index : {0, 1, 2, 0}) {
    EXPECT_FALSE(GoesOn(kPageDown));
    EXPECT_EQ(SelectedObject, index);
    EXPECT_EQ(HandlesShown(), "0123");
  }
  for (const int index : {2, 1}) {
    EXPECT_FALSE(GoesOn(kPageUp));
    EXPECT_EQ(SelectedObject, index);
  }
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 2);
  ExpectFrame(140, 85, 20, 10);
  EXPECT_EQ(&FrontPanel(), &frmMain.picDrawing);
  EXPECT_EQ(SizeFields(), "40.00 10.00 20.00 10.00 ");
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 20.0 Height: 10.0");
  EXPECT_TRUE(frmMain.mnuEditCopy.Enabled());
  EXPECT_FALSE(frmMain.mnuArrAlign.Enabled());
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(BoardKeysTest, WithAToolArmedAPageKeyShowsTheSizeOfWhatItSelects) {
  PutBox(10, 12);
  Arm(frmMain.cmdRect);
  KeyDown(kPageDown);
  ASSERT_EQ(SelectedObject, 0);
  EXPECT_EQ(SizeFields(), "10.00 12.00 20.00 10.00 ");
  for (int field = 0; field < 4; ++field) frmMain.txtDSize(field).UserFocus();
  ToBoard();
  ExpectRecord(0, 10, 12, 20, 10);
}

TEST_F(BoardKeysTest, PageUpBeginsWithTheLast) {
  PutBox(10, 10);
  PutBox(40, 10);
  KeyDown(kPageUp);
  EXPECT_EQ(SelectedObject, 1);
}

TEST_F(BoardKeysTest, OnAnEmptyLabelPageKeysSelectNothing) {
  KeyDown(kPageDown);
  KeyDown(kPageUp);
  EXPECT_EQ(SelectedObject, -1);
}

// Its field would take the next page key.
TEST_F(BoardKeysTest, ATextIsOpenedAndTheKeyboardStaysOnTheBoard) {
  PutText("Abc");
  PutBox(10, 40);
  ObjectAt(0).FontSize = 13.5;
  KeyDown(kPageDown);
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(frmMain.txtTool.Text(), "Abc");
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "Abc");
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  KeyDown(kPageDown);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Abc");
  EXPECT_EQ(ObjectAt(0).FontSize, 13.5);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(BoardKeysTest, AnEmptyTextThatGoesIsPassedOver) {
  PutBox(10, 10);
  SelectObject(PutText(""));
  KeyDown(kPageDown);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SelectedObject, 0);
}

TEST_F(BoardKeysTest, AGroupEndsAndTheOneAfterItsLastMemberIsSelected) {
  for (int i = 0; i < 3; ++i) PutBox(30.0F * static_cast<float>(i), 10);
  SelectGroup({2, 0});
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  KeyDown(kPageDown);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
}

TEST_F(BoardKeysTest, PageKeysInATextBeingTypedOrWithAModifierSelectNothing) {
  PutBox(10, 10);
  SelectObject(PutText("Abc"));
  FillPanelFromObject();
  ASSERT_TRUE(frmMain.txtTool.HasFocus());
  EXPECT_TRUE(GoesOn(kPageDown));
  EXPECT_EQ(SelectedObject, 1);
  ToBoard();
  EXPECT_TRUE(GoesOn(kPageDown, kCtrl));
  EXPECT_EQ(SelectedObject, 1);
}

TEST_F(BoardKeysTest, WhileTheMouseDragsKeysPlaceAndSelectNothing) {
  PutBox(10, 10);
  PutBox(40, 10);
  Press(115, 90);
  KeyDown(kPageDown);
  EXPECT_EQ(SelectedObject, 0);
  Release(115, 90);
}

TEST_F(BoardKeysTest, ArrowsMoveNothing) {
  PutBox(10, 10);
  KeyDown(kPageDown);
  for (int key = kLeftArrow; key < kLeftArrow + 4; ++key) EXPECT_TRUE(GoesOn(key));
  ExpectRecord(0, 10, 10, 20, 10);
}

// --- putting away -------------------------------------------------------------------------------

TEST_F(BoardKeysTest, EscapeDisarmsEveryToolWhereverTheKeyboardIs) {
  for (CommandButton* button : {&frmMain.cmdLine, &frmMain.cmdRect, &frmMain.cmdBCode,
                                &frmMain.cmdTools(3), &frmMain.cmdTools(5)}) {
    button->Press();
    button->SetFocus();
    ASSERT_NE(CurrentTool, 0) << button->Name();
    EXPECT_TRUE(GoesOn(kEscape));
    EXPECT_EQ(CurrentTool, 0) << button->Name();
    EXPECT_EQ(CursorShape, 0) << button->Name();
    EXPECT_EQ(frmMain.MousePointer(), 0) << button->Name();
  }
}

TEST_F(BoardKeysTest, EscapeInTheMiddleOfAGestureLeavesNoObject) {
  for (CommandButton* button : {&frmMain.cmdLine, &frmMain.cmdEllipse}) {
    button->Press();
    Press(150, 100);
    MoveTo(170, 120);
    KeyDown(kEscape);
    EXPECT_FALSE(frmMain.shpLine.Visible());
    EXPECT_FALSE(frmMain.shpBox.Visible());
    MoveTo(180, 120);
    Release(180, 120);
    EXPECT_EQ(ObjectUB, -1) << button->Name();
    EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ");
  }
}

TEST_F(BoardKeysTest, EscapeClosesTheFlyoutBeforeItDisarms) {
  frmMain.cmdTools(5).Press();
  frmMain.picMag.SetVisible(true);
  KeyDown(kEscape);
  EXPECT_EQ(CurrentTool, 30);
  KeyDown(kEscape);
  EXPECT_EQ(CurrentTool, 0);
}

TEST_F(BoardKeysTest, EscapeEndsAPropertyPick) {
  mnuTextCopy_Click();
  KeyDown(kEscape);
  EXPECT_FALSE(CopyPropsPending);
  EXPECT_EQ(frmMain.MousePointer(), 0);
}

}  // namespace
}  // namespace tagwright
