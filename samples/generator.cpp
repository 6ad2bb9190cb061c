// Writes the sample labels through the program's own start and save, so that they are what a user
// would have made. A project names its picture and its data by full path: the samples are therefore
// made where they are to lie, and are not kept in the tree.
//
//   generator FOLDER     FOLDER holds the data and the picture already
#include <array>
#include <filesystem>
#include <iostream>
#include <string>

#include "barcode/formats.h"
#include "document/objects.h"
#include "document/project_save.h"
#include "forms/frmMain.h"
#include "platform/faults/fault.h"
#include "platform/services/desktop.h"
#include "shell/startup.h"

using namespace tagwright;

namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;
constexpr double kLineSpacing = 1.15;  // line height over font size
constexpr Color kInk = Rgb(34, 43, 54);
constexpr Color kGrey = Rgb(110, 120, 130);
constexpr Color kNavy = Rgb(31, 78, 121);
constexpr Color kMist = Rgb(234, 242, 248);
constexpr Color kPlum = Rgb(107, 33, 84);
constexpr Color kBlush = Rgb(248, 236, 243);
constexpr Color kLeaf = Rgb(62, 125, 68);
constexpr Color kRed = Rgb(190, 32, 46);
constexpr Color kWhite = Rgb(255, 255, 255);

enum Alignment : std::int16_t { kLeft = 0, kRight = 1, kCentre = 2 };
enum FieldFormat : std::int32_t { kPlain = 0, kCurrency = 1 };
enum SourceKind : std::int16_t { kCommaText = 1 };

// The next object of the label, on top of those before it.
ObjectRecord& Add(std::int16_t kind, double left, double top, double width, double height) {
  GrowObjects();
  ObjectRecord& object = ObjectAt(ObjectUB);
  object = {};
  object.ObjType = kind;
  object.Left = static_cast<float>(left);
  object.Top = static_cast<float>(top);
  object.Width = width;
  object.Height = height;
  return object;
}

void AddShape(std::int16_t kind, double left, double top, double width, double height,
              std::int16_t pen, Color outline, Color fill) {
  ObjectRecord& shape = Add(kind, left, top, width, height);
  shape.Param = pen;
  shape.ForeColor = outline;
  shape.FillColor = fill;
}

void AddLine(double left, double top, double width, std::int16_t pen, Color color) {
  AddShape(kLine, left, top, width, 0, pen, color, -1);
}

void SetFont(ObjectRecord& object, double points, Flag bold, Color color) {
  object.FontName = "Arial";
  object.FontSize = points;
  object.Bold = bold;
  object.ForeColor = color;
}

// Lines in `text` are parted by CR LF; they are aligned within `width`.
void AddText(const std::string& text, double left, double top, double width, double points,
             Flag bold, Color color, Alignment alignment = kLeft) {
  int lines = 1;
  for (const char letter : text) lines += letter == '\n';
  ObjectRecord& object =
      Add(kText, left, top, width, lines * points * kLineSpacing * kMillimetresPerPoint);
  object.Text = text;
  object.Param = alignment;
  SetFont(object, points, bold, color);
}

void AddField(const std::string& name, std::int16_t column, double left, double top, double width,
              double points, Flag bold, Color color, FieldFormat format = kPlain) {
  ObjectRecord& field =
      Add(kDataField, left, top, width, points * kLineSpacing * kMillimetresPerPoint);
  field.Text = name;
  field.Param = column;
  field.FillColor = format;
  SetFont(field, points, bold, color);
}

void AddPicture(const std::string& path, double left, double top, double size) {
  Add(kPicture, left, top, size, size).Text = path;
}

// --- the labels, on their layouts
// -----------------------------------------------------------------

void ChooseLayout(const std::string& title) {
  for (int row = 0; row < frmMain.cboLabelLayout.ListCount(); ++row) {
    if (frmMain.cboLabelLayout.List(row) != title) continue;
    frmMain.cboLabelLayout.SetListIndex(row);
    return;
  }
  RaiseFault(kOutOfBounds);
}

// A comma separated source, without opening a dialog for it.
void ChooseData(const std::string& path) {
  LoadingProject = true;
  frmMain.cboImportType.SetListIndex(kCommaText);
  LoadingProject = false;
  frmMain.lblFileName.SetCaption(path);
  frmMain.chkQuote.SetValue(1);
}

void Save(const std::string& path) {
  ProjectPath = path;
  SaveProject(kFalse);
}

// 99 by 38 mm: a sender's badge at the left, the receiver from the data.
void AddressLabel(const std::string& folder) {
  StartProgram();
  ChooseLayout("A4 14 per sheet");
  ChooseData(folder + "addresses.csv");
  AddShape(kRoundedRectangle, 2.5, 2.5, 27, 33, 0, kNavy, kMist);
  AddPicture(folder + "lighthouse.jpg", 6, 4.5, 20);
  AddText("Lighthouse Books\r\n12 Quay Street\r\nNH1 4AB Northhaven", 2.5, 26, 27, 6.5, kFalse,
          kNavy, kCentre);
  AddText("DELIVER TO", 35, 4.5, 40, 6.5, kTrue, kGrey);
  AddField("Name", 0, 35, 8, 60, 14, kTrue, kInk);
  AddField("Company", 1, 35, 14.4, 60, 10, kFalse, kInk);
  AddLine(35, 19.8, 59, 1, kNavy);
  AddField("Street", 2, 35, 21.2, 60, 11, kFalse, kInk);
  AddField("City", 3, 35, 26, 60, 11, kFalse, kInk);
  AddField("Country", 4, 35, 31, 60, 8, kTrue, kNavy);
  Save(folder + "Address label.twp");
}

// 99 by 38 mm: every shape, and texts of each alignment.
void ProductLabel(const std::string& folder) {
  StartProgram();
  ChooseLayout("A4 14 per sheet");
  AddShape(kRoundedRectangle, 2, 2, 95, 34, 2, kPlum, kWhite);
  AddShape(kEllipse, 5, 5, 28, 28, 0, kPlum, kPlum);
  AddShape(kEllipse, 6.2, 6.2, 25.6, 25.6, 1, kBlush, -1);
  AddText("BRAMBLE\r\n& APPLE", 5, 12.6, 28, 11, kTrue, kWhite, kCentre);
  AddText("jam", 5, 22.2, 28, 10, kFalse, kBlush, kCentre);
  AddText("Cooked slowly in small pans", 37, 5, 56, 9.5, kTrue, kPlum);
  AddLine(37, 10.2, 56.5, 1, kPlum);
  AddText("Fruit 62 g per 100 g, cane sugar,\r\nlemon juice. Nothing else.", 37, 11.6, 56, 7.5,
          kFalse, kInk);
  AddShape(kRectangle, 37, 20, 27, 5.4, 0, kLeaf, kLeaf);
  AddText("NO ADDED PECTIN", 37, 21.2, 27, 7, kTrue, kWhite, kCentre);
  AddText("Best before [#DT365]", 37, 27.4, 35, 7, kFalse, kGrey);
  AddText("Jar [#SRNO]", 37, 30.6, 35, 7, kFalse, kGrey);
  AddText("340 g", 68, 18.6, 25.5, 18, kTrue, kPlum, kRight);
  AddText("Keep cool\r\nonce opened", 68, 27.4, 25.5, 7, kFalse, kGrey, kRight);
  SerialPrefix = "B-";
  SerialBarcodeType = -1;
  Save(folder + "Product label.twp");
}

// 63 by 38 mm: a price from the data, as the user's currency.
void ShelfLabel(const std::string& folder) {
  StartProgram();
  ChooseLayout("A4 21 per sheet");
  ChooseData(folder + "products.csv");
  AddShape(kRectangle, 0, 3, 63, 6, 0, kRed, kRed);
  AddText("FROM OUR PANTRY", 3.5, 4.2, 56, 8, kTrue, kWhite);
  AddField("Product", 0, 3.5, 10.6, 56, 12, kTrue, kInk);
  AddField("Pack", 1, 3.5, 16.2, 56, 8, kFalse, kGrey);
  AddField("Price", 2, 3.5, 19.6, 40, 28, kTrue, kRed, kCurrency);
  AddLine(3.5, 32, 56, 1, kGrey);
  AddText("per kg", 3.5, 33, 12, 7, kFalse, kGrey);
  AddField("PerKilo", 3, 13, 33, 18, 7, kTrue, kInk, kCurrency);
  AddField("Article", 4, 38, 33, 22, 7, kFalse, kGrey);
  Save(folder + "Shelf label.twp");
}

// Under its format's name, with its characters below the bars.
void AddBarcode(std::int16_t format, const std::string& data, double left, double top, double width,
                double height) {
  AddText(kBarcodeFormats[static_cast<std::size_t>(format)].name, left, top, 52, 8, kTrue, kNavy);
  ObjectRecord& barcode = Add(kBarcode, left, top + 4.5, width, height);
  barcode.Text = data;
  barcode.Param = format;
  SetFont(barcode, 8, kTrue, kInk);  // bold: the characters are printed
}

// 199 by 143 mm: every barcode format.
void BarcodeSampler(const std::string& folder) {
  constexpr int kColumns = 3;
  const std::array<const char*, 14> data = {
      "03600029145", "01234565", "400638133393", "12345670", "012345", "123456", "PART-2026",
      "Part no. 7",  "20261121", "SHELF 14",     "Shelf 14", "314159", "12345",  "SN34RD1A"};
  StartProgram();
  ChooseLayout("A4 2 per sheet");
  for (std::int16_t format = 0; format < 14; ++format) {
    const int column = format % kColumns, line = format / kColumns;
    const double left = 10 + column * 65, top = 6 + line * 27;
    const auto row = static_cast<std::size_t>(format);
    // The postal symbols have the sizes that their panel gives them.
    const double width = format == 12 ? 36.73 : format == 13 ? 41.25 : 48;
    const double height = format == 12 ? 3.175 : format == 13 ? 5 : 18;
    AddBarcode(format, data[row], left, top, width, height);
  }
  Save(folder + "Barcode sampler.twp");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: generator FOLDER\n";
    return 2;
  }
  const std::string folder = std::filesystem::absolute(argv[1]).string() + "/";
  SetExecutableFolder(folder);
  AddressLabel(folder);
  ProductLabel(folder);
  ShelfLabel(folder);
  BarcodeSampler(folder);
  std::filesystem::remove(folder + "label.dta");  // the generator's own, not the user's
  return 0;
}
