#include "document/redraw.h"

#include <cmath>
#include <string>
#include <utility>

#include "common/arithmetic.h"
#include "common/diagnostics.h"
#include "common/prog_settings.h"
#include "common/public_functions.h"
#include "document/board_space.h"
#include "document/object_text.h"
#include "document/objects.h"
#include "document/overlays.h"
#include "document/rulers.h"
#include "document/selection_state.h"
#include "document/shown_size.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/shapes.h"
#include "platform/faults/fault.h"
#include "platform/painting/picture.h"
#include "platform/painting/printer.h"
#include "platform/painting/surface.h"
#include "platform/services/dialogs.h"

namespace tagwright {
namespace {

constexpr double kLabelCorner = 8;    // corner ellipse of the white label, pixels at 100 %
constexpr double kObjectCorner = 12;  // of a rounded rectangle
constexpr double kPrintMargin = 2;    // millimetres beyond the label where objects may begin
constexpr Color kWhite = 0xFFFFFF;

// What one redraw carries from step to step.
struct RedrawPass {
  bool output;
  double offset_x, offset_y;  // of this label on the page
  double zoom_before;         // put back at the end
  bool frame_visible_before;  // likewise
  double label_x = 0;         // the label's background on the target
  double label_y = 0;
};

// A box in device pixels.
struct PixelBox {
  double x1, y1, x2, y2;
};

// Runs one statement of the redraw. An unreadable picture ends the redraw and goes on to the
// caller; any other fault is traced and passed over.
template <class Statement>
void Step(Statement&& statement) {
  CarryOn(std::forward<Statement>(statement), [](const Fault& fault) {
    if (fault.number == kBadPicture) throw;
    MarkerTail(fault);
  });
}

// --- before the objects -------------------------------------------------------------------------

RedrawPass BeginPass(double offset_x, double offset_y, bool output) {
  ++RedrawCount;
  const RedrawPass pass{output, offset_x, offset_y, ZoomFactor, frmMain.shpBox.Visible()};
  frmMain.shpBox.SetVisible(false);
  return pass;
}

void ClearBoard() {
  Surface& board = frmMain.picBoard.Canvas();
  board.BackColor = frmMain.picBoard.BackColor();
  board.AutoRedraw = true;
  board.Cls();
}

void OpenPage() {
  Step([] { DrawTarget = &Printer().Page(); });
  Step([] { Printer().Page().Print(""); });
}

void OpenTarget(const RedrawPass& pass) {
  if (!pass.output) {
    ClearBoard();
    return;
  }
  RedrawSkip = -1;
  if (!PreviewMode) OpenPage();
}

void PrepareTarget() {
  DrawTarget->DrawMode = kCopyPen;
  DrawTarget->DrawStyle = 1;
  DrawTarget->ForeColor = 0;
  DrawTarget->SelectObject(CreateSolidBrush(kWhite));
}

// Whole units, halves to the even one, so that the label does not creep while the board is resized.
double Centred(double board, double label, const ScrollBar& bar) {
  return std::nearbyint((board - label) / 2) - (bar.Value() - kScrollMiddle);
}

void FixScreenOrigin(RedrawPass& pass) {
  pass.label_x = Centred(frmMain.picBoard.ScaleWidth(), LabelWidth, frmMain.hS1);
  pass.label_y = Centred(frmMain.picBoard.ScaleHeight(), LabelHeight, frmMain.vS1);
  BoardOriginX = pass.label_x;
  BoardOriginY = pass.label_y;
  PendingScrollX = -1;
  PendingScrollY = -1;
}

double PreviewZoom() { return Quotient(PreviewPaperWidth, Printer().Width()); }

void FixPageOrigin(RedrawPass& pass) {
  pass.label_x = std::nearbyint(pass.offset_x);
  pass.label_y = std::nearbyint(pass.offset_y);
  BoardOriginX = ProgSettings.PrintOffsetX + pass.offset_x;
  BoardOriginY = ProgSettings.PrintOffsetY + pass.offset_y;
  Step([] { ZoomFactor = PreviewMode ? PreviewZoom() : 1.0; });
  Step([] { Printer().Page().SetBkMode(kTransparentBackground); });
}

void FixOrigin(RedrawPass& pass) {
  if (pass.output) {
    FixPageOrigin(pass);
  } else {
    FixScreenOrigin(pass);
  }
}

// A user scale on the screen zooms by itself; on pages millimetres take the factor.
double PixelX(double x, bool millimetres) {
  if (millimetres) return DrawTarget->ScaleX(x, kMillimetres, kPixels) * ZoomFactor;
  return DrawTarget->ScaleX(x, kUserScale, kPixels);
}

double PixelY(double y, bool millimetres) {
  if (millimetres) return DrawTarget->ScaleY(y, kMillimetres, kPixels) * ZoomFactor;
  return DrawTarget->ScaleY(y, kUserScale, kPixels);
}

// The label as the user sees it: a white shape without an outline.
void PaintLabel(const RedrawPass& pass) {
  const double corner = kLabelCorner * ZoomFactor;
  DrawTarget->SelectObject(CreatePen(kPenNull, 0, 0));
  DrawTarget->RoundRect(PixelX(pass.label_x, pass.output), PixelY(pass.label_y, pass.output),
                        PixelX(pass.label_x + LabelWidth, pass.output),
                        PixelY(pass.label_y + LabelHeight, pass.output), corner, corner);
}

void PaintBackground(const RedrawPass& pass) {
  if (pass.output) {
    DrawTarget->ForeColor = 0;
    DrawTarget->SelectObject(CreatePen(kPenSolid, 1, 0));
  }
  if (!pass.output || PreviewMode) Step([&] { PaintLabel(pass); });
}

void PrepareForObjects() {
  DrawTarget->DrawMode = kCopyPen;
  DrawTarget->DrawStyle = 0;
}

// --- objects ------------------------------------------------------------------------------------

// Only the corner counts: an object that begins on the label and runs past its edge prints whole.
bool BeginsOffTheLabel(const ObjectRecord& object) {
  return object.Top < -kPrintMargin || object.Left < -kPrintMargin ||
         object.Left > static_cast<float>(LabelWidth + kPrintMargin) ||
         object.Top > static_cast<float>(LabelHeight + kPrintMargin);
}

PixelBox PixelsOf(const ObjectRecord& object, bool output) {
  const bool millimetres = output || DrawTarget->ScaleMode() == kMillimetres;
  return {PixelX(object.Left + BoardOriginX, millimetres),
          PixelY(object.Top + BoardOriginY, millimetres),
          PixelX(object.Left + object.Width + BoardOriginX, millimetres),
          PixelY(object.Top + object.Height + BoardOriginY, millimetres)};
}

void SelectPenAndBrush(const ObjectRecord& shape) {
  DrawTarget->SelectObject(shape.Param > 0 ? CreatePen(kPenSolid, shape.Param, shape.ForeColor)
                                           : CreatePen(kPenNull, 0, 0));
  DrawTarget->SelectObject(shape.FillColor > kNoFill ? CreateSolidBrush(shape.FillColor)
                                                     : NullBrush());
}

// Never slanted: a box that is wider than high holds a horizontal line, any other a vertical one.
// The record decides, since converted lengths would let their last bit break a tie.
void PaintLine(const ObjectRecord& line, const PixelBox& box) {
  const bool horizontal = line.Height < line.Width;
  DrawTarget->MoveToEx(box.x1, box.y1);
  DrawTarget->LineTo(horizontal ? box.x2 : box.x1, horizontal ? box.y1 : box.y2);
}

double CornerOfObjects() { return std::nearbyint(kObjectCorner * ZoomFactor); }

void PaintShape(const ObjectRecord& shape, bool output) {
  SelectPenAndBrush(shape);
  const PixelBox box = PixelsOf(shape, output);
  const double corner = CornerOfObjects();
  switch (shape.ObjType) {
    case kLine:
      return PaintLine(shape, box);
    case kRectangle:
      return DrawTarget->Rectangle(box.x1, box.y1, box.x2, box.y2);
    case kRoundedRectangle:
      return DrawTarget->RoundRect(box.x1, box.y1, box.x2, box.y2, corner, corner);
    case kEllipse:
      return DrawTarget->Ellipse(box.x1, box.y1, box.x2, box.y2);
    default:
      return;
  }
}

void PaintBarcodeObject(const ObjectRecord& object) {
  if (!PaintBarcode) return;
  PaintBarcode(object.Text.Trimmed(), object.Param, static_cast<float>(object.Left + BoardOriginX),
               static_cast<float>(object.Top + BoardOriginY), object.Height, object.Width,
               object.Bold != kFalse, object.FontSize * ZoomFactor, object.FontName.Trimmed());
}

MissingPictures* missing_pictures = nullptr;  // null: each redraw tells

void TellMissingPicture(const std::string& path) {
  if (missing_pictures && !missing_pictures->IsToTell(path)) return;
  MessageBox("The file: " + path + " has been removed");
}

// Its record stays in the document.
bool LoadIntoPicTemp(const std::string& path) {
  try {
    frmMain.picTemp.SetImage(LoadPicture(path));
    return true;
  } catch (const Fault& fault) {
    if (fault.number != kFileNotFound) throw;
    TellMissingPicture(path);
    return false;
  }
}

void PaintPictureObject(const ObjectRecord& object) {
  if (!LoadIntoPicTemp(PathOf(object))) return;
  DrawTarget->PaintPicture(frmMain.picTemp.Image(), object.Left + BoardOriginX,
                           object.Top + BoardOriginY, object.Width, object.Height);
}

// What a record leaves open comes from the panel; the panel's size is not zoomed.
void SetTargetFont(const ObjectRecord& object) {
  const std::string name = object.FontName.Trimmed();
  DrawTarget->Font.Name = name.empty() ? frmMain.cboFont.Text() : name;
  DrawTarget->Font.Size =
      object.FontSize == 0 ? ToNumber(frmMain.cboSize.Text()) : object.FontSize * ZoomFactor;
  DrawTarget->Font.Bold = object.Bold != kFalse;
  DrawTarget->Font.Italic = object.ObjType == kText && object.Italic != kFalse;
  DrawTarget->ForeColor = object.ForeColor;
}

void PaintTextObject(const ObjectRecord& object, int index, bool output) {
  SetTargetFont(object);
  PaintObjectText(index, output);
}

void PaintObject(const ObjectRecord& object, int index, bool output) {
  switch (object.ObjType) {
    case kBarcode:
      return PaintBarcodeObject(object);
    case kPicture:
      return PaintPictureObject(object);
    case kText:
    case kDataField:
      return PaintTextObject(object, index, output);
    case kLine:
    case kRectangle:
    case kRoundedRectangle:
    case kEllipse:
      return PaintShape(object, output);
    default:
      return;
  }
}

// A size that a control refuses leaves the former one.
void PlaceHold(Label& hold, const ObjectRecord& object) {
  const double left = object.Left + BoardOriginX;
  const double top = object.Top + BoardOriginY;
  if (object.Width >= 0 && object.Height >= 0) {
    hold.Move(left, top, object.Width, object.Height);
    return;
  }
  hold.Move(left, top);
  Step([&] { hold.SetWidth(object.Width); });
  Step([&] { hold.SetHeight(object.Height); });
}

// One that shows its object is as large as what it shows, which its record need not be before the
// selection ends: the board would cut it off.
void MoveHold(Label& hold, const ObjectRecord& object) {
  hold.Move(object.Left + BoardOriginX, object.Top + BoardOriginY);
}

void RedrawObject(int index, const RedrawPass& pass) {
  Label& hold = HoldAt(index);
  if (index != SelectedObject) EndMeasuring(hold);
  const ObjectRecord& object = ObjectAt(index);
  if (index == RedrawSkip || (pass.output && BeginsOffTheLabel(object))) return;
  if (!pass.output && IsShownByHold(index)) return Step([&] { MoveHold(hold, object); });
  Step([&] { PaintObject(object, index, pass.output); });
  if (!pass.output) Step([&] { PlaceHold(hold, object); });
}

// In array order: the last record lies on top.
void RedrawObjects(const RedrawPass& pass) {
  for (int i = 0; i <= ObjectUB; ++i) Step([&] { RedrawObject(i, pass); });
}

// The newest object is taken for the one whose picture could not be read: it has just been placed.
// Its index, which is past the end now, must not stay the selection's, and the label is no longer
// what its file says.
void DropNewestObject() {
  MessageBox("Invalid Picture Format");
  --ObjectUB;
  DirtyFlag = kTrue;
  CarryOn([] { frmMain.lblHold(ObjectUB).SetVisible(false); });
  DropSelection();
}

// --- after the objects --------------------------------------------------------------------------

void ShowSelection() {
  if (SelectedObject > -1 && SelectedUpper < 0) ShowHandles(HoldAt(SelectedObject));
}

void AnchorHairs() {
  if (frmMain.HairX.Visible()) {
    frmMain.HairX.SetX1(HairPositionX + BoardOriginX);
    frmMain.HairX.SetX2(HairPositionX + BoardOriginX);
  }
  if (frmMain.HairY.Visible()) {
    frmMain.HairY.SetY1(HairPositionY + BoardOriginY);
    frmMain.HairY.SetY2(HairPositionY + BoardOriginY);
  }
}

// A rule belongs to a place of the label, wherever scrolling, zoom and a new size of the board have
// taken that. One that the mouse holds has no place yet, but it spans the board all the same.
void AnchorRules() {
  const PictureBox& board = frmMain.picBoard;
  LineControl& x = frmMain.lnMX;
  LineControl& y = frmMain.lnMY;
  if (x.Visible()) {
    SpanDown(x, DraggingRuleX ? x.X1() : MagRuleX + BoardOriginX, board.ScaleHeight());
  }
  if (y.Visible()) {
    SpanAcross(y, DraggingRuleY ? y.Y1() : MagRuleY + BoardOriginY, board.ScaleWidth());
  }
}

// What is drawn up over the board looks like the object that comes of it.
void FinishScreen() {
  Step(DrawRulers);
  AnchorHairs();
  AnchorRules();
  frmMain.shpBox.SetCornerSize(CornerOfObjects());
}

void EndPass(const RedrawPass& pass) {
  frmMain.shpBox.SetVisible(pass.frame_visible_before);
  frmMain.picBoard.Canvas().AutoRedraw = false;
  RedrawSkip = -1;
  ZoomFactor = pass.zoom_before;
}

void FinishPass(const RedrawPass& pass) {
  Step(ShowSelection);
  if (!pass.output) FinishScreen();
  EndPass(pass);
}

// An unreadable picture, the only fault that a step lets through, leaves at once: zoom, skip mark,
// frame and AutoRedraw stay as they are.
void RunPass(const RedrawPass& pass) {
  try {
    RedrawObjects(pass);
    FinishPass(pass);
  } catch (const Fault&) {
    DropNewestObject();
  }
}

}  // namespace

MissingPictures::MissingPictures(Telling telling) : telling_(telling) {
  if (!missing_pictures) missing_pictures = this;
}

MissingPictures::~MissingPictures() {
  if (missing_pictures == this) missing_pictures = nullptr;
}

bool MissingPictures::IsToTell(const std::string& path) {
  return telling_ == kOnce && told_.insert(path).second;
}

void DrawOnBoard() { DrawTarget = &frmMain.picBoard.Canvas(); }

void RedrawBoard(const double& OffsetX, const double& OffsetY, const bool& Output) {
  if (BoardReady == 0 || SuspendRedraw != 0 || !DrawTarget) return;
  RedrawPass pass = BeginPass(OffsetX, OffsetY, Output);
  OpenTarget(pass);
  PrepareTarget();
  FixOrigin(pass);
  PaintBackground(pass);
  PrepareForObjects();
  RunPass(pass);
  if (pass.output) return;
  frmMain.picBoard.ImageChanged();
  ShowSizeFields();
}

}  // namespace tagwright
