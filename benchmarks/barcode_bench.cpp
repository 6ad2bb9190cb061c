// A symbol through DrawBarcode, all fourteen formats with twelve characters of data where the
// format takes them. "barcode" paints on a surface that records boxes and texts, beside another
// library that lists rectangles and texts, with one symbol object reused (its UPC-E has 17 bars,
// ours 21); "on the recording surface" on the one that the tests read back, which keeps more of
// each box; "on PDF" on a page, with text.
#include <benchmark/benchmark.h>
#include <zint.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <memory>
#include <string>

#include "barcode/mod_bar_code.h"
#include "platform/painting/recorder.h"
#include "qt/painting/page_surface.h"
#include "qt/services/paint_services.h"

namespace {

using namespace tagwright;

struct Format {
  const char* name;
  std::int16_t code;
  const char* data;
  int symbology;           // of the other library
  const char* their_data;  // with the start and stop that ours adds by itself
};

constexpr Format kFormats[] = {
    {"UPC-A", 0, "036000291452", BARCODE_UPCA, "036000291452"},
    {"UPC-E", 1, "01234565", BARCODE_UPCE, "01234565"},
    {"EAN-13", 2, "400638133393", BARCODE_EANX, "400638133393"},
    {"EAN-8", 3, "12345670", BARCODE_EANX, "1234567"},
    {"Code 2 of 5", 4, "123456789012", BARCODE_C25IND, "123456789012"},
    {"Interleaved 2 of 5", 5, "123456789012", BARCODE_C25INTER, "123456789012"},
    {"Code 128-A", 6, "ABCDEFGHIJKL", BARCODE_CODE128, "ABCDEFGHIJKL"},
    {"Code 128-B", 7, "ABCdefGHIjkl", BARCODE_CODE128B, "ABCdefGHIjkl"},
    {"Code 128-C", 8, "123456789012", BARCODE_CODE128, "123456789012"},
    {"Code 39", 9, "ABCDEFGHIJKL", BARCODE_CODE39, "ABCDEFGHIJKL"},
    {"Code 39 Extended", 10, "ABCdefGHIjkl", BARCODE_EXCODE39, "ABCdefGHIjkl"},
    {"Codabar", 11, "123456789012", BARCODE_CODABAR, "A123456789012A"},
    {"PostNet", 12, "123456789012", BARCODE_POSTNET, "123456789012"},
    {"Royal Mail CBC", 13, "ABCDEFGHIJKL", BARCODE_RM4SCC, "ABCDEFGHIJKL"},
};

void Draw(const Format& format, const std::string& data, bool text) {
  std::string copy = data;
  DrawBarcode(copy, format.code, 10, 20, 15, 50, text, 8, {});
}

// Keeps what the engine paints, and nothing that it does not paint.
class BoxRecorder : public Surface {
 public:
  struct Box {
    double x1, y1, x2, y2;
    Color color;
  };
  struct Text {
    double x, y;
    std::string text;
  };
  std::vector<Box> boxes;
  std::vector<Text> texts;

  BoxRecorder() {
    Scale().SetPixelsPerInch(600);
    Scale().Resize(12000, 9000);
    Scale().SetScaleMode(kMillimetres);
  }
  void Clear() {
    boxes.clear();
    texts.clear();
  }

 protected:
  void DeviceClear(Color) override { Clear(); }
  void DeviceText(double x, double y, double, std::string_view text, const FontSpec&,
                  Color) override {
    texts.push_back({x, y, std::string(text)});
  }
  void DeviceBox(double x1, double y1, double x2, double y2, Color color) override {
    boxes.push_back({x1, y1, x2, y2, color});
  }
  void DeviceShape(ShapeKind, double, double, double, double, double, double, const Pen&,
                   const Brush&) override {}
  void DeviceLine(double, double, double, double, const Pen&) override {}
  void DevicePicture(const Picture&, double, double, double, double) override {}
};

void OnBoxes(benchmark::State& state, const Format& format, bool text) {
  BoxRecorder page;
  DrawTarget = &page;
  const std::string data = format.data;
  for (auto _ : state) {
    page.Clear();
    Draw(format, data, text);
    benchmark::DoNotOptimize(page.boxes.data());
  }
  if (page.boxes.empty()) state.SkipWithError("nothing was painted");
  DrawTarget = nullptr;
}

void OnRecorder(benchmark::State& state, const Format& format) {
  RecordingSurface page(12000, 9000, 600);
  page.Scale().SetScaleMode(kMillimetres);
  DrawTarget = &page;
  const std::string data = format.data;
  for (auto _ : state) {
    page.painted.clear();
    Draw(format, data, false);
    benchmark::DoNotOptimize(page.painted.data());
  }
  if (page.painted.empty()) state.SkipWithError("nothing was painted");
  DrawTarget = nullptr;
}

void InOtherLibrary(benchmark::State& state, const Format& format, bool text) {
  zint_symbol* symbol = ZBarcode_Create();
  const std::string data = format.their_data;
  for (auto _ : state) {
    ZBarcode_Clear(symbol);
    symbol->symbology = format.symbology;
    symbol->show_hrt = text ? 1 : 0;
    ZBarcode_Encode_and_Buffer_Vector(symbol, reinterpret_cast<const unsigned char*>(data.data()),
                                      static_cast<int>(data.size()), 0);
    benchmark::DoNotOptimize(symbol->vector);
  }
  if (!symbol->vector || !symbol->vector->rectangles) state.SkipWithError(symbol->errtxt);
  ZBarcode_Delete(symbol);
}

// Text on: what a label prints.
void OnPdf(benchmark::State& state, const Format& format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(600);
  QPainter painter(&writer);
  PageSurface page(600, [&]() -> QPainter& { return painter; });
  page.Scale().Resize(11906, 16838);
  page.Scale().SetScaleMode(kMillimetres);
  DrawTarget = &page;
  int on_page = 0;
  for (auto _ : state) {
    Draw(format, format.data, true);
    if (++on_page < 100) continue;
    on_page = 0;
    page.Flush();
    writer.newPage();
  }
  DrawTarget = nullptr;
}

void Register(const Format& format) {
  const std::string name = format.name;
  const auto add = [](const std::string& title, auto run) {
    benchmark::RegisterBenchmark(title.c_str(), run);
  };
  add("barcode/" + name + "/ours", [&](benchmark::State& s) { OnBoxes(s, format, false); });
  add("barcode/" + name + "/floor", [&](benchmark::State& s) { InOtherLibrary(s, format, false); });
  add("barcode with text/" + name + "/ours",
      [&](benchmark::State& s) { OnBoxes(s, format, true); });
  add("barcode with text/" + name + "/floor",
      [&](benchmark::State& s) { InOtherLibrary(s, format, true); });
  add("barcode on the recording surface/" + name + "/ours",
      [&](benchmark::State& s) { OnRecorder(s, format); });
  add("barcode on PDF/" + name + "/ours", [&](benchmark::State& s) { OnPdf(s, format); });
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  InstallPaintServices();
  for (const Format& format : kFormats) Register(format);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
