#include "qt/look/icons.h"

#include <QByteArray>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <utility>

#include "qt/look/drawings.h"
#include "qt/look/theme.h"

namespace tagwright {
namespace {

// The two colours that the drawings of the icon family are made in, replaced by the theme's.
constexpr char kInk[] = "#1d2430";
constexpr char kAccent[] = "#2f6bd8";

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

}  // namespace

QIcon ThemedIcon(const QString& name) {
  if (!HasDrawing(name)) return {};
  return QIcon(new ThemedIconEngine(name));
}

}  // namespace tagwright
