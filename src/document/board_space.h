// The board's space: twips of the screen in its units, and the lines that lie across it.
#pragma once

namespace tagwright {

class LineControl;

// A distance on the screen in board units, along either side.
double BoardUnitsX(double twips);
double BoardUnitsY(double twips);

// Puts `line` through x from the top down to `height`, or through y from the left to `width`, all
// in board units. Whether it shows stays as it is.
void SpanDown(LineControl& line, double x, double height);
void SpanAcross(LineControl& line, double y, double width);

// Shows `line` in front of all else on the board.
void ShowInFront(LineControl& line);

}  // namespace tagwright
