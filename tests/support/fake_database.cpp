#include "support/fake_database.h"

#include <algorithm>
#include <cctype>
#include <memory>

#include "platform/faults/fault.h"

namespace tagwright {
namespace {

class FakeRecordset : public Recordset {
 public:
  FakeRecordset(FakeDatabases& all, const FakeTable& table) : all_(all), table_(table) {}
  std::int32_t RecordCount() override {
    Check();
    return static_cast<std::int32_t>(met_);
  }
  void MoveFirst() override { MoveTo("first", 0); }
  void MoveLast() override { MoveTo("last", table_.rows.size() - 1); }
  void MoveNext() override {
    if (Eof()) RaiseFault(kDatabaseFault);
    ++at_;
    Meet();
  }
  bool Eof() override {
    Check();
    return at_ >= table_.rows.size();
  }
  int FieldCount() override { return static_cast<int>(table_.fields.size()); }
  std::optional<std::string> Value(int index) override {
    if (Eof()) RaiseFault(kDatabaseFault);
    return table_.rows[at_].at(static_cast<std::size_t>(index));
  }

 private:
  void Check() const {
    if (all_.rows_fail) RaiseFault(kDatabaseFault);
  }
  void MoveTo(const char* what, std::size_t row) {
    Check();
    all_.log.emplace_back(what);
    if (table_.rows.empty()) RaiseFault(kDatabaseFault);
    at_ = row;
    Meet();
  }
  void Meet() { met_ = std::max(met_, std::min(at_ + 1, table_.rows.size())); }

  FakeDatabases& all_;
  const FakeTable& table_;
  std::size_t at_ = 0;
  std::size_t met_ = 0;  // how many rows the cursor has reached
};

bool IsPlainName(const std::string& name) {
  const auto plain = [](unsigned char c) { return std::isalnum(c) || c == '_'; };
  return !name.empty() && !std::isdigit(static_cast<unsigned char>(name[0])) &&
         std::all_of(name.begin(), name.end(), plain);
}

class FakeOpened : public Database {
 public:
  FakeOpened(FakeDatabases& all, const FakeFile& file) : all_(all), file_(file) {}
  std::vector<std::string> TableNames() override {
    std::vector<std::string> names;
    for (const FakeTable& table : file_.tables) names.push_back(table.name);
    return names;
  }
  std::vector<std::string> FieldNames(const std::string& table) override {
    if (all_.columns_fail) RaiseFault(kDatabaseFault);
    return Named(table).fields;
  }
  std::unique_ptr<Recordset> OpenRecordset(const std::string& source) override {
    all_.log.push_back("rows " + source);
    const std::string select = "SELECT * FROM ";
    if (!source.starts_with(select)) RaiseFault(kDatabaseFault);
    const std::string name = source.substr(select.size());
    if (!IsPlainName(name)) RaiseFault(kDatabaseFault);
    return std::make_unique<FakeRecordset>(all_, Named(name));
  }

 private:
  const FakeTable& Named(const std::string& name) const {
    for (const FakeTable& table : file_.tables) {
      if (table.name != name) continue;
      if (table.linked) RaiseFault(kLinkedTable);
      return table;
    }
    RaiseFault(kDatabaseFault);
  }

  FakeDatabases& all_;
  const FakeFile& file_;
};

}  // namespace

FakeDatabases::FakeDatabases() {
  SetDatabaseEngine([this](const std::string& path, const std::string& connect) {
    log.push_back("open " + path + " " + connect);
    const auto found = files.find(path);
    if (found == files.end()) RaiseFault(kFileNotFound);
    const FakeFile& file = found->second;
    if (file.damaged) RaiseFault(kDatabaseFault);
    if (!file.password.empty() && connect != ";PWD=" + file.password) RaiseFault(kPasswordNeeded);
    return std::make_unique<FakeOpened>(*this, file);
  });
}

FakeDatabases::~FakeDatabases() { SetDatabaseEngine(nullptr); }

}  // namespace tagwright
