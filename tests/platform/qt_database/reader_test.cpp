// What the program makes of a reader that misbehaves: stand-ins that say what a test wants.
#include <sys/wait.h>

#include <QCoreApplication>
#include <QTimer>

#include "database_fixture.h"
#include "platform/database/reader_protocol.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

const std::string kEnd = FrameBytes(FrameKind::kEnd, "");

std::string Name(const std::string& name) { return FrameBytes(FrameKind::kName, name); }
std::string Row(const std::vector<StoredValue>& row) {
  return FrameBytes(FrameKind::kRow, RowContent(row));
}

// Its stand-in for the reader is a shell script. It answers each question with the file of that
// name in its folder, then goes on as a test says.
class ReaderTest : public DatabaseTest {
 protected:
  ReaderTest() : database_(Made(JetBytes(SampleDatabase(3)))) {
    Say("tables", Name("T") + kEnd);
    Say("fields", Name("A") + Name("B") + kEnd);
  }

  void Say(const std::string& question, const std::string& bytes) {
    std::filesystem::remove(folder.File(question));
    WriteFile(folder.File(question), bytes);
  }

  // `lines` run before and after the answer to the question `rows`.
  void Install(const std::string& before, const std::string& after,
               std::chrono::milliseconds silence = std::chrono::seconds(10)) {
    const std::string path = folder.File("reader");
    const std::string cat = "cat '" + folder.Path() + "/'$1\n";
    const std::string script = "#!/bin/sh\ncd '" + folder.Path() + "'\nif [ $1 != rows ]; then " +
                               cat + "exit\nfi\n" + before + "\n" + cat + after + "\n";
    WriteFile(path, script);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    SetDatabaseEngine(MakeDatabaseEngine({.path = path, .silence = silence}));
  }

  std::unique_ptr<Recordset> OpenRows() {
    return Open(database_)->OpenRecordset("SELECT * FROM T");
  }
  int FaultOfRows() {
    return FaultOf([&] { OpenRows(); });
  }

  std::string database_;
};

TEST_F(ReaderTest, SaysWhatItIsAsked) {
  Say("rows", Name("A") + Name("B") + Row({DecimalValue{"7"}, std::string("x")}) + kEnd);
  Install("", "");
  EXPECT_EQ(RestOf(*OpenRows()), (Rows{{"7", "x"}}));
  EXPECT_EQ(Open(database_)->FieldNames("T"), (std::vector<std::string>{"A", "B"}));
}

TEST_F(ReaderTest, ThatIsMissingFaultsAndIsNamed) {
  SetDatabaseEngine(MakeDatabaseEngine({.path = folder.File("nowhere")}));
  try {
    Open(database_);
    ADD_FAILURE() << "nothing was started";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.number, kDatabaseFault);
    EXPECT_NE(fault.description.find(folder.File("nowhere")), std::string::npos);
  }
}

TEST_F(ReaderTest, DeathBeforeAnyAnswerIsAFaultOfOpening) {
  Say("tables", "");
  Install("", "");
  EXPECT_EQ(FaultOfOpening(database_), kDatabaseFault);
}

TEST_F(ReaderTest, AnswerWithoutAnEndIsNone) {
  Say("tables", Name("T"));
  Install("", "");
  EXPECT_EQ(FaultOfOpening(database_), kDatabaseFault);
}

TEST_F(ReaderTest, DatabaseWithoutTablesIsNone) {
  Say("tables", kEnd);
  Install("", "");
  EXPECT_EQ(FaultOfOpening(database_), kDatabaseFault);
}

TEST_F(ReaderTest, CrashInTheMiddleFaultsAtTheRowThatIsMissing) {
  Say("rows", Name("A") + Row({std::string("1")}) + Row({std::string("2")}));
  Install("", "kill -SEGV $$");
  const auto rows = OpenRows();
  rows->MoveNext();
  EXPECT_EQ(rows->Value(0), "2");
  EXPECT_EQ(FaultOf([&] { rows->MoveNext(); }), kDatabaseFault);
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(FaultOf([&] { rows->MoveLast(); }), kDatabaseFault);
  rows->MoveFirst();
  EXPECT_EQ(rows->Value(0), "1") << "what can be read can be read again";
}

TEST_F(ReaderTest, SilenceIsAFault) {
  Say("rows", Name("A") + Row({std::string("1")}));
  Install("", "exec sleep 1000", std::chrono::milliseconds(300));
  const auto rows = OpenRows();
  EXPECT_EQ(FaultOf([&] { rows->MoveNext(); }), kDatabaseFault);
}

TEST_F(ReaderTest, SilenceFromTheStartIsAFaultOfOpening) {
  Install("exec sleep 1000", "", std::chrono::milliseconds(300));
  EXPECT_EQ(FaultOfRows(), kDatabaseFault);
}

TEST_F(ReaderTest, NonsenseIsAFault) {
  const std::string row = Row({std::string("1")});
  for (const std::string& answer :
       {std::string("Segmentation fault (core dumped)"), Name("A") + std::string(100, '\0'),
        Name("A") + FrameBytes(FrameKind::kRow, "?") + kEnd,
        Name("A") + Name("B") + row + kEnd,  // fewer values than fields
        row + kEnd}) {                       // more
    Say("rows", answer);
    Install("", "");
    EXPECT_EQ(FaultOfRows(), kDatabaseFault) << answer;
  }
}

TEST_F(ReaderTest, NameAmongTheRowsIsAFault) {
  Say("rows", Name("A") + Row({std::string("1")}) + Name("B") + kEnd);
  Install("", "");
  const auto rows = OpenRows();
  EXPECT_EQ(FaultOf([&] { rows->MoveNext(); }), kDatabaseFault);
}

TEST_F(ReaderTest, LinkedTableAmongTheFieldsIsAFault) {
  Say("fields", Name("A") + FrameBytes(FrameKind::kLinked, "B") + kEnd);
  Install("", "");
  EXPECT_EQ(FaultOf([&] { Open(database_)->FieldNames("T"); }), kDatabaseFault);
}

TEST_F(ReaderTest, RowAmongTheNamesIsAFault) {
  Say("tables", Name("T") + Row({std::string("1")}) + kEnd);
  Install("", "");
  EXPECT_EQ(FaultOfOpening(database_), kDatabaseFault);
}

TEST_F(ReaderTest, RowsWaitInThePipeUntilTheyAreWanted) {
  std::string answer = Name("A");
  for (int i = 0; i < 100000; ++i) answer += Row({std::string(100, 'x')});
  Say("rows", answer + kEnd);
  Install("", ": > done");
  const auto rows = OpenRows();
  for (int i = 0; i < 10; ++i) rows->MoveNext();
  EXPECT_FALSE(FileExists(folder.File("done"))) << "ten megabytes have nowhere to go";
  rows->MoveLast();
  EXPECT_EQ(rows->RecordCount(), 100000);
}

TEST_F(ReaderTest, GoingBackAsksAnew) {
  Say("rows", Name("A") + Row({std::string("1")}) + Row({std::string("2")}) + kEnd);
  Install("echo >> asked", "");
  const auto rows = OpenRows();
  rows->MoveFirst();
  EXPECT_EQ(FileLength(folder.File("asked")), 1) << "it stands there already";
  rows->MoveLast();
  rows->MoveFirst();
  rows->MoveNext();
  EXPECT_EQ(rows->Value(0), "2");
  EXPECT_EQ(FileLength(folder.File("asked")), 2);
}

// The answer comes only when an event of the window has run while it is waited for.
TEST_F(ReaderTest, WindowsLiveWhileItIsWaitedFor) {
  int argc = 1;
  char name[] = "test";
  char* argv[] = {name, nullptr};
  const QCoreApplication application(argc, argv);
  Say("rows", Name("A") + Row({std::string("1")}) + kEnd);
  Install("while [ ! -e painted ]; do sleep 0.05; done", "");
  const auto database = Open(database_);
  QTimer::singleShot(0, [&] { WriteFile(folder.File("painted"), "x"); });
  EXPECT_EQ(RestOf(*database->OpenRecordset("SELECT * FROM T")), (Rows{{"1"}}));
}

TEST_F(ReaderTest, HangingReaderIsEndedWithItsRecordset) {
  Say("rows", Name("A") + Row({std::string("1")}));
  Install("", "exec sleep 1000");
  OpenRows().reset();
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "it is gone, not only forgotten";
}

}  // namespace
}  // namespace tagwright
