#include "qt/pictures/metafile_bitmaps.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/pictures/metafile_pens.h"
#include "qt/pictures/metafile_stage.h"
#include "qt/pictures/pictures.h"

namespace tagwright {
namespace {

constexpr std::int64_t kMostBitmapPixels = 25'000'000;  // of all bitmaps of one file together

QByteArray BitmapBytes(const Stage& stage, const wmfBMP_Read_t& source) {
  if (source.buffer) {
    return QByteArray(reinterpret_cast<const char*>(source.buffer), std::max(0L, source.length));
  }
  const auto size = static_cast<long>(stage.bytes->size());
  const long offset = std::clamp(source.offset, 0L, size);
  return QByteArray(stage.bytes->data() + offset, std::clamp(source.length, 0L, size - offset));
}

QImage DecodeBitmap(Stage& stage, const QByteArray& bytes) {
  QByteArray data = bytes;
  QBuffer buffer(&data);
  QImageReader reader(&buffer, "dib");
  const QSize size = reader.size();
  stage.bitmap_pixels += std::int64_t(std::max(size.width(), 0)) * std::max(size.height(), 0);
  return stage.bitmap_pixels > kMostBitmapPixels ? QImage() : reader.read();
}

void ReadBitmap(wmfAPI* api, wmfBMP_Read_t* source) {
  Stage& stage = StageOf(api);
  QImage image = DecodeBitmap(stage, BitmapBytes(stage, *source));
  source->bmp.data = nullptr;
  if (image.isNull()) return;
  source->bmp.width = static_cast<U16>(std::min(image.width(), 0xFFFF));
  source->bmp.height = static_cast<U16>(std::min(image.height(), 0xFFFF));
  source->bmp.data = &stage.bitmaps.emplace_back(std::move(image));
}

void DrawBitmap(wmfAPI* api, wmfBMP_Draw_t* draw) {
  const QImage* image = BitmapOf(StageOf(api), draw->bmp);
  if (!PainterOf(api) || !image) return;
  const QRect crop(draw->crop.x, draw->crop.y, draw->crop.w, draw->crop.h);
  const QImage part = crop == image->rect() ? *image : image->copy(crop & image->rect());
  const QSizeF size(draw->crop.w * std::abs(draw->pixel_width),
                    draw->crop.h * std::abs(draw->pixel_height));
  if (!part.isNull()) PaintPixels(*PainterOf(api), QRectF(PointOf(draw->pt), size), part);
}

// The library may free a copy of its record twice; the stage frees each bitmap once.
void FreeBitmap(wmfAPI*, wmfBMP* bitmap) { bitmap->data = nullptr; }

void DrawOperation(wmfAPI* api, wmfROP_Draw_t* draw) {
  Stage& stage = StageOf(api);
  if (!stage.painter) return;
  const QRectF box = BoxOf(draw->TL, draw->BR);
  if (draw->ROP == PATCOPY) stage.painter->fillRect(box, BrushOf(*draw->dc, stage));
  if (draw->ROP == BLACKNESS) stage.painter->fillRect(box, Qt::black);
  if (draw->ROP == WHITENESS) stage.painter->fillRect(box, Qt::white);
}

}  // namespace

void AddBitmaps(wmfFunctionReference& functions) {
  functions.rop_draw = DrawOperation;
  functions.bmp_draw = DrawBitmap;
  functions.bmp_read = ReadBitmap;
  functions.bmp_free = FreeBitmap;
}

}  // namespace tagwright
