// Text files read line by line, of any length: only the present line and one block are in memory.
//
// A line ends in LF, CR LF or CR; the last one needs no end, and a file without a byte has no line.
// A UTF-8 byte-order mark at the start is dropped. A line that is valid UTF-8 with at least one
// character of several bytes is read as UTF-8, any other in the user's code page: files of both
// kinds come without saying which they are. Zero characters stay in the line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tagwright {

// What is kept of one line, in bytes. The rest of a longer one is passed over.
constexpr std::size_t kLongestLine = 1 << 20;

// The bytes of a file in blocks, without a byte-order mark.
class BlockReader {
 public:
  // Faults 53 when there is no such file, 75 when it cannot be opened.
  explicit BlockReader(std::string_view path);
  // The next block, valid until the one after it; empty at the end. Faults 57.
  std::string_view Next();
  // How much of the file has been read, 0 to 1.
  double Share() const;

 private:
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
  std::vector<char> block_;
  std::int64_t length_ = 0;
  std::int64_t read_ = 0;
};

class LineReader {
 public:
  explicit LineReader(std::string_view path) : file_(path) {}  // faults as BlockReader
  // The next line as text, without its end. False, with an empty line, when there is none left.
  // Faults 57.
  bool Next(std::string& line);

 private:
  bool HasByte();
  bool Begins();
  std::size_t EndOfLine();
  std::size_t Find(char character, std::size_t& known);

  BlockReader file_;
  std::string_view block_;
  std::size_t at_ = 0;
  std::size_t feed_ = 0;       // the first LF at or behind at_; the block's end for none
  std::size_t return_ = 0;     // the first CR likewise
  bool after_return_ = false;  // the last line ended in CR: an LF here belongs to it
};

// The number of lines, which LineReader would give one by one. `goes_on` is asked once a block with
// the share that has been read; on false the count ends there. Faults as BlockReader.
std::int64_t CountLines(std::string_view path, const std::function<bool(double share)>& goes_on);

}  // namespace tagwright
