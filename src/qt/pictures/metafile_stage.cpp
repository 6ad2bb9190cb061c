#include "qt/pictures/metafile_stage.h"

namespace tagwright {
const QImage* BitmapOf(const Stage& stage, const wmfBMP& bitmap) {
  for (const QImage& known : stage.bitmaps) {
    if (&known == bitmap.data) return &known;
  }
  return nullptr;
}

}  // namespace tagwright
