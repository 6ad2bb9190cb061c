// The main window itself: where it comes up, how it is laid out, the pointer outside the board, and
// whether there is something to save.
#pragma once

namespace tagwright {

// Puts the window where the settings say, unless none was ever saved there. A number that is no
// place is left out: the window keeps what it has.
void PlaceWindow();

// Lays the window out: strip, tool column, board with its scroll bars, and the board's scale for
// the zoom; then redraws. A window under 8250 twips of height is set to that, which runs this
// again. Nothing while minimised.
void Form_Resize();

// mnuFileSave is enabled exactly while DirtyFlag is set, mnuFileSaveAs from then on. Every second,
// and whenever a key goes down or a menu opens: what has just changed can be saved at once.
void ShowWhetherToSave();

// Outside the board the pointer is the default one; the board's own waits in CursorShape.
void ShowPointerOffBoard();

}  // namespace tagwright
