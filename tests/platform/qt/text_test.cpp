// Text is as wide and as high as its font says, on every device and at every zoom.
#include <QFont>
#include <QPdfWriter>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "paint_environment.h"
#include "qt/fonts/shaping.h"
#include "qt/fonts/text_painting.h"
#include "qt/painting/image_surface.h"
#include "qt/painting/page_surface.h"
#include "support/pdf_reader.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

struct Sample {
  const char* text;
  FontSpec font;
};

const std::vector<Sample> kSamples = {
    {"Hamburgefonstiv", {"Arial", 11, false, false}},
    {"The quick brown fox jumps over the lazy dog", {"Arial", 8.25, false, false}},
    {"AVATAR To. WAVE", {"Arial", 9, true, false}},
    {"0123456789", {"Arial", 7, false, false}},
    {"Grüße aus Köln: 12,50 €", {"Times New Roman", 10, false, true}},
    {"iiiiiiiiii", {"Arial", 6, false, false}},
    {"WWWWWWWWWW", {"Times New Roman", 12, true, true}},
    {"fixed pitch, item 4711", {"Courier New", 9.75, false, false}},
    {"Price", {"Arial", 36, true, false}},
    {"X", {"Times New Roman", 72, false, false}},
};

constexpr double kOneHalfPercent = 0.005;

double ExpectedMillimetres(const Sample& sample) {
  return Fonts().Width(sample.text, sample.font) * kMillimetresPerInch / 72;
}

// The first and last column that has ink, in whole pixels.
struct Columns {
  int first = -1, last = -1;
  double Width() const { return last - first + 1; }
};

Columns InkColumns(const QImage& image) {
  Columns ink;
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      if (Ink(image, x, y) < 0.15) continue;
      if (ink.first < 0) ink.first = x;
      ink.last = x;
    }
  }
  return ink;
}

// A board of 90 by 36 mm of label at 100 %, zoomed as the program does it.
struct Board {
  explicit Board(double zoom, double ratio = 1) : surface(ratio) {
    surface.Scale().Resize(90 * zoom * kTwipsPerMillimetre, 36 * zoom * kTwipsPerMillimetre);
    surface.Scale().SetScaleWidth(90);
    surface.Scale().SetScaleHeight(36);
    surface.Cls();
  }
  ImageSurface surface;
};

using TextTest = PaintTest;

// --- widths -------------------------------------------------------------------------------------

TEST_F(TextTest, TenStringsMeasureTheSameOnPagesOfEveryResolution) {
  for (const double resolution : {300.0, 600.0, 1200.0}) {
    RecordingSurface page(12000, 17000, resolution);
    page.Scale().SetScaleMode(kMillimetres);
    for (const Sample& sample : kSamples) {
      page.Font = sample.font;
      const double expected = ExpectedMillimetres(sample);
      EXPECT_NEAR(page.TextWidth(sample.text), expected, expected * kOneHalfPercent) << sample.text;
    }
  }
}

TEST_F(TextTest, TenStringsMeasureTheSameOnTheBoardAtEveryZoom) {
  for (const double zoom : {0.5, 1.0, 2.0, 7.5}) {
    Board board(zoom);
    for (const Sample& sample : kSamples) {
      board.surface.Font = sample.font;
      board.surface.Font.Size *= zoom;
      const double expected = ExpectedMillimetres(sample);
      EXPECT_NEAR(board.surface.TextWidth(sample.text), expected, expected * kOneHalfPercent)
          << sample.text << " at " << zoom;
    }
  }
}

// Plain characters are shaped one by one and kept; any other among them has the line shaped as a
// whole. Both give the same, or a character more would move all before it.
TEST_F(TextTest, PlainTextIsShapedAsItIsInOtherCompany) {
  const std::string other = "\u2026";  // an ellipsis
  for (const Sample& sample : kSamples) {
    const QList<QPointF> alone = ShapeText(sample.text, sample.font).runs.at(0).positions();
    const double width = Fonts().Width(sample.text, sample.font);
    const QList<QPointF> joined =
        ShapeText(sample.text + other, sample.font).runs.at(0).positions();
    ASSERT_LE(alone.size(), joined.size()) << sample.text;
    for (qsizetype i = 0; i < alone.size(); ++i) {
      EXPECT_NEAR(joined[i].x(), alone[i].x(), 0.1) << sample.text << ", mark " << i;
    }
    EXPECT_NEAR(Fonts().Width(sample.text + other, sample.font),
                width + Fonts().Width(other, sample.font), width / 1000)
        << sample.text;
  }
}

// Every alphabet of the plain ones, and what only looks like them: marks are no letters.
TEST_F(TextTest, MarksJoinTheLetterBeforeThem) {
  const FontSpec font{"DejaVu Sans", 10, false, false};
  EXPECT_GT(Fonts().Width("\u0416\u03A9\u00C5", font), Fonts().Width("\u0416\u03A9", font));
  EXPECT_NEAR(Fonts().Width("e\u0301", font), Fonts().Width("e", font), 0.01);
  EXPECT_NEAR(Fonts().Width("a\u00A0b", font), Fonts().Width("a b", font), 1e-9);
}

// A page of the given resolution, written and read back.
PdfPages PrintSamples(const std::string& path, int resolution) {
  QPdfWriter writer(QString::fromStdString(path));
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
  writer.setResolution(resolution);
  QPainter painter(&writer);
  PageSurface page(resolution, [&]() -> QPainter& { return painter; });
  page.Scale().Resize(210 * kTwipsPerMillimetre, 297 * kTwipsPerMillimetre);
  page.Scale().SetScaleMode(kMillimetres);
  double y = 10;
  for (const Sample& sample : kSamples) {
    page.Font = sample.font;
    page.CurrentX = 20;
    page.CurrentY = y;
    page.Print(sample.text);
    y = page.CurrentY + 3;
  }
  painter.end();
  return ReadPdf(path);
}

TEST_F(TextTest, TenStringsPrintAsWideAsTheyMeasure) {
  TempFolder folder;
  for (const int resolution : {300, 600, 1200}) {
    const PdfPages pages = PrintSamples(folder.File("page.pdf"), resolution);
    for (const Sample& sample : kSamples) {
      const PdfMark text = pages.Text(sample.text);
      const double expected = ExpectedMillimetres(sample);
      EXPECT_NEAR(text.x1, 20, 0.05) << sample.text << " at " << resolution;
      EXPECT_NEAR(text.x2 - text.x1, expected, expected * kOneHalfPercent)
          << sample.text << " at " << resolution;
      EXPECT_NEAR(text.font_size, sample.font.Size, sample.font.Size * kOneHalfPercent);
    }
  }
}

// What the eye sees agrees with the measure too: to half a percent and one pixel of the screen.
TEST_F(TextTest, TenStringsShowAsWideOnTheBoardAtEveryZoom) {
  const double reference_zoom = 7.5;
  for (const Sample& sample : kSamples) {
    const auto ink = [&](double zoom, double ratio) {
      Board board(zoom, ratio);
      board.surface.Font = sample.font;
      board.surface.Font.Size *= zoom;
      board.surface.CurrentX = 3;
      board.surface.CurrentY = 1;
      board.surface.Print(sample.text);
      return InkColumns(board.surface.Image()).Width() / zoom / ratio;
    };
    const double reference = ink(reference_zoom, 1);
    for (const double zoom : {0.5, 1.0, 2.0}) {
      EXPECT_NEAR(ink(zoom, 1), reference, reference * kOneHalfPercent + 1.5 / zoom)
          << sample.text << " at " << zoom;
    }
    EXPECT_NEAR(ink(1, 1.5), reference, reference * kOneHalfPercent + 1) << sample.text;
  }
}

// --- height -------------------------------------------------------------------------------------

// What the font file itself says of its capitals, as a part of the size.
double CapitalHeight(const FontSpec& font) {
  const QRawFont raw = ShapeText("H", font).runs.first().rawFont();
  const QByteArray metrics = raw.fontTable("OS/2");
  constexpr int kCapitals = 88;
  const auto byte = [&](int at) { return static_cast<unsigned char>(metrics[at]); };
  return (byte(kCapitals) << 8 | byte(kCapitals + 1)) / raw.unitsPerEm();
}

// The height of the left stem of a capital H, with grey pixels counted in part.
double StemHeight(const QImage& image) {
  const int middle = InkColumns(image).first + 2;
  double height = 0;
  for (int y = 0; y < image.height(); ++y) height += Ink(image, middle, y);
  return height;
}

TEST_F(TextTest, A96PointCapitalIsAsHighAsItsFontSays) {
  const FontSpec font{"Arial", 96, false, false};
  ASSERT_GT(CapitalHeight(font), 0.6);
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    for (const double zoom : {0.5, 1.0, 2.0, 7.5}) {
      Board board(zoom, ratio);
      board.surface.Font = font;
      board.surface.Font.Size *= zoom;
      board.surface.CurrentX = 3;
      board.surface.CurrentY = -3;
      board.surface.Print("H");
      const double expected = CapitalHeight(font) * font.Size * zoom * ratio * 96 / 72;
      EXPECT_NEAR(StemHeight(board.surface.Image()), expected, expected * 0.01)
          << "zoom " << zoom << " ratio " << ratio;
    }
  }
}

TEST_F(TextTest, ALineIsAscentAndDescentWithoutLeading) {
  const FontSpec arial{"Arial", 100, false, false};
  EXPECT_NEAR(Fonts().Ascent(arial), 90.5, 0.3);
  EXPECT_NEAR(Fonts().Descent(arial), 21.2, 0.3);
}

TEST_F(TextTest, MeasuresAreLinearInTheSize) {
  const FontSpec one{"Arial", 1, false, false}, large{"Arial", 731, false, false};
  EXPECT_NEAR(Fonts().Width("Linear", one) * 731, Fonts().Width("Linear", large), 1e-6);
  EXPECT_NEAR(Fonts().Ascent(one) * 731, Fonts().Ascent(large), 1e-6);
}

// --- families -----------------------------------------------------------------------------------

// Advance widths of the metric family, in 2048ths.
TEST_F(TextTest, ArialResolvesToItsMetricTwin) {
  const double hello = (1479 + 1139 + 455 + 455 + 1139) / 2048.0;
  EXPECT_NEAR(Fonts().Width("Hello", {"Arial", 100, false, false}), hello * 100, 0.1);
  const double bold = (1479 + 1139 + 569 + 569 + 1251) / 2048.0;
  EXPECT_NEAR(Fonts().Width("Hello", {"Arial", 100, true, false}), bold * 100, 0.1);
}

TEST_F(TextTest, KerningIsOff) {
  const FontSpec arial{"Arial", 100, false, false};
  EXPECT_NEAR(Fonts().Width("AV", arial), Fonts().Width("A", arial) + Fonts().Width("V", arial),
              0.01);
}

TEST_F(TextTest, BlanksCountWhereverTheyStand) {
  const FontSpec arial{"Arial", 100, false, false};
  const double blank = Fonts().Width(" ", arial);
  EXPECT_NEAR(blank, 27.8, 0.1);
  EXPECT_NEAR(Fonts().Width(" a ", arial), Fonts().Width("a", arial) + 2 * blank, 0.01);
  EXPECT_NEAR(Fonts().Width("a\tb", arial), Fonts().Width("a b", arial), 0.01);
}

TEST_F(TextTest, AnEmptyOrUnknownFamilyFallsBackToASansSerif) {
  for (const char* name : {"", "No Such Family 4711"}) {
    const FontSpec font{name, 20, false, false};
    EXPECT_GT(Fonts().Width("iii", font), 0) << name;
    EXPECT_GT(Fonts().Width("WWW", font), 2 * Fonts().Width("iii", font)) << name;
    Board board(1);
    board.surface.Font = font;
    board.surface.Print("WWW");
    EXPECT_GT(InkColumns(board.surface.Image()).Width(), 10) << name;
  }
}

TEST_F(TextTest, CharactersThatAFontLacksComeFromAnother) {
  EXPECT_GT(Fonts().Width("\u0416\u4E2D", {"Courier New", 20, false, false}), 10);
}

// Ink of a text drawn out by `across` and `down`, counted in whole pixels: grey ones count in part.
double InkOfDrawnOut(double across, double down) {
  QImage image(1300, 800, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(100, 500);
  painter.scale(across, down);
  PaintText(painter, 0, 0, "Hamburg", {"Arial", 4, false, false}, 0, 72);
  painter.end();
  double ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ink += Ink(image, x, y);
  }
  return ink;
}

// Letters have their area, however far they are drawn out; the thinnest lose some of it where a
// pixel has no grey as light as that, but do not vanish.
TEST_F(TextTest, TextDrawnOutFarOneWayHasItsInk) {
  const double letters = InkOfDrawnOut(20, 20) / 400;
  ASSERT_GT(letters, 14);
  const struct {
    double across, down, share, tolerance;
  } scales[] = {{1, 7.9, 1, 0.1},   {1, 8.1, 1, 0.1},  {7.9, 1, 1, 0.1},      {8.1, 1, 1, 0.1},
                {0.5, 10, 1, 0.1},  {10, 0.5, 1, 0.1}, {0.5, 100, 1, 0.1},    {60, 0.5, 1, 0.1},
                {0.1, 100, 1, 0.1}, {60, 0.1, 1, 0.1}, {0.002, 100, 0.6, 0.3}};
  for (const auto& [across, down, share, tolerance] : scales) {
    const double ink = InkOfDrawnOut(across, down) / (letters * across * down);
    EXPECT_NEAR(ink, share, tolerance) << across << " by " << down;
  }
}

TEST_F(TextTest, TextDrawnOutToNothingLeavesNoInk) {
  const struct { double across, down; } scales[] = {{0.0001, 500}, {500, 0.0001}, {0, 10}, {10, 0}};
  for (const auto& [across, down] : scales) {
    EXPECT_LT(InkOfDrawnOut(across, down), 1) << across << " by " << down;
  }
}

TEST_F(TextTest, ANameThatAMetricTwinAnswersToCanBeChosen) {
  const std::vector<std::string> families = Fonts().Families();
  EXPECT_EQ(std::count(families.begin(), families.end(), "Liberation Sans"), 1);
  EXPECT_EQ(std::count(families.begin(), families.end(), "Arial"), 1);
}

TEST_F(TextTest, FamiliesAreListedOnceAndWithoutTheirMakers) {
  std::vector<std::string> families = Fonts().Families();
  EXPECT_NE(std::find(families.begin(), families.end(), "Liberation Sans"), families.end());
  for (const std::string& family : families) EXPECT_EQ(family.find('['), std::string::npos);
  std::sort(families.begin(), families.end());
  EXPECT_EQ(std::unique(families.begin(), families.end()), families.end());
}

TEST_F(TextTest, MalformedAndVeryLongTextIsMeasuredAllTheSame) {
  EXPECT_GT(Fonts().Width("a\xFF\xC3", {"Arial", 10, false, false}), 0);
  EXPECT_GT(Fonts().Width(std::string(100'000, 'x'), {"Arial", 10, false, false}), 400'000);
}

// Whether each character stands for itself or the text is shaped in full: what lies farther than
// the toolkit can count is measured, but not placed.
TEST_F(TextTest, AVeryLongTextIsPlacedAsFarAsTheToolkitCounts) {
  constexpr double kFarthest = 1e7;
  const FontSpec arial{"Arial", 10, false, false};
  for (const std::string letter : {"W", "\u05D0"}) {
    std::string text;
    for (int i = 0; i < 40'000; ++i) text += letter;
    const double one = ShapeText(letter, arial).width;
    const ShapedText& shaped = ShapeText(text, arial);
    EXPECT_NEAR(shaped.width, 40'000 * one, 40'000 * 0.02 * one) << letter;
    double farthest = 0;
    for (const QGlyphRun& run : shaped.runs) {
      for (const QPointF& at : run.positions()) farthest = std::max(farthest, at.x());
    }
    EXPECT_GT(farthest, 0.9 * kFarthest) << letter;
    EXPECT_LT(farthest, kFarthest + 4096 * one) << letter;
  }
}

}  // namespace
}  // namespace tagwright
