#include "support/jet_writer.h"

#include <array>
#include <bit>
#include <cstddef>
#include <numeric>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr std::size_t kMapPage = 1;
constexpr std::size_t kCataloguePage = 2;
constexpr std::size_t kMapBytes = 64;  // a bit for each page

void Require(bool fits, const char* what) {
  if (!fits) throw std::logic_error(what);
}

template <class Number>
void Put(std::string& out, std::size_t at, Number value, std::size_t count = sizeof(Number)) {
  if (out.size() < at + count) out.resize(at + count);
  for (std::size_t i = 0; i < count; ++i) {
    out[at + i] = static_cast<char>(static_cast<std::uint64_t>(value) >> 8 * i);
  }
}

template <class Number>
void Append(std::string& out, Number value, std::size_t count = sizeof(Number)) {
  Put(out, out.size(), value, count);
}

std::string Utf16(std::string_view text) {
  std::string out;
  for (const char32_t c : Characters(text)) {
    Require(c < 0x10000, "character beyond two bytes");
    Append(out, static_cast<std::uint16_t>(c));
  }
  return out;
}

// --- one file -----------------------------------------------------------------------------------

class JetWriter {
 public:
  explicit JetWriter(const JetDatabase& database) : database_(database) {}
  std::string Bytes();

 private:
  bool IsThree() const { return database_.version == 3; }
  std::size_t PageSize() const { return IsThree() ? 2048 : 4096; }
  std::string Encoded(std::string_view text) const;

  std::size_t AddPage(std::string bytes);
  std::size_t AddDataPage(const std::string& owner, const std::vector<std::string>& rows);
  std::string Header() const;
  JetTable Catalogue() const;
  void FillTable(const JetTable& table, std::size_t page, std::size_t number);
  std::string Definition(const JetTable& table, std::size_t number) const;
  void PutColumn(std::string& out, const JetColumn& column, std::size_t number, std::size_t fixed,
                 std::size_t variable) const;

  std::string Row(const JetTable& table, const std::vector<JetCell>& cells);
  std::string Stored(const JetColumn& column, const JetCell& cell);
  std::string Memo(std::string_view bytes);

  const JetDatabase& database_;
  std::vector<std::string> pages_;
  std::vector<std::string> maps_;
};

std::string JetWriter::Encoded(std::string_view text) const {
  return IsThree() ? ToCodePage(text) : Utf16(text);
}

// --- pages ---

std::size_t JetWriter::AddPage(std::string bytes) {
  Require(bytes.size() <= PageSize(), "page too full");
  bytes.resize(PageSize());
  pages_.push_back(std::move(bytes));
  return pages_.size() - 1;
}

// Rows stand from the end of the page downwards. `owner` is the table's page as four bytes.
std::size_t JetWriter::AddDataPage(const std::string& owner, const std::vector<std::string>& rows) {
  std::string page("\1\1\0\0", 4);
  page += owner;
  if (!IsThree()) Append(page, std::uint32_t{0});
  Append(page, static_cast<std::uint16_t>(rows.size()));
  std::size_t start = PageSize();
  for (const std::string& row : rows) {
    start -= row.size();
    Append(page, static_cast<std::uint16_t>(start));
  }
  Require(page.size() <= start, "rows do not fit on their page");
  page.resize(start);
  for (std::size_t i = rows.size(); i-- > 0;) page += rows[i];
  return AddPage(std::move(page));
}

std::string PageNumber(std::size_t page) {
  std::string out;
  Append(out, static_cast<std::uint32_t>(page));
  return out;
}

// --- header ---

void MaskWithRc4(std::string& bytes, std::size_t start, std::size_t count) {
  constexpr std::array<unsigned char, 4> kKey = {0xC7, 0xDA, 0x39, 0x6B};
  std::array<int, 256> box{};
  std::iota(box.begin(), box.end(), 0);
  for (int i = 0, j = 0; i < 256; ++i) {
    j = (j + box[static_cast<std::size_t>(i)] + kKey[static_cast<std::size_t>(i % 4)]) % 256;
    std::swap(box[static_cast<std::size_t>(i)], box[static_cast<std::size_t>(j)]);
  }
  int i = 0, j = 0;
  for (std::size_t k = start; k < start + count; ++k) {
    i = (i + 1) % 256;
    int& first = box[static_cast<std::size_t>(i)];
    j = (j + first) % 256;
    int& second = box[static_cast<std::size_t>(j)];
    std::swap(first, second);
    bytes[k] = static_cast<char>(static_cast<unsigned char>(bytes[k]) ^
                                 box[static_cast<std::size_t>((first + second) % 256)]);
  }
}

std::string JetWriter::Header() const {
  std::string page("\0\1\0\0Standard Jet DB\0", 20);
  page.resize(PageSize());
  page[0x14] = IsThree() ? 0 : 1;
  Put(page, 0x3C, std::uint16_t{1252});
  Put(page, 0x72, std::bit_cast<std::uint64_t>(database_.created));
  std::string password = Encoded(database_.password);
  Require(password.size() <= (IsThree() ? 20U : 40U), "password too long");
  password.resize(IsThree() ? 20 : 40);
  const auto days = static_cast<std::uint32_t>(static_cast<std::int32_t>(database_.created));
  for (std::size_t i = 0; i < password.size(); ++i) {
    const unsigned mask = IsThree() ? 0 : days >> 8 * (i % 4) & 0xFF;
    page[0x42 + i] = static_cast<char>(static_cast<unsigned char>(password[i]) ^ mask);
  }
  MaskWithRc4(page, 0x18, IsThree() ? 126 : 128);
  return page;
}

// --- tables ---

bool IsFixed(JetType type) {
  return type != JetType::kText && type != JetType::kMemo && type != JetType::kBinary &&
         type != JetType::kOle;
}

std::size_t FixedBytes(JetType type) {
  switch (type) {
    case JetType::kByte:
      return 1;
    case JetType::kInteger:
      return 2;
    case JetType::kLong:
    case JetType::kSingle:
      return 4;
    case JetType::kCurrency:
    case JetType::kDouble:
    case JetType::kDate:
      return 8;
    case JetType::kGuid:
      return 16;
    case JetType::kNumeric:
      return 17;
    default:
      return 0;
  }
}

std::size_t CountVariable(const JetTable& table) {
  std::size_t count = 0;
  for (const JetColumn& column : table.columns) count += IsFixed(column.type) ? 0 : 1;
  Require(count > 0, "table without text");
  return count;
}

void JetWriter::PutColumn(std::string& out, const JetColumn& column, std::size_t number,
                          std::size_t fixed, std::size_t variable) const {
  constexpr unsigned char kFixed = 1;
  constexpr unsigned char kMayBeNull = 2;
  constexpr unsigned char kPrecision = 28;
  std::string entry(IsThree() ? 18 : 25, '\0');
  entry[0] = static_cast<char>(column.type);
  const std::size_t numbers = IsThree() ? 1 : 5;
  Put(entry, numbers, static_cast<std::uint16_t>(number));
  Put(entry, numbers + 2, static_cast<std::uint16_t>(variable));
  Put(entry, numbers + 4, static_cast<std::uint16_t>(number));
  if (column.type == JetType::kNumeric) {
    const std::size_t precision = IsThree() ? 9 : 11;
    Put(entry, precision, kPrecision);
    Put(entry, precision + 1, static_cast<unsigned char>(column.scale));
  }
  Put(entry, IsThree() ? 13 : 15,
      static_cast<unsigned char>(IsFixed(column.type) ? kFixed | kMayBeNull : kMayBeNull));
  Put(entry, IsThree() ? 14 : 21, static_cast<std::uint16_t>(fixed));
  const std::size_t size = IsFixed(column.type) ? FixedBytes(column.type) : 255;
  Put(entry, IsThree() ? 16 : 23, column.stated_size.value_or(static_cast<std::uint16_t>(size)));
  out += entry;
}

// `number` is the table's place among the maps of pages.
std::string JetWriter::Definition(const JetTable& table, std::size_t number) const {
  std::string page(IsThree() ? 43 : 63, '\0');
  const auto rows = static_cast<std::uint32_t>(table.stated_rows.value_or(table.rows.size()));
  const auto columns = static_cast<std::uint16_t>(table.columns.size());
  const auto map = static_cast<std::uint32_t>(kMapPage << 8 | number);
  page[0] = 2;
  page[1] = 1;
  Put(page, IsThree() ? 12 : 16, rows);
  const std::size_t counts = IsThree() ? 20 : 40;
  page[counts] = 'N';
  Put(page, counts + 1, columns);
  Put(page, counts + 3, static_cast<std::uint16_t>(CountVariable(table)));
  Put(page, counts + 5, columns);
  Put(page, IsThree() ? 35 : 55, map);
  Put(page, IsThree() ? 39 : 59, map);
  std::size_t fixed = 0, variable = 0;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const JetType type = table.columns[i].type;
    PutColumn(page, table.columns[i], i, fixed, variable);
    fixed += FixedBytes(type);
    variable += IsFixed(type) ? 0 : 1;
  }
  for (const JetColumn& column : table.columns) {
    const std::string name = Encoded(column.name);
    Append(page, name.size(), IsThree() ? 1 : 2);
    page += name;
  }
  Put(page, 8, static_cast<std::uint32_t>(page.size() - 8));
  return page;
}

// Writes the rows, then the definition at `page`, which has been kept free for it.
void JetWriter::FillTable(const JetTable& table, std::size_t page, std::size_t number) {
  constexpr std::size_t kPageHead = 16;
  std::string map(5 + kMapBytes, '\0');
  std::vector<std::string> rows;
  std::size_t used = kPageHead;
  const auto flush = [&] {
    const std::size_t at = AddDataPage(PageNumber(page), std::exchange(rows, {}));
    Require(at < 8 * kMapBytes, "too many pages");
    map[5 + at / 8] = static_cast<char>(static_cast<unsigned char>(map[5 + at / 8]) | 1 << at % 8);
    used = kPageHead;
  };
  for (const std::vector<JetCell>& cells : table.rows) {
    std::string row = Row(table, cells);
    if (used + row.size() + 2 > PageSize()) flush();
    used += row.size() + 2;
    rows.push_back(std::move(row));
  }
  if (!rows.empty()) flush();
  maps_[number] = map;
  pages_[page] = Definition(table, number);
  Require(pages_[page].size() <= PageSize(), "definition too long");
  pages_[page].resize(PageSize());
}

// --- rows ---

std::string Numeric(std::int64_t value) {
  const auto magnitude = static_cast<std::uint64_t>(value < 0 ? -value : value);
  std::string out(1, value < 0 ? '\x80' : '\0');
  out.append(8, '\0');  // four words, the highest first, each with its lowest byte first
  Append(out, static_cast<std::uint32_t>(magnitude >> 32));
  Append(out, static_cast<std::uint32_t>(magnitude));
  return out;
}

// Short texts stand in the field, longer ones on a page of their own, long ones in a chain of such.
std::string JetWriter::Memo(std::string_view bytes) {
  constexpr std::size_t kInField = 40;
  constexpr std::size_t kInOnePiece = 1000;
  std::string field;
  const auto put = [&](std::uint32_t mark, std::size_t page) {
    Append(field, static_cast<std::uint32_t>(bytes.size()) | mark);
    Append(field, static_cast<std::uint32_t>(page << 8));
    Append(field, std::uint32_t{0});
  };
  if (bytes.size() <= kInField) {
    put(0x80000000, 0);
    return field + std::string(bytes);
  }
  if (bytes.size() <= kInOnePiece) {
    put(0x40000000, AddDataPage("LVAL", {std::string(bytes)}));
    return field;
  }
  std::uint32_t next = 0;
  std::size_t page = 0;
  for (std::size_t end = bytes.size(); end > 0;) {
    const std::size_t start = (end - 1) / kInOnePiece * kInOnePiece;
    std::string piece;
    Append(piece, next);
    piece += bytes.substr(start, end - start);
    page = AddDataPage("LVAL", {piece});
    next = static_cast<std::uint32_t>(page << 8);
    end = start;
  }
  put(0, page);
  return field;
}

std::string JetWriter::Stored(const JetColumn& column, const JetCell& cell) {
  if (const auto* number = std::get_if<std::int64_t>(&cell)) {
    if (column.type == JetType::kNumeric) return Numeric(*number);
    std::string out;
    Append(out, *number, FixedBytes(column.type));
    return out;
  }
  if (const auto* real = std::get_if<double>(&cell)) {
    std::string out;
    if (column.type == JetType::kSingle)
      Append(out, std::bit_cast<std::uint32_t>(static_cast<float>(*real)));
    else
      Append(out, std::bit_cast<std::uint64_t>(*real));
    return out;
  }
  const auto* text = std::get_if<std::string>(&cell);
  if (text == nullptr) return std::string(FixedBytes(column.type), '\0');
  if (column.type == JetType::kText) return Encoded(*text);
  if (column.type == JetType::kMemo) return Memo(Encoded(*text));
  if (column.type == JetType::kOle) return Memo(*text);
  return *text;
}

bool IsSet(const JetCell& cell) {
  const bool* boolean = std::get_if<bool>(&cell);
  return boolean != nullptr ? *boolean : !std::holds_alternative<std::monostate>(cell);
}

std::string JetWriter::Row(const JetTable& table, const std::vector<JetCell>& cells) {
  Require(cells.size() == table.columns.size(), "row of another length than its table");
  const std::size_t wide = IsThree() ? 1 : 2;  // bytes of a count or place within the row
  std::string row;
  Append(row, cells.size(), wide);
  std::string mask((cells.size() + 7) / 8, '\0');
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (IsSet(cells[i])) mask[i / 8] = static_cast<char>(mask[i / 8] | 1 << i % 8);
    if (IsFixed(table.columns[i].type)) row += Stored(table.columns[i], cells[i]);
  }
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (IsFixed(table.columns[i].type)) continue;
    places.push_back(row.size());
    if (IsSet(cells[i])) row += Stored(table.columns[i], cells[i]);
  }
  places.push_back(row.size());
  for (std::size_t i = places.size(); i-- > 0;) Append(row, places[i], wide);
  Append(row, places.size() - 1, wide);
  row += mask;
  Require(!IsThree() || row.size() <= 256, "row too long");
  return row;
}

// --- the whole ---

// The page of the i-th table, after header, maps and catalogue.
std::size_t TablePage(std::size_t i) { return kCataloguePage + 1 + i; }

JetTable JetWriter::Catalogue() const {
  JetTable table{"MSysObjects",
                 {{"Id", JetType::kLong},
                  {"ParentId", JetType::kLong},
                  {"Name", JetType::kText},
                  {"Type", JetType::kInteger},
                  {"Flags", JetType::kLong}},
                 {}};
  const auto add = [&](std::size_t page, const std::string& name, std::int64_t type,
                       std::int64_t flags) {
    table.rows.push_back(
        {static_cast<std::int64_t>(page), std::int64_t{0x0F000001}, name, type, flags});
  };
  add(kCataloguePage, table.name, 1, std::int64_t{-0x80000000LL});
  for (const JetObject& other : database_.others) add(0x10000, other.name, other.type, 0);
  for (std::size_t i = 0; i < database_.tables.size(); ++i) {
    add(TablePage(i), database_.tables[i].name, 1, 0);
  }
  return table;
}

std::string JetWriter::Bytes() {
  const std::size_t tables = database_.tables.size();
  pages_.resize(TablePage(tables), std::string(PageSize(), '\0'));
  maps_.resize(tables + 1);
  FillTable(Catalogue(), kCataloguePage, 0);
  for (std::size_t i = 0; i < tables; ++i) FillTable(database_.tables[i], TablePage(i), i + 1);
  pages_[0] = Header();
  AddDataPage(PageNumber(1), maps_);
  pages_[kMapPage] = std::move(pages_.back());
  pages_.pop_back();
  std::string bytes;
  for (const std::string& page : pages_) bytes += page;
  return bytes;
}

}  // namespace

std::string JetBytes(const JetDatabase& database) { return JetWriter(database).Bytes(); }

}  // namespace tagwright
