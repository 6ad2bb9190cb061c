// The stage that one playing of a metafile draws on, and what is wanted of the library's records.
//
// The library's headers define short names, such as U8, that the toolkit's use for their own. So
// they come last here, and the toolkit's headers that the sources of metafiles need stand before
// them.
#pragma once

#include <QBrush>
#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <cstdint>
#include <deque>
#include <string>
#include <unordered_map>

#include "platform/painting/fonts.h"

// Last.
#include <libwmf/api.h>
#include <libwmf/macro.h>

namespace tagwright {

// A font of the drawing, copied when it was made.
struct MadeFont {
  FontSpec wanted;  // of one point
  bool symbol = false;
  bool underlined = false;
  bool struck_out = false;
  double degrees = 0;  // against the clock
};

// What one playing of a file draws on. The library hands every call of the drawing its API record,
// which leads here.
struct Stage {
  QPainter* painter = nullptr;  // null while a file is only checked
  const std::string* bytes = nullptr;
  bool framed = false;  // the next rectangle is the frame
  QRectF box;           // the picture in the library's units
  double unit = 1;      // of the painter in the library's, for the thinnest pen
  double stretch = 1;   // of text, where the library's units are wider than high or the reverse
  // The library lets a drawing free or replace an object while it is selected, and then hands out
  // what lies in its place. So no pointer inside its objects is followed: fonts are those that were
  // made at an address, and a bitmap must be one of these.
  std::unordered_map<const wmfFont*, MadeFont> fonts;
  std::deque<QImage> bitmaps;
  std::int64_t bitmap_pixels = 0;
};

inline Stage& StageOf(wmfAPI* api) { return *static_cast<Stage*>(api->device_data); }
inline QPainter* PainterOf(wmfAPI* api) { return StageOf(api).painter; }

inline QPointF PointOf(const wmfD_Coord& at) { return QPointF(at.x, at.y); }
inline QRectF BoxOf(const wmfD_Coord& top_left, const wmfD_Coord& bottom_right) {
  return QRectF(PointOf(top_left), PointOf(bottom_right)).normalized();
}
inline QColor ColorOf(const wmfRGB& color) { return QColor(color.r, color.g, color.b); }

// The stage's bitmap that the record means; null when it has none or one of nobody's.
const QImage* BitmapOf(const Stage& stage, const wmfBMP& bitmap);

}  // namespace tagwright
