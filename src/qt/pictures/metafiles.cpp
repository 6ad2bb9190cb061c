#include "qt/pictures/metafiles.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <deque>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/painting/metafile_records.h"
#include "platform/painting/scale.h"
#include "platform/text/text.h"
#include "qt/fonts/fonts.h"
#include "qt/pictures/pictures.h"

// Last: it defines short names, such as U8, that the toolkit's headers use for their own.
#include <libwmf/api.h>
#include <libwmf/macro.h>

namespace tagwright {
namespace {

constexpr std::int64_t kMostBitmapPixels = 25'000'000;  // of all bitmaps of one file together
constexpr double kHatchPixels = 8;                      // one hatch pattern at 96 an inch
constexpr double kHatchesPerBox = 50;                   // so many lie across the picture

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

Stage& StageOf(wmfAPI* api) { return *static_cast<Stage*>(api->device_data); }
QPainter* PainterOf(wmfAPI* api) { return StageOf(api).painter; }

QPointF PointOf(const wmfD_Coord& at) { return QPointF(at.x, at.y); }
QRectF BoxOf(const wmfD_Coord& top_left, const wmfD_Coord& bottom_right) {
  return QRectF(PointOf(top_left), PointOf(bottom_right)).normalized();
}
QColor ColorOf(const wmfRGB& color) { return QColor(color.r, color.g, color.b); }

// --- pens and brushes ---------------------------------------------------------------------------

Qt::PenStyle PenStyleOf(int style) {
  switch (style) {
    case PS_DASH:
      return Qt::DashLine;
    case PS_DOT:
      return Qt::DotLine;
    case PS_DASHDOT:
      return Qt::DashDotLine;
    case PS_DASHDOTDOT:
      return Qt::DashDotDotLine;
    case PS_NULL:
      return Qt::NoPen;
    default:
      return Qt::SolidLine;
  }
}

Qt::PenCapStyle CapOf(int cap) {
  if (cap == PS_ENDCAP_SQUARE) return Qt::SquareCap;
  return cap == PS_ENDCAP_FLAT ? Qt::FlatCap : Qt::RoundCap;
}

Qt::PenJoinStyle JoinOf(int join) {
  if (join == PS_JOIN_MITER) return Qt::MiterJoin;
  return join == PS_JOIN_BEVEL ? Qt::BevelJoin : Qt::RoundJoin;
}

// However thin a pen is told, it draws one pixel.
QPen PenOf(const wmfDC& dc, double thinnest) {
  if (!dc.pen) return QPen(Qt::NoPen);
  const double width = std::max((std::abs(dc.pen->width) + std::abs(dc.pen->height)) / 2, thinnest);
  return QPen(ColorOf(dc.pen->lopnColor), width, PenStyleOf(WMF_PEN_STYLE(dc.pen)),
              CapOf(WMF_PEN_ENDCAP(dc.pen)), JoinOf(WMF_PEN_JOIN(dc.pen)));
}

Qt::BrushStyle HatchOf(int hatch) {
  switch (hatch) {
    case HS_HORIZONTAL:
      return Qt::HorPattern;
    case HS_VERTICAL:
      return Qt::VerPattern;
    case HS_FDIAGONAL:
      return Qt::FDiagPattern;
    case HS_BDIAGONAL:
      return Qt::BDiagPattern;
    case HS_CROSS:
      return Qt::CrossPattern;
    default:
      return Qt::DiagCrossPattern;
  }
}

const QImage* BitmapOf(const Stage& stage, const wmfBMP& bitmap) {
  for (const QImage& known : stage.bitmaps) {
    if (&known == bitmap.data) return &known;
  }
  return nullptr;
}

// Patterns grow with the picture: in pixels of the device they would be grey on paper.
QBrush Patterned(QBrush brush, const Stage& stage) {
  const double side = std::max(stage.box.width(), stage.box.height()) / kHatchesPerBox;
  brush.setTransform(QTransform::fromScale(side / kHatchPixels, side / kHatchPixels));
  return brush;
}

QBrush BrushOf(const wmfDC& dc, const Stage& stage) {
  if (!dc.brush) return Qt::NoBrush;
  switch (dc.brush->lbStyle) {
    case BS_SOLID:
      return ColorOf(dc.brush->lbColor);
    case BS_HATCHED:
      return Patterned(QBrush(ColorOf(dc.brush->lbColor), HatchOf(dc.brush->lbHatch)), stage);
    case BS_PATTERN:
    case BS_DIBPATTERN: {
      const QImage* tile = BitmapOf(stage, dc.brush->bmp);
      return tile ? Patterned(QBrush(*tile), stage) : QBrush(Qt::NoBrush);
    }
    default:
      return Qt::NoBrush;
  }
}

// Between the lines of a hatch lies the background colour where the drawing asks for it.
void FillBackground(QPainter& painter, const wmfDC& dc, const QPainterPath& path) {
  if (dc.brush && dc.brush->lbStyle == BS_HATCHED && dc.bgmode == OPAQUE) {
    painter.fillPath(path, ColorOf(dc.bgcolor));
  }
}

void DrawFilled(wmfAPI* api, const wmfDC& dc, QPainterPath path) {
  const Stage& stage = StageOf(api);
  if (!stage.painter) return;
  path.setFillRule(dc.polyfillmode == WINDING ? Qt::WindingFill : Qt::OddEvenFill);
  FillBackground(*stage.painter, dc, path);
  stage.painter->setPen(PenOf(dc, stage.unit));
  stage.painter->setBrush(BrushOf(dc, stage));
  stage.painter->drawPath(path);
}

void DrawOpen(wmfAPI* api, const wmfDC& dc, const QPainterPath& path) {
  const Stage& stage = StageOf(api);
  if (stage.painter) stage.painter->strokePath(path, PenOf(dc, stage.unit));
}

// --- lines and shapes ---------------------------------------------------------------------------

QPolygonF PolygonOf(const wmfD_Coord* points, int count) {
  QPolygonF polygon;
  polygon.reserve(count);
  for (int i = 0; i < count; ++i) polygon.append(PointOf(points[i]));
  return polygon;
}

void DrawLine(wmfAPI* api, wmfDrawLine_t* line) {
  QPainterPath path(PointOf(line->from));
  path.lineTo(PointOf(line->to));
  DrawOpen(api, *line->dc, path);
}

void DrawPolyLine(wmfAPI* api, wmfPolyLine_t* lines) {
  QPainterPath path;
  path.addPolygon(PolygonOf(lines->pt, lines->count));
  DrawOpen(api, *lines->dc, path);
}

void DrawPolygon(wmfAPI* api, wmfPolyLine_t* polygon) {
  QPainterPath path;
  path.addPolygon(PolygonOf(polygon->pt, polygon->count));
  path.closeSubpath();
  DrawFilled(api, *polygon->dc, path);
}

void DrawPolyPolygon(wmfAPI* api, wmfPolyPoly_t* polygons) {
  QPainterPath path;
  for (int i = 0; i < polygons->npoly; ++i) {
    path.addPolygon(PolygonOf(polygons->pt[i], polygons->count[i]));
    path.closeSubpath();
  }
  DrawFilled(api, *polygons->dc, path);
}

void DrawRectangle(wmfAPI* api, wmfDrawRectangle_t* shape) {
  if (std::exchange(StageOf(api).framed, false)) {
    StageOf(api).box = BoxOf(shape->TL, shape->BR);
    return;
  }
  QPainterPath path;
  path.addRoundedRect(BoxOf(shape->TL, shape->BR), std::abs(shape->width) / 2,
                      std::abs(shape->height) / 2);
  DrawFilled(api, *shape->dc, path);
}

void DrawEllipse(wmfAPI* api, wmfDrawArc_t* shape) {
  QPainterPath path;
  path.addEllipse(BoxOf(shape->TL, shape->BR));
  DrawFilled(api, *shape->dc, path);
}

// The angle of a ray from the middle of the box, in degrees against the clock, on the circle that
// the ellipse is stretched from.
double AngleOf(const QRectF& box, const wmfD_Coord& ray) {
  const double x = ray.x / std::max(box.width(), 1e-9);
  const double y = ray.y / std::max(box.height(), 1e-9);
  return std::atan2(-y, x) * 180 / M_PI;
}

struct Arc {
  QRectF box;
  double start, sweep;
};

// Against the clock from the drawing's first ray to its second, which the library hands on by each
// other's name, for a way with the clock; equal rays make the whole ellipse.
Arc ArcOf(const wmfDrawArc_t& arc) {
  const QRectF box = BoxOf(arc.TL, arc.BR);
  const double start = AngleOf(box, arc.end);
  double sweep = AngleOf(box, arc.start) - start;
  if (sweep <= 0) sweep += 360;
  return {box, start, sweep};
}

void DrawArc(wmfAPI* api, wmfDrawArc_t* shape) {
  const Arc arc = ArcOf(*shape);
  QPainterPath path;
  path.arcMoveTo(arc.box, arc.start);
  path.arcTo(arc.box, arc.start, arc.sweep);
  DrawOpen(api, *shape->dc, path);
}

void DrawPie(wmfAPI* api, wmfDrawArc_t* shape) {
  const Arc arc = ArcOf(*shape);
  QPainterPath path(arc.box.center());
  path.arcTo(arc.box, arc.start, arc.sweep);
  path.closeSubpath();
  DrawFilled(api, *shape->dc, path);
}

void DrawChord(wmfAPI* api, wmfDrawArc_t* shape) {
  const Arc arc = ArcOf(*shape);
  QPainterPath path;
  path.arcMoveTo(arc.box, arc.start);
  path.arcTo(arc.box, arc.start, arc.sweep);
  path.closeSubpath();
  DrawFilled(api, *shape->dc, path);
}

void DrawPixel(wmfAPI* api, wmfDrawPixel_t* pixel) {
  const QRectF box(PointOf(pixel->pt), QSizeF(pixel->pixel_width, pixel->pixel_height));
  if (PainterOf(api)) PainterOf(api)->fillRect(box.normalized(), ColorOf(pixel->color));
}

// Filling up to a colour needs pixels to look at; a drawing in vectors has none.
void Flood(wmfAPI*, wmfFlood_t*) {}

// --- bitmaps ------------------------------------------------------------------------------------

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

// --- text ---------------------------------------------------------------------------------------

FontSpec SpecOf(const wmfFont& font, const std::string& name) {
  constexpr int kSemiBold = 600;
  return {name, 1, font.lfWeight >= kSemiBold, font.lfItalic != 0};
}

void MapFont(wmfAPI* api, wmfFont* font) {
  if (!font) return;
  const std::string name = font->lfFaceName ? FromCodePage(font->lfFaceName) : "";
  const bool symbol = EqualIgnoringCase(name, "Symbol");
  StageOf(api).fonts[font] = {SpecOf(*font, symbol ? "Times New Roman" : name), symbol,
                              font->lfUnderline != 0, font->lfStrikeOut != 0,
                              font->lfEscapement / 10.0};
}

const MadeFont& FontOf(wmfAPI* api, const wmfFont* font) {
  static const MadeFont usual;
  const auto& fonts = StageOf(api).fonts;
  const auto made = fonts.find(font);
  return made == fonts.end() ? usual : made->second;
}

std::string TextOf(const MadeFont& font, const char* text) {
  return font.symbol ? SymbolText(text) : FromCodePage(text);
}

float StringWidth(wmfAPI* api, wmfFont* font, char* text) {
  if (!text) return 0;
  const MadeFont& made = FontOf(api, font);
  return static_cast<float>(Fonts().Width(TextOf(made, text), made.wanted) * StageOf(api).stretch);
}

// Lines under or through the text, in parts of its size as most fonts have them.
void DrawTextLines(QPainter& painter, const MadeFont& font, double width, double size,
                   const QColor& color) {
  const double thickness = size / 16;
  if (font.underlined) painter.fillRect(QRectF(0, size / 10, width, thickness), color);
  if (font.struck_out) painter.fillRect(QRectF(0, -size / 4, width, thickness), color);
}

void PrepareTextBox(QPainter& painter, const wmfDrawText_t& draw) {
  const QRectF box = BoxOf(draw.TL, draw.BR);
  if (draw.flags & ETO_CLIPPED) painter.setClipRect(box, Qt::IntersectClip);
  if (draw.flags & ETO_OPAQUE) painter.fillRect(box, ColorOf(draw.dc->bgcolor));
}

void DrawText(wmfAPI* api, wmfDrawText_t* draw) {
  if (!PainterOf(api) || !draw->str) return;
  QPainter& painter = *PainterOf(api);
  const MadeFont& font = FontOf(api, draw->dc->font);
  const std::string text = TextOf(font, draw->str);
  FontSpec wanted = font.wanted;
  wanted.Size = std::abs(draw->font_height);
  const QColor color = ColorOf(draw->dc->textcolor);
  painter.save();
  PrepareTextBox(painter, *draw);
  painter.translate(PointOf(draw->pt));
  painter.rotate(-font.degrees);
  painter.scale((draw->font_ratio > 0 ? draw->font_ratio : 1) * StageOf(api).stretch, 1);
  PaintText(painter, 0, 0, text, wanted, Rgb(color.red(), color.green(), color.blue()),
            kPointsPerInch);
  DrawTextLines(painter, font, Fonts().Width(text, wanted), wanted.Size, color);
  painter.restore();
}

// --- regions ------------------------------------------------------------------------------------

QPainterPath RegionOf(const wmfPolyRectangle_t& region) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  for (unsigned i = 0; i < region.count; ++i) path.addRect(BoxOf(region.TL[i], region.BR[i]));
  return path;
}

void PaintRegion(wmfAPI* api, wmfPolyRectangle_t* region) {
  Stage& stage = StageOf(api);
  if (stage.painter) stage.painter->fillPath(RegionOf(*region), BrushOf(*region->dc, stage));
}

void FrameRegion(wmfAPI* api, wmfPolyRectangle_t* region) {
  Stage& stage = StageOf(api);
  if (!stage.painter) return;
  const double width = std::max<double>(std::abs(region->width), stage.unit);
  stage.painter->strokePath(RegionOf(*region), QPen(BrushOf(*region->dc, stage), width));
}

// A region of no boxes lifts the clipping: a drawing may reach beyond its frame.
void ClipRegion(wmfAPI* api, wmfPolyRectangle_t* region) {
  QPainter* painter = PainterOf(api);
  if (!painter) return;
  if (region->count > 0) {
    painter->setClipPath(RegionOf(*region), Qt::ReplaceClip);
  } else {
    painter->setClipping(false);
  }
}

// --- the library's device -----------------------------------------------------------------------

void Nothing(wmfAPI*) {}
void NoData(wmfAPI*, wmfUserData_t*) {}

void InstallDevice(wmfAPI* api) {
  static wmfFunctionReference functions = [] {
    wmfFunctionReference f = {};
    f.device_open = f.device_close = f.device_begin = f.device_end = Nothing;
    f.flood_interior = f.flood_exterior = Flood;
    f.draw_pixel = DrawPixel;
    f.draw_pie = DrawPie;
    f.draw_chord = DrawChord;
    f.draw_arc = DrawArc;
    f.draw_ellipse = DrawEllipse;
    f.draw_line = DrawLine;
    f.poly_line = DrawPolyLine;
    f.draw_polygon = DrawPolygon;
    f.draw_polypolygon = DrawPolyPolygon;
    f.draw_rectangle = DrawRectangle;
    f.rop_draw = DrawOperation;
    f.bmp_draw = DrawBitmap;
    f.bmp_read = ReadBitmap;
    f.bmp_free = FreeBitmap;
    f.draw_text = DrawText;
    f.udata_init = f.udata_copy = f.udata_set = f.udata_free = NoData;
    f.region_frame = FrameRegion;
    f.region_paint = PaintRegion;
    f.region_clip = ClipRegion;
    return f;
  }();
  static wmfFontData fonts = {MapFont, StringWidth, nullptr};
  api->function_reference = &functions;
  api->font_data = &fonts;
}

// One use of the library: closed and freed with its owner.
class Player {
 public:
  Player(std::string& bytes, Stage& stage) {
    wmfAPI_Options options = {};
    options.function = InstallDevice;
    if (wmf_lite_create(&api_, kFlags, &options) != wmf_E_None) return;
    api_->device_data = &stage;
    good_ = wmf_mem_open(api_, reinterpret_cast<unsigned char*>(bytes.data()),
                         static_cast<long>(bytes.size())) == wmf_E_None &&
            wmf_scan(api_, 0, &box_) == wmf_E_None;
  }
  ~Player() {
    if (api_) wmf_lite_destroy(api_);
  }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  bool Good() const { return good_; }
  QRectF Box() const { return BoxOf(box_.TL, box_.BR); }
  bool Play() { return wmf_play(api_, 0, &box_) == wmf_E_None; }

 private:
  static constexpr unsigned long kFlags =
      WMF_OPT_FUNCTION | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG | WMF_OPT_IGNORE_NONFATAL;
  wmfAPI* api_ = nullptr;
  wmfD_Rect box_ = {};
  bool good_ = false;
};

class MetafilePicture : public PaintedPicture {
 public:
  // `box` is what the drawing fills in the library's units.
  MetafilePicture(Metafile metafile, const QRectF& box)
      : metafile_(std::move(metafile)), box_(box) {
    Width = metafile_.width;
    Height = metafile_.height;
  }
  void Paint(QPainter& painter, const QRectF& box) const override;

 private:
  Metafile metafile_;
  QRectF box_;
};

// The library's units may have any shape; letters keep theirs in the picture's natural size.
double TextStretch(const Picture& picture, const QRectF& box) {
  return picture.Height / box.height() / (picture.Width / box.width());
}

void MetafilePicture::Paint(QPainter& painter, const QRectF& box) const {
  if (box.width() == 0 || box.height() == 0) return;
  std::string bytes = metafile_.bytes;
  const double scale_x = box.width() / box_.width();
  const double scale_y = box.height() / box_.height();
  const double unit = 1 / std::sqrt(std::abs(scale_x * scale_y));
  Stage stage{&painter, &bytes, metafile_.framed, box_, unit, TextStretch(*this, box_), {}, {}, 0};
  Player player(bytes, stage);
  painter.save();
  painter.translate(box.topLeft());
  painter.scale(scale_x, scale_y);
  painter.translate(-box_.topLeft());
  player.Play();
  painter.restore();
}

// The whole file is played once without drawing: what fails there would fail in a redraw. Gives the
// box that it fills; nothing when it fails.
std::optional<QRectF> Rehearse(const Metafile& metafile) {
  std::string bytes = metafile.bytes;
  Stage stage;
  stage.bytes = &bytes;
  stage.framed = metafile.framed;
  Player player(bytes, stage);
  if (!player.Good() || !player.Play()) return std::nullopt;
  const QRectF box = metafile.framed ? stage.box : player.Box();
  if (box.isEmpty() || !std::isfinite(box.width() * box.height())) return std::nullopt;
  return box;
}

// For a drawing that says nothing of its size.
void TakeUsualSize(Metafile& metafile, const QRectF& box) {
  constexpr double kLongerSide = 10000;
  const double unit = kLongerSide / std::max(box.width(), box.height());
  metafile.width = box.width() * unit;
  metafile.height = box.height() * unit;
}

}  // namespace

PicturePtr ReadMetafile(const std::string& bytes) {
  std::optional<Metafile> metafile = ParseMetafile(bytes);
  if (!metafile) return nullptr;
  const std::optional<QRectF> box = Rehearse(*metafile);
  if (!box) return nullptr;
  if (metafile->width == 0) TakeUsualSize(*metafile, *box);
  return std::make_shared<MetafilePicture>(std::move(*metafile), *box);
}

}  // namespace tagwright
