#include "document/objects.h"

#include "document/document_support.h"
#include "document/recent_files.h"
#include "document/source_state.h"
#include "platform/faults/fault.h"
#include "support/fault_of.h"

namespace tagwright {
namespace {

class ObjectsTest : public ProgramTest {};

TEST_F(ObjectsTest, FreshRecordIsZeroNumbersAndBlankText) {
  const ObjectRecord fresh;
  EXPECT_EQ(fresh.Left, 0);
  EXPECT_EQ(fresh.ObjType, kBlank);
  EXPECT_EQ(fresh.Text.Padded(), std::string(250, ' '));
  EXPECT_EQ(fresh.FontName.Padded(), std::string(35, ' '));
  EXPECT_EQ(fresh.FillColor, 0);
}

TEST_F(ObjectsTest, TextOf250CharactersIsStoredWholeAndOneMoreIsLostSilently) {
  ObjectRecord record;
  record.Text = std::string(249, 'a') + "b";
  EXPECT_EQ(record.Text.Trimmed(), std::string(249, 'a') + "b");
  record.Text = std::string(250, 'a') + "b";
  EXPECT_EQ(record.Text.Trimmed(), std::string(250, 'a'));
}

TEST_F(ObjectsTest, TextIsCutByCharactersNotBytes) {
  ObjectRecord record;
  record.FontName = std::string(34, 'x') + "é" + "y";
  EXPECT_EQ(record.FontName.Trimmed(), std::string(34, 'x') + "é");
}

TEST_F(ObjectsTest, ReadersSeeTextWithoutBlanksAtBothEnds) {
  ObjectRecord record;
  record.Text = "  a b ";
  EXPECT_EQ(record.Text.Trimmed(), "a b");
}

TEST_F(ObjectsTest, ZeroCharactersInAPathCountAsBlanks) {
  ObjectRecord record;
  record.Text = std::string("\0/a b\0\0", 7);
  EXPECT_EQ(PathOf(record), "/a b");
}

TEST_F(ObjectsTest, ShapesAreTheCodesBetween9And20) {
  const std::vector<std::pair<std::int16_t, bool>> rows = {{9, false}, {10, true},  {13, true},
                                                           {19, true}, {20, false}, {-1, false}};
  for (const auto& [kind, shape] : rows) EXPECT_EQ(IsShape(kind), shape) << kind;
}

TEST_F(ObjectsTest, ClearObjectResetsAllThirteenFields) {
  ObjectRecord full = TextObject("x", 1, 2);
  full.Width = 3;
  full.Height = 4;
  full.Param = 5;
  full.Bold = full.Italic = kTrue;
  full.ForeColor = 6;
  full.FillColor = 7;
  Add(full);
  ClearObject(0);
  EXPECT_EQ(ObjectAt(0), ObjectRecord{});
}

TEST_F(ObjectsTest, AccessOutsideTheAllocatedArrayFaults) {
  EXPECT_EQ(FaultOf([] { ObjectAt(0); }), kOutOfBounds);
  Add({});
  EXPECT_EQ(FaultOf([] { ObjectAt(0); }), 0);
  EXPECT_EQ(FaultOf([] { ObjectAt(1); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([] { ObjectAt(-1); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([] { ClearObject(1); }), kOutOfBounds);
}

TEST_F(ObjectsTest, ArrayBeyondTheBoundCanBeReached) {
  Add(TextObject("a"));
  Add(TextObject("b"));
  ObjectUB = 0;
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "b");
}

TEST_F(ObjectsTest, GrowingKeepsContentsAndWhatASlotHeld) {
  Add(TextObject("a"));
  Add(TextObject("b"));
  ObjectUB = 0;
  GrowObjects();
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "a");
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "b");
  GrowObjects();
  EXPECT_EQ(ObjectAt(2), ObjectRecord{});
}

TEST_F(ObjectsTest, GrowingPastTheLargestIndexFaultsAndKeepsTheBound) {
  ObjectUB = 32767;
  EXPECT_EQ(FaultOf([] { GrowObjects(); }), kOverflow);
  EXPECT_EQ(ObjectUB, 32767);
}

TEST_F(ObjectsTest, HitAreaIsCreatedOnDemandVisibleTransparentAndWithoutCaption) {
  ASSERT_FALSE(frmMain.lblHold.Exists(7));
  Label& hold = HoldAt(7);
  EXPECT_TRUE(frmMain.lblHold.Exists(7));
  EXPECT_FALSE(frmMain.lblHold.Exists(6));
  EXPECT_TRUE(hold.Visible());
  EXPECT_EQ(hold.BackStyle(), 0);
  EXPECT_EQ(hold.Caption(), "");
  EXPECT_EQ(&HoldAt(7), &hold);
}

TEST_F(ObjectsTest, HitAreaThatExistsIsLeftAsItIs) {
  frmMain.lblHold(1).SetVisible(false);
  EXPECT_FALSE(HoldAt(1).Visible());
}

TEST_F(ObjectsTest, RemovingMovesTheRestDownWithTheirPlacesButNotTheirSizes) {
  for (const char* text : {"a", "b", "c"}) {
    const int index = Add(TextObject(text));
    HoldAt(index).Move(10.0 * index, 20.0 * index, 1.0 + index, 2.0 + index);
    HoldAt(index).SetVisible(true);
  }
  RemoveRecord(0);
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "b");
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "c");
  EXPECT_EQ(HoldAt(0).Left(), 10);
  EXPECT_EQ(HoldAt(1).Top(), 40);
  EXPECT_EQ(HoldAt(0).Width(), 1);
  EXPECT_TRUE(HoldAt(1).Visible());
  EXPECT_FALSE(HoldAt(2).Visible());
  EXPECT_EQ(Objects.size(), 3u) << "the array keeps its allocation";
}

TEST_F(ObjectsTest, RemovingTheLastRecordHidesItsHitArea) {
  Add(TextObject("a"));
  HoldAt(0).SetVisible(true);
  RemoveRecord(0);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_FALSE(HoldAt(0).Visible());
}

TEST_F(ObjectsTest, RemovingFromAnEmptyDocumentDoesNothing) {
  RemoveRecord(0);
  EXPECT_EQ(ObjectUB, -1);
}

TEST_F(ObjectsTest, RemovingWithoutASelectionFaultsAndChangesNothing) {
  Add(TextObject("a"));
  Add(TextObject("b"));
  EXPECT_EQ(FaultOf([] { RemoveRecord(-1); }), kOutOfBounds);
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "a");
}

TEST_F(ObjectsTest, ResetPutsTheStateBackToProgramStart) {
  Add(TextObject("a"));
  ZoomFactor = 2;
  SelectedObject = 0;
  RedrawSkip = 3;
  BoardReady = -1;
  RedrawCount = 9;
  UnitScale = 25.4;
  SerialPrefix = "x";
  SerialValue = 1;
  SerialBarcodeType = -1;
  FieldValues[3] = "v";
  RecentUB = 2;
  RecentFiles[0] = "r";
  ProjectPath = "p";
  DirtyFlag = kTrue;
  LoadingProject = true;
  PreviewMode = true;
  RecordCount = 5;
  HairPositionX = PendingScrollX = 4;
  ResetDocumentState();
  EXPECT_TRUE(Objects.empty());
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(ZoomFactor, 1);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(RedrawSkip, -1);
  EXPECT_EQ(BoardReady, 0);
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_EQ(UnitScale, 1);
  EXPECT_EQ(SerialPrefix, "");
  EXPECT_EQ(SerialValue, 1001);
  EXPECT_EQ(SerialBarcodeType, 6);
  EXPECT_EQ(FieldValues, std::vector<std::string>(101));
  EXPECT_EQ(RecentUB, -1);
  EXPECT_EQ(RecentFiles, std::vector<std::string>(7));
  EXPECT_EQ(ProjectPath, "");
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_FALSE(LoadingProject);
  EXPECT_FALSE(PreviewMode);
  EXPECT_EQ(RecordCount, -1);
  EXPECT_EQ(HairPositionX, 0);
  EXPECT_EQ(PendingScrollX, -1);
  EXPECT_EQ(DrawTarget, nullptr);
}

}  // namespace
}  // namespace tagwright
