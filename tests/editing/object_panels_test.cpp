// The panels of the selected object: what they show, and what their edits make of the record.
#include "editing/object_panels.h"

#include "document/redraw.h"
#include "document/shown_size.h"
#include "editing/panel_stack.h"
#include "editing/text_panel.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

class ObjectPanelsTest : public HandTest {
 protected:
  ~ObjectPanelsTest() override { EXPECT_TRUE(faults.empty()); }

  static ObjectRecord& Object(int index = 0) { return ObjectAt(index); }

  // Selected as the mouse does it, with its panel.
  static void SelectByMouse(int index) {
    const Label& hold = HoldAt(index);
    Click(hold.Left() + hold.Width() / 2, hold.Top() + hold.Height() / 2);
  }

  int PutTextOf(const std::string& text, double size, const std::string& font = "Courier New") {
    ObjectRecord record = TextObject(text, 20, 20);
    record.FontSize = size;
    record.FontName = font;
    record.Width = TextWidthOf(static_cast<int>(text.size()), size);
    record.Height = LineHeightOf(size);
    return Put(record);
  }

  int PutKind(Kind kind, std::int32_t fill = 0x00FF00) {
    ObjectRecord record = ShapeObject(kind, 20, 20, 30, 15);
    record.ForeColor = 0x0000FF;
    record.FillColor = fill;
    record.Param = 3;
    return Put(record);
  }

  int PutBarcode(const std::string& data = "123", std::int16_t format = 9) {
    ObjectRecord record = ShapeObject(kBarcode, 20, 20, 30, 15);
    record.Text = data;
    record.Param = format;
    record.FontName = "Courier New";
    record.FontSize = 8;
    record.FillColor = 0;
    return Put(record);
  }

  static void ExpectFontBoxesAt(double left) {
    EXPECT_TRUE(frmMain.cboFont.Visible());
    EXPECT_TRUE(frmMain.cboSize.Visible());
    EXPECT_EQ(frmMain.cboFont.Left(), left);
    EXPECT_EQ(frmMain.cboFont.Top(), 290);
    EXPECT_EQ(frmMain.cboSize.Left(), left);
    EXPECT_EQ(frmMain.cboSize.Top(), 650);
  }
};

// --- barcodes -----------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, ABarcodeFillsItsPanel) {
  PutBarcode("12345678", 2);
  Object().Bold = kTrue;
  Object().Italic = kTrue;
  SelectByMouse(0);
  EXPECT_EQ(&FrontPanel(), &frmMain.picBCode);
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), 2);
  EXPECT_EQ(frmMain.txtBCodeData.Text(), "12345678");
  EXPECT_EQ(frmMain.chkPriCharacter.Value(), 1);
  EXPECT_EQ(frmMain.chkChkSum.Value(), 1);
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "8");
  ExpectFontBoxesAt(8450);
  EXPECT_EQ(SizeFields(), "20.00 20.00 30.00 15.00 ");
}

// Two barcodes of other formats: the data of the first must not be checked against the second.
TEST_F(ObjectPanelsTest, ChangingFromBarcodeToBarcodeChecksNoFormerData) {
  PutBarcode("ABC", 9);
  PutBarcode("123", 0);
  Object(1).Left = 60;
  RedrawBoard();
  SelectByMouse(0);
  SelectByMouse(1);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(frmMain.cboBCode.ListIndex(), 0);
}

TEST_F(ObjectPanelsTest, FillingWritesNothingBackAndRedrawsNothing) {
  PutBarcode("123", 9);
  Object().Bold = kTrue;
  const ObjectRecord before = Object();
  const auto redraws = RedrawCount;
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(Object(), before);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_FALSE(PanelLoading);
}

// A format that the list does not have leaves the combo alone, and the record its format.
TEST_F(ObjectPanelsTest, AFormatOutsideTheListIsNotReplaced) {
  PutBarcode("123", 99);
  SelectByMouse(0);
  EXPECT_EQ(Object().Param, 99);
}

TEST_F(ObjectPanelsTest, SizesOfBarcodesFindTheirRow) {
  const std::pair<double, const char*> rows[] = {{8, "8"},     {13.5, "13"}, {15, "16"},
                                                 {14.5, "14"}, {5, "6"},     {48, "48"}};
  PutBarcode();
  for (const auto& [size, row] : rows) {
    Object().FontSize = size;
    SelectedObject = 0;
    FillPanelFromObject();
    EXPECT_EQ(frmMain.cboSize.Text(), row) << size;
  }
}

TEST_F(ObjectPanelsTest, ASizeAboveAllRowsLeavesTheBox) {
  PutBarcode();
  Object().FontSize = 60;
  frmMain.cboSize.SetListIndex(2);
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(frmMain.cboSize.ListIndex(), 2);
}

// --- pictures -----------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, APictureShowsItsFile) {
  const std::string path = Made("a.gif", "1234.5 99.4");
  Put(PictureObject(path));
  frmMain.cboFont.SetVisible(true);
  SelectByMouse(0);
  EXPECT_EQ(&FrontPanel(), &frmMain.picPicture);
  EXPECT_EQ(frmMain.lblGraphicFName.Caption(), path);
  EXPECT_EQ(frmMain.lblGraphicX.Caption(), "1235");
  EXPECT_EQ(frmMain.lblGraphicY.Caption(), "99");
  EXPECT_FALSE(frmMain.cboFont.Visible());
  EXPECT_FALSE(frmMain.cboSize.Visible());
}

TEST_F(ObjectPanelsTest, AMissingPictureKeepsTheFormerNumbers) {
  Put(PictureObject(folder.File("gone.gif")));
  frmMain.lblGraphicX.SetCaption("7");
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(frmMain.lblGraphicFName.Caption(), folder.File("gone.gif"));
  EXPECT_EQ(frmMain.lblGraphicX.Caption(), "7");
}

// --- texts --------------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, ATextOpensForTyping) {
  PutTextOf("Hello", 12);
  Object().Bold = kTrue;
  Object().ForeColor = 0x123456;
  Object().Param = 2;
  SelectByMouse(0);
  EXPECT_EQ(&FrontPanel(), &frmMain.picText);
  ExpectFontBoxesAt(8950);
  EXPECT_EQ(frmMain.txtTool.Text(), "Hello");
  EXPECT_EQ(frmMain.chkBold.Value(), 1);
  EXPECT_EQ(frmMain.chkItalic.Value(), 0);
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), "12");
  EXPECT_EQ(frmMain.lblTextColor.BackColor(), 0x123456);
  EXPECT_TRUE(frmMain.txtTool.HasFocus());
  EXPECT_EQ(frmMain.txtTool.SelStart(), 5);
  EXPECT_EQ(TextEditOpen, kTrue);
  EXPECT_TRUE(TextEntryActive);
  const Label& hold = HoldAt(0);
  EXPECT_TRUE(hold.Visible());
  EXPECT_EQ(hold.Caption(), "Hello");
  EXPECT_EQ(hold.Font(), (FontSpec{"Courier New", 12, true, false}));
  EXPECT_EQ(hold.Alignment(), TextAlignment::kCenter);
  EXPECT_EQ(hold.ForeColor(), 0x123456);
  EXPECT_EQ(hold.BackColor(), 0xFFFFFF);
  EXPECT_EQ(hold.BackStyle(), 0);
}

TEST_F(ObjectPanelsTest, AnOpenTextIsNotPainted) {
  PutTextOf("Hello", 12);
  PutTextOf("other", 12);
  Object(1).Left = 60;
  RedrawBoard();
  Board().painted.clear();
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(Board().Texts(), std::vector<std::string>{"other"});
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(SuspendRedraw, 0);
}

TEST_F(ObjectPanelsTest, SizesOfTextsFindTheirRowOrStandAsText) {
  const struct {
    double size;
    const char* shown;
    int row;
  } rows[] = {{12, "12", 6}, {13.5, "13", 7}, {15, "15", -1}, {15.5, "15.5", -1}, {60, "60", -1}};
  PutTextOf("Hello", 12);
  for (const auto& row : rows) {
    Object().FontSize = row.size;
    SelectedObject = 0;
    FillPanelFromObject();
    EXPECT_EQ(frmMain.cboSize.Text(), row.shown) << row.size;
    EXPECT_EQ(frmMain.cboSize.ListIndex(), row.row) << row.size;
  }
}

// The panel alone would show "13", and the end of the typing would store it: the press shows the
// size as text afterwards.
TEST_F(ObjectPanelsTest, ASizeBetweenTwoRowsSurvivesSelectAndDeselect) {
  PutTextOf("Hello", 13.5);
  SelectByMouse(0);
  EXPECT_EQ(frmMain.cboSize.Text(), "13.5");
  Click(250, 180);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(Object().FontSize, 13.5);
}

TEST_F(ObjectPanelsTest, DamagedTextsFillWhatTheyCan) {
  PutTextOf("Hello", 12);
  Object().Param = 17;
  Object().FontSize = -3;
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(HoldAt(0).Caption(), "Hello");
  EXPECT_TRUE(HoldAt(0).Visible());
  EXPECT_EQ(SuspendRedraw, 0);
  EXPECT_FALSE(PanelLoading);
}

// --- shapes -------------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, ShapesFillTheDrawingPanelWhereItStands) {
  for (const Kind kind : {kLine, kRectangle, kRoundedRectangle, kEllipse}) {
    const int index = PutKind(kind);
    frmMain.picDrawing.Move(70, 30);
    frmMain.cboFont.SetVisible(true);
    SelectedObject = static_cast<std::int16_t>(index);
    FillPanelFromObject();
    EXPECT_EQ(&FrontPanel(), &frmMain.picDrawing);
    EXPECT_EQ(frmMain.picDrawing.Left(), 70);
    EXPECT_EQ(frmMain.picDrawing.Top(), 30);
    EXPECT_EQ(frmMain.lblFCol(6).BackColor(), 0x0000FF);
    EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x00FF00);
    EXPECT_EQ(frmMain.chkTransparent.Value(), 0);
    EXPECT_EQ(frmMain.cboWeight.ListIndex(), 3);
    EXPECT_FALSE(frmMain.cboFont.Visible());
    EXPECT_FALSE(frmMain.cboSize.Visible());
  }
}

TEST_F(ObjectPanelsTest, ATransparentShapeTicksTheBoxAndKeepsTheSample) {
  frmMain.lblBCol(6).SetBackColor(0x777777);
  PutKind(kRectangle, -1);
  SelectByMouse(0);
  EXPECT_EQ(frmMain.chkTransparent.Value(), 1);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x777777);
  EXPECT_EQ(Object().FillColor, -1);
}

// Unticking the box while the panel is filled must not give the object the former sample.
TEST_F(ObjectPanelsTest, AnOpaqueShapeKeepsItsFillAfterATransparentOne) {
  PutKind(kRectangle, -1);
  PutKind(kRectangle, 0x00FF00);
  Object(1).Left = 60;
  RedrawBoard();
  SelectByMouse(0);
  SelectByMouse(1);
  EXPECT_EQ(Object(1).FillColor, 0x00FF00);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x00FF00);
  EXPECT_EQ(frmMain.chkTransparent.Value(), 0);
}

TEST_F(ObjectPanelsTest, AWeightOutsideTheListIsNotReplaced) {
  PutKind(kRectangle);
  Object().Param = 40;
  SelectByMouse(0);
  EXPECT_EQ(Object().Param, 40);
}

// --- data fields and tools ----------------------------------------------------------------------

TEST_F(ObjectPanelsTest, ADataFieldChangesNoPanel) {
  ShowPanel(frmMain.picPrint);
  Put(Field(0, 0, "Name"));
  Object().Left = 12.5F;
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(&FrontPanel(), &frmMain.picPrint);
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "12.50");
}

TEST_F(ObjectPanelsTest, NothingIsFilledWithAToolArmed) {
  PutKind(kRectangle);
  ShowPanel(frmMain.picPrint);
  SelectedObject = 0;
  CurrentTool = kEllipse;
  FillPanelFromObject();
  EXPECT_EQ(&FrontPanel(), &frmMain.picPrint);
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ");
}

TEST_F(ObjectPanelsTest, SizeFieldsShowInches) {
  UnitScale = 25.4;
  Put(ShapeObject(kRectangle, 25.4F, 50.8F, 12.7, 6.35));
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(SizeFields(), "1.00 2.00 0.50 0.25 ");
}

TEST_F(ObjectPanelsTest, LoadingLastsToItsEndAlsoUnderACallerThatLoads) {
  PutKind(kRectangle);
  SelectedObject = 0;
  PanelLoading = true;
  FillPanelFromObject();
  EXPECT_TRUE(PanelLoading);
  PanelLoading = false;
}

// --- fonts of one object ------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, AFontPickGoesIntoTheTextAndItsExtent) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  DirtyFlag = kFalse;
  Board().painted.clear();
  ChooseFontAndSize(2, "20");
  EXPECT_EQ(Object().FontName.Trimmed(), "Times New Roman");
  EXPECT_EQ(Object().FontSize, 20);
  EXPECT_NEAR(Object().Width, TextWidthOf(5, 20), 1e-6);
  EXPECT_NEAR(Object().Height, LineHeightOf(20), 1e-6);
  EXPECT_EQ(HoldAt(0).Font().Size, 20);
  EXPECT_FALSE(HoldAt(0).AutoSize());
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_TRUE(Board().Texts().empty());  // its hit area shows it
  EXPECT_EQ(RedrawSkip, -1);
}

TEST_F(ObjectPanelsTest, OnScreenTheSizeIsZoomed) {
  PutTextOf("Hello", 12);
  frmMain.cboZoom.SetListIndex(16);  // 225 %
  SelectByMouse(0);
  ChooseFontAndSize(2, "20");
  EXPECT_EQ(HoldAt(0).Font().Size, 45);
  EXPECT_EQ(Object().FontSize, 20);
  EXPECT_NEAR(Object().Width, TextWidthOf(5, 20), 1e-6);
}

TEST_F(ObjectPanelsTest, BoldAndItalicGoIntoATextAndAField) {
  PutTextOf("Hello", 12);
  Put(Field(0, 0, "Name"));
  for (const std::int16_t index : {std::int16_t{0}, std::int16_t{1}}) {
    SelectedObject = index;
    frmMain.chkBold.SetValue(0);
    frmMain.chkItalic.SetValue(0);
    frmMain.chkBold.Press();
    frmMain.chkItalic.Press();
    EXPECT_EQ(Object(index).Bold, kTrue) << index;
    EXPECT_EQ(Object(index).Italic, kTrue) << index;
  }
  EXPECT_EQ(HoldAt(1).Caption(), "");
}

TEST_F(ObjectPanelsTest, ABarcodesBoldIsLeftAlone) {
  PutBarcode();
  SelectByMouse(0);
  frmMain.chkBold.Press();
  EXPECT_EQ(Object().Bold, kFalse);
  ChooseFontAndSize(2, "10");
  EXPECT_EQ(Object().FontName.Trimmed(), "Times New Roman");
  EXPECT_EQ(Object().FontSize, 10);
  EXPECT_NEAR(Object().Width, 30, 1e-9);
}

TEST_F(ObjectPanelsTest, WithNothingSelectedASizePickOnlyGivesTheNextText) {
  PutTextOf("Hello", 12);
  const ObjectRecord before = Object();
  const auto redraws = RedrawCount;
  ChooseFontAndSize(2, "20");
  EXPECT_EQ(Object(), before);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
  CurrentTool = kText;
  Press(120, 160);
  EXPECT_EQ(ObjectAt(ObjectUB).FontSize, 20);
  EXPECT_EQ(ObjectAt(ObjectUB).FontName.Trimmed(), "Times New Roman");
}

TEST_F(ObjectPanelsTest, ATypedFontIsTakenAsTheBoxIsLeft) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  frmMain.cboFont.UserFocus();
  frmMain.cboFont.SetSelStart(0);
  frmMain.cboFont.UserType("ti");
  EXPECT_EQ(frmMain.cboFont.Text(), "times New Roman");
  EXPECT_EQ(Object().FontName.Trimmed(), "Courier New");
  frmMain.txtTool.UserFocus();
  EXPECT_EQ(Object().FontName.Trimmed(), "Times New Roman");
}

TEST_F(ObjectPanelsTest, PickListsTakeNoTyping) {
  for (ComboBox* list :
       {&frmMain.cboSize, &frmMain.cboWeight, &frmMain.cboZoom, &frmMain.cboBCode,
        &frmMain.cboPrinter, &frmMain.cboImportType, &frmMain.cboRSet, &frmMain.cboLabelLayout}) {
    const std::string before = list->Text();
    list->UserFocus();
    list->UserType("77");
    EXPECT_EQ(list->Text(), before) << list->Name();
  }
}

// --- fonts of a group ---------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, AGroupTakesTheFontKindByKind) {
  PutTextOf("Hello", 12);
  Put(Field(0, 0, "Name"));
  PutBarcode();
  PutKind(kRectangle);
  SelectGroup({0, 1, 2, 3});
  const ObjectRecord rectangle = Object(3);
  const double barcode_width = Object(2).Width;
  frmMain.chkBold.SetValue(0);
  const auto redraws = RedrawCount;
  DirtyFlag = kFalse;
  frmMain.cboSize.SetListIndex(11);  // 20
  EXPECT_EQ(frmMain.cboSize.Text(), "20");
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(DirtyFlag, kTrue);
  for (const int index : {0, 1, 2}) EXPECT_EQ(Object(index).FontSize, 20) << index;
  EXPECT_NEAR(Object(0).Width, TextWidthOf(5, 20), 1e-6);
  EXPECT_NEAR(Object(1).Width, TextWidthOf(4, 20), 1e-6);
  EXPECT_EQ(Object(2).Width, barcode_width);
  EXPECT_EQ(Object(3), rectangle);
  for (const int index : {0, 1}) {
    EXPECT_EQ(HoldAt(index).Caption(), "") << index;
    EXPECT_FALSE(HoldAt(index).AutoSize()) << index;
  }
  frmMain.chkBold.Press();
  EXPECT_EQ(Object(0).Bold, kTrue);
  EXPECT_EQ(Object(1).Bold, kTrue);
  EXPECT_EQ(Object(2).Bold, kFalse);
  EXPECT_EQ(Object(3), rectangle);
}

TEST_F(ObjectPanelsTest, TheGroupsFrameIsMeasuredAnew) {
  PutTextOf("Hello", 12);
  PutTextOf("x", 12);
  SelectGroup({0, 1});
  const double before = frmMain.shpBox.Width();
  frmMain.cboSize.SetListIndex(20);  // 38
  EXPECT_GT(frmMain.shpBox.Width(), before);
  EXPECT_NEAR(frmMain.shpBox.Width(), TextWidthOf(5, 38), 1e-6);
  EXPECT_EQ(HandlesShown(), "");
}

// --- alignment ----------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, ATextIsAligned) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  const auto redraws = RedrawCount;
  for (const int index : {1, 2, 0}) {
    DirtyFlag = kFalse;
    frmMain.cmdAlign(index).Press();
    EXPECT_EQ(Object().Param, index);
    EXPECT_EQ(static_cast<int>(HoldAt(0).Alignment()), index);
    EXPECT_EQ(DirtyFlag, kTrue);
  }
  EXPECT_EQ(RedrawCount, redraws);
}

TEST_F(ObjectPanelsTest, OnlyTextsAreAligned) {
  PutKind(kRectangle);
  SelectedObject = 0;
  frmMain.cmdAlign(1).Press();
  EXPECT_EQ(Object().Param, 3);
  SelectedObject = -1;
  frmMain.cmdAlign(1).Press();
  EXPECT_EQ(DirtyFlag, kFalse);
}

// --- typing -------------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, TheObjectGrowsWhileOneTypes) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  DirtyFlag = kFalse;
  TextEntryActive = false;
  frmMain.txtTool.UserType("!\nab");
  EXPECT_EQ(Object().Text.Trimmed(), "Hello!\r\nab");
  EXPECT_EQ(HoldAt(0).Caption(), "Hello!\r\nab");
  EXPECT_NEAR(Object().Width, TextWidthOf(6, 12), 1e-6);
  EXPECT_NEAR(Object().Height, 2 * LineHeightOf(12), 1e-6);
  EXPECT_NEAR(frmMain.shpBox.Height(), 2 * LineHeightOf(12), 1e-6);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_TRUE(TextEntryActive);
}

TEST_F(ObjectPanelsTest, TheTextIsCutAtItsFieldsLength) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  frmMain.txtTool.SetText(std::string(260, 'x'));
  EXPECT_EQ(Object().Text.Padded(), std::string(250, 'x'));
}

TEST_F(ObjectPanelsTest, WithNothingSelectedTypingReachesNoObject) {
  PutTextOf("Hello", 12);
  frmMain.cmdTools(3).Press();
  frmMain.txtTool.UserFocus();
  frmMain.txtTool.UserType("stray");
  EXPECT_EQ(Object().Text.Trimmed(), "Hello");
}

// The box's text belongs to whatever is selected: kinds are not looked at.
TEST_F(ObjectPanelsTest, TheBoxWritesIntoAnyKindThatIsSelected) {
  Put(Field(0, 0, "Name"));
  SelectedObject = 0;
  frmMain.txtTool.UserType("x");
  EXPECT_EQ(Object().Text.Trimmed(), "x");
}

TEST_F(ObjectPanelsTest, LeavingTheBoxEndsTheEntry) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  frmMain.txtTool.UserType("!");
  CurrentTool = 5;
  frmMain.cboZoom.UserFocus();
  EXPECT_EQ(TextEditOpen, kFalse);
  EXPECT_FALSE(TextEntryActive);
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_FALSE(HoldAt(0).AutoSize());
  EXPECT_EQ(Object().Text.Trimmed(), "Hello!");
  EXPECT_EQ(SelectedObject, 0);
}

TEST_F(ObjectPanelsTest, TheEndOfTypingReadsTheSizeBox) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  frmMain.cboSize.SetText("17");
  CommitTextEdit();
  EXPECT_EQ(Object().FontSize, 17);
}

TEST_F(ObjectPanelsTest, OnlyATextIsCommitted) {
  PutKind(kRectangle);
  const ObjectRecord before = Object();
  SelectedObject = 0;
  TextEditOpen = kTrue;
  frmMain.txtTool.UserEdit("", 0);
  CommitTextEdit();
  EXPECT_EQ(Object(), before);
  EXPECT_EQ(TextEditOpen, kTrue);
}

TEST_F(ObjectPanelsTest, ATextSelectedWithoutItsPanelKeepsItsText) {
  PutTextOf("Hello", 12);
  mnuEditSelectAll_Click();
  ASSERT_EQ(SelectedObject, 0);
  DeselectObject();
  EXPECT_EQ(Object().Text.Trimmed(), "Hello");
}

// The keyboard in a field of the barcode panel, nothing selected, and a text opened without a press
// that would have moved the keyboard first: what was typed there goes into the text.
TEST_F(ObjectPanelsTest, BarcodeDataLeftBehindGoesIntoTheTextThatOpens) {
  PutTextOf("Hello", 12);
  frmMain.cboBCode.SetListIndex(9);
  TypeInto(frmMain.txtBCodeData, "ABC");
  SelectedObject = 0;
  FillPanelFromObject();
  EXPECT_EQ(Object().Text.Trimmed(), "ABC");
}

TEST_F(ObjectPanelsTest, APressMovesTheKeyboardBeforeTheTextOpens) {
  PutTextOf("Hello", 12);
  frmMain.cboBCode.SetListIndex(9);
  TypeInto(frmMain.txtBCodeData, "ABC");
  SelectByMouse(0);
  EXPECT_EQ(Object().Text.Trimmed(), "Hello");
}

TEST_F(ObjectPanelsTest, OneTextAfterTheOtherEachKeepsItsOwn) {
  PutTextOf("first", 12);
  PutTextOf("second", 12);
  Object(1).Left = 60;
  RedrawBoard();
  SelectByMouse(0);
  frmMain.txtTool.UserType("!");
  SelectByMouse(1);
  frmMain.txtTool.UserType("?");
  Click(250, 180);
  EXPECT_EQ(Object(0).Text.Trimmed(), "first!");
  EXPECT_EQ(Object(1).Text.Trimmed(), "second?");
  EXPECT_EQ(frmMain.txtTool.Text(), "");
}

TEST_F(ObjectPanelsTest, FocusWithAHitAreaThatIsMissingMakesIt) {
  Add(TextObject("x"));
  Add(TextObject("x"));
  Add(TextObject("x"));
  SelectedObject = 2;
  ASSERT_FALSE(frmMain.lblHold.Exists(2));
  frmMain.txtTool.UserFocus();
  ASSERT_TRUE(frmMain.lblHold.Exists(2));
  EXPECT_TRUE(HoldAt(2).Visible());
  EXPECT_TRUE(HoldAt(2).AutoSize());
}

// --- colours ------------------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, ColourDialogsAndWhatTheyReach) {
  const struct {
    Kind kind;
    bool takes_fill, takes_outline, takes_text;
  } rows[] = {{kRectangle, true, true, false},
              {kLine, true, true, false},
              {kText, false, false, true},
              {kDataField, false, false, false},
              {kBarcode, false, false, false}};
  for (const auto& row : rows) {
    ResetDocumentState();
    ReadyBoard();
    const int index = PutKind(row.kind, 5);
    SelectedObject = static_cast<std::int16_t>(index);
    dialogs.colors = {0x111111, 0x222222, 0x333333};
    auto redraws = RedrawCount;
    frmMain.cmdColor.Press();
    EXPECT_EQ(Object().FillColor, row.takes_fill ? 0x111111 : 5) << row.kind;
    EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x111111);
    frmMain.cmdFColor.Press();
    EXPECT_EQ(Object().ForeColor, row.takes_outline ? 0x222222 : 0x0000FF) << row.kind;
    EXPECT_EQ(frmMain.lblFCol(6).BackColor(), 0x222222);
    EXPECT_EQ(RedrawCount, redraws + 2) << "whatever is selected";
    EXPECT_EQ(DirtyFlag, kTrue);
    DirtyFlag = kFalse;
    const std::int32_t outline = Object().ForeColor;
    frmMain.cmdTextColor.Press();
    EXPECT_EQ(Object().ForeColor, row.takes_text ? 0x333333 : outline) << row.kind;
    EXPECT_EQ(frmMain.lblTextColor.BackColor(), 0x333333);
    EXPECT_EQ(RedrawCount, redraws + 2);
    EXPECT_EQ(DirtyFlag, row.takes_text ? kTrue : kFalse);
  }
}

TEST_F(ObjectPanelsTest, WithNothingSelectedColoursAreDefaultsOfTheNext) {
  dialogs.colors = {0x111111, 0x222222, 0x333333};
  const auto redraws = RedrawCount;
  frmMain.cmdColor.Press();
  frmMain.cmdFColor.Press();
  frmMain.cmdTextColor.Press();
  frmMain.lblFCol(2).Press();
  frmMain.lblBCol(2).Press();
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(frmMain.lblTextColor.BackColor(), 0x333333);
}

TEST_F(ObjectPanelsTest, ACancelledColourChangesNothing) {
  PutKind(kRectangle);
  SelectedObject = 0;
  const ObjectRecord before = Object();
  const auto redraws = RedrawCount;
  frmMain.lblBCol(6).SetBackColor(0x010101);
  for (CommandButton* button : {&frmMain.cmdColor, &frmMain.cmdFColor, &frmMain.cmdTextColor}) {
    button->Press();
  }
  EXPECT_EQ(Object(), before);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x010101);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
}

// Only a cancel ends the command: the steps after a dialog that fails are taken with the sample.
TEST_F(ObjectPanelsTest, AColourDialogThatFailsIsPassedOver) {
  class FailingDialogs : public ScriptedDialogs {
    std::optional<std::int32_t> ChooseColor(std::int32_t) override { RaiseFault(kOutOfMemory); }
  } failing;
  PutKind(kRectangle);
  SelectedObject = 0;
  frmMain.lblBCol(6).SetBackColor(0x010101);
  SetDialogs(&failing);
  frmMain.cmdColor.Press();
  SetDialogs(&dialogs);
  EXPECT_EQ(Object().FillColor, 0x010101);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x010101);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ObjectPanelsTest, AFillFromTheDialogLeavesTheBoxTicked) {
  PutKind(kRectangle, -1);
  SelectByMouse(0);
  dialogs.colors = {0x123456};
  frmMain.cmdColor.Press();
  EXPECT_EQ(Object().FillColor, 0x123456);
  EXPECT_EQ(frmMain.chkTransparent.Value(), 1);
}

// The box's own event runs as it is unticked, then the palette writes the same colour once more.
TEST_F(ObjectPanelsTest, APaletteGreyMakesATransparentShapeOpaque) {
  PutKind(kRectangle, -1);
  SelectByMouse(0);
  frmMain.lblBCol(3).SetBackColor(0x666666);
  const auto redraws = RedrawCount;
  frmMain.lblBCol(3).Press();
  EXPECT_EQ(frmMain.chkTransparent.Value(), 0);
  EXPECT_EQ(Object().FillColor, 0x666666);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x666666);
  EXPECT_EQ(RedrawCount, redraws + 2);
}

TEST_F(ObjectPanelsTest, APaletteGreyBecomesTheOutline) {
  PutKind(kRectangle);
  SelectByMouse(0);
  frmMain.lblFCol(3).SetBackColor(0x666666);
  frmMain.lblFCol(3).Press();
  EXPECT_EQ(Object().ForeColor, 0x666666);
  EXPECT_EQ(frmMain.lblFCol(6).BackColor(), 0x666666);
}

// --- transparency and weight --------------------------------------------------------------------

TEST_F(ObjectPanelsTest, TransparentOnAndOffRestoresTheFill) {
  PutKind(kRectangle, 0x00FF00);
  SelectByMouse(0);
  DirtyFlag = kFalse;
  const auto redraws = RedrawCount;
  frmMain.chkTransparent.Press();
  EXPECT_EQ(Object().FillColor, -1);
  frmMain.chkTransparent.Press();
  EXPECT_EQ(Object().FillColor, 0x00FF00);
  EXPECT_EQ(RedrawCount, redraws + 2);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ObjectPanelsTest, TransparentIsOnlyForShapes) {
  PutBarcode();
  SelectedObject = 0;
  frmMain.chkTransparent.Press();
  EXPECT_EQ(Object().FillColor, 0);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(ObjectPanelsTest, AWeightGoesIntoAShape) {
  PutKind(kRectangle);
  SelectByMouse(0);
  DirtyFlag = kFalse;
  frmMain.cboWeight.SetListIndex(0);
  EXPECT_EQ(Object().Param, 0);
  EXPECT_EQ(Board().Of(Painted::What::kShape).back().UsedPen().style, kPenNull);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ObjectPanelsTest, AWeightIsNothingToOthers) {
  PutTextOf("Hello", 12);
  SelectedObject = 0;
  const auto redraws = RedrawCount;
  frmMain.cboWeight.SetListIndex(5);
  EXPECT_EQ(Object().Param, 0);
  frmMain.cboWeight.SetListIndex(-1);
  SelectedObject = -1;
  frmMain.cboWeight.SetListIndex(4);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DirtyFlag, kFalse);
}

// --- place and size -----------------------------------------------------------------------------

TEST_F(ObjectPanelsTest, FieldsRefuseTheKeyboardWithoutASingleSelection) {
  EXPECT_EQ(SizeFields(), "0.00 0.00 0.00 0.00 ");
  frmMain.txtDSize(0).UserFocus();
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  EXPECT_FALSE(TextEntryActive);
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  frmMain.txtDSize(2).UserFocus();
  EXPECT_TRUE(frmMain.txtSetFocus(0).HasFocus());
  SelectedUpper = -1;
  SelectObject(0);
  frmMain.txtDSize(2).UserFocus();
  EXPECT_TRUE(frmMain.txtDSize(2).HasFocus());
  EXPECT_TRUE(TextEntryActive);
}

TEST_F(ObjectPanelsTest, TheFieldsPointerSaysWhetherItTakesTyping) {
  TextBox& field = frmMain.txtDSize(1);
  field.UserMouseMove(0, 0, 10, 10);
  EXPECT_EQ(field.MousePointer(), 1);
  SelectObject(PutBox(10, 10));
  field.UserMouseMove(0, 0, 10, 10);
  EXPECT_EQ(field.MousePointer(), 0);
}

TEST_F(ObjectPanelsTest, FieldsTakeNumbersOnly) {
  SelectObject(PutBox(10, 10));
  TypeInto(frmMain.txtDSize(0), "1a2.5.6-");
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "12.56");
  TypeInto(frmMain.txtDSize(0), "-x1.5");
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "-1.5");
}

TEST_F(ObjectPanelsTest, LeavingAnyFieldTakesAllFour) {
  SelectObject(PutBox(10, 10));
  ShowSizeFields();
  frmMain.txtDSize(1).UserFocus();
  for (int i = 0; i < 4; ++i) frmMain.txtDSize(i).SetText(std::to_string(i + 5) + ".25");
  DirtyFlag = kFalse;
  const auto redraws = RedrawCount;
  frmMain.cboZoom.UserFocus();
  ExpectRecord(0, 5.25, 6.25, 7.25, 8.25);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(DirtyFlag, kFalse);
  ExpectFrame(105.25, 81.25, 7.25, 8.25);
}

TEST_F(ObjectPanelsTest, PositionsAreTypedInInches) {
  UnitScale = 25.4;
  SelectObject(PutBox(10, 10));
  FillPanelFromObject();
  TypeInto(frmMain.txtDSize(0), "1.5");
  TypeInto(frmMain.txtDSize(1), "0.5");
  frmMain.cboZoom.UserFocus();
  EXPECT_NEAR(Object().Left, 38.1, 1e-4);
  EXPECT_NEAR(Object().Top, 12.7, 1e-4);
}

TEST_F(ObjectPanelsTest, BadNumbersCountAsNought) {
  SelectObject(PutBox(10, 10));
  frmMain.txtDSize(0).UserFocus();
  for (const auto& [index, field] : frmMain.txtDSize) field->SetText("x");
  frmMain.cboZoom.UserFocus();
  ExpectRecord(0, 0, 0, 0, 0);
}

TEST_F(ObjectPanelsTest, AnOverflowingPlaceKeepsTheOldOne) {
  SelectObject(PutBox(10, 10));
  ShowSizeFields();
  frmMain.txtDSize(0).UserFocus();
  frmMain.txtDSize(0).SetText("1e300");
  frmMain.cboZoom.UserFocus();
  ExpectRecord(0, 10, 10, 20, 10);
}

// Each side by itself, as the places are.
TEST_F(ObjectPanelsTest, AnOverflowingSideKeepsTheOldOne) {
  UnitScale = 25.4;
  for (const int overflowing : {2, 3}) {
    ObjectUB = -1;
    SelectObject(PutBox(10, 10));
    ShowSizeFields();
    frmMain.txtDSize(0).UserFocus();
    frmMain.txtDSize(5 - overflowing).SetText("2");
    frmMain.txtDSize(overflowing).SetText("1e308");
    frmMain.cboZoom.UserFocus();
    EXPECT_NEAR(Object().Width, overflowing == 2 ? 20 : 50.8, 1e-9);
    EXPECT_NEAR(Object().Height, overflowing == 3 ? 10 : 50.8, 1e-9);
  }
}

// Those of other kinds wait for the redraw.
TEST_F(ObjectPanelsTest, TextsAndFieldsMoveTheirHitArea) {
  for (const Kind kind : {kText, kDataField, kRectangle}) {
    ObjectUB = -1;
    PutTextOf("Hello", 12);
    Object().ObjType = kind;
    SelectByMouse(0);
    frmMain.txtDSize(0).UserFocus();
    frmMain.txtDSize(0).SetText("33");
    frmMain.txtDSize(1).SetText("11");
    SuspendRedraw = kTrue;
    frmMain.cboZoom.UserFocus();
    SuspendRedraw = kFalse;
    const double left = kind == kRectangle ? 120 : 133;
    const double top = kind == kRectangle ? 95 : 86;
    EXPECT_NEAR(HoldAt(0).Left(), left, 1e-4) << kind;
    EXPECT_NEAR(HoldAt(0).Top(), top, 1e-4) << kind;
    EXPECT_NEAR(frmMain.shpBox.Left(), left, 1e-4) << kind;
    const Label& handle = frmMain.lblHandle(0);
    EXPECT_NEAR(handle.Left() + handle.Width(), left - 1, 1e-4) << kind;
    EXPECT_NEAR(handle.Top() + handle.Height(), top - 1, 1e-4) << kind;
    DeselectObject();
  }
}

TEST_F(ObjectPanelsTest, AWidthTypedForATextLastsUntilItsTextChanges) {
  PutTextOf("Hello", 12);
  SelectByMouse(0);
  TypeInto(frmMain.txtDSize(2), "70");
  frmMain.txtTool.UserFocus();
  EXPECT_EQ(Object().Width, 70);
  frmMain.txtTool.UserType("!");
  EXPECT_NEAR(Object().Width, TextWidthOf(6, 12), 1e-6);
}

// The guard asks for a FillColor that no barcode has.
TEST_F(ObjectPanelsTest, APostalSymbolCanBeTypedOver) {
  PutBarcode("12345", 12);
  SelectByMouse(0);
  TypeInto(frmMain.txtDSize(2), "70");
  frmMain.cboZoom.UserFocus();
  EXPECT_EQ(Object().Width, 70);
  Object().FillColor = 12;
  TypeInto(frmMain.txtDSize(2), "80");
  frmMain.cboZoom.UserFocus();
  EXPECT_EQ(Object().Width, 70);
}

TEST_F(ObjectPanelsTest, ResetClosesTheEntry) {
  TextEditOpen = kTrue;
  ResetObjectPanels();
  EXPECT_EQ(TextEditOpen, kFalse);
}

}  // namespace
}  // namespace tagwright
