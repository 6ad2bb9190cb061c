// The toolkit's painting without a display: fonts, pictures and printers as in the program.
#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>

#include "platform/painting/fonts.h"
#include "platform/painting/picture.h"
#include "platform/painting/printer.h"
#include "qt/services/paint_services.h"

namespace tagwright {

// The one application object of a test program.
inline void StartToolkit() {
  static int argc = 1;
  static char name[] = "test";
  static char* argv[] = {name, nullptr};
  if (!qApp) new QGuiApplication(argc, argv);  // lives as long as the program
}

class PaintTest : public testing::Test {
 protected:
  PaintTest() {
    StartToolkit();
    InstallPaintServices();
  }
  ~PaintTest() override {
    ResetPrinter();
    SetFonts(nullptr);
    SetPictureReader(nullptr);
    SetPrinterList(nullptr);
  }
};

// How dark a pixel is: 0 white, 1 black.
inline double Ink(const QImage& image, int x, int y) {
  return 1 - qGray(image.pixel(x, y)) / 255.0;
}

}  // namespace tagwright
