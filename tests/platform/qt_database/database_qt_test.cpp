// Whole files in both versions, through the built reader.
#include <sys/wait.h>

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "database_fixture.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"
#include "qt/services/database.h"

namespace tagwright {
namespace {

using Names = std::vector<std::string>;

class BothVersionsTest : public DatabaseTest, public testing::WithParamInterface<int> {
 protected:
  std::string Sample() { return Made(JetBytes(SampleDatabase(GetParam()))); }
  std::unique_ptr<Recordset> Items() {
    return Open(Sample())->OpenRecordset("SELECT * FROM Items");
  }
  // A table of so many numbered rows.
  std::string Numbered(int rows, std::optional<std::uint32_t> stated = {}) {
    JetTable table{"T", {{"Number", JetType::kLong}, {"Text", JetType::kText}}, {}, stated};
    for (int i = 1; i <= rows; ++i) table.rows.push_back({std::int64_t{i}, "x"});
    return Made(JetBytes({.version = GetParam(), .tables = {table}}));
  }
  std::unique_ptr<Recordset> NumberedRows(int rows, std::optional<std::uint32_t> stated = {}) {
    return Open(Numbered(rows, stated))->OpenRecordset("SELECT * FROM T");
  }
};

INSTANTIATE_TEST_SUITE_P(Versions, BothVersionsTest, testing::Values(3, 4));

// --- tables and fields --------------------------------------------------------------------------

TEST_P(BothVersionsTest, TablesComeInTheOrderOfTheCatalogueWithItself) {
  EXPECT_EQ(Open(Sample())->TableNames(), (Names{"MSysObjects", "Elsewhere", "Served", "Items",
                                                 "Empty", "Order Details", "Umsätze"}));
}

TEST_P(BothVersionsTest, QueriesAndReportsAreNoTables) {
  const Names tables = Open(Sample())->TableNames();
  EXPECT_EQ(std::count(tables.begin(), tables.end(), "Kunden gefiltert"), 0);
  EXPECT_EQ(std::count(tables.begin(), tables.end(), "Etiketten"), 0);
}

// Their rows are not in this file: it is told by a number of its own.
TEST_P(BothVersionsTest, LinkedTablesAreListedAndSayThatTheyLieElsewhere) {
  const std::unique_ptr<Database> database = Open(Sample());
  for (const char* name : {"Elsewhere", "Served", "eLSEWHERE"}) {
    EXPECT_EQ(FaultOf([&] { database->FieldNames(name); }), kLinkedTable) << name;
    EXPECT_EQ(FaultOf([&] { database->OpenRecordset("SELECT * FROM " + std::string(name)); }),
              kLinkedTable)
        << name;
  }
  EXPECT_EQ(RestOf(*database->OpenRecordset("SELECT * FROM Items")).size(), 3U);
}

TEST_P(BothVersionsTest, FieldsOfEveryTableAreKnownWhateverItsName) {
  const std::unique_ptr<Database> database = Open(Sample());
  EXPECT_EQ(database->FieldNames("Empty"), (Names{"Column1", "Column2"}));
  EXPECT_EQ(database->FieldNames("Order Details"), Names{"Text"});
  EXPECT_EQ(database->FieldNames("Umsätze"), Names{"Straße"});
  EXPECT_EQ(database->FieldNames("umsÄTZE"), Names{"Straße"}) << "case does not count";
  EXPECT_EQ(FaultOf([&] { database->FieldNames("Nothing"); }), kDatabaseFault);
  EXPECT_EQ(FaultOf([&] { database->FieldNames("Kunden gefiltert"); }), kDatabaseFault);
}

TEST_P(BothVersionsTest, TableWithABlankInItsNameFailsAsARecordset) {
  const std::unique_ptr<Database> database = Open(Sample());
  EXPECT_EQ(FaultOf([&] { database->OpenRecordset("SELECT * FROM Order Details"); }),
            kDatabaseFault);
  EXPECT_EQ(RestOf(*database->OpenRecordset("SELECT * FROM Umsätze")), (Rows{{"Müllerstraße"}}));
  EXPECT_EQ(FaultOf([&] { database->OpenRecordset("SELECT * FROM Nothing"); }), kDatabaseFault);
}

TEST_P(BothVersionsTest, CatalogueIsATableLikeAnyOther) {
  const std::unique_ptr<Recordset> rows =
      Open(Sample())->OpenRecordset("SELECT * FROM MSysObjects");
  const Rows all = RestOf(*rows);
  ASSERT_EQ(all.size(), 9U);
  EXPECT_EQ(all[0],
            (std::vector<std::string>{"2", "251658241", "MSysObjects", "1", "-2147483648"}));
}

// --- values -------------------------------------------------------------------------------------

TEST_P(BothVersionsTest, EveryTypeHasItsText) {
  Rows rows = RestOf(*Items());
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_TRUE(rows[1][11] == LongMemo()) << "its " << LongMemo().size() << " bytes";
  rows[1][11] = "long";
  const std::string guid = "{00112233-4455-6677-8899-AABBCCDDEEFF}";
  EXPECT_EQ(rows[0], (Names{"1", "Grüße €", "True", "255", "-32768", "14", "0.15", "444.555",
                            "11/16/1994", "-1110.554", guid, "short", "", ""}));
  EXPECT_EQ(rows[1], (Names{"-2147483648", "", "False", "0", "32767", "-0.0005", "-2.5", "1E+21",
                            "11/22/2003 6:00:00 PM", "1.5", guid, "long", "", ""}));
}

TEST_P(BothVersionsTest, NullsAreNothingButABooleanIsNeverNull) {
  const Rows rows = RestOf(*Items());
  ASSERT_EQ(rows.size(), 3U);
  for (std::size_t i = 0; i < rows[2].size(); ++i) {
    EXPECT_EQ(rows[2][i], i == 2 ? "False" : "null") << "field " << i;
  }
}

TEST_P(BothVersionsTest, ValuesAreWrittenAsTheUserWritesThem) {
  UserLocale german;
  german.decimal = ",";
  german.group = ".";
  german.short_date = "dd.MM.yyyy";
  german.time = "HH:mm:ss";
  SetLocale(german);
  const Rows rows = RestOf(*Items());
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0][6], "0,15");
  EXPECT_EQ(rows[0][7], "444,555");
  EXPECT_EQ(rows[0][9], "-1110,554");
  EXPECT_EQ(rows[1][5], "-0,0005");
  EXPECT_EQ(rows[1][8], "22.11.2003 18:00:00");
}

// The library would take other code pages from there.
TEST_P(BothVersionsTest, EnvironmentHasNoSay) {
  setenv("MDBICONV", "UTF-16LE", 1);
  setenv("MDB_JET3_CHARSET", "CP437", 1);
  const Rows rows = RestOf(*Open(Sample())->OpenRecordset("SELECT * FROM Umsätze"));
  unsetenv("MDBICONV");
  unsetenv("MDB_JET3_CHARSET");
  EXPECT_EQ(rows, (Rows{{"Müllerstraße"}}));
}

TEST_P(BothVersionsTest, MemoComesWholeFromAnyPlace) {
  JetTable table{"T", {{"Memo", JetType::kMemo}}, {}};
  const std::vector<std::size_t> lengths = {1, 40, 41, 500, 1000, 1001, 2000, 5000, 65535};
  for (const std::size_t length : lengths) table.rows.push_back({std::string(length, 'm')});
  const auto database = Open(Made(JetBytes({.version = GetParam(), .tables = {table}})));
  const Rows rows = RestOf(*database->OpenRecordset("SELECT * FROM T"));
  ASSERT_EQ(rows.size(), lengths.size());
  for (std::size_t i = 0; i < lengths.size(); ++i) EXPECT_EQ(rows[i][0].size(), lengths[i]);
}

// Files mark rows that have been moved in the place of the row. Of a memo's piece that mark says
// nothing about its text.
TEST_P(BothVersionsTest, MemoComesWholeFromARowWithAMark) {
  constexpr unsigned char kMoved = 0x40;
  JetTable table{"T", {{"Memo", JetType::kMemo}}, {{std::string(500, 'm')}}};
  std::string bytes = JetBytes({.version = GetParam(), .tables = {table}});
  const std::size_t page_size = GetParam() == 3 ? 2048 : 4096;
  const std::size_t first_row = GetParam() == 3 ? 10 : 14;
  int marked = 0;
  for (std::size_t page = 0; page < bytes.size(); page += page_size) {
    if (bytes.compare(page + 4, 4, "LVAL") != 0) continue;
    bytes[page + first_row + 1] = static_cast<char>(bytes[page + first_row + 1] | kMoved);
    ++marked;
  }
  ASSERT_EQ(marked, 1);
  const Rows rows = RestOf(*Open(Made(bytes))->OpenRecordset("SELECT * FROM T"));
  EXPECT_EQ(rows, (Rows{{std::string(500, 'm')}}));
}

// A definition that is wrong about a column: what is not there is no value, and never what lies
// beyond it.
TEST_P(BothVersionsTest, FieldOfAFixedTypeThatIsTooShortIsNull) {
  struct Case {
    JetType type;
    std::uint16_t size;
    JetCell cell;
  };
  const Case cases[] = {
      {JetType::kByte, 1, std::int64_t{7}},
      {JetType::kInteger, 2, std::int64_t{7}},
      {JetType::kLong, 4, std::int64_t{7}},
      {JetType::kSingle, 4, 7.0},
      {JetType::kCurrency, 8, std::int64_t{70000}},
      {JetType::kDouble, 8, 7.0},
      {JetType::kDate, 8, 7.0},
      {JetType::kNumeric, 17, std::int64_t{7}},
  };
  for (const auto& [type, size, cell] : cases) {
    for (const int missing : {0, 1}) {
      const JetColumn column{"C", type, 0, static_cast<std::uint16_t>(size - missing)};
      const JetTable table{"T", {column, {"Text", JetType::kText}}, {{cell, "x"}}};
      std::filesystem::remove(folder.File("a.mdb"));
      const std::string path = Made(JetBytes({.version = GetParam(), .tables = {table}}));
      const Rows rows = RestOf(*Open(path)->OpenRecordset("SELECT * FROM T"));
      ASSERT_EQ(rows.size(), 1U) << size;
      EXPECT_EQ(rows[0][0] == "null", missing == 1) << size << " bytes: " << rows[0][0];
    }
  }
}

// --- the cursor ---------------------------------------------------------------------------------

TEST_P(BothVersionsTest, OpenedItStandsOnTheFirstRow) {
  const auto rows = NumberedRows(3);
  EXPECT_FALSE(rows->Eof());
  EXPECT_EQ(rows->FieldCount(), 2);
  EXPECT_EQ(rows->Value(0), "1");
  EXPECT_EQ(rows->RecordCount(), 1) << "as many as have been met";
}

TEST_P(BothVersionsTest, CountIsExactAtTheLastRowAndStaysSo) {
  const auto rows = NumberedRows(700);
  rows->MoveLast();
  EXPECT_EQ(rows->RecordCount(), 700);
  EXPECT_EQ(rows->Value(0), "700");
  rows->MoveFirst();
  EXPECT_EQ(rows->RecordCount(), 700);
  EXPECT_EQ(rows->Value(0), "1");
  rows->MoveNext();
  EXPECT_EQ(rows->Value(0), "2");
}

TEST_P(BothVersionsTest, RowsAreCountedByReadingNotByTheHeader) {
  for (const std::uint32_t stated : {0U, 2U, 1000U}) {
    const auto rows = NumberedRows(5, stated);
    rows->MoveLast();
    EXPECT_EQ(rows->RecordCount(), 5) << "the header says " << stated;
  }
}

TEST_P(BothVersionsTest, BeyondTheLastRowThereIsOnlyTheWayBack) {
  const auto rows = NumberedRows(2);
  rows->MoveNext();
  rows->MoveNext();
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(FaultOf([&] { rows->MoveNext(); }), kDatabaseFault);
  EXPECT_EQ(FaultOf([&] { rows->Value(0); }), kDatabaseFault);
  rows->MoveLast();
  EXPECT_FALSE(rows->Eof());
  EXPECT_EQ(rows->Value(0), "2");
  rows->MoveNext();
  rows->MoveFirst();
  EXPECT_EQ(rows->Value(0), "1");
}

TEST_P(BothVersionsTest, OneRowIsFirstAndLast) {
  const auto rows = NumberedRows(1);
  rows->MoveLast();
  rows->MoveFirst();
  EXPECT_EQ(rows->Value(0), "1");
  rows->MoveNext();
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(rows->RecordCount(), 1);
}

TEST_P(BothVersionsTest, WithoutRowsEveryMoveFaults) {
  const auto rows = Open(Sample())->OpenRecordset("SELECT * FROM Empty");
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(rows->RecordCount(), 0);
  EXPECT_EQ(rows->FieldCount(), 2) << "the fields are known all the same";
  EXPECT_EQ(FaultOf([&] { rows->MoveFirst(); }), kDatabaseFault);
  EXPECT_EQ(FaultOf([&] { rows->MoveLast(); }), kDatabaseFault);
  EXPECT_EQ(FaultOf([&] { rows->MoveNext(); }), kDatabaseFault);
}

TEST_P(BothVersionsTest, FieldThatDoesNotExistIsOutOfBounds) {
  const auto rows = NumberedRows(1);
  EXPECT_EQ(FaultOf([&] { rows->Value(-1); }), kOutOfBounds);
  EXPECT_EQ(FaultOf([&] { rows->Value(2); }), kOutOfBounds);
}

TEST_P(BothVersionsTest, RecordsetOutlivesItsDatabaseAndOthersBesideIt) {
  const std::string path = Numbered(300);
  auto database = Open(path);
  const auto first = database->OpenRecordset("SELECT * FROM T");
  const auto second = database->OpenRecordset("SELECT * FROM T");
  second->MoveLast();
  database.reset();
  first->MoveNext();
  EXPECT_EQ(first->Value(0), "2");
  EXPECT_EQ(second->Value(0), "300");
}

TEST_P(BothVersionsTest, FileThatIsGoneWhenItIsReadAnewFaults) {
  const auto rows = NumberedRows(300);
  rows->MoveLast();
  std::filesystem::remove(folder.File("a.mdb"));
  EXPECT_EQ(FaultOf([&] { rows->MoveFirst(); }), kDatabaseFault);
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(FaultOf([&] { rows->MoveNext(); }), kDatabaseFault);
}

// --- opening ------------------------------------------------------------------------------------

TEST_P(BothVersionsTest, PasswordOpensAndItsAbsenceIsTold) {
  JetDatabase database = SampleDatabase(GetParam());
  database.password = "Grüße €97";
  const std::string path = Made(JetBytes(database));
  EXPECT_EQ(FaultOfOpening(path), kPasswordNeeded);
  EXPECT_EQ(FaultOfOpening(path, ";PWD="), kPasswordNeeded);
  EXPECT_EQ(FaultOfOpening(path, ";PWD=Grüße €9"), kPasswordNeeded);
  EXPECT_EQ(FaultOfOpening(path, ";PWD=grüße €97"), kPasswordNeeded) << "case counts";
  EXPECT_EQ(FaultOfOpening(path, "Grüße €97"), kPasswordNeeded) << "without its mark";
  EXPECT_EQ(Open(path, ";PWD=Grüße €97")->TableNames().size(), 7U);
}

TEST_P(BothVersionsTest, PasswordThatNobodyAskedForDoesNoHarm) {
  EXPECT_EQ(Open(Sample(), ";PWD=x")->TableNames().size(), 7U);
}

TEST_P(BothVersionsTest, NameThatDiffersInCaseIsFound) {
  Sample();
  EXPECT_EQ(Open(folder.File("A.MDB"))->TableNames().size(), 7U);
}

TEST_F(DatabaseTest, MissingFileHasItsOwnNumber) {
  EXPECT_EQ(FaultOfOpening(folder.File("none.mdb")), kFileNotFound);
  EXPECT_EQ(FaultOfOpening(""), kFileNotFound);
  EXPECT_EQ(FaultOfOpening(folder.Path()), kFileNotFound) << "a folder is no file";
}

TEST_F(DatabaseTest, FileThatIsNoDatabaseIsToldFromItsFirstBytes) {
  EXPECT_EQ(FaultOfOpening(Made("")), kDatabaseFault);
  EXPECT_EQ(FaultOfOpening(Made("Name,Street\nAnna,Main Street\n")), kDatabaseFault);
  EXPECT_EQ(FaultOfOpening(Made(std::string(5000, 'x'))), kDatabaseFault);
  std::string later = JetBytes(SampleDatabase(4));
  later[0x14] = 2;
  EXPECT_EQ(FaultOfOpening(Made(later)), kDatabaseFault) << "a later version";
}

TEST_F(DatabaseTest, FileThatCannotBeReadIsNoDatabase) {
  const std::string path = Made(JetBytes(SampleDatabase(3)));
  std::filesystem::permissions(path, std::filesystem::perms::none);
  if (FILE* readable = std::fopen(path.c_str(), "rb")) {
    std::fclose(readable);
    GTEST_SKIP() << "this user may read everything";
  }
  EXPECT_EQ(FaultOfOpening(path), kDatabaseFault);
}

TEST_F(DatabaseTest, PathMayLookLikeAnOptionOrHoldBlanks) {
  const std::string bytes = JetBytes(SampleDatabase(3));
  for (const char* name : {"--help.mdb", "a b 'c' \"d\".mdb", "Grüße.mdb"}) {
    EXPECT_EQ(Open(Made(bytes, name))->TableNames().size(), 7U) << name;
  }
}

TEST_F(DatabaseTest, NoReaderIsLeftBehind) {
  {
    const auto database = Open(Made(JetBytes(SampleDatabase(4))));
    const auto rows = database->OpenRecordset("SELECT * FROM Items");
    rows->MoveNext();
  }
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST(ReaderBesideProgramTest, StandsInTheFolderOfTheExecutable) {
  int argc = 1;
  char name[] = "test";
  char* argv[] = {name, nullptr};
  const QCoreApplication application(argc, argv);
  const std::string folder = std::filesystem::canonical("/proc/self/exe").parent_path();
  EXPECT_EQ(ReaderBesideProgram().path, folder + "/tagwright-reader");
}

}  // namespace
}  // namespace tagwright
