// The font and size that a tool's panel shows at its opening are those of the next object. What is
// selected meanwhile keeps its own.
#include <vector>

#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

class NextStyleTest : public HandTest {
 protected:
  // One of each kind that has a font, in one that no panel proposes.
  NextStyleTest() {
    PutText("Apple", 10, 10);
    ObjectRecord field = ShapeObject(kDataField, 10, 25, 20, 6);
    field.Text = "Name";
    Put(field);
    ObjectRecord barcode = ShapeObject(kBarcode, 50, 10, 30, 15);
    barcode.Text = "12345";
    barcode.Param = 2;
    barcode.FillColor = 0;
    Put(barcode);
    for (int i = 0; i <= ObjectUB; ++i) {
      ObjectAt(i).FontName = "Courier New";
      ObjectAt(i).FontSize = 14;
      ObjectAt(i).Bold = kTrue;
    }
    ObjectRecord last = TextObject("Last", 60, 30);
    for (const Kind kind : {kText, kDataField, kBarcode}) {
      last.ObjType = kind;
      last.FontName = "Times New Roman";
      last.FontSize = 8;
      last.Param = kind == kBarcode ? kFormatPostNet : 0;
      last.Top += 5;
      Put(last);
    }
  }

  static void ExpectOwnStyle(int index, const std::string& when) {
    EXPECT_EQ(ObjectAt(index).FontName.Trimmed(), "Courier New") << when << index;
    EXPECT_EQ(ObjectAt(index).FontSize, 14) << when << index;
    EXPECT_EQ(ObjectAt(index).Bold, kTrue) << when << index;
  }

  static void ExpectTheLastStyleShown() {
    EXPECT_EQ(frmMain.cboFont.Text(), "Times New Roman");
    EXPECT_EQ(frmMain.cboSize.Text(), "8");
  }
};

TEST_F(NextStyleTest, ImportByItsMenuLeavesTheSelectedObjectAlone) {
  for (int index = 0; index < 3; ++index) {
    ClickOnLabel(ObjectAt(index).Left + 1, ObjectAt(index).Top + 1);
    ASSERT_EQ(SelectedObject, index);
    frmMain.mnuFileImport.Press();
    ExpectTheLastStyleShown();
    ExpectOwnStyle(index, "selected ");
    DeselectObject();
    ExpectOwnStyle(index, "left ");
  }
}

TEST_F(NextStyleTest, ImportByItsMenuLeavesAGroupAlone) {
  frmMain.mnuEditSelectAll.Press();
  ASSERT_EQ(SelectedUpper, ObjectUB);
  frmMain.mnuFileImport.Press();
  ExpectTheLastStyleShown();
  for (int index = 0; index < 3; ++index) ExpectOwnStyle(index, "in a group ");
}

// A held modifier keeps the selection through the press.
TEST_F(NextStyleTest, AToolButtonWithAModifierLeavesTheSelectionAlone) {
  for (const int tool : {1, 3, 7}) {
    for (int index = 0; index < 3; ++index) {
      CurrentTool = 0;
      ClickOnLabel(ObjectAt(index).Left + 1, ObjectAt(index).Top + 1);
      ASSERT_EQ(SelectedObject, index);
      ModifierHeld = true;
      frmMain.cmdTools(tool).UserFocus();  // as every way to press it brings along
      frmMain.cmdTools(tool).Press();
      ModifierHeld = false;
      ASSERT_EQ(SelectedObject, index);
      ExpectTheLastStyleShown();
      ExpectOwnStyle(index, "tool " + std::to_string(tool) + ", object ");
      frmMain.cmdTools(0).Press();
    }
  }
}

// Not even a postal one, whose size its data decides.
TEST_F(NextStyleTest, TheFormatOfTheNextBarcodeIsNotGivenToTheSelectedOne) {
  constexpr int kBarcodeIndex = 2;
  ClickOnLabel(ObjectAt(kBarcodeIndex).Left + 1, ObjectAt(kBarcodeIndex).Top + 1);
  ASSERT_EQ(SelectedObject, kBarcodeIndex);
  ASSERT_EQ(frmMain.txtBCodeData.Text(), "12345");
  const ObjectRecord before = ObjectAt(kBarcodeIndex);
  DirtyFlag = kFalse;
  ModifierHeld = true;
  frmMain.cmdTools(kBarcodeButton).UserFocus();
  frmMain.cmdTools(kBarcodeButton).Press();
  ModifierHeld = false;
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), kFormatPostNet);
  EXPECT_EQ(ObjectAt(kBarcodeIndex), before);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_TRUE(frmMain.cmdBCode.Enabled()) << "the data has been looked at";
}

}  // namespace
}  // namespace tagwright
