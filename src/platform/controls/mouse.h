// The mouse: buttons and shift states as handlers receive them, which control a press belongs to,
// and how a press that a modal window has interrupted comes to its end.
#pragma once

namespace tagwright {

// Mouse buttons and shift states as handlers receive them.
enum MouseButton : int { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };
enum ShiftState : int { kShift = 1, kCtrl = 2, kAlt = 4 };

// No button is down any more: completes a press whose release the toolkit has lost, like
// ModalOpens does. Nothing without a press. Views call it when they find the buttons up.
void UserButtonsUp();

}  // namespace tagwright
