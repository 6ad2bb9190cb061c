// The whole program on the toolkit's own printers, without a display: what is pressed here ends on
// paper or in a file.
#pragma once

#include <string>

#include "document/objects.h"
#include "support/test_support.h"

namespace tagwright {

class PrintTest : public ProgramTest {
 protected:
  PrintTest();
  ~PrintTest() override;

  // As a user does it.
  void ChooseLayout(const std::string& title);
  void OpenCommaText(const std::string& path);
  void Print(const std::string& printer);
  // Likewise, with the dialog for the file answered.
  void PrintToPdf(const std::string& path);

  // The next object of the label.
  static ObjectRecord& Add(std::int16_t kind, double left, double top, double width, double height);
  static ObjectRecord& AddField(std::int16_t column, double left, double top, double width,
                                double points);
  // A field shown as a barcode of `format`, without its characters.
  static void AddBarcodeField(std::int16_t column, std::int16_t format, double left, double top,
                              double width, double height);
};

// Where the program's "A4 14 per sheet" puts the labels, millimetres. Sheets fill down the columns.
struct SheetOf14 {
  static constexpr int kAcross = 2, kDown = 7, kCells = kAcross * kDown;
  static constexpr double kLeft = 4.5, kTop = 15, kWidth = 99, kHeight = 38, kGutter = 2.5;
  static int PageOf(int label) { return label / kCells + 1; }
  static double LeftOf(int label) {
    const int column = label % kCells / kDown;
    return kLeft + column * (kWidth + kGutter);
  }
  static double TopOf(int label) { return kTop + label % kCells % kDown * kHeight; }
};

}  // namespace tagwright
