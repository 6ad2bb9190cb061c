#include "editing/selection.h"

#include "editing/editing_support.h"
#include "support/fault_of.h"

namespace tagwright {
namespace {

using Members = std::vector<std::int16_t>;

constexpr double kBoldWidth = 1.1;  // of the fixed fonts

class SelectionTest : public EditingTest {
 protected:
  // Those that need a selection: copy, cut, centre, front, back; align and size need a group.
  static std::string CommandsEnabled() {
    std::string enabled;
    const auto note = [&](const Menu& entry, char letter) {
      enabled += entry.Enabled() ? letter : '-';
    };
    note(frmMain.mnuEditCopy, 'c');
    note(frmMain.mnuEditCut, 'x');
    note(frmMain.mnuAHoriz, 'h');
    note(frmMain.mnuArrangeBTF, 'f');
    note(frmMain.mnuArrangeSTB, 'b');
    note(frmMain.mnuArrAlign, 'A');
    note(frmMain.mnuArrSize, 'S');
    return enabled;
  }

  // As a press on a text leaves it: its hit area shows it and txtTool has the keyboard.
  void OpenText(int index) {
    SelectObject(index);
    FillPanelFromObject();
  }
};

// --- commands -----------------------------------------------------------------------------------

TEST_F(SelectionTest, CommandsForOneObjectForAGroupAndForNothing) {
  EnableSelectionCommands(false);
  EXPECT_EQ(CommandsEnabled(), "cxhfb--");
  EnableSelectionCommands(true);
  EXPECT_EQ(CommandsEnabled(), "cxhfbAS");
  DisableSelectionCommands();
  EXPECT_EQ(CommandsEnabled(), "-------");
}

// --- the end of a selection ---------------------------------------------------------------------

TEST_F(SelectionTest, WhileAModifierIsHeldNothingIsDeselected) {
  SelectObject(PutBox(10, 10));
  EnableSelectionCommands(false);
  ModifierHeld = true;
  DeselectObject();
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(CommandsEnabled(), "cxhfb--");
  EXPECT_EQ(HandlesShown(), "0123");
}

TEST_F(SelectionTest, AGroupIsDroppedWithItsCommandsItsBoxAndItsCount) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  EnableSelectionCommands(true);
  frmMain.sB1.SetPanelText(2, "kept");
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  frmMain.txtDSize(0).SetText("10.00");  // of the first, before the second joined it
  const auto redraws = RedrawCount;
  DeselectObject();
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(CommandsEnabled(), "-------");
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(frmMain.sB1.PanelText(2), "kept");
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "0.00");
  EXPECT_EQ(RedrawCount, redraws);
}

TEST_F(SelectionTest, TheCountOfOneGoesWithItsObjectAndOtherWordsStay) {
  PutBox(10, 10);
  mnuEditSelectAll_Click();
  ASSERT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 1");
  DeselectObject();
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  SelectObject(0);
  frmMain.sB1.SetPanelText(3, "Magnetic Rule - Zone: 2.0 mm");
  DeselectObject();
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Magnetic Rule - Zone: 2.0 mm");
}

TEST_F(SelectionTest, AnObjectThatIsNoTextIsLeftWithoutARedraw) {
  SelectObject(PutBox(10, 10));
  frmMain.sB1.SetPanelText(2, "Width: 20.0 Height: 10.0");
  for (int i = 0; i < 4; ++i) frmMain.txtDSize(i).SetText("5.00");
  frmMain.lblHold(0).Move(1, 2, 3, 4);
  const auto redraws = RedrawCount;
  DeselectObject();
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(frmMain.sB1.PanelText(2), "");
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(HandlesShown(), "");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(frmMain.txtDSize(i).Text(), "0.00");
  ExpectRecord(0, 10, 10, 20, 10);  // nothing is taken from the hit area
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
}

TEST_F(SelectionTest, ATextTakesPlaceAndSizeOfItsHitAreaAndIsPaintedAgain) {
  SelectObject(PutText("Ab"));
  Label& hold = frmMain.lblHold(0);
  hold.SetBackStyle(1);
  hold.SetCaption("Ab");
  hold.SetAutoSize(true);
  hold.Move(130.5, 95.25, 12, 7);
  const auto redraws = RedrawCount;
  DeselectObject();
  ExpectRecord(0, 30.5, 20.25, 12, 7);
  EXPECT_FALSE(hold.AutoSize());
  EXPECT_EQ(hold.Caption(), "");
  EXPECT_EQ(hold.BackStyle(), 0);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
}

// The other way round the text would be erased by the empty box.
TEST_F(SelectionTest, NothingIsSelectedAnyMoreWhenTheTextBoxIsEmptied) {
  OpenText(PutText("Ab"));
  ASSERT_EQ(frmMain.txtTool.Text(), "Ab");
  DeselectObject();
  EXPECT_EQ(frmMain.txtTool.Text(), "");
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Ab");
}

TEST_F(SelectionTest, TheKeyboardGoesToTheBoardFirstSoWhatIsTypedIsCommitted) {
  OpenText(PutText("Ab"));
  frmMain.txtTool.UserType("cd");
  frmMain.cboSize.SetText("20");  // the commit reads the size from here
  DeselectObject();
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Abcd");
  EXPECT_EQ(ObjectAt(0).FontSize, 20);
  EXPECT_FALSE(TextEditOpen);
}

TEST_F(SelectionTest, ATextWithoutAPendingEntryTakesNothingFromTheBox) {
  SelectObject(PutText("Ab"));
  PanelLoading = true;
  frmMain.txtTool.SetText("of another object");
  PanelLoading = false;
  DeselectObject();
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Ab");
}

TEST_F(SelectionTest, AnEmptyTextThatIsTheLastObjectIsDropped) {
  PutBox(10, 10);
  SelectObject(PutText("   "));
  const auto redraws = RedrawCount;
  DeselectObject();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_FALSE(frmMain.lblHold(1).Visible());
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(HandlesShown(), "");
}

// On purpose: the whole command runs. The group stays selected, and seen to be.
TEST_F(SelectionTest, AnEmptyTextThatIsNotTheLastObjectSelectsEverythingThatIsLeft) {
  SelectObject(PutText(""));
  PutBox(10, 10);
  PutText("");
  PutBox(40, 10);
  DeselectObject();
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(0).Left, 10);
  EXPECT_EQ(ObjectAt(1).Left, 40);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_EQ(SelectedObject, -1);
  ExpectFrame(110, 85, 50, 10);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_EQ(CommandsEnabled(), "cxhfbAS");
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
}

// A single object that is left is deselected like the text: nothing may tell of it any more.
TEST_F(SelectionTest, AnEmptyTextBeforeASingleObjectLeavesNothingSelected) {
  SelectObject(PutText(""));
  PutBox(10, 10);
  DeselectObject();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(CommandsEnabled(), "-------");
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  EXPECT_FALSE(frmMain.shpBox.Visible());
}

// --- the group ----------------------------------------------------------------------------------

TEST_F(SelectionTest, TheFirstToJoinBringsTheSelectedObjectAlong) {
  for (int i = 0; i < 3; ++i) PutBox(10.0F * static_cast<float>(i), 10);
  SelectedObject = 2;
  ToggleInSelection(0);
  EXPECT_EQ(GroupMembers(), (Members{2, 0}));
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
  ToggleInSelection(1);
  EXPECT_EQ(GroupMembers(), (Members{2, 0, 1}));
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 3");
}

TEST_F(SelectionTest, WithNothingSelectedTheFirstIsAGroupOfOne) {
  PutBox(10, 10);
  ToggleInSelection(0);
  EXPECT_EQ(GroupMembers(), (Members{0}));
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 1");
}

TEST_F(SelectionTest, TheSelectedObjectItselfEntersTwice) {
  PutBox(10, 10);
  SelectedObject = 0;
  ToggleInSelection(0);
  EXPECT_EQ(GroupMembers(), (Members{0, 0}));
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
}

TEST_F(SelectionTest, AMemberLeavesAndTheOthersMoveUp) {
  for (int i = 0; i < 4; ++i) PutBox(10.0F * static_cast<float>(i), 10);
  SelectGroup({3, 1, 0, 2});
  ToggleInSelection(1);
  EXPECT_EQ(GroupMembers(), (Members{3, 0, 2}));
  ToggleInSelection(2);
  ToggleInSelection(3);
  EXPECT_EQ(GroupMembers(), (Members{0}));  // one alone stays a group
  ToggleInSelection(0);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 0");
}

TEST_F(SelectionTest, AListIsFullAt257) {
  for (std::int16_t i = 0; i < 257; ++i) ToggleInSelection(i);
  EXPECT_EQ(SelectedUpper, 256);
  EXPECT_EQ(FaultOf([] { ToggleInSelection(257); }), kOutOfBounds);
  EXPECT_EQ(SelectedUpper, 256);
  ToggleInSelection(256);
  EXPECT_EQ(SelectedUpper, 255);
}

TEST_F(SelectionTest, OnlyThoseUpToTheBoundAreMembers) {
  SelectGroup({});
  SelectedList = {4, 5, 6};
  SelectedUpper = 1;
  EXPECT_TRUE(InGroup(5));
  EXPECT_FALSE(InGroup(6));
  SelectedUpper = -1;
  EXPECT_FALSE(InGroup(4));
}

// --- removing -----------------------------------------------------------------------------------

TEST_F(SelectionTest, RemovingMovesRecordsDownAndHitAreasOntoTheirSuccessors) {
  PutBox(10, 10);
  PutBox(40, 10, 5, 6);
  PutBox(70, 10, 7, 8);
  frmMain.lblHold(1).SetCaption("x");
  SelectObject(1);
  RemoveObject();
  EXPECT_EQ(ObjectUB, 1);
  ExpectRecord(1, 70, 10, 7, 8);
  EXPECT_EQ(frmMain.lblHold(1).Left(), 170);
  EXPECT_EQ(frmMain.lblHold(1).Caption(), "");
  EXPECT_EQ(frmMain.lblHold(1).Width(), 5);  // the size waits for the next redraw
  EXPECT_FALSE(frmMain.lblHold(2).Visible());
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(Objects.size(), 3U);
}

// The selection ends before the bound falls, so a text that has moved down takes the size of the
// hit area that it came to.
TEST_F(SelectionTest, ATextThatMovesDownTakesTheSizeOfTheHitAreaThere) {
  PutBox(10, 10, 33, 44);
  PutText("Ab", 50, 10);
  SelectObject(0);
  RemoveObject();
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Ab");
  ExpectRecord(0, 50, 10, 33, 44);
}

// Were the box left after the records have moved, the second text would become the first one's.
TEST_F(SelectionTest, WhatIsBeingTypedDoesNotReachTheObjectThatMovesDown) {
  PutText("first");
  PutText("second", 10, 30);
  OpenText(0);
  frmMain.txtTool.UserType("!");
  RemoveObject();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "second");
}

TEST_F(SelectionTest, AnEmptyTextAtTheEndIsRemovedOnce) {
  PutBox(10, 10);
  PutText("");
  SelectObject(1);
  RemoveObject();
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(SelectionTest, WithAModifierHeldTheRecordGoesAllTheSame) {
  PutBox(10, 10);
  PutText("");
  SelectObject(1);
  ModifierHeld = true;
  RemoveObject();
  EXPECT_EQ(ObjectUB, 0);
}

// --- select all ---------------------------------------------------------------------------------

TEST_F(SelectionTest, SelectAllOnAnEmptyLabelEmptiesThePanelOnly) {
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  DisableSelectionCommands();
  mnuEditSelectAll_Click();
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(CommandsEnabled(), "-------");
}

TEST_F(SelectionTest, SelectAllOfOneObjectSelectsItWithHandles) {
  PutBox(10, 10);
  mnuEditSelectAll_Click();
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(HandlesShown(), "0123");
  ExpectFrame(110, 85, 20, 10);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 1");
  EXPECT_EQ(CommandsEnabled(), "cxhfbAS");
}

TEST_F(SelectionTest, SelectAllDeletesTheEmptyTextAndSelectsTheOtherObject) {
  for (const bool empty_first : {true, false}) {
    ObjectUB = -1;
    if (empty_first) PutText("  ");
    PutBox(10, 10);
    if (!empty_first) PutText("  ");
    mnuEditSelectAll_Click();
    ASSERT_EQ(ObjectUB, 0) << empty_first;
    EXPECT_EQ(ObjectAt(0).ObjType, kRectangle);
    EXPECT_EQ(SelectedObject, 0);
    EXPECT_EQ(HandlesShown(), "0123");
    ExpectFrame(110, 85, frmMain.lblHold(0).Width(), frmMain.lblHold(0).Height());
  }
}

TEST_F(SelectionTest, SelectAllSelectsAGroupWithoutHandlesAndBringsItsPanel) {
  PutBox(10, 10);
  PutBox(40, 20, 30, 20);
  SelectObject(1);
  mnuEditSelectAll_Click();
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(HandlesShown(), "");
  ExpectFrame(110, 85, 60, 30);
  EXPECT_EQ(frmMain.picSellAll.Left(), 50);
  EXPECT_EQ(frmMain.picSellAll.Top(), 0);
  EXPECT_GT(frmMain.picSellAll.Order(), frmMain.picText.Order());
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
  EXPECT_EQ(CommandsEnabled(), "cxhfbAS");
}

TEST_F(SelectionTest, SelectAllStoresTextsTrimmed) {
  PutText("  Ab ");
  PutBox(10, 10);
  mnuEditSelectAll_Click();
  EXPECT_EQ(ObjectAt(0).Text, FixedText<250>("Ab"));
}

// Each removal asks for the whole command again; one under way is enough.
TEST_F(SelectionTest, SelectAllRemovesAnyNumberOfEmptyTexts) {
  for (const char* text : {"", "a", "", "", "b", ""}) PutText(text);
  mnuEditSelectAll_Click();
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "a");
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "b");
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
}

TEST_F(SelectionTest, SelectAllOfEmptyTextsAloneLeavesNothing) {
  for (int i = 0; i < 3; ++i) PutText("");
  mnuEditSelectAll_Click();
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_FALSE(frmMain.shpBox.Visible());
}

// Ctrl+A: the key is down while the command runs, so no selection is ended on the way.
TEST_F(SelectionTest, SelectAllWithItsModifierHeldLeavesOneKindOfSelection) {
  PutText("");
  PutBox(10, 10);
  PutText("");
  PutBox(40, 10);
  ModifierHeld = true;
  mnuEditSelectAll_Click();
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_EQ(SelectedObject, -1);
}

TEST_F(SelectionTest, SelectAllTakes257ObjectsAndFaultsAtOneMore) {
  for (int i = 0; i < 257; ++i) Add(ShapeObject(kRectangle, 1, 1, 2, 2));
  mnuEditSelectAll_Click();
  EXPECT_EQ(SelectedUpper, 256);
  Add(ShapeObject(kRectangle, 1, 1, 2, 2));
  SelectGroup({4, 7});
  EXPECT_EQ(FaultOf(mnuEditSelectAll_Click), kOutOfBounds);
  EXPECT_EQ(GroupMembers(), (Members{4, 7}));
}

// --- hit areas of texts -------------------------------------------------------------------------

TEST_F(SelectionTest, AHitAreaIsFittedToItsTextAtThePresentZoom) {
  ObjectRecord text = TextObject("  Abc ", 10, 10);
  text.FontName = " Arial ";
  text.Bold = kTrue;
  text.Italic = kTrue;
  text.ForeColor = 0x112233;
  Put(text);
  FitHoldToText(0);
  const Label& hold = frmMain.lblHold(0);
  EXPECT_DOUBLE_EQ(hold.Width(), 3 * kCharacter * kBoldWidth);
  EXPECT_DOUBLE_EQ(hold.Height(), kLineHeight);
  EXPECT_TRUE(hold.Font().Bold);
  EXPECT_TRUE(hold.Font().Italic);
  EXPECT_EQ(hold.Font().Name, "Arial");
  EXPECT_EQ(hold.ForeColor(), 0x112233);
  EXPECT_FALSE(hold.AutoSize());
  EXPECT_EQ(hold.Caption(), "");
  EXPECT_EQ(ObjectAt(0).Text, FixedText<250>("Abc"));
  EXPECT_EQ(ObjectAt(0).FontName, FixedText<35>("Arial"));
  ZoomFactor = 2;
  ReadyBoard();
  FitHoldToText(0);
  EXPECT_DOUBLE_EQ(hold.Font().Size, 2 * kTenMillimetres);
  EXPECT_DOUBLE_EQ(hold.Width(),
                   3 * kCharacter * kBoldWidth);  // the board's unit has grown with the font
}

TEST_F(SelectionTest, SeveralLinesMeasureTheWidestByAllOfThem) {
  PutText("Ab\r\nAbcd\r\nA");
  FitHoldToText(0);
  EXPECT_DOUBLE_EQ(frmMain.lblHold(0).Width(), 4 * kCharacter);
  EXPECT_DOUBLE_EQ(frmMain.lblHold(0).Height(), 3 * kLineHeight);
}

TEST_F(SelectionTest, DataFieldsShownAsTextAreFittedWithoutTextStyles) {
  ObjectRecord field = Field(0, 99, "Abcd");
  field.Bold = kTrue;
  field.ForeColor = 0x112233;
  field.Width = 1;
  field.Height = 1;
  Put(field);
  FitHoldToText(0);
  EXPECT_DOUBLE_EQ(frmMain.lblHold(0).Width(), 4 * kCharacter);
  EXPECT_FALSE(frmMain.lblHold(0).Font().Bold);
  EXPECT_NE(frmMain.lblHold(0).ForeColor(), 0x112233);
}

TEST_F(SelectionTest, FieldsShownAsBarcodesAndOtherKindsAreNotFitted) {
  ObjectRecord field = Field(0, 100, "Abcd");
  field.Width = 7;
  field.Height = 8;
  Put(field);
  PutBox(10, 10, 5, 6);
  for (int i = 0; i < 2; ++i) FitHoldToText(i);
  EXPECT_EQ(frmMain.lblHold(0).Width(), 7);
  EXPECT_EQ(frmMain.lblHold(1).Width(), 5);
}

TEST_F(SelectionTest, DroppingTheSelectionLeavesNothingSelectedOrShown) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  EnableSelectionCommands(true);
  frmMain.txtDSize(0).SetText("10.00");
  DropSelection();
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(CommandsEnabled(), "-------");
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "0.00");
}

}  // namespace
}  // namespace tagwright
