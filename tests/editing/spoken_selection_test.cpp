#include "editing/spoken_selection.h"

#include "editing/editing_support.h"

namespace tagwright {
namespace {

class SpokenSelectionTest : public EditingTest {};

TEST_F(SpokenSelectionTest, KindTextAndPlace) {
  ObjectRecord record = ShapeObject(kRectangle, 10, 5, 30, 20.5);
  const struct {
    Kind kind;
    const char* text;
    const char* words;
  } rows[] = {{kBarcode, "123", "Barcode \"123\""},
              {kPicture, "/home/anna/logo.gif", "Picture \"logo.gif\""},
              {kText, "Hello", "Text \"Hello\""},
              {kText, "", "Text"},
              {kLine, "", "Line"},
              {kRectangle, "", "Rectangle"},
              {kRoundedRectangle, "", "Rounded rectangle"},
              {kEllipse, "", "Ellipse"},
              {kDataField, "Town", "Data field \"Town\""},
              {kBlank, "", "Object"}};
  Add(record);
  SelectedObject = 0;
  for (const auto& row : rows) {
    ObjectAt(0).ObjType = row.kind;
    ObjectAt(0).Text = row.text;
    EXPECT_EQ(SelectionInWords(), std::string(row.words) + " at 10.00, 5.00, 30.00 by 20.50 mm");
  }
}

TEST_F(SpokenSelectionTest, InInches) {
  Add(ShapeObject(kEllipse, 25.4F, 50.8F, 12.7, 6.35));
  SelectedObject = 0;
  UnitScale = 25.4;
  EXPECT_EQ(SelectionInWords(), "Ellipse at 1.00, 2.00, 0.50 by 0.25 in");
}

TEST_F(SpokenSelectionTest, GroupsAreCountedAndNothingIsSaidToBeNothing) {
  EXPECT_EQ(SelectionInWords(), "Nothing selected");
  SelectedUpper = 2;
  EXPECT_EQ(SelectionInWords(), "3 objects selected");
}

// An unreadable picture leaves the selection behind the last record.
TEST_F(SpokenSelectionTest, ASelectionThatHasGoneIsNone) {
  SelectedObject = 0;
  EXPECT_EQ(SelectionInWords(), "Nothing selected");
}

}  // namespace
}  // namespace tagwright
