// A page with every kind of mark, printed and read back by an independent tool: boxes to 0.02 mm,
// baselines of text to 0.1 mm, at the sheet's corner and in the middle of it.
#include <QPdfWriter>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "paint_environment.h"
#include "platform/files/files.h"
#include "qt/pictures/pictures.h"
#include "support/pdf_reader.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

using What = PdfMark::What;

constexpr double kBoxes = 0.02;  // millimetres
constexpr double kBaselines = 0.1;
constexpr double kPixel = 25.4 / 600;

// What one cell of a sheet paints, at an offset in millimetres.
void PaintCell(Surface& page, double x, double y) {
  const auto px = [&](double mm) { return page.ScaleX(mm, kMillimetres, kPixels); };
  page.SelectObject(CreatePen(kPenSolid, 3, Rgb(255, 0, 0)));
  page.SelectObject(CreateSolidBrush(Rgb(0, 255, 0)));
  page.Rectangle(px(x + 1.11), px(y + 1.22), px(x + 21.33), px(y + 11.44));
  page.SelectObject(CreatePen(kPenNull, 0, 0));
  page.RoundRect(px(x + 25.5), px(y + 1.22), px(x + 45.55), px(y + 11.44), 12, 12);
  page.SelectObject(CreatePen(kPenSolid, 1, Rgb(0, 0, 255)));
  page.SelectObject(NullBrush());
  page.Ellipse(px(x + 1.11), px(y + 15.5), px(x + 21.33), px(y + 25.75));
  page.MoveToEx(px(x + 25.5), px(y + 15.5));
  page.LineTo(px(x + 45.5), px(y + 15.5));
  page.MoveToEx(px(x + 25.5), px(y + 17.5));
  page.LineTo(px(x + 25.5), px(y + 25.5));
  page.Line(x + 30.1, y + 17.5, x + 30.43, y + 25.5, Rgb(1, 1, 1));
  page.Line(x + 30.76, y + 17.5, x + 31.42, y + 25.5, Rgb(1, 1, 1));
  page.Font = {"Arial", 10.5, false, false};
  page.ForeColor = Rgb(10, 20, 30);
  page.CurrentX = x + 5;
  page.CurrentY = y + 30;
  page.Print("Plain text, 12,50");
  page.Font = {"Times New Roman", 24, true, true};
  page.CurrentX = x + 5;
  page.Print("Grüße");
  page.PaintPicture(LoadPicture(TestDataFolder() + "/pictures/hole.gif"), x + 33.3, y + 17.7, 9.9,
                    6.6);
  page.PaintPicture(LoadPicture(TestDataFolder() + "/pictures/placeable.wmf"), x + 50, y + 5, 30,
                    20);
}

class PageTest : public PaintTest {
 protected:
  PageTest() {
    SetDialogs(&dialogs);
    dialogs.files.push_back(folder.File("page.pdf"));
    ChoosePrinter("Print to PDF");
    Printer().Page().Scale().SetScaleMode(kMillimetres);
  }
  ~PageTest() override {
    ResetPrinter();
    SetDialogs(nullptr);
  }
  PdfPages PrintAt(double x, double y) {
    PaintCell(Printer().Page(), x, y);
    Printer().EndDoc();
    return ReadPdf(folder.File("page.pdf"));
  }
  TempFolder folder;
  ScriptedDialogs dialogs;
};

void ExpectBox(const PdfMark& mark, double x1, double y1, double x2, double y2) {
  EXPECT_NEAR(mark.x1, x1, kBoxes);
  EXPECT_NEAR(mark.y1, y1, kBoxes);
  EXPECT_NEAR(mark.x2, x2, kBoxes);
  EXPECT_NEAR(mark.y2, y2, kBoxes);
}

std::vector<PdfMark> OfColor(const std::vector<PdfMark>& marks, Color color) {
  std::vector<PdfMark> found;
  std::copy_if(marks.begin(), marks.end(), std::back_inserter(found),
               [&](const PdfMark& mark) { return mark.color == color; });
  return found;
}

void ExpectShapes(const PdfPages& pages, double x, double y) {
  const std::vector<PdfMark> fills = OfColor(pages.Of(What::kFill), Rgb(0, 255, 0));
  ASSERT_EQ(fills.size(), 2u);
  ExpectBox(fills[0], x + 1.11, y + 1.22, x + 21.33, y + 11.44);
  ExpectBox(fills[1], x + 25.5, y + 1.22, x + 45.55, y + 11.44);
  EXPECT_FALSE(fills[0].has_curves);
  EXPECT_TRUE(fills[1].has_curves);
  const std::vector<PdfMark> frames = OfColor(pages.Of(What::kStroke), Rgb(255, 0, 0));
  ASSERT_EQ(frames.size(), 1u);  // the rounded rectangle has no pen
  ExpectBox(frames[0], x + 1.11, y + 1.22, x + 21.33, y + 11.44);
  EXPECT_NEAR(frames[0].pen_width, 3 * kPixel, 0.001);
}

void ExpectLines(const PdfPages& pages, double x, double y) {
  const std::vector<PdfMark> lines = OfColor(pages.Of(What::kStroke), Rgb(0, 0, 255));
  ASSERT_EQ(lines.size(), 3u);
  ExpectBox(lines[0], x + 1.11, y + 15.5, x + 21.33, y + 25.75);
  EXPECT_TRUE(lines[0].has_curves);
  ExpectBox(lines[1], x + 25.5, y + 15.5, x + 45.5, y + 15.5);
  ExpectBox(lines[2], x + 25.5, y + 17.5, x + 25.5, y + 25.5);
  EXPECT_NEAR(lines[1].pen_width, kPixel, 0.001);
}

void ExpectBars(const PdfPages& pages, double x, double y) {
  const std::vector<PdfMark> bars = OfColor(pages.Of(What::kFill), Rgb(1, 1, 1));
  ASSERT_EQ(bars.size(), 2u);
  ExpectBox(bars[0], x + 30.1, y + 17.5, x + 30.43, y + 25.5);
  EXPECT_NEAR(bars[0].x2 - bars[0].x1, 0.33, 0.002);
  EXPECT_NEAR(bars[1].x2 - bars[1].x1, 0.66, 0.002);
}

void ExpectTexts(const PdfPages& pages, double x, double y) {
  const FontSpec plain{"Arial", 10.5, false, false}, large{"Times New Roman", 24, true, true};
  const double point = 25.4 / 72;
  const PdfMark first = pages.Text("Plain text, 12,50");
  EXPECT_NEAR(first.x1, x + 5, kBoxes);
  EXPECT_NEAR(first.y1, y + 30 + Fonts().Ascent(plain) * point, kBaselines);
  EXPECT_EQ(first.color, Rgb(10, 20, 30));
  const double line = (Fonts().Ascent(plain) + Fonts().Descent(plain)) * point;
  const PdfMark second = pages.Text("Grüße");
  EXPECT_NEAR(second.y1, y + 30 + line + Fonts().Ascent(large) * point, kBaselines);
  EXPECT_NEAR(second.font_size, 24, 0.01);
  EXPECT_NE(second.font.find("BoldItalic"), std::string::npos) << second.font;
}

void ExpectPictures(const PdfPages& pages, double x, double y) {
  const std::vector<PdfMark> pictures = pages.Of(What::kPicture);
  ASSERT_EQ(pictures.size(), 1u);  // the metafile is no picture of pixels
  ExpectBox(pictures[0], x + 33.3, y + 17.7, x + 43.2, y + 24.3);
  EXPECT_EQ(pictures[0].pixel_width, 6);
  EXPECT_EQ(pictures[0].pixel_height, 4);
  const std::vector<PdfMark> drawn = OfColor(pages.Of(What::kFill), Rgb(255, 0, 0));
  ASSERT_EQ(drawn.size(), 1u);
  ExpectBox(drawn[0], x + 50, y + 5, x + 65, y + 25);
}

TEST_F(PageTest, EverythingLiesWhereItIsToldAtEveryPlaceOfTheSheet) {
  for (const auto& [x, y] : {std::pair{0.0, 0.0}, {105.3, 148.7}, {117.25, 239.9}}) {
    SCOPED_TRACE(testing::Message() << "at " << x << ", " << y);
    dialogs.files.assign(1, folder.File("page.pdf"));
    const PdfPages pages = PrintAt(x, y);
    EXPECT_EQ(pages.count, 1);
    ExpectShapes(pages, x, y);
    ExpectLines(pages, x, y);
    ExpectBars(pages, x, y);
    ExpectTexts(pages, x, y);
    ExpectPictures(pages, x, y);
  }
}

TEST_F(PageTest, TheMaskingModeIsACopyOnPaper) {
  Surface& page = Printer().Page();
  page.Line(10, 10, 50, 50, Rgb(0xF0, 0x0F, 0xFF));
  page.DrawMode = kMaskPen;
  page.Line(20, 20, 40, 40, Rgb(0x3C, 0x3C, 0));
  Printer().EndDoc();
  const PdfPages pages = ReadPdf(folder.File("page.pdf"));
  ASSERT_EQ(pages.Of(What::kFill).size(), 2u);
  EXPECT_EQ(pages.Of(What::kFill)[1].color, Rgb(0x3C, 0x3C, 0));
}

TEST_F(PageTest, FontsAreEmbedded) {
  PrintAt(0, 0);
  std::ifstream file(folder.File("page.pdf"), std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(file)), {});
  EXPECT_NE(bytes.find("/FontFile2"), std::string::npos);
}

// The cells of a sheet load the same file anew, and the document holds it once.
TEST_F(PageTest, APictureThatRepeatsIsStoredOnce) {
  const std::string path = TestDataFolder() + "/pictures/turned-300dpi.jpg";
  for (int i = 0; i < 50; ++i) Printer().Page().PaintPicture(LoadPicture(path), i, i, 10, 10);
  Printer().EndDoc();
  std::ifstream file(folder.File("page.pdf"), std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(file)), {});
  std::size_t images = 0;
  for (std::size_t at = 0; (at = bytes.find("/Subtype /Image", at)) != std::string::npos; ++at) {
    ++images;
  }
  EXPECT_EQ(images, 1u);
  EXPECT_EQ(ReadPdf(folder.File("page.pdf")).Of(What::kPicture).size(), 50u);
}

TEST_F(PageTest, WhatIsToldFarOutsideThePageDoesNoHarm) {
  Surface& page = Printer().Page();
  page.Line(-1e30, -1e30, 1e30, 1e30, 0);
  page.Ellipse(-1e300, 0, 1e300, 5);
  page.Font.Size = 1e30;
  page.Print("W");
  Printer().EndDoc();
  EXPECT_EQ(ReadPdf(folder.File("page.pdf")).count, 1);
}

}  // namespace
}  // namespace tagwright
