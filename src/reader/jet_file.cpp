#include "reader/jet_file.h"

#include <glib.h>  // before the next one, which takes it for C
#include <mdbtools.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "platform/database/jet_header.h"
#include "platform/faults/fault.h"
#include "platform/files/bytes.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

// The catalogue is a table of its own, always at the same place. The library's way to read it also
// takes every object's properties apart and never returns from some damaged ones; as a plain table
// it is only rows.
constexpr unsigned long kCataloguePage = 2;
constexpr const char* kCatalogueName = "MSysObjects";

// A row's place on its page, without the marks of moved and deleted rows.
constexpr int kRowStart = 0x1FFF;

using TableHandle = std::unique_ptr<MdbTableDef, decltype(&mdb_free_tabledef)>;
using FileHandle = std::unique_ptr<MdbHandle, decltype(&mdb_close)>;

// --- values -------------------------------------------------------------------------------------

// Text in the form that the version keeps: single bytes of the file's code page, or UTF-16, perhaps
// compressed.
std::string Decoded(MdbHandle* file, std::string_view stored) {
  if (stored.empty()) return {};
  constexpr std::size_t kMostBytesOfOne = 4;
  std::string out(stored.size() * kMostBytesOfOne + 1, '\0');
  const int length = mdb_unicode2ascii(file, stored.data(), stored.size(), out.data(), out.size());
  out.resize(static_cast<std::size_t>(std::max(length, 0)));
  return out;
}

// One piece of a memo: a row on a page of its own, by page and row number. Its place comes without
// the marks that other rows have in theirs.
std::string_view MemoPiece(MdbHandle* file, std::uint32_t page_and_row) {
  void* page = nullptr;
  int start = 0;
  std::size_t length = 0;
  if (mdb_find_pg_row(file, static_cast<int>(page_and_row), &page, &start, &length) != 0) return {};
  const auto page_size = static_cast<std::size_t>(file->fmt->pg_size);
  if (static_cast<std::size_t>(start) + length > page_size) return {};
  return {static_cast<const char*>(page) + start, length};
}

// A memo in pieces: each begins with the place of the next. A damaged chain may run in a circle,
// but never beyond the stated length.
std::string MemoChain(MdbHandle* file, std::uint32_t page_and_row, std::size_t length) {
  constexpr std::size_t kPlaceBytes = 4;
  std::string out;
  while (page_and_row != 0 && out.size() < length) {
    const std::string_view piece = MemoPiece(file, page_and_row);
    if (piece.size() <= kPlaceBytes) break;
    page_and_row = NumberAt<std::uint32_t>(piece);
    out += piece.substr(kPlaceBytes, length - out.size());
  }
  return out;
}

// What a memo's field says of it: length and place, the text itself behind them where it is short.
std::string Memo(MdbHandle* file, std::string_view stored) {
  constexpr std::uint32_t kInField = 0x80000000;
  constexpr std::uint32_t kInOnePiece = 0x40000000;
  constexpr std::size_t kPlace = 4;
  constexpr std::size_t kText = 12;
  if (stored.size() < kText) return {};
  const std::uint32_t marked = NumberAt<std::uint32_t>(stored);
  const std::size_t length = marked & ~(kInField | kInOnePiece);
  if ((marked & kInField) != 0) return Decoded(file, stored.substr(kText, length));
  const std::uint32_t place = NumberAt<std::uint32_t>(stored, kPlace);
  if ((marked & kInOnePiece) == 0) return Decoded(file, MemoChain(file, place, length));
  return Decoded(file, MemoPiece(file, place).substr(0, length));
}

std::string TakeText(char* text) {
  const std::unique_ptr<char, decltype(&g_free)> owner(text, g_free);
  return text == nullptr ? "" : text;
}

// Exact numbers come padded to their scale.
DecimalValue WithoutPadding(std::string digits) {
  if (digits.find('.') != std::string::npos) {
    digits.resize(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
  }
  if (digits == "-0") digits = "0";
  return {digits};
}

// The first three groups are numbers, little-endian; the last two single bytes.
std::string Guid(std::string_view stored) {
  constexpr std::size_t kBytes = 16;
  if (stored.size() < kBytes) return {};
  char out[40];
  int length = std::snprintf(
      out, sizeof out, "{%08X-%04X-%04X-", unsigned{NumberAt<std::uint32_t>(stored)},
      unsigned{NumberAt<std::uint16_t>(stored, 4)}, unsigned{NumberAt<std::uint16_t>(stored, 6)});
  for (std::size_t i = 8; i < kBytes; ++i) {
    length += std::snprintf(out + length, sizeof out - static_cast<std::size_t>(length),
                            i == 9 ? "%02X-" : "%02X", unsigned{NumberAt<std::uint8_t>(stored, i)});
  }
  return std::string(out) + "}";
}

// How many bytes a value of a fixed length has; 0 for the others.
std::size_t FixedLength(int type) {
  switch (type) {
    case MDB_BYTE:
      return 1;
    case MDB_INT:
      return 2;
    case MDB_LONGINT:
    case MDB_FLOAT:
    case MDB_COMPLEX:
      return 4;
    case MDB_MONEY:
    case MDB_DOUBLE:
    case MDB_DATETIME:
      return 8;
    case MDB_NUMERIC:
      return 17;
    default:
      return 0;
  }
}

// A value of the page in the file's buffer, at `start` and of `length` bytes that lie on the page.
StoredValue ValueAt(MdbHandle* file, const MdbColumn& column, int start, std::size_t length) {
  const std::string_view stored(reinterpret_cast<const char*>(file->pg_buf) + start, length);
  if (length < FixedLength(column.col_type)) return std::monostate{};
  switch (column.col_type) {
    case MDB_BYTE:
      return DecimalValue{std::to_string(mdb_pg_get_byte(file, start))};
    case MDB_INT:
      return DecimalValue{
          std::to_string(static_cast<std::int16_t>(NumberAt<std::uint16_t>(stored)))};
    case MDB_LONGINT:
    case MDB_COMPLEX:
      return DecimalValue{
          std::to_string(static_cast<std::int32_t>(NumberAt<std::uint32_t>(stored)))};
    case MDB_MONEY:
      return WithoutPadding(TakeText(mdb_money_to_string(file, start)));
    case MDB_NUMERIC:
      return WithoutPadding(
          TakeText(mdb_numeric_to_string(file, start, column.col_scale, column.col_prec)));
    case MDB_FLOAT:
      return mdb_pg_get_single(file, start);
    case MDB_DOUBLE:
      return mdb_pg_get_double(file, start);
    case MDB_DATETIME:
      return DateValue{mdb_pg_get_double(file, start)};
    case MDB_TEXT:
      return Decoded(file, stored);
    case MDB_MEMO:
      return Memo(file, stored);
    case MDB_REPID:
      return Guid(stored);
    default:
      return std::string();
  }
}

// A Boolean is in the map of nulls itself.
StoredValue ValueOf(MdbHandle* file, const MdbColumn& column, const MdbField& field) {
  if (column.col_type == MDB_BOOL) return field.is_null == 0;
  if (field.is_null != 0 || field.siz < 0 || field.start < 0 ||
      field.start + field.siz > file->fmt->pg_size) {
    return std::monostate{};
  }
  return ValueAt(file, column, field.start, static_cast<std::size_t>(field.siz));
}

// Linked to another file of this format, or to a database of another one. With the bits above them
// the same numbers stand for reports and the like.
bool IsLinked(std::uint32_t kind) {
  constexpr std::uint32_t kForeignDatabase = 4;
  return kind == MDB_LINKED_TABLE || kind == kForeignDatabase;
}

std::optional<std::uint32_t> WholeNumber(const StoredValue& value) {
  const auto* number = std::get_if<DecimalValue>(&value);
  if (number == nullptr) return std::nullopt;
  return static_cast<std::uint32_t>(std::strtol(number->digits.c_str(), nullptr, 10));
}

}  // namespace

// --- file and table -----------------------------------------------------------------------------

struct JetFile::Library {
  FileHandle file{nullptr, mdb_close};
  MdbCatalogEntry entry{};  // what the table refers to
  TableHandle table{nullptr, mdb_free_tabledef};

  const MdbColumn& Column(std::size_t i) const {
    return *static_cast<const MdbColumn*>(g_ptr_array_index(table->columns, i));
  }
};

struct JetFile::CatalogueEntry {
  Table table;
  unsigned long page;  // of a linked table none
};

JetFile::JetFile(const std::string& path) : library_(std::make_unique<Library>()) {
  if (!ReadJetHeader(ReadFileStart(path, kJetHeaderBytes))) RaiseFault(kDatabaseFault);
  library_->file.reset(mdb_open(path.c_str(), MDB_NOFLAGS));
  if (!library_->file) RaiseFault(kDatabaseFault);
}

JetFile::~JetFile() = default;

void JetFile::OpenPage(unsigned long page, const std::string& name) {
  Library& library = *library_;
  library.table.reset();
  library.entry = {};
  library.entry.mdb = library.file.get();
  library.entry.object_type = MDB_TABLE;
  library.entry.table_pg = page;
  name.copy(library.entry.object_name, MDB_MAX_OBJ_NAME);
  library.table.reset(mdb_read_table(&library.entry));
  if (!library.table || mdb_read_columns(library.table.get()) == nullptr) {
    RaiseFault(kDatabaseFault);
  }
  if (library.table->columns->len > MDB_MAX_COLS) RaiseFault(kDatabaseFault);
  // The library takes the header's count for the truth about an empty table.
  if (library.table->num_rows == 0) library.table->num_rows = 1;
  mdb_rewind_table(library.table.get());
}

void JetFile::ForEachTable(const std::function<void(const CatalogueEntry&)>& visit) {
  OpenPage(kCataloguePage, kCatalogueName);
  const std::vector<std::string> fields = FieldNames();
  const auto index = [&](const char* name) {
    const auto at = std::find(fields.begin(), fields.end(), name);
    if (at == fields.end()) RaiseFault(kDatabaseFault);
    return static_cast<std::size_t>(at - fields.begin());
  };
  const std::size_t id = index("Id"), name = index("Name"), type = index("Type");
  constexpr std::uint32_t kTypeBits = 0x7F;
  constexpr std::uint32_t kPageBits = 0xFFFFFF;
  std::vector<StoredValue> row;
  while (NextRow(row)) {
    const auto page = WholeNumber(row[id]), kind = WholeNumber(row[type]);
    const auto* text = std::get_if<std::string>(&row[name]);
    if (!page || !kind || text == nullptr) continue;
    const bool linked = IsLinked(*kind);
    if (!linked && (*kind & kTypeBits) != MDB_TABLE) continue;
    visit({{*text, linked}, *page & kPageBits});
  }
}

std::vector<JetFile::Table> JetFile::Tables() {
  std::vector<Table> tables;
  ForEachTable([&](const CatalogueEntry& entry) { tables.push_back(entry.table); });
  return tables;
}

void JetFile::OpenTable(const std::string& name) {
  std::optional<unsigned long> page;
  ForEachTable([&](const CatalogueEntry& entry) {
    if (!page && !entry.table.linked && entry.table.name == name) page = entry.page;
  });
  if (!page) RaiseFault(kDatabaseFault);
  OpenPage(*page, name);
}

std::vector<std::string> JetFile::FieldNames() const {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < library_->table->columns->len; ++i) {
    names.emplace_back(library_->Column(i).name);
  }
  return names;
}

// The library finds the row; taken apart once more it also tells null from empty text. It counts
// the row's fields, which are more where columns have been deleted, but fills in the table's.
bool JetFile::NextRow(std::vector<StoredValue>& row) {
  MdbTableDef* table = library_->table.get();
  MdbHandle* file = library_->file.get();
  if (mdb_fetch_row(table) == 0) return false;
  int start = 0;
  std::size_t length = 0;
  if (mdb_find_row(file, static_cast<int>(table->cur_row) - 1, &start, &length) != 0) return false;
  std::array<MdbField, MDB_MAX_COLS> fields{};
  if (mdb_crack_row(table, start & kRowStart, length, fields.data()) < 0) return false;
  row.clear();
  for (std::size_t i = 0; i < table->columns->len; ++i) {
    row.push_back(ValueOf(file, library_->Column(i), fields[i]));
  }
  return true;
}

}  // namespace tagwright
