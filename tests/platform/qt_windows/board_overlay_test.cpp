// What the board's view paints over the picture, held against the picture itself.
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "platform/controls/mouse.h"
#include "platform/painting/fonts.h"
#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/board_view.h"
#include "qt/painting/image_surface.h"
#include "qt/painting/screen_pixels.h"

namespace tagwright {
namespace {

constexpr Color kRed = Rgb(200, 30, 20);
constexpr int kWidth = 200, kHeight = 100;  // of the board, logical pixels

class OverlayTest : public WindowTest {
 protected:
  OverlayTest() {
    frmMain.picBoard.Move(1500, 1980, kWidth * kTwipsPerPixel, kHeight * kTwipsPerPixel);
    for (LineControl* line : {&frmMain.HairX, &frmMain.HairY}) line->SetVisible(false);
    for (ScrollBar* bar : {&frmMain.hS1, &frmMain.vS1}) bar->SetVisible(false);
    frmMain.cmdXC.SetVisible(false);
    ScaleTo(1, 1);
  }

  static ImageSurface& Canvas() { return dynamic_cast<ImageSurface&>(frmMain.picBoard.Canvas()); }

  // A board unit is a millimetre at this zoom, on a screen of so many pixels to a logical one.
  void ScaleTo(double zoom, double ratio) {
    ratio_ = ratio;
    Canvas().SetDevicePixelRatio(ratio);
    frmMain.picBoard.SetScaleWidth(kWidth * 25.4 / 96 / zoom);
    frmMain.picBoard.SetScaleHeight(kHeight * 25.4 / 96 / zoom);
  }

  void Clear() {
    Canvas().BackColor = Rgb(255, 255, 255);
    Canvas().Cls();
    Canvas().SelectObject(CreatePen(kPenSolid, 1, kRed));
    Canvas().SelectObject(NullBrush());
  }

  // The board as this screen shows it.
  QImage Shown() {
    frmMain.picBoard.ImageChanged();
    QImage image(QSize(kWidth, kHeight) * ratio_, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio_);
    image.fill(Qt::white);
    Find("picBoard").render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
  }

  static bool IsInk(const QImage& image, int x, int y) {
    return image.pixelColor(x, y).green() < 143;
  }

  // The first and the last pixel with ink of a row, left of `end`; logical y.
  std::pair<int, int> Inked(const QImage& image, double y, int end) const {
    std::pair<int, int> inked{-1, -1};
    for (int x = 0; x < end; ++x) {
      if (!IsInk(image, x, static_cast<int>(y * ratio_))) continue;
      if (inked.first < 0) inked.first = x;
      inked.second = x;
    }
    return inked;
  }

  double ratio_ = 1;
};

double ToPixelsX(double units) { return frmMain.picBoard.ScaleX(units, kUserScale, kPixels); }
double ToPixelsY(double units) { return frmMain.picBoard.ScaleY(units, kUserScale, kPixels); }

// A guide is put down by the mouse, on a whole pixel, and an object that snaps to it keeps its
// place in 32 bits: both numbers mean the same place.
TEST_F(OverlayTest, WhatLiesOnTheSamePlaceLiesOnTheSamePixel) {
  int wrong = 0;
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, 2.5, 3.0}) {
    for (const int percent :
         {20,  30,  40,  50,  60,  70,  80,  90,  100, 110, 120, 130, 140, 150,
          175, 200, 225, 250, 300, 350, 400, 450, 500, 550, 600, 650, 700, 750}) {
      ScaleTo(percent / 100.0, ratio);
      const double unit = frmMain.picBoard.Scale().UnitX();
      const double line_height = frmMain.picBoard.ScaleHeight() / 10;
      for (int pixel = 20; pixel < 68; ++pixel) {
        const double origin = std::nearbyint(frmMain.picBoard.ScaleWidth() / 7);
        const double rule = pixel * kTwipsPerPixel / unit - origin;
        const double object = static_cast<float>(rule + origin - origin) + origin;
        const double right = object + 60 * kTwipsPerPixel / unit;
        Clear();
        Canvas().MoveToEx(ToPixelsX(object), ToPixelsY(line_height));
        Canvas().LineTo(ToPixelsX(object), ToPixelsY(2 * line_height));
        Canvas().Rectangle(ToPixelsX(object), ToPixelsY(3 * line_height), ToPixelsX(right),
                           ToPixelsY(4 * line_height));
        LineControl& guide = frmMain.lnMX;
        guide.SetBorderColor(kRed);
        guide.SetX1(rule + origin);
        guide.SetX2(rule + origin);
        guide.SetY1(5 * line_height);
        guide.SetY2(6 * line_height);
        guide.SetVisible(true);
        frmMain.shpBox.SetBorderColor(kRed);
        frmMain.shpBox.SetBorderStyle(1);
        frmMain.shpBox.Move(object, 7 * line_height, right - object, line_height);
        frmMain.shpBox.SetVisible(true);
        const QImage image = Shown();
        const int end = static_cast<int>((pixel + 20) * ratio);
        const auto on_guide = Inked(image, 55, end);
        const bool same = on_guide.first >= 0 && Inked(image, 15, end) == on_guide &&
                          Inked(image, 35, end) == on_guide && Inked(image, 75, end) == on_guide;
        if (!same && ++wrong < 6) {
          ADD_FAILURE() << percent << " % x " << ratio << ", pixel " << pixel << ": guide "
                        << on_guide.first << ", line " << Inked(image, 15, end).first
                        << ", rectangle " << Inked(image, 35, end).first << ", frame "
                        << Inked(image, 75, end).first;
        }
      }
    }
  }
  EXPECT_EQ(wrong, 0);
}

// A noise at either side of the border between two pixels.
TEST_F(OverlayTest, TheLastDigitsDecideNoPixel) {
  for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
    for (const double pen : {1.0, 2.0, 3.0}) {
      for (int place = 0; place < 60; ++place) {
        const double at = place / (2 * ratio);  // between two pixels, or in the middle of one
        const double exact = OnScreenPixel(at, pen, ratio);
        EXPECT_EQ(OnScreenPixel(at - 5e-5 / ratio, pen, ratio), exact) << at;
        EXPECT_EQ(OnScreenPixel(at + 5e-5 / ratio, pen, ratio), exact) << at;
      }
      EXPECT_NEAR(OnScreenPixel(10.4 / ratio, pen, ratio) * ratio, 10.25, 0.26) << ratio;
    }
  }
}

// The frame that is drawn up is the object that comes of it.
TEST_F(OverlayTest, ARoundedRubberFrameHasTheCornersOfTheObject) {
  for (const double corner : {12.0, 36.0}) {
    Clear();
    Canvas().RoundRect(30, 20, 150, 80, corner, corner);
    const QImage object = Shown();
    Clear();
    const double unit = frmMain.picBoard.Scale().UnitX() / kTwipsPerPixel;
    frmMain.shpBox.SetShape(4);
    frmMain.shpBox.SetBorderStyle(1);
    frmMain.shpBox.SetBorderColor(kRed);
    frmMain.shpBox.SetCornerSize(corner);
    frmMain.shpBox.Move(30 / unit, 20 / unit, 120 / unit, 60 / unit);
    frmMain.shpBox.SetVisible(true);
    const QImage frame = Shown();
    int different = 0, inked = 0;
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        inked += IsInk(object, x, y);
        different +=
            std::abs(object.pixelColor(x, y).green() - frame.pixelColor(x, y).green()) > 40;
      }
    }
    EXPECT_GT(inked, 200) << corner;
    EXPECT_EQ(different, 0) << corner;
    frmMain.shpBox.SetVisible(false);
  }
}

// A text of several lines that is being typed.
TEST_F(OverlayTest, TheLinesOfACaptionStandBelowEachOther) {
  Clear();
  Label& hold = frmMain.lblHold(0);
  const double unit = frmMain.picBoard.Scale().UnitX() / kTwipsPerPixel;
  hold.Move(10 / unit, 5 / unit, 150 / unit, 90 / unit);
  hold.SetFontSize(18);
  hold.SetForeColor(kRed);
  hold.SetVisible(true);
  const auto rows = [&](const char* caption) {
    hold.SetCaption(caption);
    const QImage image = Shown();
    std::vector<int> inked;
    for (int y = 0; y < kHeight; ++y) {
      bool ink = false;
      for (int x = 0; x < kWidth; ++x) ink = ink || IsInk(image, x, y);
      if (ink) inked.push_back(y);
    }
    return inked;
  };
  const std::vector<int> one = rows("HHH");
  ASSERT_GT(one.size(), 5U);
  const double line = (Fonts().Ascent(hold.Font()) + Fonts().Descent(hold.Font())) * 96.0 / 72.0;
  for (const char* caption : {"HHH\r\nHHH", "HHH\nHHH", "HHH\rHHH"}) {
    const std::vector<int> two = rows(caption);
    ASSERT_GE(two.size(), 2 * one.size() - 2) << caption;
    EXPECT_EQ(two.front(), one.front());
    EXPECT_NEAR(two.back() - one.back(), line, 1.0);
    bool gap = false;
    for (std::size_t i = 1; i < two.size(); ++i) gap = gap || two[i] > two[i - 1] + 1;
    EXPECT_TRUE(gap) << "the lines lie on each other";
  }
}

// --- the wheel ----------------------------------------------------------------------------------

class BoardWheelTest : public WindowTest {
 protected:
  BoardWheelTest() {
    frmMain.picBoard.Events().MouseWheel = [this](int shift, double left, double up, double x,
                                                  double y) {
      turned.push_back({double(shift), left, up, x * frmMain.picBoard.Scale().UnitX(),
                        y * frmMain.picBoard.Scale().UnitY()});
    };
  }

  void Turn(QPointF at, QPoint angle, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget& board = Find("picBoard");
    QWheelEvent event(at, board.mapToGlobal(at), QPoint(), angle, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&board, &event);
    EXPECT_TRUE(event.isAccepted());
  }

  std::vector<std::vector<double>> turned;
};

TEST_F(BoardWheelTest, TheBoardHearsNotchesKeysAndPlace) {
  Turn({100, 40}, {0, 120});
  Turn({100, 40}, {0, -30}, Qt::ShiftModifier);
  Turn({10, 40}, {240, 0}, Qt::ControlModifier);
  ASSERT_EQ(turned.size(), 3U);
  EXPECT_EQ(turned[0], std::vector<double>({0, 0, 1, 1500, 600}));
  EXPECT_EQ(turned[1], std::vector<double>({kShift, 0, -0.25, 1500, 600}));
  EXPECT_EQ(turned[2], std::vector<double>({kCtrl, 2, 0, 150, 600}));
}

TEST_F(BoardWheelTest, AScrollBarsWheelIsItsOwn) {
  const QWidget& bar = Find("vS1");
  Turn(bar.geometry().center(), {0, 120});
  EXPECT_TRUE(turned.empty());
}

TEST_F(BoardWheelTest, WithAButtonDownItIsStill) {
  frmMain.picBoard.UserMouseDown(kLeftButton, 0, 100, 100);
  Turn({100, 40}, {0, 120});
  EXPECT_TRUE(turned.empty());
  frmMain.picBoard.UserMouseUp(kLeftButton, 0, 100, 100);
  Turn({100, 40}, {0, 120});
  EXPECT_EQ(turned.size(), 1U);
}

}  // namespace
}  // namespace tagwright
