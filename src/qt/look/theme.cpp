#include "qt/look/theme.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

#include "qt/look/style_sheet.h"

namespace tagwright {
namespace {

constexpr int kDarkestLightWindow = 128;

const Theme* theme_in_force = nullptr;

// --- style --------------------------------------------------------------------------------------

QPalette PaletteOf(const Theme& theme) {
  QPalette palette(theme.text, theme.card, theme.border, theme.border, theme.border, theme.text,
                   theme.text, theme.field, theme.window);
  palette.setColor(QPalette::AlternateBase, theme.hover);
  palette.setColor(QPalette::ToolTipBase, theme.card);
  palette.setColor(QPalette::ToolTipText, theme.text);
  palette.setColor(QPalette::Highlight, theme.accent);
  palette.setColor(QPalette::HighlightedText, theme.on_accent);
  palette.setColor(QPalette::Link, theme.accent);
  // What a pick list shows beside its rows is a text like any other.
  palette.setColor(QPalette::PlaceholderText, theme.text);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, FadedText(theme));
  }
  return palette;
}

// The desktop's own palette, as if the program had never set one.
QPalette DesktopPalette(QApplication& application) {
  application.setPalette(QPalette());
  return application.palette();
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kDarkestLightWindow;
}

class ThemeFollower : public QObject {
 public:
  explicit ThemeFollower(QApplication& application)
      : QObject(&application), application_(application) {}

  void Follow() {
    const bool dark = IsDark(DesktopPalette(application_));
    UseTheme(application_, dark ? DarkTheme() : LightTheme());
  }

  // Every window is told of a change; the first one is enough.
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::ThemeChange && !waiting_) {
      waiting_ = true;
      QMetaObject::invokeMethod(
          this,
          [this] {
            Follow();
            waiting_ = false;
          },
          Qt::QueuedConnection);
    }
    return QObject::eventFilter(object, event);
  }

 private:
  QApplication& application_;
  bool waiting_ = false;
};

}  // namespace

const Theme& LightTheme() {
  static const Theme theme{
      .window = QColor("#eef0f4"),
      .card = QColor("#ffffff"),
      .border = QColor("#d9dee6"),
      .field = QColor("#ffffff"),
      .field_rim = QColor("#c2cad6"),
      .sample_rim = QColor("#8792a5"),
      .hover = QColor("#f1f4f9"),
      .pressed = QColor("#dfe5ee"),
      .text = QColor("#1d2430"),
      .muted = QColor("#596476"),
      .accent = QColor("#2f6bd8"),
      .on_accent = QColor("#ffffff"),
      .soft = QColor("#dde8fb"),
      .dark = false,
  };
  return theme;
}

const Theme& DarkTheme() {
  static const Theme theme{
      .window = QColor("#1c2027"),
      .card = QColor("#262b34"),
      .border = QColor("#363d49"),
      .field = QColor("#1f242c"),
      .field_rim = QColor("#4b5566"),
      .sample_rim = QColor("#8d98ab"),
      .hover = QColor("#303744"),
      .pressed = QColor("#3a4352"),
      .text = QColor("#e6e9ef"),
      .muted = QColor("#a5afbf"),
      .accent = QColor("#7aa7ff"),
      .on_accent = QColor("#10151d"),
      .soft = QColor("#33476b"),
      .dark = true,
  };
  return theme;
}

const Theme& CurrentTheme() { return theme_in_force ? *theme_in_force : LightTheme(); }

QColor FadedText(const Theme& theme) {
  QColor faded = theme.text;
  faded.setAlphaF(static_cast<float>(kFadedOpacity + 0.1));
  return faded;
}

void UseTheme(QApplication& application, const Theme& theme) {
  theme_in_force = &theme;
  if (application.style()->objectName() != "fusion") {
    application.setStyle(QStyleFactory::create("Fusion"));
  }
  application.setPalette(PaletteOf(theme));
  application.setStyleSheet(StyleSheetOf(theme));
  for (QWidget* window : QApplication::topLevelWidgets()) window->update();
}

void FollowDesktopTheme(QApplication& application) {
  auto* follower = new ThemeFollower(application);
  application.installEventFilter(follower);
  follower->Follow();
}

}  // namespace tagwright
