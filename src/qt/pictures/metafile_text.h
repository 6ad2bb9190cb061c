// Text in a metafile.
#pragma once

// The library's records of functions; its header is for sources alone.
struct _wmfFunctionReference;  // NOLINT(bugprone-reserved-identifier): its own name
struct _wmfFontData;           // NOLINT(bugprone-reserved-identifier): its own name

namespace tagwright {

// Lets the library measure text and draw it on the stage.
void AddText(_wmfFunctionReference& functions, _wmfFontData& fonts);

}  // namespace tagwright
