// The one routine that puts all state back to program start.
#pragma once

namespace tagwright {

// Drops every window and gives each piece of the program's state the value that it has before
// start-up: document, selection, view, tools, settings, serial numbers, recent files, chosen
// printer. Start-up runs it first; so do tests, which is why nothing may be left out.
void ResetProgram();

}  // namespace tagwright
