// The print panel: the pages it proposes, the printer it chooses.
#include "document/source_state.h"
#include "output/job_fixture.h"

namespace tagwright {
namespace {

class PrintPanelTest : public JobTest {
 protected:
  PrintPanelTest() { SetRange("", ""); }

  static void OpenWith(std::int32_t records) {
    frmMain.lblFileName.SetCaption("data.csv");
    RecordCount = records;
    frmMain.mnuFilePrint.Press();
  }
  static std::string From() { return frmMain.txtPrintFrom.Text(); }
  static std::string To() { return frmMain.txtPrintTo.Text(); }
};

TEST_F(PrintPanelTest, WithoutADataFileThePagesAreOneToOne) {
  SetRange("3", "7");
  frmMain.mnuFilePrint.Press();
  EXPECT_EQ(From(), "1");
  EXPECT_EQ(To(), "1");
}

TEST_F(PrintPanelTest, WithADataFileTheFirstPageIsProposedOnlyWhereThereIsNone) {
  OpenWith(28);
  EXPECT_EQ(From(), "1");
  SetRange("3", "7");
  OpenWith(28);
  EXPECT_EQ(From(), "3");
  EXPECT_EQ(To(), "2");
}

struct Proposal {
  std::int32_t records;
  int across, down;
  const char* last_page;
};

// A quotient of one decimal at most gives the pages. A longer one keeps its factor of ten, so that
// far more are proposed than the data fills.
TEST_F(PrintPanelTest, TheLastPageComesOfCuttingADecimalText) {
  for (const Proposal& row : std::vector<Proposal>{{14, 2, 7, "1"},
                                                   {28, 2, 7, "2"},
                                                   {140, 2, 7, "10"},
                                                   {7, 1, 2, "4"},    // 35
                                                   {9, 1, 4, "23"},   // 22.5
                                                   {7, 1, 3, "24"},   // 23.3333333333333
                                                   {20, 2, 7, "15"},  // 14.2857142857143
                                                   {8, 2, 7, "7"},    // 5.71428571428571 rounds
                                                   {1, 2, 7, "2"},    // 0.714285714285714
                                                   {7, 1, 70, "1"},   // 1: nothing is left of it
                                                   {0, 2, 7, "0"},    // likewise
                                                   {140000, 2, 7, "10000"},
                                                   {1000000, 2, 7, "1"},  // no 16 bits hold 714285
                                                   {7, 0, 7, "0"},        // no cells at all
                                                   {7, -1, 3, "-22"}}) {
    SetCells(row.across, row.down);
    OpenWith(row.records);
    EXPECT_EQ(To(), row.last_page) << row.records << " on " << row.across << " by " << row.down;
  }
}

TEST_F(PrintPanelTest, TheCutReadsAsTheUserWritesNumbers) {
  UserLocale german;
  german.decimal = ",";
  german.group = ".";
  SetLocale(german);
  SetCells(1, 3);
  OpenWith(7);
  EXPECT_EQ(To(), "24");
}

TEST_F(PrintPanelTest, TheMarkerTellsOfACountThatFits16BitsNoMore) {
  LeaveMarker();
  OpenWith(1000000);
  EXPECT_EQ(Messages(), (Texts{"6 - Overflow"}));
}

TEST_F(PrintPanelTest, ThePanelComesToTheFrontWithoutTheFontBoxes) {
  frmMain.picPrint.Move(700, 80);
  frmMain.picProperties.ZOrder();
  frmMain.cboFont.SetVisible(true);
  frmMain.cboSize.SetVisible(true);
  frmMain.mnuFilePrint.Press();
  EXPECT_EQ(frmMain.picPrint.Left(), 50);
  EXPECT_EQ(frmMain.picPrint.Top(), 0);
  EXPECT_GT(frmMain.picPrint.Order(), frmMain.picProperties.Order());
  EXPECT_FALSE(frmMain.cboFont.Visible());
  EXPECT_FALSE(frmMain.cboSize.Visible());
}

TEST_F(PrintPanelTest, MergingIsOfferedAndTickedOnlyWithADataFile) {
  frmMain.mnuFilePrint.Press();
  EXPECT_FALSE(frmMain.chkMailshot.Visible());
  OpenWith(14);
  EXPECT_TRUE(frmMain.chkMailshot.Visible());
  EXPECT_EQ(frmMain.chkMailshot.Value(), 1);
}

// A hidden tick would make the job merge, from nothing.
TEST_F(PrintPanelTest, WithoutADataFileTheTickGoesWithItsBox) {
  OpenWith(14);
  AddSerial();
  frmMain.lblFileName.SetCaption("");
  frmMain.mnuFilePrint.Press();
  EXPECT_FALSE(frmMain.chkMailshot.Visible());
  EXPECT_EQ(frmMain.chkMailshot.Value(), 0);
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("", 1001, 1014)}));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PrintPanelTest, TheBoxForMergingSaysWhichRowComesFirst) {
  OpenWith(14);
  EXPECT_EQ(frmMain.chkMailshot.ToolTipText(),
            "Fill the labels from the data file, beginning with its second row");
  EXPECT_EQ(frmMain.chkMailshot.SpokenName(),
            "Include Mailshot Data, beginning with the second row");
  frmMain.chkFirstRow.SetValue(1);
  OpenWith(14);
  EXPECT_EQ(frmMain.chkMailshot.ToolTipText(),
            "Fill the labels from the data file, beginning with its third row");
  EXPECT_EQ(frmMain.chkMailshot.SpokenName(),
            "Include Mailshot Data, beginning with the third row");
}

// The proposal reaches far beyond the data; this is what will come out.
TEST_F(PrintPanelTest, ThePanelSaysHowManyLabelsTheJobWillHave) {
  BrowseCsv("title\na\nb\nc\n");
  frmMain.mnuFilePrint.Press();
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 3");
  frmMain.chkFirstRow.SetValue(1);
  frmMain.mnuFilePrint.Press();
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 2");
  frmMain.txtNoCopies.SetText("3");
  ShowLabelsOfJob();
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: 6");
}

TEST_F(PrintPanelTest, ItPrintsNothing) {
  frmMain.mnuFilePrint.Press();
  EXPECT_TRUE(Log().calls.empty());
}

TEST_F(PrintPanelTest, TheListChoosesThePrinterOfItsText) {
  printers.names = {"First", "Second"};
  frmMain.cboPrinter.AddItem("First");
  frmMain.cboPrinter.AddItem("Second");
  frmMain.cboPrinter.UserChoose(1);
  EXPECT_EQ(Printer().DeviceName(), "Second");
}

TEST_F(PrintPanelTest, APrinterThatHasGoneLeavesTheFormerOne) {
  printers.names = {"First"};
  frmMain.cboPrinter.AddItem("Gone");
  frmMain.cboPrinter.UserChoose(0);
  EXPECT_EQ(Printer().DeviceName(), "First");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PrintPanelTest, TypingInTheThreeFieldsKeepsDeleteFromTheObjects) {
  for (void (*handler)() : {txtNoCopies_KeyPress, txtPrintFrom_KeyPress, txtPrintTo_KeyPress}) {
    TextEntryActive = false;
    handler();
    EXPECT_TRUE(TextEntryActive);
  }
}

}  // namespace
}  // namespace tagwright
