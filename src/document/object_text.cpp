#include "document/object_text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/redraw.h"
#include "platform/controls/label.h"
#include "platform/faults/fault.h"
#include "platform/painting/surface.h"
#include "platform/services/clock.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

constexpr std::string_view kSerialToken = "[#SRNO]";
constexpr std::string_view kDateToken = "[#DT";
constexpr std::string_view kLineEnd = "\r\n";
constexpr Color kMarkerColor = Rgb(0, 0, 255);
constexpr int kLastBarcodeFormat = 150;
constexpr int kLastMarkedFormat = 125;
constexpr double kBarcodeFontSize = 6;
constexpr double kRoomUsed = 0.9;  // of what is left of the label, by a symbol that is too large

// One object while its lines are painted.
struct TextPass {
  const ObjectRecord& object;
  bool output;
  double x = 0;           // of the present line, target units
  double y = 0;           // likewise, without the origin
  std::int16_t days = 0;  // of the last date token whose number could be read
};

std::string_view TrimmedView(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void PrepareTarget() {
  DrawTarget->DrawMode = kCopyPen;
  DrawTarget->DrawStyle = 1;
  DrawTarget->FontTransparent = true;
}

// Measured before any token is resolved: a line with a token stands as if the token were printed.
double LineStart(const TextPass& pass, std::string_view line) {
  const ObjectRecord& object = pass.object;
  if (object.ObjType == kText && object.Param == static_cast<int>(TextAlignment::kRight)) {
    return object.Left + object.Width - DrawTarget->TextWidth(line) + BoardOriginX;
  }
  if (object.ObjType == kText && object.Param == static_cast<int>(TextAlignment::kCenter)) {
    return (object.Width - DrawTarget->TextWidth(line)) / 2 + object.Left + BoardOriginX;
  }
  return object.Left + BoardOriginX;
}

void MoveTo(const TextPass& pass) {
  DrawTarget->CurrentX = pass.x;
  DrawTarget->CurrentY = pass.y + BoardOriginY;
}

void Print(std::string_view text) {
  Traced([&] { DrawTarget->Print(text); });
}

// --- tokens of a printed text -------------------------------------------------------------------

std::string SerialText() { return SerialPrefix + std::to_string(SerialValue); }

void PaintSerialBarcode(const TextPass& pass) {
  if (!PaintBarcode) return;
  PaintBarcode(SerialText(), SerialBarcodeType, static_cast<float>(pass.x),
               static_cast<float>(pass.y + BoardOriginY), SerialBarcodeHeight, SerialBarcodeWidth,
               true, kBarcodeFontSize, "");
}

// Returns false where the serial is a barcode: it takes the place of this line and of all lines
// after it.
bool ResolveSerial(const TextPass& pass, std::string& line) {
  if (line.find(kSerialToken) == std::string::npos) return true;
  SerialUsed = true;
  if (SerialBarcodeType == kNoBarcode) {
    line = Replace(line, kSerialToken, SerialText());
    return true;
  }
  Traced([&] { PaintSerialBarcode(pass); });
  return false;
}

// Replaces the date token at `at` wherever it stands in the line. A number that is too large keeps
// the one before it. Faults 5 for a token without its end.
void ResolveDate(TextPass& pass, std::string& line, std::size_t at) {
  const std::size_t end = line.find(']', at);
  if (end == std::string::npos) RaiseFault(kInvalidCall);
  const std::string token = line.substr(at, end - at + 1);
  const std::string number = line.substr(at + kDateToken.size(), end - at - kDateToken.size());
  Traced([&] { pass.days = ToInt16(ToNumber(number)); });
  line = Replace(line, token, FormatShortDate(AddDays(Today(), pass.days)));
}

// A line with a date prints in black whatever the object's colour, and so do the lines after it,
// even if the token is not closed.
void ResolveDates(TextPass& pass, std::string& line) {
  std::size_t at = line.find(kDateToken);
  while (at != std::string::npos) {
    Traced([&] { ResolveDate(pass, line, at); });
    DrawTarget->ForeColor = 0;
    at = line.find(kDateToken, at + 1);
  }
}

// Returns false where the object ends with this line.
bool PrintText(TextPass& pass, std::string_view text) {
  if (text.find("[#") == std::string_view::npos) {
    Print(text);
    return true;
  }
  std::string line(text);
  if (!ResolveSerial(pass, line)) return false;
  ResolveDates(pass, line);
  Print(line);
  return true;
}

// --- the value of a printed data field ----------------------------------------------------------

// A value that is no number leads to the column of another object: the one whose index is this
// field's column.
std::string CurrencyText(const ObjectRecord& object) {
  const std::string& value = FieldValueAt(object.Param);
  if (const auto number = ParseNumber(value)) return FormatCurrency(*number);
  return FieldValueAt(ObjectAt(object.Param).Param);
}

std::string NumberText(const ObjectRecord& object) {
  const std::string& value = FieldValueAt(object.Param);
  if (const auto number = ParseNumber(value)) return FormatStandard(*number);
  return value;
}

// A symbol that would leave the label keeps a tenth of the room as a margin. The room is counted
// from the target's corner, the test from the label's.
void PaintFieldBarcode(const TextPass& pass) {
  const ObjectRecord& object = pass.object;
  const std::string& value = FieldValueAt(object.Param);
  double width = object.Width == 0 ? kDefaultBarcodeWidth : object.Width;
  double height = object.Height == 0 ? kDefaultBarcodeHeight : object.Height;
  if (pass.y - BoardOriginY + height > LabelHeight) height = (LabelHeight - pass.y) * kRoomUsed;
  if (pass.x - BoardOriginX + width > LabelWidth) width = (LabelWidth - pass.x) * kRoomUsed;
  if (!PaintBarcode) return;
  PaintBarcode(value, static_cast<std::int16_t>(object.FillColor - kFirstBarcodeFormat),
               static_cast<float>(pass.x), static_cast<float>(pass.y + BoardOriginY), height, width,
               object.Italic != kFalse, kBarcodeFontSize * ZoomFactor, "");
}

void PrintField(const TextPass& pass) {
  const ObjectRecord& object = pass.object;
  switch (object.FillColor) {
    case kPlainField:
      return DrawTarget->Print(FieldValueAt(object.Param));
    case kCurrencyField:
      return DrawTarget->Print(CurrencyText(object));
    case kNumberField:
      return DrawTarget->Print(NumberText(object));
    default:
      break;
  }
  if (object.FillColor >= kFirstBarcodeFormat && object.FillColor <= kLastBarcodeFormat) {
    PaintFieldBarcode(pass);
  }
}

// --- the screen's marker of a data field --------------------------------------------------------

std::string_view Marker(std::int32_t format) {
  switch (format) {
    case kPlainField:
      return "S";
    case kCurrencyField:
      return "$";
    case kNumberField:
      return "#";
    default:
      return format >= kFirstBarcodeFormat && format <= kLastMarkedFormat ? "B" : "";
  }
}

void PrintMarker(const TextPass& pass, std::string_view line) {
  const Color color = DrawTarget->ForeColor;
  const double size = DrawTarget->Font.Size;
  DrawTarget->CurrentX = pass.x + DrawTarget->TextWidth(line);
  DrawTarget->Font.Size = size / 2;
  DrawTarget->CurrentY = pass.y + BoardOriginY;
  DrawTarget->ForeColor = kMarkerColor;
  Print(Marker(pass.object.FillColor));
  DrawTarget->ForeColor = color;
  DrawTarget->Font.Size = size;
}

// --- lines --------------------------------------------------------------------------------------

void ShowField(const TextPass& pass, std::string_view line) {
  Print(line);
  PrintMarker(pass, line);
}

// Returns false where the object ends with this line.
bool PaintLine(TextPass& pass, std::string_view line) {
  pass.x = LineStart(pass, line);
  MoveTo(pass);
  if (pass.object.ObjType == kDataField) {
    if (pass.output) {
      Traced([&] { PrintField(pass); });
    } else {
      ShowField(pass, line);
    }
    return true;
  }
  if (pass.output) return PrintText(pass, line);
  Print(line);
  return true;
}

void PaintLines(const ObjectRecord& object, bool output) {
  const double line_height = DrawTarget->TextHeight("Ag");
  const std::string text = object.Text.Trimmed();
  TextPass pass{object, output, 0, object.Top};
  std::string_view rest = text;
  for (std::size_t end = rest.find(kLineEnd); end != std::string_view::npos;
       end = rest.find(kLineEnd)) {
    if (!PaintLine(pass, TrimmedView(rest.substr(0, end)))) return;
    rest.remove_prefix(end + kLineEnd.size());
    pass.y += line_height;
  }
  PaintLine(pass, TrimmedView(rest));
}

}  // namespace

void PaintObjectText(int Index, bool Output) {
  Traced([&] {
    const ObjectRecord& object = ObjectAt(Index);
    PrepareTarget();
    PaintLines(object, Output);
  });
}

}  // namespace tagwright
