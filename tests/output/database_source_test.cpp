// Databases as sources: passwords, tables, counting, and the rows of a merge.
#include "output/database_source.h"

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

// What cannot be opened leaves the database before it open, and that one's tables are listed.
TEST_F(DatabaseSourceTest, ADamagedFileListsTheTablesOfTheDatabaseBeforeIt) {
  databases.files["broken.mdb"] = {{}, "", true};
  Browse(kDatabaseSource, "broken.mdb");
  EXPECT_EQ(ListedTables(), (Texts{}));
  Browse(kDatabaseSource, "a.mdb");
  Browse(kDatabaseSource, "broken.mdb");
  EXPECT_EQ(ListedTables().size(), 4U);
  EXPECT_EQ(frmMain.lblFileName.Caption(), "broken.mdb");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DatabaseSourceTest, TheMarkerTellsOfADamagedFile) {
  databases.files["broken.mdb"] = {{}, "", true};
  Browse(kDatabaseSource, "a.mdb");
  LeaveMarker();
  Browse(kDatabaseSource, "broken.mdb");
  EXPECT_EQ(Messages(), (Texts{"3343 - Unrecognized database format"}));
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
  DatabasePassword = "old";
  dialogs.inputs.push_back("");
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(DatabasePassword, "");
  EXPECT_EQ(ListedTables(), (Texts{}));
  EXPECT_EQ(frmMain.lblFileName.Caption(), "locked.mdb");
  EXPECT_TRUE(dialogs.messages.empty());
}

// The opening says so in its words, and passes the fault on to the command, which has its own.
TEST_F(DatabaseSourceTest, AWrongPasswordIsToldTwiceWithDifferentCapitals) {
  frmMain.lblFileName.SetCaption("before");
  dialogs.inputs.push_back("guess");
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(Messages(), (Texts{"Not a valid Password", "Not a Valid Password"}));
  for (const auto& message : dialogs.messages) {
    EXPECT_EQ(message.buttons, MessageButtons::kOk);
    EXPECT_EQ(message.icon, MessageIcon::kNone);
  }
  EXPECT_EQ(DatabasePassword, "");
  EXPECT_EQ(ListedTables(), (Texts{}));
  EXPECT_EQ(frmMain.lblFileName.Caption(), "before");
}

TEST_F(DatabaseSourceTest, ADatabaseThatBreaksAtItsSecondOpeningListsNothing) {
  int opened = 0;
  SetDatabaseEngine([&](const std::string&, const std::string&) -> std::unique_ptr<Database> {
    RaiseFault(++opened == 1 ? kPasswordNeeded : kDatabaseFault);
  });
  dialogs.inputs.push_back("secret");
  LeaveMarker();
  Browse(kDatabaseSource, "locked.mdb");
  EXPECT_EQ(Messages(), (Texts{"3343 - Unrecognized database format"}));
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

// The rows before it stay open, and they are what is counted and merged.
TEST_F(DatabaseSourceTest, ATableThatFailsToOpenShowsTheCountOfTheOneBeforeIt) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  ChooseTable("Two Words");
  EXPECT_EQ(Columns(), (Texts{"x"}));
  EXPECT_EQ(RecordCount, 2);
  EXPECT_EQ(Merged(), (Texts{"Bob"}));
}

TEST_F(DatabaseSourceTest, ATableWhoseColumnsCannotBeReadIsChosenWithoutThem) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  databases.files["b.mdb"] = {{{"T", {"x"}, {{"1"}}}}};
  Browse(kDatabaseSource, "b.mdb");
  databases.columns_fail = true;
  databases.log.clear();
  ChooseTable("T");
  EXPECT_EQ(SourceTable.Name, "T");
  EXPECT_EQ(FieldUB, -1);
  EXPECT_EQ(Columns(), Texts{});
  EXPECT_EQ(databases.log.front(), "rows SELECT * FROM T");
}

// No table is chosen in the new database: what was open is still merged.
TEST_F(DatabaseSourceTest, ANewDatabaseWithoutATableMergesTheRowsOfTheFormerOne) {
  Browse(kDatabaseSource, "a.mdb");
  ChooseTable("People");
  databases.files["b.mdb"] = {{{"T", {"x"}, {{"1"}, {"2"}}}}};
  Browse(kDatabaseSource, "b.mdb");
  EXPECT_EQ(Merged(), (Texts{"Bob"}));
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

}  // namespace
}  // namespace tagwright
