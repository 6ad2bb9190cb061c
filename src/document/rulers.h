// The rulers of the board.
#pragma once

namespace tagwright {

// The rulers along the board's top and left side; nothing with mnuFileRulers unchecked. Ticks stand
// every RulerScale millimetres from the label's corner, numbers at every tenth. A label too far
// away or a board too wide to count its ticks has the bands alone.
void DrawRulers();

}  // namespace tagwright
