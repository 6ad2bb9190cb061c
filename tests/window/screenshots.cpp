// Takes the pictures of the README: the real program with each sample label.
//
//   window_screenshots FOLDER
#include <filesystem>
#include <iostream>

#include "window/first_label.h"

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

// The panel of barcodes says what is wrong with the data, in a message over the board.
void ShowRefusal(const Program& program, const std::string& format, const std::string& data,
                 const std::string& file) {
  Click(Find(program, "Barcode Data", "text").box);
  Key("ctrl+a");
  Key("BackSpace");  // the former data would be refused with the new format
  ChooseRow(program, "Barcode Format", format);
  Click(Find(program, "Barcode Data", "text").box);
  Type(data);
  WaitFor("the refusal", [&] { return Shows(program, "OK"); });
  Screenshot(file, program.Frame());
  Key("Return");
  WaitFor("the end of the refusal", [&] { return !Shows(program, "OK"); });
}

// A program of its own: the typing leaves a label to be saved.
void TakeRefusals(const std::string& folder) {
  Program program(FreshFolder());
  PlaceWindow(program, kWindow);
  ShowSample(program, "Barcode sampler.twp", "100%");
  Click(Find(program, "Generate Barcode").box);
  ShowRefusal(program, "UPC-A", "A", folder + "/barcode-characters-refused.png");
  ShowRefusal(program, "EAN-8", "123456789", folder + "/barcode-length-refused.png");
}

void TakeLabels(const std::string& folder) {
  Program program(FreshFolder());
  PlaceWindow(program, kWindow);
  Picture(program, folder, "empty-label");
  ShowSample(program, "Address label.twp", "250%");
  Picture(program, folder, "address-label");
  ShowSample(program, "Product label.twp", "250%");
  Picture(program, folder, "product-label");
  ShowSample(program, "Barcode sampler.twp", "100%");
  Picture(program, folder, "barcode-formats");
  ChooseMenu(program, {"Options", "Units of Measure", "Inches"});
  ShowSample(program, "Shelf label.twp", "200%");
  Picture(program, folder, "shelf-label");
}

// A table goes in and a sheet of labels comes out.
void TakeJob(const std::string& folder) {
  Program program(FreshFolder());
  const std::string sheet = FreshFolder() + "/sheet.pdf";
  PlaceWindow(program, kWindow);
  ShowSample(program, "Address label.twp", "250%");
  ChooseMenu(program, {"File", "Import Data"});
  BrowseToData(program, "Comma Separated Text File", SampleLabel("addresses.csv"));
  Picture(program, folder, "data-fields");
  StartPrintToPdf(program, sheet);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return std::filesystem::exists(sheet); });
  Picture(program, folder, "print-panel");
  Shell("pdftoppm -r 75 -png -singlefile '" + sheet + "' '" + folder + "/address-sheet'");
}

// Somebody's first label, from the empty board to the sheet.
void TakeFirstLabel(const std::string& folder) {
  Program program(FreshFolder());
  const std::string sheet = FreshFolder() + "/sheet.pdf";
  PlaceWindow(program, kWindow);
  const Chapter chapter = [&](const std::string& name) {
    Picture(program, folder, "first-label-" + name);
  };
  MakeFirstLabel(program, chapter);
  PrintFirstLabel(program, sheet);
  Shell("pdftoppm -r 75 -png -singlefile '" + sheet + "' '" + folder + "/first-label-sheet'");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: window_screenshots FOLDER\n";
    return 2;
  }
  std::filesystem::create_directories(argv[1]);
  try {
    TakeLabels(argv[1]);
    TakeRefusals(argv[1]);
    TakeJob(argv[1]);
    TakeFirstLabel(argv[1]);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
  return 0;
}
