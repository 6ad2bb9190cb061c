// The picture in memory that the board and the preview are painted to.
#include "qt/painting/image_surface.h"

#include <cmath>
#include <limits>

#include "paint_environment.h"
#include "qt/pictures/pictures.h"

namespace tagwright {
namespace {

constexpr Color kRed = Rgb(255, 0, 0);
constexpr Color kBlack = Rgb(0, 0, 0);

// 100 by 80 logical pixels.
class ImageSurfaceTest : public PaintTest {
 protected:
  ImageSurfaceTest() {
    board.Scale().Resize(1500, 1200);
    board.Scale().SetScaleMode(kPixels);
    board.Cls();
  }
  QRgb At(int x, int y) const { return board.Image().pixel(x, y); }
  ImageSurface board;
};

PicturePtr Pixels(int width, int height, QColor color) {
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  image.fill(color);
  return std::make_shared<PixelPicture>(image, "digest", true);
}

TEST_F(ImageSurfaceTest, TheImageFollowsTheSizeInTwips) {
  EXPECT_EQ(board.Image().size(), QSize(100, 80));
  board.Scale().Resize(3000, 600);
  EXPECT_EQ(board.Image().size(), QSize(200, 40));
}

TEST_F(ImageSurfaceTest, TheImageHasTheScreensOwnPixels) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    ImageSurface scaled(ratio);
    scaled.Scale().Resize(1500, 1200);
    EXPECT_EQ(scaled.Image().width(), std::lround(100 * ratio));
    EXPECT_EQ(scaled.Image().devicePixelRatio(), ratio);
  }
  board.SetDevicePixelRatio(2);
  EXPECT_EQ(board.Image().size(), QSize(200, 160));
}

TEST_F(ImageSurfaceTest, AnEmptySurfaceStillHasAPixel) {
  ImageSurface empty;
  empty.Line(0, 0, 10, 10, kRed);
  EXPECT_EQ(empty.Image().size(), QSize(1, 1));
}

TEST_F(ImageSurfaceTest, GrowingKeepsWhatIsThereAndFillsWithTheBackColor) {
  board.Line(0, 0, 50, 80, kRed);
  board.BackColor = 0x808080;
  board.Scale().Resize(3000, 1200);
  EXPECT_EQ(At(20, 20), qRgb(255, 0, 0));
  EXPECT_EQ(At(70, 20), qRgb(255, 255, 255));
  EXPECT_EQ(At(150, 20), qRgb(128, 128, 128));
}

TEST_F(ImageSurfaceTest, ClsWipesEverything) {
  board.Line(0, 0, 100, 80, kRed);
  board.BackColor = Rgb(1, 2, 3);
  board.Cls();
  EXPECT_EQ(At(0, 0), qRgb(1, 2, 3));
  EXPECT_EQ(At(99, 79), qRgb(1, 2, 3));
}

TEST_F(ImageSurfaceTest, ColorsAreBlueGreenRed) {
  board.Line(0, 0, 10, 10, 0x0000FF);
  EXPECT_EQ(At(5, 5), qRgb(255, 0, 0));
  board.Line(0, 0, 10, 10, 0xFF0000);
  EXPECT_EQ(At(5, 5), qRgb(0, 0, 255));
}

TEST_F(ImageSurfaceTest, BoxesHaveSmoothEdgesWhereTheyEndWithinAPixel) {
  board.Line(10.5, 10, 20, 20, kBlack);
  EXPECT_NEAR(Ink(board.Image(), 10, 15), 0.5, 0.03);
  EXPECT_EQ(Ink(board.Image(), 9, 15), 0);
  EXPECT_EQ(Ink(board.Image(), 19, 15), 1);
  EXPECT_EQ(Ink(board.Image(), 20, 15), 0);
}

TEST_F(ImageSurfaceTest, AThinPenIsCrispWhereverItsLineLies) {
  board.SelectObject(CreatePen(kPenSolid, 1, kBlack));
  for (const double x : {10.0, 20.3, 30.5, 40.8}) {
    board.MoveToEx(x, 5);
    board.LineTo(x, 60);
    double ink = 0;
    for (int i = -2; i <= 2; ++i) ink += Ink(board.Image(), int(x) + i, 30) > 0 ? 1 : 0;
    EXPECT_EQ(ink, 1) << x;
    EXPECT_EQ(Ink(board.Image(), int(x), 30), 1) << x;
  }
}

TEST_F(ImageSurfaceTest, APenIsAsWideAsItsNumberOfLogicalPixels) {
  for (const double ratio : {1.0, 1.5, 2.0}) {
    ImageSurface scaled(ratio);
    scaled.Scale().Resize(1500, 1200);
    scaled.Cls();
    scaled.SelectObject(CreatePen(kPenSolid, 4, kBlack));
    scaled.MoveToEx(50, 0);
    scaled.LineTo(50, 80);
    double ink = 0;
    for (int x = 0; x < scaled.Image().width(); ++x) ink += Ink(scaled.Image(), x, 20);
    EXPECT_NEAR(ink, 4 * ratio, 0.05) << ratio;
  }
}

TEST_F(ImageSurfaceTest, ALineEndsWhereItIsTold) {
  board.SelectObject(CreatePen(kPenSolid, 3, kBlack));
  board.MoveToEx(10, 40);
  board.LineTo(30, 40);
  EXPECT_EQ(Ink(board.Image(), 9, 40), 0);
  EXPECT_EQ(Ink(board.Image(), 10, 40), 1);
  EXPECT_EQ(Ink(board.Image(), 29, 40), 1);
  EXPECT_EQ(Ink(board.Image(), 30, 40), 0);
}

TEST_F(ImageSurfaceTest, AShapeWithoutPenAndBrushPaintsNothing) {
  const QImage before = board.Image().copy();
  board.SelectObject(NullBrush());
  board.SelectObject(CreatePen(kPenNull, 0, 0));
  board.Rectangle(10, 10, 50, 50);
  board.SelectObject(CreatePen(kPenSolid, 0, kBlack));
  board.Ellipse(10, 10, 50, 50);
  board.MoveToEx(0, 0);
  board.LineTo(50, 50);
  EXPECT_EQ(board.Image(), before);
}

// A pen that draws nothing has no width to make room for, and no colour to mix, whatever it was
// told.
TEST_F(ImageSurfaceTest, AShapeWithoutOutlineFillsWholePixels) {
  board.SelectObject(CreatePen(kPenNull, 1, kRed));
  board.SelectObject(CreateSolidBrush(kBlack));
  for (const int mode : {int(kCopyPen), int(kMaskPen)}) {
    board.Cls();
    board.DrawMode = mode;
    board.Rectangle(10, 10, 50, 50);
    for (const int inside : {10, 49}) {
      EXPECT_EQ(Ink(board.Image(), inside, 30), 1) << mode << " " << inside;
      EXPECT_EQ(Ink(board.Image(), 30, inside), 1) << mode << " " << inside;
    }
    for (const int outside : {9, 50}) {
      EXPECT_EQ(Ink(board.Image(), outside, 30), 0) << mode << " " << outside;
      EXPECT_EQ(Ink(board.Image(), 30, outside), 0) << mode << " " << outside;
    }
  }
}

// An outline of odd width runs through the middle of pixels, one of even width between them.
TEST_F(ImageSurfaceTest, AnOutlineCoversWholePixels) {
  board.SelectObject(NullBrush());
  for (const int width : {1, 2, 3}) {
    board.Cls();
    board.SelectObject(CreatePen(kPenSolid, width, kBlack));
    board.Rectangle(20, 20, 60, 60);
    double ink = 0;
    for (int x = 10; x < 30; ++x) {
      const double here = Ink(board.Image(), x, 40);
      EXPECT_TRUE(here == 0 || here == 1) << width << " at " << x;
      ink += here;
    }
    EXPECT_EQ(ink, width);
  }
}

// Where bits are mixed there are no smooth edges; black needs no mixing, and keeps them.
TEST_F(ImageSurfaceTest, ABlackShapeWithoutOutlineKeepsItsSmoothEdges) {
  const auto grey_pixels = [&] {
    int count = 0;
    for (int x = 0; x < 100; ++x) {
      for (int y = 0; y < 80; ++y)
        count += Ink(board.Image(), x, y) > 0 && Ink(board.Image(), x, y) < 1;
    }
    return count;
  };
  board.DrawMode = kMaskPen;
  board.SelectObject(CreateSolidBrush(kBlack));
  board.SelectObject(CreatePen(kPenNull, 1, kRed));
  board.Ellipse(10, 10, 50, 50);
  EXPECT_GT(grey_pixels(), 20);
  board.DrawMode = kCopyPen;
  board.Cls();
  board.DrawMode = kMaskPen;
  board.SelectObject(CreatePen(kPenNull, 1, kBlack));
  board.SelectObject(CreateSolidBrush(kRed));
  board.Ellipse(10, 10, 50, 50);
  const QRgb red = qRgb(255, 0, 0), white = qRgb(255, 255, 255);
  for (int x = 0; x < 60; ++x) EXPECT_TRUE(At(x, 12) == red || At(x, 12) == white) << x;
}

TEST_F(ImageSurfaceTest, AShapeThinnerThanAPixelDoesNotVanish) {
  board.SelectObject(CreatePen(kPenNull, 0, 0));
  board.SelectObject(CreateSolidBrush(kBlack));
  board.Rectangle(20.1, 10, 20.4, 50);
  EXPECT_NEAR(Ink(board.Image(), 20, 30), 0.3, 0.05);
}

TEST_F(ImageSurfaceTest, ShapesMayBeToldFromAnyCorner) {
  board.SelectObject(CreatePen(kPenNull, 0, 0));
  board.SelectObject(CreateSolidBrush(kRed));
  board.Rectangle(50, 50, 10, 10);
  EXPECT_EQ(At(30, 30), qRgb(255, 0, 0));
}

// --- AND ----------------------------------------------------------------------------------------

TEST_F(ImageSurfaceTest, MaskedBoxesAreAndedWithWhatLiesBeneath) {
  board.Line(0, 0, 50, 80, Rgb(0xF0, 0x0F, 0xFF));
  board.DrawMode = kMaskPen;
  board.Line(20, 0, 80, 80, Rgb(0x3C, 0x3C, 0x00));
  EXPECT_EQ(At(10, 10), qRgb(0xF0, 0x0F, 0xFF));
  EXPECT_EQ(At(30, 10), qRgb(0x30, 0x0C, 0x00));
  EXPECT_EQ(At(60, 10), qRgb(0x3C, 0x3C, 0x00));
}

TEST_F(ImageSurfaceTest, MaskedShapesAreAndedToo) {
  board.Line(0, 0, 100, 80, Rgb(0xF0, 0x0F, 0xFF));
  board.DrawMode = kMaskPen;
  board.SelectObject(CreatePen(kPenNull, 0, 0));
  board.SelectObject(CreateSolidBrush(Rgb(0x3C, 0x3C, 0)));
  board.Rectangle(20, 20, 40, 40);
  EXPECT_EQ(At(30, 30), qRgb(0x30, 0x0C, 0));
  board.DrawMode = kCopyPen;
  board.Rectangle(20, 20, 40, 40);
  EXPECT_EQ(At(30, 30), qRgb(0x3C, 0x3C, 0));
}

TEST_F(ImageSurfaceTest, MaskedPicturesAreAndedAndTheirHolesChangeNothing) {
  board.Line(0, 0, 100, 80, Rgb(0xF0, 0x0F, 0xFF));
  board.DrawMode = kMaskPen;
  board.PaintPicture(Pixels(4, 4, QColor(0x3C, 0x3C, 0)), 10, 10, 20, 20);
  board.PaintPicture(Pixels(4, 4, Qt::transparent), 50, 10, 20, 20);
  EXPECT_EQ(At(20, 20), qRgb(0x30, 0x0C, 0));
  EXPECT_EQ(At(60, 20), qRgb(0xF0, 0x0F, 0xFF));
  EXPECT_EQ(At(40, 20), qRgb(0xF0, 0x0F, 0xFF));
}

TEST_F(ImageSurfaceTest, BarsInTheMaskingModeKeepTheirExactWidth) {
  board.DrawMode = kMaskPen;
  board.DrawStyle = 5;
  board.Line(10.25, 10, 12.5, 60, kBlack);
  double ink = 0;
  for (int x = 5; x < 20; ++x) ink += Ink(board.Image(), x, 30);
  EXPECT_NEAR(ink, 2.25, 0.03);
}

// --- pictures -----------------------------------------------------------------------------------

TEST_F(ImageSurfaceTest, PicturesFillTheirBox) {
  board.PaintPicture(Pixels(3, 3, Qt::red), 10, 20, 40, 10);
  EXPECT_EQ(At(12, 22), qRgb(255, 0, 0));
  EXPECT_EQ(At(47, 27), qRgb(255, 0, 0));
  EXPECT_EQ(At(52, 22), qRgb(255, 255, 255));
}

TEST_F(ImageSurfaceTest, ANegativeSizeTurnsThePictureOver) {
  QImage halves(2, 1, QImage::Format_RGB32);
  halves.setPixel(0, 0, qRgb(255, 0, 0));
  halves.setPixel(1, 0, qRgb(0, 0, 255));
  const PicturePtr picture = std::make_shared<PixelPicture>(halves, "", true);
  board.PaintPicture(picture, 60, 10, -40, 40);
  EXPECT_EQ(At(22, 30), qRgb(0, 0, 255));
  EXPECT_EQ(At(57, 30), qRgb(255, 0, 0));
}

// A fine pattern of black and white must shrink to grey, not to whatever pixels are hit.
TEST_F(ImageSurfaceTest, PicturesThatShrinkAreAveraged) {
  QImage stripes(800, 800, QImage::Format_RGB32);
  for (int x = 0; x < 800; ++x) {
    for (int y = 0; y < 800; ++y) stripes.setPixel(x, y, x % 2 ? qRgb(0, 0, 0) : 0xFFFFFFFF);
  }
  board.PaintPicture(std::make_shared<PixelPicture>(stripes, "", true), 0, 0, 50, 50);
  for (int x = 5; x < 45; x += 3) EXPECT_NEAR(Ink(board.Image(), x, 25), 0.5, 0.1) << x;
}

TEST_F(ImageSurfaceTest, APictureOfAnotherPlatformPaintsNothing) {
  const QImage before = board.Image().copy();
  board.PaintPicture(std::make_shared<Picture>(), 0, 0, 50, 50);
  EXPECT_EQ(board.Image(), before);
}

// --- hostile numbers ----------------------------------------------------------------------------

TEST_F(ImageSurfaceTest, NumbersFarOutsideDoNoHarm) {
  const double huge = std::numeric_limits<float>::max();
  board.SelectObject(CreatePen(kPenSolid, 32767, kRed));
  board.SelectObject(CreateSolidBrush(kRed));
  board.Rectangle(-huge, -huge, huge, huge);
  board.RoundRect(-huge, 5, huge, 6, 12, 12);
  board.Ellipse(-huge, -5, huge, 10);
  board.MoveToEx(-huge, 3);
  board.LineTo(huge, 3);
  board.Line(-huge, 0, huge, 1, kRed);
  board.PaintPicture(Pixels(2, 2, Qt::red), -huge, -huge, huge, huge);
  board.Font.Size = huge;
  board.Print("W");
  board.Font.Size = 4000;
  board.CurrentX = -huge;
  board.Print("W");
  EXPECT_EQ(board.Image().size(), QSize(100, 80));
}

TEST_F(ImageSurfaceTest, ASizeBeyondAllScreensIsCut) {
  board.Scale().Resize(1e12, 15);
  EXPECT_EQ(board.Image().width(), 20000);
}

}  // namespace
}  // namespace tagwright
