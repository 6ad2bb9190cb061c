// Pictures loaded from files: jpg, jpeg and gif as pixels, wmf as drawing.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/painting/scale.h"

namespace tagwright {

// Natural size of a raster picture's pixel, hundredths of a millimetre.
constexpr double kHundredthsPerPixel = kHundredthsPerInch / kScreenPixelsPerInch;

// A loaded picture. Immutable; the surfaces of the same platform know how to paint it.
class Picture {
 public:
  virtual ~Picture() = default;
  // Natural size in hundredths of a millimetre. A raster picture counts its pixels, whatever
  // resolution its file names; a metafile has the size of its placeable header, or without one the
  // window it draws into at 96 units an inch, or 100 mm on its longer side where it names none.
  double Width = 0;
  double Height = 0;
};

using PicturePtr = std::shared_ptr<const Picture>;

// Reads the picture file `path`: first frame, no turn by EXIF. Faults 53 when the file is missing,
// 481 when it is no readable picture or no reader is set. Looks at the file at each call, so that
// one that is gone, broken or replaced shows at once; while it is the same file, of the same length
// and time of change, it hands out the same picture without reading it again.
PicturePtr LoadPicture(std::string_view path);

// The reader that the platform provides: bytes of a file to a picture, null when unreadable.
// `name` is for the format only where the bytes leave it open.
using PictureReader = PicturePtr (*)(const std::string& bytes, std::string_view name);
void SetPictureReader(PictureReader reader);  // null: none

}  // namespace tagwright
