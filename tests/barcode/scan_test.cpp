// Symbols printed to a PDF through the program's own print path and read back by scanners'
// software: zbar, or zxing where zbar does not read them.
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <array>
#include <cstdio>
#include <memory>
#include <random>
#include <sstream>

#include "barcode/code_128.h"
#include "barcode/upc_ean.h"
#include "barcode_test_support.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "platform/text/text.h"
#include "qt/printing/printers.h"
#include "qt/services/paint_services.h"

namespace tagwright {
namespace {

constexpr double kInch = 25.4;
constexpr double kWhiteModules = 12;  // on each side
constexpr double kDotsOfAModule = 2;  // at least
constexpr double kNarrowest = 20, kWidest = 60;
constexpr std::array<int, 3> kResolutions = {203, 300, 600};

// A sheet of A4 in cells, one symbol each.
constexpr int kColumns = 2, kRows = 11;
constexpr double kCellWidth = 105, kCellHeight = 26, kSymbolLeft = 22, kSymbolTop = 6;
constexpr double kSymbolHeight = 15;

// --- data ---------------------------------------------------------------------------------------

using Random = std::mt19937;

int Whole(Random& random, int from, int to) {
  return std::uniform_int_distribution<int>(from, to)(random);
}

std::string Some(Random& random, std::string_view characters, int shortest, int longest) {
  std::string data;
  for (int n = Whole(random, shortest, longest); n > 0; --n) {
    data += characters[static_cast<std::size_t>(
        Whole(random, 0, static_cast<int>(characters.size()) - 1))];
  }
  return data;
}

constexpr std::string_view kTen = "0123456789";

// The check digit is the program's to add.
std::string UpcAData(Random& random) { return Some(random, kTen, 11, 11); }
std::string Ean13Data(Random& random) { return Some(random, kTen, 12, 12); }

// The check digit is the user's to type: that of the same digits behind zeros, as an EAN-13.
std::string Ean8Data(Random& random) {
  const std::string digits = Some(random, kTen, 7, 7);
  return digits + UpcEanCheckDigit("00000" + digits, 2);
}

// Pairs only, since a last single digit is read as two; none of them "00", which has no bars; and
// no fewer than six digits, which a scanner does not trust.
std::string InterleavedData(Random& random) {
  std::string data;
  for (int n = Whole(random, 3, 9); n > 0; --n) {
    const int pair = Whole(random, 1, 99);
    data += {static_cast<char>('0' + pair / 10), static_cast<char>('0' + pair % 10)};
  }
  return data;
}

// Outer blanks are cut from all data: a barcode object's text is trimmed before it is painted.

// Not the symbols with the twelve-unit pattern of value 28 ("<" is one, and a check value may be),
// nor those of code set A whose check value has no pattern.
bool HasPublishedForm(const std::string& data, std::int16_t code_set) {
  const Patterns patterns = Code128Patterns(data, code_set);
  for (const std::string_view pattern : patterns) {
    if (pattern.empty() || pattern == "322122") return false;
  }
  return !data.empty();
}

std::string Code128Data(Random& random, std::string_view characters, std::int16_t code_set) {
  for (;;) {
    const std::string data = Trim(Some(random, characters, 1, 14));
    if (HasPublishedForm(data, code_set)) return data;
  }
}

constexpr std::string_view kUpper =
    "!#$%&'()*+.-/0123456789:;=>?@ ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_\"";
constexpr std::string_view kBoth =
    "!#$%&'()*+.-/0123456789:;=>?@ "
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~\"";

std::string Code128AData(Random& random) { return Code128Data(random, kUpper, 0); }
std::string Code128BData(Random& random) { return Code128Data(random, kBoth, 1); }

// An odd last digit is a value of its own and is read with a zero before it.
std::string Code128CData(Random& random) {
  for (;;) {
    const std::string data = Some(random, kTen, 2, 20);
    if (data.size() % 2 == 0 && HasPublishedForm(data, 2)) return data;
  }
}

// Not "5", which has four wide elements, nor "*", which ends the symbol for a scanner. A symbol of
// blanks is none.
std::string Code39Data(Random& random) {
  for (;;) {
    const std::string data =
        Trim(Some(random, " -.$/+%012346789ABCDEFGHIJKLMNOPQRSTUVWXYZ", 1, 11));
    if (!data.empty()) return data;
  }
}

// Not "-", which has the bars of the dollar sign, nor "$", the small letters and "*", which have
// one bar or are a stop; and no fewer than three characters, which a scanner does not trust.
std::string CodabarData(Random& random) { return Some(random, "0123456789:/.+", 3, 16); }

struct Symbology {
  const char* name;
  std::int16_t format;
  const char* zbar;  // its names in the two programs
  const char* zxing;
  std::string (*data)(Random&);
};

constexpr Symbology kSymbologies[] = {
    {"UpcA", 0, "ean13", "UPC-A", UpcAData},
    {"Ean13", 2, "ean13", "EAN-13", Ean13Data},
    {"Ean8", 3, "ean8", "EAN-8", Ean8Data},
    {"Interleaved", 5, "i25", "ITF", InterleavedData},
    {"Code128A", 6, "code128", "CODE_128", Code128AData},
    {"Code128B", 7, "code128", "CODE_128", Code128BData},
    {"Code128C", 8, "code128", "CODE_128", Code128CData},
    {"Code39", 9, "code39", "CODE_39", Code39Data},
    {"Codabar", 11, "codabar", "CODABAR", CodabarData},
};

// What a scanner says of data: check digits it is told, the letters that the program adds, and a
// UPC-A either by itself or as the EAN-13 that it is.
std::vector<std::string> Readings(const Symbology& symbology, const std::string& data) {
  if (symbology.format == 0) {
    const std::string whole = data + UpcEanCheckDigit(data, 0);
    return {whole, "0" + whole};
  }
  if (symbology.format == 2) return {data + UpcEanCheckDigit(data, 2)};
  if (symbology.format == 11) return {"A" + data + "A", data};
  return {data};
}

// --- other programs -----------------------------------------------------------------------------

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 4096> part{};
  for (std::size_t n; (n = std::fread(part.data(), 1, part.size(), pipe.get())) > 0;) {
    output.append(part.data(), n);
  }
  return output;
}

bool Exists(const char* program) { return !OutputOf(std::string("command -v ") + program).empty(); }

// What stands between two marks, for each time they come.
std::vector<std::string> Between(const std::string& text, const std::string& from,
                                 const std::string& to) {
  std::vector<std::string> found;
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos;) {
    at += from.size();
    const std::size_t end = text.find(to, at);
    if (end == std::string::npos) break;
    found.push_back(text.substr(at, end - at));
    at = end + to.size();
  }
  return found;
}

// What each of the pictures says. Starting the program takes far longer than a symbol.
std::vector<std::vector<std::string>> ReadByZbar(const Symbology& symbology,
                                                 const std::vector<std::string>& pictures) {
  std::string command = "zbarimg -q --xml -Sdisable -S" + std::string(symbology.zbar) + ".enable";
  for (const std::string& picture : pictures) command += " " + picture;
  std::vector<std::vector<std::string>> readings;
  for (const std::string& source :
       Between(OutputOf(command + " 2>/dev/null"), "<source ", "</source>")) {
    readings.push_back(Between(source, "<![CDATA[", "]]></data>"));
  }
  readings.resize(pictures.size());
  return readings;
}

std::vector<std::string> ReadByZxing(const std::string& picture) {
  std::vector<std::string> found;
  std::istringstream lines(OutputOf("ZXingReader " + picture + " 2>/dev/null"));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t text = line.find("Text:");
    const std::size_t from = line.find('"'), to = line.rfind('"');
    if (text != 0 || from == to) continue;
    found.push_back(line.substr(from + 1, to - from - 1));
  }
  return found;
}

// --- the test -----------------------------------------------------------------------------------

class Toolkit : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QGuiApplication>(argc_, argv_); }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[10] = "tagwright";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};
const auto* const kToolkit = testing::AddGlobalTestEnvironment(new Toolkit);

struct Printed {
  std::string data;
  double left = 0, top = 0;  // millimetres on its page
  double width = 0;
  double module = 0;
};

class ScanTest : public ProgramTest, public testing::WithParamInterface<Symbology> {
 protected:
  void SetUp() override {
    if (!Exists("zbarimg")) GTEST_SKIP() << "zbarimg is not installed (package zbar-tools)";
    if (!Exists("pdftocairo"))
      GTEST_SKIP() << "pdftocairo is not installed (package poppler-utils)";
    QImageReader::setAllocationLimit(0);  // a sheet at 600 dpi is above the usual one
    InstallPaintServices();
    ChoosePrinter(kPrintToPdf);
    Printer().Page().Scale().SetScaleMode(kMillimetres);
    dialogs.files = {Pdf()};
    PaintBarcode = PaintBarcodeOf;
    LabelWidth = 210;
    LabelHeight = 297;
    ReadyBoard();
  }
  void TearDown() override {
    PaintBarcode = nullptr;
    ResetPrinter();
    SetFonts(nullptr);
    SetPictureReader(nullptr);
  }

  std::string Pdf() const { return folder.File("sheet.pdf"); }

  void ExpectReadBack(int count);

 private:
  double ModulesOf(const std::string& data, double font_size);
  std::vector<Printed> PrintSheet(int resolution, int count);
  void ExpectSheetReadBack(const std::vector<Printed>& sheet, int page, int resolution);
  std::vector<std::string> CutOut(const std::vector<Printed>& sheet, const QImage& page,
                                  int resolution);
  bool ReadsAs(const std::vector<std::string>& found, const std::string& data) const;

  Random random_{20260314};
};

// Modules that the width is shared out among, the light ones of an EAN-13's divisor included.
double ScanTest::ModulesOf(const std::string& data, double font_size) {
  RecordingSurface scrap;
  scrap.Scale().SetScaleMode(kMillimetres);
  Surface* const target = std::exchange(DrawTarget, &scrap);
  std::string copy = data;
  DrawBarcode(copy, GetParam().format, 0, 0, kSymbolHeight, 100, true, font_size, "Arial");
  DrawTarget = target;
  return 100 / ModuleWidth;
}

std::vector<Printed> ScanTest::PrintSheet(int resolution, int count) {
  constexpr double kFontSize = 8;
  std::vector<Printed> sheet;
  ObjectUB = -1;
  Objects.clear();
  while (static_cast<int>(sheet.size()) < count) {
    const std::string data = GetParam().data(random_);
    const double modules = ModulesOf(data, kFontSize);
    const double least = std::max(kNarrowest, modules * kDotsOfAModule * kInch / resolution);
    if (least > kWidest) continue;
    const int cell = static_cast<int>(sheet.size());
    // A little off each cell's corner, so that edges meet the dots everywhere.
    const double shift = std::uniform_real_distribution<double>(0, 1)(random_);
    GrowObjects();
    ObjectRecord& object = ObjectAt(ObjectUB);
    object.ObjType = kBarcode;
    object.Text = data;
    object.Param = GetParam().format;
    object.Left = static_cast<float>(cell % kColumns * kCellWidth + kSymbolLeft + shift);
    object.Top = static_cast<float>(cell / kColumns * kCellHeight + kSymbolTop + shift);
    object.Width = std::uniform_real_distribution<double>(least, kWidest)(random_);
    object.Height = kSymbolHeight;
    object.FontName = "Arial";
    object.FontSize = kFontSize;
    object.Bold = Whole(random_, 0, 1) ? kTrue : kFalse;
    sheet.push_back({data, object.Left, object.Top, object.Width, object.Width / modules});
  }
  RedrawBoard(0, 0, true);
  Printer().NewPage();
  return sheet;
}

bool ScanTest::ReadsAs(const std::vector<std::string>& found, const std::string& data) const {
  for (const std::string& reading : Readings(GetParam(), data)) {
    for (const std::string& text : found) {
      if (text == reading) return true;
    }
  }
  return false;
}

// One page in grey. Cairo gives each edge the grey of the part of the dot that it covers, where
// other renderers move edges onto whole dots.
QImage Rendered(const std::string& pdf, int page, int resolution, const std::string& picture) {
  const std::string number = std::to_string(page);
  OutputOf("pdftocairo -gray -png -singlefile -r " + std::to_string(resolution) + " -f " + number +
           " -l " + number + " " + pdf + " " + picture);
  return QImage(QString::fromStdString(picture + ".png"))
      .convertToFormat(QImage::Format_Grayscale8);
}

// The symbol's place with its white modules, in dots.
QRect PlaceOf(const Printed& printed, int resolution) {
  const double white = kWhiteModules * printed.module;
  const QRectF place(printed.left - white, printed.top - 1, printed.width + 2 * white,
                     kSymbolHeight + 2);
  const double dots = resolution / kInch;
  return QRectF(place.topLeft() * dots, place.size() * dots).toAlignedRect();
}

std::vector<std::string> ScanTest::CutOut(const std::vector<Printed>& sheet, const QImage& page,
                                          int resolution) {
  std::vector<std::string> pictures;
  for (const Printed& printed : sheet) {
    pictures.push_back(folder.File("symbol" + std::to_string(pictures.size()) + ".pgm"));
    EXPECT_TRUE(
        page.copy(PlaceOf(printed, resolution)).save(QString::fromStdString(pictures.back())));
  }
  return pictures;
}

void ScanTest::ExpectSheetReadBack(const std::vector<Printed>& sheet, int page, int resolution) {
  const QImage picture = Rendered(Pdf(), page, resolution, folder.File("page"));
  ASSERT_FALSE(picture.isNull()) << "page " << page << " was not rendered";
  const std::vector<std::string> parts = CutOut(sheet, picture, resolution);
  const auto readings = ReadByZbar(GetParam(), parts);
  for (std::size_t i = 0; i < sheet.size(); ++i) {
    const Printed& printed = sheet[i];
    if (ReadsAs(readings[i], printed.data)) continue;
    if (ReadsAs(ReadByZxing(parts[i]), printed.data)) continue;
    ADD_FAILURE() << "not read: \"" << printed.data << "\" " << printed.width << " mm wide at "
                  << resolution << " dpi, modules of " << printed.module * resolution / kInch
                  << " dots";
  }
}

void ScanTest::ExpectReadBack(int count) {
  std::vector<std::vector<Printed>> sheets;
  for (int left = count; left > 0; left -= kColumns * kRows) {
    const int resolution = kResolutions[sheets.size() % kResolutions.size()];
    sheets.push_back(PrintSheet(resolution, std::min(left, kColumns * kRows)));
  }
  Printer().EndDoc();
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    ExpectSheetReadBack(sheets[i], static_cast<int>(i) + 1, kResolutions[i % kResolutions.size()]);
  }
}

TEST_P(ScanTest, IsReadBack) { ExpectReadBack(200); }
TEST_P(ScanTest, Long_IsReadBack) { ExpectReadBack(2000); }

INSTANTIATE_TEST_SUITE_P(Each, ScanTest, testing::ValuesIn(kSymbologies),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace tagwright
