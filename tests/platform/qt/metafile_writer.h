// Metafiles made record by record, with a window of their own and no header of a size.
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tagwright {

class MetafileWriter {
 public:
  MetafileWriter(int width, int height) {
    Record(0x0103, {8});              // the window's units, whatever their shape
    Record(0x020B, {0, 0});           // its corner
    Record(0x020C, {height, width});  // and its extent
    Record(0x0102, {1});              // no ground behind text
    Record(0x012E, {24});             // text stands on its baseline
  }

  // One record: its parameters as words, and bytes behind them.
  MetafileWriter& Record(int function, std::initializer_list<int> words,
                         std::string_view tail = "") {
    std::string body;
    for (const int word : words) body += Word(word);
    body += tail;
    if (body.size() % 2 != 0) body += '\0';
    const std::size_t length = body.size() / 2 + 3;
    longest_ = std::max(longest_, length);
    records_ += Long(length) + Word(function) + body;
    return *this;
  }

  // Makes an object and draws with it from now on.
  MetafileWriter& Use(int function, std::initializer_list<int> words, std::string_view tail = "") {
    Record(function, words, tail);
    return Record(0x012D, {objects_++});
  }
  MetafileWriter& Pen(int style, int width) { return Use(0x02FA, {style, width, 0, 0, 0}); }
  MetafileWriter& BlackBrush() { return Use(0x02FC, {0, 0, 0, 0}); }
  // Arial, whose letters' square is `size` high; `angle` in tenths of a degree.
  MetafileWriter& Font(int size, int angle = 0, int weight = 400, int italic_underlined = 0,
                       int struck_out = 0) {
    return Use(0x02FB, {-size, 0, angle, angle, weight, italic_underlined, struck_out, 0, 0},
               std::string_view("Arial\0", 6));
  }

  MetafileWriter& Text(int x, int y, std::string_view text) {
    std::string tail(text);
    if (tail.size() % 2 != 0) tail += '\0';
    return Record(0x0521, {static_cast<int>(text.size())}, tail + Word(y) + Word(x));
  }

  std::string Bytes() const {
    const std::string end = Long(3) + Word(0);
    const std::size_t words = 9 + (records_.size() + end.size()) / 2;
    return Word(1) + Word(9) + Word(0x0300) + Long(words) + Word(objects_) + Long(longest_) +
           Word(0) + records_ + end;
  }

 private:
  static std::string Word(int value) {
    return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
  }
  static std::string Long(std::size_t value) {
    return Word(static_cast<int>(value & 0xFFFF)) + Word(static_cast<int>(value >> 16));
  }

  std::string records_;
  std::size_t longest_ = 3;
  int objects_ = 0;
};

}  // namespace tagwright
