// Pictures that the toolkit's surfaces can paint.
#pragma once

#include <QImage>
#include <QRectF>
#include <memory>
#include <string>
#include <string_view>

#include "platform/painting/picture.h"

class QPainter;

namespace tagwright {

// A picture that draws itself, stretched into `box` in the painter's units.
class PaintedPicture : public Picture {
 public:
  virtual void Paint(QPainter& painter, const QRectF& box) const = 0;
};

// A picture of pixels. `digest` tells equal files, so that a page can store their pixels once.
class PixelPicture : public PaintedPicture {
 public:
  PixelPicture(QImage pixels, std::string digest, bool lossless);
  void Paint(QPainter& painter, const QRectF& box) const override;

  const QImage pixels;
  const std::string digest;
  const bool lossless;  // of few colours: a page must not compress it with losses
};

// Draws pixels stretched into a box; a side below 0 turns them over. On a raster, pixels that are
// to shrink far are averaged first. On paper they keep their own resolution.
void PaintPixels(QPainter& painter, const QRectF& box, const QImage& pixels);

// The picture in `bytes`: jpg, gif or wmf, told by their content; null when unreadable or so large
// that its pixels would not fit a computer of this day. Only the first frame of a gif is read, and
// a jpg is not turned by its EXIF data.
PicturePtr ReadPicture(const std::string& bytes, std::string_view name);

}  // namespace tagwright
