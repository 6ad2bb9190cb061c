// Metafiles: their size, where they draw, what is refused.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <filesystem>
#include <string>

#include "metafile_writer.h"
#include "paint_environment.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/painting/metafile_records.h"
#include "qt/fonts/text_painting.h"
#include "qt/pictures/metafiles.h"
#include "qt/pictures/pictures.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

std::string Bytes(const std::string& name) {
  return ReadFile(TestDataFolder() + "/pictures/" + name);
}

QImage Draw(const PicturePtr& picture, int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  dynamic_cast<const PaintedPicture&>(*picture).Paint(painter, QRectF(0, 0, width, height));
  return image;
}

// The box of what is not white.
QRect InkBox(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (Ink(image, x, y) > 0.3) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

double InkShare(const QImage& image) {
  int ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ink += image.pixel(x, y) != qRgb(255, 255, 255);
  }
  return 100.0 * ink / (image.width() * image.height());
}

using MetafileTest = PaintTest;

// --- sizes --------------------------------------------------------------------------------------

TEST_F(MetafileTest, ThePlaceableHeaderGivesTheSize) {
  const PicturePtr picture = ReadMetafile(Bytes("placeable.wmf"));
  ASSERT_TRUE(picture);
  EXPECT_NEAR(picture->Width, 5080, 1e-6);
  EXPECT_NEAR(picture->Height, 2540, 1e-6);
}

TEST_F(MetafileTest, AWrongChecksumOfTheHeaderDoesNotMatter) {
  std::string bytes = Bytes("placeable.wmf");
  bytes[20] ^= 0x55;
  EXPECT_TRUE(ReadMetafile(bytes));
}

TEST_F(MetafileTest, WithoutAHeaderTheWindowGivesTheSizeAt96AnInch) {
  const PicturePtr picture = ReadMetafile(Bytes("window.wmf"));
  ASSERT_TRUE(picture);
  EXPECT_NEAR(picture->Width, 2540, 1e-6);
  EXPECT_NEAR(picture->Height, 1270, 1e-6);
}

TEST_F(MetafileTest, ADrawingThatSaysNothingIs100MillimetresOnItsLongerSide) {
  const PicturePtr picture = ReadMetafile(Bytes("bare.wmf"));
  ASSERT_TRUE(picture);
  EXPECT_NEAR(picture->Width, 10000, 1e-6);
  EXPECT_NEAR(picture->Height, 5000, 100);
}

TEST_F(MetafileTest, AHeaderWithoutUnitsCounts96AnInch) {
  std::string bytes = Bytes("placeable.wmf");
  bytes[14] = bytes[15] = 0;
  EXPECT_NEAR(ReadMetafile(bytes)->Width, 2880 / 96.0 * 2540, 1e-6);
}

TEST_F(MetafileTest, AHeaderWithAnEmptyBoxIsUnreadable) {
  std::string bytes = Bytes("placeable.wmf");
  for (int at = 6; at < 14; ++at) bytes[at] = 0;
  EXPECT_FALSE(ReadMetafile(bytes));
}

// --- drawing ------------------------------------------------------------------------------------

TEST_F(MetafileTest, TheWindowFillsTheBoxAndNotWhatIsDrawnInIt) {
  EXPECT_EQ(InkBox(Draw(ReadMetafile(Bytes("placeable.wmf")), 200, 100)), QRect(0, 0, 100, 100));
  EXPECT_EQ(InkBox(Draw(ReadMetafile(Bytes("window.wmf")), 200, 100)), QRect(100, 0, 100, 100));
}

TEST_F(MetafileTest, DrawsAnewAndAlikeEachTime) {
  const PicturePtr picture = ReadMetafile(Bytes("placeable.wmf"));
  const QImage first = Draw(picture, 64, 64);
  EXPECT_EQ(Draw(picture, 64, 64), first);
  EXPECT_EQ(first.pixel(10, 10), qRgb(255, 0, 0));
}

TEST_F(MetafileTest, IsSharpAtEverySize) {
  const QImage large = Draw(ReadMetafile(Bytes("placeable.wmf")), 2000, 1000);
  EXPECT_EQ(large.pixel(999, 500), qRgb(255, 0, 0));
  EXPECT_EQ(large.pixel(1000, 500), qRgb(255, 255, 255));
}

// The text stands on a baseline at 100, 500 of 1000 units, its font told by `height`.
PicturePtr TextOfHeight(int height) {
  std::string bytes = Bytes("text.wmf");
  const std::size_t at = bytes.find("\x38\xFF");  // -200, as the file has it
  bytes[at] = static_cast<char>(height & 0xFF);
  bytes[at + 1] = static_cast<char>(height >> 8 & 0xFF);
  return ReadMetafile(bytes);
}

void ExpectHamburg(const QImage& image, double size) {
  const FontSpec one{"Arial", 1, false, false};
  const QRect ink = InkBox(image);
  EXPECT_NEAR(ink.width(), Fonts().Width("Hamburg", one) * size, 0.15 * size);
  EXPECT_NEAR(ink.left(), 100, 0.1 * size);
  EXPECT_NEAR(ink.top(), 500 - 0.73 * size, 0.03 * size);                 // up to the b
  EXPECT_NEAR(ink.top() + ink.height(), 500 + 0.21 * size, 0.03 * size);  // down to the g
}

TEST_F(MetafileTest, AFontToldByItsLettersIsAsLargeAsThey) {
  ExpectHamburg(Draw(TextOfHeight(-200), 1000, 1000), 200);
}

TEST_F(MetafileTest, AFontToldByItsLineIsSmaller) {
  const FontSpec one{"Arial", 1, false, false};
  ExpectHamburg(Draw(TextOfHeight(200), 1000, 1000),
                200 / (Fonts().Ascent(one) + Fonts().Descent(one)));
}

TEST_F(MetafileTest, TextStretchesWithItsPicture) {
  const PicturePtr picture = TextOfHeight(-200);
  const int width = InkBox(Draw(picture, 1000, 1000)).width();
  EXPECT_NEAR(InkBox(Draw(picture, 500, 1000)).width(), width / 2.0, 4);
}

TEST_F(MetafileTest, SymbolTextIsReadInGreek) {
  EXPECT_EQ(SymbolText("ab"), "αβ");
  EXPECT_EQ(SymbolText("D"), "Δ");
  EXPECT_EQ(SymbolText("\xD6\x7F"), "√ ");
}

TEST_F(MetafileTest, SymbolTextKnowsTheFirstAndLastOfEachHalf) {
  EXPECT_EQ(SymbolText(" !"), " !");
  EXPECT_EQ(SymbolText("}~"), "}∼");
  EXPECT_EQ(SymbolText("\xA0\xA1"), "€ϒ");
  EXPECT_EQ(SymbolText("\xFD\xFE"), "⎬⎭");
  EXPECT_EQ(SymbolText("\x1F\x7F\x9F\xFF"), "    ");
}

// --- record by record ---------------------------------------------------------------------------

// A picture of `metafile`, ten pixels for each of its 100 by 100 units.
QImage DrawTenfold(const MetafileWriter& metafile) {
  const PicturePtr picture = ReadMetafile(metafile.Bytes());
  return picture ? Draw(picture, 1000, 1000) : QImage();
}

void ExpectInk(const QImage& image, int left, int top, int right, int bottom) {
  constexpr int kTolerance = 6;  // pixels, of which a pen takes five
  const QRect ink = InkBox(image);
  EXPECT_NEAR(ink.left(), left, kTolerance);
  EXPECT_NEAR(ink.top(), top, kTolerance);
  EXPECT_NEAR(ink.right() + 1, right, kTolerance);
  EXPECT_NEAR(ink.bottom() + 1, bottom, kTolerance);
}

double TenfoldWidth(const char* text, bool bold) {
  return Fonts().Width(text, {"Arial", 1, bold, false});
}

TEST_F(MetafileTest, ALineIsAsWideAsItsPenAndNeverLessThanAPixel) {
  constexpr int kLineTo = 0x0213, kMoveTo = 0x0214;
  const auto line = [](int pen) {
    MetafileWriter metafile(100, 100);
    return metafile.Pen(0, pen).Record(kMoveTo, {50, 20}).Record(kLineTo, {50, 80}).Bytes();
  };
  const auto width = [&](int pen, int side) {
    const QImage image = Draw(ReadMetafile(line(pen)), side, side);
    double ink = 0;
    for (int y = 0; y < side; ++y) ink += Ink(image, side / 2, y);
    return ink;
  };
  EXPECT_NEAR(width(6, 1000), 60, 0.5);
  EXPECT_NEAR(width(6, 500), 30, 0.5);
  EXPECT_NEAR(width(0, 1000), 10, 0.1) << "a unit is the least that a pen has";
  EXPECT_NEAR(width(1, 20), 1, 0.1) << "a fifth of a pixel would be grey";
}

// A quarter from three o'clock to twelve, of a circle of 60 units in the middle.
TEST_F(MetafileTest, ArcsPiesAndChordsRunFromTheirFirstRayToTheSecond) {
  constexpr int kSolid = 0, kNone = 5, kArc = 0x0817, kPie = 0x081A, kChord = 0x0830;
  for (const int function : {kArc, kPie, kChord}) {
    SCOPED_TRACE(function);
    MetafileWriter metafile(100, 100);
    metafile.BlackBrush().Pen(function == kArc ? kSolid : kNone, 0);
    metafile.Record(function, {20, 50, 50, 80, 80, 80, 20, 20});
    const QImage image = DrawTenfold(metafile);
    ExpectInk(image, 500, 200, 800, 500);
    EXPECT_EQ(Ink(image, 520, 480) > 0.5, function == kPie) << "only a pie reaches the middle";
    EXPECT_EQ(Ink(image, 680, 320) > 0.5, function != kArc) << "an arc is not filled";
  }
}

TEST_F(MetafileTest, TextStandsOnItsBaseline) {
  MetafileWriter metafile(100, 100);
  metafile.Font(50).Text(10, 60, "H");
  const QRect ink = InkBox(DrawTenfold(metafile));
  EXPECT_NEAR(ink.bottom() + 1, 600, 3);
  EXPECT_NEAR(ink.top(), 600 - 500 * 0.688, 3) << "capitals of this font are so high";
}

// Where its ink lies on the whole.
QPointF InkCentre(const QImage& image) {
  QPointF sum;
  double ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      sum += Ink(image, x, y) * QPointF(x, y);
      ink += Ink(image, x, y);
    }
  }
  return sum / ink;
}

TEST_F(MetafileTest, TextLiesToTheHairWhereTheProgramsOwnTextLies) {
  MetafileWriter metafile(100, 100);
  metafile.Font(50).Text(10, 60, "H");
  QImage own(1000, 1000, QImage::Format_RGB32);
  own.fill(Qt::white);
  QPainter painter(&own);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintText(painter, 100, 600, "H", {"Arial", 500, false, false}, 0, 72);
  painter.end();
  const QPointF off = InkCentre(DrawTenfold(metafile)) - InkCentre(own);
  EXPECT_NEAR(off.x(), 0, 0.7);
  EXPECT_NEAR(off.y(), 0, 0.7);
}

TEST_F(MetafileTest, TextWithoutAFontHasNoLines) {
  MetafileWriter metafile(1000, 1000);
  metafile.Text(100, 500, "H");
  const QRect ink = InkBox(DrawTenfold(metafile));
  ASSERT_FALSE(ink.isEmpty());
  EXPECT_NEAR(ink.bottom() + 1, 500, 2) << "a line would lie below";
}

// Blanks between two letters, where only a line leaves ink. In tenths of units, of size 500.
TEST_F(MetafileTest, LinesUnderAndThroughTextAreDrawnWhereAsked) {
  const struct {
    int italic_underlined, struck_out;
    bool below, through;
  } fonts[] = {
      {0, 0, false, false}, {0x100, 0, true, false}, {0, 1, false, true}, {0x100, 1, true, true}};
  for (const auto& font : fonts) {
    SCOPED_TRACE(testing::Message() << font.italic_underlined << " " << font.struck_out);
    MetafileWriter metafile(100, 100);
    metafile.Font(50, 0, 400, font.italic_underlined, font.struck_out).Text(10, 60, "i   i");
    const QImage image = DrawTenfold(metafile);
    const int between = 100 + static_cast<int>(TenfoldWidth("i   i", false) * 500 / 2);
    EXPECT_EQ(Ink(image, between, 600 + 50 + 15) > 0.9, font.below);
    EXPECT_EQ(Ink(image, between, 600 - 125 + 15) > 0.9, font.through);
  }
}

TEST_F(MetafileTest, TextTurnsAgainstTheClock) {
  const double length = TenfoldWidth("HHHH", false) * 100;
  const auto ink = [](int angle) {
    MetafileWriter metafile(100, 100);
    metafile.Font(10, angle).Text(50, 50, "HHHH");
    return InkBox(DrawTenfold(metafile));
  };
  const QRect up = ink(900), back = ink(1800), down = ink(2700);
  EXPECT_NEAR(up.height(), length, 20);
  EXPECT_NEAR(up.bottom() + 1, 500, 10);
  EXPECT_NEAR(up.right() + 1, 500, 3);
  EXPECT_NEAR(back.width(), length, 20);
  EXPECT_NEAR(back.right() + 1, 500, 10);
  EXPECT_NEAR(back.top(), 500, 3);
  EXPECT_NEAR(down.height(), length, 20);
  EXPECT_NEAR(down.top(), 500, 10);
  EXPECT_NEAR(down.left(), 500, 3);
}

TEST_F(MetafileTest, FontsAreBoldFromSixHundredOn) {
  const auto width = [](int weight) {
    MetafileWriter metafile(100, 100);
    metafile.Font(20, 0, weight).Text(5, 50, "iiiiiiiiii");
    return InkBox(DrawTenfold(metafile)).width();
  };
  const double plain = TenfoldWidth("iiiiiiiiii", false) * 200;
  const double bold = TenfoldWidth("iiiiiiiiii", true) * 200;
  ASSERT_GT(bold, plain + 40);
  EXPECT_NEAR(width(599), plain, 30);
  EXPECT_NEAR(width(600), bold, 30);
}

// A bitmap may be all that a drawing draws: its window is the picture's frame all the same.
TEST_F(MetafileTest, ADrawingOfNothingButAStretchedBitmapKeepsItsWindow) {
  constexpr int kCopyLow = 0x0020, kCopyHigh = 0x00CC;
  const std::string two_black_pixels(
      "\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0"
      "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0",
      48);
  for (const int function : {0x0B41, 0x0F43}) {
    SCOPED_TRACE(function);
    MetafileWriter metafile(100, 100);
    if (function == 0x0B41) {
      metafile.Record(function, {kCopyLow, kCopyHigh, 1, 2, 0, 0, 20, 40, 50, 30},
                      two_black_pixels);
    } else {
      metafile.Record(function, {kCopyLow, kCopyHigh, 0, 1, 2, 0, 0, 20, 40, 50, 30},
                      two_black_pixels);
    }
    ExpectInk(DrawTenfold(metafile), 300, 500, 700, 700);
  }
}

// --- refusals -----------------------------------------------------------------------------------

TEST_F(MetafileTest, EveryShorterFileIsUnreadableOrDrawsLess) {
  const std::string whole = Bytes("text.wmf");
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const PicturePtr picture = ReadMetafile(whole.substr(0, length));
    if (picture) Draw(picture, 20, 20);
    EXPECT_FALSE(picture && length < 60) << length;
  }
}

TEST_F(MetafileTest, ARecordBeyondTheEndIsUnreadable) {
  std::string bytes = Bytes("window.wmf");
  bytes[18 + 2] = 1;  // the first record is 65,536 words longer
  EXPECT_FALSE(ReadMetafile(bytes));
}

// The header tells of the longest record, and a player takes memory for it.
TEST_F(MetafileTest, AHeaderThatExaggeratesItsRecordsTakesNoMemory) {
  std::string bytes = Bytes("window.wmf");
  bytes.replace(12, 4, "\xFF\xFF\xFF\x7F");
  const std::optional<Metafile> metafile = ParseMetafile(bytes);
  ASSERT_TRUE(metafile);
  EXPECT_LT(static_cast<unsigned char>(metafile->bytes[12]), 20);
  EXPECT_EQ(metafile->bytes.substr(13, 3), std::string(3, '\0'));
  EXPECT_TRUE(ReadMetafile(bytes));
}

TEST_F(MetafileTest, AFontThatIsFreedWhileItIsSelectedDoesNoHarm) {
  std::string bytes = Bytes("text.wmf");
  const std::string free_it("\x04\0\0\0\xF0\x01\0\0", 8);
  const std::string new_brush("\x07\0\0\0\xFC\x02\0\0\xFF\xFF\xFF\0\xFF\xFF", 14);
  const std::size_t text = bytes.find(std::string("\x21\x05", 2)) - 4;
  bytes.insert(text, free_it + new_brush);
  const PicturePtr picture = ReadMetafile(bytes);
  ASSERT_TRUE(picture);
  EXPECT_EQ(Draw(picture, 100, 100), Draw(picture, 100, 100));
}

TEST_F(MetafileTest, ARecordOfNoLengthIsUnreadable) {
  std::string bytes = Bytes("window.wmf");
  bytes[18] = 0;
  EXPECT_FALSE(ReadMetafile(bytes));
}

TEST_F(MetafileTest, OtherBytesAreUnreadable) {
  EXPECT_FALSE(ReadMetafile(""));
  EXPECT_FALSE(ReadMetafile("text with the wrong extension"));
  EXPECT_FALSE(ReadMetafile(std::string(1000, '\0')));
}

// --- the larger collection ----------------------------------------------------------------------

QJsonObject Facts() {
  QFile file(QString::fromStdString(SharedDataFolder() + "/wmf/facts.json"));
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                        : QJsonObject();
}

PicturePtr FromCollection(const QString& name) {
  return ReadMetafile(ReadFile(SharedDataFolder() + "/wmf/" + name.toStdString()));
}

TEST_F(MetafileTest, EveryFileOfTheCollectionHasTheSizeOfItsHeader) {
  if (SharedDataFolder().empty()) GTEST_SKIP() << "the larger metafile collection is not here";
  const QJsonObject facts = Facts();
  ASSERT_GT(facts.size(), 12);
  for (const QString& name : facts.keys()) {
    SCOPED_TRACE(name.toStdString());
    const QJsonObject fact = facts[name].toObject();
    const PicturePtr picture = FromCollection(name);
    EXPECT_EQ(picture != nullptr, fact["libwmf"].toString().startsWith("drawn"));
    if (!picture || !fact["placeable"].toBool()) continue;
    EXPECT_NEAR(picture->Width, fact["width_himetric"].toDouble(), 1);
    EXPECT_NEAR(picture->Height, fact["height_himetric"].toDouble(), 1);
  }
}

// The share of ink is a rough check: fonts, smooth edges and margins differ. One file draws beyond
// its window, which lies outside the picture then.
TEST_F(MetafileTest, EveryFileOfTheCollectionDrawsAboutAsMuchAsElsewhere) {
  if (SharedDataFolder().empty()) GTEST_SKIP() << "the larger metafile collection is not here";
  const QJsonObject facts = Facts();
  for (const QString& name : facts.keys()) {
    const PicturePtr picture = FromCollection(name);
    if (!picture || name == "drawing.wmf") continue;
    const double longer = std::max(picture->Width, picture->Height);
    const QImage image = Draw(picture, static_cast<int>(picture->Width * 400 / longer),
                              static_cast<int>(picture->Height * 400 / longer));
    EXPECT_NEAR(InkShare(image), facts[name].toObject()["nonwhite_percent_at_400px"].toDouble(), 8)
        << name.toStdString();
  }
}

}  // namespace
}  // namespace tagwright
