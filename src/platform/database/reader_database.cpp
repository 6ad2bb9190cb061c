#include "platform/database/reader_database.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/database/jet_header.h"
#include "platform/database/reader_protocol.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

// --- answers ------------------------------------------------------------------------------------

// All names that an answer consists of.
std::vector<std::string> NamesOf(const ReaderProgram& program, std::vector<std::string> question) {
  ReaderProcess reader(program, std::move(question));
  std::vector<std::string> names;
  while (std::optional<Frame> frame = reader.Next()) {
    if (frame->kind != FrameKind::kName) RaiseFault(kDatabaseFault);
    names.push_back(std::move(frame->content));
  }
  return names;
}

// The tables of an answer, linked ones among them.
struct Tables {
  std::vector<std::string> names;
  std::vector<std::string> linked;  // those of the names that lie in other files
};

Tables TablesOf(const ReaderProgram& program, const std::string& path) {
  ReaderProcess reader(program, {"tables", path});
  Tables tables;
  while (std::optional<Frame> frame = reader.Next()) {
    if (frame->kind == FrameKind::kRow) RaiseFault(kDatabaseFault);
    if (frame->kind == FrameKind::kLinked) tables.linked.push_back(frame->content);
    tables.names.push_back(std::move(frame->content));
  }
  return tables;
}

// --- rows ---------------------------------------------------------------------------------------

class ReaderRecordset : public Recordset {
 public:
  ReaderRecordset(ReaderProgram program, std::vector<std::string> question)
      : program_(std::move(program)), question_(std::move(question)) {
    Restart();
  }

  std::int32_t RecordCount() override { return count_; }
  void MoveFirst() override;
  void MoveLast() override;
  void MoveNext() override;
  bool Eof() override { return eof_; }
  int FieldCount() override { return static_cast<int>(fields_); }
  std::optional<std::string> Value(int index) override;

 private:
  void Restart();
  void TakeRow(const Frame& frame);
  bool Advance();

  ReaderProgram program_;
  std::vector<std::string> question_;
  std::unique_ptr<ReaderProcess> reader_;
  std::size_t fields_ = 0;
  std::vector<StoredValue> row_;  // under the cursor; past the end the last one
  std::int32_t number_ = 0;       // of that row, from 1; 0 without any
  std::int32_t count_ = 0;
  bool eof_ = true;
};

// Asks anew and goes to the first row, if there is one.
void ReaderRecordset::Restart() {
  reader_.reset();
  eof_ = true;
  fields_ = 0;
  number_ = 0;
  reader_ = std::make_unique<ReaderProcess>(program_, question_);
  std::optional<Frame> frame = reader_->Next();
  for (; frame && frame->kind == FrameKind::kName; frame = reader_->Next()) ++fields_;
  if (frame) TakeRow(*frame);
}

void ReaderRecordset::TakeRow(const Frame& frame) {
  if (frame.kind != FrameKind::kRow) RaiseFault(kDatabaseFault);
  row_ = RowValues(frame.content);
  if (row_.size() != fields_) RaiseFault(kDatabaseFault);
  count_ = std::max(count_, ++number_);
  eof_ = false;
}

// To the next row: whether there is one. After a fault there is nothing more to come.
bool ReaderRecordset::Advance() {
  eof_ = true;
  const std::optional<Frame> frame = reader_->Next();
  if (frame) TakeRow(*frame);
  return !eof_;
}

// On the first row already, it stays there.
void ReaderRecordset::MoveFirst() {
  if (number_ == 0) RaiseFault(kDatabaseFault);
  if (number_ == 1 && !eof_) return;
  Restart();
}

void ReaderRecordset::MoveLast() {
  if (number_ == 0) RaiseFault(kDatabaseFault);
  while (Advance()) continue;
  eof_ = false;
}

void ReaderRecordset::MoveNext() {
  if (eof_) RaiseFault(kDatabaseFault);
  Advance();
}

std::optional<std::string> ReaderRecordset::Value(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= fields_) RaiseFault(kOutOfBounds);
  if (eof_) RaiseFault(kDatabaseFault);
  return TextOf(row_[static_cast<std::size_t>(index)]);
}

// --- the file -----------------------------------------------------------------------------------

class ReaderDatabase : public Database {
 public:
  ReaderDatabase(ReaderProgram program, std::string path)
      : program_(std::move(program)), path_(std::move(path)), tables_(TablesOf(program_, path_)) {
    if (tables_.names.empty()) RaiseFault(kDatabaseFault);  // a catalogue lists at least itself
  }

  std::vector<std::string> TableNames() override { return tables_.names; }

  std::vector<std::string> FieldNames(const std::string& table) override {
    return NamesOf(program_, {"fields", path_, Existing(table)});
  }

  std::unique_ptr<Recordset> OpenRecordset(const std::string& source) override {
    return std::make_unique<ReaderRecordset>(
        program_, std::vector<std::string>{"rows", path_, Existing(TableOfSource(source))});
  }

 private:
  // The table that `name` means: this one, or the first that differs only in case.
  const std::string& Existing(const std::string& name) const {
    const std::vector<std::string>& names = tables_.names;
    auto table = std::find(names.begin(), names.end(), name);
    if (table == names.end()) {
      table = std::find_if(names.begin(), names.end(), [&](const std::string& other) {
        return EqualIgnoringCase(other, name);
      });
    }
    if (table == names.end()) RaiseFault(kDatabaseFault);
    if (std::find(tables_.linked.begin(), tables_.linked.end(), *table) != tables_.linked.end()) {
      RaiseFault(kLinkedTable);
    }
    return *table;
  }

  ReaderProgram program_;
  std::string path_;
  Tables tables_;
};

// What goes wrong with reading the header is no readable database; only a missing file keeps its
// own number.
JetHeader HeaderOf(const std::string& path) {
  if (!FileExists(path)) RaiseFault(kFileNotFound);
  std::string bytes;
  CarryOn([&] { bytes = ReadFileStart(path, kJetHeaderBytes); });
  const std::optional<JetHeader> header = ReadJetHeader(bytes);
  if (!header) RaiseFault(kDatabaseFault);
  return *header;
}

std::string PasswordIn(const std::string& connect) {
  constexpr std::string_view kMark = ";PWD=";
  return connect.starts_with(kMark) ? connect.substr(kMark.size()) : "";
}

std::unique_ptr<Database> Open(const ReaderProgram& program, const std::string& path,
                               const std::string& connect) {
  const std::string file = ResolvePath(path);
  if (!OpensWith(HeaderOf(file), PasswordIn(connect))) RaiseFault(kPasswordNeeded);
  return std::make_unique<ReaderDatabase>(program, file);
}

}  // namespace

DatabaseEngine MakeReaderEngine(const ReaderProgram& reader) {
  return [reader](const std::string& path, const std::string& connect) {
    return Open(reader, path, connect);
  };
}

}  // namespace tagwright
