#include "window/first_label.h"

#include <filesystem>

namespace tagwright::window_test {
namespace {

void DragOpen(const Paper& paper, const Place& place) {
  paper.Drag(place.left, place.top, place.left + place.width, place.top + place.height);
}

void WriteTitle(const Program& program, const Paper& paper) {
  PressOn(program, "Text Tool");
  ChooseRow(program, "Size", "18");
  PressOn(program, "Bold");
  paper.Click(kTextLeft, kTitleBase);
  Type("Harbour Museum");
  WaitToHear(program, "Label", "Text \"Harbour Museum\"");
}

void DrawTheRest(const Program& program, const Paper& paper) {
  PressOn(program, "Drawing Options");
  PressOn(program, "Make Transparent");
  PressOn(program, "Rectangle");
  DragOpen(paper, kFrame);
  WaitToHear(program, "Label", "Rectangle at");
  ArmPicture(program, SampleLabel("lighthouse.jpg"));
  DragOpen(paper, kLighthouse);
  WaitToHear(program, "Label", "Picture \"lighthouse");
  ArmBarcode(program, "EAN-13", "400638133393");
  PressOn(program, "Print Characters on Barcode");
  DragOpen(paper, kSymbol);
  WaitToHear(program, "Label", "Barcode \"400638133393\"");
}

void PlaceColumn(const Program& program, const Paper& paper, const std::string& column,
                 double base) {
  ChooseColumn(program, column);
  paper.Click(kTextLeft, base);
  WaitToHear(program, "Label", "Data field \"" + column + "\"");
}

}  // namespace

void MakeFirstLabel(const Program& program, const Chapter& chapter) {
  ChooseRow(program, "Zoom", "250%");
  const Paper paper(program, 2.5);
  WriteTitle(program, paper);
  chapter("text");
  DrawTheRest(program, paper);
  chapter("drawn");
  PressOn(program, "Import Data");
  BrowseToData(program, "Comma Separated Text File", SampleLabel("addresses.csv"));
  PlaceColumn(program, paper, "Name", kNameBase);
  PlaceColumn(program, paper, "City", kCityBase);
  chapter("data");
}

void PrintFirstLabel(const Program& program, const std::string& sheet) {
  StartPrintToPdf(program, sheet);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return std::filesystem::exists(sheet); });
}

}  // namespace tagwright::window_test
