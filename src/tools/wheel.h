// The wheel over the board: it scrolls, with Shift sideways, and with Ctrl it zooms about the
// pointer.
#pragma once

namespace tagwright {

// Notches to the left and up, which may be parts of one, and the pointer in board units. A notch
// scrolls by the same way on the screen at every zoom, or zooms by a row of cboZoom, up to the
// nearer one. The place of the label that lies under the pointer stays there as nearly as the
// scroll bars have steps. The armed tool and the pointer's shape stay as they are.
void picBoard_MouseWheel(int Shift, double Left, double Up, double X, double Y);

// This module's state as at program start.
void ResetWheel();

}  // namespace tagwright
