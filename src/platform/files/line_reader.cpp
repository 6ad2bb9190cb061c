#include "platform/files/line_reader.h"

#include <algorithm>
#include <utility>

#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr std::size_t kBlockSize = 1 << 16;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsUtf8(std::string_view bytes) { return FromCharacters(Characters(bytes)) == bytes; }

std::string TextOf(std::string line) {
  if (IsAscii(line) || IsUtf8(line)) return line;
  return FromCodePage(line);
}

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// One byte more than is kept shows that there is more, and whether a character begins there.
void AddToLine(std::string& line, std::string_view bytes) {
  line.append(bytes.substr(0, kLongestLine + 1 - line.size()));
}

// The longest character has three bytes behind its first.
void CutToLongest(std::string& line) {
  if (line.size() <= kLongestLine) return;
  std::size_t end = kLongestLine;
  while (end > kLongestLine - 3 && IsContinuation(line[end])) --end;
  line.resize(end);
}

// How many lines end in a block that comes after the byte `before`: one at each LF, and one at each
// CR without an LF behind it. The CR of the last byte waits for what the next block begins with.
std::int64_t EndsIn(std::string_view block, char before) {
  std::int64_t ends = before == '\r' && block.front() != '\n' ? 1 : 0;
  for (auto at = block.find('\n'); at != block.npos; at = block.find('\n', at + 1)) ++ends;
  for (auto at = block.find('\r'); at < block.size() - 1; at = block.find('\r', at + 1)) {
    if (block[at + 1] != '\n') ++ends;
  }
  return ends;
}

}  // namespace

// --- blocks -------------------------------------------------------------------------------------

BlockReader::BlockReader(std::string_view path) : file_(nullptr, std::fclose), block_(kBlockSize) {
  length_ = FileLength(path);
  file_.reset(std::fopen(ResolvePath(path).c_str(), "rbe"));
  if (!file_) RaiseFault(kFileAccess);
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

std::string_view BlockReader::Next() {
  const bool first = read_ == 0;
  const std::size_t got = std::fread(block_.data(), 1, block_.size(), file_.get());
  if (std::ferror(file_.get())) RaiseFault(kDeviceFault);
  read_ += static_cast<std::int64_t>(got);
  std::string_view block(block_.data(), got);
  if (first && block.starts_with(kByteOrderMark)) block.remove_prefix(kByteOrderMark.size());
  return block;
}

double BlockReader::Share() const {
  if (read_ >= length_) return 1;
  return static_cast<double>(read_) / static_cast<double>(length_);
}

// --- lines --------------------------------------------------------------------------------------

bool LineReader::HasByte() {
  if (at_ < block_.size()) return true;
  block_ = file_.Next();
  at_ = 0;
  feed_ = std::min(block_.find('\n'), block_.size());
  return_ = std::min(block_.find('\r'), block_.size());
  return !block_.empty();
}

bool LineReader::Begins() {
  if (!HasByte()) return false;
  if (std::exchange(after_return_, false) && block_[at_] == '\n') ++at_;
  return HasByte();
}

// Each character's next place is kept until it is passed, so that a file with one kind of line end
// is not searched for the other with every line.
std::size_t LineReader::Find(char character, std::size_t& known) {
  if (known < at_) known = std::min(block_.find(character, at_), block_.size());
  return known;
}

std::size_t LineReader::EndOfLine() { return std::min(Find('\n', feed_), Find('\r', return_)); }

bool LineReader::Next(std::string& line) {
  line.clear();
  if (!Begins()) return false;
  do {
    const std::size_t end = EndOfLine();
    AddToLine(line, block_.substr(at_, end - at_));
    at_ = end;
    if (end == block_.size()) continue;
    after_return_ = block_[end] == '\r';
    ++at_;
    break;
  } while (HasByte());
  CutToLongest(line);
  line = TextOf(std::move(line));
  return true;
}

std::int64_t CountLines(std::string_view path, const std::function<bool(double share)>& goes_on) {
  BlockReader file(path);
  std::int64_t lines = 0;
  char last = '\n';
  for (std::string_view block = file.Next(); !block.empty(); block = file.Next()) {
    lines += EndsIn(block, last);
    last = block.back();
    if (!goes_on(file.Share())) return lines;
  }
  return last == '\n' ? lines : lines + 1;
}

}  // namespace tagwright
