// The main window itself: its geometry, its timers, the pointer outside the board, help.
#pragma once

#include <string>

namespace tagwright {

// Path of the help file, set at start-up.
inline std::string HelpFile;

// Lays the window out: strip, tool column, board with its scroll bars, and the board's scale for
// the zoom; then redraws. A window under 8250 twips of height is set to that, which runs this
// again. Nothing while minimised.
void Form_Resize();

// mnuFileSave is enabled exactly while DirtyFlag is set, mnuFileSaveAs from then on. Every second,
// and whenever a key goes down or a menu opens: what has just changed can be saved at once.
void ShowWhetherToSave();

// A press on Zoom In or Zoom Out starts the hold, its release ends it; the third tick of 70
// milliseconds disarms the tool and opens the flyout picMag. The timer also runs from program
// start, with nothing held: then the third tick only stops it.
void cmdTools_MouseDown(int Index);
void cmdTools_MouseUp();
void tmrButtons_Timer();

// The flyout by keyboard: Down or the menu key on Zoom In or Zoom Out opens it at its first button,
// Escape closes it and gives the keyboard back. The key goes no further then.
void FlyoutKeyDown(int& KeyCode);

// Outside the board the pointer is the default one; the board's own waits in CursorShape.
void ShowPointerOffBoard();

void mnuHelpHelp_Click();     // shows the help file
void mnuHelpWebsite_Click();  // opens the product's web page
void mnuHelpAbout_Click();    // shows frmAbout modally

}  // namespace tagwright
