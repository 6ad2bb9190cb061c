#include <filesystem>
#include <limits>

#include "document/document_support.h"
#include "document/overlays.h"
#include "document/project_commands.h"
#include "document/project_load.h"
#include "document/project_record.h"
#include "document/project_save.h"
#include "document/recent_files.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "document/source_state.h"
#include "platform/painting/picture.h"
#include "support/file_size_limit.h"

namespace tagwright {
namespace {

PicturePtr ReadTestPicture(const std::string& bytes, std::string_view) {
  return bytes.starts_with("picture") ? BlankPicture(1000, 1000) : nullptr;
}

class ProjectFileTest : public LabelTest {
 protected:
  ProjectFileTest() {
    SetPictureReader(ReadTestPicture);
    for (const char* name : {"a", "b", "c"}) frmMain.cboLabelLayout.AddItem(name);
    for (const char* name : {"database", "comma", "tab"}) frmMain.cboImportType.AddItem(name);
  }
  ~ProjectFileTest() override {
    SetPictureReader(nullptr);
    SetDatabaseEngine({});
  }

  std::string Path() const { return folder.File("Label.twp"); }

  // The bytes of the file that saving under Path() makes.
  std::string Saved() {
    ProjectPath = Path();
    SaveProject(kFalse);
    return ReadFile(Path());
  }

  void Load(const std::string& bytes) {
    WriteFile(folder.File("in.twp"), bytes);
    LoadProject(folder.File("in.twp"));
    DeleteFile(folder.File("in.twp"));
  }

  // As a text that is being edited.
  static void ShowByItsHold(int index) {
    HoldAt(index).SetCaption(ObjectAt(index).Text.Trimmed());
    HoldAt(index).SetAutoSize(true);
  }

  static ObjectRecord SerialTrailer() {
    ObjectRecord trailer;
    trailer.ObjType = kSerialTrailer;
    trailer.Text = "SN-";
    trailer.Param = 500;
    trailer.FontSize = 3;
    trailer.FillColor = 12;
    trailer.ForeColor = 40;
    trailer.Bold = kFalse;
    trailer.Top = -1;
    trailer.FontName = "10";
    return trailer;
  }

  static ObjectRecord SourceTrailer() {
    ObjectRecord trailer;
    trailer.ObjType = kSourceTrailer;
    trailer.Param = 1;
    trailer.FillColor = -1;
    trailer.ForeColor = 2;
    return trailer;
  }

  static std::string Bytes(const std::vector<ObjectRecord>& records) {
    std::string bytes;
    for (const ObjectRecord& record : records) bytes += ProjectRecordBytes(record);
    return bytes;
  }

  static ObjectRecord RecordOf(const std::string& bytes, std::size_t index) {
    return ProjectRecordFromBytes(std::string_view(bytes).substr(index * 333));
  }
};

// --- saving -------------------------------------------------------------------------------------

TEST_F(ProjectFileTest, EmptyDocumentSavesAs666BytesAndLoadsToNothingWithBothTrailersUsed) {
  SerialPrefix = "P";
  SerialIncrement = 7;
  frmMain.cboLabelLayout.SetListIndex(1);
  const std::string bytes = Saved();
  ASSERT_EQ(bytes.size(), 666u);
  SerialPrefix = "";
  SerialIncrement = 1;
  frmMain.cboLabelLayout.SetListIndex(0);
  Load(bytes);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(SerialPrefix, "P");
  EXPECT_EQ(SerialIncrement, 7);
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 1);
}

TEST_F(ProjectFileTest, SerialTrailerFields) {
  Add(TextObject("a"));
  SerialPrefix = "SN-";
  SerialValue = 500;
  SerialIncrement = 3;
  SerialBarcodeHeight = 12.5;  // halves to the even number
  SerialBarcodeWidth = 37.5;
  SerialPrintText = kFalse;
  SerialBarcodeType = -1;
  frmMain.chkFirstRow.SetValue(1);
  const std::string bytes = Saved();
  ASSERT_EQ(bytes.size(), 999u);
  const ObjectRecord trailer = RecordOf(bytes, 1);
  EXPECT_EQ(trailer.ObjType, -2);
  EXPECT_EQ(trailer.Text.Trimmed(), "SN-");
  EXPECT_EQ(trailer.Param, 500);
  EXPECT_EQ(trailer.FontSize, 3);
  EXPECT_EQ(trailer.FillColor, 12);
  EXPECT_EQ(trailer.ForeColor, 38);
  EXPECT_EQ(trailer.Bold, kFalse);
  EXPECT_EQ(trailer.Top, -1);
  EXPECT_EQ(trailer.FontName.Trimmed(), "10");
  // What the trailer does not use is zero in a fresh slot.
  EXPECT_EQ(trailer.Left, 0);
  EXPECT_EQ(trailer.Width, 0);
  EXPECT_EQ(trailer.Height, 0);
  EXPECT_EQ(trailer.Italic, 0);
}

TEST_F(ProjectFileTest, DataSourceTrailerFields) {
  frmMain.lblFileName.SetCaption("/data/a.csv");
  frmMain.cboImportType.SetListIndex(2);
  frmMain.cboRSet.AddItem("t0");
  frmMain.cboRSet.AddItem("t1");
  frmMain.cboRSet.SetListIndex(1);
  frmMain.cboLabelLayout.SetListIndex(2);
  DatabasePassword = std::string(36, 'p');
  const ObjectRecord trailer = RecordOf(Saved(), 1);
  EXPECT_EQ(trailer.ObjType, -1);
  EXPECT_EQ(trailer.Text.Trimmed(), "/data/a.csv");
  EXPECT_EQ(trailer.Param, 2);
  EXPECT_EQ(trailer.FillColor, 1);
  EXPECT_EQ(trailer.FontName.Trimmed(), std::string(35, 'p'));
  EXPECT_EQ(trailer.ForeColor, 2);
  EXPECT_EQ(trailer.Left, 0);
  EXPECT_EQ(trailer.FontSize, 0);
  EXPECT_EQ(trailer.Bold, 0);
}

TEST_F(ProjectFileTest, WithoutATableTheTrailerSaysMinusOne) {
  EXPECT_EQ(RecordOf(Saved(), 1).FillColor, -1);
}

TEST_F(ProjectFileTest, SavingLeavesTheDocumentAndItsTrailersBeyondTheBound) {
  Add(TextObject("a"));
  DirtyFlag = kTrue;
  frmMain.SetCaption("as before");
  Saved();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), "a");
  EXPECT_EQ(ObjectAt(1).ObjType, kSerialTrailer);
  EXPECT_EQ(ObjectAt(2).ObjType, kSourceTrailer);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(frmMain.Caption(), "as before");
  EXPECT_EQ(RecentFiles[0], Path());
}

TEST_F(ProjectFileTest, SecondSaveIsByteIdentical) {
  Add(TextObject("a"));
  const std::string first = Saved();
  EXPECT_EQ(Saved(), first);
}

TEST_F(ProjectFileTest, SaveLoadSaveIsByteIdentical) {
  ObjectRecord record = ShapeObject(kEllipse, 1.1f, -2.2f, 3.3, 4.4);
  record.Text = "unused \xE2\x82\xAC";
  Add(record);
  Add(TextObject("two\r\nlines"));
  Add(Field(3, 106));
  SerialPrefix = "P";
  SerialBarcodeWidth = 25.4;
  frmMain.chkQuote.SetValue(1);
  frmMain.cboLabelLayout.SetListIndex(1);
  const std::string first = Saved();
  Load(first);
  EXPECT_EQ(Saved(), first);
}

TEST_F(ProjectFileTest, SlotThatHeldARecordKeepsWhatTheTrailerLeavesOut) {
  Add(TextObject("a"));
  Add(ShapeObject(kRectangle, 7, 8, 9, 10));
  RemoveRecord(1);
  const ObjectRecord trailer = RecordOf(Saved(), 1);
  EXPECT_EQ(trailer.ObjType, kSerialTrailer);
  EXPECT_EQ(trailer.Left, 7);
  EXPECT_EQ(trailer.Width, 9);
}

TEST_F(ProjectFileTest, SerialValueAbove32767LeavesTheRecordsOldValue) {
  SerialValue = 32767;
  EXPECT_EQ(RecordOf(Saved(), 0).Param, 32767);
  SerialValue = 32768;
  EXPECT_EQ(RecordOf(Saved(), 0).Param, 32767);
  ResetDocumentState();
  SerialValue = 70000;
  EXPECT_EQ(RecordOf(Saved(), 0).Param, 0);
}

TEST_F(ProjectFileTest, SerialBarcodeWidthOf25Point4ComesBackAs25) {
  SerialBarcodeWidth = 25.4;
  Load(Saved());
  EXPECT_EQ(SerialBarcodeWidth, 25);
}

TEST_F(ProjectFileTest, LongFileIsReplacedNotOverwritten) {
  WriteFile(Path(), std::string(5000, 'x'));
  EXPECT_EQ(Saved().size(), 666u);
}

TEST_F(ProjectFileTest, ANameToBeWrittenIsTakenExactly) {
  WriteFile(folder.File("Label.twp"), "another label");
  dialogs.files = {folder.File("label.twp")};
  SaveProject(kTrue);
  EXPECT_EQ(ReadFile(folder.File("Label.twp")), "another label");
  EXPECT_EQ(FileLength(folder.File("label.twp")), 666);
}

TEST_F(ProjectFileTest, ASaveThatCannotWriteHasSavedNothingAndSaysSo) {
  DirtyFlag = kTrue;
  ProjectPath = folder.File("no such folder/a.twp");
  SaveProject(kFalse);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(frmMain.sB1.PanelText(4), "Not saved: Path/File access error");
  EXPECT_TRUE(dialogs.messages.empty());
  std::filesystem::create_directory(folder.File("no such folder"));
  SaveProject(kFalse);
  EXPECT_EQ(DirtyFlag, kFalse);
  EXPECT_EQ(frmMain.sB1.PanelText(4), "");
}

TEST_F(ProjectFileTest, ASaveToAFullDiskSaysSo) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device here that is always full";
  std::filesystem::create_symlink("/dev/full", Path());
  DirtyFlag = kTrue;
  ProjectPath = Path();
  SaveProject(kFalse);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(frmMain.sB1.PanelText(4), "Not saved: Disk full");
  EXPECT_TRUE(std::filesystem::is_symlink(Path())) << "what stands there is not ours to remove";
}

TEST_F(ProjectFileTest, ALoadForgetsThatTheFormerLabelWasNotSaved) {
  WriteFile(Path(), "");
  frmMain.sB1.SetPanelText(4, "Not saved: Disk full");
  LoadProject(Path());
  EXPECT_EQ(frmMain.sB1.PanelText(4), "");
}

// Lists that are filled on the way say so to their handlers, as a user's choice would.
TEST_F(ProjectFileTest, ALoadEndsWithoutUnsavedChanges) {
  frmMain.chkFirstRow.SetValue(1);
  Add(TextObject("a"));
  const std::string path = Path();
  ProjectPath = path;
  SaveProject(kFalse);
  frmMain.chkFirstRow.Events().Click = [] { DirtyFlag = kTrue; };
  frmMain.chkFirstRow.SetValue(0);
  ASSERT_EQ(DirtyFlag, kTrue);
  LoadProject(path);
  EXPECT_EQ(frmMain.chkFirstRow.Value(), 1);
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(ProjectFileTest, ExistingFileIsDeletedFirstSoThatAFailedWriteLosesIt) {
  const std::string old(500, 'x');
  WriteFile(Path(), old);
  ProjectPath = Path();
  {
    const FileSizeLimit limit(100);
    SaveProject(kFalse);
  }
  EXPECT_FALSE(FileExists(Path())) << "no part of a label either, that would open as another one";
  EXPECT_EQ(frmMain.sB1.PanelText(4), "Not saved: Disk full");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectFileTest, UntitledLabelAsksForANameWithTheProjectsFilter) {
  frmMain.cd1.FileName = "/left/over.gif";
  dialogs.files = {Path()};
  SaveProject(kFalse);
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].filter, "Tagwright Project (*.twp)|*.twp");
  EXPECT_EQ(dialogs.requests[0].default_extension, ".twp");
  EXPECT_EQ(dialogs.requests[0].file_name, "");
  EXPECT_EQ(ProjectPath, Path());
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [" + Path() + "]") << "the whole name";
  EXPECT_TRUE(FileExists(Path()));
}

TEST_F(ProjectFileTest, CancelledSaveChangesNothing) {
  Add(TextObject("a"));
  DirtyFlag = kTrue;
  frmMain.SetCaption("as before");
  SaveProject(kFalse);
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(ProjectPath, "");
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(Objects.size(), 1u);
  EXPECT_EQ(frmMain.Caption(), "as before");
  EXPECT_EQ(RecentUB, -1);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectFileTest, SaveOf99AndMoreRecordsGoesThrough) {
  for (int i = 0; i < 200; ++i) Add(TextObject("a"));
  EXPECT_EQ(Saved().size(), 202u * 333u);
}

// --- loading ------------------------------------------------------------------------------------

TEST_F(ProjectFileTest, LoadTakesRecordsTrailersCaptionAndRecentFile) {
  const std::string path =
      Made("My Label.twp", Bytes({TextObject("a"), ShapeObject(kEllipse, 1, 2, 3, 4),
                                  SerialTrailer(), SourceTrailer()}));
  LoadProject(path);
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [My Label.twp]");
  EXPECT_EQ(ProjectPath, path);
  EXPECT_EQ(RecentFiles[0], path);
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(Objects.size(), 4u) << "the trailers lie beyond the bound";
  EXPECT_EQ(ObjectAt(1).ObjType, kEllipse);
  EXPECT_EQ(SerialPrefix, "SN-");
  EXPECT_EQ(SerialValue, 500);
  EXPECT_EQ(SerialIncrement, 3);
  EXPECT_EQ(SerialBarcodeHeight, 12);
  EXPECT_EQ(SerialBarcodeWidth, 40);
  EXPECT_EQ(SerialPrintText, kFalse);
  EXPECT_EQ(SerialBarcodeType, -1);
  EXPECT_EQ(frmMain.chkFirstRow.Value(), 1);
  EXPECT_EQ(frmMain.chkQuote.Value(), 0);
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 2);
  EXPECT_EQ(frmMain.cboImportType.ListIndex(), 1);
  EXPECT_FALSE(LoadingProject);
  EXPECT_EQ(RedrawCount, 1);
}

TEST_F(ProjectFileTest, LoadEmptiesTheRowOfTheFormerSource) {
  FieldValues.assign(kFieldSlots, "of the source before");
  Load(Bytes({SerialTrailer(), SourceTrailer()}));
  EXPECT_EQ(FieldValues, std::vector<std::string>(101));
}

TEST_F(ProjectFileTest, FileWithoutTrailersLoadsEveryRecordAsAnObject) {
  SerialPrefix = "kept";
  Load(Bytes({TextObject("a"), TextObject("b")}));
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(SerialPrefix, "kept");
}

TEST_F(ProjectFileTest, FontSizeThatIsNoNumberIsPassedOver) {
  ObjectRecord odd = TextObject("a");
  odd.FontSize = std::numeric_limits<double>::quiet_NaN();
  Load(Bytes({odd, TextObject("b")}));
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(frmMain.lblHold(0).Caption(), "");
  EXPECT_FALSE(frmMain.lblHold(0).AutoSize());
}

TEST_F(ProjectFileTest, FileWithTheSerialTrailerAloneUsesIt) {
  Load(Bytes({TextObject("a"), SerialTrailer()}));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SerialPrefix, "SN-");
}

TEST_F(ProjectFileTest, TrailersInTheWrongOrderAreObjects) {
  Load(Bytes({SourceTrailer(), SerialTrailer()}));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0).ObjType, kSourceTrailer);
}

TEST_F(ProjectFileTest, NumberOfRecordsIsRoundedAndTheLastOnePartlyRead) {
  const std::string two = Bytes({TextObject("a"), TextObject("b")});
  const std::vector<std::pair<std::size_t, int>> rows = {{0, -1},  {1, -1},  {166, -1}, {167, 0},
                                                         {333, 0}, {499, 0}, {500, 1},  {666, 1}};
  for (const auto& [length, bound] : rows) {
    Load(two.substr(0, length));
    EXPECT_EQ(ObjectUB, bound) << length;
  }
  Load(two.substr(0, 333 + 170));
  ASSERT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(1).ObjType, kText);
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "b");
  EXPECT_EQ(ObjectAt(1).FontName.Trimmed(), "");
  EXPECT_EQ(ObjectAt(1).FontSize, 0);
}

TEST_F(ProjectFileTest, FileOf32768BytesOrMoreOpensAsBlankRecords) {
  struct Row {
    std::size_t length;
    std::string text;
    int bound;
  };
  // 98 records are 32,634 bytes, 99 are 32,967; what lies between rounds to 98.
  const std::vector<Row> rows = {
      {32634, "a", 97}, {32767, "a", 97}, {32768, "", 97}, {32967, "", 98}};
  const std::string bytes = Bytes(std::vector<ObjectRecord>(101, TextObject("a")));
  for (const Row& row : rows) {
    Load(bytes.substr(0, row.length));
    EXPECT_EQ(ObjectAt(0).Text.Trimmed(), row.text) << row.length;
    EXPECT_EQ(ObjectUB, row.bound) << row.length;
  }
  EXPECT_EQ(ObjectAt(98), ObjectRecord{});
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectFileTest, FileWithMoreRecordsThanCanBeCountedKeepsTheFormerBoundWithBlankRecords) {
  Add(TextObject("a"));
  Add(TextObject("b"));
  const std::string path = Made("long.twp", "");
  std::filesystem::resize_file(path, 333u * 32769u);  // one more than 32,768 records
  LoadProject(path);
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(Objects, std::vector<ObjectRecord>(2));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectFileTest, FileThatIsNotThereKeepsTheFormerBoundWithBlankRecords) {
  Add(TextObject("a"));
  LoadProject(folder.File("nowhere.twp"));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(ObjectAt(0), ObjectRecord{});
  EXPECT_EQ(ProjectPath, folder.File("nowhere.twp"));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ProjectFileTest, LargestProjectThatOpensHas96ObjectsAndBothTrailers) {
  std::vector<ObjectRecord> records(96, TextObject("a"));
  records.push_back(SerialTrailer());
  records.push_back(SourceTrailer());
  Load(Bytes(records));
  EXPECT_EQ(ObjectUB, 95);
  EXPECT_EQ(ObjectAt(95).Text.Trimmed(), "a");
}

TEST_F(ProjectFileTest, MissingLayoutRowKeepsTheLayout) {
  frmMain.cboLabelLayout.SetListIndex(1);
  ObjectRecord source = SourceTrailer();
  source.ForeColor = 99;
  Load(Bytes({SerialTrailer(), source}));
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 1);
  EXPECT_EQ(ObjectUB, -1);
}

TEST_F(ProjectFileTest, LayoutIsAppliedThroughItsList) {
  int clicks = 0;
  frmMain.cboLabelLayout.Events().Click = [&] { ++clicks; };
  Load(Bytes({SerialTrailer(), SourceTrailer()}));
  EXPECT_EQ(clicks, 1);
}

TEST_F(ProjectFileTest, BlankFontNameOfTheSerialTrailerLeavesBothBoxes0) {
  frmMain.chkFirstRow.SetValue(1);
  frmMain.chkQuote.SetValue(1);
  ObjectRecord serial = SerialTrailer();
  serial.FontName = "";
  Load(Bytes({serial}));
  EXPECT_EQ(frmMain.chkFirstRow.Value(), 0);
  EXPECT_EQ(frmMain.chkQuote.Value(), 0);
}

TEST_F(ProjectFileTest, CheckBoxesTakeTheFirstAndTheLastCharacter) {
  ObjectRecord serial = SerialTrailer();
  serial.FontName = "0x1";
  Load(Bytes({serial}));
  EXPECT_EQ(frmMain.chkFirstRow.Value(), 0);
  EXPECT_EQ(frmMain.chkQuote.Value(), 1);
}

TEST_F(ProjectFileTest, SerialNumbersThatDoNotFitKeepTheirOldValues) {
  ObjectRecord serial = SerialTrailer();
  serial.FontSize = 40000;
  serial.Top = -40000;
  Load(Bytes({serial}));
  EXPECT_EQ(SerialIncrement, 1);
  EXPECT_EQ(SerialBarcodeType, 6);
  EXPECT_EQ(SerialValue, 500);
}

TEST_F(ProjectFileTest, LoadingEndsTheSelection) {
  Add(TextObject("a"));
  SelectedObject = 0;
  SelectedUpper = 1;
  ShowHandles(HoldAt(0));
  Load(Bytes({TextObject("b")}));
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_EQ(SelectedUpper, -1);
  EXPECT_FALSE(frmMain.lblHandle(0).Visible());
}

// The hit area lies beyond the last record then, where no redraw comes.
TEST_F(ProjectFileTest, LoadingEndsTheTextThatWasEditedByItsHitArea) {
  for (const char* text : {"a", "b", "being edited"}) Add(TextObject(text));
  SelectedObject = 2;
  ShowByItsHold(2);
  Load(Bytes({TextObject("d")}));
  EXPECT_EQ(HoldAt(2).Caption(), "");
  EXPECT_FALSE(HoldAt(2).AutoSize());
}

TEST_F(ProjectFileTest, LoadingEndsTheTextThatHasJoinedAGroup) {
  for (const char* text : {"a", "b", "edited before"}) Add(TextObject(text));
  SelectedList[0] = 2;
  SelectedList[1] = 0;
  SelectedUpper = 1;
  ShowByItsHold(2);
  Load(Bytes({TextObject("d")}));
  EXPECT_EQ(HoldAt(2).Caption(), "");
}

TEST_F(ProjectFileTest, LoadingDisablesTheSelectionsCommandsAndEmptiesItsStatus) {
  Add(TextObject("a"));
  SelectedObject = 0;
  EnableSelectionCommands(true);
  frmMain.sB1.SetPanelText(1, "X: 1.0");
  frmMain.sB1.SetPanelText(2, "Width: 10.0 Height: 5.0");
  frmMain.sB1.SetPanelText(3, "Objects Selected: 1");
  Load(Bytes({TextObject("b")}));
  for (const Menu* entry :
       {&frmMain.mnuEditCopy, &frmMain.mnuEditCut, &frmMain.mnuArrAlign, &frmMain.mnuArrSize,
        &frmMain.mnuAHoriz, &frmMain.mnuArrangeBTF, &frmMain.mnuArrangeSTB}) {
    EXPECT_FALSE(entry->Enabled()) << entry->Name();
  }
  EXPECT_EQ(frmMain.sB1.PanelText(2), "");
  EXPECT_EQ(frmMain.sB1.PanelText(3), "");
  EXPECT_EQ(frmMain.sB1.PanelText(1), "X: 1.0") << "the pointer's";
}

// --- data source --------------------------------------------------------------------------------

TEST_F(ProjectFileTest, MissingDataFileAsksAndNoLeavesAnEmptyDocumentUnderTheNewName) {
  ObjectRecord source = SourceTrailer();
  source.Text = "/nowhere/a.csv";
  dialogs.answers = {Answer::kNo};
  const std::string path = Made("in.twp", Bytes({TextObject("a"), SerialTrailer(), source}));
  LoadProject(path);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text,
            "The data file /nowhere/a.csv referenced in this project does not exist\r\n"
            "Continue loading anyway?");
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(ObjectUB, -1);
  EXPECT_EQ(ProjectPath, path);
  EXPECT_EQ(frmMain.Caption(), "Tagwright Designer Gold [in.twp]");
  EXPECT_EQ(RecentFiles[0], path) << "before the question";
  EXPECT_EQ(frmMain.cboLabelLayout.ListIndex(), 2) << "likewise";
  EXPECT_EQ(frmMain.lblFileName.Caption(), "");
  EXPECT_EQ(SerialPrefix, "");
  EXPECT_EQ(RedrawCount, 1) << "of nothing";
  EXPECT_FALSE(LoadingProject);
}

TEST_F(ProjectFileTest, MissingDataFileAndYesLoadsOn) {
  ObjectRecord source = SourceTrailer();
  source.Text = "/nowhere/a.csv";
  dialogs.answers = {Answer::kYes};
  Load(Bytes({TextObject("a"), SerialTrailer(), source}));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(frmMain.lblFileName.Caption(), "/nowhere/a.csv");
  EXPECT_EQ(SerialPrefix, "SN-");
}

TEST_F(ProjectFileTest, TextSourceShowsItsOwnFields) {
  ObjectRecord source = SourceTrailer();
  source.Text = Made("a.csv", "x,y\n");
  source.FontName = " secret ";
  frmMain.cboRSet.SetVisible(true);
  frmMain.chkQuote.SetVisible(false);
  Load(Bytes({SerialTrailer(), source}));
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_FALSE(frmMain.cboRSet.Visible());
  EXPECT_FALSE(frmMain.lblFName(1).Visible());
  EXPECT_TRUE(frmMain.chkFirstRow.Visible());
  EXPECT_TRUE(frmMain.chkQuote.Visible());
  EXPECT_EQ(DatabasePassword, "secret");
}

TEST_F(ProjectFileTest, ZeroBytesInTheDataPathCountAsBlanks) {
  std::string bytes = Bytes({SourceTrailer()});
  bytes.replace(26, 250, std::string(250, '\0'));
  Load(bytes);
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(frmMain.lblFileName.Caption(), "");
}

TEST_F(ProjectFileTest, ImportTypeIsSetUnderTheGuard) {
  bool guarded = false;
  frmMain.cboImportType.Events().Click = [&] { guarded = LoadingProject; };
  Load(Bytes({SerialTrailer(), SourceTrailer()}));
  EXPECT_TRUE(guarded);
  EXPECT_FALSE(LoadingProject);
}

class TwoTables : public Database {
 public:
  std::vector<std::string> TableNames() override { return {"System", "Items"}; }
  std::vector<std::string> FieldNames(const std::string&) override { return {}; }
  std::unique_ptr<Recordset> OpenRecordset(const std::string&) override { return nullptr; }
};

TEST_F(ProjectFileTest, DatabaseListsItsTablesAndChoosesTheStoredOne) {
  std::string asked;
  SetDatabaseEngine([&](const std::string& path, const std::string& connect) {
    asked = path + "|" + connect;
    return std::make_unique<TwoTables>();
  });
  int clicks = 0;
  frmMain.cboRSet.Events().Click = [&] { ++clicks; };
  ObjectRecord source = SourceTrailer();
  source.Param = 0;
  source.Text = Made("a.mdb", "x");
  source.FontName = "pw";
  source.FillColor = 1;
  frmMain.cboRSet.AddItem("old");
  Load(Bytes({SerialTrailer(), source}));
  EXPECT_EQ(asked, folder.File("a.mdb") + "|;PWD=pw");
  ASSERT_EQ(frmMain.cboRSet.ListCount(), 2);
  EXPECT_EQ(frmMain.cboRSet.List(0), "System");
  EXPECT_EQ(frmMain.cboRSet.ListIndex(), 1);
  EXPECT_EQ(CurrentTable, "Items");
  EXPECT_EQ(clicks, 1) << "as any choice of a row";
  EXPECT_TRUE(frmMain.cboRSet.Visible());
  EXPECT_TRUE(frmMain.lblFName(1).Visible());
  EXPECT_FALSE(frmMain.chkFirstRow.Visible());
  EXPECT_NE(SourceDatabase, nullptr);
}

TEST_F(ProjectFileTest, DatabaseWithoutAPasswordOpensWithoutAConnectText) {
  std::string asked = "nothing";
  SetDatabaseEngine([&](const std::string&, const std::string& connect) {
    asked = connect;
    return std::make_unique<TwoTables>();
  });
  ObjectRecord source = SourceTrailer();
  source.Param = 0;
  source.Text = Made("a.mdb", "x");
  CurrentTable = "of the label before";
  Load(Bytes({SerialTrailer(), source}));
  EXPECT_EQ(asked, "");
  EXPECT_EQ(frmMain.cboRSet.ListIndex(), -1) << "no table was stored";
  EXPECT_EQ(CurrentTable, "");
}

TEST_F(ProjectFileTest, TableBeyondTheListIsPassedOverAndNoTextRemembered) {
  SetDatabaseEngine(
      [](const std::string&, const std::string&) { return std::make_unique<TwoTables>(); });
  ObjectRecord source = SourceTrailer();
  source.Param = 0;
  source.Text = Made("a.mdb", "x");
  source.FillColor = 2;
  CurrentTable = "as before";
  Load(Bytes({SerialTrailer(), source}));
  EXPECT_EQ(frmMain.cboRSet.ListIndex(), -1);
  EXPECT_EQ(CurrentTable, "") << "the statement after the one that failed still runs";
}

TEST_F(ProjectFileTest, DatabaseSourceWithoutAFileShowsTheSameFieldsWithoutTables) {
  ObjectRecord source = SourceTrailer();
  source.Param = 0;
  frmMain.cboRSet.SetVisible(false);
  frmMain.chkQuote.SetVisible(true);
  frmMain.cboRSet.AddItem("of the label before");
  Load(Bytes({SerialTrailer(), source}));
  EXPECT_FALSE(frmMain.cboRSet.Visible());
  EXPECT_TRUE(frmMain.chkQuote.Visible());
  EXPECT_EQ(frmMain.cboRSet.ListCount(), 0);
  EXPECT_EQ(frmMain.cboImportType.ListIndex(), 0);
}

TEST_F(ProjectFileTest, DatabaseThatCannotBeOpenedIsToldAndTheLoadGoesOn) {
  ObjectRecord source = SourceTrailer();
  source.Param = 0;
  source.Text = Made("a.mdb", "x");
  source.FillColor = 0;
  Load(Bytes({TextObject("a"), SerialTrailer(), source}));
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text,
            "The file " + folder.File("a.mdb") + " cannot be read as a database");
  EXPECT_EQ(frmMain.cboRSet.ListCount(), 0);
  EXPECT_EQ(frmMain.lblFileName.Caption(), folder.File("a.mdb"));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SerialPrefix, "SN-");
}

// --- a database that is away --------------------------------------------------------------------

class AwayDatabaseTest : public ProjectFileTest {
 protected:
  // A project with the second table of a database that is not there; the load is gone on with.
  void LoadWithout() {
    SetDatabaseEngine({});
    ObjectRecord source = SourceTrailer();
    source.Param = 0;
    source.Text = folder.File("a.mdb");
    source.FillColor = 1;
    dialogs.answers = {Answer::kYes};
    Load(Bytes({TextObject("a"), SerialTrailer(), source}));
    ASSERT_EQ(frmMain.cboRSet.ListCount(), 0);
  }

  void BringBack() {
    Made("a.mdb", "x");
    SetDatabaseEngine(
        [](const std::string&, const std::string&) { return std::make_unique<TwoTables>(); });
  }

  static std::int32_t TableIn(const std::string& bytes) {
    return RecordOf(bytes, bytes.size() / 333 - 1).FillColor;
  }
};

TEST_F(AwayDatabaseTest, ItsTableIsChosenAgainOnceItIsBack) {
  LoadWithout();
  const std::string bytes = Saved();
  BringBack();
  Load(bytes);
  EXPECT_EQ(frmMain.cboRSet.ListIndex(), 1);
  EXPECT_EQ(CurrentTable, "Items");
}

TEST_F(AwayDatabaseTest, ItsTableOutlastsAnyNumberOfSaves) {
  LoadWithout();
  const std::string bytes = Saved();
  dialogs.answers = {Answer::kYes};
  Load(bytes);
  EXPECT_EQ(TableIn(Saved()), 1);
}

TEST_F(AwayDatabaseTest, ANewLabelAnotherProjectAndAnotherSourceForgetItsTable) {
  LoadWithout();
  mnuFileNew_Click();
  EXPECT_EQ(TableIn(Saved()), -1) << "new";
  LoadWithout();
  Load(Bytes({SerialTrailer(), SourceTrailer()}));
  EXPECT_EQ(TableIn(Saved()), -1) << "another project";
  LoadWithout();
  CloseSource();
  EXPECT_EQ(TableIn(Saved()), -1) << "another source";
}

TEST_F(AwayDatabaseTest, TheTableOfAListIsTheOneThatIsChosenThere) {
  LoadWithout();
  const std::string bytes = Saved();
  BringBack();
  Load(bytes);
  frmMain.cboRSet.SetListIndex(0);
  EXPECT_EQ(TableIn(Saved()), 0);
}

// --- hit areas and pictures ---------------------------------------------------------------------

TEST_F(ProjectFileTest, HitAreasAreShownAndFittedBeforeAnythingIsPainted) {
  BoardReady = 0;
  BoardOriginX = 10;
  BoardOriginY = 20;
  ObjectRecord text = TextObject(" abcd ", 1, 2);
  text.Bold = kTrue;
  text.Italic = kTrue;
  ObjectRecord field = Field(0, 0, "ab");
  field.Italic = kTrue;
  Load(Bytes({text, field, ShapeObject(kRectangle, 5, 6, 7, 8)}));
  EXPECT_TRUE(HoldAt(0).Visible());
  EXPECT_EQ(HoldAt(0).Left(), 11);
  EXPECT_EQ(HoldAt(0).Top(), 22);
  // Four bold characters of 10 mm: half of it and a tenth more each.
  EXPECT_NEAR(HoldAt(0).Width(), 22, 1e-6);
  EXPECT_NEAR(HoldAt(0).Height(), kLineHeight, 1e-6);
  EXPECT_EQ(HoldAt(0).Caption(), "");
  EXPECT_FALSE(HoldAt(0).AutoSize());
  EXPECT_TRUE(HoldAt(0).Font().Italic);
  EXPECT_NEAR(HoldAt(1).Width(), 10, 1e-6);
  EXPECT_FALSE(HoldAt(1).Font().Italic);
  EXPECT_EQ(HoldAt(2).Width(), 7);
  EXPECT_EQ(HoldAt(2).Height(), 8);
}

TEST_F(ProjectFileTest, FontSizesThatMeasureToNothingArePassedOver) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  for (const double size : {kNoNumber, kInfinity, -kInfinity, -1.0, 0.0, 1e300}) {
    ObjectRecord record = TextObject("abc", 1, 2);
    record.FontSize = size;
    Load(Bytes({record, TextObject("ok")}));
    EXPECT_EQ(ObjectUB, 1) << size;
    EXPECT_EQ(HoldAt(0).Caption(), "") << size;
    EXPECT_FALSE(HoldAt(0).AutoSize()) << size;
  }
}

TEST_F(ProjectFileTest, HitAreasOfTheFormerLabelStayWhereTheyWereShown) {
  Load(Bytes({TextObject("a"), TextObject("b"), TextObject("c")}));
  Load(Bytes({TextObject("d")}));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_TRUE(HoldAt(2).Visible()) << "the next press on it hides it";
}

// A layout's click redraws while the trailers still count as records.
TEST_F(ProjectFileTest, RedrawOfTheLayoutsClickMakesHitAreasForTheTrailersToo) {
  frmMain.cboLabelLayout.Events().Click = [] { RedrawBoard(); };
  Load(Bytes({TextObject("a"), SerialTrailer(), SourceTrailer()}));
  EXPECT_EQ(RedrawCount, 2);
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_TRUE(frmMain.lblHold.Exists(2));
}

// That redraw may drop a record already: then the last one left counts as the trailer.
TEST_F(ProjectFileTest, UnreadablePictureInTheLayoutsRedrawCostsTheSerialTrailer) {
  frmMain.cboLabelLayout.Events().Click = [] { RedrawBoard(); };
  SerialPrefix = "kept";
  Load(Bytes({PictureObject(Made("bad.gif", "rubbish")), SerialTrailer(), SourceTrailer()}));
  EXPECT_EQ(SerialPrefix, "kept");
  EXPECT_EQ(dialogs.messages.size(), 2u) << "once in each redraw";
  EXPECT_EQ(ObjectUB, -1);
}

// The redraws on the way say nothing, and several objects of one file are one message.
TEST_F(ProjectFileTest, AMissingPictureIsToldOnceForALoad) {
  frmMain.cboLabelLayout.Events().Click = [] { RedrawBoard(); };
  Load(Bytes({PictureObject("/x/1.gif"), PictureObject("/x/1.gif"), TextObject("a"),
              SerialTrailer(), SourceTrailer()}));
  EXPECT_EQ(RedrawCount, 2);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text,
            "The file /x/1.gif referenced in this project does not exist and will be removed");
  EXPECT_EQ(ObjectUB, 0);
}

TEST_F(ProjectFileTest, MissingPicturesAreNamedAndRemovedOneByOne) {
  const std::string here = Made("here.gif", "picture");
  Load(Bytes({PictureObject("/x/1.gif"), PictureObject("/x/2.gif"), PictureObject(here),
              PictureObject("/x/3.gif"), TextObject("a")}));
  ASSERT_EQ(dialogs.messages.size(), 3u);
  EXPECT_EQ(dialogs.messages[0].text,
            "The file /x/1.gif referenced in this project does not exist and will be removed");
  EXPECT_EQ(dialogs.messages[2].text,
            "The file /x/3.gif referenced in this project does not exist and will be removed");
  EXPECT_EQ(ObjectUB, 1);
  EXPECT_EQ(ObjectAt(0).Text.Trimmed(), here);
  EXPECT_EQ(ObjectAt(1).Text.Trimmed(), "a");
  EXPECT_FALSE(HoldAt(2).Visible());
  EXPECT_EQ(SelectedObject, -1);
}

TEST_F(ProjectFileTest, PictureIsFoundWhateverItsCase) {
  Made("Here.GIF", "picture");
  Load(Bytes({PictureObject(folder.File("here.gif"))}));
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
}  // namespace tagwright
