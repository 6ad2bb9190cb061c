#include "qt/pictures/pictures.h"

#include <QBuffer>
#include <QByteArray>
#include <QCryptographicHash>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <cmath>
#include <cstdint>

#include "qt/pictures/metafiles.h"

namespace tagwright {
namespace {

constexpr int kLargestSide = 30000;               // pixels
constexpr std::int64_t kMostPixels = 64'000'000;  // 256 MB once decoded, the toolkit's own limit
constexpr double kShrinkByAverage = 2;

// Beyond a shrink by two, drawing would skip whole pixels of the source.
QImage ShrunkFor(const QImage& pixels, const QSizeF& size) {
  const QSize target(qMax(1, qRound(std::abs(size.width()))),
                     qMax(1, qRound(std::abs(size.height()))));
  if (pixels.width() < target.width() * kShrinkByAverage ||
      pixels.height() < target.height() * kShrinkByAverage) {
    return pixels;
  }
  return pixels.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool Raster(const QPainter& painter) {
  return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

// A box is turned over by its sign, the drawing call only by a transform.
void DrawInto(QPainter& painter, const QRectF& box, const QImage& pixels) {
  painter.save();
  painter.translate(box.topLeft());
  painter.scale(box.width() < 0 ? -1 : 1, box.height() < 0 ? -1 : 1);
  painter.drawImage(QRectF(0, 0, std::abs(box.width()), std::abs(box.height())), pixels);
  painter.restore();
}

bool StartsWith(const std::string& bytes, std::string_view mark) {
  return std::string_view(bytes).substr(0, mark.size()) == mark;
}

bool Reasonable(const QSize& size) {
  return size.width() > 0 && size.height() > 0 && size.width() <= kLargestSide &&
         size.height() <= kLargestSide && std::int64_t(size.width()) * size.height() <= kMostPixels;
}

// 32 bits with transparency where there is any: every painter draws these without a conversion.
QImage Plain(const QImage& image) {
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
}

std::string DigestOf(const QByteArray& bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toStdString();
}

PicturePtr ReadPixels(const std::string& bytes, const char* format) {
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  QImageReader reader(&buffer, format);
  reader.setAutoTransform(false);
  if (!Reasonable(reader.size())) return nullptr;
  const QImage image = reader.read();
  if (!Reasonable(image.size())) return nullptr;
  return std::make_shared<PixelPicture>(Plain(image), DigestOf(data),
                                        std::string_view(format) == "gif");
}

}  // namespace

PixelPicture::PixelPicture(QImage pixels_in, std::string digest_in, bool lossless_in)
    : pixels(std::move(pixels_in)), digest(std::move(digest_in)), lossless(lossless_in) {
  Width = pixels.width() * kHundredthsPerPixel;
  Height = pixels.height() * kHundredthsPerPixel;
}

void PixelPicture::Paint(QPainter& painter, const QRectF& box) const {
  PaintPixels(painter, box, pixels);
}

void PaintPixels(QPainter& painter, const QRectF& box, const QImage& pixels) {
  if (box.width() == 0 || box.height() == 0) return;
  if (!Raster(painter)) {
    DrawInto(painter, box, pixels);
    return;
  }
  DrawInto(painter, box, ShrunkFor(pixels, painter.deviceTransform().mapRect(box).size()));
}

// The content decides; a name can lie. A metafile without a placeable header has no mark to go by.
PicturePtr ReadPicture(const std::string& bytes, std::string_view) {
  if (StartsWith(bytes, "\xFF\xD8\xFF")) return ReadPixels(bytes, "jpeg");
  if (StartsWith(bytes, "GIF8")) return ReadPixels(bytes, "gif");
  return ReadMetafile(bytes);
}

}  // namespace tagwright
