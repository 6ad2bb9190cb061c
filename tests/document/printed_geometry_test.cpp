// Labels printed to a file through the painter, read back by an independent program: what the
// record says in millimetres stands on the paper in millimetres, and a text is as wide on every
// zoom of the board as on paper.

#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <utility>

#include "document/document_support.h"
#include "document/redraw.h"
#include "platform/painting/picture.h"
#include "platform/painting/printer.h"
#include "qt/painting/image_surface.h"
#include "qt/printing/printers.h"
#include "qt/services/paint_services.h"
#include "support/pdf_reader.h"

namespace tagwright {
namespace {

constexpr double kBoxTolerance = 0.02;      // millimetres
constexpr double kBaselineTolerance = 0.1;  // likewise
constexpr double kPrinterPixel = 25.4 / 600;

// The metrics of "Arial" and its metric twin, in units of an em of 2048.
constexpr double kAscent = 1854.0 / 2048;
constexpr double kDescent = 434.0 / 2048;
constexpr double kCapital = 1409.0 / 2048;

constexpr double Millimetres(double points) { return points * 25.4 / 72; }

// A picture of one red pixel.
const std::string kPixel(
    "GIF89a\x01\0\x01\0\x80\0\0\xFF\0\0\0\0\0,\0\0\0\0\x01\0\x01\0\0\x02\x02"
    "D\x01\0;",
    35);

class Toolkit : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QGuiApplication>(argc_, argv_); }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[10] = "tagwright";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};
const auto* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

class PrintedGeometryTest : public ProgramTest {
 protected:
  PrintedGeometryTest() {
    InstallPaintServices();
    ChoosePrinter(kPrintToPdf);
    Printer().Page().Scale().SetScaleMode(kMillimetres);
    dialogs.files = {Pdf()};
    LabelWidth = 100;
    LabelHeight = 50;
    ReadyBoard();
  }
  ~PrintedGeometryTest() override {
    ResetPrinter();
    SetFonts(nullptr);
    SetPictureReader(nullptr);
  }

  std::string Pdf() const { return folder.File("printed.pdf"); }

  // Prints one label for each offset on one page.
  PdfPages Print(const std::vector<std::pair<double, double>>& offsets) {
    for (const auto& [x, y] : offsets) RedrawBoard(x, y, true);
    Printer().EndDoc();
    DrawTarget = &frmMain.picBoard.Canvas();
    return ReadPdf(Pdf());
  }

  static void ExpectBox(const PdfMark& mark, double left, double top, double right, double bottom) {
    EXPECT_NEAR(mark.x1, left, kBoxTolerance);
    EXPECT_NEAR(mark.y1, top, kBoxTolerance);
    EXPECT_NEAR(mark.x2, right, kBoxTolerance);
    EXPECT_NEAR(mark.y2, bottom, kBoxTolerance);
  }
};

// The corner of a sheet, its middle with fractions, and the last cell of a sheet of small labels.
const std::vector<std::pair<double, double>> kOffsets = {{0, 0}, {55.5, 120.25}, {99.06, 233.17}};

TEST_F(PrintedGeometryTest, EveryKindOfShapeStandsWhereItsRecordSays) {
  ObjectRecord shape = ShapeObject(kRectangle, 10, 5, 30.5, 20.25);
  shape.FillColor = 0xFF;
  for (const Kind kind : {kRectangle, kRoundedRectangle, kEllipse}) {
    shape.ObjType = kind;
    Add(shape);
  }
  const PdfPages page = Print(kOffsets);
  const auto fills = page.Of(PdfMark::What::kFill), strokes = page.Of(PdfMark::What::kStroke);
  ASSERT_EQ(fills.size(), 3 * kOffsets.size());
  ASSERT_EQ(strokes.size(), 3 * kOffsets.size());
  for (std::size_t i = 0; i < fills.size(); ++i) {
    const auto& [x, y] = kOffsets[i / 3];
    SCOPED_TRACE(i);
    ExpectBox(fills[i], x + 10, y + 5, x + 40.5, y + 25.25);
    ExpectBox(strokes[i], x + 10, y + 5, x + 40.5, y + 25.25);
  }
}

TEST_F(PrintedGeometryTest, LinesRunAlongTheSideOfTheirBoxAsThickAsTheirPixels) {
  ObjectRecord line = ShapeObject(kLine, 10, 5, 60, 1);
  line.Param = 4;
  Add(line);
  std::swap(line.Width, line.Height);
  Add(line);
  const auto page = Print(kOffsets).marks;
  ASSERT_EQ(page.size(), 2 * kOffsets.size());
  for (std::size_t i = 0; i < kOffsets.size(); ++i) {
    const auto& [x, y] = kOffsets[i];
    ExpectBox(page[2 * i], x + 10, y + 5, x + 70, y + 5);
    ExpectBox(page[2 * i + 1], x + 10, y + 5, x + 10, y + 65);
    EXPECT_NEAR(page[2 * i].pen_width, 4 * kPrinterPixel, 0.001);
  }
}

TEST_F(PrintedGeometryTest, PicturesFillTheirBox) {
  ObjectRecord picture = PictureObject(folder.File("red.gif"));
  WriteFile(folder.File("red.gif"), kPixel);
  picture.Left = 33.3f;
  picture.Width = 12.7;
  Add(picture);
  const auto pictures = Print(kOffsets).Of(PdfMark::What::kPicture);
  ASSERT_EQ(pictures.size(), kOffsets.size());
  for (std::size_t i = 0; i < kOffsets.size(); ++i) {
    const auto& [x, y] = kOffsets[i];
    ExpectBox(pictures[i], x + 33.3, y + 2, x + 46, y + 22);
  }
}

TEST_F(PrintedGeometryTest, BaselinesLieAnAscentBelowTheTopAndALineHeightApart) {
  ObjectRecord text = TextObject("Hamburg\r\nxyz", 10, 15);
  text.FontSize = 12;
  Add(text);
  const auto lines = Print(kOffsets).Of(PdfMark::What::kText);
  ASSERT_EQ(lines.size(), 2 * kOffsets.size());
  for (std::size_t i = 0; i < kOffsets.size(); ++i) {
    const auto& [x, y] = kOffsets[i];
    const double first = y + 15 + Millimetres(12 * kAscent);
    EXPECT_EQ(lines[2 * i].text, "Hamburg");
    EXPECT_NEAR(lines[2 * i].y1, first, kBaselineTolerance);
    EXPECT_NEAR(lines[2 * i].x1, x + 10, kBaselineTolerance);
    EXPECT_EQ(lines[2 * i + 1].text, "xyz");
    EXPECT_NEAR(lines[2 * i + 1].y1, first + Millimetres(12 * (kAscent + kDescent)),
                kBaselineTolerance);
  }
}

TEST_F(PrintedGeometryTest, AlignedLinesEndAndCentreWhereTheBoxSays) {
  ObjectRecord text = TextObject("Right", 10, 5);
  text.FontSize = 18;
  text.Width = 60;
  text.Param = 1;
  Add(text);
  text.Text = "Centre";
  text.Param = 2;
  Add(text);
  const auto lines = Print(kOffsets).Of(PdfMark::What::kText);
  ASSERT_EQ(lines.size(), 2 * kOffsets.size());
  for (std::size_t i = 0; i < kOffsets.size(); ++i) {
    const double x = kOffsets[i].first;
    EXPECT_NEAR(lines[2 * i].x2, x + 70, kBaselineTolerance);
    EXPECT_NEAR((lines[2 * i + 1].x1 + lines[2 * i + 1].x2) / 2, x + 40, kBaselineTolerance);
  }
}

// --- the board beside the paper -----------------------------------------------------------------

constexpr int kDots = 450;  // an inch, of the rendered page

// Where a picture is dark, in millimetres.
struct Ink {
  double left, top, right, bottom;
  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
};

Ink InkOf(const QImage& image, double pixels_per_millimetre, int first_row, int last_row) {
  constexpr int kDark = 128;  // half covered by black
  int left = image.width(), right = -1, top = image.height(), bottom = -1;
  for (int y = first_row; y < std::min(last_row, image.height()); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) >= kDark) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  return {left / pixels_per_millimetre, top / pixels_per_millimetre,
          (right + 1) / pixels_per_millimetre, (bottom + 1) / pixels_per_millimetre};
}

const std::vector<std::string> kStrings = {"Hamburgefonstiv",         "THE QUICK BROWN FOX",
                                           "jumps over the lazy dog", "0123456789012345",
                                           "Iil|1!.,:;'Iil|1",        "WWWMMMWWWMMM",
                                           "Straße Größe Äpfel",      "12,95 EUR / 100 g",
                                           "AVAVAVATATATATA",         "a"};

class TextTruthTest : public PrintedGeometryTest {
 protected:
  static ObjectRecord Sample(const std::string& text, double points) {
    ObjectRecord record = TextObject(text, 5, 2);
    record.FontSize = points;
    return record;
  }

  // What one text object paints on a board at `zoom`, in millimetres of label. The board shows 120
  // by 45 millimetres, on a screen fine enough to measure by its pixels.
  Ink OnBoard(const ObjectRecord& record, double zoom) {
    constexpr double kWidth = 120, kHeight = 45, kFine = 8;
    LabelWidth = kWidth;
    LabelHeight = kHeight;
    ZoomFactor = zoom;
    const double ratio = std::max(1.0, kFine / zoom);
    auto canvas = std::make_unique<ImageSurface>(ratio);
    const ImageSurface& surface = *canvas;
    frmMain.picBoard.SetCanvas(std::move(canvas));
    ReadyBoard(kWidth * zoom, kHeight * zoom);
    ObjectUB = -1;
    Add(record);
    RedrawBoard();
    return InkOf(surface.Image(), kPixelsPerMillimetre * zoom * ratio, 0, surface.Image().height());
  }

  // The first page as an independent program shows it.
  QImage Rendered(int dots) {
    const std::string png = folder.File("printed.png");
    const std::string command = "mutool draw -q -c gray -r " + std::to_string(dots) + " -o '" +
                                png + "' '" + Pdf() + "' 1 2>/dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    return QImage(QString::fromStdString(png));
  }

  // The same on paper, rendered by the independent program.
  std::vector<Ink> OnPaper(const std::vector<ObjectRecord>& records, double pitch, int dots) {
    LabelWidth = 210;
    LabelHeight = 297;
    ObjectUB = -1;
    for (std::size_t i = 0; i < records.size(); ++i) {
      Add(records[i]);
      ObjectAt(ObjectUB).Top += static_cast<float>(pitch * static_cast<double>(i));
    }
    Print({{0, 0}});
    const QImage image = Rendered(dots);
    std::vector<Ink> inks;
    for (std::size_t i = 0; i < records.size(); ++i) {
      const double top = pitch * static_cast<double>(i);
      inks.push_back(InkOf(image, dots / 25.4, static_cast<int>(top * dots / 25.4),
                           static_cast<int>((top + pitch) * dots / 25.4)));
    }
    return inks;
  }
};

TEST_F(TextTruthTest, TenStringsAreAsWideOnEveryZoomOfTheBoardAsOnPaper) {
  std::vector<ObjectRecord> records;
  for (const std::string& text : kStrings) records.push_back(Sample(text, text == "a" ? 72 : 26));
  const auto paper = OnPaper(records, 29, kDots);
  for (std::size_t i = 0; i < records.size(); ++i) {
    for (const double zoom : {0.5, 1.0, 2.0, 7.5}) {
      // Half a per cent, and a pixel of either picture at the two edges.
      const double pixels = 25.4 / kDots + 1 / (kPixelsPerMillimetre * 8);
      EXPECT_NEAR(OnBoard(records[i], zoom).Width(), paper[i].Width(),
                  0.005 * paper[i].Width() + pixels)
          << kStrings[i] << " at " << zoom;
    }
  }
}

TEST_F(TextTruthTest, A96PointCapitalIsAsHighAsItsFontSays) {
  const ObjectRecord capital = Sample("H", 96);
  const double height = Millimetres(96 * kCapital);  // 23.3
  const double top = 2 + Millimetres(96 * (kAscent - kCapital));
  const Ink paper = OnPaper({capital}, 60, kDots).at(0);
  EXPECT_NEAR(paper.Height(), height, 0.01 * height);
  EXPECT_NEAR(paper.top, top, kBaselineTolerance);
  for (const double zoom : {0.5, 1.0, 2.0, 7.5}) {
    EXPECT_NEAR(OnBoard(capital, zoom).Height(), height, 0.01 * height) << zoom;
    EXPECT_NEAR(OnBoard(capital, zoom).top, top, kBaselineTolerance) << zoom;
  }
}

}  // namespace
}  // namespace tagwright
