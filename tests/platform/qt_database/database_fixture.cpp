#include "database_fixture.h"

#include "platform/files/files.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {

ReaderProgram BuiltReader() { return {.path = TAGWRIGHT_READER}; }

Rows RestOf(Recordset& rows) {
  Rows out;
  for (; !rows.Eof(); rows.MoveNext()) {
    out.emplace_back();
    for (int i = 0; i < rows.FieldCount(); ++i)
      out.back().push_back(rows.Value(i).value_or("null"));
  }
  return out;
}

std::string LongMemo() {
  std::string out;
  for (int i = 0; i < 400; ++i) out += "Zeile " + std::to_string(i) + " – Grüße\r\n";
  return out;
}

JetDatabase SampleDatabase(int version) {
  const std::vector<JetColumn> columns = {
      {"Id", JetType::kLong},          {"Name", JetType::kText},     {"InStock", JetType::kBoolean},
      {"Pieces", JetType::kByte},      {"Shelf", JetType::kInteger}, {"Price", JetType::kCurrency},
      {"Share", JetType::kSingle},     {"Weight", JetType::kDouble}, {"Since", JetType::kDate},
      {"Exact", JetType::kNumeric, 3}, {"Code", JetType::kGuid},     {"Remark", JetType::kMemo},
      {"Raw", JetType::kBinary},       {"Photo", JetType::kOle}};
  const std::string guid("\x33\x22\x11\x00\x55\x44\x77\x66\x88\x99\xAA\xBB\xCC\xDD\xEE\xFF", 16);
  const auto whole = [](std::int64_t value) { return JetCell(value); };
  JetDatabase database{.version = version};
  database.others = {
      {"Kunden gefiltert", 5}, {"Elsewhere", 6}, {"Served", 4}, {"Etiketten", -32764}};
  database.tables = {
      {"Items",
       columns,
       {{whole(1), "Grüße €", true, whole(255), whole(-32768), whole(140000), 0.15, 444.555,
         34654.0, whole(-1110554), guid, "short", "raw", "photo"},
        {whole(-2147483648), "", false, whole(0), whole(32767), whole(-5), -2.5, 1e21, 37947.75,
         whole(1500), guid, LongMemo(), "", std::string(2000, 'x')},
        std::vector<JetCell>(columns.size())}},
      {"Empty", {{"Column1", JetType::kText}, {"Column2", JetType::kLong}}, {}},
      {"Order Details", {{"Text", JetType::kText}}, {{"x"}}},
      {"Umsätze", {{"Straße", JetType::kText}}, {{"Müllerstraße"}}},
  };
  database.tables[0].rows[2][2] = false;
  return database;
}

DatabaseTest::DatabaseTest() {
  SetLocale({});
  SetCodePage(1252);
  SetDatabaseEngine(MakeDatabaseEngine(BuiltReader()));
}

DatabaseTest::~DatabaseTest() {
  SetDatabaseEngine(nullptr);
  SetLocale({});
}

std::string DatabaseTest::Made(const std::string& bytes, const std::string& name) {
  WriteFile(folder.File(name), bytes);
  return folder.File(name);
}

std::unique_ptr<Database> DatabaseTest::Open(const std::string& path, const std::string& connect) {
  return OpenDatabase(path, connect);
}

int DatabaseTest::FaultOfOpening(const std::string& path, const std::string& connect) {
  return FaultOf([&] { Open(path, connect); });
}

}  // namespace tagwright
