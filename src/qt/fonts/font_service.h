// The fonts of this system as the program asks for them.
#pragma once

#include "platform/painting/fonts.h"

namespace tagwright {

// The font service over the toolkit's fonts. An empty or unknown family measures and draws in a
// sans serif; a family that only has a metric twin, such as Arial, in the twin.
FontService& ToolkitFonts();

}  // namespace tagwright
