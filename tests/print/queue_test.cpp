// Jobs through a real print service: what the program's Print button sends arrives at the printer
// of its queue, and every label lies where the layout says.
#include <QPrinter>
#include <QPrinterInfo>
#include <array>
#include <cstdlib>
#include <fstream>

#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/files/files.h"
#include "print/print_fixture.h"
#include "print/queue_service.h"
#include "print/rendered_page.h"
#include "support/pdf_reader.h"

namespace tagwright {
namespace {

constexpr double kTolerance = 0.2;  // millimetres
constexpr double kBoxLeft = 5, kBoxTop = 6, kBoxWidth = 40, kBoxHeight = 12;

// One service for all tests of the process: the name of its socket is asked for only once.
QueueService& Service() {
  static QueueService service;
  return service;
}

// Before the program lists its printers: whatever an earlier test has done to the service.
class QueueReady {
 protected:
  QueueReady() {
    if (QueueService::Installed()) Service().Restore();
  }
};

class QueueTest : QueueReady, public PrintTest {
 protected:
  void SetUp() override {
    if (!QueueService::Installed()) GTEST_SKIP() << "no print service is installed (cups-daemon)";
  }

  // A black box at a known place of the label.
  static void AddBlackBox() {
    ObjectRecord& box = Add(kRectangle, kBoxLeft, kBoxTop, kBoxWidth, kBoxHeight);
    box.FillColor = 0;
  }

  static std::string Start(const std::string& file) {
    char start[4] = {};
    std::ifstream(file, std::ios::binary).read(start, sizeof start);
    return {start, sizeof start};
  }

  // PostScript as PDF, which the readers of tests know.
  static std::string AsPdf(const std::string& file) {
    const std::string pdf = file + ".pdf";
    const std::string command =
        "gs -q -dNOPAUSE -dBATCH -dSAFER -sDEVICE=pdfwrite '-sOutputFile=" + pdf + "' '" + file +
        "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return pdf;
  }
};

void ExpectBox(const RenderedPage& page, double left, double top, double right, double bottom) {
  constexpr double kAround = 3;  // millimetres, free of ink
  const auto across = page.AlongRow((top + bottom) / 2, left - kAround, right + kAround);
  const auto down = page.AlongColumn((left + right) / 2, top - kAround, bottom + kAround);
  EXPECT_NEAR(across.first, left, kTolerance);
  EXPECT_NEAR(across.last, right, kTolerance);
  EXPECT_NEAR(down.first, top, kTolerance);
  EXPECT_NEAR(down.last, bottom, kTolerance);
  EXPECT_GT(page.Ink(left + kTolerance, top + kTolerance, right - kTolerance, bottom - kTolerance),
            0.999);
}

void ExpectBoxOfLabel(const RenderedPage& page, double label_left, double label_top) {
  const double left = label_left + kBoxLeft, top = label_top + kBoxTop;
  ExpectBox(page, left, top, left + kBoxWidth, top + kBoxHeight);
}

// --- the list -----------------------------------------------------------------------------------

TEST_F(QueueTest, TheProgramListsEveryQueueAndPrintToPdfLast) {
  ComboBox& list = frmMain.cboPrinter;
  ASSERT_EQ(list.ListCount(), 3);
  EXPECT_EQ(list.List(0), "coarse");
  EXPECT_EQ(list.List(1), "margins");
  EXPECT_EQ(list.List(2), "Print to PDF");
}

TEST_F(QueueTest, AQueueHasItsOwnResolution) {
  for (const QueueModel& model : QueueModels()) {
    ChoosePrinter(model.name);
    Surface& page = Printer().Page();
    EXPECT_NEAR(page.ScaleX(25.4, kMillimetres, kPixels), model.pixels_per_inch, 1e-9);
  }
}

// What the toolkit knows of the queue's margins, so that the tests below are about something.
TEST_F(QueueTest, TheQueuesHaveDeadMarginsThatDiffer) {
  for (const QueueModel& model : QueueModels()) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(QString::fromStdString(model.name));
    QPrinter printer(info, QPrinter::HighResolution);
    const QPageLayout layout = printer.pageLayout();
    const QMarginsF dead = layout.minimumMargins();
    EXPECT_NEAR(dead.left(), 11, 0.5);
    EXPECT_NEAR(dead.bottom(), 40, 0.5);
    EXPECT_NEAR(dead.right(), 18, 0.5);
    EXPECT_NEAR(dead.top(), 20, 0.5);
  }
}

TEST_F(QueueTest, ThePageIsTheWholePaperWhateverTheQueueCannotPrintOn) {
  for (const QueueModel& model : QueueModels()) {
    ChoosePrinter(model.name);
    Surface& page = Printer().Page();
    page.Scale().SetScaleMode(kMillimetres);
    EXPECT_NEAR(page.ScaleWidth(), 210, 1e-9);
    EXPECT_NEAR(page.ScaleHeight(), 297, 1e-9);
  }
}

// --- places -------------------------------------------------------------------------------------

TEST_F(QueueTest, EveryLabelLiesWhereItsLayoutSays) {
  ChooseLayout("A4 14 per sheet");
  AddBlackBox();
  frmMain.mnuFilePrint.Press();
  for (const QueueModel& model : QueueModels()) {
    SCOPED_TRACE(model.name);
    Print(model.name);
    const std::string document = Service().Received(model.name);
    ASSERT_EQ(Start(document), model.language);
    const RenderedPage page(document);
    EXPECT_NEAR(page.Width(), 210, kTolerance);
    EXPECT_NEAR(page.Height(), 297, kTolerance);
    for (int label = 0; label < SheetOf14::kCells; ++label) {
      SCOPED_TRACE(label);
      ExpectBoxOfLabel(page, SheetOf14::LeftOf(label), SheetOf14::TopOf(label));
    }
  }
}

// The outermost millimetres lie within the dead margins: nothing is scaled or moved to avoid them,
// and a printer that reaches them prints them.
TEST_F(QueueTest, ALabelThatReachesIntoTheDeadMarginsStaysInPlace) {
  ChooseLayout("A4 1 per sheet");
  for (const double left : {0.0, 195.0}) {
    for (const double top : {0.0, 284.0}) Add(kRectangle, left, top, 4, 5).FillColor = 0;
  }
  frmMain.mnuFilePrint.Press();
  Print("margins");
  const RenderedPage page(Service().Received("margins"));
  for (const double left : {5.5, 200.5}) {
    for (const double top : {4.0, 288.0}) ExpectBox(page, left, top, left + 4, top + 5);
  }
}

// What the job says of it wins over what the queue is set to, which is to fit the page to its dead
// margins; a page that was fitted all the same would have its box elsewhere, and smaller.
TEST_F(QueueTest, AJobAsksNotToBeScaledAndIsNot) {
  ChooseLayout("A4 1 per sheet");
  constexpr double kRight = 195, kBottom = 284;  // of the label, which lies at 5.5 by 4
  Add(kRectangle, 0, 0, 4, 5).FillColor = 0;
  Add(kRectangle, kRight, kBottom, 4, 5).FillColor = 0;
  frmMain.mnuFilePrint.Press();
  for (const QueueModel& model : QueueModels()) {
    SCOPED_TRACE(model.name);
    Print(model.name);
    const RenderedPage page(Service().Received(model.name));
    EXPECT_EQ(Service().OptionOfLastJob("print-scaling"), "none");
    ExpectBox(page, 5.5, 4, 5.5 + 4, 4 + 5);
    ExpectBox(page, 5.5 + kRight, 4 + kBottom, 5.5 + kRight + 4, 4 + kBottom + 5);
  }
}

TEST_F(QueueTest, InchesAndLetterPaperArriveAsTheyAre) {
  frmMain.mnuUnitIn.Press();
  ChooseLayout("US 10 per Sheet");
  AddBlackBox();
  frmMain.mnuFilePrint.Press();
  Print("margins");
  const RenderedPage page(Service().Received("margins"));
  EXPECT_NEAR(page.Width(), 215.9, kTolerance);
  EXPECT_NEAR(page.Height(), 279.4, kTolerance);
  for (int col = 0; col < 2; ++col) {
    for (int row = 0; row < 5; ++row) {
      // The boxes show two decimals of an inch, and the job reads the boxes.
      ExpectBoxOfLabel(page, (0.16 + (4.00 + 0.19) * col) * 25.4, (0.50 + 2.00 * row) * 25.4);
    }
  }
}

// --- the device ---------------------------------------------------------------------------------

TEST_F(QueueTest, APenIsAsWideAsTheQueuesOwnPixels) {
  ChooseLayout("A4 2 per sheet");
  constexpr std::array<std::int16_t, 2> kPens = {1, 4};
  for (const std::int16_t pen : kPens) {
    ObjectRecord& frame = Add(kRectangle, 10 * pen, 10, 8, 8);
    frame.Param = pen;
    frame.FillColor = -1;
  }
  frmMain.mnuFilePrint.Press();
  for (const QueueModel& model : QueueModels()) {
    SCOPED_TRACE(model.name);
    Print(model.name);
    std::string document = Service().Received(model.name);
    if (model.language != "%PDF") document = AsPdf(document);
    std::vector<double> widths;
    for (const PdfMark& mark : ReadPdf(document).Of(PdfMark::What::kStroke)) {
      widths.push_back(mark.pen_width);
    }
    const double pixel = 25.4 / model.pixels_per_inch;
    ASSERT_EQ(widths.size(), 4u);  // two labels on the sheet
    EXPECT_NEAR(widths[0], pixel, 0.1 * pixel);
    EXPECT_NEAR(widths[1], 4 * pixel, 0.1 * pixel);
  }
}

// Chosen anew, moved away from or left at the end of the program: a job that nobody ends is
// dropped.
TEST_F(QueueTest, AJobKilledInTheMiddleOfAPageLeavesTheQueueEmpty) {
  const auto paint = [] {
    Printer().Page().Scale().SetScaleMode(kMillimetres);
    Printer().Page().Line(20, 20, 40, 30, 0);
  };
  ChoosePrinter("margins");
  paint();
  Printer().NewPage();
  paint();
  Printer().KillDoc();
  EXPECT_FALSE(Service().AnythingAt("margins"));
  paint();
  Printer().EndDoc();
  EXPECT_EQ(ReadPdf(Service().Received("margins")).count, 1) << "the next job is a job of its own";
}

// --- merge --------------------------------------------------------------------------------------

TEST_F(QueueTest, AMergeArrivesRowByRow) {
  constexpr int kRows = 33;  // two sheets and five labels
  std::string rows = "Name\r\n";
  for (int row = 0; row < kRows; ++row) rows += "Row-" + std::to_string(100 + row) + "\r\n";
  WriteFile(folder.File("rows.csv"), rows);
  ChooseLayout("A4 14 per sheet");
  OpenCommaText(folder.File("rows.csv"));
  AddField(0, 10, 10, 60, 12);
  frmMain.mnuFilePrint.Press();
  Print("margins");
  const PdfPages pages = ReadPdf(Service().Received("margins"));
  EXPECT_EQ(pages.count, 3);
  const std::vector<PdfMark> texts = pages.Of(PdfMark::What::kText);
  ASSERT_EQ(texts.size(), static_cast<std::size_t>(kRows));
  for (int row = 0; row < kRows; ++row) {
    const PdfMark& text = texts[static_cast<std::size_t>(row)];
    EXPECT_EQ(text.text, "Row-" + std::to_string(100 + row));
    EXPECT_EQ(text.page, SheetOf14::PageOf(row));
    EXPECT_NEAR(text.x1, SheetOf14::LeftOf(row) + 10, 0.5);  // the letter's own bearing
    EXPECT_NEAR(text.y1 - SheetOf14::TopOf(row), texts[0].y1 - SheetOf14::TopOf(0), kTolerance);
  }
}

// --- trouble ------------------------------------------------------------------------------------

class QueueTrouble : public QueueTest {
 protected:
  void SetUp() override {
    QueueTest::SetUp();
    if (IsSkipped()) return;
    ChooseLayout("A4 14 per sheet");
    SerialBarcodeType = -1;
    Add(kText, 5, 5, 60, 8).Text = "No [#SRNO]";
    frmMain.mnuFilePrint.Press();
    frmMain.cboPrinter.SetListIndex(1);
    ASSERT_EQ(Printer().DeviceName(), "margins");
  }
  // The queue's name stands in what the user is told, once.
  void ExpectToldOnce() {
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_NE(dialogs.messages[0].text.find("margins"), std::string::npos)
        << dialogs.messages[0].text;
  }
  void PrintWithoutService() {
    Service().Stop();
    frmMain.cmdPrint.Press();
    ExpectToldOnce();
    ExpectScreenRestored();
    EXPECT_EQ(SerialValue, 1001);
    Service().Start();
  }
  void ExpectScreenRestored() {
    EXPECT_EQ(DrawTarget, &frmMain.picBoard.Canvas());
    EXPECT_EQ(ZoomFactor, 1);
    EXPECT_FALSE(PreviewMode);
  }
};

TEST_F(QueueTrouble, AServiceThatIsGoneIsToldOnce) {
  PrintWithoutService();
  frmMain.cmdPrint.Press();
  EXPECT_EQ(dialogs.messages.size(), 1u) << "the next job is a job of its own";
  EXPECT_EQ(ReadPdf(Service().Received("margins")).count, 1);
}

TEST_F(QueueTrouble, AQueueThatRefusesIsToldOnce) {
  Service().Refuse("margins");
  frmMain.cmdPrint.Press();
  ExpectToldOnce();
  ExpectScreenRestored();
  EXPECT_EQ(SerialValue, 1001 + SheetOf14::kCells) << "stays where the cells have left it";
  EXPECT_FALSE(Service().AnythingAt("margins"));
}

TEST_F(QueueTrouble, AQueueThatWasTakenAwayIsToldOnce) {
  Service().Remove("margins");
  frmMain.cmdPrint.Press();
  ExpectToldOnce();
  ExpectScreenRestored();
  EXPECT_EQ(SerialValue, 1001);
}

// The queue shown at the start, of which no row was chosen: nothing of it is open yet.
TEST_F(QueueTrouble, AServiceThatIsGoneBeforeTheFirstJobIsToldOnce) {
  ResetPrinter();
  ExpectPrinter("margins");
  PrintWithoutService();
}

}  // namespace
}  // namespace tagwright
