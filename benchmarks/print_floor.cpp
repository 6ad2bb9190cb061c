// The same sheets as print_ours, painted plainly: no document, no program, only the toolkit's
// painter on its PDF printer, with one translation for each label and one call for its bars. What
// it takes is what the toolkit takes.
//
//   print_floor ROWS.csv PAGES.pdf
//
// Prints the seconds from the opened to the closed file, those of the processor, and the kilobytes
// before it and at most.
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "barcode/code_128.h"
#include "sheet_rows.h"

namespace {

using namespace tagwright;
using namespace tagwright::bench;
using Clock = std::chrono::steady_clock;

constexpr int kUnitsPerInch = 2540;
constexpr int kCodeSetB = 1;
constexpr double kModulesOfCharacter = 11;
constexpr double kModulesOfStop = 13;

double Units(double millimetres) { return millimetres * kUnitsPerInch / 25.4; }

// Black and white in turn, each as many modules wide as its digit says.
void AddBars(std::string_view pattern, double module, double& x, std::vector<QRectF>& bars) {
  bool black = true;
  for (const char digit : pattern) {
    const double width = (digit - '0') * module;
    if (black) bars.emplace_back(x, Units(kSymbolTop), width, Units(kSymbolHeight));
    x += width;
    black = !black;
  }
}

void DrawSymbol(QPainter& painter, const std::string& data, std::vector<QRectF>& bars) {
  const Patterns patterns = Code128Patterns(data, kCodeSetB);
  const auto characters = static_cast<double>(patterns.size() - 1);
  const double module = Units(kSymbolWidth) / (characters * kModulesOfCharacter + kModulesOfStop);
  double x = Units(kLeft);
  bars.clear();
  for (const std::string_view pattern : patterns) AddBars(pattern, module, x, bars);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  painter.drawRects(bars.data(), static_cast<int>(bars.size()));
}

class Sheets {
 public:
  explicit Sheets(const char* pages) : printer_(QPrinter::HighResolution) {
    printer_.setOutputFormat(QPrinter::PdfFormat);
    printer_.setOutputFileName(pages);
    printer_.setResolution(kUnitsPerInch);
    printer_.setFullPage(true);
    printer_.setPageSize(QPageSize(QPageSize::A4));
    QFont font(QString::fromStdString(kFamily));
    font.setPointSizeF(kPoints);
    ascent_ = QFontMetricsF(font, &printer_).ascent();
    painter_.begin(&printer_);
    painter_.setFont(font);
  }

  void Label(const std::vector<std::string>& columns) {
    const int cell = labels_++ % (kAcross * kDown);
    if (cell == 0 && labels_ > 1) printer_.newPage();
    const QPointF corner(Units(kSheetLeft + kPitchX * (cell / kDown)),
                         Units(kSheetTop + kPitchY * (cell % kDown)));
    painter_.translate(corner);
    painter_.setPen(Qt::black);
    for (int line = 0; line < kLines; ++line) {
      painter_.drawText(QPointF(Units(kLeft), Units(kFirstLine + kLineStep * line) + ascent_),
                        QString::fromStdString(columns[static_cast<std::size_t>(line)]));
    }
    DrawSymbol(painter_, columns[kLines], bars_);
    painter_.translate(-corner);
  }

 private:
  QPrinter printer_;
  QPainter painter_;
  std::vector<QRectF> bars_;
  double ascent_ = 0;
  int labels_ = 0;
};

void PrintRows(const char* rows, const char* pages) {
  std::ifstream table(rows);
  Sheets sheets(pages);
  std::string line;
  std::getline(table, line);  // titles
  std::vector<std::string> columns(kLines + 1);
  while (std::getline(table, line)) {
    if (line.ends_with('\r')) line.pop_back();
    std::size_t start = 0;
    for (std::string& column : columns) {
      const std::size_t end = std::min(line.find(',', start), line.size());
      column = line.substr(start, end - start);
      start = end + 1;
    }
    sheets.Label(columns);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: print_floor ROWS.csv PAGES.pdf\n";
    return EXIT_FAILURE;
  }
  const QGuiApplication application(argc, argv);
  const long idle = Resident();
  ForgetPeak();
  const double used = ProcessorSeconds();
  const auto start = Clock::now();
  PrintRows(argv[1], argv[2]);
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  std::printf("%.4f %.4f %ld %ld\n", seconds, ProcessorSeconds() - used, idle, Peak());
  return EXIT_SUCCESS;
}
