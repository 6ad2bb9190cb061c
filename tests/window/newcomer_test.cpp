// Somebody who has read nothing makes a label and prints it, from the empty board to the sheet.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/pdf_reader.h"
#include "window/first_label.h"

namespace tagwright::window_test {
namespace {

constexpr double kPixel = 0.25;   // at 250 per cent, and the label's own edge
constexpr double kPrinted = 0.2;  // between what was saved and what is on paper
constexpr int kAddresses = 14;
constexpr int kAcross = 2;
constexpr int kScan = 400;  // pixels to the inch

class Newcomer : public testing::Test {
 protected:
  double Margin(const std::string& field) const {
    return std::stod(Find(program, field, "text").text);
  }

  static std::string LastName() {
    const std::string rows = SampleLabel("addresses.csv");
    return Shell("tail -n 1 '" + rows + "' | iconv -f CP1252 -t UTF-8 | cut -d , -f 1");
  }

  static void ExpectPlace(const SavedObject& object, const Place& place) {
    EXPECT_NEAR(object.left, place.left, kPixel);
    EXPECT_NEAR(object.top, place.top, kPixel);
    EXPECT_NEAR(object.width, place.width, kPixel);
    EXPECT_NEAR(object.height, place.height, kPixel);
  }

  // What a scanner reads in a part of the sheet.
  std::string SymbolIn(const Place& part) const {
    const auto pixels = [](double millimetres) {
      return " " + std::to_string(std::lround(millimetres / 25.4 * kScan));
    };
    const std::string image = folder + "/cell.png";
    Shell("pdftoppm -png -r " + std::to_string(kScan) + " -x" + pixels(part.left) + " -y" +
          pixels(part.top) + " -W" + pixels(part.width) + " -H" + pixels(part.height) + " '" +
          sheet + "' > '" + image + "'");
    return Shell("zbarimg -q '" + image + "' 2> /dev/null");
  }

  // The mark that the object has left in the first cell of the sheet.
  void ExpectMark(const std::vector<PdfMark>& marks, const SavedObject& object) const {
    const bool there = std::ranges::any_of(marks, [&](const PdfMark& mark) {
      return std::abs(mark.x1 - cell_left - object.left) < kPrinted &&
             std::abs(mark.y1 - cell_top - object.top) < kPrinted &&
             std::abs(mark.x2 - mark.x1 - object.width) < kPrinted &&
             std::abs(mark.y2 - mark.y1 - object.height) < kPrinted;
    });
    EXPECT_TRUE(there) << "nothing at " << object.left << ", " << object.top;
  }

  void ExpectText(const PdfMark& mark, const SavedObject& object) const {
    EXPECT_NEAR(mark.x1, cell_left + object.left, 0.5);  // letters have a margin of their own
    EXPECT_GT(mark.y1, cell_top + object.top);
    EXPECT_LT(mark.y1, cell_top + object.top + object.height);
  }

  std::string folder = FreshFolder();
  std::string sheet = folder + "/sheet.pdf";
  Program program{folder};
  double cell_left = 0, cell_top = 0;
};

TEST_F(Newcomer, MakesALabelSavesItAndPrintsASheet) {
  cell_left = Margin("Left Margin");
  cell_top = Margin("Top Margin");
  const double label_width = Margin("Label Width"), label_height = Margin("Label Height");
  const double next_cell = label_width + Margin("Horiz. Gutter");
  const double next_row = label_height + Margin("Vert. Gutter");

  MakeFirstLabel(program, [](const std::string&) {});
  const auto saved = SavedAs(program, folder + "/museum.twp");
  ASSERT_EQ(saved.size(), 6U);
  const SavedObject &title = saved[0], &frame = saved[1], &picture = saved[2];
  const SavedObject &symbol = saved[3], &name = saved[4], &city = saved[5];
  EXPECT_EQ(title.text, "Harbour Museum");
  EXPECT_EQ(title.font_size, 18);
  EXPECT_TRUE(title.bold);
  ExpectPlace(frame, kFrame);
  ExpectPlace(picture, kLighthouse);
  ExpectPlace(symbol, kSymbol);
  EXPECT_EQ(symbol.text, "400638133393");
  EXPECT_EQ(name.text, "Name");
  EXPECT_EQ(city.text, "City");

  PrintFirstLabel(program, sheet);
  const PdfPages pages = ReadPdf(sheet);
  EXPECT_EQ(pages.count, 1);
  const auto pictures = pages.Of(PdfMark::What::kPicture);
  EXPECT_EQ(pictures.size(), static_cast<std::size_t>(kAddresses));
  ExpectMark(pictures, picture);
  ExpectMark(pages.Of(PdfMark::What::kStroke), frame);
  ExpectText(pages.Text("Harbour Museum"), title);
  ExpectText(pages.Text("Ada Merriweather"), name);
  ExpectText(pages.Text("NH4 2QT Northhaven"), city);
  const PdfMark last = pages.Text(LastName());
  EXPECT_NEAR(last.x1, cell_left + next_cell + name.left, 0.5);
  EXPECT_NEAR(last.y1, pages.Text("Ada Merriweather").y1 + (kAddresses / kAcross - 1) * next_row,
              kPrinted);

  for (int cell = 0; cell < kAddresses; ++cell) {
    const double left = cell_left + cell % kAcross * next_cell;
    const double top = cell_top + cell / kAcross * next_row;
    EXPECT_EQ(SymbolIn({left, top, label_width, label_height}), "EAN-13:4006381333931") << cell;
  }
}

}  // namespace
}  // namespace tagwright::window_test
