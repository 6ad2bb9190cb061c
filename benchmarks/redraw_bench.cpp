// A redraw of the whole board beside a plain painter that draws the same, and opening a project.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "document/project_load.h"
#include "document/project_save.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "platform/services/desktop.h"
#include "qt/painting/image_surface.h"
#include "qt/services/paint_services.h"
#include "shell/startup.h"

namespace {

using namespace tagwright;
namespace fs = std::filesystem;

constexpr int kBoardWidth = 1600;  // pixels
constexpr int kBoardHeight = 1000;
constexpr double kTwipsPerPixel = 15;
constexpr double kPixelsPerMillimetre = 96 / 25.4;
constexpr double kLabelWidth = 400;  // millimetres; the board shows 423 by 265
constexpr double kLabelHeight = 250;
constexpr int kBars = 35;
constexpr double kPoints = 10;
constexpr int kObjectsOfAFile = 96;

// A quarter each of rectangles, ellipses, texts and symbols, scattered over the label but the same
// in every run.
ObjectRecord MixedObject(int number, std::mt19937& random) {
  constexpr Kind kKinds[] = {kRectangle, kEllipse, kText, kBarcode};
  std::uniform_real_distribution<double> left(0, kLabelWidth - 30);
  std::uniform_real_distribution<double> top(0, kLabelHeight - 15);
  std::uniform_int_distribution<Color> color(0, 0xFFFFFF);
  ObjectRecord object;
  object.ObjType = kKinds[number % 4];
  object.Left = static_cast<float>(left(random));
  object.Top = static_cast<float>(top(random));
  object.Width = 25;
  object.Height = 12;
  object.ForeColor = color(random);
  if (IsShape(object.ObjType)) {
    object.Param = 1;
    object.FillColor = color(random);
    return object;
  }
  object.Text = "Label no. " + std::to_string(number);
  object.FontName = "Arial";
  object.FontSize = kPoints;
  return object;
}

void FillLabel(int count) {
  std::mt19937 random(1);
  ObjectUB = -1;
  Objects.clear();
  for (int i = 0; i < count; ++i) {
    GrowObjects();
    ObjectAt(ObjectUB) = MixedObject(i, random);
  }
}

// The program with a board of this size, its label empty.
void StartWithBoard() {
  static std::string folder = (fs::temp_directory_path() / "tagwright-bench-XXXXXX").string();
  static const bool made = mkdtemp(folder.data()) != nullptr;
  if (!made) abort();
  SetExecutableFolder(folder);
  StartProgram();
  frmMain.picBoard.SetCanvas(std::make_unique<ImageSurface>());
  DrawTarget = &frmMain.picBoard.Canvas();
  frmMain.picBoard.SetWidth(kBoardWidth * kTwipsPerPixel);
  frmMain.picBoard.SetHeight(kBoardHeight * kTwipsPerPixel);
  frmMain.picBoard.SetScaleWidth(kBoardWidth / kPixelsPerMillimetre);
  frmMain.picBoard.SetScaleHeight(kBoardHeight / kPixelsPerMillimetre);
  frmMain.mnuFileRulers.SetChecked(false);
  LabelWidth = kLabelWidth;
  LabelHeight = kLabelHeight;
}

// What the redraw calls for a symbol: as many bars as a usual one has.
void PaintBars(const std::string&, std::int16_t, float x, float y, double height, double width,
               bool, double, const std::string&) {
  const double step = width / (2 * kBars);
  for (int bar = 0; bar < kBars; ++bar) {
    const double left = x + 2 * bar * step;
    DrawTarget->Line(left, y, left + step, y + height, 0);
  }
}

const QImage& Shown() { return static_cast<ImageSurface&>(frmMain.picBoard.Canvas()).Image(); }

void RedrawOurs(benchmark::State& state, int count) {
  StartWithBoard();
  if (!PaintBarcode) PaintBarcode = PaintBars;
  FillLabel(count);
  RedrawBoard();  // hit areas come into being
  for (auto _ : state) {
    RedrawBoard();
    benchmark::DoNotOptimize(Shown().constBits());
  }
}

// --- the floor
// -------------------------------------------------------------------------------------

QColor Shade(Color color) { return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF); }

void DrawPlainly(QPainter& painter, const ObjectRecord& object) {
  const QRectF box(object.Left * kPixelsPerMillimetre, object.Top * kPixelsPerMillimetre,
                   object.Width * kPixelsPerMillimetre, object.Height * kPixelsPerMillimetre);
  painter.setPen(Shade(object.ForeColor));
  painter.setBrush(Shade(object.FillColor));
  switch (object.ObjType) {
    case kRectangle:
      painter.drawRect(box);
      break;
    case kEllipse:
      painter.drawEllipse(box);
      break;
    case kText:
      painter.drawText(box.topLeft() + QPointF(0, 12),
                       QString::fromStdString(object.Text.Trimmed()));
      break;
    default:
      for (int bar = 0; bar < kBars; ++bar) {
        const double step = box.width() / (2 * kBars);
        painter.fillRect(QRectF(box.left() + 2 * bar * step, box.top(), step, box.height()),
                         Qt::black);
      }
  }
}

void RedrawFloor(benchmark::State& state, int count) {
  FillLabel(count);
  QImage board(kBoardWidth, kBoardHeight, QImage::Format_ARGB32_Premultiplied);
  QFont font("Arial");
  font.setPixelSize(13);
  for (auto _ : state) {
    board.fill(Qt::white);
    QPainter painter(&board);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    for (const ObjectRecord& object : Objects) DrawPlainly(painter, object);
    painter.end();
    benchmark::DoNotOptimize(board.constBits());
  }
}

// --- opening
// ---------------------------------------------------------------------------------------

void OpenProject(benchmark::State& state) {
  StartWithBoard();
  if (!PaintBarcode) PaintBarcode = PaintBars;
  FillLabel(kObjectsOfAFile);
  ProjectPath = AppFolder + "bench.twp";
  SaveProject(kFalse);
  const std::string path = ProjectPath;
  for (auto _ : state) {
    LoadProject(path);
    benchmark::DoNotOptimize(Shown().constBits());
  }
  fs::remove_all(AppFolder);
  fs::create_directory(AppFolder);
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  InstallPaintServices();
  benchmark::Initialize(&argc, argv);
  for (const int count : {100, 1000, 10000}) {
    const std::string name = "redraw of " + std::to_string(count) + " objects";
    benchmark::RegisterBenchmark((name + "/ours").c_str(), RedrawOurs, count)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((name + "/floor").c_str(), RedrawFloor, count)
        ->Unit(benchmark::kMillisecond);
  }
  benchmark::RegisterBenchmark("open a project of 96 objects/ours", OpenProject)
      ->Unit(benchmark::kMillisecond);
  benchmark::RunSpecifiedBenchmarks();
}
