// A text that is open is shown by its hit area: whole wherever the board goes, and as large as it
// is shown in its record once it is deselected.
#include "editing/property_pick.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

class OpenTextTest : public HandTest {
 protected:
  // As it was saved where fonts measure otherwise: five characters in 12 by 7 mm.
  void PutNarrowText() {
    ObjectRecord text = TextObject("Apple", 10, 10);
    text.Width = 12;
    text.Height = 7;
    Put(text);
  }

  static void ExpectFitted(double points, const std::string& when) {
    EXPECT_NEAR(HoldAt(0).Width(), TextWidthOf(5, points), 1e-6) << when;
    EXPECT_NEAR(HoldAt(0).Height(), LineHeightOf(points), 1e-6) << when;
    EXPECT_NEAR(frmMain.shpBox.Width(), TextWidthOf(5, points), 1e-6) << when;
    EXPECT_NEAR(HoldAt(0).Left(), ObjectAt(0).Left + BoardOriginX, 1e-4) << when;
    EXPECT_NEAR(HoldAt(0).Top(), ObjectAt(0).Top + BoardOriginY, 1e-4) << when;
    EXPECT_EQ(HoldAt(0).Caption(), "Apple") << when;
  }

  static void ChooseZoom(const std::string& zoom) {
    for (int row = 0; row < frmMain.cboZoom.ListCount(); ++row) {
      if (frmMain.cboZoom.List(row) == zoom) frmMain.cboZoom.UserChoose(row);
    }
  }

  static void ExpectFittedWhereverTheBoardGoes(double points) {
    RedrawBoard();
    ExpectFitted(points, "redrawn");
    frmMain.hS1.SetValue(frmMain.hS1.Value() + 20);
    ExpectFitted(points, "scrolled");
    ChooseZoom("200%");
    ExpectFitted(points, "larger");
    ChooseZoom("100%");
    ExpectFitted(points, "as it was");
  }

  static void ExpectFittedRecord(double points) {
    DeselectObject();
    EXPECT_NEAR(ObjectAt(0).Width, TextWidthOf(5, points), 1e-6);
    EXPECT_NEAR(ObjectAt(0).Height, LineHeightOf(points), 1e-6);
  }
};

TEST_F(OpenTextTest, AfterALoadItIsShownWhole) {
  PutNarrowText();
  ClickOnLabel(12, 12);
  ASSERT_EQ(SelectedObject, 0);
  ExpectFittedWhereverTheBoardGoes(kTenMillimetres);
  ExpectFittedRecord(kTenMillimetres);
}

TEST_F(OpenTextTest, AfterAHandleItIsShownWholeAndItsRecordKeepsTheDraggedWidthUntilDeselected) {
  PutText("Apple");
  ClickOnLabel(12, 12);
  DragHandle(3, 11.3, 0);
  const double points = ObjectAt(0).FontSize;
  ASSERT_GT(points, kTenMillimetres);
  const double dragged = ObjectAt(0).Width;
  ASSERT_NE(dragged, HoldAt(0).Width());
  ExpectFittedWhereverTheBoardGoes(points);
  EXPECT_EQ(ObjectAt(0).Width, dragged);
  ExpectFittedRecord(points);
}

TEST_F(OpenTextTest, AfterAPickOfALargerFontItIsShownWhole) {
  PutText("Apple");
  ObjectRecord large = TextObject("Fig", 10, 30);
  large.FontSize = 48;
  large.Width = 20;
  large.Height = 15;
  Put(large);
  ClickOnLabel(12, 12);
  mnuTextCopy_Click();
  ClickOnLabel(12, 32);
  ASSERT_EQ(SelectedObject, 0);
  ASSERT_EQ(ObjectAt(0).FontSize, 48);
  ExpectFittedWhereverTheBoardGoes(48);
  ExpectFittedRecord(48);
}

TEST_F(OpenTextTest, AMoveLeavesItWhole) {
  PutNarrowText();
  DragOnLabel(12, 12, 20, 18);
  ExpectFitted(kTenMillimetres, "dropped");
  ExpectRecord(0, 18, 16, 12, 7);
  ExpectFittedWhereverTheBoardGoes(kTenMillimetres);
  ExpectFittedRecord(kTenMillimetres);
}

// Alignment is by the record's width once the painter shows the text.
TEST_F(OpenTextTest, ATypedSizeIsTheHitAreasAndStaysInTheRecord) {
  PutText("Apple");
  ClickOnLabel(12, 12);
  TypeInto(frmMain.txtDSize(2), "70");
  frmMain.cboZoom.UserFocus();
  frmMain.hS1.SetValue(frmMain.hS1.Value() + 20);
  EXPECT_NEAR(HoldAt(0).Width(), 70, 1e-9);
  EXPECT_NEAR(HoldAt(0).Height(), kLineHeight, 1e-9);
  TypeInto(frmMain.txtDSize(3), "30");
  DeselectObject();
  ExpectRecord(0, 10, 10, 70, 30);
}

TEST_F(OpenTextTest, APlaceTypedAfterAHandleLeavesTheSizeAlone) {
  PutText("Apple");
  ClickOnLabel(12, 12);
  DragHandle(3, 11.3, 0);
  TypeInto(frmMain.txtDSize(0), "4");
  frmMain.cboZoom.UserFocus();
  EXPECT_EQ(ObjectAt(0).Left, 4);
  ExpectFitted(ObjectAt(0).FontSize, "moved");
}

TEST_F(OpenTextTest, TheCaretOfANewTextStaysThroughZoomAndScroll) {
  frmMain.cmdTools(3).Press();
  ClickOnLabel(20, 30);
  ASSERT_EQ(HoldAt(0).Caption(), "|");
  const double points = ObjectAt(0).FontSize;
  frmMain.hS1.SetValue(frmMain.hS1.Value() + 20);
  EXPECT_EQ(HoldAt(0).Caption(), "|");
  EXPECT_NEAR(HoldAt(0).Height(), LineHeightOf(points), 1e-6);
  ChooseZoom("200%");
  EXPECT_EQ(HoldAt(0).Caption(), "|");
  EXPECT_NEAR(HoldAt(0).Height(), LineHeightOf(points), 1e-6);
  EXPECT_NEAR(HoldAt(0).Width(), TextWidthOf(1, points), 1e-6);
}

}  // namespace
}  // namespace tagwright
