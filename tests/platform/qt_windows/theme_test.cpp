#include "platform/qt/theme.h"

#include <QLabel>
#include <QToolButton>

#include "platform/qt_windows/window_fixture.h"

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
  EXPECT_EQ(PointerShape(0), Qt::ArrowCursor);
  EXPECT_EQ(PointerShape(1), Qt::ArrowCursor);
  EXPECT_EQ(PointerShape(2), Qt::CrossCursor);
  EXPECT_EQ(PointerShape(3), Qt::IBeamCursor);
  EXPECT_EQ(PointerShape(6), Qt::SizeBDiagCursor);
  EXPECT_EQ(PointerShape(8), Qt::SizeFDiagCursor);
  EXPECT_EQ(PointerShape(11), Qt::WaitCursor);
  EXPECT_EQ(PointerShape(14), Qt::WhatsThisCursor);
}

TEST_F(ThemeTest, TheLookFollowsADarkDesktop) {
  UseTheme(Toolkit(), DarkTheme());
  EXPECT_TRUE(CurrentTheme().dark);
  EXPECT_EQ(Toolkit().palette().color(QPalette::Base), DarkTheme().field);
  FollowDesktopTheme(Toolkit());  // the display of the tests is a light one
  EXPECT_FALSE(CurrentTheme().dark);
}

}  // namespace
}  // namespace tagwright
