// Lines, shapes and regions of a metafile.
#pragma once

// The library's record of functions; its header is for sources alone.
struct _wmfFunctionReference;  // NOLINT(bugprone-reserved-identifier): its own name

namespace tagwright {

// Lets the library draw its lines, shapes and regions on the stage.
void AddShapes(_wmfFunctionReference& functions);

}  // namespace tagwright
