// The eight buttons of the tool column.
#pragma once

#include <cstdint>

namespace tagwright {

// The hold that opens the zoom flyout (timed in shell/window.cpp): ticks since the press, 1000 once
// it has opened, and which kind of button is held (101 zoom).
inline std::int16_t HoldTicks = 0;
inline std::int16_t HoldKind = 0;

// By index: 0 select, 1 barcode, 2 picture, 3 text, 4 drawing, 5 zoom in, 6 zoom out, 7 import.
// Brings the tool's panel to the front, places cboFont and cboSize, and hides picMag; 0 disarms the
// tool. After a hold (HoldTicks above 100) 5 and 6 do nothing at all.
void cmdTools_Click(int Index);

// HoldTicks and HoldKind as at program start.
void ResetToolButtons();

}  // namespace tagwright
