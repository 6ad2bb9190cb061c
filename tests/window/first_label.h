// Somebody's first label, from the empty board to the printed sheet, with mouse and keyboard alone:
// one story for the test of what comes of it and for the pictures of the README.
#pragma once

#include <functional>
#include <string>

#include "window/hand_steps.h"

namespace tagwright::window_test {

// Told whenever there is something to be seen: "text", "drawn", "data".
using Chapter = std::function<void(const std::string& name)>;

// Places on the label, millimetres.
struct Place {
  double left, top, width, height;
};
constexpr Place kFrame{3, 3, 71, 11};
constexpr Place kLighthouse{78, 3, 17, 17};
constexpr Place kSymbol{58, 22, 36, 13};
constexpr double kTextLeft = 6;
constexpr double kTitleBase = 12;  // where the click goes that the text stands on
constexpr double kNameBase = 22;
constexpr double kCityBase = 31;

// A title in a frame, a picture, an EAN-13 and two columns of the samples' addresses, on the empty
// label of a fresh program, at 250 per cent.
void MakeFirstLabel(const Program& program, const Chapter& chapter);

// Prints it to PDF, a label for each address.
void PrintFirstLabel(const Program& program, const std::string& sheet);

}  // namespace tagwright::window_test
