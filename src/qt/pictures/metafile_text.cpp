#include "qt/pictures/metafile_text.h"

#include <cmath>
#include <string>

#include "platform/painting/metafile_records.h"
#include "platform/painting/scale.h"
#include "platform/text/text.h"
#include "qt/fonts/text_painting.h"
#include "qt/pictures/metafile_stage.h"

namespace tagwright {
namespace {

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

}  // namespace

void AddText(wmfFunctionReference& functions, wmfFontData& fonts) {
  functions.draw_text = DrawText;
  fonts = {MapFont, StringWidth, nullptr};
}

}  // namespace tagwright
