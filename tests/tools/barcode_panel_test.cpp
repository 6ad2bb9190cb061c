// The panel of barcodes with its real controls: what it refuses, and what the selected object
// takes.
#include "tools/barcode_panel.h"

#include "barcode/formats.h"
#include "barcode/mod_bar_code.h"
#include "barcode/validation.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class BarcodePanelTest : public ProgramTest {
 protected:
  BarcodePanelTest() {
    ResetBarcodeState();
    ResetBarcodePanel();
    ReadyBoard();
    LabelWidth = 100;
    LabelHeight = 50;
    FillBarcodeFormats(frmMain.cboBCode);
    FrmMain& f = frmMain;
    f.cboBCode.Events().Click = cboBCode_Click;
    f.cboBCode.Events().KeyPress = cboBCode_KeyPress;
    f.txtBCodeData.Events().GotFocus = txtBCodeData_GotFocus;
    f.txtBCodeData.Events().KeyPress = txtBCodeData_KeyPress;
    f.txtBCodeData.Events().Change = txtBCodeData_Change;
    f.txtBCodeData.Events().LostFocus = txtBCodeData_LostFocus;
    f.chkPriCharacter.Events().Click = chkPriCharacter_Click;
    f.cmdBCode.Events().Click = cmdBCode_Click;
    PaintBarcode = PaintBarcodeOf;
  }
  ~BarcodePanelTest() override { PaintBarcode = nullptr; }

  // A selected object of this kind, as if the user had clicked it.
  ObjectRecord& Select(Kind kind) {
    GrowObjects();
    ClearObject(ObjectUB);
    ObjectRecord& object = ObjectAt(ObjectUB);
    object.ObjType = kind;
    object.Width = 40;
    object.Height = 15;
    SelectedObject = ObjectUB;
    return object;
  }

  void Choose(int format) { frmMain.cboBCode.UserChoose(format); }
  void Type(const std::string& text) { frmMain.txtBCodeData.UserType(text); }
  void SetData(const std::string& text) { frmMain.txtBCodeData.SetText(text); }
  bool Armed() const { return frmMain.cmdBCode.Enabled(); }

  void ExpectMessage(const std::string& text) {
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_EQ(dialogs.messages[0].text, text);
    EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kOk);
    EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::kNone);
    EXPECT_EQ(dialogs.messages[0].title, "");
    dialogs.messages.clear();
  }
};

// --- choosing a format ---

TEST_F(BarcodePanelTest, AFormatWithoutDataDoesNothing) {
  frmMain.cmdBCode.SetEnabled(true);
  Choose(0);
  EXPECT_TRUE(Armed());
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(BarcodePanelTest, LettersUnderUpcAAreNamedInTheMessage) {
  SetData("A1A");
  Choose(0);
  ExpectMessage("The following characters AA are not allowed in the UPC-A barcode format");
  EXPECT_FALSE(Armed());
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(frmMain.txtBCodeData.Text(), "A1A");
}

TEST_F(BarcodePanelTest, ThirteenDigitsUnderUpcAAreTooLong) {
  SetData("1234567890123");
  Choose(0);
  ExpectMessage("The barcode 1234567890123 is too long for this format");
  EXPECT_FALSE(Armed());
}

TEST_F(BarcodePanelTest, BothEdgesOfTheLimits) {
  struct Case {
    int format;
    std::size_t limit;
  };
  for (const Case& each : {Case{0, 12}, Case{1, 8}, Case{2, 13}, Case{3, 8}}) {
    SetData(std::string(each.limit, '1'));
    dialogs.messages.clear();
    Choose(each.format);
    EXPECT_TRUE(dialogs.messages.empty()) << each.format;
    EXPECT_TRUE(Armed());
    SetData(std::string(each.limit + 1, '1'));
    ExpectMessage("The barcode " + std::string(each.limit + 1, '1') +
                  " is too long for this format");
    EXPECT_FALSE(Armed());
  }
}

TEST_F(BarcodePanelTest, RoyalMailAfterUpcARefusesLettersAndMoreThanTwelve) {
  SetData("1");
  Choose(0);
  SetData("");
  frmMain.txtBCodeData.Events().Change = [] {};
  SetData("AB1");
  Choose(13);
  ExpectMessage("The following characters AB are not allowed in the Royal Mail CBC barcode format");
  SetData("1234567890123");
  Choose(13);
  ExpectMessage("The barcode 1234567890123 is too long for this format");
}

TEST_F(BarcodePanelTest, RoyalMailAfterCode128BTakesLowerCaseThatTheEngineThenRefuses) {
  ObjectRecord& object = Select(kBarcode);
  object.Text = "ab";
  SetData("ab");
  Choose(7);
  const auto bars = [&] { return Board().Of(Painted::What::kBox).size(); };
  EXPECT_GT(bars(), 0U);
  Board().painted.clear();
  Choose(13);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(Armed());
  EXPECT_EQ(object.Param, 13);
  EXPECT_EQ(bars(), 0U);
}

TEST_F(BarcodePanelTest, WithoutAnObjectAValidTextOnlyEnablesTheButton) {
  SetData("123");
  const auto redraws = RedrawCount;
  Choose(9);
  EXPECT_TRUE(Armed());
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(BarcodePanelTest, AnotherKindOfObjectKeepsItsFields) {
  ObjectRecord& object = Select(kText);
  SetData("123");
  const auto redraws = RedrawCount;
  Choose(9);
  EXPECT_EQ(object.Param, 0);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_TRUE(Armed());
}

TEST_F(BarcodePanelTest, ASelectedBarcodeTakesTheFormatAndIsRedrawn) {
  ObjectRecord& object = Select(kBarcode);
  SetData("123");
  const auto redraws = RedrawCount;
  Choose(9);
  EXPECT_EQ(object.Param, 9);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(object.Text.Trimmed(), "");  // the data comes when the box is left
  EXPECT_EQ(object.Width, 40);
}

TEST_F(BarcodePanelTest, ASelectionBeyondTheDocumentCountsAsNoBarcode) {
  SelectedObject = 7;
  SetData("123");
  Choose(9);
  EXPECT_TRUE(Armed());
}

// --- postal sizes ---

TEST_F(BarcodePanelTest, PostNetFixesTheSizeByBarsAndGaps) {
  ObjectRecord& object = Select(kBarcode);
  SetData("12345");
  const auto redraws = RedrawCount;
  Choose(12);
  EXPECT_NEAR(object.Width, 32 * 0.508 + 31 * 0.6604, 1e-5);
  EXPECT_NEAR(object.Height, 3.175, 1e-6);
  EXPECT_EQ(frmMain.shpBox.Width(), object.Width);
  EXPECT_EQ(frmMain.shpBox.Height(), object.Height);
  EXPECT_EQ(RedrawCount, redraws + 1);
}

// What is redrawn is the symbol of the size before; the outline alone takes the new one.
TEST_F(BarcodePanelTest, TheRedrawComesBeforeThePostalSize) {
  const ObjectRecord& object = Select(kBarcode);
  SetData("12345");
  for (const int format : {12, 13}) {
    const double width = object.Width, height = object.Height;
    Choose(format);
    EXPECT_NE(object.Width, width) << format;
    EXPECT_NEAR(HoldAt(SelectedObject).Width(), width, 0.01) << format;
    EXPECT_NEAR(HoldAt(SelectedObject).Height(), height, 0.01) << format;
  }
}

TEST_F(BarcodePanelTest, RoyalMailFixesTheSizeByCharacters) {
  ObjectRecord& object = Select(kBarcode);
  SetData("123456");
  Choose(9);
  Choose(13);
  EXPECT_NEAR(object.Width, 32.45, 1e-9);
  EXPECT_EQ(object.Height, 5);
  EXPECT_EQ(frmMain.shpBox.Width(), object.Width);
  EXPECT_EQ(frmMain.shpBox.Height(), 5);
}

TEST_F(BarcodePanelTest, ARefusedTextFixesNoSize) {
  ObjectRecord& object = Select(kBarcode);
  SetData("12A45");
  Choose(12);
  EXPECT_EQ(object.Width, 40);
  EXPECT_EQ(object.Param, 0);
}

TEST_F(BarcodePanelTest, TypingChangesNoSize) {
  ObjectRecord& object = Select(kBarcode);
  Choose(12);
  SetData("12345");
  EXPECT_EQ(object.Param, 12);
  EXPECT_EQ(object.Width, 40);
  EXPECT_EQ(object.Height, 15);
}

// --- typing data ---

TEST_F(BarcodePanelTest, SpacesPassWhileTypingAndAreRefusedByAChoice) {
  Choose(0);
  SetData("   ");
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(Armed());
  Choose(0);
  ExpectMessage("The following characters     are not allowed in the UPC-A barcode format");
}

TEST_F(BarcodePanelTest, OuterBlanksAreNoFaultButCountInTheLength) {
  Choose(0);
  SetData(" 12345678901 ");
  ExpectMessage("The barcode  12345678901  is too long for this format");
  SetData(" 1234567890 ");
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(Armed());
}

TEST_F(BarcodePanelTest, TypingIntoTheBoxSetsTheDirtyFlagByTheKeyAlone) {
  Choose(0);
  SetData("1");
  EXPECT_EQ(DirtyFlag, kFalse);
  Type("2");
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(frmMain.txtBCodeData.Text().size(), 2U);
}

TEST_F(BarcodePanelTest, AnEmptyTextKeepsTheButtonAsItIs) {
  for (const bool enabled : {true, false}) {
    SetData("");
    SetData("x");
    frmMain.cmdBCode.SetEnabled(enabled);
    SetData("");
    EXPECT_EQ(Armed(), enabled);
  }
}

TEST_F(BarcodePanelTest, WithoutAFormatTheButtonIsDisabledWithoutAWord) {
  frmMain.cmdBCode.SetEnabled(true);
  SetData("A");
  EXPECT_FALSE(Armed());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(BarcodePanelTest, AValidTextGivesTheObjectItsFormatButNotItsData) {
  ObjectRecord& object = Select(kBarcode);
  Choose(9);
  const auto redraws = RedrawCount;
  SetData("ABC");
  EXPECT_EQ(object.Param, 9);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(object.Text.Trimmed(), "");
}

TEST_F(BarcodePanelTest, WhatHasBeenTypedIsStoredWhenTheBoxIsLeftValidOrNot) {
  ObjectRecord& object = Select(kBarcode);
  frmMain.txtBCodeData.SetFocus();
  EXPECT_TRUE(TextEntryActive);
  EXPECT_EQ(BarcodeEdited, kFalse);
  Choose(0);
  Type("A");
  dialogs.messages.clear();
  EXPECT_EQ(BarcodeEdited, kTrue);
  const auto redraws = RedrawCount;
  txtBCodeData_LostFocus();
  EXPECT_EQ(object.Text.Trimmed(), "A");
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(BarcodeEdited, kTrue);  // not cleared before the box gets the keyboard again
  txtBCodeData_GotFocus();
  EXPECT_EQ(BarcodeEdited, kFalse);
}

TEST_F(BarcodePanelTest, UntypedDataIsNotStored) {
  ObjectRecord& object = Select(kBarcode);
  txtBCodeData_GotFocus();
  SetData("123");
  const auto redraws = RedrawCount;
  txtBCodeData_LostFocus();
  EXPECT_EQ(object.Text.Trimmed(), "");
  EXPECT_EQ(RedrawCount, redraws);
}

TEST_F(BarcodePanelTest, LeavingTheBoxAsksForNoKindAndCutsAt250) {
  ObjectRecord& object = Select(kText);
  SetData(std::string(300, 'x'));
  BarcodeEdited = kTrue;
  txtBCodeData_LostFocus();
  EXPECT_EQ(object.Text.Trimmed(), std::string(250, 'x'));
}

TEST_F(BarcodePanelTest, ASwallowedKeyStillCountsAsEditing) {
  int key = 0;
  txtBCodeData_KeyPress(key);
  EXPECT_EQ(BarcodeEdited, kTrue);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(BarcodePanelTest, AKeyInTheListOfFormatsCountsForNothing) {
  int key = 'C';
  cboBCode_KeyPress(key);
  EXPECT_EQ(key, 0);
}

TEST_F(BarcodePanelTest, NothingCanBeTypedIntoTheListOfFormats) {
  Choose(3);
  frmMain.cboBCode.UserType("Code 39");
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), 3);
  EXPECT_EQ(frmMain.cboBCode.Text(), "EAN-8");
}

// --- the check box and the button ---

TEST_F(BarcodePanelTest, PrintCharactersGoesIntoBold) {
  ObjectRecord& object = Select(kBarcode);
  const auto redraws = RedrawCount;
  frmMain.chkPriCharacter.Press();
  EXPECT_EQ(object.Bold, kTrue);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(DirtyFlag, kTrue);
  frmMain.chkPriCharacter.Press();
  EXPECT_EQ(object.Bold, kFalse);
}

TEST_F(BarcodePanelTest, PrintCharactersLeavesOtherKindsAlone) {
  ObjectRecord& object = Select(kText);
  frmMain.chkPriCharacter.Press();
  EXPECT_EQ(object.Bold, kFalse);
  EXPECT_EQ(DirtyFlag, kFalse);
  SelectedObject = -1;
  frmMain.chkPriCharacter.Press();
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(BarcodePanelTest, TheButtonEndsTheSelectionAndArmsTheTool) {
  ObjectRecord& object = Select(kBarcode);
  const ObjectRecord before = object;
  frmMain.cmdBCode.Press();
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(CurrentTool, 1);
  EXPECT_EQ(CursorShape, 99);
  EXPECT_EQ(frmMain.MousePointer(), 99);
  EXPECT_EQ(frmMain.MouseIcon(), "pointer-barcode");
  EXPECT_EQ(object, before);
}

// --- on the label ---

TEST_F(BarcodePanelTest, ARedrawPaintsABarcodeObjectWithItsTrimmedDataAndItsBoldFlag) {
  ObjectRecord& object = Select(kBarcode);
  object.Left = 10;
  object.Top = 5;
  object.Text = "  AB ";
  object.Param = 9;
  object.FontName = "Courier New";
  object.FontSize = 8;
  object.Bold = kTrue;
  Board().painted.clear();
  RedrawBoard();
  const auto bars = Board().Of(Painted::What::kBox);
  ASSERT_EQ(bars.size(), 20U);  // two stars and two characters
  const double dots = 96 / 25.4;
  EXPECT_NEAR(bars.front().x1, (10 + BoardOriginX) * dots, 1e-3);
  EXPECT_NEAR(bars.back().x2, (10 + 40 + BoardOriginX) * dots, 1e-3);
  EXPECT_NEAR(bars.front().y1, (5 + BoardOriginY) * dots, 1e-3);
  const auto texts = Board().Of(Painted::What::kText);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].Text(), "AB");
  EXPECT_EQ(texts[0].Font().Name, "Courier New");
  EXPECT_FALSE(texts[0].Font().Bold);
}

TEST_F(BarcodePanelTest, ASerialNumberAsBarcodePrintsSixPointsAndKeepsTheFont) {
  ObjectRecord& object = Select(kText);
  object.Text = "[#SRNO]";
  object.Left = 3;
  object.Top = 4;
  object.FontName = "Courier New";
  object.FontSize = 20;
  SerialBarcodeType = 9;
  SerialBarcodeWidth = 50;
  RedrawBoard(0, 0, true);
  const auto& page = dynamic_cast<RecordingSurface&>(*DrawTarget);
  const auto bars = page.Of(Painted::What::kBox);
  ASSERT_FALSE(bars.empty());
  const auto texts = page.Of(Painted::What::kText);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_EQ(texts[0].Text(), "1001");
  EXPECT_EQ(texts[0].Font(), (FontSpec{"Courier New", 6, false, false}));
}

TEST_F(BarcodePanelTest, AFieldAsBarcodePrintsItsValueWithTheItalicFlag) {
  ObjectRecord& object = Select(kDataField);
  object.Text = "Number";
  object.FillColor = 109;
  object.Italic = kTrue;
  object.FontName = "Arial";
  FieldValues[0] = "X7";
  RedrawBoard(0, 0, true);
  const auto& page = dynamic_cast<RecordingSurface&>(*DrawTarget);
  EXPECT_EQ(page.Of(Painted::What::kBox).size(), 20U);
  EXPECT_EQ(page.Texts(), (std::vector<std::string>{"X7"}));
  FieldValues[0] = "x7";  // what the format cannot carry is not drawn
  dynamic_cast<RecordingSurface&>(*DrawTarget).painted.clear();
  RedrawBoard(0, 0, true);
  EXPECT_TRUE(page.Of(Painted::What::kBox).empty());
}

}  // namespace
}  // namespace tagwright
