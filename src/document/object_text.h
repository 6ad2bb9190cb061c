// Texts and data fields as they are painted: what stands for their tokens, and how a field shows
// while the label is designed.
#pragma once

namespace tagwright {

// Paints the text or data field object `Index` line by line on DrawTarget, whose font and colour
// are set already. With `Output` true the merge tokens of a text and the value of a data field are
// resolved (SerialUsed, ForeColor of the target and a barcode may follow); on the screen the text
// shows as typed, a data field with a marker of its format behind it. Faults are traced and passed
// over.
void PaintObjectText(int Index, bool Output);

}  // namespace tagwright
