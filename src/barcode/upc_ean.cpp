#include "barcode/upc_ean.h"

#include <array>

#include "barcode/engine.h"
#include "common/barcode_format.h"

namespace tagwright {
namespace {

constexpr int kNoCentre = 100;          // beyond every position
constexpr double kGuardLonger = 1.25;   // than the bars of the digits
constexpr double kTextRoom = 1.5;       // kept free below the bars
constexpr double kTextGap = 0.25;       // between bars and digits
constexpr double kFirstDigitGap = 0.5;  // between the first digit of an EAN-13 and its bars
constexpr double kDefaultFontSize = 6;
constexpr double kFixedWidth = -1;  // asks for modules of kFixedModule
constexpr double kFixedModule = 3;

// ISO/IEC 15420, table 1, as element widths from the left: number set A with its leading space cut
// off, which are the widths of set C as well.
constexpr std::array<std::string_view, 10> kOdd = {
    "03211", "02221", "02122", "01411", "01132",   // 0 to 4
    "01231", "01114", "01312", "01213", "03112"};  // 5 to 9

// The same table, number set B.
constexpr std::array<std::string_view, 10> kEven = {
    "01123", "01222", "02212", "01141", "02311",   // 0 to 4
    "01321", "04111", "02131", "03121", "02113"};  // 5 to 9

constexpr std::array<std::string_view, 3> kGuards = {"111", "011111", "0111111"};

// ISO/IEC 15420, table 3: where the left half of an EAN-13 uses the odd set, by its first digit.
// The positions count from 1 for the digit after the first one.
constexpr std::array<std::string_view, 10> kOddPositions = {
    "123456", "124", "125", "126", "134",   // 0 to 4
    "145",    "156", "135", "136", "146"};  // 5 to 9

// UPC-E is not compressed here: its eight digits are all painted, always in these sets. Neither the
// zero-suppressed form nor a parity from the check digit exists.
constexpr std::string_view kUpcEOddPositions = "236";

constexpr bool SevenModules(std::string_view pattern) {
  int sum = 0;
  for (const char width : pattern) sum += width - '0';
  return pattern.size() == 5 && pattern[0] == '0' && sum == 7;
}
constexpr bool SevenModules(const std::array<std::string_view, 10>& table) {
  for (const std::string_view pattern : table) {
    if (!SevenModules(pattern)) return false;
  }
  return true;
}
static_assert(SevenModules(kOdd) && SevenModules(kEven));

std::string_view Begun(std::string_view pattern, bool with_space) {
  return with_space ? pattern : pattern.substr(1);
}

bool Holds(std::string_view positions, int position) {
  return positions.find(static_cast<char>('0' + position)) != std::string_view::npos;
}

// Half the length and one more, halves going to the even position.
int CentrePosition(int length, std::int16_t format) {
  if (format == kFormatUpcE) return kNoCentre;
  const int below = length / 2 + 1;
  return length % 2 == 1 && below % 2 == 1 ? below + 1 : below;
}

bool IsOdd(std::string_view data, std::int16_t format, int position, int centre) {
  if (format == kFormatUpcE) return Holds(kUpcEOddPositions, position);
  if (format != kFormatEan13 || position >= centre) return true;
  return Holds(kOddPositions[static_cast<std::size_t>(data[0] - '0')], position - 1);
}

void CompleteData(std::string& data, std::int16_t format) {
  const bool upc = format == kFormatUpcA && data.size() == 11;
  const bool ean = format == kFormatEan13 && data.size() == 12;
  if (upc || ean) data += UpcEanCheckDigit(data, format);
}

// The divisors are the program's own and leave a module or more over. That of EAN-13 adds widths of
// text to numbers of modules, whether or not any text is printed.
double ModulesOf(std::string_view data, std::int16_t format) {
  const double digits = static_cast<double>(data.size()) * 7;
  if (format != kFormatEan13) return digits + 12;
  return 2 * Target().TextWidth(data.substr(0, 1)) + digits + 13 + 1;
}

void MeasureUpcEan(std::string_view data, std::int16_t format, double width) {
  ModuleWidth =
      width == kFixedWidth ? kFixedModule : Finite(Quotient(width, ModulesOf(data, format)));
}

// Text beside the bars of an EAN-13, level with its digits.
void PrintBeside(std::string_view text, double left, float top) {
  EngineTraced([&] { Target().CurrentX = Finite(left); });
  EngineTraced([&] { Target().CurrentY = Finite(top + BarHeight + kTextGap); });
  EngineTraced([&] { Target().Print(text); });
}

void PrintFirstDigit(std::string_view data, float x, float y) {
  const std::string_view digit = data.substr(0, 1);
  PrintBeside(digit, x, y);
  EngineTraced([&] { CursorX = ToSingle(CursorX + Target().TextWidth(digit) + kFirstDigitGap); });
}

UpcEanElement Guard(int kind) { return {true, GuardPattern(kind), ' ', kind}; }

void PaintElements(const std::vector<UpcEanElement>& elements) {
  for (const UpcEanElement& element : elements) {
    if (element.guard) {
      DrawGuard(element.kind);
    } else {
      PaintPattern(element.pattern, {&element.digit, 1});
    }
  }
}

}  // namespace

std::string_view DigitPatternOdd(int Digit, bool LeadingSpace) {
  return Begun(kOdd[static_cast<std::size_t>(Digit)], LeadingSpace);
}

std::string_view DigitPatternEven(int Digit, bool LeadingSpace) {
  return Begun(kEven[static_cast<std::size_t>(Digit)], LeadingSpace);
}

std::string_view GuardPattern(int Kind) { return kGuards[static_cast<std::size_t>(Kind)]; }

void DrawGuard(int Kind) {
  const double digits = BarHeight;
  BarHeight = digits + kGuardLonger;
  PaintPattern(GuardPattern(Kind));
  BarHeight = digits;
}

char UpcEanCheckDigit(std::string_view Data, std::int16_t Format) {
  int weight = Format == kFormatUpcA ? 3 : 1, sum = 0;
  for (const char digit : Data) {
    sum += (digit - '0') * weight;
    weight = 4 - weight;
  }
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

std::vector<UpcEanElement> UpcEanElements(std::string_view Data, std::int16_t Format) {
  const int length = static_cast<int>(Data.size()), centre = CentrePosition(length, Format);
  std::vector<UpcEanElement> elements;
  elements.reserve(Data.size() + 3);
  elements.push_back(Guard(0));
  for (int i = Format == kFormatEan13 ? 2 : 1; i <= length; ++i) {
    if (i == centre) elements.push_back(Guard(1));
    const char digit = Data[static_cast<std::size_t>(i - 1)];
    const bool with_space = i < centre;
    elements.push_back({false,
                        IsOdd(Data, Format, i, centre) ? DigitPatternOdd(digit - '0', with_space)
                                                       : DigitPatternEven(digit - '0', with_space),
                        digit});
  }
  elements.push_back(Guard(Format == kFormatUpcE ? 2 : 0));
  return elements;
}

void DrawUpcEan(std::string& Data, std::int16_t Format, float X, float Y, double Height,
                double Width, bool PrintCharacters, double FontSize) {
  EngineTraced([&] { Target().Font.Size = FontSize == 0 ? kDefaultFontSize : Finite(FontSize); });
  PrintChars = PrintCharacters;
  CursorX = X;
  CursorY = Y;
  CompleteData(Data, Format);
  EngineTraced([&] { MeasureUpcEan(Data, Format, Width); });
  BarHeight = Height - kTextRoom;
  if (Format == kFormatEan13 && PrintCharacters) PrintFirstDigit(Data, X, Y);
  PaintElements(UpcEanElements(Data, Format));
  if (Format == kFormatEan13 && PrintCharacters) PrintBeside(">", CursorX + 2 * ModuleWidth, Y);
}

}  // namespace tagwright
