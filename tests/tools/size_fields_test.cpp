// The four fields of place and size against the record they stand for, by real presses and typing.
#include "document/shown_size.h"
#include "tools/hand_fixture.h"
#include "tools/view.h"

namespace tagwright {
namespace {

class SizeFieldsTest : public HandTest {
 protected:
  SizeFieldsTest() {
    frmMain.txtBCodeData.SetText("12345");
    frmMain.cboBCode.SetListIndex(2);
  }

  static std::string OfRecord(int index) {
    const ObjectRecord& record = ObjectAt(index);
    std::string shown;
    for (const double side :
         {double{record.Left}, double{record.Top}, record.Width, record.Height}) {
      shown += FormatFixed(side / UnitScale, 2) + " ";
    }
    return shown;
  }

  static void LeaveField() { frmMain.cboZoom.UserFocus(); }

  static void TypeAText(const std::string& text) {
    frmMain.cmdTools(3).Press();
    ClickOnLabel(20, 30);
    frmMain.txtTool.UserType(text);
  }
};

const char kNone[] = "0.00 0.00 0.00 0.00 ";

// --- what they show -----------------------------------------------------------------------------

TEST_F(SizeFieldsTest, EveryNewObjectShowsItsRecord) {
  for (CommandButton* tool : {&frmMain.cmdLine, &frmMain.cmdRect, &frmMain.cmdRoundRect,
                              &frmMain.cmdEllipse, &frmMain.cmdBCode}) {
    tool->Press();
    DragOnLabel(45, 34, 20.5, 12.25);
    EXPECT_EQ(SizeFields(), OfRecord(ObjectUB)) << tool->Name();
    EXPECT_NE(SizeFields(), kNone) << tool->Name();
    Click(250, 180);
    EXPECT_EQ(SizeFields(), kNone) << tool->Name();
  }
  dialogs.files.push_back(Made("wide.jpg", "1440 720"));
  frmMain.cmdTools(2).Press();
  ClickOnLabel(20, 30);
  EXPECT_EQ(SizeFields(), "20.00 30.00 25.40 12.70 ") << "a picture of its own size";
}

TEST_F(SizeFieldsTest, ATextShowsItsExtentWhileItIsTyped) {
  frmMain.cmdTools(3).Press();
  ClickOnLabel(20, 30);
  EXPECT_EQ(SizeFields(), OfRecord(0));
  std::string before;
  for (const char* typed : {"F", "i", "g"}) {
    frmMain.txtTool.UserType(typed);
    EXPECT_EQ(SizeFields(), OfRecord(0)) << typed;
    EXPECT_NE(SizeFields(), before);
    before = SizeFields();
  }
}

TEST_F(SizeFieldsTest, CommandsForFontSizeAndWeightShowWhatTheyMakeOfIt) {
  TypeAText("Fig jam");
  frmMain.cboSize.UserChoose(10);
  EXPECT_EQ(SizeFields(), OfRecord(0)) << "size";
  frmMain.chkBold.Press();
  EXPECT_EQ(SizeFields(), OfRecord(0)) << "weight";
  frmMain.cboFont.UserChoose(1);
  EXPECT_EQ(SizeFields(), OfRecord(0)) << "font";
  EXPECT_NEAR(ObjectAt(0).Width, HoldAt(0).Width(), 1e-9);
}

TEST_F(SizeFieldsTest, SelectAllOfOneShowsItAndOfSeveralNothing) {
  PutBox(10, 12);
  frmMain.mnuEditSelectAll.Press();
  EXPECT_EQ(SizeFields(), "10.00 12.00 20.00 10.00 ");
  PutBox(40, 12);
  frmMain.mnuEditSelectAll.Press();
  EXPECT_EQ(SizeFields(), kNone);
}

TEST_F(SizeFieldsTest, AGroupShowsNothingFromItsFirstMemberOn) {
  PutBox(10, 10);
  PutBox(40, 10);
  ClickOnLabel(15, 15);
  EXPECT_EQ(SizeFields(), "10.00 10.00 20.00 10.00 ");
  KeyDown(17, kCtrl);
  ClickOnLabel(45, 15);
  EXPECT_EQ(SizeFields(), kNone);
  KeyUp(17);
  DragOnLabel(45, 15, 50, 20);
  EXPECT_EQ(SizeFields(), kNone);
}

TEST_F(SizeFieldsTest, ARightPressWithAToolArmedShowsWhatItSelects) {
  PutBox(10, 10);
  CurrentTool = kRectangle;
  Click(BoardOriginX + 15, BoardOriginY + 15, kRightButton);
  ASSERT_EQ(SelectedObject, 0);
  EXPECT_EQ(SizeFields(), "10.00 10.00 20.00 10.00 ");
}

TEST_F(SizeFieldsTest, MenusThatChangeASizeShowIt) {
  ObjectRecord field = Field(0, 100, "Name");
  field.Width = 30;
  field.Height = 10;
  SelectObject(Put(field));
  ShowSizeFields();
  dialogs.inputs = {"44", "22"};
  frmMain.mnuBCSetWid.Press();
  EXPECT_EQ(frmMain.txtDSize(2).Text(), "44.00");
  frmMain.mnuBCSetHgt.Press();
  EXPECT_EQ(frmMain.txtDSize(3).Text(), "22.00");
}

TEST_F(SizeFieldsTest, APostalFormatShowsTheSizeThatItGives) {
  ObjectRecord barcode = ShapeObject(kBarcode, 10, 10, 20, 10);
  barcode.Text = "12345";
  barcode.Param = 2;
  SelectObject(Put(barcode));
  for (const int format : {12, 13}) {
    frmMain.cboBCode.UserChoose(format);
    ASSERT_EQ(ObjectAt(0).Param, format);
    EXPECT_NE(SizeFields(), "10.00 10.00 20.00 10.00 ");
    EXPECT_EQ(SizeFields(), OfRecord(0)) << format;
  }
}

// --- while the mouse draws or drags -------------------------------------------------------------

TEST_F(SizeFieldsTest, ABoxIsShownWhileItIsDrawnWhicheverWayItGoes) {
  frmMain.cmdRect.Press();
  Press(BoardOriginX + 50, BoardOriginY + 30);
  EXPECT_EQ(SizeFields(), "50.00 30.00 0.00 0.00 ");
  MoveTo(BoardOriginX + 60, BoardOriginY + 45);
  EXPECT_EQ(SizeFields(), "50.00 30.00 10.00 15.00 ");
  MoveTo(BoardOriginX + 20, BoardOriginY + 10);
  EXPECT_EQ(SizeFields(), "20.00 10.00 30.00 20.00 ");
  Release(BoardOriginX + 20, BoardOriginY + 10);
  EXPECT_EQ(SizeFields(), "20.00 10.00 30.00 20.00 ");
}

TEST_F(SizeFieldsTest, ALineIsShownWhileItIsDrawn) {
  frmMain.cmdLine.Press();
  Press(BoardOriginX + 50, BoardOriginY + 30);
  EXPECT_EQ(SizeFields(), "50.00 30.00 0.00 0.00 ");
  MoveTo(BoardOriginX + 20, BoardOriginY + 31);
  EXPECT_EQ(SizeFields(), "20.00 30.00 30.00 0.00 ");
  MoveTo(BoardOriginX + 51, BoardOriginY + 10);
  EXPECT_EQ(SizeFields(), "50.00 10.00 0.00 20.00 ");
  Release(BoardOriginX + 51, BoardOriginY + 10);
  EXPECT_EQ(SizeFields(), "50.00 10.00 0.10 20.00 ");
}

TEST_F(SizeFieldsTest, ADrawingOverAnObjectShowsItselfAndNotThatObject) {
  PutBox(10, 10, 60, 35);
  frmMain.cmdRect.Press();
  Press(BoardOriginX + 20, BoardOriginY + 20);
  MoveTo(BoardOriginX + 30, BoardOriginY + 25);
  EXPECT_EQ(SizeFields(), "20.00 20.00 10.00 5.00 ");
}

// With every move, not one late, and where it comes to lie at the end.
TEST_F(SizeFieldsTest, AnObjectIsShownWhereItIsDragged) {
  PutBox(10, 10);
  SetRuleX(21, 1);
  Press(BoardOriginX + 15, BoardOriginY + 15);
  MoveTo(BoardOriginX + 20, BoardOriginY + 17);
  EXPECT_EQ(SizeFields(), "15.00 12.00 20.00 10.00 ");
  MoveTo(BoardOriginX + 25.5, BoardOriginY + 18);
  EXPECT_EQ(SizeFields(), "20.50 13.00 20.00 10.00 ");
  Release(BoardOriginX + 25.5, BoardOriginY + 18);
  EXPECT_EQ(SizeFields(), "21.00 13.00 20.00 10.00 ") << "on the rule";
}

TEST_F(SizeFieldsTest, AnObjectThatJumpsBackIsShownWhereItWas) {
  PutBox(10, 10);
  Press(BoardOriginX + 15, BoardOriginY + 15);
  MoveTo(BoardOriginX + 15.4, BoardOriginY + 15.4);
  EXPECT_EQ(SizeFields(), "10.40 10.40 20.00 10.00 ");
  Release(BoardOriginX + 15.4, BoardOriginY + 15.4);
  EXPECT_EQ(SizeFields(), "10.00 10.00 20.00 10.00 ");
}

TEST_F(SizeFieldsTest, ATextIsShownAsItsRecordAfterEitherDrag) {
  TypeAText("Fig jam");
  Click(250, 180);
  DragOnLabel(22, 28, 30, 35);
  EXPECT_EQ(SizeFields(), OfRecord(0));
  DragHandle(3, 12, 3);
  EXPECT_EQ(SizeFields(), OfRecord(0));
  DragHandle(0, -5, 0);
  EXPECT_EQ(SizeFields(), OfRecord(0));
}

TEST_F(SizeFieldsTest, TheBoxOfAHandleIsShownWithItsCorner) {
  SelectObject(PutBox(10, 10));
  const Label& handle = frmMain.lblHandle(0);
  Press(handle.Left() + 0.5, handle.Top() + 0.5);
  MoveTo(handle.Left() + 4.5, handle.Top() + 3.5);
  EXPECT_EQ(SizeFields(), "14.00 13.00 16.00 7.00 ");
  Release(150, 110);
  EXPECT_EQ(SizeFields(), OfRecord(0));
}

// What the fields say then is the gesture's, not an entry.
TEST_F(SizeFieldsTest, LeavingAFieldWhileTheMouseDragsTakesNothing) {
  PutBox(10, 10);
  Press(BoardOriginX + 15, BoardOriginY + 15);
  MoveTo(BoardOriginX + 25, BoardOriginY + 25);
  frmMain.txtDSize(0).UserFocus();
  LeaveField();
  ExpectRecord(0, 10, 10, 20, 10);
  Release(BoardOriginX + 25, BoardOriginY + 25);
  ExpectRecord(0, 20, 20, 20, 10);
}

// --- what they take -----------------------------------------------------------------------------

TEST_F(SizeFieldsTest, TheWidthOfANewLineIsTypedAndNothingElseChanges) {
  frmMain.cmdLine.Press();
  DragOnLabel(20, 12, 45, 13);
  TypeInto(frmMain.txtDSize(2), "60");
  LeaveField();
  ExpectRecord(0, 20, 12, 60, 0.1);
  EXPECT_EQ(SizeFields(), "20.00 12.00 60.00 0.10 ");
}

TEST_F(SizeFieldsTest, ARightAlignedTextThatHasGrownKeepsItsWidthWhenAFieldIsLeft) {
  TypeAText("Fig");
  frmMain.cmdAlign(1).Press();
  frmMain.txtTool.UserFocus();
  frmMain.txtTool.UserType(" jam and more");
  const double width = ObjectAt(0).Width;
  TypeInto(frmMain.txtDSize(1), "5");
  LeaveField();
  EXPECT_EQ(ObjectAt(0).Width, width);
  EXPECT_EQ(ObjectAt(0).Top, 5);
}

TEST_F(SizeFieldsTest, FieldsLeftUntouchedChangeNothingInEitherUnit) {
  const ObjectRecord odd = ShapeObject(kRectangle, 10.123F, 11.456F, 20.7891, 10.0123);
  for (const bool metric : {true, false}) {
    metric ? mnuUnitMM_Click() : mnuUnitIn_Click();
    for (int field = 0; field < 4; ++field) {
      ObjectUB = -1;
      SelectObject(Put(odd));
      ShowSizeFields();
      frmMain.txtDSize(field).UserFocus();
      LeaveField();
      EXPECT_EQ(ObjectAt(0), odd) << metric << field;
    }
  }
}

// Whoever has forgotten to show a selection must not cost it its size.
TEST_F(SizeFieldsTest, AFieldThatStillShowsSomethingElseIsNoEntry) {
  SelectObject(PutBox(10, 10));
  ASSERT_EQ(SizeFields(), kNone);
  UnitScale = 25.4;
  TypeInto(frmMain.txtDSize(0), "2");
  LeaveField();
  ExpectRecord(0, 50.8F, 10, 20, 10);
}

TEST_F(SizeFieldsTest, OnlyTheFieldThatWasTypedInIsTakenInInches) {
  mnuUnitIn_Click();
  SelectObject(Put(ShapeObject(kRectangle, 10.123F, 11.456F, 20.7891, 10.0123)));
  ShowSizeFields();
  TypeInto(frmMain.txtDSize(3), "2");
  LeaveField();
  EXPECT_EQ(ObjectAt(0).Left, 10.123F);
  EXPECT_EQ(ObjectAt(0).Top, 11.456F);
  EXPECT_EQ(ObjectAt(0).Width, 20.7891);
  EXPECT_DOUBLE_EQ(ObjectAt(0).Height, 50.8);
}

TEST_F(SizeFieldsTest, AnEntryIsShownAsTheRecordTookItOnceItIsLeft) {
  SelectObject(PutBox(10, 10));
  ShowSizeFields();
  TypeInto(frmMain.txtDSize(0), "10");
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "10");
  LeaveField();
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "10.00");
  frmMain.txtDSize(0).UserFocus();
  frmMain.txtDSize(0).UserEdit("1e300", 0);
  LeaveField();
  EXPECT_EQ(SizeFields(), "10.00 10.00 20.00 10.00 ");
}

// --- an entry under way -------------------------------------------------------------------------

TEST_F(SizeFieldsTest, AnEntryStaysWhileTheMousePassesAndTheBoardIsRedrawn) {
  PutBox(10, 10);
  ClickOnLabel(15, 15);
  TypeInto(frmMain.txtDSize(0), "33");
  MoveTo(BoardOriginX + 16, BoardOriginY + 16);
  RedrawBoard();
  frmMain.mnuFileRulers.Press();
  EXPECT_EQ(SizeFields(), "33 10.00 20.00 10.00 ");
  LeaveField();
  ExpectRecord(0, 33, 10, 20, 10);
}

// A command that has changed the record has the last word, also in the field that has the keyboard.
TEST_F(SizeFieldsTest, AFieldWithTheKeyboardFollowsItsRecord) {
  PutBox(10, 10);
  ClickOnLabel(15, 15);
  frmMain.txtDSize(2).UserFocus();
  frmMain.mnuShpAspect(0).Press();
  EXPECT_EQ(SizeFields(), "10.00 10.00 10.00 10.00 ");
  LeaveField();
  ExpectRecord(0, 10, 10, 10, 10);
}

TEST_F(SizeFieldsTest, SelectAllTakesTheEntryFirstAndTheKeyboardToTheBoard) {
  PutBox(10, 10);
  PutBox(40, 10);
  ClickOnLabel(15, 15);
  TypeInto(frmMain.txtDSize(1), "25");
  frmMain.mnuEditSelectAll.Press();
  ExpectRecord(0, 10, 25, 20, 10);
  EXPECT_EQ(SizeFields(), kNone);
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
}

TEST_F(SizeFieldsTest, AChangeOfUnitTakesTheEntryInTheUnitInWhichItWasTyped) {
  PutBox(10, 10);
  ClickOnLabel(15, 15);
  TypeInto(frmMain.txtDSize(0), "50.8");
  frmMain.mnuUnitIn.Press();
  EXPECT_NEAR(ObjectAt(0).Left, 50.8, 1e-5);
  EXPECT_EQ(SizeFields(), "2.00 0.39 0.79 0.39 ");
  frmMain.mnuUnitMM.Press();
  EXPECT_EQ(SizeFields(), "50.80 10.00 20.00 10.00 ");
}

}  // namespace
}  // namespace tagwright
