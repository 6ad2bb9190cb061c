// Text boxes and combos: what the user types, and what routines assign.
#include "control_fixture.h"

namespace tagwright {
namespace {

class TextTest : public ControlTest {
 protected:
  TextTest() {
    form.txtFirst.Events().Change = [&] { Log("change " + form.txtFirst.Text()); };
    form.cboTyped.SetEditable(true);
    for (ComboBox* combo : {&form.cboPick, &form.cboTyped}) {
      combo->AddItem("Arial");
      combo->AddItem("Courier");
      combo->AddItem("Times");
      combo->Events().Click = [this, combo] { Log(combo->Name() + " click " + combo->Text()); };
      combo->Events().Change = [this, combo] { Log(combo->Name() + " change " + combo->Text()); };
    }
  }
  void LogKeys(Control& control) {
    control.Events().KeyPress = [this](int& key) { Log("key " + std::to_string(key)); };
  }
};

// --- text box, routines -------------------------------------------------------------------------

TEST_F(TextTest, AnAssignedTextRaisesChangeOnlyOnAChange) {
  form.txtFirst.SetText("a");
  form.txtFirst.SetText("a");
  form.txtFirst.SetText("");
  EXPECT_EQ(log, (Lines{"change a", "change "}));
}

TEST_F(TextTest, AnAssignedTextPutsTheCaretToItsStart) {
  form.txtFirst.SetText("abc");
  form.txtFirst.SetSelStart(2);
  form.txtFirst.SetText("xyz");
  EXPECT_EQ(form.txtFirst.SelStart(), 0);
  EXPECT_EQ(form.txtFirst.SelLength(), 0);
}

TEST_F(TextTest, AChangeHandlerThatAssignsRunsInsideTheAssignment) {
  form.txtFirst.Events().Change = [&] {
    if (form.txtFirst.Text() == "a") form.txtFirst.SetText("b");
    Log(form.txtFirst.Text());
  };
  form.txtFirst.SetText("a");
  EXPECT_EQ(log, (Lines{"b", "b"}));
}

TEST_F(TextTest, TheCaretIsCutAtTheEndAndNeverNegative) {
  form.txtFirst.SetText("äöü");
  form.txtFirst.SetSelStart(9);
  EXPECT_EQ(form.txtFirst.SelStart(), 3);
  form.txtFirst.SetSelStart(1);
  form.txtFirst.SetSelLength(9);
  EXPECT_EQ(form.txtFirst.SelLength(), 2);
  EXPECT_EQ(form.txtFirst.SelText(), "öü");
  EXPECT_EQ(FaultOf([&] { form.txtFirst.SetSelStart(-1); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.txtFirst.SetSelLength(-1); }), kBadValue);
  EXPECT_EQ(form.txtFirst.SelText(), "öü");
}

TEST_F(TextTest, MovingTheCaretClearsTheSelection) {
  form.txtFirst.SetText("abc");
  form.txtFirst.SetSelLength(2);
  form.txtFirst.SetSelStart(1);
  EXPECT_EQ(form.txtFirst.SelLength(), 0);
}

TEST_F(TextTest, TheUsersCaretIsKeptWithinTheText) {
  form.txtFirst.SetText("abc");
  form.txtFirst.UserSelect(-4, 99);
  EXPECT_EQ(form.txtFirst.SelStart(), 0);
  EXPECT_EQ(form.txtFirst.SelLength(), 3);
}

// --- text box, user -----------------------------------------------------------------------------

TEST_F(TextTest, ACharacterRaisesKeyPressThenChangesTheText) {
  LogKeys(form.txtFirst);
  form.txtFirst.UserKey(U'ä');
  EXPECT_EQ(log, (Lines{"key 228", "change ä"}));
  EXPECT_EQ(form.txtFirst.SelStart(), 1);
}

TEST_F(TextTest, ACharacterReplacesTheSelection) {
  form.txtFirst.SetText("abcd");
  form.txtFirst.UserSelect(1, 2);
  form.txtFirst.UserKey(U'x');
  EXPECT_EQ(form.txtFirst.Text(), "axd");
  EXPECT_EQ(form.txtFirst.SelStart(), 2);
  EXPECT_EQ(form.txtFirst.SelLength(), 0);
}

TEST_F(TextTest, ASwallowedCharacterChangesNothing) {
  form.txtFirst.Events().KeyPress = [](int& key) { key = 0; };
  form.txtFirst.UserKey(U'x');
  EXPECT_EQ(form.txtFirst.Text(), "");
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, AHandlerMayTurnACharacterIntoAnother) {
  form.txtFirst.Events().KeyPress = [](int& key) { key -= 32; };
  form.txtFirst.UserKey(U'x');
  EXPECT_EQ(form.txtFirst.Text(), "X");
}

TEST_F(TextTest, AHandlerThatMovesTheKeyboardDropsTheCharacter) {
  form.txtFirst.SetFocus();
  form.txtFirst.Events().KeyPress = [&](int&) { form.txtSecond.SetFocus(); };
  form.txtFirst.UserType("xy");
  EXPECT_EQ(form.txtFirst.Text(), "");
  EXPECT_EQ(form.txtSecond.Text(), "");
}

TEST_F(TextTest, BackspaceTakesTheSelectionOrTheCharacterBefore) {
  form.txtFirst.SetText("abcd");
  form.txtFirst.UserSelect(2, 0);
  form.txtFirst.UserKey(8);
  EXPECT_EQ(form.txtFirst.Text(), "acd");
  form.txtFirst.UserSelect(1, 2);
  form.txtFirst.UserKey(8);
  EXPECT_EQ(form.txtFirst.Text(), "a");
}

TEST_F(TextTest, BackspaceAtTheStartRaisesKeyPressButNoChange) {
  form.txtFirst.SetText("a");
  log.clear();
  LogKeys(form.txtFirst);
  form.txtFirst.UserKey(8);
  EXPECT_EQ(log, Lines{"key 8"});
}

TEST_F(TextTest, ReturnBreaksTheLineOnlyWhereThereAreSeveral) {
  form.txtFirst.UserKey(13);
  EXPECT_EQ(form.txtFirst.Text(), "");
  form.txtFirst.SetMultiLine(true);
  form.txtFirst.UserType("a");
  form.txtFirst.UserKey(13);
  form.txtFirst.UserType("b");
  EXPECT_EQ(form.txtFirst.Text(), "a\r\nb");
  EXPECT_EQ(form.txtFirst.SelStart(), 4);
}

TEST_F(TextTest, BackspaceTakesALineEndWhole) {
  form.txtFirst.SetMultiLine(true);
  form.txtFirst.SetText("a\r\nb");
  form.txtFirst.UserSelect(3, 0);
  form.txtFirst.UserKey(8);
  EXPECT_EQ(form.txtFirst.Text(), "ab");
  EXPECT_EQ(form.txtFirst.SelStart(), 1);
}

TEST_F(TextTest, OtherControlCharactersRaiseKeyPressAndEnterNothing) {
  LogKeys(form.txtFirst);
  form.txtFirst.UserKey(1);
  form.txtFirst.UserKey(27);
  form.txtFirst.UserKey(127);
  EXPECT_EQ(log, (Lines{"key 1", "key 27", "key 127"}));
  EXPECT_EQ(form.txtFirst.Text(), "");
}

TEST_F(TextTest, APasteRaisesKeyPressOncePerCharacter) {
  LogKeys(form.txtFirst);
  form.txtFirst.UserType("1é");
  EXPECT_EQ(log, (Lines{"key 49", "change 1", "key 233", "change 1é"}));
}

TEST_F(TextTest, APasteCanBeFilteredCharacterByCharacter) {
  form.txtFirst.Events().KeyPress = [](int& key) {
    if (key < '0' || key > '9') key = 0;
  };
  form.txtFirst.UserType("1a2b3");
  EXPECT_EQ(form.txtFirst.Text(), "123");
}

TEST_F(TextTest, EachSortOfLineEndOfAPasteIsOneReturn) {
  form.txtFirst.SetMultiLine(true);
  form.txtFirst.UserType("a\r\nb\nc\rd\x01\t\x08");
  EXPECT_EQ(form.txtFirst.Text(), "a\r\nb\r\nc\r\nd\t");
}

TEST_F(TextTest, APasteOverALineEndInASingleLineBoxLeavesItOut) {
  form.txtFirst.UserType("a\r\nb");
  EXPECT_EQ(form.txtFirst.Text(), "ab");
}

TEST_F(TextTest, ReplacingACharacterByItselfRaisesNoChange) {
  form.txtFirst.SetText("a");
  log.clear();
  form.txtFirst.UserSelect(0, 1);
  form.txtFirst.UserKey(U'a');
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(form.txtFirst.SelStart(), 1);
}

TEST_F(TextTest, ALockedBoxHearsKeysButKeepsItsText) {
  form.txtFirst.SetLocked(true);
  LogKeys(form.txtFirst);
  form.txtFirst.UserKey(U'a');
  form.txtFirst.UserEdit("b", 1);
  EXPECT_EQ(log, Lines{"key 97"});
  EXPECT_EQ(form.txtFirst.Text(), "");
}

TEST_F(TextTest, HiddenDisabledAndBusyBoxesHearNoKeys) {
  LogKeys(form.txtFirst);
  form.txtFirst.SetEnabled(false);
  form.txtFirst.UserKey(U'a');
  form.txtFirst.SetEnabled(true);
  form.txtFirst.SetVisible(false);
  form.txtFirst.UserKey(U'a');
  form.txtFirst.SetVisible(true);
  RunHandler([&] {
    form.txtFirst.UserKey(U'a');
    form.txtFirst.UserEdit("a", 0);
  });
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, AnEditOfTheViewsOwnRaisesChangeOnlyOnAChange) {
  form.txtFirst.UserEdit("abc", 2);
  form.txtFirst.UserEdit("abc", 1);
  EXPECT_EQ(log, Lines{"change abc"});
  EXPECT_EQ(form.txtFirst.SelStart(), 1);
}

TEST_F(TextTest, AnEditOfSeveralLinesGetsFullLineEndsAndTheCaretMovesAlong) {
  form.txtFirst.SetMultiLine(true);
  form.txtFirst.UserEdit("a\nb\nc", 4);  // before c
  EXPECT_EQ(form.txtFirst.Text(), "a\r\nb\r\nc");
  EXPECT_EQ(form.txtFirst.SelStart(), 6);
  form.txtFirst.UserEdit("a\r\nb\rc", 6);
  EXPECT_EQ(form.txtFirst.Text(), "a\r\nb\r\nc");
  EXPECT_EQ(form.txtFirst.SelStart(), 7);
  form.txtFirst.UserEdit("\n", 0);
  EXPECT_EQ(form.txtFirst.Text(), "\r\n");
  EXPECT_EQ(form.txtFirst.SelStart(), 0);
}

// --- combo, routines ----------------------------------------------------------------------------

TEST_F(TextTest, ListIndexRaisesClickAlsoForTheSameRow) {
  form.cboPick.SetListIndex(1);
  form.cboPick.SetListIndex(1);
  EXPECT_EQ(log, (Lines{"cboPick click Courier", "cboPick click Courier"}));
}

TEST_F(TextTest, ListIndexOutOfRangeFaultsAndKeepsTheValue) {
  form.cboPick.SetListIndex(2);
  log.clear();
  EXPECT_EQ(FaultOf([&] { form.cboPick.SetListIndex(3); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.cboPick.SetListIndex(-2); }), kBadValue);
  EXPECT_EQ(form.cboPick.ListIndex(), 2);
  EXPECT_EQ(form.cboPick.Text(), "Times");
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, ListIndexMinusOneEmptiesTheTextAndRaisesNothing) {
  form.cboPick.SetListIndex(0);
  log.clear();
  form.cboPick.SetListIndex(-1);
  EXPECT_EQ(form.cboPick.Text(), "");
  EXPECT_EQ(form.cboPick.ListIndex(), -1);
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, ClickRunsAfterIndexAndTextAreStored) {
  form.cboPick.Events().Click = [&] {
    Log(std::to_string(form.cboPick.ListIndex()) + form.cboPick.Text());
  };
  form.cboPick.SetListIndex(1);
  EXPECT_EQ(log, Lines{"1Courier"});
}

TEST_F(TextTest, ACombosTextClearAndAddItemRaiseNothing) {
  form.cboPick.SetText("Times");
  form.cboPick.AddItem("Verdana");
  form.cboPick.Clear();
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, ACombosTextSelectsTheFirstEqualRowOrNone) {
  form.cboPick.AddItem("Times");
  form.cboPick.SetText("Times");
  EXPECT_EQ(form.cboPick.ListIndex(), 2);
  form.cboPick.SetText("times");
  EXPECT_EQ(form.cboPick.ListIndex(), -1);
  EXPECT_EQ(form.cboPick.Text(), "times");
}

TEST_F(TextTest, APickListShowsATextThatIsNoRow) {
  form.cboPick.SetText("13.5");
  EXPECT_EQ(form.cboPick.Text(), "13.5");
}

TEST_F(TextTest, ClearLeavesNoRowsNoTextAndNoIndex) {
  form.cboPick.SetListIndex(1);
  form.cboPick.Clear();
  EXPECT_EQ(form.cboPick.ListCount(), 0);
  EXPECT_EQ(form.cboPick.Text(), "");
  EXPECT_EQ(form.cboPick.ListIndex(), -1);
}

TEST_F(TextTest, RowsOutsideTheListFault) {
  EXPECT_EQ(form.cboPick.List(2), "Times");
  EXPECT_EQ(FaultOf([&] { form.cboPick.List(3); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { form.cboPick.List(-1); }), kOutOfBounds);
}

TEST_F(TextTest, ASortedListInsertsWithoutRegardToCaseAndSelectsNothing) {
  ComboBox sorted(&form, "sorted");
  sorted.SetSorted(true);
  for (const char* row : {"banana", "Cherry", "apple", "Banana", "apricot"}) sorted.AddItem(row);
  Lines rows;
  for (int i = 0; i < sorted.ListCount(); ++i) rows.push_back(sorted.List(i));
  EXPECT_EQ(rows, (Lines{"apple", "apricot", "banana", "Banana", "Cherry"}));
  EXPECT_EQ(sorted.ListIndex(), -1);
  EXPECT_EQ(sorted.Text(), "");
}

TEST_F(TextTest, TheChosenRowStaysChosenWhenOneIsSortedInBeforeIt) {
  form.cboPick.SetSorted(true);
  form.cboPick.SetListIndex(1);
  form.cboPick.AddItem("Bodoni");
  EXPECT_EQ(form.cboPick.ListIndex(), 2);
  form.cboPick.AddItem("Zapf");
  EXPECT_EQ(form.cboPick.ListIndex(), 2);
  EXPECT_EQ(form.cboPick.List(2), "Courier");
}

// --- combo, user --------------------------------------------------------------------------------

TEST_F(TextTest, ChoosingTheSameRowAgainRaisesClick) {
  form.cboPick.UserChoose(0);
  form.cboPick.UserChoose(0);
  EXPECT_EQ(log.size(), 2u);
}

TEST_F(TextTest, AChoiceOutsideTheListOrOfADisabledComboIsNone) {
  form.cboPick.UserChoose(3);
  form.cboPick.UserChoose(-1);
  form.cboPick.SetEnabled(false);
  form.cboPick.UserChoose(0);
  RunHandler([&] { form.cboTyped.UserChoose(0); });
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, APickListHearsKeysAndSwallowsThem) {
  LogKeys(form.cboPick);
  form.cboPick.SetListIndex(0);
  log.clear();
  form.cboPick.UserType("Ti");
  form.cboPick.UserEdit("Ti", 2);
  EXPECT_EQ(log, (Lines{"key 84", "key 105"}));
  EXPECT_EQ(form.cboPick.Text(), "Arial");
  EXPECT_EQ(form.cboPick.ListIndex(), 0);
}

TEST_F(TextTest, TypingInAnEditableComboChangesItsTextAndChoosesNoRow) {
  form.cboTyped.SetListIndex(0);
  log.clear();
  form.cboTyped.UserSelect(5, 0);
  form.cboTyped.UserKey(U'x');
  EXPECT_EQ(form.cboTyped.Text(), "Arialx");
  EXPECT_EQ(form.cboTyped.ListIndex(), -1);
  EXPECT_EQ(log, Lines{"cboTyped change Arialx"});
  form.cboTyped.UserKey(8);
  EXPECT_EQ(form.cboTyped.Text(), "Arial");
  EXPECT_EQ(form.cboTyped.ListIndex(), -1);
}

TEST_F(TextTest, AKeyPressHandlerMayCompleteAComboItself) {
  form.cboTyped.Events().KeyPress = [&](int& key) {
    form.cboTyped.SetText("Courier");
    form.cboTyped.SetSelStart(1);
    form.cboTyped.SetSelLength(99);
    key = 0;
  };
  form.cboTyped.UserKey(U'c');
  EXPECT_EQ(form.cboTyped.Text(), "Courier");
  EXPECT_EQ(form.cboTyped.SelText(), "ourier");
  EXPECT_TRUE(log.empty());
}

TEST_F(TextTest, AnEditOfTheViewsOwnInAComboRaisesChange) {
  form.cboTyped.UserEdit("Ari", 1);
  form.cboTyped.UserEdit("Ari", 2);
  EXPECT_EQ(log, Lines{"cboTyped change Ari"});
  EXPECT_EQ(form.cboTyped.SelStart(), 2);
}

// --- views --------------------------------------------------------------------------------------

TEST_F(TextTest, ViewsHearOfTextCaretAndRows) {
  CountingView view;
  form.cboPick.AttachView(&view);
  form.cboPick.AddItem("x");
  EXPECT_EQ(view.Count(Aspect::kList), 1);
  form.cboPick.SetListIndex(0);
  EXPECT_EQ(view.Count(Aspect::kText), 1);
  EXPECT_EQ(view.Count(Aspect::kSelection), 1);
}

TEST_F(TextTest, TheUsersCaretIsNoNewsToTheView) {
  CountingView view;
  form.txtFirst.AttachView(&view);
  form.txtFirst.UserSelect(0, 0);
  EXPECT_TRUE(view.told.empty());
}

}  // namespace
}  // namespace tagwright
