// Lines of text on a raster and on a page.
#pragma once

#include <string_view>

#include "platform/painting/fonts.h"
#include "platform/painting/surface.h"

class QPainter;

namespace tagwright {

// Draws one line in the painter's units, of which there are `pixels_per_inch`, from x along the
// baseline y. On paper it stays text in the reference size under a scale, whatever the painter's
// transform; on a raster it takes cached glyphs of the exact size, whole or not.
void PaintText(QPainter& painter, double x, double y_baseline, std::string_view text,
               const FontSpec& font, Color color, double pixels_per_inch);

// Draws one line like PaintText, on a page that is not transformed but moved: glyphs of the exact
// size, each a whole number of page steps behind the one before it.
void PaintPageText(QPainter& painter, double x, double y_baseline, std::string_view text,
                   const FontSpec& font, Color color, double units_per_inch);

}  // namespace tagwright
