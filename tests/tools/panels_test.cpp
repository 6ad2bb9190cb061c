// The panel of data sources comes forward, with the style of the last data field on the label.
#include "tools/panels.h"

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class PanelsTest : public ProgramTest {
 protected:
  PanelsTest() {
    for (const char* font : {"Arial", "Courier", "Times"}) frmMain.cboFont.AddItem(font);
    for (const char* size : {"8", "11", "12"}) frmMain.cboSize.AddItem(size);
    frmMain.mnuFileImport.Events().Click = mnuFileImport_Click;
  }

  static void Add(Kind kind, const char* font, double size) {
    GrowObjects();
    ClearObject(ObjectUB);
    ObjectAt(ObjectUB).ObjType = kind;
    ObjectAt(ObjectUB).FontName = font;
    ObjectAt(ObjectUB).FontSize = size;
  }
};

TEST_F(PanelsTest, ImportDisarmsTheToolAndBringsItsPanelForward) {
  CurrentTool = 11;
  CursorShape = 2;
  frmMain.SetMousePointer(2);
  frmMain.picFields.Move(4000, 300);
  frmMain.mnuFileImport.Press();
  EXPECT_EQ(CurrentTool, 0);
  EXPECT_EQ(CursorShape, 0);
  EXPECT_EQ(frmMain.MousePointer(), 0);
  EXPECT_EQ(frmMain.picFields.Left(), 50);
  EXPECT_EQ(frmMain.picFields.Top(), 0);
  EXPECT_GT(frmMain.picFields.Order(), frmMain.picProperties.Order());
  EXPECT_TRUE(frmMain.cboFont.Visible());
  EXPECT_EQ(frmMain.cboFont.Left(), 9840);
  EXPECT_EQ(frmMain.cboFont.Top(), 600);
  EXPECT_EQ(frmMain.cboSize.Left(), 9840);
  EXPECT_EQ(frmMain.cboSize.Top(), 960);
  EXPECT_TRUE(frmMain.cboSize.Visible());
  EXPECT_GT(frmMain.cboFont.Order(), frmMain.picFields.Order());
}

TEST_F(PanelsTest, ImportTakesTheStyleOfTheLastDataField) {
  Add(kDataField, "Arial", 8);
  Add(kDataField, " Times", 12);
  Add(kText, "Courier", 8);
  frmMain.mnuFileImport.Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Times");
  EXPECT_EQ(frmMain.cboSize.Text(), "12");
  EXPECT_EQ(frmMain.cboSize.ListIndex(), 2);
}

TEST_F(PanelsTest, WithoutADataFieldImportTakesTheDefaultStyle) {
  Add(kText, "Times", 8);
  ProgSettings.DefaultFontName = "Courier";
  ProgSettings.DefaultFontSize = 11;
  frmMain.mnuFileImport.Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier");
  EXPECT_EQ(frmMain.cboSize.Text(), "11");
}

TEST_F(PanelsTest, ASizeWithoutARowShowsAsTextAndAnUnknownFontKeepsThePresentOne) {
  frmMain.cboFont.SetListIndex(1);
  Add(kDataField, "Gone", 13.5);
  frmMain.mnuFileImport.Press();
  EXPECT_EQ(frmMain.cboFont.Text(), "Courier");
  EXPECT_EQ(frmMain.cboSize.Text(), "13.5");
  EXPECT_EQ(frmMain.cboSize.ListIndex(), -1);
}

}  // namespace
}  // namespace tagwright
