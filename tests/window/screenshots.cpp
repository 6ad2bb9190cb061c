// Takes the pictures of the README: the real program with each sample label.
//
//   window_screenshots FOLDER
#include <filesystem>
#include <iostream>

#include "window/steps.h"

using namespace tagwright::window_test;

namespace {

constexpr Box kWindow{40, 30, 1280, 800};

void Picture(const Program& program, const std::string& folder, const std::string& name) {
  MoveMouse(kScreenWidth - 1, kScreenHeight - 1);
  Screenshot(folder + "/" + name + ".png", program.Frame());
}

void ShowSample(const Program& program, const std::string& name, const std::string& zoom) {
  OpenProject(program, SampleLabel(name));
  ChooseRow(program, "Zoom", zoom);
}

void TakePictures(const std::string& folder) {
  Program program(FreshFolder());
  PlaceWindow(program, kWindow);
  Picture(program, folder, "empty-label");
  ShowSample(program, "Address label.twp", "250%");
  Picture(program, folder, "address-label");
  ShowSample(program, "Product label.twp", "250%");
  Picture(program, folder, "product-label");
  ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
  ShowSample(program, "Shelf label.twp", "200%");
  Picture(program, folder, "shelf-label");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: window_screenshots FOLDER\n";
    return 2;
  }
  std::filesystem::create_directories(argv[1]);
  try {
    TakePictures(argv[1]);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
  return 0;
}
