// What users do with a label project, as steps that the scenarios share.
#pragma once

#include <string>

#include "window/desktop.h"

namespace tagwright::window_test {

// Full path of a sample label that the build has written.
std::string SampleLabel(const std::string& name);

// Opens the project `path` with File > Open and waits for it in the title.
void OpenProject(const Program& program, const std::string& path);

// Saves with File > Save As under `path`, and waits for the file.
void SaveProjectAs(const Program& program, const std::string& path);

// What the menu of recent files calls a project.
std::string RecentName(std::string path);

// Chooses the kind of data on the panel of data fields, which asks for the file, and names it.
void BrowseToData(const Program& program, const std::string& kind, const std::string& path);

// Opens the print panel, presses Print for "Print to PDF" and names the file: the job runs then.
void StartPrintToPdf(const Program& program, const std::string& path);

// Answers the message that shows. Returns what it says.
std::string AnswerMessage(const Program& program, const std::string& button = "OK");

// Leaves with File > Exit. Returns the exit code.
int Leave(Program& program);

// The board on the screen, and on it the label, empty on an otherwise empty board: the white pixels
// of the board's middle row.
struct Span {
  int left = 0;  // on the screen
  int width = 0;
};
Box Board(const Program& program);
Span LabelSpan(const Program& program);

// How many pixels of the board have exactly this colour (0xRRGGBB).
int Coloured(const Program& program, std::uint32_t color);

// Moves and sizes the main window, frame included.
void PlaceWindow(const Program& program, const Box& frame);

}  // namespace tagwright::window_test
