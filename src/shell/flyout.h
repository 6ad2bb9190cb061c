// The flyout of the zoom buttons: it opens while one of them is held.
#pragma once

namespace tagwright {

// A press on Zoom In or Zoom Out starts the hold, its release ends it; the third tick of 70
// milliseconds disarms the tool and opens the flyout picMag. The timer also runs from program
// start, with nothing held: then the third tick only stops it.
void cmdTools_MouseDown(int Index);
void cmdTools_MouseUp();
void tmrButtons_Timer();

// The flyout by keyboard: Down or the menu key on Zoom In or Zoom Out opens it at its first button,
// Escape closes it and gives the keyboard back. The key goes no further then.
void FlyoutKeyDown(int& KeyCode);

}  // namespace tagwright
