// Text in a metafile.
#pragma once

// The library's records of functions; its header is for sources alone.
struct _wmfFunctionReference;
struct _wmfFontData;

namespace tagwright {

// Lets the library measure text and draw it on the stage.
void AddText(_wmfFunctionReference& functions, _wmfFontData& fonts);

}  // namespace tagwright
