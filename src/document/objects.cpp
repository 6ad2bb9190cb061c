#include "document/objects.h"

#include <limits>
#include <type_traits>

#include "document/recent_files.h"
#include "document/redraw.h"
#include "document/shown_size.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "platform/controls/label.h"
#include "platform/controls/outlines.h"
#include "platform/controls/pointers.h"
#include "platform/faults/fault.h"
#include "platform/painting/surface.h"

namespace tagwright {
namespace {

// Undo, clipboard and stacking order are plain copies of records.
static_assert(std::is_trivially_copyable_v<ObjectRecord>);

void ResetDocument() {
  Objects.clear();
  ObjectUB = -1;
  ProjectPath.clear();
  DirtyFlag = kFalse;
  LabelWidth = 0;
  LabelHeight = 0;
  LoadingProject = false;
}

void ResetView() {
  ZoomFactor = 1.0;
  BoardOriginX = 0;
  BoardOriginY = 0;
  UnitScale = 1.0;
  RulerScale = 1.0;
  HairPositionX = 0;
  HairPositionY = 0;
  PendingScrollX = -1;
  PendingScrollY = -1;
}

void ResetRedraw() {
  RedrawSkip = -1;
  SuspendRedraw = 0;
  BoardReady = 0;
  RedrawCount = 0;
  DrawTarget = nullptr;
  PreviewMode = false;
  PreviewPaperWidth = 0;
}

void ResetSelection() {
  SelectedObject = -1;
  SelectedList.assign(kSelectionSlots, 0);
  SelectedUpper = -1;
  UndoUpper = -1;
  TextEntryActive = false;
  PanelLoading = false;
  CurrentTool = kNoTool;
  CursorShape = kDefaultPointer;
}

void ResetSerial() {
  SerialPrefix.clear();
  SetSerialDefaults();
  SerialUsed = false;
}

void ResetDataSource() {
  FieldValues.assign(kFieldSlots, {});
  FieldUB = -1;
  DatabasePassword.clear();
  CurrentTable.clear();
  UnlistedTable = -1;
  RecordCount = -1;
  SourceDatabase.reset();
}

void ResetRecentFiles() {
  RecentFiles.assign(kRecentSlots, {});
  RecentUB = -1;
}

void TakePlaceOf(Label& hold, const Label& successor) {
  hold.Move(successor.Left(), successor.Top());
  hold.SetCaption("");
}

}  // namespace

void ClearObject(int index) { ObjectAt(index) = ObjectRecord{}; }

std::string PathOf(const ObjectRecord& record) {
  return Trim(ZeroBytesAsBlanks(record.Text.Padded()));
}

ObjectRecord& ObjectAt(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= Objects.size()) RaiseFault(kOutOfBounds);
  return Objects[static_cast<std::size_t>(index)];
}

std::int16_t& SelectedMember(int place) {
  if (place < 0 || static_cast<std::size_t>(place) >= SelectedList.size()) RaiseFault(kOutOfBounds);
  return SelectedList[static_cast<std::size_t>(place)];
}

std::string& FieldValueAt(int column) {
  if (column < 0 || static_cast<std::size_t>(column) >= FieldValues.size()) {
    RaiseFault(kOutOfBounds);
  }
  return FieldValues[static_cast<std::size_t>(column)];
}

void GrowObjects() {
  if (ObjectUB == std::numeric_limits<std::int16_t>::max()) RaiseFault(kOverflow);
  ++ObjectUB;
  // A slot that is there already keeps what it held, so that a trailer saved again is the same.
  const auto count = static_cast<std::size_t>(ObjectUB + 1);
  if (Objects.size() < count) Objects.resize(count);
}

void MoveRecordsDown(int index) {
  for (int i = index; i < ObjectUB; ++i) {
    ObjectAt(i) = ObjectAt(i + 1);
    TakePlaceOf(HoldAt(i), HoldAt(i + 1));
  }
}

void RemoveRecord(int index) {
  if (ObjectUB < 0) return;
  MoveRecordsDown(index);
  HoldAt(ObjectUB).SetVisible(false);
  --ObjectUB;
}

Label& HoldAt(int index) {
  if (frmMain.lblHold.Exists(index)) return frmMain.lblHold(index);
  Label& hold = frmMain.lblHold.Load(index);
  hold.SetVisible(true);
  hold.SetBackStyle(kTransparentBack);
  hold.SetCaption("");
  return hold;
}

void EndMeasuring(Label& hold) {
  hold.SetAutoSize(false);
  hold.SetCaption("");
}

void SetSerialDefaults() {
  SerialValue = 1001;
  SerialIncrement = 1;
  SerialBarcodeType = kFormatCode128A;
  SerialBarcodeWidth = 35.0;
  SerialBarcodeHeight = 15.0;
  SerialPrintText = kTrue;
}

void ResetDocumentState() {
  ResetShownSize();
  ResetDocument();
  ResetView();
  ResetRedraw();
  ResetSelection();
  ResetSerial();
  ResetDataSource();
  ResetRecentFiles();
}

}  // namespace tagwright
