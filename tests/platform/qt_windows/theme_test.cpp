#include "qt/look/theme.h"

#include <QLabel>
#include <QToolButton>

#include "platform/qt_windows/window_fixture.h"
#include "qt/look/icons.h"
#include "qt/look/pointers.h"

namespace tagwright {
namespace {

using ThemeTest = WindowTest;

QImage Drawn(const QString& name) { return ThemedIcon(name).pixmap(QSize(48, 48)).toImage(); }

bool Holds(const QImage& image, const QColor& color) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == color) return true;
    }
  }
  return false;
}

double Contrast(const QColor& a, const QColor& b) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  const auto light = [&](const QColor& c) {
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
  };
  const double high = std::max(light(a), light(b));
  const double low = std::min(light(a), light(b));
  return (high + 0.05) / (low + 0.05);
}

TEST_F(ThemeTest, EveryIconThatAFormNamesExists) {
  int found = 0;
  for (const QWidget* widget : Window().findChildren<QWidget*>()) {
    const QString name = widget->property("iconName").toString();
    if (name.isEmpty()) continue;
    ++found;
    EXPECT_FALSE(ThemedIcon(name).isNull()) << name.toStdString();
  }
  EXPECT_EQ(found, 8 + 3 + 5 + 4 + 3 + 11 + 1);
}

TEST_F(ThemeTest, IconsTakeTheColoursOfTheTheme) {
  EXPECT_TRUE(Holds(Drawn("tool-select"), LightTheme().text));
  UseTheme(Toolkit(), DarkTheme());
  EXPECT_TRUE(Holds(Drawn("tool-select"), DarkTheme().text));
  EXPECT_FALSE(Holds(Drawn("tool-select"), LightTheme().text));
  EXPECT_TRUE(Holds(Drawn("order-front"), DarkTheme().accent));
}

// It stands on a ground of its own, where the light ink of the dark look would not be seen.
TEST_F(ThemeTest, TheProgramsOwnIconIsTheSameInBothLooks) {
  UseTheme(Toolkit(), LightTheme());
  const QImage light = Drawn("application");
  UseTheme(Toolkit(), DarkTheme());
  EXPECT_EQ(Drawn("application"), light);
}

TEST_F(ThemeTest, AnUnknownIconIsNull) { EXPECT_TRUE(ThemedIcon("no-such-icon").isNull()); }

TEST_F(ThemeTest, TextIsReadableInBothLooks) {
  for (const Theme* theme : {&LightTheme(), &DarkTheme()}) {
    EXPECT_GE(Contrast(theme->text, theme->card), 7);
    EXPECT_GE(Contrast(theme->text, theme->field), 7);
    EXPECT_GE(Contrast(theme->muted, theme->card), 4.5);
    EXPECT_GE(Contrast(theme->on_accent, theme->accent), 4.5);
    EXPECT_GE(Contrast(theme->text, theme->soft), 4.5);
  }
}

TEST_F(ThemeTest, PointersAreSharpOnADenseScreen) {
  for (const char* name :
       {"pointer-zoom-in", "pointer-zoom-out", "pointer-barcode", "pointer-field"}) {
    const QCursor pointer = IconPointer(name, 2.0);
    EXPECT_EQ(pointer.pixmap().size(), QSize(48, 48)) << name;
    EXPECT_EQ(pointer.pixmap().devicePixelRatio(), 2.0) << name;
  }
  EXPECT_EQ(IconPointer("pointer-zoom-in", 1.0).hotSpot(), QPoint(10, 10));
  EXPECT_EQ(IconPointer("pointer-barcode", 1.0).hotSpot(), QPoint(7, 7));
}

TEST_F(ThemeTest, PointerCodesHaveTheirShapes) {
  const Qt::CursorShape shapes[] = {
      Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
      Qt::SizeAllCursor,   Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
      Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
      Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};
  int code = 0;
  for (const Qt::CursorShape shape : shapes) {
    EXPECT_EQ(PointerShape(code), shape) << code;
    ++code;
  }
  EXPECT_EQ(code, 16);
  EXPECT_EQ(PointerShape(16), Qt::ArrowCursor);
}

// Samples may have any colour, that of the card too.
TEST_F(ThemeTest, SamplesAreSeenInBothLooks) {
  for (const Theme* theme : {&LightTheme(), &DarkTheme()}) {
    EXPECT_GE(Contrast(theme->sample_rim, theme->card), 3) << theme->dark;
  }
  Front(frmMain.picDrawing);
  for (const Theme* theme : {&LightTheme(), &DarkTheme()}) {
    UseTheme(Toolkit(), *theme);
    Label& sample = frmMain.lblBCol(6);
    const QColor card = theme->card;
    sample.SetBackColor(Rgb(card.red(), card.green(), card.blue()));
    const QImage image = Find("lblBCol_6").grab().toImage();
    EXPECT_EQ(image.pixelColor(image.width() / 2, 0), theme->sample_rim) << theme->dark;
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2), card) << theme->dark;
  }
}

TEST_F(ThemeTest, TheLookFollowsADarkDesktop) {
  UseTheme(Toolkit(), DarkTheme());
  EXPECT_TRUE(CurrentTheme().dark);
  EXPECT_EQ(Toolkit().palette().color(QPalette::Base), DarkTheme().field);
  FollowDesktopTheme(Toolkit());  // the display of the tests is a light one
  EXPECT_FALSE(CurrentTheme().dark);
}

// Counts how often a widget is styled anew.
class StyleWatch : public QObject {
 public:
  int styled = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    styled += event->type() == QEvent::StyleChange;
    return false;
  }
};

// Each window is told that the desktop has another theme, and styling all of them anew is dear.
TEST_F(ThemeTest, AThemeThatChangesIsFollowedOnceForAllWindows) {
  FollowDesktopTheme(Toolkit());
  StyleWatch watch;
  QWidget& widget = Find("txtTool");
  widget.installEventFilter(&watch);
  const auto told = [&](int windows) {
    watch.styled = 0;
    for (int i = 0; i < windows; ++i) {
      QEvent change(QEvent::ThemeChange);
      QCoreApplication::sendEvent(&Window(), &change);
    }
    EXPECT_EQ(watch.styled, 0) << "not in the middle of telling";
    Settle();
    return watch.styled;
  };
  UseTheme(Toolkit(), DarkTheme());
  const int once = told(1);
  EXPECT_GT(once, 0);
  EXPECT_FALSE(CurrentTheme().dark);
  EXPECT_EQ(told(5), once);
  UseTheme(Toolkit(), DarkTheme());
  EXPECT_EQ(told(1), once) << "the next change is followed too";
  EXPECT_FALSE(CurrentTheme().dark);
}

}  // namespace
}  // namespace tagwright
