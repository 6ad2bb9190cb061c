#include "tools/context_menus.h"

#include "platform/controls/windows.h"
#include "tools/hand_fixture.h"

namespace tagwright {
namespace {

// Notes the menus that open.
class MenuService : public WindowService {
 public:
  std::vector<std::string> opened;
  void Create(Form&) override {}
  void Show(Form&) override {}
  void RunModal(Form&) override {}
  void Destroy(Form&) override {}
  void PopupMenu(Form&, Menu& menu) override { opened.push_back(menu.Name()); }
  void SendTab() override {}
};

constexpr int kMenuKey = 93;
constexpr int kF10 = 121;

class TextMenuTest : public HandTest {
 protected:
  TextMenuTest() { SetWindowService(&menus); }
  ~TextMenuTest() override { SetWindowService(nullptr); }
  // Whether the key opens the menu of texts, and goes no further then.
  bool Opens(int key, int shift = 0) {
    menus.opened.clear();
    const bool goes_on = frmMain.UserKeyDown(key, shift);
    const bool opened = menus.opened == std::vector<std::string>{"mnuText"};
    EXPECT_NE(goes_on, opened);
    return opened;
  }
  MenuService menus;
};

// --- texts --------------------------------------------------------------------------------------

TEST_F(TextMenuTest, TheMenuKeyAndShiftF10OpenItForATextAlsoWhileItIsTyped) {
  SelectObject(PutText("Abc"));
  EXPECT_TRUE(Opens(kMenuKey));
  EXPECT_TRUE(Opens(kF10, kShift));
  EXPECT_FALSE(Opens(kF10));
  FillPanelFromObject();
  ASSERT_TRUE(frmMain.txtTool.HasFocus());
  EXPECT_TRUE(Opens(kMenuKey));
}

TEST_F(TextMenuTest, TheyOpenItForAGroupButForNothingElse) {
  EXPECT_FALSE(Opens(kMenuKey));
  PutBox(10, 10);
  PutBox(40, 10);
  SelectObject(0);
  EXPECT_FALSE(Opens(kMenuKey));
  EXPECT_FALSE(Opens(kF10, kShift));
  SelectGroup({0, 1});
  EXPECT_TRUE(Opens(kMenuKey));
}

TEST_F(TextMenuTest, OnAZoomButtonTheMenuKeyOpensTheFlyout) {
  SelectObject(PutText("Abc"));
  frmMain.cmdTools(5).SetFocus();
  EXPECT_FALSE(frmMain.UserKeyDown(kMenuKey, 0));
  EXPECT_TRUE(menus.opened.empty());
  EXPECT_TRUE(frmMain.picMag.Visible());
}

TEST_F(TextMenuTest, ARightPressOnThePanelOfTextsOpensItToo) {
  frmMain.picText.UserMouseDown(kLeftButton, 0, 0, 0);
  frmMain.picText.UserMouseUp(kLeftButton, 0, 0, 0);
  EXPECT_TRUE(menus.opened.empty());
  frmMain.picText.UserMouseDown(kRightButton, 0, 0, 0);
  frmMain.picText.UserMouseUp(kRightButton, 0, 0, 0);
  EXPECT_EQ(menus.opened, std::vector<std::string>{"mnuText"});
}

class ContextMenusTest : public HandTest {
 protected:
  ContextMenusTest() {
    SelectObject(PutBox(10, 10, 30, 20));
    RedrawCount = 0;
  }
  static ObjectRecord& Object() { return ObjectAt(0); }
};

// --- shapes -------------------------------------------------------------------------------------

TEST_F(ContextMenusTest, AShapeChangesItsKindAndIsRedrawn) {
  const int kinds[] = {kEllipse, kRectangle, kRoundedRectangle};
  for (int i = 0; i < 3; ++i) {
    frmMain.mnuDrawChange(i).Press();
    EXPECT_EQ(Object().ObjType, kinds[i]) << i;
    EXPECT_EQ(RedrawCount, i + 1);
    EXPECT_EQ(DirtyFlag, kTrue);
    DirtyFlag = kFalse;
  }
}

TEST_F(ContextMenusTest, AspectCopiesOneSideToTheOther) {
  frmMain.mnuShpAspect(0).Press();
  EXPECT_EQ(Object().Width, 20);
  EXPECT_NEAR(HoldAt(0).Width(), 20, 1e-9);
  EXPECT_EQ(frmMain.txtDSize(2).Text(), "20.00");
  EXPECT_EQ(DirtyFlag, kTrue);
  DirtyFlag = kFalse;
  Object().Width = 44;
  frmMain.mnuShpAspect(1).Press();
  EXPECT_EQ(Object().Height, 44);
  EXPECT_NEAR(HoldAt(0).Height(), 44, 1e-9);
  EXPECT_EQ(frmMain.txtDSize(3).Text(), "44.00");
  EXPECT_EQ(RedrawCount, 2);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(ContextMenusTest, AspectShowsInches) {
  Object().Height = 50.8;
  UnitScale = 25.4;
  frmMain.mnuShpAspect(0).Press();
  EXPECT_EQ(frmMain.txtDSize(2).Text(), "2.00");
}

// --- pictures -----------------------------------------------------------------------------------

TEST_F(ContextMenusTest, ThePicturesSidesComeFromItsPanel) {
  frmMain.lblGraphicX.SetCaption("400");
  frmMain.lblGraphicY.SetCaption("100");
  frmMain.mnuGraphicHeight.Press();
  EXPECT_DOUBLE_EQ(Object().Height, 7.5);
  EXPECT_DOUBLE_EQ(Object().Width, 30);
  EXPECT_EQ(DirtyFlag, kTrue);
  DirtyFlag = kFalse;
  Object().Height = 20;
  frmMain.mnuGraphicWidth.Press();
  EXPECT_DOUBLE_EQ(Object().Width, 80);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(RedrawCount, 2);
}

TEST_F(ContextMenusTest, WithoutNumbersThePictureStaysAndIsRedrawn) {
  for (const char* caption : {"", "0", "x"}) {
    frmMain.lblGraphicX.SetCaption(caption);
    frmMain.lblGraphicY.SetCaption(caption);
    frmMain.mnuGraphicHeight.Press();
    frmMain.mnuGraphicWidth.Press();
    EXPECT_EQ(Object().Width, 30) << caption;
    EXPECT_EQ(Object().Height, 20) << caption;
  }
  EXPECT_EQ(RedrawCount, 6);
  EXPECT_EQ(DirtyFlag, kFalse) << "nothing has changed";
}

TEST_F(ContextMenusTest, AnOverflowingSideKeepsTheOldOne) {
  Object().Width = 1e308;
  frmMain.lblGraphicX.SetCaption("1");
  frmMain.lblGraphicY.SetCaption("400");
  frmMain.mnuGraphicHeight.Press();
  EXPECT_EQ(Object().Height, 20);
  Object().Height = 1e308;
  Object().Width = 30;
  frmMain.lblGraphicX.SetCaption("400");
  frmMain.lblGraphicY.SetCaption("1");
  frmMain.mnuGraphicWidth.Press();
  EXPECT_EQ(Object().Width, 30);
}

// --- fields shown as barcodes -------------------------------------------------------------------

TEST_F(ContextMenusTest, TheSizeOfABarcodeIsAskedForInTheUsersUnit) {
  dialogs.inputs = {"25.5", "12"};
  frmMain.mnuBCSetWid.Press();
  frmMain.mnuBCSetHgt.Press();
  EXPECT_EQ(dialogs.prompts[0], "Please enter the width (mm) of the barcode");
  EXPECT_EQ(dialogs.prompts[1], "Please enter the height (mm) of the barcode");
  EXPECT_EQ(Object().Width, 25.5);
  EXPECT_EQ(Object().Height, 12);
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(ContextMenusTest, InInchesToo) {
  UnitScale = 25.4;
  RulerScale = 2.54;
  dialogs.inputs = {"2", "0.5"};
  frmMain.mnuBCSetWid.Press();
  frmMain.mnuBCSetHgt.Press();
  EXPECT_EQ(dialogs.prompts[0], "Please enter the width (in) of the barcode");
  EXPECT_EQ(dialogs.prompts[1], "Please enter the height (in) of the barcode");
  EXPECT_DOUBLE_EQ(Object().Width, 50.8);
  EXPECT_DOUBLE_EQ(Object().Height, 12.7);
}

TEST_F(ContextMenusTest, AnAnswerThatIsNoNumberChangesNothing) {
  for (const char* answer : {"", "abc", "12x"}) {
    dialogs.inputs = {answer, answer};
    frmMain.mnuBCSetWid.Press();
    frmMain.mnuBCSetHgt.Press();
    EXPECT_EQ(Object().Width, 30) << answer;
    EXPECT_EQ(Object().Height, 20) << answer;
  }
}

TEST_F(ContextMenusTest, AnOverflowingAnswerKeepsTheOldSize) {
  UnitScale = 25.4;
  dialogs.inputs = {"1e308", "-1e308"};
  frmMain.mnuBCSetWid.Press();
  frmMain.mnuBCSetHgt.Press();
  EXPECT_EQ(Object().Width, 30);
  EXPECT_EQ(Object().Height, 20);
  EXPECT_TRUE(faults.empty());
}

TEST_F(ContextMenusTest, PrintCharactersTogglesItalic) {
  frmMain.mnuBCSetChars.Press();
  EXPECT_TRUE(frmMain.mnuBCSetChars.Checked());
  EXPECT_EQ(Object().Italic, kTrue);
  frmMain.mnuBCSetChars.Press();
  EXPECT_FALSE(frmMain.mnuBCSetChars.Checked());
  EXPECT_EQ(Object().Italic, kFalse);
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(ContextMenusTest, WithoutASelectionNoCommandFaults) {
  SelectedObject = -1;
  dialogs.inputs = {"1", "1"};
  frmMain.mnuDrawChange(0).Press();
  frmMain.mnuShpAspect(0).Press();
  frmMain.mnuGraphicHeight.Press();
  frmMain.mnuGraphicWidth.Press();
  frmMain.mnuBCSetWid.Press();
  frmMain.mnuBCSetHgt.Press();
  frmMain.mnuBCSetChars.Press();
  EXPECT_TRUE(faults.empty());
  EXPECT_EQ(Object().ObjType, kRectangle);
  EXPECT_EQ(Object().Width, 30);
  EXPECT_EQ(DirtyFlag, kFalse);
}

}  // namespace
}  // namespace tagwright
