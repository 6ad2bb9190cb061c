// The printers of the toolkit, above all the one that writes files.
#include "qt/printing/printers.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "paint_environment.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "support/file_size_limit.h"
#include "support/pdf_reader.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

template <class Call>
int FaultOf(Call&& call) {
  try {
    call();
  } catch (const Fault& fault) {
    return fault.number;
  }
  return 0;
}

class PrintersTest : public PaintTest {
 protected:
  PrintersTest() {
    SetDialogs(&dialogs);
    ChoosePrinter(kPrintToPdf);
  }
  ~PrintersTest() override {
    ResetPrinter();
    SetDialogs(nullptr);
  }
  void WriteTo(const std::string& name) { dialogs.files.push_back(folder.File(name)); }
  PdfPages Read(const std::string& name) { return ReadPdf(folder.File(name)); }
  int FilesInFolder() const {
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      ++count;
    }
    return count;
  }
  TempFolder folder;
  ScriptedDialogs dialogs;
};

// --- the list -----------------------------------------------------------------------------------

TEST_F(PrintersTest, PrintToPdfIsTheLastOfTheList) {
  ASSERT_FALSE(Printers().empty());
  EXPECT_EQ(Printers().back(), "Print to PDF");
}

TEST_F(PrintersTest, TheDefaultIsOneOfTheList) {
  const std::vector<std::string> names = Printers();
  EXPECT_NE(std::find(names.begin(), names.end(), PrinterList().DefaultName()), names.end());
}

TEST_F(PrintersTest, AQueueThatIsNotThereFaults) {
  EXPECT_EQ(FaultOf([] { ChoosePrinter("no such queue 4711"); }), 482);
  EXPECT_EQ(Printer().DeviceName(), "Print to PDF");
}

// --- the page -----------------------------------------------------------------------------------

TEST_F(PrintersTest, ThePageIsTheWholePaperAt600PixelsAnInch) {
  Surface& page = Printer().Page();
  page.Scale().SetScaleMode(kMillimetres);
  EXPECT_NEAR(page.ScaleWidth(), 210, 1e-9);
  EXPECT_NEAR(page.ScaleHeight(), 297, 1e-9);
  EXPECT_NEAR(Printer().Width(), 210 * kTwipsPerMillimetre, 1e-9);
  EXPECT_NEAR(page.ScaleX(25.4, kMillimetres, kPixels), 600, 1e-9);
}

TEST_F(PrintersTest, PaperAndOrientationChangeThePage) {
  Printer().Page().Scale().SetScaleMode(kMillimetres);
  Printer().SetPaperSize(1);
  EXPECT_NEAR(Printer().Page().ScaleWidth(), 215.9, 1e-9);
  EXPECT_NEAR(Printer().Page().ScaleHeight(), 279.4, 1e-9);
  Printer().SetOrientation(2);
  EXPECT_NEAR(Printer().Page().ScaleWidth(), 279.4, 1e-9);
  EXPECT_EQ(Printer().Page().ScaleMode(), kMillimetres);
  WriteTo("letter.pdf");
  Printer().Page().Print("x");
  Printer().EndDoc();
  EXPECT_NEAR(Read("letter.pdf").width, 279.4, 0.2);
  EXPECT_NEAR(Read("letter.pdf").height, 215.9, 0.2);
}

TEST_F(PrintersTest, OtherPapersAndOrientationsAreRefused) {
  EXPECT_EQ(FaultOf([] { Printer().SetPaperSize(8); }), 380);
  EXPECT_EQ(FaultOf([] { Printer().SetOrientation(3); }), 380);
  EXPECT_EQ(Printer().PaperSize(), 9);
  EXPECT_EQ(Printer().Orientation(), 1);
}

// --- the job ------------------------------------------------------------------------------------

TEST_F(PrintersTest, AnEmptyTextOpensTheJobAndItsPage) {
  WriteTo("empty.pdf");
  Printer().Page().Print("");
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].default_extension, "pdf");
  Printer().EndDoc();
  EXPECT_EQ(Read("empty.pdf").count, 1);
}

TEST_F(PrintersTest, TheFileIsAskedForOncePerJob) {
  WriteTo("one.pdf");
  WriteTo("two.pdf");
  Printer().Page().Print("a");
  Printer().Page().Print("b");
  Printer().NewPage();
  Printer().Page().Print("c");
  EXPECT_EQ(dialogs.requests.size(), 1u);
  Printer().EndDoc();
  Printer().Page().Print("d");
  EXPECT_EQ(dialogs.requests.size(), 2u);
  Printer().EndDoc();
  EXPECT_EQ(Read("one.pdf").count, 2);
  EXPECT_EQ(Read("two.pdf").count, 1);
}

TEST_F(PrintersTest, ACancelledQuestionFaultsBeforeAnythingIsPainted) {
  EXPECT_EQ(FaultOf([] { Printer().Page().Print(""); }), 32755);
  EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(PrintersTest, ACancelledJobIsNotAskedForAgainUntilItEnds) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(FaultOf([] { Printer().Page().Line(0, 0, 1, 1, 0); }), 32755);
  }
  EXPECT_EQ(FaultOf([] { Printer().NewPage(); }), 32755);
  EXPECT_EQ(dialogs.requests.size(), 1u);
  Printer().EndDoc();
  WriteTo("later.pdf");
  Printer().Page().Print("x");
  Printer().EndDoc();
  EXPECT_EQ(dialogs.requests.size(), 2u);
  EXPECT_EQ(Read("later.pdf").count, 1);
}

TEST_F(PrintersTest, NothingFollowsTheLastPageFeed) {
  WriteTo("fed.pdf");
  Printer().Page().Print("only");
  Printer().NewPage();
  Printer().EndDoc();
  EXPECT_EQ(Read("fed.pdf").count, 1);
}

TEST_F(PrintersTest, BlankPagesBetweenCount) {
  WriteTo("blank.pdf");
  Printer().NewPage();
  Printer().NewPage();
  Printer().Page().Print("third");
  Printer().EndDoc();
  const PdfPages pages = Read("blank.pdf");
  EXPECT_EQ(pages.count, 3);
  EXPECT_EQ(pages.Text("third").page, 3);
}

TEST_F(PrintersTest, EndingOrDroppingWithoutAJobDoesNothing) {
  Printer().EndDoc();
  Printer().KillDoc();
  EXPECT_TRUE(dialogs.requests.empty());
}

TEST_F(PrintersTest, TheFileTakesItsNameOnlyAtTheEnd) {
  WriteFile(folder.File("label.pdf"), "former");
  WriteTo("label.pdf");
  Printer().Page().Print("x");
  EXPECT_EQ(ReadFile(folder.File("label.pdf")), "former");
  Printer().EndDoc();
  EXPECT_EQ(Read("label.pdf").count, 1);
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(PrintersTest, ADroppedJobLeavesTheFormerFileAlone) {
  WriteFile(folder.File("label.pdf"), "former");
  WriteTo("label.pdf");
  Printer().Page().Print("x");
  Printer().KillDoc();
  EXPECT_EQ(ReadFile(folder.File("label.pdf")), "former");
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(PrintersTest, AnotherPrinterDropsTheJobOfTheFormerOne) {
  WriteTo("label.pdf");
  Printer().Page().Print("x");
  ChoosePrinter(kPrintToPdf);
  EXPECT_EQ(FilesInFolder(), 0);
}

TEST_F(PrintersTest, AFileThatCannotBeWrittenFaultsAtTheStart) {
  WriteTo("no/such/folder/label.pdf");
  EXPECT_EQ(FaultOf([] { Printer().Page().Print("x"); }), 75);
  EXPECT_EQ(FaultOf([] { Printer().Page().Print("x"); }), 75);
  EXPECT_EQ(dialogs.requests.size(), 1u);
}

TEST_F(PrintersTest, TheStartOfAJobAsksAndPaintingDoesNotAskAgain) {
  WriteTo("label.pdf");
  Printer().StartDoc();
  EXPECT_EQ(dialogs.requests.size(), 1u);
  Printer().StartDoc();
  Printer().Page().Print("x");
  EXPECT_EQ(dialogs.requests.size(), 1u);
  Printer().EndDoc();
  EXPECT_EQ(Read("label.pdf").count, 1);
}

TEST_F(PrintersTest, PaperChosenAfterTheStartIsThePages) {
  WriteTo("letter.pdf");
  Printer().StartDoc();
  Printer().SetPaperSize(1);
  Printer().Page().Print("x");
  Printer().EndDoc();
  EXPECT_NEAR(Read("letter.pdf").width, 215.9, 0.2);
}

TEST_F(PrintersTest, AJobWithoutAPageLeavesTheFormerFileAlone) {
  WriteFile(folder.File("label.pdf"), "former");
  WriteTo("label.pdf");
  Printer().StartDoc();
  Printer().EndDoc();
  EXPECT_EQ(ReadFile(folder.File("label.pdf")), "former");
  EXPECT_EQ(FilesInFolder(), 1);
}

// --- what a printer says itself ---

TEST_F(PrintersTest, WhoBacksOutIsToldNothing) {
  EXPECT_EQ(FaultOf([] { Printer().StartDoc(); }), 32755);
  EXPECT_TRUE(Printer().JobLost());
  EXPECT_TRUE(dialogs.messages.empty());
  Printer().EndDoc();
  EXPECT_FALSE(Printer().JobLost());
}

TEST_F(PrintersTest, AFileThatCannotBeWrittenIsToldOnce) {
  WriteTo("no/such/folder/label.pdf");
  EXPECT_EQ(FaultOf([] { Printer().StartDoc(); }), 75);
  EXPECT_EQ(FaultOf([] { Printer().Page().Print("x"); }), 75);
  Printer().EndDoc();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_NE(dialogs.messages[0].text.find("no/such/folder/label.pdf"), std::string::npos);
}

TEST_F(PrintersTest, AQueueThatIsNotThereIsToldOnce) {
  EXPECT_EQ(FaultOf([] { ChoosePrinter("no such queue 4711"); }), 482);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "The printer no such queue 4711 is not there any more.");
}

TEST_F(PrintersTest, AFullDiskKeepsTheFormerFileAndIsToldOnce) {
  if (!FileSizeLimit::CanBeArranged(folder.File("tried")))
    GTEST_SKIP() << "no limit for files here";
  DeleteFile(folder.File("tried"));
  WriteFile(folder.File("label.pdf"), "former");
  WriteTo("label.pdf");
  int fault = 0;
  {
    const FileSizeLimit disk(20000);
    Printer().StartDoc();
    for (int page = 0; page < 2000 && !Printer().JobLost(); ++page) {
      Printer().Page().Print("page " + std::to_string(page));
      Printer().NewPage();
    }
    EXPECT_TRUE(Printer().JobLost()) << "two thousand pages do not fit";
    fault = FaultOf([] { Printer().EndDoc(); });
  }
  EXPECT_EQ(fault, 57);
  EXPECT_EQ(ReadFile(folder.File("label.pdf")), "former");
  EXPECT_EQ(FilesInFolder(), 1);
  EXPECT_EQ(dialogs.messages.size(), 1u);
}

// --- boxes painted together ---

TEST_F(PrintersTest, WhatIsPaintedLaterLiesOnTop) {
  WriteTo("order.pdf");
  Surface& page = Printer().Page();
  page.Scale().SetScaleMode(kMillimetres);
  const auto box = [&](double x, Color color) { page.Line(x, 10, x + 5, 20, color); };
  box(10, Rgb(1, 0, 0));
  box(20, Rgb(1, 0, 0));
  box(30, Rgb(2, 0, 0));
  page.Font = {"Arial", 10, false, false};
  page.CurrentX = 10;
  page.CurrentY = 10;
  page.Print("over");
  box(40, Rgb(2, 0, 0));
  Printer().NewPage();
  box(50, Rgb(3, 0, 0));
  Printer().EndDoc();
  std::vector<Color> colors;
  std::vector<int> pages;
  for (const PdfMark& mark : Read("order.pdf").marks) {
    colors.push_back(mark.what == PdfMark::What::kText ? -1 : mark.color);
    pages.push_back(mark.page);
  }
  EXPECT_EQ(colors, (std::vector<Color>{1, 1, 2, -1, 2, 3}));
  EXPECT_EQ(pages, (std::vector<int>{1, 1, 1, 1, 1, 2}));
}

TEST_F(PrintersTest, BoxesOfAPageThatIsDroppedAreNotOnTheNextJobs) {
  WriteTo("dropped.pdf");
  WriteTo("next.pdf");
  Surface& page = Printer().Page();
  page.Scale().SetScaleMode(kMillimetres);
  page.Line(10, 10, 20, 20, 0);
  Printer().KillDoc();
  page.Line(50, 10, 60, 20, 0);
  Printer().EndDoc();
  const auto boxes = Read("next.pdf").Of(PdfMark::What::kFill);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_NEAR(boxes[0].x1, 50, 0.02);
}

TEST_F(PrintersTest, ABoxWithoutAnAreaPaintsNothing) {
  WriteTo("empty.pdf");
  Surface& page = Printer().Page();
  page.Scale().SetScaleMode(kMillimetres);
  page.Line(10, 10, 10, 20, 0);
  page.Line(10, 10, 20, 10, 0);
  Printer().EndDoc();
  EXPECT_TRUE(Read("empty.pdf").Of(PdfMark::What::kFill).empty());
}

// --- long jobs ----------------------------------------------------------------------------------

std::int64_t ResidentKilobytes() {
  std::ifstream statm("/proc/self/statm");
  std::int64_t size = 0, resident = 0;
  statm >> size >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void PrintSheets(int count) {
  Surface& page = Printer().Page();
  page.Scale().SetScaleMode(kMillimetres);
  const std::string logo = TestDataFolder() + "/pictures/hole.gif";
  for (int sheet = 0; sheet < count; ++sheet) {
    for (int cell = 0; cell < 14; ++cell) {
      page.Font = {"Arial", 10, false, false};
      page.CurrentX = 10;
      page.CurrentY = 20.0 * cell;
      page.Print("Label " + std::to_string(sheet * 14 + cell));
      page.Line(60, 20.0 * cell, 60.4, 20.0 * cell + 10, 0);
      page.PaintPicture(LoadPicture(logo), 80, 20.0 * cell, 12, 8);
    }
    Printer().NewPage();
  }
}

TEST_F(PrintersTest, MemoryDoesNotGrowWithThePages) {
  WriteTo("long.pdf");
  PrintSheets(600);  // as many texts as are kept at a time
  const std::int64_t before = ResidentKilobytes();
  PrintSheets(900);
  const std::int64_t growth = ResidentKilobytes() - before;
  EXPECT_LT(growth, 8 * 1024) << "kilobytes for 900 sheets of 14 labels";
  Printer().EndDoc();
}

}  // namespace
}  // namespace tagwright
