// Files with bytes changed, cut off or repeated. The library below crashes on some of them and
// never returns from others; whatever it does, the program gets an answer.
//
// There is no fuzz target for reading files in the reader's own process: the library's own crashes
// would be all that it finds. What comes out of the reader has one (tests/fuzz/database_fuzz.cpp).
#include <sys/wait.h>

#include <algorithm>
#include <cstdint>
#include <random>

#include "database_fixture.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

// How opened and read files ended.
struct Tally {
  int refused = 0;  // at opening
  int broken = 0;   // later
  int read = 0;     // to the end
};

class DamagedFilesTest : public DatabaseTest {
 protected:
  // Shorter than in the program, so that many hangs do not take the day.
  DamagedFilesTest() {
    ReaderProgram reader = BuiltReader();
    reader.silence = std::chrono::seconds(3);
    SetDatabaseEngine(MakeDatabaseEngine(reader));
  }

  // Opens `bytes` and reads one of its tables.
  void Try(const std::string& bytes, std::size_t choice, Tally& tally);

  Tally tally;
};

void ReadTable(Database& database, const std::string& name) {
  database.FieldNames(name);
  const auto rows = database.OpenRecordset("SELECT * FROM " + name);
  if (rows->Eof()) return;
  rows->MoveLast();
  rows->MoveFirst();
  for (int i = 0; i < rows->FieldCount(); ++i) rows->Value(i);
}

void DamagedFilesTest::Try(const std::string& bytes, std::size_t choice, Tally& counts) {
  std::filesystem::remove(folder.File("a.mdb"));
  std::unique_ptr<Database> database;
  const int opening = FaultOf([&] { database = Open(Made(bytes)); });
  if (opening != 0) {
    EXPECT_TRUE(opening == kDatabaseFault || opening == kPasswordNeeded) << opening;
    ++counts.refused;
    return;
  }
  const std::vector<std::string> tables = database->TableNames();
  ASSERT_FALSE(tables.empty());
  const int reading = FaultOf([&] { ReadTable(*database, tables[choice % tables.size()]); });
  EXPECT_TRUE(reading == 0 || reading == kDatabaseFault || reading == kLinkedTable) << reading;
  ++(reading == kDatabaseFault ? counts.broken : counts.read);
}

// One of several kinds of damage. The first page tells what the file is: seldom there.
std::string Damaged(std::string bytes, std::mt19937& random) {
  const auto below = [&](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  };
  const std::size_t first = below(10) == 0 ? 0 : std::min<std::size_t>(2048, bytes.size() - 1);
  const auto place = [&] { return first + below(bytes.size() - first); };
  switch (below(4)) {
    case 0:
      for (std::size_t n = 1 + below(64); n > 0; --n)
        bytes[place()] = static_cast<char>(below(256));
      return bytes;
    case 1:
      for (std::size_t n = 1 + below(8); n > 0; --n) {
        const std::size_t start = place();
        const std::size_t count = std::min(1 + below(512), bytes.size() - start);
        bytes.replace(start, count, count, static_cast<char>(below(2) == 0 ? 0xFF : 0));
      }
      return bytes;
    case 2:
      return bytes.substr(0, place());
    default: {
      const std::size_t count = std::min<std::size_t>(2048, bytes.size());
      const std::string page = bytes.substr(below(bytes.size() - count + 1), count);
      return bytes.replace(below(bytes.size() - count + 1), count, page);
    }
  }
}

std::vector<std::string> OwnFiles() {
  return {JetBytes(SampleDatabase(3)), JetBytes(SampleDatabase(4))};
}

// Ours and those that only some machines have, the largest one left out.
std::vector<std::string> AllFiles() {
  std::vector<std::string> files = OwnFiles();
  if (SharedDataFolder().empty()) return files;
  constexpr std::uintmax_t kLargest = 2 << 20;
  for (const auto& entry : std::filesystem::directory_iterator(SharedDataFolder() + "/mdb")) {
    if (entry.path().extension() != ".mdb" || entry.file_size() == 0) continue;
    if (entry.file_size() <= kLargest) files.push_back(ReadFile(entry.path().string()));
  }
  return files;
}

TEST_F(DamagedFilesTest, FileCutOffAtAPageOrWithinItIsAnswered) {
  const std::string whole = JetBytes(SampleDatabase(3));
  for (std::size_t page = 0; page * 2048 < whole.size(); ++page) {
    for (const std::size_t length : {page * 2048, page * 2048 + 1, page * 2048 + 1000}) {
      Try(whole.substr(0, length), page, tally);
    }
  }
  EXPECT_GT(tally.refused, 0);
  EXPECT_GT(tally.read + tally.broken, 0);
}

TEST_F(DamagedFilesTest, CatalogueThatPointsNowhereIsAnswered) {
  JetDatabase database = SampleDatabase(4);
  const std::string bytes = JetBytes(database);
  for (const std::size_t page : {1U, 2U}) {
    std::string wiped = bytes;
    wiped.replace(page * 4096, 4096, std::string(4096, '\0'));
    EXPECT_EQ(FaultOfOpening(Made(wiped)), kDatabaseFault) << "page " << page;
    std::filesystem::remove(folder.File("a.mdb"));
  }
}

TEST_F(DamagedFilesTest, MemoThatRunsInACircleEnds) {
  for (const int version : {3, 4}) {
    std::string bytes =
        JetBytes({.version = version,
                  .tables = {{"T", {{"Memo", JetType::kMemo}}, {{std::string(5000, 'm')}}}}});
    const std::size_t page_size = version == 3 ? 2048 : 4096;
    int pieces = 0;
    for (std::size_t page = 0; page * page_size < bytes.size(); ++page) {
      const std::size_t start = page * page_size;
      if (bytes.compare(start + 4, 4, "LVAL") != 0) continue;
      const std::size_t row = bytes.find('m', start);
      bytes[row - 3] = static_cast<char>(page);  // the next piece is this one
      ++pieces;
    }
    ASSERT_GE(pieces, 5);
    std::filesystem::remove(folder.File("a.mdb"));
    const Rows rows = RestOf(*Open(Made(bytes))->OpenRecordset("SELECT * FROM T"));
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_LE(rows[0][0].size(), 5000U);
    EXPECT_GE(rows[0][0].size(), 1000U);
  }
}

TEST_F(DamagedFilesTest, FortyMutationsAreAnswered) {
  std::mt19937 random(97);
  const std::vector<std::string> files = OwnFiles();
  for (std::size_t i = 0; i < 40; ++i) Try(Damaged(files[i % files.size()], random), i / 2, tally);
  EXPECT_GT(tally.refused + tally.broken, 0);
  EXPECT_GT(tally.read, 0);
}

TEST_F(DamagedFilesTest, Long_TwoThousandMutationsAreAnswered) {
  std::mt19937 random(2003);
  const std::vector<std::string> files = AllFiles();
  for (std::size_t i = 0; i < 2000; ++i) {
    Try(Damaged(files[i % files.size()], random), random(), tally);
  }
  EXPECT_GT(tally.refused, 50);
  EXPECT_GT(tally.broken, 20);
  EXPECT_GT(tally.read, 500);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "no reader is left behind";
  RecordProperty("refused", tally.refused);
  RecordProperty("broken", tally.broken);
  RecordProperty("read", tally.read);
}

}  // namespace
}  // namespace tagwright
