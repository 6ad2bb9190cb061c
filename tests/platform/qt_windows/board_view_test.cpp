#include "qt/controls/board_view.h"

#include <QPainter>
#include <cmath>

#include "platform/qt_windows/window_fixture.h"

namespace tagwright {
namespace {

constexpr Color kRed = Rgb(200, 30, 20);

class BoardViewTest : public WindowTest {
 protected:
  BoardViewTest() {
    // One board unit is one pixel.
    frmMain.picBoard.SetScaleWidth(frmMain.picBoard.Width() / 15);
    frmMain.picBoard.SetScaleHeight(frmMain.picBoard.Height() / 15);
    for (LineControl* line : {&frmMain.HairX, &frmMain.HairY}) line->SetVisible(false);
    frmMain.picBoard.Canvas().BackColor = Rgb(255, 255, 255);
    frmMain.picBoard.Canvas().Cls();
    frmMain.picBoard.ImageChanged();
  }
  QWidget& Board() { return Find("picBoard"); }
  QColor Pixel(int x, int y) { return Board().grab().toImage().pixelColor(x, y); }
  QPoint At(int x, int y) { return Board().mapTo(&Window(), QPoint(x, y)); }
  Label& ShowHold(int index, double left, double top, double width, double height) {
    Label& hold = frmMain.lblHold(index);
    hold.Move(left, top, width, height);
    hold.SetVisible(true);
    return hold;
  }
  using Log = std::vector<std::string>;
};

TEST_F(BoardViewTest, ShowsWhatWasPaintedOnItsCanvas) {
  frmMain.picBoard.Canvas().Line(10, 10, 40, 30, kRed);
  frmMain.picBoard.ImageChanged();
  EXPECT_EQ(Pixel(20, 20), QColor(200, 30, 20));
  EXPECT_EQ(Pixel(60, 20), QColor(Qt::white));
}

TEST_F(BoardViewTest, HandlesAreSmallSquaresInTheAccentColour) {
  Label& handle = frmMain.lblHandle(0);
  handle.Move(100, 100);
  handle.SetVisible(true);
  EXPECT_EQ(Pixel(103, 103), QColor(47, 107, 216));
  EXPECT_EQ(Pixel(100, 103), QColor(Qt::white));
}

// Between two pixels the ground must not stick out of the border.
TEST_F(BoardViewTest, AHandleBetweenPixelsHasItsBorderAllAround) {
  Label& handle = frmMain.lblHandle(0);
  handle.SetVisible(true);
  for (const double part : {0.0, 0.3, 0.5, 0.7, 0.99}) {
    handle.Move(100 + part, 100 + part);
    const QImage image = Board().grab().toImage();
    for (const int edge : {99, 100, 106, 107, 108}) {
      EXPECT_EQ(image.pixelColor(edge, 103), QColor(Qt::white)) << part << " " << edge;
      EXPECT_EQ(image.pixelColor(103, edge), QColor(Qt::white)) << part << " " << edge;
    }
    EXPECT_EQ(image.pixelColor(103, 103), QColor(47, 107, 216)) << part;
  }
}

// Once, when all handlers are done.
TEST_F(BoardViewTest, TheBoardSaysInWordsWhatItShows) {
  int asked = 0;
  frmMain.picBoard.InWords = [&] { return "state " + std::to_string(++asked); };
  RunHandler([&] {
    ShowHold(0, 10, 10, 50, 20);
    frmMain.shpBox.Move(20, 20, 30, 30);
    EXPECT_EQ(asked, 0);
  });
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(Board().accessibleDescription(), "state 1");
  frmMain.picBoard.InWords = nullptr;
}

TEST_F(BoardViewTest, TransparentLabelsPaintTheirCaptionOnly) {
  Label& hold = ShowHold(0, 50, 50, 200, 40);
  EXPECT_EQ(Pixel(60, 60), QColor(Qt::white));
  hold.SetCaption("MMMM");
  hold.SetFontSize(24);
  hold.SetForeColor(kRed);
  const QImage image = Board().grab().toImage();
  int red = 0;
  for (int x = 50; x < 250; ++x) {
    for (int y = 50; y < 90; ++y) red += image.pixelColor(x, y) == QColor(200, 30, 20);
  }
  EXPECT_GT(red, 100);
}

TEST_F(BoardViewTest, ChildrenArePaintedFromBackToFront) {
  Label& below = ShowHold(0, 50, 50, 40, 40);
  Label& above = ShowHold(1, 50, 50, 40, 40);
  below.SetBackStyle(1);
  below.SetBackColor(kRed);
  above.SetBackStyle(1);
  above.SetBackColor(Rgb(0, 0, 255));
  EXPECT_EQ(Pixel(70, 70), QColor(Qt::blue));
  below.ZOrder();
  EXPECT_EQ(Pixel(70, 70), QColor(200, 30, 20));
}

TEST_F(BoardViewTest, LinesAndFramesArePainted) {
  LineControl& rule = frmMain.lnMX;
  rule.SetX1(30);
  rule.SetX2(30);
  rule.SetY1(0);
  rule.SetY2(200);
  rule.SetBorderColor(kRed);
  rule.SetVisible(true);
  EXPECT_EQ(Pixel(30, 100), QColor(200, 30, 20));
  rule.SetVisible(false);
  EXPECT_EQ(Pixel(30, 100), QColor(Qt::white));
  frmMain.shpBox.Move(60, 60, 50, 50);
  frmMain.shpBox.SetBorderStyle(1);
  frmMain.shpBox.SetBorderColor(kRed);
  frmMain.shpBox.SetVisible(true);
  EXPECT_EQ(Pixel(80, 60), QColor(200, 30, 20));
  EXPECT_EQ(Pixel(80, 80), QColor(Qt::white));
}

// On a ground of the dots' own colour nothing else would show where a frame lies.
TEST_F(BoardViewTest, BetweenTheDotsOfAFrameIsWhite) {
  frmMain.picBoard.Canvas().BackColor = kRed;
  frmMain.picBoard.Canvas().Cls();
  frmMain.picBoard.ImageChanged();
  frmMain.shpBox.Move(60, 60, 80, 50);
  frmMain.shpBox.SetBorderColor(kRed);
  frmMain.shpBox.SetBorderStyle(3);
  frmMain.shpBox.SetVisible(true);
  const QImage image = Board().grab().toImage();
  const QColor red(200, 30, 20), white(Qt::white);
  const auto expect_half_white = [&](auto&& pixel_at, int from, int to, const char* what) {
    int whites = 0;
    for (int i = from; i < to; ++i) {
      EXPECT_TRUE(pixel_at(i) == red || pixel_at(i) == white) << what << " " << i;
      whites += pixel_at(i) == white;
    }
    EXPECT_NEAR(whites, (to - from) / 2, 3) << what;
  };
  const auto top = [&](int x) { return image.pixelColor(x, 60); };
  const auto left = [&](int y) { return image.pixelColor(60, y); };
  expect_half_white(top, 62, 138, "the frame's top");
  expect_half_white(left, 62, 108, "the frame's left side");
}

TEST_F(BoardViewTest, AFrameOfNegativeSizeIsPaintedAsNone) {
  frmMain.shpBox.Move(60, 60, -20, -20);
  frmMain.shpBox.SetBorderColor(kRed);
  frmMain.shpBox.SetVisible(true);
  EXPECT_EQ(Pixel(50, 50), QColor(Qt::white));
}

TEST_F(BoardViewTest, WhatLiesNowhereIsPaintedNowhere) {
  Label& hold = ShowHold(0, 1e300, -1e300, 1e308, 40);
  hold.SetCaption("far");
  frmMain.lnMX.SetX1(std::nan(""));
  frmMain.lnMX.SetX2(1e39);
  frmMain.lnMX.SetVisible(true);
  EXPECT_EQ(Pixel(60, 60), QColor(Qt::white));
}

// A place that is no number lies far to the right, as one beyond every board does.
TEST_F(BoardViewTest, ALineFromNowhereComesFromFarAway) {
  LineControl& line = frmMain.lnMY;
  line.SetX1(std::nan(""));
  line.SetX2(100);
  line.SetY1(60);
  line.SetY2(60);
  line.SetBorderColor(kRed);
  line.SetVisible(true);
  EXPECT_EQ(Pixel(300, 60), QColor(200, 30, 20));
  EXPECT_EQ(Pixel(60, 60), QColor(Qt::white));
  line.SetX2(std::nan(""));
  EXPECT_EQ(Pixel(300, 60), QColor(Qt::white));
  EXPECT_EQ(Pixel(0, 60), QColor(Qt::white));
}

TEST_F(BoardViewTest, APressReachesTheTopmostLabelInItsOwnCorner) {
  ShowHold(0, 100, 100, 60, 40);
  frmMain.lblHold.Events().MouseDown = [this](int index, int button, int shift, double x,
                                              double y) {
    log.push_back(std::to_string(index) + " " + std::to_string(button) + " " +
                  std::to_string(shift) + " " + std::to_string(int(x)) + "," +
                  std::to_string(int(y)));
  };
  QTest::mousePress(Screen(), Qt::LeftButton, Qt::ControlModifier, At(110, 120));
  EXPECT_EQ(log, Log({"0 1 2 150,300"}));
  QTest::mouseRelease(Screen(), Qt::LeftButton, Qt::NoModifier, At(110, 120));
}

TEST_F(BoardViewTest, APressKeepsItsLabelUntilTheRelease) {
  Label& hold = ShowHold(0, 100, 100, 60, 40);
  frmMain.lblHold.Events().MouseDown = [&](int, int, int, double, double) {
    hold.SetVisible(false);
  };
  frmMain.lblHold.Events().MouseUp = [this](int index, int, int, double, double) {
    log.push_back("up " + std::to_string(index));
  };
  QTest::mousePress(Screen(), Qt::LeftButton, Qt::NoModifier, At(110, 120));
  QTest::mouseMove(Screen(), At(300, 300));
  QTest::mouseRelease(Screen(), Qt::LeftButton, Qt::NoModifier, At(300, 300));
  EXPECT_EQ(log, Log({"up 0"}));
}

TEST_F(BoardViewTest, APressOnTheBoardTakesTheKeyboardFromAField) {
  frmMain.cboZoom.SetFocus();
  frmMain.cboZoom.Events().LostFocus = [this] { log.push_back("lost"); };
  frmMain.picBoard.Events().MouseDown = [this](int, int, double, double) { log.push_back("down"); };
  QTest::mousePress(Screen(), Qt::LeftButton, Qt::NoModifier, At(300, 300));
  EXPECT_EQ(log, Log({"lost", "down"}));
  EXPECT_TRUE(Board().hasFocus());
  QTest::mouseRelease(Screen(), Qt::LeftButton, Qt::NoModifier, At(300, 300));
}

// Over a handle it is the window's too, which may be that of an armed tool.
TEST_F(BoardViewTest, ThePointerIsTheWindowsEverywhere) {
  Label& handle = frmMain.lblHandle(1);
  handle.Move(200, 200, 20, 20);
  handle.SetVisible(true);
  int over_handle = 0;
  frmMain.lblHandle.Events().MouseMove = [&](int, int, int, double, double) {
    frmMain.SetMousePointer(over_handle);
  };
  frmMain.picBoard.Events().MouseMove = [](int, int, double, double) {
    frmMain.SetMousePointer(2);
  };
  frmMain.SetMouseIcon("pointer-zoom-in");
  const std::pair<int, Qt::CursorShape> rows[] = {
      {6, Qt::SizeBDiagCursor}, {8, Qt::SizeFDiagCursor}, {99, Qt::BitmapCursor}};
  for (const auto& [pointer, shape] : rows) {
    over_handle = pointer;
    QTest::mouseMove(Screen(), At(205, 205));
    EXPECT_EQ(Board().cursor().shape(), shape) << pointer;
    QTest::mouseMove(Screen(), At(300, 300));
    EXPECT_EQ(Board().cursor().shape(), Qt::CrossCursor) << pointer;
  }
}

TEST_F(BoardViewTest, AMessageInsideAPressDoesNotLeaveItHanging) {
  frmMain.picBoard.Events().MouseDown = [this](int, int, double, double) {
    MessageBox("Unable to load");  // the toolkit's release goes to it
    log.push_back("down");
  };
  frmMain.picBoard.Events().MouseUp = [this](int, int, double, double) { log.push_back("up"); };
  QTest::mousePress(Screen(), Qt::LeftButton, Qt::NoModifier, At(300, 300));
  EXPECT_EQ(log, Log({"down", "up"}));
  QTest::mouseRelease(Screen(), Qt::LeftButton, Qt::NoModifier, At(300, 300));
  EXPECT_EQ(log, Log({"down", "up"})) << "nor does a late release count again";
}

TEST_F(BoardViewTest, TheButtonsBesideTheThreeAreNoPress) {
  frmMain.picBoard.Events().MouseDown = [this](int button, int, double, double) {
    log.push_back(std::to_string(button));
  };
  QTest::mouseClick(Screen(), Qt::BackButton, Qt::NoModifier, At(300, 300));
  QTest::mouseClick(Screen(), Qt::MiddleButton, Qt::NoModifier, At(300, 300));
  EXPECT_EQ(log, Log({"4"}));
}

TEST_F(BoardViewTest, AButtonFoundUpEndsThePress) {
  frmMain.picBoard.Events().MouseUp = [this](int, int, double, double) { log.push_back("up"); };
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(300, 300),
                    Board().mapToGlobal(QPointF(300, 300)), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&Board(), &press);
  QMouseEvent move(QEvent::MouseMove, QPointF(310, 300), Board().mapToGlobal(QPointF(310, 300)),
                   Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&Board(), &move);
  EXPECT_EQ(log, Log({"up"}));
}

// Counts paintings and what they covered.
class PaintWatch : public QObject {
 public:
  QRegion region;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(BoardViewTest, OnlyWhatChangedIsPaintedAnew) {
  Label& handle = frmMain.lblHandle(0);
  handle.Move(100, 100);
  handle.SetVisible(true);
  Settle();
  QTest::qWait(20);
  PaintWatch watch;
  Board().installEventFilter(&watch);
  handle.Move(300, 200);
  QTest::qWait(20);
  EXPECT_TRUE(watch.region.contains(QPoint(103, 103)));
  EXPECT_TRUE(watch.region.contains(QPoint(303, 203)));
  EXPECT_FALSE(watch.region.contains(QPoint(600, 400)));
}

// A frame around all of the label leaves what is inside it alone.
TEST_F(BoardViewTest, AFrameThatMovesIsPaintedAnewAlongItsEdges) {
  Shape& frame = frmMain.shpBox;
  frame.Move(100, 100, 300, 200);
  frame.SetVisible(true);
  QTest::qWait(20);
  PaintWatch watch;
  Board().installEventFilter(&watch);
  frame.Move(120, 110);
  QTest::qWait(20);
  EXPECT_TRUE(watch.region.contains(QPoint(100, 200)));
  EXPECT_TRUE(watch.region.contains(QPoint(420, 200)));
  EXPECT_FALSE(watch.region.contains(QPoint(250, 200)));
  EXPECT_FALSE(watch.region.contains(QPoint(600, 400)));
}

TEST_F(BoardViewTest, TransparentHitAreasCostNoPainting) {
  QTest::qWait(20);
  PaintWatch watch;
  Board().installEventFilter(&watch);
  ShowHold(0, 10, 10, 300, 300);
  QTest::qWait(20);
  EXPECT_TRUE(watch.region.isEmpty());
}

}  // namespace
}  // namespace tagwright
