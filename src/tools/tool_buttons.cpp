#include "tools/tool_buttons.h"

#include <cmath>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "editing/panel_stack.h"
#include "editing/pointer.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"
#include "tools/font_box.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

constexpr int kHoldIsOver = 100;
constexpr double kFontTop = 290;
constexpr double kFontLeftOfBarcodes = 7250;
constexpr double kFontLeftOfTexts = 8950;
constexpr std::int16_t kCross = 2;  // pointers
constexpr std::int16_t kIBeam = 3;

void Arm(std::int16_t tool, std::int16_t pointer) {
  CurrentTool = tool;
  CursorShape = pointer;
}

// The last record of this kind, null for none.
const ObjectRecord* LastOf(std::int16_t kind) {
  for (int i = ObjectUB; i >= 0; --i) {
    if (ObjectAt(i).ObjType == kind) return &ObjectAt(i);
  }
  return nullptr;
}

void SelectDefaultFont(double size) {
  SelectFontRow(ProgSettings.DefaultFontName.Trimmed());
  SelectSizeRow(FormatNumber(size));
}

// --- one tool after the other ---

void SelectTool() {
  Arm(kNoTool, 0);
  ShowPanel(frmMain.picProperties);
  frmMain.cboFont.SetVisible(false);
}

void TakeStyleOfBarcode(const ObjectRecord& last) {
  SelectFontRow(last.FontName.Trimmed());
  SelectSizeRow(FormatNumber(last.FontSize));
  CarryOn([&] { frmMain.cboBCode.SetListIndex(last.Param); });
}

void TakeDefaultBarcode() {
  SelectDefaultFont(ProgSettings.BarcodeFontSize);
  CarryOn([] { frmMain.cboBCode.SetListIndex(ProgSettings.AlphaBarcodeType); });
}

// Its panel alone arms nothing: cmdBCode does, once there is data to place.
void BarcodeTool() {
  ShowPanel(frmMain.picBCode);
  const ObjectRecord* last = LastOf(kBarcode);
  last ? TakeStyleOfBarcode(*last) : TakeDefaultBarcode();
  ShowFontBoxes(kFontLeftOfBarcodes, kFontTop);
}

void PictureTool() {
  CurrentTool = kPicture;
  InsertPicture();
}

void TakeStyleOfText(const ObjectRecord& last) {
  SelectFontRow(last.FontName.Trimmed());
  SelectSizeRow(FormatNumber(std::trunc(last.FontSize)));
}

void TextTool() {
  ShowPanel(frmMain.picText);
  ShowFontBoxes(kFontLeftOfTexts, kFontTop);
  const ObjectRecord* last = LastOf(kText);
  last ? TakeStyleOfText(*last) : SelectDefaultFont(ProgSettings.DefaultFontSize);
  Arm(kText, kIBeam);
}

void DrawingTools() {
  ShowPanel(frmMain.picDrawing);
  frmMain.cboFont.SetVisible(false);
}

void ZoomTool(std::int16_t tool, const Image& pointer) {
  CurrentTool = tool;
  SetToolPointer(pointer);
}

void ZoomInTool() {
  ZoomTool(kZoomIn, frmMain.Image3);
  frmMain.cboFont.SetVisible(false);
}

// The release that ends a hold raises the button's click as any release does. It must not arm the
// tool that the flyout has just replaced.
bool HoldHasEnded(int index) { return (index == 5 || index == 6) && HoldTicks > kHoldIsOver; }

void RunTool(int index) {
  switch (index) {
    case 0:
      return SelectTool();
    case 1:
      return BarcodeTool();
    case 2:
      return PictureTool();
    case 3:
      return TextTool();
    case 4:
      return DrawingTools();
    case 5:
      return ZoomInTool();
    case 6:
      return ZoomTool(kZoomOut, frmMain.Image4);
    case 7:
      return frmMain.mnuFileImport.Press();
    default:
      return;
  }
}

// The element of cmdTools that stands for an armed tool; -1 for none.
int ColumnButtonOf(std::int16_t tool) {
  switch (tool) {
    case kBarcode:
      return 1;
    case kPicture:
      return 2;
    case kText:
      return 3;
    case kLine:
    case kRectangle:
    case kRoundedRectangle:
    case kEllipse:
      return 4;
    case kZoomIn:
      return 5;
    case kZoomOut:
      return 6;
    case kDataField:
      return 7;
    default:
      return -1;
  }
}

}  // namespace

void cmdTools_Click(int Index) {
  DeselectObject();
  if (HoldHasEnded(Index)) return;
  CarryOn([&] { RunTool(Index); });
  SizeBoxFollowsFontBox();
  frmMain.picMag.SetVisible(false);
}

void cmdLine_Click() { Arm(kLine, kCross); }
void cmdRect_Click() { Arm(kRectangle, kCross); }
void cmdRoundRect_Click() { Arm(kRoundedRectangle, kCross); }
void cmdEllipse_Click() { Arm(kEllipse, kCross); }

// Shapes and columns have their buttons on a panel, which may lie behind another one: the button
// that opens it shows them too.
void ShowArmedTool() {
  const int armed = ColumnButtonOf(CurrentTool);
  for (const auto& [index, button] : frmMain.cmdTools) button->SetDown(index == armed);
  frmMain.cmdLine.SetDown(CurrentTool == kLine);
  frmMain.cmdRect.SetDown(CurrentTool == kRectangle);
  frmMain.cmdRoundRect.SetDown(CurrentTool == kRoundedRectangle);
  frmMain.cmdEllipse.SetDown(CurrentTool == kEllipse);
  frmMain.cmdBCode.SetDown(CurrentTool == kBarcode);
}

void ResetToolButtons() {
  HoldTicks = 0;
  HoldKind = 0;
}

}  // namespace tagwright
