// Copying the looks of a text: the command asks for it, the next click on a text gives it.
#pragma once

namespace tagwright {

// Waits for a click on a text object: pointer 14, CopyPropsPending.
void mnuTextCopy_Click();

// Copies font, style and colour of the object clicked to what is selected (not the other way
// round), whatever kind that is, and fits hit areas anew. A group is redrawn, a single object is
// not; the selection stays. Ends the pick.
void PickProperties(int index);

// Puts pointer and CursorShape back and forgets a pending pick.
void EndPropertyPick();

}  // namespace tagwright
