// Which pixels of a screen a place lies on.
#pragma once

namespace tagwright {

// The middle of a pen of this width, painted crisply at `place` of a screen with `ratio` pixels of
// its own to a logical one; places and width are logical. A pen of an odd number of screen pixels
// runs through the middle of one, any other between two. What lies on the same place lies on the
// same pixels, whatever the way that its number was worked out.
double OnScreenPixel(double place, double pen_width, double ratio);

}  // namespace tagwright
