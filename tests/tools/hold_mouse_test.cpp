// Presses, moves and releases over objects, as the board's view reports them.
#include "tools/hold_mouse.h"

#include <limits>

#include "editing/deletion.h"
#include "editing/editing_support.h"
#include "editing/property_pick.h"
#include "editing/rubber.h"
#include "editing/shape_panel.h"
#include "platform/controls/windows.h"
#include "tools/barcode_panel.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

using Members = std::vector<std::int16_t>;

constexpr int kControlKey = 17;

// Notes the menus that open and what was checked in them, and may act for the user.
class MenuService : public WindowService {
 public:
  std::vector<std::string> opened;
  std::function<void()> choose;

  void Create(Form&) override {}
  void Show(Form&) override {}
  void RunModal(Form&) override {}
  void Destroy(Form&) override {}
  void PopupMenu(Form&, Menu& menu) override {
    opened.push_back(menu.Name());
    if (choose) choose();
  }
  void SendTab() override {}
};

class HoldMouseTest : public EditingTest {
 protected:
  HoldMouseTest() {
    SetWindowService(&menus);
    ResetPlacement();
    ResetBarcodePanel();
    frmMain.lblHold.Events().MouseDown = lblHold_MouseDown;
    frmMain.lblHold.Events().MouseMove = lblHold_MouseMove;
    frmMain.lblHold.Events().MouseUp = lblHold_MouseUp;
    frmMain.txtBCodeData.Events().GotFocus = txtBCodeData_GotFocus;
    frmMain.txtBCodeData.Events().KeyPress = txtBCodeData_KeyPress;
    frmMain.txtBCodeData.Events().LostFocus = txtBCodeData_LostFocus;
    frmMain.chkTransparent.Events().Click = chkTransparent_Click;
    for (int i = 0; i <= 10; ++i) frmMain.cboWeight.AddItem(std::to_string(i));
    frmMain.cboFont.SetListIndex(0);
    frmMain.cboSize.SetListIndex(2);
  }
  ~HoldMouseTest() override { SetWindowService(nullptr); }

  // With Ctrl held, as the window reports it.
  static void CtrlClick(double x, double y) {
    KeyDown(kControlKey, kCtrl);
    Press(x, y, kLeftButton, kCtrl);
    Release(x, y);
    KeyUp(kControlKey);
  }

  MenuService menus;
};

// --- one object ---------------------------------------------------------------------------------

TEST_F(HoldMouseTest, APressSelectsTheObjectAndShowsItsHandles) {
  PutBox(10, 10);
  Press(115, 90);
  EXPECT_EQ(SelectedObject, 0);
  EXPECT_EQ(HandlesShown(), "0123");
  ExpectFrame(110, 85, 20, 10);
  EXPECT_EQ(frmMain.shpBox.BorderStyle(), 3);
  EXPECT_TRUE(Dragging);
  EXPECT_TRUE(frmMain.mnuEditCopy.Enabled());
  EXPECT_TRUE(frmMain.mnuArrangeSTB.Enabled());
  EXPECT_FALSE(frmMain.mnuArrAlign.Enabled());
  EXPECT_FALSE(frmMain.mnuArrSize.Enabled());
  EXPECT_GT(frmMain.picDrawing.Order(), frmMain.picText.Order());
}

TEST_F(HoldMouseTest, APressShowsTheSizeOfTheHitAreaWithOneDecimal) {
  PutBox(10, 10, 25.44, 10);
  Click(115, 90);
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 25.4 Height: 10.0");
  UnitScale = 25.4;
  Click(115, 90);
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 1.0 Height: 0.4");
}

TEST_F(HoldMouseTest, APressEndsTheEntryAndEmptiesPanelThree) {
  PutBox(10, 10);
  TextEntryActive = true;
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  Press(115, 90);
  EXPECT_FALSE(TextEntryActive);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
}

TEST_F(HoldMouseTest, APressPutsThePointerBackEvenACustomOne) {
  PutBox(10, 10);
  CursorShape = 2;
  frmMain.SetMousePointer(99);
  Press(115, 90);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
}

TEST_F(HoldMouseTest, ThePressGoesToTheObjectOnTop) {
  PutBox(10, 10);
  PutBox(15, 12);
  Click(120, 90);
  EXPECT_EQ(SelectedObject, 1);
  Click(111, 86);
  EXPECT_EQ(SelectedObject, 0);
}

TEST_F(HoldMouseTest, APressOnAnotherObjectSelectsThatOneAlone) {
  PutBox(10, 10);
  Put(ShapeObject(kEllipse, 40, 10, 20, 10));
  Click(115, 90);
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 0);
  Click(150, 90);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 2);
  ExpectFrame(140, 85, 20, 10);
}

TEST_F(HoldMouseTest, AStaleHitAreaIsHiddenAndNothingIsSelected) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectObject(0);
  ObjectUB = 0;
  Press(150, 90);
  EXPECT_FALSE(frmMain.lblHold(1).Visible());
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_EQ(SelectedObject, 0);  // the event ends before the selection is looked at
  EXPECT_FALSE(Dragging);
}

// The former one is written back before the new one is chosen.
TEST_F(HoldMouseTest, APressOnASecondTextCommitsTheFirst) {
  PutText("first");
  PutText("second", 10, 30);
  Click(115, 90);
  ASSERT_TRUE(frmMain.txtTool.HasFocus());
  frmMain.txtTool.UserType("!");
  Click(115, 110);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "first!");
  EXPECT_NEAR(ObjectAt(0).Width, 6 * kCharacter, 1e-6);
  EXPECT_EQ(frmMain.txtTool.Text(), "second");
  EXPECT_TRUE(frmMain.txtTool.HasFocus());
  EXPECT_EQ(SelectedObject, 1);
}

TEST_F(HoldMouseTest, ASelectedTextIsShownByItsHitAreaOverABoardWithoutIt) {
  PutText("Abc");
  Board().painted.clear();
  Press(115, 90);
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "Abc");
  EXPECT_EQ(frmMain.cboFont.Text(), "Arial");
  EXPECT_EQ(frmMain.cboFont.Left(), 8950);
  EXPECT_EQ(RedrawSkip, -1);
}

// The panel picks the row "13", as filling it alone shows; the press then shows the size itself,
// since what ends the entry later reads the box, and the row would cost half a point.
TEST_F(HoldMouseTest, ARealPressOnATextOfThirteenAndAHalfPointsShowsJustThat) {
  ObjectRecord text = TextObject("Abc", 10, 10);
  text.FontSize = 13.5;
  text.Width = 20;
  text.Height = 10;
  Put(text);
  Click(115, 90);
  EXPECT_EQ(frmMain.cboSize.Text(), "13.5");
  DeselectObject();
  EXPECT_EQ(ObjectAt(0).FontSize, 13.5);
}

TEST_F(HoldMouseTest, FontBoxesShowTheObjectsFontForBarcodesTextsAndFields) {
  for (const std::int16_t kind : {1, 3, 20}) {
    ObjectUB = -1;
    ObjectRecord record = TextObject("12", 10, 10);
    record.ObjType = kind;
    record.FontName = "Courier New";
    record.FontSize = 15;
    record.Width = 20;
    record.Height = 10;
    Put(record);
    Click(115, 90);
    EXPECT_EQ(frmMain.cboFont.Text(), "Courier New") << kind;
    EXPECT_EQ(frmMain.cboSize.Text(), "15") << kind;
    frmMain.cboFont.SetText("Arial");
  }
  EXPECT_EQ(SuspendRedraw, kFalse);
}

TEST_F(HoldMouseTest, OtherKindsLeaveTheFontBoxesAlone) {
  PutBox(10, 10);
  frmMain.cboSize.SetText("77");
  Click(115, 90);
  EXPECT_EQ(frmMain.cboSize.Text(), "77");
}

// Unticking the box while the panel fills must not give the shape the former shape's colour.
TEST_F(HoldMouseTest, FillingThePanelWritesNothingBack) {
  ObjectRecord transparent = ShapeObject(kRectangle, 10, 10, 20, 10);
  ObjectRecord filled = ShapeObject(kRectangle, 40, 10, 20, 10);
  filled.FillColor = 0x0000FF;
  Put(transparent);
  Put(filled);
  frmMain.lblBCol(6).SetBackColor(0x00FF00);
  Click(115, 90);
  ASSERT_EQ(frmMain.chkTransparent.Value(), 1);
  Click(150, 90);
  EXPECT_EQ(ObjectAt(1).FillColor, 0x0000FF);
  EXPECT_EQ(frmMain.lblBCol(6).BackColor(), 0x0000FF);
  EXPECT_EQ(ObjectAt(0).FillColor, -1);
  EXPECT_FALSE(PanelLoading);
}

// DeselectObject returns before it moves the keyboard, so the text's own box takes it from the
// barcode's field, which then stores its data in whatever is selected by now.
TEST_F(HoldMouseTest, BarcodeDataBeingTypedWithNothingSelectedLandsInTheTextPressed) {
  PutText("text");
  frmMain.txtBCodeData.SetFocus();
  frmMain.txtBCodeData.UserType("123");
  lblHold_MouseDown(0, kLeftButton, 0, 0, 0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "123");
}

// A person's press moves the keyboard to the board before anything is selected.
TEST_F(HoldMouseTest, BarcodeDataBeingTypedIsLeftBeforeAPressOfTheMouse) {
  PutText("text");
  frmMain.txtBCodeData.SetFocus();
  frmMain.txtBCodeData.UserType("123");
  Press(115, 90);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "text");
}

// --- empty texts --------------------------------------------------------------------------------

TEST_F(HoldMouseTest, APressOnAnEmptyTextThatIsSelectedFindsNoObjectAnyMore) {
  PutBox(40, 10);
  SelectObject(PutText(""));
  frmMain.lblHold(1).Move(110, 85, 20, 10);
  Press(115, 90);
  Release(115, 90);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.lblHold(1).Visible());
  EXPECT_FALSE(Dragging);
}

// The empty text goes, the rest is selected; the press then takes the place that it hit, where the
// next object stands by now, and that one alone.
TEST_F(HoldMouseTest, APressAfterAnEmptyTextBeforeItTakesTheNextObject) {
  SelectObject(PutText(""));
  PutBox(10, 10);
  PutBox(40, 10);
  Press(115, 90);
  Release(115, 90);
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_EQ(SelectedUpper, -1);
  ExpectRecord(0, 10, 10, 20, 10);
  ExpectRecord(1, 40, 10, 20, 10);
}

// --- menus --------------------------------------------------------------------------------------

TEST_F(HoldMouseTest, TheRightButtonOpensTheMenuOfTheKind) {
  const struct {
    std::int16_t kind;
    const char* menu;
  } rows[] = {{kBarcode, ""},
              {kPicture, "mnuGraphic"},
              {kText, ""},
              {kLine, ""},
              {kRectangle, "mnuDrawing"},
              {kRoundedRectangle, "mnuDrawing"},
              {kEllipse, "mnuDrawing"},
              {kDataField, "mnuFields"}};
  for (const auto& row : rows) {
    DropSelection();
    ObjectUB = -1;
    menus.opened.clear();
    ObjectRecord record = ShapeObject(static_cast<Kind>(row.kind), 10, 10, 20, 10);
    if (row.kind == kText) record.Text = "x";
    Put(record);
    Click(115, 90, kRightButton);
    EXPECT_EQ(menus.opened,
              row.menu[0] ? std::vector<std::string>{row.menu} : std::vector<std::string>{})
        << row.kind;
    EXPECT_EQ(SelectedObject, 0) << row.kind;
    EXPECT_FALSE(Dragging) << row.kind;
  }
}

// The frame that stood around the group must not stay for it.
TEST_F(HoldMouseTest, ARightPressBesideAGroupFramesTheObjectThatItSelects) {
  PutBox(10, 10);
  PutBox(40, 10);
  Put(ShapeObject(kEllipse, 70, 10, 20, 10));
  SelectGroup({0, 1});
  frmMain.sB1.SetPanelText(3, "Objects Selected: 2");
  Click(175, 90, kRightButton);
  EXPECT_EQ(SelectedObject, 2);
  EXPECT_EQ(SelectedUpper, -1);
  ExpectFrame(170, 85, 20, 10);
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 2);
  EXPECT_EQ(HandlesShown(), "0123");
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
}

TEST_F(HoldMouseTest, AGroupThatIsEmptiedByModifierLeavesNoCommandEnabled) {
  PutBox(10, 10);
  CtrlClick(115, 90);
  EXPECT_TRUE(frmMain.mnuEditCopy.Enabled());
  CtrlClick(115, 90);
  EXPECT_EQ(SelectedUpper, -1);
  for (const Menu* entry : {&frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuArrAlign}) {
    EXPECT_FALSE(entry->Enabled()) << entry->Name();
  }
}

TEST_F(HoldMouseTest, TheLeftButtonOpensNoMenu) {
  PutBox(10, 10);
  Click(115, 90);
  EXPECT_TRUE(menus.opened.empty());
}

TEST_F(HoldMouseTest, TheObjectIsSelectedWhileItsMenuIsOpenAndItsPanelComesAfterwards) {
  PutBox(10, 10);
  frmMain.cboFont.SetVisible(true);
  menus.choose = [] {
    EXPECT_EQ(SelectedObject, 0);
    EXPECT_TRUE(frmMain.cboFont.Visible());
    ObjectAt(0).Param = 7;
  };
  Click(115, 90, kRightButton);
  EXPECT_FALSE(frmMain.cboFont.Visible());
  EXPECT_EQ(frmMain.cboWeight.ListIndex(), 7);
}

TEST_F(HoldMouseTest, TheMenuOfADataFieldShowsItsFormat) {
  Put(Field(0, 2));
  ObjectAt(0).Width = 20;
  ObjectAt(0).Height = 10;
  RedrawBoard();
  frmMain.mnuFBC(3).SetChecked(true);
  Click(105, 80, kRightButton);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(frmMain.mnuField(i).Checked(), i == 2) << i;
  EXPECT_FALSE(frmMain.mnuFBC(3).Checked());
  EXPECT_FALSE(frmMain.mnuBCSettings.Enabled());
}

TEST_F(HoldMouseTest, TheMenuOfABarcodeFieldShowsFormatSizeAndCharacters) {
  ObjectRecord field = Field(0, 107);
  field.Width = 30.5;
  field.Height = 15;
  field.Italic = kTrue;
  Put(field);
  frmMain.mnuField(0).SetChecked(true);
  Click(105, 80, kRightButton);
  EXPECT_FALSE(frmMain.mnuField(0).Checked());
  for (const auto& [i, entry] : frmMain.mnuFBC) EXPECT_EQ(entry->Checked(), i == 7) << i;
  EXPECT_TRUE(frmMain.mnuBCSettings.Enabled());
  EXPECT_EQ(frmMain.mnuBCSetWid.Caption(), "Barcode width 30.50");
  EXPECT_EQ(frmMain.mnuBCSetHgt.Caption(), "Barcode height 15.00");
  EXPECT_TRUE(frmMain.mnuBCSetChars.Checked());
}

TEST_F(HoldMouseTest, ASizeOfExactlyZeroShowsTheDefaultInTheUsersUnit) {
  ObjectRecord field = Field(0, 100);
  Put(field);
  UnitScale = 25.4;
  lblHold_MouseDown(0, kRightButton, 0, 0, 0);
  EXPECT_EQ(frmMain.mnuBCSetWid.Caption(), "Barcode width 0.79");
  EXPECT_EQ(frmMain.mnuBCSetHgt.Caption(), "Barcode height 0.47");
  EXPECT_FALSE(frmMain.mnuBCSetChars.Checked());
}

TEST_F(HoldMouseTest, AFormatWithoutAnEntryChecksNone) {
  for (const int format : {3, 99, 116, -1}) {
    ObjectUB = -1;
    Put(Field(0, format));
    lblHold_MouseDown(0, kRightButton, 0, 0, 0);
    for (const auto& [i, entry] : frmMain.mnuField) EXPECT_FALSE(entry->Checked()) << format;
    for (const auto& [i, entry] : frmMain.mnuFBC) EXPECT_FALSE(entry->Checked()) << format;
    EXPECT_EQ(frmMain.mnuBCSettings.Enabled(), format >= 100) << format;
  }
  EXPECT_TRUE(faults.empty());
}

// --- the group ----------------------------------------------------------------------------------

TEST_F(HoldMouseTest, AModifierClickOnASecondObjectMakesAGroup) {
  PutBox(10, 10);
  PutBox(40, 20, 30, 20);
  Click(115, 90);
  CtrlClick(150, 100);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(HandlesShown(), "");
  ExpectFrame(110, 85, 60, 30);
  EXPECT_EQ(frmMain.shpBox.ShapeCode(), 0);
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
  EXPECT_TRUE(frmMain.mnuArrAlign.Enabled());
  EXPECT_TRUE(frmMain.mnuArrSize.Enabled());
  EXPECT_GT(frmMain.picSellAll.Order(), frmMain.picDrawing.Order());
  EXPECT_EQ(frmMain.picSellAll.Left(), 50);
  EXPECT_EQ(frmMain.cboFont.Left(), 7000);
  EXPECT_EQ(frmMain.cboSize.Left(), 7000);
  EXPECT_TRUE(frmMain.cboFont.Visible());
  EXPECT_TRUE(frmMain.cboSize.Visible());
  EXPECT_GT(frmMain.cboSize.Order(), frmMain.picSellAll.Order());
  EXPECT_FALSE(Dragging);
}

TEST_F(HoldMouseTest, AnyModifierBuildsTheGroup) {
  PutBox(10, 10);
  PutBox(40, 10);
  for (const int modifier : {kShift, kCtrl, kAlt}) {
    DropSelection();
    Click(115, 90);
    KeyDown(65, modifier);
    Click(150, 90);
    KeyUp(65);
    EXPECT_EQ(GroupMembers(), (Members{0, 1})) << modifier;
  }
}

// Releasing any key ends the modifiers, whatever is still held.
TEST_F(HoldMouseTest, AfterReleasingShiftWithCtrlStillDownAClickIsAPlainOne) {
  PutBox(10, 10);
  PutBox(40, 10);
  Click(115, 90);
  KeyDown(kControlKey, kCtrl);
  KeyDown(16, kCtrl | kShift);
  frmMain.UserKeyUp(16, kCtrl);
  Click(150, 90);
  EXPECT_EQ(SelectedObject, 1);
  EXPECT_EQ(SelectedUpper, -1);
}

TEST_F(HoldMouseTest, AModifierClickAloneMakesAGroupOfOneThatAPlainPressDrags) {
  PutBox(10, 10);
  frmMain.picText.ZOrder();
  CtrlClick(115, 90);
  EXPECT_EQ(GroupMembers(), (Members{0}));
  EXPECT_EQ(SelectedObject, -1);
  ExpectFrame(110, 85, 20, 10);
  frmMain.picText.ZOrder();
  Drag(115, 90, 125, 95);
  ExpectRecord(0, 20, 15, 20, 10);
  EXPECT_EQ(GroupMembers(), (Members{0}));
  EXPECT_GT(frmMain.picText.Order(), frmMain.picDrawing.Order());  // no panel has come
}

TEST_F(HoldMouseTest, AModifierClickOnTheSelectedObjectListsItTwiceAndADragMovesItTwiceAsFar) {
  PutBox(10, 10);
  Click(115, 90);
  CtrlClick(115, 90);
  EXPECT_EQ(GroupMembers(), (Members{0, 0}));
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 2");
  Drag(115, 90, 120, 93);
  ExpectRecord(0, 20, 16, 20, 10);
}

TEST_F(HoldMouseTest, RemovingMembersDownToNoneHidesFrameAndHandles) {
  PutBox(10, 10);
  PutBox(40, 10);
  Click(115, 90);
  CtrlClick(150, 90);
  CtrlClick(115, 90);
  EXPECT_EQ(GroupMembers(), (Members{1}));
  ExpectFrame(140, 85, 20, 10);
  CtrlClick(150, 90);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_FALSE(frmMain.shpBox.Visible());
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_EQ(frmMain.sB1.PanelText(3), "Objects Selected: 0");
}

TEST_F(HoldMouseTest, APlainClickOnANonMemberSelectsItAlone) {
  for (int i = 0; i < 3; ++i) PutBox(static_cast<float>(30 * i), 10);
  SelectGroup({0, 1});
  Click(170, 90);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_EQ(SelectedObject, 2);
  EXPECT_EQ(HandlesShown(), "0123");
}

TEST_F(HoldMouseTest, APlainClickOnAMemberKeepsTheGroup) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  Click(150, 90);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_EQ(SelectedObject, -1);
}

TEST_F(HoldMouseTest, ARightClickOnAMemberKeepsTheGroupAndOpensNoMenu) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectGroup({0, 1});
  Click(150, 90, kRightButton);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_TRUE(menus.opened.empty());
  EXPECT_FALSE(Dragging);
}

TEST_F(HoldMouseTest, ATextThatJoinsAGroupNoLongerGrows) {
  PutText("Abc");
  PutBox(60, 10);
  Click(115, 90);
  frmMain.lblHold(0).SetAutoSize(true);
  KeyDown(kControlKey, kCtrl);
  lblHold_MouseDown(1, kLeftButton, kCtrl, 0, 0);
  EXPECT_FALSE(frmMain.lblHold(0).AutoSize());
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
}

TEST_F(HoldMouseTest, AGroupHolds257AndOnlyTheMarkerTellsOfTheNextOne) {
  for (int i = 0; i < 258; ++i) PutBox(10, 10);
  SelectedUpper = 256;
  for (int i = 0; i < 257; ++i) SelectedMember(i) = static_cast<std::int16_t>(i);
  ModifierHeld = true;
  Press(115, 90);
  EXPECT_TRUE(faults.empty());
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(SelectedUpper, 256);
  Made("tracemark.flg", "");
  Press(115, 90);
  EXPECT_TRUE(faults.empty());
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "9 - Subscript out of range");
}

// --- moving one object --------------------------------------------------------------------------

TEST_F(HoldMouseTest, DuringADragOnlyControlsMoveAndNothingIsPainted) {
  PutBox(10, 10);
  Press(115, 90);
  const auto redraws = RedrawCount;
  const auto painted = Board().painted.size();
  MoveTo(120, 92);
  EXPECT_NEAR(frmMain.lblHold(0).Left(), 115, 1e-9);
  EXPECT_NEAR(frmMain.lblHold(0).Top(), 87, 1e-9);
  ExpectFrame(115, 87, 20, 10);
  EXPECT_NEAR(frmMain.lblHandle(3).Left(), 136, 1e-6);
  ExpectRecord(0, 10, 10, 20, 10);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(Board().painted.size(), painted);
  EXPECT_FALSE(frmMain.picBoard.Canvas().AutoRedraw);
  MoveTo(121, 92);
  EXPECT_NEAR(frmMain.lblHold(0).Left(), 116, 1e-9);  // the grip stays under the pointer
  EXPECT_EQ(frmMain.txtDSize(0).Text(), "16.00");
}

TEST_F(HoldMouseTest, TheReleaseWritesTheRecordOnce) {
  PutBox(10, 10);
  Press(115, 90);
  MoveTo(120, 92);
  const auto redraws = RedrawCount;
  DirtyFlag = kFalse;
  Release(120, 92);
  ExpectRecord(0, 15, 12, 20, 10);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_FALSE(Dragging);
  EXPECT_FALSE(DragMoved);
  EXPECT_EQ(HandlesShown(), "0123");
  ExpectFrame(115, 87, 20, 10);
}

// Its hit area shows it, whatever its record says before the selection ends.
TEST_F(HoldMouseTest, ATextIsDroppedAsWideAsItIsShownAndItsRecordStays) {
  const int index = PutText("Abcd");
  ObjectAt(index).Width = 12;
  ObjectAt(index).Height = 7;
  Press(115, 90);
  MoveTo(118, 92);
  Release(118, 92);
  EXPECT_NEAR(HoldAt(index).Width(), 4 * kCharacter, 1e-6);
  EXPECT_NEAR(HoldAt(index).Height(), kLineHeight, 1e-6);
  ExpectFrame(113, 87, 4 * kCharacter, kLineHeight);
  ExpectRecord(index, 13, 12, 12, 7);
}

// Also where no redraw brings its hit area back to that.
TEST_F(HoldMouseTest, AFieldIsDroppedAsWideAsItsRecordWhateverItsHitArea) {
  ObjectRecord field = Field(0, 0);
  field.Left = 10;
  field.Top = 10;
  field.Width = 12;
  field.Height = 7;
  const int index = Put(field);
  Press(115, 90);
  MoveTo(118, 92);
  HoldAt(index).SetWidth(33);
  HoldAt(index).SetHeight(22);
  SuspendRedraw = kTrue;
  Release(118, 92);
  SuspendRedraw = kFalse;
  EXPECT_NEAR(HoldAt(index).Width(), 12, 1e-9);
  EXPECT_NEAR(HoldAt(index).Height(), 7, 1e-9);
  ExpectFrame(113, 87, 12, 7);
  ExpectRecord(index, 13, 12, 12, 7);
}

// Only moves move: the place of the release itself is not looked at.
TEST_F(HoldMouseTest, AReleaseElsewhereWithoutAMoveMovesNothing) {
  PutBox(10, 10);
  Press(115, 90);
  Release(150, 120);
  ExpectRecord(0, 10, 10, 20, 10);
}

TEST_F(HoldMouseTest, ObjectsMayLeaveTheLabelAndTheBoard) {
  PutBox(10, 10);
  Drag(115, 90, -40, -30);
  ExpectRecord(0, -145, -110, 20, 10);
  PutBox(10, 30);
  Drag(115, 110, 500, 400);
  ExpectRecord(1, 395, 320, 20, 10);
}

TEST_F(HoldMouseTest, APostNetBarcodeCanBeMoved) {
  ObjectRecord barcode = ShapeObject(kBarcode, 10, 10, 20, 10);
  barcode.Param = 12;
  Put(barcode);
  Drag(115, 90, 120, 95);
  ExpectRecord(0, 15, 15, 20, 10);
}

TEST_F(HoldMouseTest, AMoveOfLessThanHalfAMillimetreOnBothAxesJumpsBack) {
  const struct {
    double dx, dy;
    bool moved;
  } rows[] = {{0.49, 0.49, false},
              {0.51, 0, true},
              {0, 0.51, true},
              {-0.49, 0.49, false},
              {-0.51, -0.1, true}};
  for (const auto& row : rows) {
    ObjectUB = -1;
    DropSelection();
    PutBox(10, 10);
    Drag(115, 90, 115 + row.dx, 90 + row.dy);
    const double left = row.moved ? 10 + row.dx : 10;
    const double top = row.moved ? 10 + row.dy : 10;
    ExpectRecord(0, left, top, 20, 10);
    EXPECT_NEAR(frmMain.lblHold(0).Left(), 100 + left, 1e-4);
    ExpectFrame(frmMain.lblHold(0).Left(), frmMain.lblHold(0).Top(), 20, 10);
  }
}

TEST_F(HoldMouseTest, TheThresholdIsOneOfTheScreen) {
  ZoomFactor = 2;
  ReadyBoard();
  RedrawBoard();
  PutBox(10, 10);
  const double x = BoardOriginX + 15;
  const double y = BoardOriginY + 15;
  Drag(x, y, x + 0.24, y);
  ExpectRecord(0, 10, 10, 20, 10);
  Drag(x, y, x + 0.26, y);
  ExpectRecord(0, 10.26, 10, 20, 10);
}

TEST_F(HoldMouseTest, AClickKillsThePendingUndoAndChangesNothingEvenOnARule) {
  PutBox(10, 10);
  PutBox(40, 10);
  SelectObject(1);
  SaveUndoDelete();
  SetRuleX(10.3, 1);
  const ObjectRecord before = ObjectAt(0);
  Click(115, 90);
  EXPECT_EQ(UndoUpper, -1);
  EXPECT_FALSE(frmMain.mnuUndo.Enabled());
  EXPECT_EQ(ObjectAt(0), before);
  EXPECT_EQ(DirtyFlag, kTrue);
}

// A move that comes back to where it began is a click.
TEST_F(HoldMouseTest, AMoveThereAndBackIsNone) {
  PutBox(10, 10);
  Press(115, 90);
  MoveTo(150, 110);
  MoveTo(115.2, 90.2);
  Release(115.2, 90.2);
  ExpectRecord(0, 10, 10, 20, 10);
}

TEST_F(HoldMouseTest, ATextThatWasClickedNoLongerGrows) {
  PutText("Abc");
  Press(115, 90);
  EXPECT_TRUE(frmMain.lblHold(0).AutoSize());
  Release(115, 90);
  EXPECT_FALSE(frmMain.lblHold(0).AutoSize());
}

TEST_F(HoldMouseTest, ATextThatWasMovedIsNotPaintedAnew) {
  PutText("Abc");
  Press(115, 90);
  MoveTo(125, 95);
  const auto redraws = RedrawCount;
  Release(125, 95);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_NEAR(ObjectAt(0).Left, 20, 1e-4);
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "Abc");
  EXPECT_EQ(HandlesShown(), "0123");
}

TEST_F(HoldMouseTest, TheRightButtonDragsNothing) {
  PutBox(10, 10);
  Press(115, 90, kRightButton);
  MoveTo(150, 110);
  Release(150, 110, kRightButton);
  ExpectRecord(0, 10, 10, 20, 10);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(HoldMouseTest, AReleaseWithoutADragLeavesEverythingAlone) {
  PutBox(10, 10);
  SelectObject(0);
  SaveUndoDelete();
  lblHold_MouseUp(0, kLeftButton, 0, 0, 0);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(UndoUpper, 0);
}

// --- snapping at the release --------------------------------------------------------------------

TEST_F(HoldMouseTest, AnEdgeDroppedInTheZoneSnapsAndOneOnItsEndDoesNot) {
  const struct { double to, left; } rows[] = {{50.9, 50}, {51.0, 51.0}, {49.1, 50}, {49.0, 49.0}};
  for (const auto& row : rows) {
    ObjectUB = -1;
    DropSelection();
    PutBox(10, 10);
    SetRuleX(50, 1);
    Drag(115, 90, 105 + row.to, 95);
    ExpectRecord(0, row.left, 15, 20, 10);
    EXPECT_NEAR(frmMain.lblHold(0).Left(), 100 + row.left, 1e-4);
  }
}

TEST_F(HoldMouseTest, TheRightEdgeIsTriedNextAndTheMiddleLast) {
  PutBox(10, 10);
  SetRuleX(50, 1);
  Drag(115, 90, 135.5, 95);  // right edge at 50.5
  ExpectRecord(0, 30, 15, 20, 10);
  Drag(135, 95, 145.4, 100);  // middle at 50.4
  ExpectRecord(0, 40, 20, 20, 10);
}

TEST_F(HoldMouseTest, TheLeftEdgeWinsWhereTheOthersLieCloser) {
  PutBox(10, 10, 0.8, 10);
  SetRuleX(50, 1);
  Drag(110.4, 90, 149.6, 95);  // left 49.2, middle 49.6, right 50.0
  ExpectRecord(0, 50, 15, 0.8, 10);
}

TEST_F(HoldMouseTest, AcrossAndDownSnapByThemselves) {
  PutBox(10, 10);
  SetRuleX(50, 1);
  SetRuleY(30, 1);
  Drag(115, 90, 155.5, 120);  // left 50.5, bottom edge 50: only x snaps
  ExpectRecord(0, 50, 40, 20, 10);
  Drag(155, 120, 165, 110.5);  // top 30.5: only y
  ExpectRecord(0, 60, 30, 20, 10);
}

TEST_F(HoldMouseTest, NothingSnapsBeforeTheRelease) {
  PutBox(10, 10);
  SetRuleX(50, 1);
  Press(115, 90);
  MoveTo(155.9, 95);
  EXPECT_NEAR(frmMain.shpBox.Left(), 150.9, 1e-6);
  Release(155.9, 95);
  EXPECT_NEAR(frmMain.shpBox.Left(), 150, 1e-4);
}

TEST_F(HoldMouseTest, TheZoneIsOneOfTheLabelSoItsReachOnScreenGrowsWithTheZoom) {
  ZoomFactor = 2;
  ReadyBoard();
  RedrawBoard();
  PutBox(10, 10);
  SetRuleX(30, 1);
  const double x = BoardOriginX + 15;
  const double y = BoardOriginY + 15;
  Drag(x, y, x + 20.9, y);
  ExpectRecord(0, 30, 10, 20, 10);
}

// --- moving a group -----------------------------------------------------------------------------

TEST_F(HoldMouseTest, AGroupMovesByItsFrame) {
  PutBox(10, 10);
  PutBox(40, 20);
  SelectGroup({0, 1});
  Press(150, 100);
  EXPECT_EQ(frmMain.MousePointer(), 5);
  EXPECT_TRUE(Dragging);
  MoveTo(155, 103);
  EXPECT_EQ(frmMain.MousePointer(), 0);  // the board's own comes back with the first move
  ExpectFrame(115, 88, 50, 20);
  EXPECT_NEAR(frmMain.lblHold(1).Left(), 145, 1e-9);
  EXPECT_EQ(frmMain.lblHold(0).Left(), 110);  // the others wait
  const auto redraws = RedrawCount;
  Release(155, 103);
  ExpectRecord(0, 15, 13, 20, 10);
  ExpectRecord(1, 45, 23, 20, 10);
  EXPECT_EQ(frmMain.lblHold(0).Left(), 115);
  EXPECT_EQ(RedrawCount, redraws + 1);
  EXPECT_EQ(HandlesShown(), "");
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
}

// Without a move in between nothing else has put it back.
TEST_F(HoldMouseTest, TheReleaseOfAGroupPutsThePointerBack) {
  PutBox(10, 10);
  PutBox(40, 20);
  SelectGroup({0, 1});
  for (const std::int16_t pointer : {0, 2}) {
    Press(150, 100);
    EXPECT_EQ(frmMain.MousePointer(), 5);
    CursorShape = pointer;
    Release(150, 100);
    EXPECT_EQ(frmMain.MousePointer(), pointer);
  }
}

TEST_F(HoldMouseTest, AfterAGroupsMoveTheHandlesWaitOneUnitAwayFromItsFrame) {
  ZoomFactor = 2;
  ReadyBoard();
  RedrawBoard();
  PutBox(10, 10);
  PutBox(40, 20);
  SelectGroup({0, 1});
  const double x = BoardOriginX + 15;
  const double y = BoardOriginY + 15;
  Drag(x, y, x + 4, y);
  const Shape& frame = frmMain.shpBox;
  EXPECT_NEAR(frmMain.lblHandle(3).Left(), frame.Left() + frame.Width() + 1.0, 1e-9);
  ExpectRecord(0, 14, 10, 20, 10);
}

TEST_F(HoldMouseTest, AGroupNeverSnapsAndHasNoThreshold) {
  PutBox(10, 10);
  PutBox(40, 20);
  SetRuleX(15, 3);
  SelectGroup({0, 1});
  Drag(115, 90, 120.1, 90);
  ExpectRecord(0, 15.1, 10, 20, 10);
  Drag(120, 90, 120.2, 90);
  ExpectRecord(0, 15.3, 10, 20, 10);
}

TEST_F(HoldMouseTest, AGroupsMoveKillsThePendingUndo) {
  PutBox(10, 10);
  PutBox(40, 20);
  SelectGroup({0, 1});
  SaveUndoDelete();
  Click(115, 90);
  EXPECT_EQ(UndoUpper, -1);
  EXPECT_EQ(DirtyFlag, kTrue);
}

// --- tools over an object -----------------------------------------------------------------------

TEST_F(HoldMouseTest, WithAToolArmedALeftPressBeginsItOverTheObject) {
  PutBox(10, 10);
  CurrentTool = kRectangle;
  frmMain.picText.ZOrder();
  Press(115, 90);
  EXPECT_TRUE(RubberBox);
  EXPECT_FALSE(Dragging);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_NEAR(AnchorX, 115, 1e-9);
  EXPECT_NEAR(AnchorY, 90, 1e-9);
  EXPECT_GT(frmMain.picText.Order(), frmMain.picDrawing.Order());  // no panel is filled
  EXPECT_EQ(frmMain.sB1.PanelText(2), "Width: 20.0 Height: 10.0");
  MoveTo(128, 93);
  ExpectFrame(115, 90, 13, 3);
  Release(128, 93);
  EXPECT_FALSE(RubberBox);
  ASSERT_EQ(ObjectUB, 1);
  ExpectRecord(1, 15, 15, 13, 3);
  ExpectRecord(0, 10, 10, 20, 10);
  EXPECT_EQ(CurrentTool, 0);
}

TEST_F(HoldMouseTest, ALineBeginsOverAnObjectToo) {
  PutBox(10, 10);
  CurrentTool = kLine;
  Press(115, 90);
  EXPECT_TRUE(RubberLine);
  MoveTo(180, 100);
  EXPECT_NEAR(frmMain.shpLine.X2(), 180, 1e-9);
  EXPECT_NEAR(frmMain.shpLine.Y2(), 90, 1e-9);
  Release(180, 100);
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(1).ObjType, kLine);
}

TEST_F(HoldMouseTest, ANewObjectIsSelectedAloneAlsoWhenAGroupCameDuringItsGesture) {
  PutBox(10, 10);
  PutBox(40, 10);
  CurrentTool = kRectangle;
  Press(115, 90);
  MoveTo(128, 110);
  mnuEditSelectAll_Click();
  ASSERT_EQ(SelectedUpper, 1);
  Release(128, 110);
  EXPECT_EQ(SelectedObject, 2);
  EXPECT_EQ(SelectedUpper, -1);
}

TEST_F(HoldMouseTest, WithAToolArmedTheRightButtonOpensTheMenuAndBeginsNothing) {
  PutBox(10, 10);
  CurrentTool = kRectangle;
  Click(115, 90, kRightButton);
  EXPECT_EQ(menus.opened, std::vector<std::string>{"mnuDrawing"});
  EXPECT_FALSE(RubberBox);
  EXPECT_EQ(CurrentTool, kRectangle);
  EXPECT_EQ(ObjectUB, 0);
}

// --- picking properties -------------------------------------------------------------------------

class PropertyPickTest : public HoldMouseTest {
 protected:
  // The text that gives its looks, at the label's foot.
  int PutSource() {
    ObjectRecord text = TextObject("Source", 10, 35);
    text.FontName = "Courier New";
    text.FontSize = 2 * kTenMillimetres;
    text.Bold = kTrue;
    text.Italic = kTrue;
    text.ForeColor = 0x00FF00;
    text.Width = 30;
    text.Height = 10;
    return Put(text);
  }

  static void ExpectLooksOfSource(int index) {
    EXPECT_EQ(ObjectAt(index).FontName.Trimmed(), "Courier New");
    EXPECT_EQ(ObjectAt(index).FontSize, 2 * kTenMillimetres);
    EXPECT_EQ(ObjectAt(index).Bold, kTrue);
    EXPECT_EQ(ObjectAt(index).Italic, kTrue);
    EXPECT_EQ(ObjectAt(index).ForeColor, 0x00FF00);
  }
};

TEST_F(PropertyPickTest, TheCommandWaitsWithItsPointer) {
  mnuTextCopy_Click();
  EXPECT_TRUE(CopyPropsPending);
  EXPECT_EQ(CursorShape, 14);
  EXPECT_EQ(frmMain.MousePointer(), 14);
}

TEST_F(PropertyPickTest, AClickOnATextGivesItsLooksToTheSelectedObject) {
  PutText("Target");
  PutSource();
  SelectObject(0);
  mnuTextCopy_Click();
  const auto redraws = RedrawCount;
  DirtyFlag = kFalse;
  Press(115, 112);
  EXPECT_EQ(DirtyFlag, kTrue) << "before the release says so of its own";
  Release(115, 112);
  ExpectLooksOfSource(0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Target");
  EXPECT_EQ(SelectedObject, 0);  // the selection stays
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_NEAR(frmMain.lblHold(0).Width(), 6 * 2 * kCharacter * 1.1, 1e-6);
  ExpectFrame(110, 85, frmMain.lblHold(0).Width(), frmMain.lblHold(0).Height());
  EXPECT_FALSE(CopyPropsPending);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
  EXPECT_FALSE(Dragging);
}

// The painter leaves it to its hit area, which measuring empties. Its panel must follow, or the end
// of the next entry would give it the former size again.
TEST_F(PropertyPickTest, AnOpenTextStaysShownAndKeepsWhatItWasGiven) {
  PutText("Target");
  PutSource();
  Click(112, 86);
  ASSERT_EQ(SelectedObject, 0);
  mnuTextCopy_Click();
  Click(115, 112);
  ExpectLooksOfSource(0);
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "Target");
  EXPECT_EQ(frmMain.lblHold(0).Font().Name, "Courier New");
  EXPECT_EQ(frmMain.cboSize.Text(), FormatNumber(2 * kTenMillimetres));
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(frmMain.chkBold.Value(), 1);
  EXPECT_EQ(frmMain.chkItalic.Value(), 1);
  EXPECT_EQ(frmMain.lblTextColor.BackColor(), 0x00FF00);
  frmMain.txtTool.SetFocus();
  frmMain.txtTool.UserType("s");
  DeselectObject();
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "Targets");
  EXPECT_NEAR(ObjectAt(0).FontSize, 2 * kTenMillimetres, 1e-9);
}

TEST_F(PropertyPickTest, AGroupTakesTheLooksWhateverItsKindsAndIsRedrawn) {
  PutText("Target");
  PutBox(60, 10);
  PutSource();
  SelectGroup({0, 1});
  mnuTextCopy_Click();
  const auto redraws = RedrawCount;
  Click(115, 112);
  ExpectLooksOfSource(0);
  ExpectLooksOfSource(1);
  EXPECT_EQ(GroupMembers(), (Members{0, 1}));
  EXPECT_EQ(RedrawCount, redraws + 1);
}

TEST_F(PropertyPickTest, WithNothingSelectedThePickJustEnds) {
  PutSource();
  const ObjectRecord before = ObjectAt(0);
  mnuTextCopy_Click();
  Click(115, 112);
  EXPECT_EQ(ObjectAt(0), before);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(CopyPropsPending);
}

TEST_F(PropertyPickTest, AClickOnAnotherKindEndsThePickAndSelectsIt) {
  PutText("Target");
  Put(ShapeObject(kPicture, 60, 10, 20, 10));
  SelectObject(0);
  mnuTextCopy_Click();
  Click(165, 90);
  EXPECT_FALSE(CopyPropsPending);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(SelectedObject, 1);
}

// --- numbers that are none ----------------------------------------------------------------------

TEST_F(HoldMouseTest, AnObjectNowhereCanBePressedWithoutAFault) {
  const double places[] = {std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::infinity(), 1e300};
  for (const double place : places) {
    ObjectUB = -1;
    DropSelection();
    ObjectRecord record = TextObject("x", static_cast<float>(place), 10);
    record.Width = place;
    record.Height = 5;
    Put(record);
    lblHold_MouseDown(0, kLeftButton, 0, 15, 15);
    lblHold_MouseMove(0, kLeftButton, 0, 1500, 1500);
    lblHold_MouseUp(0, kLeftButton, 0, 1500, 1500);
    DeselectObject();
  }
  EXPECT_TRUE(faults.empty());
}

}  // namespace
}  // namespace tagwright
