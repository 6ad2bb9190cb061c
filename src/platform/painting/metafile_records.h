// What the bytes of a Windows metafile say about the drawing, before a library plays it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tagwright {

// A metafile ready to be played. Its fonts are told by the size of their letters and their stretch,
// whatever the file tells them by: see the source. Where the file names its frame (the window that
// it draws into, or else the box of its placeable header), a rectangle of that frame has been put
// before everything that is drawn: it tells where the frame lies in a player's own units.
struct Metafile {
  std::string bytes;
  bool framed = false;  // the first rectangle is the frame and is not to be drawn
  double width = 0;     // natural size in hundredths of a millimetre; 0 where the file names none
  double height = 0;
};

// Reads the headers and walks the records, with the measures of the font service in force. Nothing
// when the bytes are no metafile or a record reaches beyond the end of the file.
std::optional<Metafile> ParseMetafile(const std::string& bytes);

// Text of the Symbol font, whose bytes stand for Greek letters and signs, in characters that other
// fonts know too.
std::string SymbolText(std::string_view bytes);

}  // namespace tagwright
