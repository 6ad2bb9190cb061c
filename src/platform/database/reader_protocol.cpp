#include "platform/database/reader_protocol.h"

#include <cstdint>

#include "platform/faults/fault.h"
#include "platform/files/bytes.h"

namespace tagwright {
namespace {

constexpr std::size_t kLengthBytes = 4;

// --- writing ---

void PutText(std::string& out, char kind, std::string_view text) {
  out.push_back(kind);
  AppendNumber(out, static_cast<std::uint32_t>(text.size()));
  out += text;
}

struct ValueWriter {
  std::string& out;

  void operator()(std::monostate) const { out.push_back('0'); }
  void operator()(bool value) const { out.push_back(value ? 't' : 'f'); }
  void operator()(const DecimalValue& value) const { PutText(out, 'n', value.digits); }
  void operator()(float value) const {
    out.push_back('s');
    AppendSingle(out, value);
  }
  void operator()(double value) const {
    out.push_back('d');
    AppendDouble(out, value);
  }
  void operator()(const DateValue& value) const {
    out.push_back('D');
    AppendDouble(out, value.days);
  }
  void operator()(const std::string& value) const { PutText(out, '"', value); }
};

// --- reading ---

std::string_view Take(std::string_view& from, std::size_t count) {
  if (from.size() < count) RaiseFault(kDatabaseFault);
  const std::string_view taken = from.substr(0, count);
  from.remove_prefix(count);
  return taken;
}

std::size_t TakeLength(std::string_view& from) {
  return NumberAt<std::uint32_t>(Take(from, kLengthBytes));
}

std::string TakeText(std::string_view& from) {
  const std::size_t length = TakeLength(from);
  return std::string(Take(from, length));
}

float TakeSingle(std::string_view& from) { return SingleAt(Take(from, sizeof(float))); }

double TakeDouble(std::string_view& from) { return DoubleAt(Take(from, sizeof(double))); }

StoredValue TakeValue(std::string_view& from) {
  switch (Take(from, 1).front()) {
    case '0':
      return std::monostate{};
    case 'f':
      return false;
    case 't':
      return true;
    case 'n':
      return DecimalValue{TakeText(from)};
    case 's':
      return TakeSingle(from);
    case 'd':
      return TakeDouble(from);
    case 'D':
      return DateValue{TakeDouble(from)};
    case '"':
      return TakeText(from);
    default:
      RaiseFault(kDatabaseFault);
  }
}

FrameKind KindOf(char byte) {
  switch (const auto kind = static_cast<FrameKind>(byte)) {
    case FrameKind::kName:
    case FrameKind::kLinked:
    case FrameKind::kRow:
    case FrameKind::kEnd:
      return kind;
    default:
      RaiseFault(kDatabaseFault);
  }
}

}  // namespace

std::string FrameBytes(FrameKind kind, std::string_view content) {
  if (content.size() >= kLongestFrame) RaiseFault(kDatabaseFault);
  std::string out;
  out.reserve(kLengthBytes + 1 + content.size());
  AppendNumber(out, static_cast<std::uint32_t>(content.size() + 1));
  out.push_back(static_cast<char>(kind));
  out += content;
  return out;
}

std::string RowContent(const std::vector<StoredValue>& row) {
  std::string out;
  for (const StoredValue& value : row) std::visit(ValueWriter{out}, value);
  return out;
}

std::vector<StoredValue> RowValues(std::string_view content) {
  std::vector<StoredValue> row;
  while (!content.empty()) row.push_back(TakeValue(content));
  return row;
}

// What has been handed out goes before anything new is kept, so the buffer stays as long as the
// piece that was fed and the frame that it completes.
void FrameReader::Feed(std::string_view bytes) {
  bytes_.erase(0, at_);
  at_ = 0;
  bytes_ += bytes;
}

std::optional<Frame> FrameReader::Next() {
  std::string_view rest = std::string_view(bytes_).substr(at_);
  if (rest.size() < kLengthBytes) return std::nullopt;
  const std::size_t length = TakeLength(rest);
  if (length == 0 || length > kLongestFrame) RaiseFault(kDatabaseFault);
  if (rest.size() < length) return std::nullopt;
  at_ += kLengthBytes + length;
  return Frame{KindOf(rest.front()), std::string(rest.substr(1, length - 1))};
}

}  // namespace tagwright
