// The label document: one flat array of records in drawing order, and the state around it that the
// rest of the program shares. Lengths are millimetres from the label's top left corner, x to the
// right and y downward; font sizes points; pen widths device pixels; colours 0x00BBGGRR.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "common/barcode_format.h"
#include "platform/text/text.h"

namespace tagwright {

class Label;

// A boolean of the records and files: 0 or -1 in 16 bits.
using Flag = std::int16_t;
constexpr Flag kTrue = -1;
constexpr Flag kFalse = 0;

// Kind codes (`ObjType`). Any other code draws nothing.
enum Kind : std::int16_t {
  kBlank = 0,
  kBarcode = 1,
  kPicture = 2,
  kText = 3,
  kLine = 10,
  kRectangle = 11,
  kRoundedRectangle = 12,
  kEllipse = 13,
  kDataField = 20,
  kSourceTrailer = -1,  // only in the project file and while saving
  kSerialTrailer = -2,  // likewise
  kDeleteMark = -100,   // for the length of one delete operation
};

// What CurrentTool holds beside the kinds of objects.
enum Tool : std::int16_t { kNoTool = 0, kZoomIn = 30, kZoomOut = 31 };

// FillColor of a shape without a fill.
constexpr std::int32_t kNoFill = -1;

// FillColor of a data field that is shown as text.
enum FieldFormat : std::int32_t { kPlainField = 0, kCurrencyField = 1, kNumberField = 2 };

// A data field whose FillColor is this much or more is shown as a barcode.
constexpr std::int32_t kFirstBarcodeFormat = 100;

// Whether `kind` is one of the shapes, lines included: above 9 and below 20.
inline bool IsShape(std::int16_t kind) { return kind > 9 && kind < 20; }

// Whether `kind` takes its extent from a text that its hit area measures: texts and data fields.
inline bool IsMeasured(std::int16_t kind) { return kind == kText || kind == kDataField; }

// One object. Several fields have a double use by kind; that is how the project file stores them
// and is not to be normalised:
//   barcode     Text data, Param format, Bold print characters under the bars
//   picture     Text full path
//   text        Text lines separated by CR LF, Param TextAlignment
//   shapes      Param pen width (0 no pen), ForeColor pen, FillColor fill or kNoFill
//   data field  Text column name, Param column, FillColor FieldFormat (kFirstBarcodeFormat + n:
//               barcode of format n), Italic print characters of that barcode
struct ObjectRecord {
  float Left = 0;
  float Top = 0;
  double Width = 0;
  double Height = 0;
  std::int16_t ObjType = kBlank;
  FixedText<250> Text;
  std::int16_t Param = 0;
  FixedText<35> FontName;
  double FontSize = 0;
  Flag Bold = kFalse;
  Flag Italic = kFalse;
  std::int32_t ForeColor = 0;
  std::int32_t FillColor = 0;

  bool operator==(const ObjectRecord&) const = default;
};

// Whether it is a data field that is shown as a barcode.
inline bool IsShownAsBarcode(const ObjectRecord& object) {
  return object.ObjType == kDataField && object.FillColor >= kFirstBarcodeFormat;
}

// Millimetres of such a field whose size is 0.
constexpr double kDefaultBarcodeWidth = 20;
constexpr double kDefaultBarcodeHeight = 12;

// --- state --------------------------------------------------------------------------------------

// The document. `ObjectUB` is its upper bound, -1 when empty; the array may be longer (after a load
// or a save the two trailers lie beyond the bound).
inline std::vector<ObjectRecord> Objects;
inline std::int16_t ObjectUB = -1;

inline double ZoomFactor = 1.0;  // 1.0 is 100 %; replaced during a print or preview redraw
inline double BoardOriginX = 0;  // the label's corner on the drawing target, its millimetres
inline double BoardOriginY = 0;
inline std::int16_t SelectedObject = -1;    // -1 none
inline std::int16_t RedrawSkip = -1;        // object that the next redraw leaves out, -1 none
inline std::int16_t CurrentTool = kNoTool;  // the kind a tool will create, or a Tool
inline std::int16_t CursorShape = 0;        // pointer that board and hit areas keep restoring
inline std::int16_t SuspendRedraw = 0;      // non-zero: RedrawBoard does nothing
inline std::int16_t BoardReady = 0;         // zero until the window's first activation
inline std::int64_t RedrawCount = 0;        // redraws begun
inline bool PreviewMode = false;            // a redraw for the preview is under way
inline bool SerialUsed = false;             // a printed text held the serial token
inline std::string ProjectPath;             // full path, empty when untitled
inline Flag DirtyFlag = kFalse;             // unsaved changes
// Whether the unit is metric, and how far labels are moved on paper, are settings: ProgSettings.
inline double UnitScale = 1.0;   // millimetres per display unit: 1.0 or 25.4
inline double RulerScale = 1.0;  // millimetres between ruler ticks: 1.0 or 2.54
inline double LabelWidth = 0;    // of one label
inline double LabelHeight = 0;

// Where the cross hairs stand, millimetres from the label's corner: whoever moves HairX and HairY
// stores it here, so that a redraw can carry them along with the label.
inline double HairPositionX = 0;
inline double HairPositionY = 0;

// Scrolling that tool placement still has to do, as a fraction; -1 none. Every redraw of the screen
// drops what is pending.
inline double PendingScrollX = -1;
inline double PendingScrollY = -1;

// The columns of the current data row (their names while designing).
constexpr std::size_t kFieldSlots = 101;
inline std::vector<std::string> FieldValues = std::vector<std::string>(kFieldSlots);
inline std::int16_t FieldUB = -1;  // highest used column, -1 no data source

// Serial numbers.
constexpr std::int16_t kNoBarcode = -1;  // in the place of a format
inline std::string SerialPrefix;
inline std::int32_t SerialValue = 1001;
inline std::int16_t SerialIncrement = 1;
inline std::int16_t SerialBarcodeType = kFormatCode128A;  // kNoBarcode: shown as text
inline double SerialBarcodeWidth = 35.0;
inline double SerialBarcodeHeight = 15.0;
inline Flag SerialPrintText = kTrue;

// Selection (its routines live in editing).
constexpr std::size_t kSelectionSlots = 257;
inline std::vector<std::int16_t> SelectedList = std::vector<std::int16_t>(kSelectionSlots);
inline std::int16_t SelectedUpper = -1;  // upper bound in use, -1 no group
inline std::int16_t UndoUpper = -1;   // upper place in use of the undo record, -1 nothing pending
inline bool TextEntryActive = false;  // a text field of a panel has the keyboard
inline bool PanelLoading = false;     // a panel is being filled: its events write nothing back
inline bool LoadingProject = false;   // a project is being loaded: no dialogs open

// Code fills a panel while this lives: what its controls say meanwhile is nobody's wish.
class PanelFilling {
 public:
  PanelFilling() { PanelLoading = true; }
  ~PanelFilling() { PanelLoading = before_; }
  PanelFilling(const PanelFilling&) = delete;
  PanelFilling& operator=(const PanelFilling&) = delete;

 private:
  bool before_ = PanelLoading;
};

// --- operations ---------------------------------------------------------------------------------

// Gives record `index` its fresh state: zero numbers, blank text. Faults 9 outside the array.
void ClearObject(int index);

// The path in `Text`: trimmed, with zero characters counting as blanks.
std::string PathOf(const ObjectRecord& record);

// The record at `index`. Faults 9 outside the allocated array (which may exceed ObjectUB).
ObjectRecord& ObjectAt(int index);

// The object that place `place` of SelectedList names. Faults 9 outside the list.
std::int16_t& SelectedMember(int place);

// FieldValues(column). Faults 9 outside its slots.
std::string& FieldValueAt(int column);

// Raises ObjectUB by 1 and grows Objects, keeping its contents. Faults 6 past 32,767.
void GrowObjects();

// The array's elements `index` + 1 to ObjectUB move down one place; each hit area takes the place
// of its successor and an empty caption. The last element stands twice then. Faults 9 for a
// negative `index` before anything is changed.
void MoveRecordsDown(int index);

// MoveRecordsDown; then the last hit area is hidden and ObjectUB falls by one. The array keeps its
// allocation. Nothing for an empty document.
void RemoveRecord(int index);

// `lblHold(index)`; an element that does not exist yet is created visible, transparent, without a
// caption. Faults 9 outside 0 to 32,767.
Label& HoldAt(int index);

// A caption stands on a hit area only while it is measured, and on that of a text being edited: it
// is emptied, and the size stays.
void EndMeasuring(Label& hold);

// The serial numbers' state as at program start, but for the prefix.
void SetSerialDefaults();

// The whole state of this folder, whichever header declares it, back to program start. Neither the
// form nor the barcode painter's slot is touched.
void ResetDocumentState();

}  // namespace tagwright
