#include "qt/look/theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QWidget>

// Resources of a static library are linked only when somebody asks for them; the macro must stand
// outside every namespace.
static void LinkIcons() { Q_INIT_RESOURCE(icons); }

namespace tagwright {
namespace {

// The two colours that the drawings of the icon family are made in, replaced by the theme's.
constexpr char kInk[] = "#1d2430";
constexpr char kAccent[] = "#2f6bd8";

constexpr int kPointerSize = 24;
constexpr int kDarkestLightWindow = 128;
constexpr double kFadedOpacity = 0.36;

const Theme* theme_in_force = nullptr;

// --- icons --------------------------------------------------------------------------------------

QByteArray Drawing(const QString& name) {
  LinkIcons();
  QFile file(":/icons/" + name + ".svg");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void PaintDrawing(QPainter& painter, const QByteArray& drawing, const QRectF& box) {
  QSvgRenderer renderer(drawing);
  renderer.setAspectRatioMode(Qt::KeepAspectRatio);
  renderer.render(&painter, box);
}

QPixmap Raster(const QByteArray& drawing, const QSize& device_size, qreal opacity) {
  QPixmap pixmap(device_size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setOpacity(opacity);
  PaintDrawing(painter, drawing, QRectF(QPointF(), QSizeF(device_size)));
  return pixmap;
}

// Draws at the size that is asked for, in the colours of the moment: one drawing serves every
// scale factor and both looks.
class ThemedIconEngine : public QIconEngine {
 public:
  explicit ThemedIconEngine(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1.0);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
    const bool faded = mode == QIcon::Disabled;
    const Theme& theme = CurrentTheme();
    const QString key = QString("%1 %2x%3 %4 %5")
                            .arg(name_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(theme.dark)
                            .arg(faded);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    QByteArray drawing = Drawing(name_);
    drawing.replace(kInk, theme.text.name().toUtf8());
    drawing.replace(kAccent, theme.accent.name().toUtf8());
    pixmap = Raster(drawing, size, faded ? kFadedOpacity : 1.0);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
  }

  QIconEngine* clone() const override { return new ThemedIconEngine(*this); }

 private:
  QString name_;
};

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
    QColor faded = theme.text;
    faded.setAlphaF(static_cast<float>(kFadedOpacity + 0.1));
    palette.setColor(QPalette::Disabled, role, faded);
  }
  return palette;
}

// Colours stand as %name% and are filled in from the theme.
constexpr char kStyleSheet[] = R"(
QMainWindow, QDialog { background: %window%; }
QLabel { background: transparent; }
QLabel[tone="caption"] { color: %muted%; }
QLabel[tone="title"] { font-size: 16pt; font-weight: 600; }
QFrame[tone="card"] { background: %card%; border: 1px solid %border%; border-radius: 8px; }
QFrame[tone="flyout"] { background: %card%; border: 1px solid %field_rim%; border-radius: 8px; }
QFrame[tone="rule"] { background: %border%; border: none; }
QFrame[tone="status"] { background: transparent; border: none; }

QMenuBar { background: %window%; padding: 2px 6px; }
QMenuBar::item { background: transparent; padding: 4px 10px; border-radius: 5px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: %pressed%; }
QMenu { background: %card%; border: 1px solid %field_rim%; padding: 5px; }
QMenu::item { padding: 5px 26px 5px 26px; border-radius: 5px; }
QMenu::item:selected { background: %soft%; }
QMenu::item:disabled { color: %faded%; }
QMenu::separator { height: 1px; background: %border%; margin: 5px 8px; }
QMenu::indicator { width: 16px; height: 16px; left: 5px; }
QMenu::indicator:checked { image: url(:/icons/check-mark-%tone%.svg); }
QMenu::right-arrow { image: url(:/icons/chevron-right-%tone%.svg); width: 12px; right: 6px; }

QLineEdit, QComboBox, QPlainTextEdit, QListWidget {
  background: %field%; color: %text%; border: 1px solid %field_rim%; border-radius: 5px;
  selection-background-color: %accent%; selection-color: %on_accent%;
}
QLineEdit, QComboBox { padding: 2px 6px; min-height: 20px; }
QPlainTextEdit { padding: 1px 2px; }
QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QListWidget:focus {
  border: 1px solid %accent%;
}
QLineEdit:disabled, QComboBox:disabled, QPlainTextEdit:disabled { color: %faded%; }
QComboBox { padding-right: 2px; combobox-popup: 0; }
QComboBox:hover:!focus { border-color: %muted%; }
QComboBox::drop-down { border: none; width: 20px; subcontrol-position: right center; }
QComboBox::down-arrow { image: url(:/icons/chevron-down-%tone%.svg); width: 12px; height: 12px; }
QComboBox QLineEdit { border: none; padding: 0px; background: transparent; min-height: 0px; }
QComboBox QAbstractItemView {
  background: %card%; border: 1px solid %field_rim%; padding: 3px; outline: none;
  selection-background-color: %soft%; selection-color: %text%;
}
QComboBox QAbstractItemView::item { min-height: 24px; padding: 0px 4px; border-radius: 4px; }
QComboBox QAbstractItemView::item:selected, QComboBox QAbstractItemView::item:hover {
  background: %soft%; color: %text%;
}
QListWidget { outline: none; padding: 2px; }
QListWidget::item { padding: 2px 4px; border-radius: 4px; }
QListWidget::item:selected { background: %soft%; color: %text%; }

QPushButton {
  background: %card%; color: %text%; border: 1px solid %field_rim%; border-radius: 5px;
  padding: 2px 12px; min-height: 20px;
}
QPushButton:hover { background: %hover%; }
QPushButton:pressed { background: %pressed%; }
QPushButton:focus { border: 1px solid %accent%; }
QPushButton:disabled { color: %faded%; border-color: %border%; }
QPushButton[tone="accent"] {
  background: %accent%; color: %on_accent%; border-color: %accent%; font-weight: 600;
}
QPushButton[tone="accent"]:hover, QPushButton[tone="accent"]:focus { border-color: %text%; }
QPushButton[tone="accent"]:disabled { background: %pressed%; color: %faded%; border-color: %border%; }

QToolButton { background: transparent; border: 1px solid transparent; border-radius: 6px; }
QToolButton:hover { background: %hover%; border-color: %border%; }
QToolButton:pressed { background: %pressed%; }
QToolButton:checked { background: %soft%; border-color: %field_rim%; }
QToolButton:focus { border-color: %accent%; }

QCheckBox { spacing: 7px; }
QCheckBox::indicator {
  width: 15px; height: 15px; border: 1px solid %field_rim%; border-radius: 4px; background: %field%;
}
QCheckBox::indicator:hover { border-color: %muted%; }
QCheckBox:focus::indicator { border-color: %accent%; }
QCheckBox::indicator:checked {
  background: %accent%; border-color: %accent%; image: url(:/icons/%tick%.svg);
}
QCheckBox::indicator:indeterminate { background: %pressed%; }
QCheckBox::indicator:disabled { background: %window%; }
QCheckBox:disabled { color: %faded%; }

QScrollBar { background: %window%; border: none; margin: 0px; }
QScrollBar::handle { background: %thumb%; border-radius: 4px; margin: 4px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: %muted%; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QToolButton#cmdXC { background: %window%; border-radius: 0px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QDialogButtonBox QPushButton { min-width: 72px; }
QToolTip { background: %card%; color: %text%; border: 1px solid %field_rim%; padding: 3px 6px; }
)";

QString StyleSheetOf(const Theme& theme) {
  QColor faded = theme.text;
  faded.setAlphaF(static_cast<float>(kFadedOpacity + 0.1));
  const std::pair<const char*, QString> colours[] = {
      {"window", theme.window.name()},
      {"card", theme.card.name()},
      {"border", theme.border.name()},
      {"field_rim", theme.field_rim.name()},
      {"field", theme.field.name()},
      {"hover", theme.hover.name()},
      {"pressed", theme.pressed.name()},
      {"text", theme.text.name()},
      {"muted", theme.muted.name()},
      {"accent", theme.accent.name()},
      {"on_accent", theme.on_accent.name()},
      {"soft", theme.soft.name()},
      {"thumb", theme.field_rim.name()},
      {"faded", faded.name(QColor::HexArgb)},
      {"tone", theme.dark ? "dark" : "light"},
      {"tick", theme.dark ? "check-mark-ink" : "check-mark"},
  };
  QString sheet = QString::fromLatin1(kStyleSheet);
  for (const auto& [name, colour] : colours) sheet.replace(QString("%%1%").arg(name), colour);
  return sheet;
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

void UseTheme(QApplication& application, const Theme& theme) {
  LinkIcons();
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

QIcon ThemedIcon(const QString& name) {
  LinkIcons();
  if (!QFile::exists(":/icons/" + name + ".svg")) return {};
  return QIcon(new ThemedIconEngine(name));
}

QCursor IconPointer(const QString& name, qreal device_pixel_ratio) {
  constexpr int kLensCentre = 10;
  constexpr int kCrossCentre = 7;
  QPixmap pixmap =
      Raster(Drawing(name), QSize(kPointerSize, kPointerSize) * device_pixel_ratio, 1.0);
  pixmap.setDevicePixelRatio(device_pixel_ratio);
  const int hot = name.startsWith("pointer-zoom") ? kLensCentre : kCrossCentre;
  return QCursor(pixmap, hot, hot);
}

Qt::CursorShape PointerShape(int code) {
  switch (code) {
    case 2:
      return Qt::CrossCursor;
    case 3:
      return Qt::IBeamCursor;
    case 4:
    case 5:
      return Qt::SizeAllCursor;
    case 6:
      return Qt::SizeBDiagCursor;
    case 7:
      return Qt::SizeVerCursor;
    case 8:
      return Qt::SizeFDiagCursor;
    case 9:
      return Qt::SizeHorCursor;
    case 10:
      return Qt::UpArrowCursor;
    case 11:
      return Qt::WaitCursor;
    case 12:
      return Qt::ForbiddenCursor;
    case 13:
      return Qt::BusyCursor;
    case 14:
      return Qt::WhatsThisCursor;
    case 15:
      return Qt::SizeAllCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace tagwright
