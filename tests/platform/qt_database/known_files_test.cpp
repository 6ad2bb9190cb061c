// Files that real programs have written, against what two independent readers found in them.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>
#include <set>

#include "database_fixture.h"
#include "platform/text/locale.h"

namespace tagwright {
namespace {

std::string Folder() { return SharedDataFolder() + "/mdb"; }

QJsonObject Facts() {
  QFile file(QString::fromStdString(Folder() + "/facts.json"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QJsonDocument::fromJson(file.readAll()).object();
}

// A value of the facts as it shows here: currency without its padding, dates without a time that is
// midnight, Booleans as words, objects that nobody can print as nothing.
std::string Expected(const QJsonValue& value, const QString& type) {
  if (value.isNull()) return "null";
  QString text = value.toString();
  if (type == "Boolean") return text == "1" ? "True" : "False";
  if (type == "OLE" || type == "Binary") return "";
  if (type == "DateTime" && text.endsWith(" 00:00:00")) text.chop(9);
  if (type == "Currency" && text.contains('.')) {
    while (text.endsWith('0')) text.chop(1);
    if (text.endsWith('.')) text.chop(1);
  }
  return text.toStdString();
}

class KnownFilesTest : public DatabaseTest {
 protected:
  KnownFilesTest() {
    UserLocale locale;
    locale.short_date = "yyyy-MM-dd";
    locale.time = "HH:mm:ss";
    SetLocale(locale);
    if (!SharedDataFolder().empty()) facts_ = Facts();
  }
  bool IsAbsent() const { return facts_.isEmpty(); }

  std::unique_ptr<Database> OpenKnown(const std::string& name) {
    const QString password = facts_[QString::fromStdString(name)].toObject()["password"].toString();
    const std::string connect = password.isEmpty() ? "" : ";PWD=" + password.toStdString();
    return Open(Folder() + "/" + name, connect);
  }

  void ExpectTable(Database& database, const QJsonObject& table);
  void ExpectRow(const QJsonObject& table, const char* key, const std::vector<std::string>& row);

  QJsonObject facts_;
};

#define SKIP_WITHOUT_FILES() \
  if (IsAbsent()) GTEST_SKIP() << "the folder of known database files is not on this machine"

void KnownFilesTest::ExpectRow(const QJsonObject& table, const char* key,
                               const std::vector<std::string>& row) {
  const QJsonArray values = table[key].toArray(), columns = table["columns"].toArray();
  std::set<std::string> wrong;  // values that the first of the two readers got wrong
  for (const QJsonValue& differs : table["differs"].toArray()) {
    wrong.insert(differs.toArray()[2].toString().toStdString());
  }
  for (qsizetype i = 0; i < values.size(); ++i) {
    const std::string expected = Expected(values[i], columns[i].toArray()[1].toString());
    if (wrong.count(values[i].toString().toStdString()) > 0) continue;
    EXPECT_EQ(row[static_cast<std::size_t>(i)], expected)
        << key << " row, " << columns[i].toArray()[0].toString().toStdString();
  }
}

void KnownFilesTest::ExpectTable(Database& database, const QJsonObject& table) {
  const std::string name = table["name"].toString().toStdString();
  SCOPED_TRACE(name);
  std::vector<std::string> fields;
  for (const QJsonValue& column : table["columns"].toArray()) {
    fields.push_back(column.toArray()[0].toString().toStdString());
  }
  EXPECT_EQ(database.FieldNames(name), fields);
  std::unique_ptr<Recordset> rows;
  if (FaultOf([&] { rows = database.OpenRecordset("SELECT * FROM " + name); }) != 0) {
    EXPECT_TRUE(name == "Order Details" || name.starts_with("19 MB")) << "opens without quotes";
    return;
  }
  const Rows all = RestOf(*rows);
  ASSERT_EQ(static_cast<int>(all.size()), table["rows"].toInt());
  EXPECT_EQ(rows->RecordCount(), table["rows"].toInt());
  if (all.empty() || !table.contains("first")) return;
  ExpectRow(table, "first", all.front());
  if (table.contains("second") && all.size() > 1) ExpectRow(table, "second", all[1]);
  ExpectRow(table, "last", all.back());
  std::map<std::string, int> nulls, expected;
  for (const auto& row : all) {
    for (std::size_t i = 0; i < row.size(); ++i) nulls[fields[i]] += row[i] == "null" ? 1 : 0;
  }
  std::erase_if(nulls, [](const auto& count) { return count.second == 0; });
  const QJsonObject counts = table["nulls"].toObject();
  for (const QString& key : counts.keys()) expected[key.toStdString()] = counts[key].toInt();
  EXPECT_EQ(nulls, expected);
}

TEST_F(KnownFilesTest, TablesFieldsRowsAndNullsAreThoseOfTheFacts) {
  SKIP_WITHOUT_FILES();
  int files = 0;
  for (const QString& key : facts_.keys()) {
    const QJsonObject fact = facts_[key].toObject();
    if (fact["broken"].toBool()) continue;
    SCOPED_TRACE(key.toStdString());
    ++files;
    const auto database = OpenKnown(key.toStdString());
    std::vector<std::string> tables;
    for (const QJsonValue& table : fact["tables"].toArray()) {
      tables.push_back(table.toObject()["name"].toString().toStdString());
    }
    std::vector<std::string> names = database->TableNames();
    std::erase_if(names, [&](const std::string& name) {
      return FaultOf([&] { database->FieldNames(name); }) == kLinkedTable;
    });
    EXPECT_EQ(names, tables) << "the facts leave out linked tables";
    for (const QJsonValue& table : fact["tables"].toArray()) {
      ExpectTable(*database, table.toObject());
    }
  }
  EXPECT_EQ(files, 21);
}

TEST_F(KnownFilesTest, PasswordsAreAskedFor) {
  SKIP_WITHOUT_FILES();
  int guarded = 0;
  for (const QString& key : facts_.keys()) {
    if (facts_[key].toObject()["password"].toString().isEmpty()) continue;
    ++guarded;
    EXPECT_EQ(FaultOfOpening(Folder() + "/" + key.toStdString()), kPasswordNeeded);
    EXPECT_EQ(FaultOfOpening(Folder() + "/" + key.toStdString(), ";PWD=no"), kPasswordNeeded);
  }
  EXPECT_EQ(guarded, 3);
}

TEST_F(KnownFilesTest, DatesBeyondTheLibrarysOwnAreRight) {
  SKIP_WITHOUT_FILES();
  const Rows rows =
      RestOf(*OpenKnown("DateTestDatabase.mdb")->OpenRecordset("SELECT * FROM DateTest"));
  ASSERT_EQ(rows.size(), 6U);
  const auto dates = [&](std::size_t row) {
    return std::vector<std::string>(rows[row].begin() + 1, rows[row].begin() + 4);
  };
  EXPECT_EQ(dates(1), (std::vector<std::string>{"9999-01-01", "9999-01-01", "9999-01-01"}));
  EXPECT_EQ(dates(2), (std::vector<std::string>{"1898-01-01", "1899-01-01", "1900-01-01"}));
  EXPECT_EQ(dates(3), (std::vector<std::string>{"0632-01-01", "0633-01-01", "0634-01-01"}));
}

TEST_F(KnownFilesTest, LinkedTablesAreListedAndLieElsewhere) {
  SKIP_WITHOUT_FILES();
  const auto database = OpenKnown("linked.mdb");
  EXPECT_EQ(database->TableNames().size(), 7U);
  EXPECT_EQ(FaultOf([&] { database->OpenRecordset("SELECT * FROM table2"); }), kLinkedTable);
}

TEST_F(KnownFilesTest, BrokenOnesGiveAnAnswer) {
  SKIP_WITHOUT_FILES();
  for (const char* name : {"broken-short.mdb", "broken-text.mdb", "broken-empty.mdb"}) {
    EXPECT_EQ(FaultOfOpening(Folder() + "/" + name), kDatabaseFault) << name;
  }
  const auto database = OpenKnown("broken-truncated.mdb");
  EXPECT_EQ(database->TableNames().size(), 10U);
  const auto rows = database->OpenRecordset("SELECT * FROM MSP_PROJECTS");
  EXPECT_TRUE(rows->Eof());
  EXPECT_EQ(rows->RecordCount(), 0);
}

}  // namespace
}  // namespace tagwright
