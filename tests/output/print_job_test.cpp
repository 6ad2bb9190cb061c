// The print job step by step: order, ranges, copies, merges, numbers, faults, cancels.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <random>

#include "document/project_commands.h"
#include "document/project_load.h"
#include "document/redraw.h"
#include "document/source_state.h"
#include "output/job_fixture.h"
#include "platform/controls/mouse.h"

namespace tagwright {
namespace {

using PrintJobTest = JobTest;

const double kLabel = 38;  // "A4 14 per sheet", the layout of a fresh installation

// --- the order of things ------------------------------------------------------------------------

TEST_F(PrintJobTest, TheJobIsOpenedBeforeThePageIsSetUp) {
  AddSerial();
  Print();
  EXPECT_EQ(Log().calls, (Texts{"StartDoc", "Orientation 1", "PaperSize 9", "NewPage", "EndDoc"}));
  EXPECT_EQ(Printer().Page().ScaleMode(), kMillimetres);
}

TEST_F(PrintJobTest, ASheetFillsDownTheFirstColumnThenTheSecond) {
  AddSerial();
  Print();
  const auto page = Pages().at(0);
  ASSERT_EQ(page.size(), 14U);
  EXPECT_NEAR(page[1].x, page[0].x, 1e-9);
  EXPECT_NEAR(page[1].y, page[0].y + kLabel, 1e-6);
  EXPECT_NEAR(page[7].x, page[0].x + 101.5, 1e-6);
  EXPECT_NEAR(page[7].y, page[0].y, 1e-6);
  EXPECT_EQ(page[7].text, "1008");
}

TEST_F(PrintJobTest, TheJobReadsTheBoxesAndNotTheLayout) {
  AddSerial();
  SetCells(1, 2);
  frmMain.txtLabLayout(4).SetText("20");
  frmMain.txtLabLayout(7).SetText("3");
  Print();
  const auto page = Pages().at(0);
  ASSERT_EQ(page.size(), 2U);
  EXPECT_NEAR(page[0].x, 20, 1e-6);
  EXPECT_NEAR(page[1].y - page[0].y, kLabel + 3, 1e-6);
}

TEST_F(PrintJobTest, CountsAreNotRounded) {
  AddSerial();
  frmMain.txtLabLayout(0).SetText("1.5");  // columns 0 and 0.5: one more than whole ones
  frmMain.txtLabLayout(1).SetText("0.9");
  Print();
  EXPECT_TRUE(Printed().at(0).empty());
  frmMain.txtLabLayout(1).SetText("1.9");
  Print();
  EXPECT_EQ(Printed().at(1).size(), 1U);
}

TEST_F(PrintJobTest, BadTextInABoxCountsAsZero) {
  AddSerial();
  frmMain.txtLabLayout(0).SetText("two");
  Print();
  EXPECT_TRUE(Printed().at(0).empty());
}

// --- ranges -------------------------------------------------------------------------------------

TEST_F(PrintJobTest, PageOneToOneIsOneSheet) {
  AddSerial();
  Print();
  EXPECT_EQ(Printed().size(), 1U);
  EXPECT_EQ(Log().jobs, 1);
}

TEST_F(PrintJobTest, PagesBelowTheRangeAreRunThroughWithoutBeingPrinted) {
  AddField();
  AddSerial();
  Merge(40);
  SetRange("2", "2");
  Print();
  ASSERT_EQ(Printed().size(), 1U);
  EXPECT_EQ(Printed()[0][0], "row 15") << "the data has moved past the first page";
  EXPECT_EQ(Printed()[0][1], "1001") << "its numbers are not spent";
  EXPECT_EQ(SerialValue, 1015);
}

TEST_F(PrintJobTest, ARangeThatEndsBeforeItBeginsRunsOncePrintsAndFeedsNothing) {
  AddField();
  Merge(40);
  SetRange("3", "1");
  Print();
  EXPECT_TRUE(Log().pages.empty());
  EXPECT_EQ(CountOf("NewPage"), 0);
  EXPECT_EQ(CountOf("EndDoc"), 1);
  EXPECT_EQ(FieldValues[0], "row 14") << "one sheet of data went by";
}

TEST_F(PrintJobTest, BrokenPageNumbersAreComparedAsTheyStand) {
  AddSerial();
  SetRange("1.5", "2.5");
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("", 1001, 1014)}));
}

TEST_F(PrintJobTest, WithoutColumnsThePagesAreFedBlankToTheEndOfTheRange) {
  AddSerial();
  SetCells(0, 7);
  SetRange("1", "3");
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{}, {}, {}}));
  EXPECT_EQ(SerialValue, 1001);
}

TEST_F(PrintJobTest, WithoutRowsLikewise) {
  SetCells(2, 0);
  SetRange("1", "2");
  Print();
  EXPECT_EQ(Log().pages.size(), 2U);
}

TEST_F(PrintJobTest, APageIsFedAfterTheLastOneTooAndNothingFollowsIt) {
  AddSerial();
  SetRange("1", "2");
  Print();
  EXPECT_EQ(CountOf("NewPage"), 2);
  EXPECT_EQ(Log().pages.size(), 2U);
}

// --- copies -------------------------------------------------------------------------------------

TEST_F(PrintJobTest, NoCopiesIsNothingButARedrawOfTheScreen) {
  AddSerial();
  for (const char* copies : {"0", "-1", "0.5", "", "x", "99999999999"}) {
    frmMain.txtNoCopies.SetText(copies);
    const std::int64_t redraws = RedrawCount;
    Print();
    EXPECT_EQ(RedrawCount, redraws + 1) << copies;
  }
  EXPECT_TRUE(Log().pages.empty());
  EXPECT_EQ(CountOf("StartDoc"), 0) << "nobody is asked where nothing goes";
  EXPECT_EQ(SerialValue, 1001);
}

// The page counter runs on across copies.
TEST_F(PrintJobTest, ASecondCopyOfOnePageFindsTheRangeExhausted) {
  AddSerial();
  frmMain.txtNoCopies.SetText("2");
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("", 1001, 1014)}));
}

TEST_F(PrintJobTest, CopiesAreRoundedHalvesToEven) {
  AddField();
  SetCells(1, 1);
  Merge(1);
  SetRange("1", "9");
  frmMain.txtNoCopies.SetText("2.5");
  Print();
  EXPECT_EQ(Printed().size(), 2U);
  frmMain.txtNoCopies.SetText("1.5");
  Print();
  EXPECT_EQ(Printed().size(), 4U);
}

TEST_F(PrintJobTest, ASecondCopyOfAMergeGoesOnTheUnfinishedSheet) {
  AddField();
  Merge(20);
  SetRange("1", "9");
  frmMain.txtNoCopies.SetText("3");
  Print();
  ASSERT_EQ(Printed().size(), 4U);
  EXPECT_EQ(Printed()[0], Run("row ", 1, 14));
  Texts second = Run("row ", 15, 20);  // the rest of the first copy, and over it the second one
  const Texts over = Run("row ", 1, 14);
  second.insert(second.end(), over.begin(), over.end());
  EXPECT_EQ(Printed()[1], second);
  EXPECT_EQ(Printed()[2].size(), 20U);
  EXPECT_EQ(Printed()[3], Run("row ", 15, 20));
}

// --- merging ------------------------------------------------------------------------------------

TEST_F(PrintJobTest, TheLineOfTitlesIsNoLabel) {
  AddField();
  Merge(3);
  SetRange("1", "1");
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("row ", 1, 3)}));
}

// The source's opening drops a line and the tick drops another.
TEST_F(PrintJobTest, WithTitlesTickedTheFirstLabelShowsTheThirdLine) {
  AddField();
  Merge(3);
  frmMain.chkFirstRow.SetValue(1);
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("row ", 2, 3)}));
}

TEST_F(PrintJobTest, ASourceOfOneLineGivesNoLabels) {
  AddField();
  Merge(0);
  Print();
  EXPECT_TRUE(Log().pages.empty());
  EXPECT_EQ(CountOf("EndDoc"), 1);
}

TEST_F(PrintJobTest, DataBeyondTheRangeIsLeftUnread) {
  AddField();
  Merge(100);
  SetRange("1", "2");
  Print();
  EXPECT_EQ(Printed().size(), 2U);
  EXPECT_EQ(FieldValues[0], "row 28");
}

TEST_F(PrintJobTest, DataThatEndsWithASheetFeedsItAndPrintsNoOther) {
  AddField();
  Merge(28);
  SetRange("1", "9");
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("row ", 1, 14), Run("row ", 15, 28)}));
  EXPECT_EQ(CountOf("NewPage"), 2);
}

TEST_F(PrintJobTest, ATickedTitleWithoutAMergeMovesNothingWhereNoSourceIsOpen) {
  AddField();
  FieldValues[0] = "kept";
  frmMain.chkFirstRow.SetValue(1);
  SetCells(1, 1);
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{"kept"}}));
}

// Every way in which a source goes, each after a job that has filled both columns from it.
TEST_F(PrintJobTest, AJobWithoutAMergePaintsNoValueOfAFormerSource) {
  const struct {
    const char* name;
    std::function<void()> let_go;
  } rows[] = {
      {"new", [] { mnuFileNew_Click(); }},
      {"load", [this] { LoadProject(Written("other.twp", "")); }},
      {"a database that cannot be read", [this] { Browse(kDatabaseSource, "none.mdb"); }},
      {"a text that cannot be read",
       [this] { Browse(kTabSource, folder.File("no such folder/a.txt")); }},
      {"a narrower text", [this] { Browse(kTabSource, Written("narrow.txt", "Only\nx\n")); }},
      {"a narrower table",
       [this] {
         Browse(kDatabaseSource, "a.mdb");
         frmMain.cboRSet.UserChoose(0);
         FieldValues[1] = "secret";  // as a merged job leaves it
         frmMain.cboRSet.UserChoose(1);
       }},
  };
  databases.files["a.mdb"] = {{{"Wide", {"A", "B"}, {}}, {"Narrow", {"A"}, {}}}};
  SetCells(1, 1);
  SetRange("1", "9");
  for (const auto& row : rows) {
    ObjectUB = -1;
    AddField(1);
    BrowseCsv("Name,Word\nAda,secret\nBob,secret\n");
    frmMain.chkMailshot.SetValue(1);
    Print();
    ASSERT_EQ(FieldValues[1], "secret") << row.name;
    row.let_go();
    frmMain.chkMailshot.SetValue(0);
    ObjectUB = -1;
    AddField(1);
    SetCells(1, 1);
    SetRange("1", "1");
    const std::size_t before = Printed().size();
    Print();
    const std::vector<Texts> printed = Printed();
    for (std::size_t page = before; page < printed.size(); ++page) {
      for (const std::string& text : printed[page]) EXPECT_NE(text, "secret") << row.name;
    }
    EXPECT_GT(printed.size(), before) << row.name;
    EXPECT_EQ(std::count(FieldValues.begin(), FieldValues.end(), "secret"), 0) << row.name;
  }
}

TEST_F(PrintJobTest, ATickedTitleWithoutAMergeMovesAnOpenSource) {
  databases.files["a.mdb"] = {{{"People", {"Name"}, {{"Ada"}, {"Bob"}, {"Cy"}}}}};
  Browse(kDatabaseSource, "a.mdb");
  frmMain.cboRSet.UserChoose(0);
  AddField();
  frmMain.chkFirstRow.SetValue(1);
  SetCells(1, 2);
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{"Bob", "Bob"}}));
}

TEST_F(PrintJobTest, ADatabaseMergesFromItsSecondRow) {
  databases.files["a.mdb"] = {{{"People", {"Name"}, {{"Ada"}, {"Bob"}, {"Cy"}}}}};
  Browse(kDatabaseSource, "a.mdb");
  frmMain.cboRSet.UserChoose(0);
  frmMain.chkMailshot.SetValue(1);
  AddField();
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{"Bob", "Cy"}}));
}

// The tick outlives its box, which a database hides.
TEST_F(PrintJobTest, ATickForTitlesCostsADatabaseARowToo) {
  Merge(1);
  frmMain.chkFirstRow.SetValue(1);
  databases.files["a.mdb"] = {{{"People", {"Name"}, {{"Ada"}, {"Bob"}, {"Cy"}, {"Di"}}}}};
  Browse(kDatabaseSource, "a.mdb");
  frmMain.cboRSet.UserChoose(0);
  EXPECT_FALSE(frmMain.chkFirstRow.Visible());
  AddField();
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{"Cy", "Di"}}));
}

TEST_F(PrintJobTest, WithoutAMergeFieldsShowWhatIsThere) {
  Merge(3);
  AddField();
  frmMain.chkMailshot.SetValue(0);
  SetCells(1, 2);
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{"title", "title"}}));
}

TEST_F(PrintJobTest, AMergeOfASourceThatHasGoneSaysSo) {
  AddField();
  Merge(3);
  DeleteFile(folder.File("data.csv"));
  Print();
  EXPECT_TRUE(Log().pages.empty());
  EXPECT_EQ(Messages(), (Texts{"No label was printed: the data file " + folder.File("data.csv") +
                               " does not exist"}));
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
}

// --- jobs without a label -----------------------------------------------------------------------

class NoLabelTest : public PrintJobTest {
 protected:
  // What a job says now.
  std::string Said() {
    dialogs.messages.clear();
    Print();
    EXPECT_TRUE(Printed().empty() || Printed().back().empty());
    if (dialogs.messages.size() != 1) return std::to_string(dialogs.messages.size()) + " messages";
    const std::string begin = "No label was printed: ";
    const std::string& text = dialogs.messages[0].text;
    return text.starts_with(begin) ? text.substr(begin.size()) : "other words: " + text;
  }
};

TEST_F(NoLabelTest, NoRowsAreLeft) {
  AddField();
  Merge(0);
  const std::string no_rows = "no rows are left in the data file " + folder.File("data.csv");
  EXPECT_EQ(Said(), no_rows);
  SetRange("1", "0");
  EXPECT_EQ(Said(), no_rows) << "whatever was proposed for them";
  Merge(1);
  frmMain.chkFirstRow.SetValue(1);
  SetRange("1", "1");
  EXPECT_EQ(Said(), no_rows) << "the only row counts as titles";
  Merge(20);
  SetRange("3", "9");
  EXPECT_EQ(Said(), no_rows) << "the data end on the second page";
}

TEST_F(NoLabelTest, TheRangeIsEmpty) {
  AddSerial();
  SetRange("3", "1");
  EXPECT_EQ(Said(), "there is none from page 3 to page 1");
  SetRange("", "");
  EXPECT_EQ(Said(), "there is none from page 0 to page 0");
  SetRange("1.25", "1.75");
  EXPECT_EQ(Said(), "there is none from page 1.25 to page 1.75");
  Merge(40);
  SetRange("2", "1");
  EXPECT_EQ(Said(), "there is none from page 2 to page 1");
  EXPECT_EQ(SerialValue, 1001);
}

TEST_F(NoLabelTest, TheLayoutHasNoLabels) {
  AddSerial();
  SetCells(0, 7);
  EXPECT_EQ(Said(), "the layout has 0 labels across and 7 down");
  SetCells(2, -1);
  EXPECT_EQ(Said(), "the layout has 2 labels across and -1 down");
}

TEST_F(NoLabelTest, ThereAreNoCopies) {
  AddSerial();
  frmMain.txtNoCopies.SetText("0");
  EXPECT_EQ(Said(), "the number of copies is less than 1");
}

TEST_F(NoLabelTest, TheSourceCannotBeRead) {
  AddField();
  Merge(3);
  DeleteFile(folder.File("data.csv"));
  std::filesystem::create_directory(folder.File("data.csv"));
  EXPECT_EQ(Said(), "the data file " + folder.File("data.csv") + " does not exist");
  frmMain.lblFileName.SetCaption("");
  EXPECT_EQ(Said(), "no data file is chosen");
}

TEST_F(NoLabelTest, NoTableIsChosenOrItCannotBeRead) {
  AddField();
  const std::string path = Written("a.mdb", "");
  databases.files[path] = {{{"Two Words", {"x"}, {{"1"}, {"2"}}}}};
  Browse(kDatabaseSource, path);
  frmMain.chkMailshot.SetValue(1);
  EXPECT_EQ(Said(), "no table of the data file " + path + " is chosen");
  frmMain.cboRSet.UserChoose(0);
  EXPECT_EQ(Said(), "the table Two Words of the data file " + path + " cannot be read");
}

TEST_F(NoLabelTest, WhoeverEndedTheJobKnows) {
  AddSerial();
  progress.cancel_at = 1;
  Print();
  progress.cancel_at = 0;
  FakePrinterList::Lost() = true;
  Print();
  FakePrinterList::Lost() = false;
  EXPECT_TRUE(Log().pages.empty());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(NoLabelTest, ItIsSaidWhenTheJobHasBeenSentAndTheScreenIsBack) {
  SetRange("2", "1");
  class Watching : public ScriptedDialogs {
    Answer MessageBox(const std::string&, MessageButtons, MessageIcon,
                      const std::string&) override {
      EXPECT_EQ(CountOf("EndDoc"), 1);
      EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
      ++said;
      return Answer::kOk;
    }

   public:
    int said = 0;
  } watching;
  SetDialogs(&watching);
  Print();
  SetDialogs(&dialogs);
  EXPECT_EQ(watching.said, 1);
}

TEST_F(NoLabelTest, OneLabelIsEnoughToSayNothing) {
  AddField();
  Merge(1);
  Print();
  EXPECT_EQ(Printed(), (std::vector<Texts>{{"row 1"}}));
  EXPECT_TRUE(dialogs.messages.empty());
}

// --- how many labels it will have ---------------------------------------------------------------

// What is foretold is what comes out, whatever stands in the boxes.
TEST_F(PrintJobTest, TheLabelsForetoldAreThoseThatComeOut) {
  std::mt19937 random(7);
  const auto below = [&](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  AddField();
  double most = 0;
  for (int round = 0; round < 400; ++round) {
    Merge(below(30));
    frmMain.chkMailshot.SetValue(below(3) == 0 ? 0 : 1);
    frmMain.chkFirstRow.SetValue(below(2));
    SetCells(below(4), below(4));
    SetRange(FormatNumber(below(12) / 2.0), FormatNumber(below(24) / 2.0));
    frmMain.txtNoCopies.SetText(std::to_string(below(6)));
    const double foretold = LabelsOfJob();
    const std::int64_t redraws = RedrawCount;
    Print();
    ASSERT_EQ(foretold, RedrawCount - redraws - 1)
        << frmMain.txtLabLayout(0).Text() << " by " << frmMain.txtLabLayout(1).Text() << ", from "
        << frmMain.txtPrintFrom.Text() << " to " << frmMain.txtPrintTo.Text() << ", "
        << frmMain.txtNoCopies.Text() << " copies of " << RecordCount << " records";
    most = std::max(most, foretold);
  }
  EXPECT_GT(most, 30);
}

TEST_F(PrintJobTest, NoNumberIsTooLargeToForetell) {
  SetCells(2, 7);
  SetRange("1", "999999999999");
  frmMain.txtNoCopies.SetText("2000000000");
  EXPECT_EQ(LabelsOfJob(), 14 * 999999999999.0);
  Merge(20);
  EXPECT_EQ(LabelsOfJob(), 20 * 2000000000.0);
}

// --- numbers ------------------------------------------------------------------------------------

TEST_F(PrintJobTest, ALabelWithoutTheTokenSpendsNoNumbers) {
  Add(kText, "plain");
  SetRange("1", "3");
  Print();
  EXPECT_EQ(SerialValue, 1001);
}

TEST_F(PrintJobTest, TheStepIsOneWhateverTheIncrement) {
  AddSerial();
  SerialIncrement = 5;
  Print();
  EXPECT_EQ(Printed().at(0), Run("", 1001, 1014));
}

TEST_F(PrintJobTest, TwoTokensOfALabelShareOneNumber) {
  AddSerial();
  AddSerial();
  SetCells(1, 2);
  Print();
  EXPECT_EQ(Printed().at(0), (Texts{"1001", "1001", "1002", "1002"}));
}

TEST_F(PrintJobTest, TheLargestNumberStays) {
  AddSerial();
  SetCells(1, 3);
  SerialValue = 2147483646;
  Print();
  EXPECT_EQ(Printed().at(0), (Texts{"2147483646", "2147483647", "2147483647"}));
}

// --- the paper ----------------------------------------------------------------------------------

class DeadMarginsTest : public PrintJobTest {
 protected:
  DeadMarginsTest() {
    printers.dead = {2 * kTwipsPerMillimetre, 5 * kTwipsPerMillimetre, 8 * kTwipsPerMillimetre,
                     15 * kTwipsPerMillimetre};
    ResetPrinter();
    AddSerial();
    SetCells(1, 1);
  }
};

// Half of what both sides cannot reach: 5 and 10 millimetres.
TEST_F(DeadMarginsTest, TheMeanOfBothSidesIsTakenOff) {
  Print();
  EXPECT_NEAR(Pages().at(0).at(0).x, 4.5 - 5, 1e-6);
  EXPECT_NEAR(Pages().at(0).at(0).y, 15 - 10, 1e-6);
}

TEST_F(DeadMarginsTest, InInchesTheMillimetresCount25TimesTooMuch) {
  UnitScale = 25.4;
  FillLayoutList();
  SetCells(1, 1);
  frmMain.txtLabLayout(4).SetText("10");
  frmMain.txtLabLayout(5).SetText("11");
  Print();
  EXPECT_NEAR(Pages().at(0).at(0).x, (10 - 5) * 25.4, 1e-6);
  EXPECT_NEAR(Pages().at(0).at(0).y, (11 - 10) * 25.4, 1e-6);
}

TEST_F(PrintJobTest, AnObjectMoreThanTwoMillimetresOffTheLabelIsNotPrinted) {
  SetCells(1, 1);
  Add(kText, "in").Left = -2;
  Add(kText, "out").Left = -2.1f;
  Add(kText, "below").Top = static_cast<float>(kLabel + 2.1);
  Print();
  EXPECT_EQ(Printed().at(0), (Texts{"in"}));
}

TEST_F(PrintJobTest, WithoutALayoutThePaperStays) {
  Printer().SetPaperSize(1);
  frmMain.cboLabelLayout.SetListIndex(-1);
  Print();
  EXPECT_EQ(Printer().PaperSize(), 1);
}

// --- afterwards ---------------------------------------------------------------------------------

// The first redraw of the job has taken the skip with it; the label is whole on page and screen.
TEST_F(PrintJobTest, AnObjectSkippedBeforeTheJobIsOnTheScreenAfterIt) {
  Add(kText, "whole");
  SetCells(1, 2);
  RedrawSkip = 0;
  Print();
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(Board().Texts().back(), "whole");
}

// Without rows there is no cell at which the job could end.
TEST_F(PrintJobTest, AJobOfColumnsWithoutRowsCanBeCancelled) {
  AddSerial();
  frmMain.txtLabLayout(0).SetText("99999999999");
  frmMain.txtLabLayout(1).SetText("0");
  progress.cancel_at = 10;
  Print();
  EXPECT_TRUE(Log().pages.empty());
}

TEST_F(PrintJobTest, TheScreenIsAsBefore) {
  AddSerial();
  ZoomFactor = 2.5;
  const std::int64_t redraws = RedrawCount;
  Print();
  EXPECT_EQ(ZoomFactor, 2.5);
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
  EXPECT_FALSE(PreviewMode);
  EXPECT_EQ(RedrawCount, redraws + 14 + 1);
}

// Its redraw leaves the factor of the page behind.
TEST_F(PrintJobTest, AnUnreadablePictureDoesNotKeepTheFactorOfThePage) {
  WriteFile(folder.File("bad.gif"), "no picture");
  Add(kPicture, folder.File("bad.gif"));
  SetCells(1, 1);
  ZoomFactor = 2.5;
  Print();
  EXPECT_EQ(ZoomFactor, 2.5);
  EXPECT_EQ(RedrawSkip, -1);
}

TEST_F(PrintJobTest, AMissingPictureIsToldOnceAndTheRestIsPrinted) {
  Add(kPicture, "/nowhere/logo.gif");
  Add(kPicture, "/nowhere/other.gif");
  AddSerial();
  Print();
  EXPECT_EQ(Printed().at(0).size(), 14U);
  EXPECT_EQ(Messages(), (Texts{"The file: /nowhere/logo.gif has been removed",
                               "The file: /nowhere/other.gif has been removed"}));
  Print();
  EXPECT_EQ(dialogs.messages.size(), 4U) << "the next job tells it again";
  RedrawBoard();
  EXPECT_EQ(dialogs.messages.size(), 6U) << "and so does each redraw of the screen";
}

// --- faults -------------------------------------------------------------------------------------

void FaultAt(const std::string& call, int number) {
  FakePrinterList::OnCall() = [=](const std::string& now) {
    if (now == call) RaiseFault(number);
  };
}

TEST_F(PrintJobTest, AFaultOfThePrinterIsPassedOver) {
  AddSerial();
  SetRange("1", "3");
  FaultAt("NewPage", kPrinterFault);
  Print();
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(SerialValue, 1001 + 3 * 14) << "the job carries on";
  EXPECT_EQ(CountOf("EndDoc"), 1);
}

TEST_F(PrintJobTest, TheMarkerTellsOfIt) {
  LeaveMarker();
  FaultAt("NewPage", kPrinterFault);
  Print();
  ASSERT_EQ(Messages().size(), 1U);
  EXPECT_EQ(Messages()[0], "482 - " + FaultDescription(482));
}

TEST_F(PrintJobTest, AFaultAtTheEndLeavesTheScreenRestoredAndTheNumbersSpent) {
  AddSerial();
  FaultAt("EndDoc", kPrinterFault);
  Print();
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
  EXPECT_EQ(SerialValue, 1015);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PrintJobTest, OneObjectsFaultDoesNotStopTheLabel) {
  AddField(500);  // a column that does not exist
  AddSerial();
  Print();
  EXPECT_EQ(Printed().at(0), Run("", 1001, 1014));
}

TEST_F(PrintJobTest, AUserWhoBacksOutHasChangedNothing) {
  LeaveMarker();
  AddField();
  AddSerial();
  Merge(3);
  const std::vector<std::string> values = FieldValues;
  const std::int64_t redraws = RedrawCount;
  FaultAt("StartDoc", kDialogCancelled);
  Print();
  EXPECT_EQ(FieldValues, values);
  EXPECT_EQ(SerialValue, 1001);
  EXPECT_EQ(RedrawCount, redraws);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(progress.jobs.empty() || progress.jobs.back().title != "Printing");
  EXPECT_EQ(CountOf("Orientation 1"), 0);
}

TEST_F(PrintJobTest, APrinterThatRefusesAtTheStartSpendsNoNumbersAndTakesTheNextJob) {
  AddSerial();
  FaultAt("StartDoc", kPrinterFault);
  Print();
  EXPECT_EQ(SerialValue, 1001);
  EXPECT_TRUE(dialogs.messages.empty()) << "the printer says itself what is wrong";
  FakePrinterList::OnCall() = nullptr;
  Print();
  EXPECT_EQ(Printed().size(), 1U);
}

TEST_F(PrintJobTest, WithoutAnyPrinterNothingHappens) {
  printers.names.clear();
  ResetPrinter();
  AddSerial();
  const std::size_t painted = Board().painted.size();
  Print();
  EXPECT_EQ(Board().painted.size(), painted);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
}

// Each look for a queue that has gone would be told anew.
TEST_F(PrintJobTest, APrinterThatIsNotThereIsLookedForOnce) {
  class CountedPrinters : public FakePrinterList {
   public:
    std::unique_ptr<PrinterDevice> Open(const std::string& name) override {
      looked_for.push_back(name);
      RaiseFault(kPrinterFault);
    }
    std::vector<std::string> looked_for;
  };
  for (const char* copies : {"1", "0"}) {
    CountedPrinters counted;
    SetPrinterList(&counted);
    ResetPrinter();
    ExpectPrinter("Gone");
    AddSerial();
    frmMain.txtNoCopies.SetText(copies);
    Print();
    EXPECT_EQ(counted.looked_for, Texts{"Gone"}) << copies;
    EXPECT_EQ(SerialValue, 1001);
    SetPrinterList(&printers);
  }
}

TEST_F(PrintJobTest, AJobThatThePrinterHasLostEndsBetweenTwoCells) {
  AddSerial();
  SetRange("1", "100");
  progress.meanwhile = [this] {
    if (progress.jobs.back().asked == 20) FakePrinterList::Lost() = true;
  };
  Print();
  EXPECT_EQ(Printed().at(0).size(), 14U);
  EXPECT_EQ(SerialValue, 1001 + 17) << "one question for each page and one for each cell";
  EXPECT_EQ(CountOf("EndDoc"), 1);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
}

// --- while it runs ------------------------------------------------------------------------------

TEST_F(PrintJobTest, ItsWindowTellsThePagesDone) {
  SetRange("1", "4");
  Print();
  ASSERT_EQ(progress.jobs.size(), 1U);
  EXPECT_EQ(progress.jobs[0].title, "Printing");
  EXPECT_EQ(progress.jobs[0].texts,
            (Texts{"Pages done: 0", "Pages done: 1", "Pages done: 2", "Pages done: 3"}));
  EXPECT_EQ(progress.jobs[0].shares, (std::vector<double>{0, 0.25, 0.5, 0.75}));
  EXPECT_FALSE(progress.jobs[0].open);
}

TEST_F(PrintJobTest, ItsWindowStandsUntilTheJobHasBeenSent) {
  bool open_at_the_end = false;
  FakePrinterList::OnCall() = [&](const std::string& call) {
    if (call == "EndDoc") open_at_the_end = progress.jobs.back().open;
  };
  Print();
  EXPECT_TRUE(open_at_the_end);
}

TEST_F(PrintJobTest, ACancelledJobEndsBetweenTwoCellsAndKeepsThePagesFed) {
  AddField();
  AddSerial();
  Merge(100);
  SetRange("1", "9");
  const int asked_before = progress.jobs.empty() ? 0 : progress.jobs.back().asked;
  progress.cancel_at = asked_before + 20;
  Print();
  ASSERT_EQ(Printed().size(), 2U) << "the sheet that was begun is not lost either";
  EXPECT_EQ(Printed()[0].size(), 2 * 14U);
  EXPECT_EQ(Printed()[1].size(), 2 * 3U);
  EXPECT_EQ(FieldValues[0], "row 17");
  EXPECT_EQ(SerialValue, 1018);
  EXPECT_EQ(Log().jobs, 1);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
}

TEST_F(PrintJobTest, ACancelEndsTheCopiesToo) {
  AddSerial();
  SetRange("1", "9");
  frmMain.txtNoCopies.SetText("3");
  progress.cancel_at = 1;
  Print();
  EXPECT_TRUE(Log().pages.empty());
  EXPECT_EQ(progress.jobs[0].asked, 1);
}

TEST_F(PrintJobTest, ACancelledMergeLetsItsFileGo) {
  AddField();
  Merge(100);
  progress.cancel_at = (progress.jobs.empty() ? 0 : progress.jobs.back().asked) + 3;
  Print();
  bool more = true;
  NextMergeRecord(more);
  EXPECT_FALSE(more);
}

TEST_F(PrintJobTest, ASecondJobCannotBeStartedMeanwhile) {
  AddSerial();
  progress.meanwhile = [] { frmMain.cmdPrint.Press(); };
  Print();
  EXPECT_EQ(CountOf("StartDoc"), 1);
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("", 1001, 1014)}));
  progress.meanwhile = nullptr;
  Print();
  EXPECT_EQ(CountOf("StartDoc"), 2);
}

TEST_F(PrintJobTest, PressesOnTheMainWindowGoNowhereMeanwhile) {
  int presses = 0;
  frmMain.picBoard.Events().MouseDown = [&](int, int, double, double) { ++presses; };
  progress.meanwhile = [] { frmMain.picBoard.UserMouseDown(kLeftButton, 0, 100, 100); };
  Print();
  EXPECT_EQ(presses, 0);
}

TEST_F(PrintJobTest, ClosingTheWindowWaitsForTheJob) {
  AddSerial();
  SetRange("1", "2");
  progress.meanwhile = [this] {
    EXPECT_TRUE(IsLoaded(frmMain));
    if (progress.jobs.back().asked == 5) UserClose(frmMain);
  };
  Print();
  EXPECT_FALSE(IsLoaded(frmMain));
  EXPECT_EQ(Printed(), (std::vector<Texts>{Run("", 1001, 1014), Run("", 1015, 1028)}));
  EXPECT_EQ(Log().jobs, 1);
}

// --- the preview's use of the loop --------------------------------------------------------------

class PreviewLoopTest : public PrintJobTest {
 protected:
  PreviewLoopTest() {
    paper.Scale().SetScaleMode(kMillimetres);
    DrawTarget = &paper;
    PreviewMode = true;
    PreviewPaperWidth = Printer().Width() * 3;
  }
  RecordingSurface paper{3 * 210 * kTwipsPerMillimetre, 3 * 297 * kTwipsPerMillimetre};
};

TEST_F(PreviewLoopTest, APreviewIsOnePageOnTheTargetThatIsThere) {
  AddSerial();
  SetRange("1", "5");
  PrintLabels();
  EXPECT_EQ(paper.Texts(), Run("", 1001, 1014));
  EXPECT_TRUE(Log().calls.empty()) << "nothing of it reaches the printer";
  EXPECT_FALSE(PreviewMode);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
  EXPECT_EQ(ZoomFactor, 1);
}

TEST_F(PreviewLoopTest, ARangeThatBeginsLaterShowsAnEmptyPage) {
  AddSerial();
  SetRange("2", "5");
  PrintLabels();
  EXPECT_TRUE(paper.Texts().empty());
  EXPECT_TRUE(dialogs.messages.empty()) << "the page shows it";
}

TEST_F(PreviewLoopTest, AMissingPictureIsToldOnce) {
  Add(kPicture, "/nowhere/logo.gif");
  PrintLabels();
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

// Or the next start gives the same numbers out again.
TEST_F(PrintJobTest, AJobThatRaisedTheNumberLeavesUnsavedChanges) {
  Add(kText, "no number");
  Print();
  EXPECT_EQ(DirtyFlag, kFalse);
  AddSerial();
  Print();
  EXPECT_GT(SerialValue, 1001);
  EXPECT_EQ(DirtyFlag, kTrue);
}

}  // namespace
}  // namespace tagwright
