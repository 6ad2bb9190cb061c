// Pens and brushes of a metafile, and paths that are drawn with them.
#pragma once

#include "qt/pictures/metafile_stage.h"

namespace tagwright {

// The brush in force; patterns grow with the picture.
QBrush BrushOf(const wmfDC& dc, const Stage& stage);

// Draws a path with brush and pen in force; nothing while a file is only checked.
void DrawFilled(wmfAPI* api, const wmfDC& dc, QPainterPath path);

// Draws a path with the pen alone.
void DrawOpen(wmfAPI* api, const wmfDC& dc, const QPainterPath& path);

}  // namespace tagwright
