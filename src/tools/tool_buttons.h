// The eight buttons of the tool column.
#pragma once

#include <cstdint>

namespace tagwright {

// The hold that opens the zoom flyout (timed in shell/window.cpp): ticks since the press, 1000 once
// it has opened, and which kind of button is held (101 zoom).
inline std::int16_t HoldTicks = 0;
inline std::int16_t HoldKind = 0;

// By index: 0 select, 1 barcode, 2 picture, 3 text, 4 drawing, 5 zoom in, 6 zoom out, 7 import.
// Ends the selection, brings the tool's panel to the front, places cboFont and cboSize, and hides
// picMag; 0 disarms the tool, 2, 3, 5 and 6 arm theirs. A barcode or a text begins with the font of
// the last such object on the label, and with the settings' only where there is none. After a hold
// (HoldTicks above 100) 5 and 6 only end the selection.
void cmdTools_Click(int Index);

// Arm the tools of the drawing panel, which draw with a cross.
void cmdLine_Click();
void cmdRect_Click();
void cmdRoundRect_Click();
void cmdEllipse_Click();

// Lets the buttons of the armed tool look pressed, and no others: the one in the column, and the
// one of a shape on its panel. A data field's is Import Data. Runs after every event.
void ShowArmedTool();

// HoldTicks and HoldKind as at program start.
void ResetToolButtons();

}  // namespace tagwright
