// Symbols painted on a recorder whose pixel is a millimetre, and how they read as modules.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "barcode/engine.h"
#include "barcode/mod_bar_code.h"
#include "platform/files/files.h"
#include "platform/services/desktop.h"
#include "support/test_support.h"

namespace tagwright {

// Points of a font one millimetre high: FixedFonts then has characters 0.5 wide and lines 1.1 high.
constexpr double kMillimetreFont = 72 / 25.4;

// What DrawBarcode is told; each test changes what it is about.
struct Symbol {
  std::string data;
  std::int16_t format = 0;
  float x = 10;
  float y = 20;
  double height = 15;
  double width = 95;
  bool text = false;
  double font_size = 4 * kMillimetreFont;
  std::string font{};
};

// A bar as painted.
struct Bar {
  double left, top, right, bottom;
};

class BarcodeTest : public ProgramTest {
 protected:
  BarcodeTest() {
    page.Scale().SetScaleMode(kMillimetres);
    DrawTarget = &page;
    ResetBarcodeState();
  }
  ~BarcodeTest() override { DrawTarget = nullptr; }

  // Paints on an empty page; `symbol.data` becomes what the engine made of it.
  void Draw(Symbol& symbol) {
    page.painted.clear();
    DrawBarcode(symbol.data, symbol.format, symbol.x, symbol.y, symbol.height, symbol.width,
                symbol.text, symbol.font_size, symbol.font);
  }
  void Draw(const std::string& data, std::int16_t format, double width = 95) {
    Symbol symbol{data, format};
    symbol.width = width;
    Draw(symbol);
  }

  std::vector<Bar> Bars() const {
    std::vector<Bar> bars;
    for (const Painted& box : page.Of(Painted::What::kBox)) {
      bars.push_back({box.x1, box.y1, box.x2, box.y2});
    }
    return bars;
  }
  std::vector<Painted> Texts() const { return page.Of(Painted::What::kText); }

  // The painted bars in modules, "1" black and "0" white, from the first bar's left edge to the
  // last one's right edge.
  std::string Picture() const {
    const std::vector<Bar> bars = Bars();
    std::string picture;
    for (const Bar& bar : bars) {
      const long from = std::lround((bar.left - bars.front().left) / ModuleWidth);
      const long to = std::lround((bar.right - bars.front().left) / ModuleWidth);
      picture.resize(static_cast<std::size_t>(std::max<long>(from, 0)), '0');
      picture.resize(static_cast<std::size_t>(std::max<long>(to, 0)), '1');
    }
    return picture;
  }

  void PutMarkerFile() { WriteFile(folder.File("tracemark.flg"), ""); }

  // Nothing was painted, and the target is as the engine prepares it for a symbol.
  void ExpectRefused() const {
    EXPECT_TRUE(Bars().empty());
    EXPECT_TRUE(Texts().empty());
    EXPECT_EQ(page.DrawMode, 9);
    EXPECT_EQ(page.DrawStyle, 5);
  }

  RecordingSurface page{12000, 9000, 25.4};
};

// The strings of a pattern list, for comparing.
inline std::vector<std::string> Strings(const Patterns& patterns) {
  return {patterns.begin(), patterns.end()};
}

}  // namespace tagwright
