// Text files as sources: columns, counting, and the rows of a merge.
#include "output/text_source.h"

#include <fstream>

#include "document/project_commands.h"
#include "document/project_load.h"
#include "document/project_save.h"
#include "document/source_state.h"
#include "output/source_fixture.h"

namespace tagwright {
namespace {

class TextSourceTest : public SourceTest {};

// A line of so many columns, "1,2,3".
std::string Numbers(int columns) {
  std::string line = "1";
  for (int i = 2; i <= columns; ++i) line += "," + std::to_string(i);
  return line;
}

// --- columns ---

TEST_F(TextSourceTest, NothingIsTrimmedAndQuotesStayInNames) {
  BrowseCsv(" Name ,\"Town\",\tNote\n");
  EXPECT_EQ(Columns(), (Texts{" Name ", "\"Town\"", "\tNote"}));
}

TEST_F(TextSourceTest, QuotesProtectNoSeparator) {
  BrowseCsv("\"Last, first\",Town\n");
  EXPECT_EQ(Columns(), (Texts{"\"Last", " first\"", "Town"}));
}

TEST_F(TextSourceTest, TabsPartTheOtherKind) {
  Browse(kTabSource, Written("data.txt", "Name\tTown, Street\t\n"));
  EXPECT_EQ(Columns(), (Texts{"Name", "Town, Street", ""}));
  EXPECT_EQ(FieldSeparator, "\t");
}

TEST_F(TextSourceTest, EmptyColumnsAreColumns) {
  BrowseCsv(",a,,\n");
  EXPECT_EQ(Columns(), (Texts{"", "a", "", ""}));
}

TEST_F(TextSourceTest, AnEmptyFileHasOneNamelessColumnAndNoRows) {
  BrowseCsv("");
  EXPECT_EQ(Columns(), (Texts{""}));
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 0");
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(TextSourceTest, AnEmptyFirstLineIsOneNamelessColumn) {
  BrowseCsv("\na,b\n");
  EXPECT_EQ(Columns(), (Texts{""}));
  EXPECT_EQ(RecordCount, 2);
}

TEST_F(TextSourceTest, AllSlotsCanBeNames) {
  for (const int columns : {100, 101}) {
    BrowseCsv(Numbers(columns) + "\n");
    EXPECT_EQ(FieldUB, columns - 1);
    EXPECT_EQ(FieldValues[FieldUB], std::to_string(columns));
    EXPECT_EQ(frmMain.lstFields.ListCount(), columns);
  }
}

TEST_F(TextSourceTest, NamesPastTheLastSlotAreDropped) {
  BrowseCsv(Numbers(102) + "\n");
  EXPECT_EQ(FieldUB, 100);
  EXPECT_EQ(FieldValues[100], "101");
  EXPECT_EQ(frmMain.lstFields.ListCount(), 101);
  EXPECT_EQ(RecordCount, 1);
}

TEST_F(TextSourceTest, TheMarkerTellsOfNamesPastTheLastSlot) {
  LeaveMarker();
  BrowseCsv(Numbers(101) + "\n");
  EXPECT_EQ(Messages(), (Texts{}));
  BrowseCsv(Numbers(103) + "\n");
  EXPECT_EQ(Messages(), (Texts{"9 - Subscript out of range"}));
}

TEST_F(TextSourceTest, AMissingFileHasOneNamelessColumnAndNoRows) {
  Browse(kCommaSource, folder.File("gone.csv"));
  EXPECT_EQ(Columns(), (Texts{""}));
  EXPECT_EQ(RecordCount, 0);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("gone.csv"));
  EXPECT_EQ(Messages(), (Texts{}));
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(TextSourceTest, TheMarkerTellsOfAMissingFileForEachTimeItIsOpened) {
  LeaveMarker();
  Browse(kCommaSource, folder.File("gone.csv"));
  EXPECT_EQ(Messages(), (Texts{"53 - File not found", "53 - File not found"}));
}

TEST_F(TextSourceTest, TheMarkerTellsThatAnEmptyFileHasNoFirstLine) {
  LeaveMarker();
  BrowseCsv("");
  EXPECT_EQ(Messages(), (Texts{"62 - Input past end of file"}));
}

// --- counting ---

TEST_F(TextSourceTest, TheCountIncludesTheFirstLineWhateverTheBoxSays) {
  for (const int box : {0, 1}) {
    frmMain.chkFirstRow.SetValue(box);
    BrowseCsv("Name\nAda\nBob\n");
    EXPECT_EQ(RecordCount, 3);
  }
}

TEST_F(TextSourceTest, EmptyLinesCount) {
  BrowseCsv("Name\n\n  \nAda\n\n");
  EXPECT_EQ(RecordCount, 5);
}

TEST_F(TextSourceTest, CountingShowsItsProgress) {
  BrowseCsv("a\nb\n");
  ASSERT_EQ(progress.jobs.size(), 1U);
  EXPECT_EQ(progress.jobs[0].title, "Counting records");
  EXPECT_EQ(progress.jobs[0].texts.front(), "data.csv");
  EXPECT_EQ(progress.jobs[0].shares.back(), 1);
  EXPECT_FALSE(progress.jobs[0].open);
}

TEST_F(TextSourceTest, ACancelledCountStandsAtTheRowsMetByThen) {
  progress.cancel_at = 1;
  BrowseCsv(std::string(65536, '\n') + std::string(65536, '\n'));
  EXPECT_EQ(RecordCount, 65536);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 65536");
  EXPECT_EQ(Columns(), (Texts{""}));
}

// --- merging ---

TEST_F(TextSourceTest, TheFirstLineIsAlwaysPassedOver) {
  BrowseCsv("1\n2\n3\n");
  EXPECT_EQ(Merged(), (Texts{"2", "3"}));
}

TEST_F(TextSourceTest, TheBoxOfTheFirstRowChangesNothingHere) {
  frmMain.chkFirstRow.SetValue(1);  // the print job makes one move more
  BrowseCsv("1\n2\n3\n");
  EXPECT_EQ(Merged(), (Texts{"2", "3"}));
}

TEST_F(TextSourceTest, AFileOfOneLineMergesToNothing) {
  BrowseCsv("Name,Town\n");
  EXPECT_EQ(RecordCount, 1);
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(TextSourceTest, MoreBeginsFalse) {
  BrowseCsv("1\n");
  OpenMergeSource();
  EXPECT_FALSE(Next());
  CloseMergeSource();
}

TEST_F(TextSourceTest, TheEndOfTheDataIsNoFaultToTellOf) {
  BrowseCsv("1\n2\n");
  LeaveMarker();
  EXPECT_EQ(Merged(), (Texts{"2"}));
  EXPECT_EQ(Messages(), (Texts{}));
}

TEST_F(TextSourceTest, WithoutTheBoxQuotesStayInValues) {
  BrowseCsv("Name,Note\n\"Smith, John\",\"a \"\"b\"\"\"\n");
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"\"Smith", " John\"", "\"a \"\"b\"\"\""}));
}

TEST_F(TextSourceTest, WithTheBoxQuotesGoBeforeTheLineIsSplit) {
  frmMain.chkQuote.SetValue(1);
  BrowseCsv("Name,Note\n\"Smith, John\",\"a \"\"b\"\" \"\n");
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"Smith", " John", "a b"}));
}

// The quotes go first, so blanks inside them are trimmed too, at the ends of the line.
TEST_F(TextSourceTest, LinesAreTrimmedOfBlanksAtTheirEndsAndNeverOfTabs) {
  BrowseCsv("x\n  Ada  ,  Leeds  \n\tBob\t,York\t\n");
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"Ada  ", "  Leeds"}));
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"\tBob\t", "York\t"}));
}

TEST_F(TextSourceTest, ALineOfTabsKeepsItsEmptyColumns) {
  Browse(kTabSource, Written("data.txt", "a\tb\tc\n\t\t\n"));
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"", "", ""}));
}

TEST_F(TextSourceTest, AnEmptyLineIsARowOfOneEmptyColumn) {
  BrowseCsv("Name\n\n  \nAda\n");
  EXPECT_EQ(Merged(), (Texts{"", "", "Ada"}));
}

TEST_F(TextSourceTest, AShortLineKeepsTheValuesOfTheRowBefore) {
  BrowseCsv("a,b,c\n1,2,3\n4\n5,6\n");
  OpenMergeSource();
  ASSERT_TRUE(Next());
  ASSERT_TRUE(Next());
  EXPECT_EQ(FieldUB, 0);
  EXPECT_EQ((Texts{FieldValues.begin(), FieldValues.begin() + 3}), (Texts{"4", "2", "3"}));
  ASSERT_TRUE(Next());
  EXPECT_EQ(FieldUB, 1);
  EXPECT_EQ((Texts{FieldValues.begin(), FieldValues.begin() + 3}), (Texts{"5", "6", "3"}));
}

TEST_F(TextSourceTest, AShortFirstRowKeepsTheNamesOfTheColumns) {
  BrowseCsv("Name,Town\nAda\n");
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(FieldValues[1], "Town");
}

TEST_F(TextSourceTest, ValuesPastTheLastSlotAreDroppedAndTheRowIsKept) {
  BrowseCsv("a\n" + Numbers(150) + "\nnext,row\n");
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(FieldUB, 100);
  EXPECT_EQ(FieldValues[100], "101");
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"next", "row"}));
  EXPECT_FALSE(Next());
}

TEST_F(TextSourceTest, EveryMergeBeginsAnew) {
  BrowseCsv("1\n2\n3\n");
  EXPECT_EQ(Merged(), (Texts{"2", "3"}));
  EXPECT_EQ(Merged(), (Texts{"2", "3"}));
}

TEST_F(TextSourceTest, AMergeReadsTheFileThatThePanelNames) {
  BrowseCsv("1\n2\n");
  frmMain.lblFileName.SetCaption(Written("other.csv", "x\ny\n"));
  EXPECT_EQ(Merged(), (Texts{"y"}));
}

TEST_F(TextSourceTest, AClosedSourceGivesNoRow) {
  BrowseCsv("1\n2\n3\n");
  LeaveMarker();
  EXPECT_FALSE(Next());  // as a job without mailshot data does for the box of the first row
  OpenMergeSource();
  CloseMergeSource();
  EXPECT_FALSE(Next());
  EXPECT_EQ(FieldValues[0], "1");
  EXPECT_EQ(Messages(), (Texts{}));
}

TEST_F(TextSourceTest, AFileThatIsGoneAtTheMergeGivesNoRow) {
  BrowseCsv("1\n2\n");
  DeleteFile(folder.File("data.csv"));
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(TextSourceTest, AZeroByteDoesNotEndTheJob) {
  BrowseCsv(std::string("a\nb\0c\nd\n", 8));
  EXPECT_EQ(RecordCount, 3);
  EXPECT_EQ(Merged(), (Texts{std::string("b\0c", 3), "d"}));
}

TEST_F(TextSourceTest, AnOverlongLineDoesNotEndTheJob) {
  BrowseCsv("a\n" + std::string(3 * kLongestLine, 'x') + ",y\nd\n");
  EXPECT_EQ(RecordCount, 3);
  EXPECT_EQ(Merged(), (Texts{std::string(kLongestLine, 'x'), "d"}));
}

TEST_F(TextSourceTest, EachRowIsUtf8OrTheCodePageByItself) {
  BrowseCsv("\xEF\xBB\xBFName\nM\xC3\xBCller\nM\xFCller\n");
  EXPECT_EQ(Columns(), (Texts{"Name"}));
  EXPECT_EQ(Merged(), (Texts{"M\u00FCller", "M\u00FCller"}));
}

// --- projects ---

class SavedTextSourceTest : public TextSourceTest {
 protected:
  // Saves a label with this source and goes on to a new one.
  void SaveAndLeave(SourceKind kind, const std::string& path) {
    Browse(kind, path);
    ProjectPath = folder.File("label.twp");
    SaveProject(kFalse);
    mnuFileNew_Click();
    dialogs.requests.clear();
    dialogs.messages.clear();
  }
};

TEST_F(SavedTextSourceTest, ALoadBringsColumnsAndRows) {
  for (const SourceKind kind : {kCommaSource, kTabSource}) {
    const std::string comma = kind == kCommaSource ? "," : "\t";
    SaveAndLeave(kind, Written(kind == kCommaSource ? "a.csv" : "a.txt",
                               "Name" + comma + "Town\nAda" + comma + "Leeds\nBob\n"));
    EXPECT_EQ(ListedFields(), Texts{});
    LoadProject(folder.File("label.twp"));
    EXPECT_EQ(Columns(), (Texts{"Name", "Town"}));
    EXPECT_EQ(ListedFields(), (Texts{"Name", "Town"}));
    EXPECT_EQ(RecordCount, 3);
    EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 3");
    EXPECT_EQ(Merged(), (Texts{"Ada", "Bob"}));
    EXPECT_TRUE(dialogs.requests.empty()) << "nobody is asked for the file";
    EXPECT_TRUE(dialogs.messages.empty());
  }
}

TEST_F(SavedTextSourceTest, LoadedAgainTheColumnsAreThoseOfTheFileAlone) {
  SaveAndLeave(kCommaSource, Written("a.csv", "Name,Town\nAda,Leeds\n"));
  LoadProject(folder.File("label.twp"));
  LoadProject(folder.File("label.twp"));
  EXPECT_EQ(ListedFields(), (Texts{"Name", "Town"}));
  EXPECT_EQ(RecordCount, 2);
}

TEST_F(SavedTextSourceTest, AFileThatHasVanishedHasNoColumnsAndNoRows) {
  SaveAndLeave(kCommaSource, Written("a.csv", "Name,Town\nAda,Leeds\n"));
  BrowseCsv("Former\nrow\n");
  DeleteFile(folder.File("a.csv"));
  dialogs.answers = {Answer::kYes};
  LoadProject(folder.File("label.twp"));
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("a.csv"));
  EXPECT_EQ(ListedFields(), Texts{});
  EXPECT_EQ(FieldUB, -1);
  EXPECT_EQ(RecordCount, -1);
  EXPECT_EQ(Merged(), Texts{});
}

// --- files as other programs write them ---

TEST_F(TextSourceTest, AFileInUtf8WithQuotesAndAShortLastLine) {
  frmMain.chkQuote.SetValue(1);
  Browse(kCommaSource, TestDataFolder() + "/text/people.csv");
  EXPECT_EQ(Columns(), (Texts{"Name", "Street", "Town"}));
  EXPECT_EQ(RecordCount, 4);
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"Müller", " Jörg", "Hauptstraße 7", "Köln"}));
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"Ada Byron", "12", " The Lane", "Leeds"}));
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"O'Neill", "Quay 3"}));
  EXPECT_EQ(FieldValues[2], " The Lane");
  EXPECT_FALSE(Next());
}

TEST_F(TextSourceTest, AFileOfTabsInTheCodePageWithoutALastEnd) {
  Browse(kTabSource, TestDataFolder() + "/text/people-1252.txt");
  EXPECT_EQ(Columns(), (Texts{"Name", "Town", "Price"}));
  EXPECT_EQ(RecordCount, 3);
  OpenMergeSource();
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"René Façade", "Orléans", "€ 5"}));
  ASSERT_TRUE(Next());
  EXPECT_EQ(Columns(), (Texts{"Plain", "York", "12.5"}));
  EXPECT_FALSE(Next());
}

// Memory of this process, in kilobytes.
long Memory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::stol(line.substr(6));
  }
  return 0;
}

TEST_F(TextSourceTest, Long_AMillionRowsAreReadOneByOne) {
  constexpr int kRows = 1000000;
  const std::string path = folder.File("million.csv");
  std::ofstream file(path, std::ios::binary);
  file << "Number,Name,Street,Town\n";
  for (int i = 1; i < kRows; ++i) file << i << ",Name " << i << ",Long Street " << i << ",Leeds\n";
  file.close();
  [[maybe_unused]] const long before = Memory();
  Browse(kCommaSource, path);
  EXPECT_EQ(RecordCount, kRows);
  OpenMergeSource();
  int row = 0;
  while (Next()) ASSERT_EQ(FieldValues[0], std::to_string(++row));
  CloseMergeSource();
  EXPECT_EQ(row, kRows - 1);
#ifndef __SANITIZE_ADDRESS__  // which keeps what is freed, to catch who still reads it
  EXPECT_LT(Memory() - before, 4096);
#endif
}

}  // namespace
}  // namespace tagwright
