// Places, sizes and texts of the control model in the toolkit's terms, and back.
#pragma once

#include <QRect>
#include <QString>
#include <string>

#include "platform/controls/control.h"
#include "platform/painting/scale.h"

namespace tagwright {

// Whole pixels, within what the toolkit takes for a place or size; a number that is none counts as
// 0.
int Pixels(double twips);
inline double Twips(int pixels) { return pixels * kTwipsPerPixel; }
inline double Twips(double pixels) { return pixels * kTwipsPerPixel; }

// The pixels that a control covers in its container. Edges are rounded, not lengths: neighbours
// that touch in the model touch on the screen.
QRect PixelBox(const Control& control);

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }

}  // namespace tagwright
