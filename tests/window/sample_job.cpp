// The sample job on a display of its own: opens the address label, browses to its table and prints
// it to PDF, all through the real window. The sheet and a picture of the window stay beside the
// samples.
#include <filesystem>
#include <iostream>

#include "window/steps.h"

using namespace tagwright::window_test;

namespace {

constexpr Box kWindow{40, 30, 1280, 800};

void WaitForSheet(const Program& program, const std::string& sheet) {
  WaitForWindow("Tagwright");
  WaitFor("the file " + sheet, [&] { return std::filesystem::exists(sheet); });
  MoveMouse(kScreenWidth - 1, kScreenHeight - 1);
  WaitFor("the end of the job", [&] { return !Shows(program, "Cancel"); });
}

void PrintSample(const std::string& sheet, const std::string& picture) {
  Program program(FreshFolder());
  PlaceWindow(program, kWindow);
  OpenProject(program, SampleLabel("Address label.twp"));
  ChooseRow(program, "Zoom", "250%");
  ChooseMenu(program, {"File", "Import Data"});
  BrowseToData(program, "Comma Separated Text File", SampleLabel("addresses.csv"));
  StartPrintToPdf(program, sheet);
  WaitForSheet(program, sheet);
  Screenshot(picture, program.Frame());
}

}  // namespace

int main() {
  const std::string sheet = SampleLabel("Address label.pdf");
  const std::string picture = SampleLabel("Address label.png");
  std::filesystem::remove(sheet);  // or the dialog would ask about it
  try {
    PrintSample(sheet, picture);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
  std::cout << "The printed sheet: " << sheet << "\nThe window:        " << picture << '\n';
  return 0;
}
