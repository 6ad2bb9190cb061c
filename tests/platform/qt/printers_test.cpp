// The printers of the toolkit, above all the one that writes files.
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "paint_environment.h"
#include "platform/fault.h"
#include "platform/files.h"
#include "platform/qt/printer_qt.h"
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
