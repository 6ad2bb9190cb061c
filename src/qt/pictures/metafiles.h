// Windows metafiles, played as vectors.
#pragma once

#include <string>

#include "platform/painting/picture.h"

namespace tagwright {

// The metafile in `bytes`, with or without a placeable header; null when it is none, is cut short
// or holds records that are shorter than what they say. Its natural size is that of the header: the
// box over its units an inch, whatever the checksum says; without one the window it draws into at
// 96 units an inch, or where it names none 100 mm on the longer side of what it draws.
PicturePtr ReadMetafile(const std::string& bytes);

}  // namespace tagwright
