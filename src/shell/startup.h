// From process start to the first paint.
#pragma once

#include <span>
#include <string>

namespace tagwright {

// The settings file of this installation, in AppFolder.
std::string SettingsPath();

// Starts the program: all state fresh, the main window wired, loaded (which runs the start-up
// steps) and shown (which paints the empty label). The platform's services must be in place.
void StartProgram();

// One step of start-up. `name` says what it does.
struct StartStep {
  const char* name;
  void (*run)();
};

// The steps in their order. Each runs even if an earlier one failed; a fault in a step ends that
// step and nothing is said about it.
std::span<const StartStep> StartSteps();

// Runs the steps.
void Form_Load();

// At the first activation only: BoardReady goes to -1, picProperties comes forward and the empty
// label is painted.
void Form_Activate();

}  // namespace tagwright
