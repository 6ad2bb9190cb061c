// What is drawn around and behind a label or a shape, by code.
#pragma once

namespace tagwright {

enum BorderCode : int { kNoBorder = 0, kSolidBorder = 1, kDottedBorder = 3 };
enum OutlineCode : int { kRectangleOutline = 0, kOvalOutline = 2, kRoundedOutline = 4 };
enum BackCode : int { kTransparentBack = 0, kOpaqueBack = 1 };

}  // namespace tagwright
