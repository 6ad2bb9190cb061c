// The pop-up menu of a data field.
#include "output/data_fields.h"

#include "document/objects.h"
#include "forms/frmMain.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class DataFieldsTest : public ProgramTest {
 protected:
  DataFieldsTest() {
    ReadyBoard();
    LabelWidth = 100;
    LabelHeight = 50;
    frmMain.mnuField.Events().Click = mnuField_Click;
    frmMain.mnuFBC.Events().Click = mnuFBC_Click;
  }

  ObjectRecord& Select(Kind kind) {
    GrowObjects();
    ClearObject(ObjectUB);
    ObjectRecord& object = ObjectAt(ObjectUB);
    object.ObjType = kind;
    object.Width = 30;
    object.Height = 6;
    SelectedObject = ObjectUB;
    HoldAt(ObjectUB).SetWidth(21.5);
    HoldAt(ObjectUB).SetHeight(4.25);
    return object;
  }
};

TEST_F(DataFieldsTest, AFormatIsStoredWithTheSizeOfTheHitAreaAndRedrawn) {
  for (const int format : {0, 1, 2}) {
    ObjectRecord& field = Select(kDataField);
    const auto redraws = RedrawCount;
    frmMain.mnuField(format).Press();
    EXPECT_EQ(field.FillColor, format);
    EXPECT_EQ(field.Width, 21.5);
    EXPECT_EQ(field.Height, 4.25);
    EXPECT_EQ(RedrawCount, redraws + 1);
  }
}

TEST_F(DataFieldsTest, ABarcodeIsStoredFromAHundredOnAndKeepsTheSize) {
  for (const int format : {0, 7, 13, 14, 15}) {
    ObjectRecord& field = Select(kDataField);
    const auto redraws = RedrawCount;
    frmMain.mnuFBC(format).Press();
    EXPECT_EQ(field.FillColor, 100 + format);
    EXPECT_EQ(field.Width, 30);
    EXPECT_EQ(field.Height, 6);
    EXPECT_EQ(RedrawCount, redraws + 1);
  }
}

TEST_F(DataFieldsTest, EachCountsAsAChange) {
  Select(kDataField);
  frmMain.mnuField(1).Press();
  EXPECT_EQ(DirtyFlag, kTrue);
  DirtyFlag = kFalse;
  frmMain.mnuFBC(1).Press();
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(DataFieldsTest, WithoutASelectedFieldNothingHappens) {
  const ObjectRecord text = Select(kText);
  const auto redraws = RedrawCount;
  for (const std::int16_t selected : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{9}}) {
    SelectedObject = selected;
    frmMain.mnuField(2).Press();
    frmMain.mnuFBC(2).Press();
  }
  EXPECT_EQ(ObjectAt(0), text);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
}

}  // namespace
}  // namespace tagwright
