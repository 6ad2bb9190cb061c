// The one painter of labels, for the screen, the printed page and the preview.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace tagwright {

// Paints the whole label from Objects on DrawTarget. With `Output` false that is picBoard's canvas
// and both offsets are ignored; it also puts every hit area over its object, draws handles and
// rulers and shows the selection's place and size in txtDSize. With `Output` true it paints one
// cell of a sheet at `OffsetX`, `OffsetY` millimetres of the page, on the Printer, which becomes
// the DrawTarget, or in PreviewMode on the present target. Nothing at all happens while BoardReady
// is zero or SuspendRedraw is not. Changes RedrawCount, RedrawSkip, BoardOriginX and BoardOriginY,
// on the screen PendingScrollX and PendingScrollY too. An unreadable picture drops the newest
// object and ends the redraw: ZoomFactor and RedrawSkip are not put back then. Never faults.
void RedrawBoard(const double& OffsetX, const double& OffsetY, const bool& Output);

// How a redraw tells of pictures whose files are missing, from construction to destruction; without
// one, and after it, each redraw does. Many redraws of one label are one thing to the user: a job
// tells of each file once, and a load, which removes such pictures with words of its own, never.
// Within another one the outer one holds.
class MissingPictures {
 public:
  enum Telling { kOnce, kUntold };
  explicit MissingPictures(Telling telling);
  ~MissingPictures();
  MissingPictures(const MissingPictures&) = delete;
  MissingPictures& operator=(const MissingPictures&) = delete;

  // Whether the missing file `path` is to be told now.
  bool IsToTell(const std::string& path);

 private:
  Telling telling_;
  std::set<std::string> told_;
};

// Makes the board the DrawTarget.
void DrawOnBoard();

// The screen's redraw: offsets are ignored there.
inline void RedrawBoard() { RedrawBoard(0, 0, false); }

// Width in twips of the picture that a preview is painted on; its ratio to the printer's page is
// the ZoomFactor of a redraw in PreviewMode. Set by whoever sets PreviewMode.
inline double PreviewPaperWidth = 0;

// Paints one barcode; filled by the barcode engine (see shell/wiring.cpp), empty until then.
// Data, format, x, y, height, width (target units), print characters, font size, font name.
using BarcodePainter =
    std::function<void(std::string data, std::int16_t format, float x, float y, double height,
                       double width, bool print_chars, double font_size, std::string font_name)>;
inline BarcodePainter PaintBarcode;

}  // namespace tagwright
