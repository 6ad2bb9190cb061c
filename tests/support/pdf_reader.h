// Reads printed pages back: what a PDF file paints, in millimetres from the page's top left corner.
// The reading is done by an independent tool (mutool of the package mupdf-tools).
#pragma once

#include <string>
#include <vector>

#include "platform/painting/surface.h"

namespace tagwright {

// One thing painted on a page.
struct PdfMark {
  enum class What { kFill, kStroke, kText, kPicture };
  What what = What::kFill;
  int page = 1;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // extent of the path or picture, without the pen's width;
                                          // of text: where its baseline starts and ends
  Color color = 0;
  double pen_width = 0;  // of a stroke, millimetres
  std::string text;
  std::string font;
  double font_size = 0;                   // points
  bool has_curves = false;                // of a path
  int pixel_width = 0, pixel_height = 0;  // of a picture, its own pixels
};

struct PdfPages {
  int count = 0;
  double width = 0, height = 0;  // of the first page
  std::vector<PdfMark> marks;    // in painting order

  std::vector<PdfMark> Of(PdfMark::What what) const;
  // The first text that reads so; fails the test and gives an empty mark when there is none.
  PdfMark Text(const std::string& text) const;
};

// Fails the test when the file cannot be read. `pages` are those to read, as "3-7", or all; they
// are counted from 1 either way.
PdfPages ReadPdf(const std::string& path, const std::string& pages = "");

}  // namespace tagwright
