#include "editing/undo.h"

#include "editing/editing_support.h"

namespace tagwright {
namespace {

class UndoTest : public EditingTest {};

TEST_F(UndoTest, NothingSelectedSavesNothing) {
  PutBox(10, 10);
  frmMain.mnuUndo.SetEnabled(false);
  SaveUndoDelete();
  EXPECT_EQ(UndoUpper, -1);
  EXPECT_FALSE(frmMain.mnuUndo.Enabled());
}

TEST_F(UndoTest, OneObjectGoesToTheFirstPlaceAndNoIndexIsWritten) {
  for (int i = 0; i < 3; ++i) PutBox(10.0F * static_cast<float>(i), 10);
  UndoIndexes[0] = 77;
  UndoKind = UndoOf::kMove;
  SelectedObject = 2;
  SaveUndoDelete();
  EXPECT_EQ(UndoKind, UndoOf::kDelete);
  EXPECT_EQ(UndoUpper, 0);
  EXPECT_EQ(UndoRecords[0], ObjectAt(2));
  EXPECT_EQ(UndoIndexes[0], 77);
  EXPECT_EQ(frmMain.mnuUndo.Caption(), "Undo Object Delete");
  EXPECT_TRUE(frmMain.mnuUndo.Enabled());
}

// As many places are written as there are objects; the list names anything behind the group.
TEST_F(UndoTest, AGroupIsCopiedUpToTheDocumentsBound) {
  for (int i = 0; i < 4; ++i) PutBox(10.0F * static_cast<float>(i), 10);
  SelectedList = {2, 1, 3, 9};
  SelectedList.resize(kSelectionSlots);
  SelectedUpper = 1;
  SaveUndoDelete();
  EXPECT_EQ(UndoUpper, 1);
  EXPECT_EQ(UndoRecords[0].Left, 20);
  EXPECT_EQ(UndoRecords[1].Left, 10);
  EXPECT_EQ(UndoRecords[2].Left, 30);         // a harmless copy
  EXPECT_EQ(UndoRecords[3], ObjectRecord{});  // of no object: passed over
}

TEST_F(UndoTest, OnlyTheMarkerTellsOfAMemberThatIsNoObject) {
  PutBox(10, 10);
  PutBox(30, 10);
  SelectedList = {0, 9};
  SelectedList.resize(kSelectionSlots);
  SelectedUpper = 1;
  SaveUndoDelete();
  EXPECT_TRUE(dialogs.messages.empty());
  Made("tracemark.flg", "");
  SaveUndoDelete();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "9 - Subscript out of range");
}

TEST_F(UndoTest, ForgettingKeepsTheCaption) {
  PutBox(10, 10);
  SelectedObject = 0;
  SaveUndoDelete();
  ForgetUndo();
  EXPECT_EQ(UndoUpper, -1);
  EXPECT_FALSE(frmMain.mnuUndo.Enabled());
  EXPECT_EQ(frmMain.mnuUndo.Caption(), "Undo Object Delete");
}

}  // namespace
}  // namespace tagwright
