// The board without a mouse: objects are placed and selected by keyboard, and tools put away.
#pragma once

namespace tagwright {

// Escape disarms the tool and ends a property pick, wherever the keyboard is, and goes on.
//
// The other keys count while the board has the keyboard, without modifiers and with no gesture of
// the mouse under way; they go no further. Return places the object of the armed tool in the middle
// of what is seen of the label: as by a click, or, for kinds that need a drag, half as wide and
// half as high as the label, which is a quarter of it. A zoom tool zooms there. Page Down and Page
// Up select the next and the former object in stacking order, around its ends. A text that is met
// so is opened, but the keyboard stays on the board.
void BoardKeyDown(int& KeyCode, int Shift);

}  // namespace tagwright
