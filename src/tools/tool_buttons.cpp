#include "tools/tool_buttons.h"

#include <cmath>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "editing/panel_stack.h"
#include "editing/pointer.h"
#include "editing/selection.h"
#include "forms/frmMain.h"
#include "platform/controls/image.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "platform/text/locale.h"
#include "tools/font_box.h"
#include "tools/picture_tool.h"
#include "tools/placement.h"

namespace tagwright {
namespace {

constexpr int kHoldIsOver = 100;
constexpr double kFontLeftOfBarcodes = 7250;  // twips, of a new one

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

// As the font and the size: a selected barcode keeps its own.
void SelectFormatRow(int format) {
  const PanelFilling filling;
  CarryOn([&] { frmMain.cboBCode.SetListIndex(format); });
}

// --- one tool after the other ---

void SelectTool() {
  Arm(kNoTool, kDefaultPointer);
  ShowPanel(frmMain.picProperties);
  frmMain.cboFont.SetVisible(false);
}

void TakeStyleOfBarcode(const ObjectRecord& last) {
  SelectFontRow(last.FontName.Trimmed());
  SelectSizeRow(FormatNumber(last.FontSize));
  SelectFormatRow(last.Param);
}

void TakeDefaultBarcode() {
  SelectDefaultFont(ProgSettings.BarcodeFontSize);
  SelectFormatRow(ProgSettings.AlphaBarcodeType);
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
  Arm(kText, kIBeamPointer);
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
bool HoldHasEnded(int index) {
  return (index == kZoomInButton || index == kZoomOutButton) && HoldTicks > kHoldIsOver;
}

void RunTool(int index) {
  switch (index) {
    case kSelectButton:
      return SelectTool();
    case kBarcodeButton:
      return BarcodeTool();
    case kPictureButton:
      return PictureTool();
    case kTextButton:
      return TextTool();
    case kDrawingButton:
      return DrawingTools();
    case kZoomInButton:
      return ZoomInTool();
    case kZoomOutButton:
      return ZoomTool(kZoomOut, frmMain.Image4);
    case kFieldButton:
      return frmMain.mnuFileImport.Press();
    default:
      return;
  }
}

// The element of cmdTools that stands for an armed tool; -1 for none.
int ColumnButtonOf(std::int16_t tool) {
  switch (tool) {
    case kBarcode:
      return kBarcodeButton;
    case kPicture:
      return kPictureButton;
    case kText:
      return kTextButton;
    case kLine:
    case kRectangle:
    case kRoundedRectangle:
    case kEllipse:
      return kDrawingButton;
    case kZoomIn:
      return kZoomInButton;
    case kZoomOut:
      return kZoomOutButton;
    case kDataField:
      return kFieldButton;
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

void cmdLine_Click() { Arm(kLine, kCrossPointer); }
void cmdRect_Click() { Arm(kRectangle, kCrossPointer); }
void cmdRoundRect_Click() { Arm(kRoundedRectangle, kCrossPointer); }
void cmdEllipse_Click() { Arm(kEllipse, kCrossPointer); }

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
