// Databases as sources: passwords, tables, counting, and the rows of a merge.
#include "output/database_source.h"

#include "document/project_commands.h"
#include "document/project_load.h"
#include "document/project_save.h"
#include "document/source_state.h"
#include "output/source_fixture.h"

namespace tagwright {
namespace {

class DatabaseSourceTest : public SourceTest {
 protected:
  DatabaseSourceTest() {
    databases.files["a.mdb"] = {{{"MSysObjects", {"Id"}, {{"1"}}},
                                 {"People", {"Name", "Town"}, {{"Ada", "Leeds"}, {"Bob", "York"}}},
                                 {"Two Words", {"x"}, {{"1"}, {"2"}, {"3"}}},
                                 {"Empty", {"p", "q", "r"}, {}}}};
    databases.files["locked.mdb"] = {{{"T", {"f"}, {{"1"}}}}, "secret"};
  }

  void ChooseTable(const std::string& name) {
    for (int i = 0; i < frmMain.cboRSet.ListCount(); ++i) {
      if (frmMain.cboRSet.List(i) == name) return frmMain.cboRSet.UserChoose(i);
    }
    FAIL() << name;
  }

  void OpenPeople() {
    Browse(kDatabaseSource, "a.mdb");
    ChooseTable("People");
    ASSERT_EQ(ListedFields(), (Texts{"Name", "Town"}));
    ASSERT_EQ(RecordCount, 2);
  }

  // The former database, its tables, columns and rows are gone.
  static void ExpectNoSource() {
    EXPECT_FALSE(SourceDatabase);
    EXPECT_FALSE(SourceRecordset);
    EXPECT_EQ(ListedTables(), Texts{});
    EXPECT_EQ(ListedFields(), Texts{});
    EXPECT_EQ(FieldUB, -1);
    EXPECT_EQ(RecordCount, -1);
    EXPECT_EQ(frmMain.lblRCount.Caption(), "");
    EXPECT_EQ(CurrentTable, "");
    EXPECT_EQ(Merged(), Texts{});
  }
};

// --- opening ---

TEST_F(DatabaseSourceTest, AllTablesAreListedInTheEnginesOrder) {
  Browse(kDatabaseSource, "a.mdb");
  EXPECT_EQ(ListedTables(), (Texts{"MSysObjects", "People", "Two Words", "Empty"}));
  EXPECT_EQ(frmMain.lblFileName.Caption(), "a.mdb");
  EXPECT_EQ(databases.log, (Texts{"open a.mdb "}));
  EXPECT_EQ(FieldUB, -1);
  EXPECT_TRUE(dialogs.prompts.empty());
}

TEST_F(DatabaseSourceTest, AnotherDatabaseReplacesTheList) {
  Browse(kDatabaseSource, "a.mdb");
  databases.files["b.mdb"] = {{{"Only", {"f"}, {}}}};
  Browse(kDatabaseSource, "b.mdb");
  EXPECT_EQ(ListedTables(), (Texts{"Only"}));
}

// Whatever was open: nothing of it is left to print from.
TEST_F(DatabaseSourceTest, ADamagedFileLeavesNothingOfTheDatabaseBeforeIt) {
  databases.files["broken.mdb"] = {{}, "", true};
  OpenPeople();
  Browse(kDatabaseSource, "broken.mdb");
  ExpectNoSource();
  EXPECT_EQ(frmMain.lblFileName.Caption(), "broken.mdb");
  EXPECT_EQ(Messages(), (Texts{"The file broken.mdb cannot be read as a database"}));
}

TEST_F(DatabaseSourceTest, AFileThatIsMissingLikewise) {
  OpenPeople();
  Browse(kDatabaseSource, "nowhere.mdb");
  ExpectNoSource();
  EXPECT_EQ(Messages(), (Texts{"The file nowhere.mdb cannot be read as a database"}));
}

TEST_F(DatabaseSourceTest, WithoutTheProgramThatReadsThemTheReasonIsTold) {
  OpenPeople();
  SetDatabaseEngine([](const std::string&, const std::string&) -> std::unique_ptr<Database> {
    RaiseFault(kDatabaseFault, "The program that reads databases does not start: x");
  });
  Browse(kDatabaseSource, "a.mdb");
  ExpectNoSource();
  EXPECT_EQ(Messages(), (Texts{"The file a.mdb cannot be read as a database\r\n"
                               "The program that reads databases does not start: x"}));
}

TEST_F(DatabaseSourceTest, ATextFileLeavesNothingOfTheDatabaseBeforeIt) {
  OpenPeople();
  BrowseCsv("only\nrow\n");
  EXPECT_FALSE(SourceDatabase);
  EXPECT_FALSE(SourceRecordset);
  EXPECT_EQ(ListedTables(), Texts{});
  EXPECT_EQ(Columns(), (Texts{"only"}));
}

// The kind is chosen before the dialog, and stays when that is cancelled: what is named is no
// database then.
TEST_F(DatabaseSourceTest, AKindThatTheFileIsNotOfMergesNothing) {
  OpenPeople();
  BrowseCsv("only\nrow\n");
  dialogs.files.push_back(std::nullopt);
  frmMain.cboImportType.UserChoose(kDatabaseSource);
  EXPECT_EQ(Merged(), Texts{});
}

TEST_F(DatabaseSourceTest, TheMarkerTellsOfADamagedFile) {
  databases.files["broken.mdb"] = {{}, "", true};
  Browse(kDatabaseSource, "a.mdb");
  LeaveMarker();
  Browse(kDatabaseSource, "broken.mdb");
  EXPECT_EQ(Messages(), (Texts{"3343 - Unrecognized database format",
                               "The file broken.mdb cannot be read as a database"}));
}

// --- passwords ---

TEST_F(DatabaseSourceTest, APasswordIsAskedForAndTaken) {
  dialogs.inputs.push_back("secret");
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(dialogs.prompts, (Texts{"Please enter Password"}));
  EXPECT_EQ(databases.log, (Texts{"open locked.mdb ", "open locked.mdb ;PWD=secret"}));
  EXPECT_EQ(DatabasePassword, "secret");
  EXPECT_EQ(ListedTables(), (Texts{"T"}));
  EXPECT_EQ(frmMain.lblFileName.Caption(), "locked.mdb");
  EXPECT_TRUE(dialogs.messages.empty());
}

// An answer that is none ends the opening and not the command: the file is named on the panel.
TEST_F(DatabaseSourceTest, AnEmptyPasswordEndsTheOpening) {
  OpenPeople();
  DatabasePassword = "old";
  dialogs.inputs.push_back("");
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(DatabasePassword, "");
  ExpectNoSource();
  EXPECT_EQ(frmMain.lblFileName.Caption(), "locked.mdb");
  EXPECT_EQ(Messages(), (Texts{"The file locked.mdb cannot be read as a database"}));
}

// The opening says so in its words, and passes the fault on to the command, which has its own.
TEST_F(DatabaseSourceTest, AWrongPasswordIsToldTwiceWithDifferentCapitals) {
  OpenPeople();
  dialogs.inputs.push_back("guess");
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(Messages(), (Texts{"Not a valid Password", "Not a Valid Password"}));
  for (const auto& message : dialogs.messages) {
    EXPECT_EQ(message.buttons, MessageButtons::kOk);
    EXPECT_EQ(message.icon, MessageIcon::kNone);
  }
  EXPECT_EQ(DatabasePassword, "");
  ExpectNoSource();
  EXPECT_EQ(frmMain.lblFileName.Caption(), "locked.mdb") << "the former one is gone";
}

TEST_F(DatabaseSourceTest, ADatabaseThatBreaksAtItsSecondOpeningListsNothing) {
  int opened = 0;
  SetDatabaseEngine([&](const std::string&, const std::string&) -> std::unique_ptr<Database> {
    RaiseFault(++opened == 1 ? kPasswordNeeded : kDatabaseFault);
  });
  dialogs.inputs.push_back("secret");
  LeaveMarker();
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(Messages(), (Texts{"3343 - Unrecognized database format",
                               "The file locked.mdb cannot be read as a database"}));
  EXPECT_EQ(DatabasePassword, "secret");
  EXPECT_EQ(frmMain.lblFileName.Caption(), "locked.mdb");
}

// --- the table ---

TEST_F(DatabaseSourceTest, ATablesColumnsAndRowsAreTaken) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  EXPECT_EQ(Columns(), (Texts{"Name", "Town"}));
  EXPECT_EQ(ListedFields(), (Texts{"Name", "Town"}));
  EXPECT_EQ(SourceTable.Name, "People");
  EXPECT_EQ(CurrentTable, "People");
  EXPECT_EQ(RecordCount, 2);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 2");
  EXPECT_EQ(databases.log.at(1), "rows SELECT * FROM People");
  EXPECT_EQ(databases.log.at(2), "last");
  EXPECT_EQ(databases.log.at(3), "first");
}

TEST_F(DatabaseSourceTest, AnEmptyTableHasColumnsAndNoRows) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("Empty");
  EXPECT_EQ(Columns(), (Texts{"p", "q", "r"}));
  EXPECT_EQ(RecordCount, 0);
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(DatabaseSourceTest, ATableWithABlankInItsNameFailsToOpen) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("Two Words");
  EXPECT_EQ(databases.log.back(), "rows SELECT * FROM Two Words");
  EXPECT_EQ(Columns(), (Texts{"x"}));
  EXPECT_EQ(CurrentTable, "Two Words");
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 0");
  EXPECT_EQ(Merged(), (Texts{}));
}

// The rows of the table before it are not its own.
TEST_F(DatabaseSourceTest, ATableThatFailsToOpenHasNoRows) {
  OpenPeople();
  ChooseTable("Two Words");
  EXPECT_EQ(Columns(), (Texts{"x"}));
  EXPECT_EQ(RecordCount, 0);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 0");
  EXPECT_FALSE(SourceRecordset);
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(DatabaseSourceTest, ATableWhoseColumnsCannotBeReadIsChosenWithoutThem) {
  OpenPeople();
  databases.columns_fail = true;
  databases.log.clear();
  ChooseTable("Empty");
  EXPECT_EQ(SourceTable.Name, "Empty");
  EXPECT_EQ(FieldUB, -1);
  EXPECT_EQ(ListedFields(), Texts{});
  EXPECT_EQ(databases.log.front(), "rows SELECT * FROM Empty");
}

TEST_F(DatabaseSourceTest, ANewDatabaseWithoutATableMergesNothing) {
  OpenPeople();
  databases.files["b.mdb"] = {{{"T", {"x"}, {{"1"}, {"2"}}}}};
  Browse(kDatabaseSource, "b.mdb");
  EXPECT_EQ(ListedFields(), Texts{});
  EXPECT_EQ(RecordCount, -1);
  EXPECT_EQ(frmMain.lblRCount.Caption(), "");
  EXPECT_EQ(Merged(), (Texts{}));
}

// It is in the list, and counts in it.
TEST_F(DatabaseSourceTest, ATableInAnotherFileSaysSo) {
  FakeTable linked{"Far", {"f"}, {{"1"}, {"2"}}};
  linked.linked = true;
  databases.files["a.mdb"].tables.insert(databases.files["a.mdb"].tables.begin(), linked);
  OpenPeople();
  EXPECT_EQ(frmMain.cboRSet.ListIndex(), 2);
  ChooseTable("Far");
  EXPECT_EQ(Messages(), (Texts{"The table Far lies in another file"}));
  EXPECT_EQ(ListedFields(), Texts{});
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 0");
  EXPECT_EQ(Merged(), (Texts{}));
}

TEST_F(DatabaseSourceTest, AMergeOfADatabaseThatIsGoneHasNoRows) {
  OpenPeople();
  databases.files["a.mdb"].damaged = true;
  EXPECT_EQ(Merged(), (Texts{}));
  EXPECT_FALSE(SourceDatabase);
}

TEST_F(DatabaseSourceTest, NoTableChosenDoesNothing) {
  Browse(kDatabaseSource, "a.mdb");
  FieldUB = 7;
  frmMain.cboRSet.SetListIndex(-1);
  cboRSet_Click();
  EXPECT_EQ(FieldUB, 7);
}

// FieldUB takes the number of columns, slots or not.
TEST_F(DatabaseSourceTest, ATableOfMoreColumnsThanSlotsFillsTheSlots) {
  FakeTable wide{"Wide", {}, {{}, {}}};
  for (int i = 0; i < 120; ++i) {
    wide.fields.push_back("f" + std::to_string(i));
    for (FakeRow& row : wide.rows) row.push_back("v" + std::to_string(i));
  }
  databases.files["wide.mdb"] = {{wide}};
  Browse(kDatabaseSource, "wide.mdb");
  ChooseTable("Wide");
  EXPECT_EQ(FieldUB, 119);
  EXPECT_EQ(frmMain.lstFields.ListCount(), 101);
  EXPECT_EQ(FieldValues[100], "f100");
  EXPECT_EQ(Merged(100), (Texts{"v100"}));
}

TEST_F(DatabaseSourceTest, TheMarkerTellsOfEachColumnPastTheLastSlot) {
  LeaveMarker();
  FakeTable wide{"Wide", {}, {}};
  for (int i = 0; i < 103; ++i) wide.fields.push_back("f" + std::to_string(i));
  wide.rows = {FakeRow(103, "v")};
  databases.files["wide.mdb"] = {{wide}};
  Browse(kDatabaseSource, "wide.mdb");
  ChooseTable("Wide");
  EXPECT_EQ(Messages(), Texts(4, "9 - " + FaultDescription(9))) << "stored and listed, two each";
}

// --- merging ---

TEST_F(DatabaseSourceTest, TheFirstRowIsPassedOver) {
  databases.files["a.mdb"].tables[1].rows.push_back({"Cyd", "Hull"});
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  EXPECT_EQ(Merged(), (Texts{"Bob", "Cyd"}));
  EXPECT_EQ(Merged(1), (Texts{"York", "Hull"}));
}

TEST_F(DatabaseSourceTest, AMergeOpensItsDatabaseAnewWithThePassword) {
  dialogs.inputs.push_back("secret");
  Browse(kDatabaseSource, "locked.mdb");
  frmMain.cboRSet.UserChoose(0);
  databases.log.clear();
  OpenMergeSource();
  EXPECT_EQ(databases.log,
            (Texts{"open locked.mdb ;PWD=secret", "rows SELECT * FROM T", "last", "first"}));
}

TEST_F(DatabaseSourceTest, AMergeWithoutAPasswordConnectsWithout) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  databases.log.clear();
  OpenMergeSource();
  EXPECT_EQ(databases.log.at(0), "open a.mdb ");
}

TEST_F(DatabaseSourceTest, ANullIsAnEmptyText) {
  databases.files["a.mdb"].tables[1].rows[1] = {"Bob", std::nullopt};
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  EXPECT_EQ(FieldValues[1], "Town");
  EXPECT_EQ(Merged(1), (Texts{""}));
}

TEST_F(DatabaseSourceTest, ClosingLeavesADatabaseOpen) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  OpenMergeSource();
  CloseMergeSource();
  EXPECT_TRUE(SourceRecordset);
  EXPECT_TRUE(SourceDatabase);
}

// A job without mailshot data makes its one move in the rows that are open from choosing the table.
TEST_F(DatabaseSourceTest, WithoutAMergeTheOpenRowsMove) {
  Browse(kDatabaseSource, "a.mdb");
  EXPECT_FALSE(Next());
  ChooseTable("People");
  EXPECT_TRUE(Next());
  EXPECT_EQ(FieldValues[0], "Bob");
  EXPECT_FALSE(Next());
}

TEST_F(DatabaseSourceTest, RowsThatFailEndTheData) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  OpenMergeSource();
  databases.rows_fail = true;
  EXPECT_FALSE(Next());
  EXPECT_FALSE(Next());
}

// --- projects ---

TEST_F(DatabaseSourceTest, AProjectsTableIsTakenAsIfChosenByHand) {
  databases.files[folder.File("a.mdb")] = databases.files["a.mdb"];
  Browse(kDatabaseSource, Written("a.mdb", ""));
  ChooseTable("People");
  ProjectPath = folder.File("label.twp");
  SaveProject(kFalse);
  FreshProgram(folder.Path());
  ResetDataSources();
  frmMain.cboImportType.AddItem("database");
  frmMain.cboImportType.Events().Click = cboImportType_Click;
  frmMain.cboRSet.Events().Click = cboRSet_Click;
  const std::size_t asked = dialogs.requests.size();
  LoadProject(folder.File("label.twp"));
  EXPECT_EQ(dialogs.requests.size(), asked);
  EXPECT_EQ(ListedFields(), (Texts{"Name", "Town"}));
  EXPECT_EQ(frmMain.lblRCount.Caption(), "Records: 2");
  EXPECT_EQ(Merged(), (Texts{"Bob"}));
}

TEST_F(DatabaseSourceTest, AProjectWhoseDatabaseCannotBeReadLeavesNothingOfTheFormerOne) {
  const std::string path = Written("b.mdb", "");
  databases.files[path] = {{{"MSysObjects", {"Id"}, {{"1"}}}, {"T", {"x"}, {{"1"}, {"2"}}}}};
  Browse(kDatabaseSource, path);
  ChooseTable("T");
  ProjectPath = folder.File("label.twp");
  SaveProject(kFalse);
  for (const char* password : {"", "other"}) {
    OpenPeople();
    databases.files[path].password = password;
    databases.files[path].damaged = *password == '\0';
    dialogs.messages.clear();
    LoadProject(folder.File("label.twp"));
    EXPECT_EQ(frmMain.lblFileName.Caption(), path);
    ExpectNoSource();
    EXPECT_EQ(Messages(), (Texts{"The file " + path + " cannot be read as a database"}));
  }
}

TEST_F(DatabaseSourceTest, AProjectWithoutDataLeavesNothingOfTheFormerOne) {
  ProjectPath = folder.File("label.twp");
  SaveProject(kFalse);
  OpenPeople();
  frmMain.chkMailshot.SetValue(1);
  LoadProject(folder.File("label.twp"));
  EXPECT_EQ(frmMain.lblFileName.Caption(), "");
  EXPECT_EQ(frmMain.chkMailshot.Value(), 0);
  ExpectNoSource();
}

TEST_F(DatabaseSourceTest, ANewLabelLeavesNothingOfTheFormerOne) {
  OpenPeople();
  mnuFileNew_Click();
  ExpectNoSource();
}

}  // namespace
}  // namespace tagwright
