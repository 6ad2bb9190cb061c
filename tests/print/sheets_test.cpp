// The main job, read back: a table goes in, sheets of labels come out, every row on its cell, none
// lost and none doubled.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <span>
#include <string>

#include "common/prog_settings.h"
#include "forms/frmMain.h"
#include "platform/files/files.h"
#include "print/code_128_reader.h"
#include "print/print_fixture.h"
#include "support/fake_database.h"
#include "support/file_size_limit.h"
#include "support/pdf_reader.h"

namespace tagwright {
namespace {

constexpr double kTolerance = 0.05;  // millimetres
constexpr double kBearing = 0.5;     // between where a text starts and its first letter's ink
constexpr int kLines = 4;
constexpr int kBars = 40;
constexpr double kTextLeft = 4, kFirstLine = 3, kLineStep = 5;
constexpr double kPoints = 11;
constexpr double kSymbolLeft = 4, kSymbolTop = 24, kSymbolWidth = 60, kSymbolHeight = 11;
constexpr std::int16_t kCode128B = 7;

const std::array<std::string, kLines> kColumns = {"Person", "Company", "Street", "City"};

std::string Number(int row) {
  const std::string digits = std::to_string(row);
  return std::string(7 - digits.size(), '0') + digits;
}
std::string Line(int line, int row) {
  return kColumns[static_cast<std::size_t>(line)] + Number(row);
}
std::string Code(int row) { return "TW-" + Number(row); }

// A title line and one line for each row.
std::string Table(int rows) {
  std::string table = "Name,Company,Street,City,Code\r\n";
  for (int row = 0; row < rows; ++row) {
    for (int line = 0; line < kLines; ++line) table += Line(line, row) + ",";
    table += Code(row) + "\r\n";
  }
  return table;
}

class SheetsTest : public PrintTest {
 protected:
  void DesignLabel(int rows) {
    std::filesystem::remove(folder.File("rows.csv"));
    WriteFile(folder.File("rows.csv"), Table(rows));
    ChooseLayout("A4 14 per sheet");
    OpenCommaText(folder.File("rows.csv"));
    for (std::int16_t line = 0; line < kLines; ++line) {
      AddField(line, kTextLeft, kFirstLine + kLineStep * line, 60, kPoints);
    }
    AddBarcodeField(kLines, kCode128B, kSymbolLeft, kSymbolTop, kSymbolWidth, kSymbolHeight);
    frmMain.mnuFilePrint.Press();
  }
  std::string Pdf() const { return folder.File("sheets.pdf"); }
};

// Of a page's texts and bars those of one row: four texts and one symbol, where its cell is.
void ExpectLabel(const std::vector<PdfMark>& texts, const std::vector<PdfMark>& bars, int row) {
  SCOPED_TRACE("row " + std::to_string(row));
  const auto on_sheet = static_cast<std::size_t>(row % SheetOf14::kCells);
  const double left = SheetOf14::LeftOf(row), top = SheetOf14::TopOf(row);
  for (int line = 0; line < kLines; ++line) {
    const PdfMark& text = texts[on_sheet * kLines + static_cast<std::size_t>(line)];
    const PdfMark& first = texts[static_cast<std::size_t>(line)];
    ASSERT_EQ(text.text, Line(line, row));
    ASSERT_NEAR(text.x1, left + kTextLeft, kBearing);
    ASSERT_NEAR(text.x1 - first.x1, left - SheetOf14::LeftOf(0), kTolerance);
    ASSERT_NEAR(text.y1 - first.y1, top - SheetOf14::TopOf(0), kTolerance);
    ASSERT_GT(text.y1, top + kFirstLine + kLineStep * line);
    ASSERT_LT(text.y1, top + kFirstLine + kLineStep * (line + 1));
  }
  const std::span<const PdfMark> symbol = std::span(bars).subspan(on_sheet * kBars, kBars);
  ASSERT_EQ(ReadCode128B(symbol), Code(row));
  ASSERT_NEAR(symbol.front().x1, left + kSymbolLeft, kTolerance);
  ASSERT_NEAR(symbol.back().x2, left + kSymbolLeft + kSymbolWidth, kTolerance);
  for (const PdfMark& bar : symbol) {
    ASSERT_NEAR(bar.y1, top + kSymbolTop, kTolerance);
    ASSERT_NEAR(bar.y2, top + kSymbolTop + kSymbolHeight, kTolerance);
  }
}

std::vector<PdfMark> OfPage(const PdfPages& pages, PdfMark::What what, int page) {
  std::vector<PdfMark> found = pages.Of(what);
  std::erase_if(found, [&](const PdfMark& mark) { return mark.page != page; });
  return found;
}

void ExpectSheet(const PdfPages& pages, int page, int first_row, int rows) {
  const std::vector<PdfMark> texts = OfPage(pages, PdfMark::What::kText, page);
  const std::vector<PdfMark> bars = OfPage(pages, PdfMark::What::kFill, page);
  const int labels = std::min(SheetOf14::kCells, rows - first_row);
  ASSERT_EQ(texts.size(), static_cast<std::size_t>(labels * kLines));
  ASSERT_EQ(bars.size(), static_cast<std::size_t>(labels * kBars));
  for (int row = first_row; row < first_row + labels; ++row) {
    ExpectLabel(texts, bars, row);
    if (testing::Test::HasFatalFailure()) return;
  }
}

// A part of the pages at a time: what is read of a thousand of them would fill the memory.
void ExpectEveryRowOnItsCell(const std::string& pdf, int rows) {
  constexpr int kPagesAtOnce = 25;
  const int sheets = (rows + SheetOf14::kCells - 1) / SheetOf14::kCells;
  for (int done = 0; done < sheets; done += kPagesAtOnce) {
    const int last = std::min(done + kPagesAtOnce, sheets);
    const PdfPages pages = ReadPdf(pdf, std::to_string(done + 1) + "-" + std::to_string(last));
    ASSERT_EQ(pages.count, last - done);
    for (int page = 1; page <= pages.count; ++page) {
      ExpectSheet(pages, page, (done + page - 1) * SheetOf14::kCells, rows);
      if (testing::Test::HasFatalFailure()) return;
    }
  }
  EXPECT_EQ(ReadPdf(pdf, std::to_string(sheets) + "-N").count, 1) << "pages follow the last row";
}

// --- every row ----------------------------------------------------------------------------------

TEST_F(SheetsTest, EveryRowLiesOnItsCell) {
  constexpr int kRows = 3 * SheetOf14::kCells + 5;
  DesignLabel(kRows);
  PrintToPdf(Pdf());
  ExpectEveryRowOnItsCell(Pdf(), kRows);
}

TEST_F(SheetsTest, RowsThatFillTheirSheetsLeaveNoBlankPageBehind) {
  constexpr int kRows = 2 * SheetOf14::kCells;
  DesignLabel(kRows);
  PrintToPdf(Pdf());
  ExpectEveryRowOnItsCell(Pdf(), kRows);
}

TEST_F(SheetsTest, TextsAloneStandOnTheirCellsToo) {
  constexpr int kRows = 2 * SheetOf14::kCells;
  DesignLabel(kRows);
  ObjectUB = 0;  // only the first line
  PrintToPdf(Pdf());
  const std::vector<PdfMark> texts = ReadPdf(Pdf()).Of(PdfMark::What::kText);
  ASSERT_EQ(texts.size(), static_cast<std::size_t>(kRows));
  for (int row = 0; row < kRows; ++row) {
    const PdfMark& text = texts[static_cast<std::size_t>(row)];
    EXPECT_EQ(text.text, Line(0, row));
    EXPECT_NEAR(text.x1, SheetOf14::LeftOf(row) + kTextLeft, kBearing) << row;
    EXPECT_NEAR(text.y1 - texts[0].y1, SheetOf14::TopOf(row) - SheetOf14::TopOf(0), kTolerance);
  }
}

TEST_F(SheetsTest, InchesPutEveryRowWhereMillimetresDo) {
  constexpr double kRounded = 0.13;  // half of the hundredth of an inch that the boxes show
  DesignLabel(3);
  PrintToPdf(Pdf());
  frmMain.mnuUnitIn.Press();
  const std::string inches = folder.File("inches.pdf");
  PrintToPdf(inches);
  const PdfPages first = ReadPdf(Pdf()), second = ReadPdf(inches);
  ASSERT_EQ(first.marks.size(), second.marks.size());
  for (std::size_t i = 0; i < first.marks.size(); ++i) {
    const int label = static_cast<int>(i) / (kLines + 1);
    EXPECT_EQ(first.marks[i].text, second.marks[i].text);
    EXPECT_NEAR(first.marks[i].x1, second.marks[i].x1, kRounded);
    EXPECT_NEAR(first.marks[i].y1, second.marks[i].y1, kRounded * (2 + label));
  }
}

TEST_F(SheetsTest, TheProposedPagesReachBeyondTheLastRow) {
  DesignLabel(3 * SheetOf14::kCells + 5);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 48");  // the title line is one of them
  EXPECT_EQ(frmMain.txtPrintFrom.Text(), "1");
  EXPECT_GE(std::stoi(frmMain.txtPrintTo.Text()), 4);
  EXPECT_EQ(frmMain.chkMailshot.Value(), 1);
}

// --- what is merged -----------------------------------------------------------------------------

// The tick for merging goes with the data that it was for.
TEST_F(SheetsTest, ANewLabelAfterAMergePrintsEachOfItsCells) {
  DesignLabel(3);
  PrintToPdf(Pdf());
  DirtyFlag = kFalse;  // as after a save: nothing is asked
  frmMain.mnuFileNew.Press();
  Add(kText, kTextLeft, kFirstLine, 60, 5).Text = "plain";
  frmMain.mnuFilePrint.Press();
  const std::string plain = folder.File("plain.pdf");
  PrintToPdf(plain);
  EXPECT_TRUE(dialogs.messages.empty());
  const std::vector<PdfMark> texts = ReadPdf(plain).Of(PdfMark::What::kText);
  EXPECT_EQ(texts.size(), static_cast<std::size_t>(SheetOf14::kCells));
}

TEST_F(SheetsTest, AJobWithoutALabelSaysWhyAndKeepsTheFormerFile) {
  DesignLabel(3);
  PrintToPdf(Pdf());
  DesignLabel(0);
  PrintToPdf(Pdf());
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text,
            "No label was printed: no rows are left in the data file " + folder.File("rows.csv"));
  ExpectEveryRowOnItsCell(Pdf(), 3);
}

TEST_F(SheetsTest, ASavedLabelPrintsTheRowsOfItsTextFile) {
  constexpr int kRows = SheetOf14::kCells + 5;
  DesignLabel(kRows);
  dialogs.files.push_back(folder.File("saved.twp"));
  frmMain.mnuFileSaveAs.SetEnabled(true);
  frmMain.mnuFileSaveAs.Press();
  frmMain.mnuFileNew.Press();
  dialogs.files.push_back(folder.File("saved.twp"));
  frmMain.mnuFileOpen.Press();
  frmMain.mnuFilePrint.Press();
  EXPECT_EQ(frmMain.lblLabels.Caption(), "Labels: " + std::to_string(kRows));
  PrintToPdf(Pdf());
  EXPECT_TRUE(dialogs.messages.empty());
  ExpectEveryRowOnItsCell(Pdf(), kRows);
}

TEST_F(SheetsTest, ATextFileThatHasVanishedSinceIsToldAtThePrint) {
  DesignLabel(3);
  dialogs.files.push_back(folder.File("saved.twp"));
  frmMain.mnuFileSaveAs.SetEnabled(true);
  frmMain.mnuFileSaveAs.Press();
  std::filesystem::remove(folder.File("rows.csv"));
  dialogs.files.push_back(folder.File("saved.twp"));
  dialogs.answers = {Answer::kYes};  // the label is opened without its data
  frmMain.mnuFileOpen.Press();
  dialogs.messages.clear();
  frmMain.mnuFilePrint.Press();
  PrintToPdf(Pdf());
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text,
            "No label was printed: the data file " + folder.File("rows.csv") + " does not exist");
  EXPECT_FALSE(std::filesystem::exists(Pdf()));
}

// The rows of the database before it would come out as labels.
TEST_F(SheetsTest, AFileThatIsNoDatabasePrintsNoLabels) {
  constexpr int kDatabase = 0;
  FakeDatabases databases;
  const std::string good = folder.File("people.mdb"), bad = folder.File("other.mdb");
  WriteFile(good, "");
  WriteFile(bad, "GIF89a");
  databases.files[good] = {{{"People", {"Name"}, {{"Ada"}, {"Bob"}, {"Cyd"}}}}};
  databases.files[bad] = {{}, "", true};
  dialogs.files = {good, bad};
  frmMain.cboImportType.SetListIndex(kDatabase);
  frmMain.cboRSet.SetListIndex(0);
  AddField(0, kTextLeft, kFirstLine, 60, kPoints);
  frmMain.cboImportType.SetListIndex(kDatabase);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "The file " + bad + " cannot be read as a database");
  frmMain.mnuFilePrint.Press();
  PrintToPdf(Pdf());
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[1].text,
            "No label was printed: no table of the data file " + bad + " is chosen");
  EXPECT_FALSE(std::filesystem::exists(Pdf()));
}

// --- the file -----------------------------------------------------------------------------------

TEST_F(SheetsTest, AUserWhoBacksOutIsAskedAgainByTheNextPress) {
  DesignLabel(3);
  Print("Print to PDF");
  EXPECT_FALSE(std::filesystem::exists(Pdf()));
  PrintToPdf(Pdf());
  ExpectEveryRowOnItsCell(Pdf(), 3);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SheetsTest, PrintingAgainReplacesTheFile) {
  DesignLabel(3 * SheetOf14::kCells);
  PrintToPdf(Pdf());
  DesignLabel(2);
  ObjectUB = kLines;  // the first design's objects
  PrintToPdf(Pdf());
  ExpectEveryRowOnItsCell(Pdf(), 2);
}

// Room for the first sheets only: the former labels stay, nothing else is left behind, and the next
// job, with room again, is a whole one.
TEST_F(SheetsTest, ADiskThatBecomesFullDuringAJobKeepsTheFormerSheetsAndIsToldOnce) {
  constexpr int kFew = SheetOf14::kCells, kMany = 40 * SheetOf14::kCells;
  if (!FileSizeLimit::CanBeArranged(Pdf())) GTEST_SKIP() << "no limit for files here";
  DesignLabel(kFew);
  PrintToPdf(Pdf());
  const std::string former = ReadFile(Pdf());
  DesignLabel(kMany);
  ObjectUB = kLines;  // the first design's objects
  const auto files = [&] {
    return std::distance(std::filesystem::directory_iterator(folder.Path()), {});
  };
  const auto files_before = files();
  {
    const FileSizeLimit disk(2 * former.size());
    PrintToPdf(Pdf());
  }
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_NE(dialogs.messages[0].text.find(Pdf()), std::string::npos) << dialogs.messages[0].text;
  EXPECT_EQ(ReadFile(Pdf()), former);
  EXPECT_EQ(files(), files_before);
  EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
  EXPECT_FALSE(PreviewMode);
  PrintToPdf(Pdf());
  EXPECT_EQ(dialogs.messages.size(), 1u);
  ExpectEveryRowOnItsCell(Pdf(), kMany);
}

TEST_F(SheetsTest, ALabelTakesAtMost300Bytes) {
  constexpr int kRows = 1400;
  DesignLabel(kRows);
  PrintToPdf(Pdf());
  EXPECT_LE(std::filesystem::file_size(Pdf()), 300u * kRows);
}

TEST_F(SheetsTest, Long_AThousandSheetsHoldEveryRowOnItsCell) {
  constexpr int kRows = 14'000;
  DesignLabel(kRows);
  PrintToPdf(Pdf());
  ExpectEveryRowOnItsCell(Pdf(), kRows);
}

}  // namespace
}  // namespace tagwright
