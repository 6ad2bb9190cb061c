#include "tools/font_box.h"

#include "forms/frmMain.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class FontBoxTest : public ProgramTest {
 protected:
  FontBoxTest() {
    ComboBox& box = frmMain.cboFont;
    for (const char* name : {"Arial", "Courier New", "Times New Roman"}) box.AddItem(name);
    box.SetVisible(true);
    box.Events().GotFocus = cboFont_GotFocus;
    box.Events().KeyPress = cboFont_KeyPress;
    box.Events().LostFocus = cboFont_LostFocus;
    box.Events().Click = [this] { ++clicks; };
  }
  int clicks = 0;
};

TEST_F(FontBoxTest, TypingIsCompletedAndLeavingSelectsTheRow) {
  frmMain.cboFont.SetFocus();
  frmMain.cboFont.UserKey(U'c');
  EXPECT_EQ(frmMain.cboFont.Text(), "courier New");
  EXPECT_EQ(frmMain.cboFont.SelText(), "ourier New");
  EXPECT_EQ(clicks, 0);
  frmMain.cboZoom.SetFocus();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(frmMain.cboFont.ListIndex(), 1);
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
}

TEST_F(FontBoxTest, LeavingWithoutTypingSelectsNothing) {
  frmMain.cboFont.SetText("arial");
  frmMain.cboFont.SetFocus();
  frmMain.cboZoom.SetFocus();
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(frmMain.cboFont.Text(), "arial");
}

TEST_F(FontBoxTest, ComingBackForgetsWhatWasTypedBefore) {
  frmMain.cboFont.SetFocus();
  frmMain.cboFont.UserKey(U'a');
  EXPECT_EQ(FontComboTyped, kTrue);
  frmMain.cboZoom.SetFocus();
  frmMain.cboFont.SetFocus();
  EXPECT_EQ(FontComboTyped, kFalse);
}

TEST_F(FontBoxTest, TheSizeBoxSwallowsEveryKey) {
  frmMain.cboSize.AddItem("12");
  frmMain.cboSize.AddItem("14");
  frmMain.cboSize.SetListIndex(0);
  frmMain.cboSize.UserKey(U'4');
  EXPECT_EQ(frmMain.cboSize.Text(), "12");
}

TEST_F(FontBoxTest, AFontRowIsChosenByItsExactName) {
  SelectFontRow("Courier New");
  EXPECT_EQ(frmMain.cboFont.ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
  SelectFontRow("courier new");
  SelectFontRow("Courier");
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier New");
  EXPECT_EQ(clicks, 1);
  SelectFontRow("Courier New");
  EXPECT_EQ(clicks, 2) << "the row chosen again is a choice";
}

TEST_F(FontBoxTest, ASizeWithoutARowBecomesTheText) {
  for (const char* size : {"12", "14"}) frmMain.cboSize.AddItem(size);
  int picks = 0;
  frmMain.cboSize.Events().Click = [&picks] { ++picks; };
  SelectSizeRow("14");
  EXPECT_EQ(frmMain.cboSize.ListIndex(), 1);
  EXPECT_EQ(picks, 1);
  SelectSizeRow("15");
  EXPECT_EQ(frmMain.cboSize.Text(), "15");
  EXPECT_EQ(picks, 1);
}

}  // namespace
}  // namespace tagwright
