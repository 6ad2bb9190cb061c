#include "editing/deletion.h"

#include "editing/editing_support.h"

namespace tagwright {
namespace {

using Members = std::vector<std::int16_t>;

class ClipboardTest : public EditingTest {
 protected:
  // Five boxes, told apart by their place.
  void PutFive() {
    for (int i = 0; i < 5; ++i) PutBox(10.0F * static_cast<float>(i), 10);
  }

  static std::vector<float> Places() {
    std::vector<float> places;
    for (int i = 0; i <= ObjectUB; ++i) places.push_back(ObjectAt(i).Left);
    return places;
  }
};

TEST_F(ClipboardTest, AGroupIsSortedAscending) {
  const struct {
    Members before, after;
  } rows[] = {{{3, 1, 2}, {1, 2, 3}}, {{2, 1}, {1, 2}}, {{5}, {5}}, {{4, 4, 0}, {0, 4, 4}}};
  for (const auto& row : rows) {
    SelectedUpper = -1;
    for (const std::int16_t member : row.before) SelectedMember(++SelectedUpper) = member;
    SortSelection();
    EXPECT_EQ(GroupMembers(), row.after);
  }
}

TEST_F(ClipboardTest, WhatLiesBehindTheGroupIsNotSorted) {
  SelectedList = {3, 2, 1, 0};
  SelectedUpper = 1;
  SortSelection();
  EXPECT_EQ(SelectedList, (Members{2, 3, 1, 0}));
}

TEST_F(ClipboardTest, DeletingNothingDoesNothing) {
  PutFive();
  frmMain.sB1.SetPanelText(3, "kept");
  const auto redraws = RedrawCount;
  DeleteSelection();
  EXPECT_EQ(ObjectUB, 4);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "kept");
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(UndoUpper, -1);
}

TEST_F(ClipboardTest, ADeletionIsAnUnsavedChangeAndNothingToDeleteIsNone) {
  PutFive();
  DeleteSelection();
  EXPECT_EQ(DirtyFlag, kFalse);
  SelectObject(1);
  DeleteSelection();
  EXPECT_EQ(DirtyFlag, kTrue);
  DirtyFlag = kFalse;
  SelectGroup({0, 1});
  DeleteSelection();
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ClipboardTest, TheMarkerTellsOfAMemberThatIsNoObject) {
  PutFive();
  SelectedUpper = 1;
  SelectedList = {1, 40};
  DeleteSelection();
  EXPECT_EQ(ObjectUB, 3);
  EXPECT_TRUE(dialogs.messages.empty());
  Made("tracemark.flg", "");
  SelectedUpper = 1;
  SelectedList = {1, 40};
  DeleteSelection();
  EXPECT_EQ(ObjectUB, 2);
  ASSERT_FALSE(dialogs.messages.empty());
  EXPECT_EQ(dialogs.messages[0].text, "9 - Subscript out of range");
}

TEST_F(ClipboardTest, DeletingOneObjectKeepsItForUndoAndRedraws) {
  PutFive();
  SelectObject(1);
  frmMain.sB1.SetPanelText(3, "x");
  const auto redraws = RedrawCount;
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{0, 20, 30, 40}));
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(UndoUpper, 0);
  EXPECT_EQ(UndoRecords[0].Left, 10);
  EXPECT_EQ(frmMain.mnuUndo.Caption(), "Undo Object Delete");
  EXPECT_TRUE(frmMain.mnuUndo.Enabled());
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
}

TEST_F(ClipboardTest, DeletingMembersOneAndThreeOfFiveLeavesTheOthersInOrder) {
  PutFive();
  SelectGroup({3, 1});
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{0, 20, 40}));
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(UndoUpper, 1);
  EXPECT_EQ(UndoRecords[0].Left, 10);  // in ascending order
  EXPECT_EQ(UndoRecords[1].Left, 30);
  for (int i = 3; i < 5; ++i) EXPECT_FALSE(frmMain.lblHold(i).Visible());
}

TEST_F(ClipboardTest, AMemberThatIsListedTwiceIsDeletedOnce) {
  PutFive();
  SelectGroup({2, 2});
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{0, 10, 30, 40}));
}

TEST_F(ClipboardTest, DeletingEverything) {
  PutFive();
  mnuEditSelectAll_Click();
  DeleteSelection();
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(UndoUpper, 4);
}

// Ctrl+X and Shift+Del: the held key keeps DeselectObject from ending the selection.
TEST_F(ClipboardTest, NothingStaysSelectedAlsoWithAModifierHeld) {
  PutFive();
  ModifierHeld = true;
  SelectObject(4);
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{0, 10, 20, 30}));
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(HandlesShown(), "");
  SelectGroup({0, 3});
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{10, 20}));
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
}

TEST_F(ClipboardTest, AnEmptyTextBehindTheDeletedObjectGoesWithItAndNothingElse) {
  PutBox(0, 10);
  PutText("");
  PutBox(20, 10);
  SelectObject(0);
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{20}));
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
}

TEST_F(ClipboardTest, GroupsWithEmptyTextsAroundThemAreDeletedWhole) {
  PutBox(0, 10);
  PutText("", 5);
  PutBox(10, 10);
  PutText("", 15);
  PutBox(20, 10);
  PutText("", 25);
  SelectGroup({4, 0});
  DeleteSelection();
  EXPECT_EQ(Places(), (std::vector<float>{10}));
  for (int i = 0; i <= ObjectUB; ++i) EXPECT_NE(ObjectAt(i).ObjType, kDeleteMark);
}

}  // namespace
}  // namespace tagwright
