// Bitmaps in a metafile.
#pragma once

// The library's record of functions; its header is for sources alone.
struct _wmfFunctionReference;  // NOLINT(bugprone-reserved-identifier): its own name

namespace tagwright {

// Lets the library read bitmaps and draw them on the stage.
void AddBitmaps(_wmfFunctionReference& functions);

}  // namespace tagwright
