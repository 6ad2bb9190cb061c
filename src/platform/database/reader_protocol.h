// What the program and its reader say to each other.
//
// Databases are read by a library that damaged files can crash or hold up for ever. So it lives in
// a program of its own, the reader, started once for each question; its death or its silence is
// then no more than an answer. The question stands in the reader's arguments:
//
//   tagwright-reader tables FILE         the names of all tables, linked ones as such
//   tagwright-reader fields FILE TABLE   the names of a table's fields
//   tagwright-reader rows FILE TABLE     the names of a table's fields, then all its rows
//
// The answer comes on its standard output as frames, each of four bytes length (of what follows),
// one byte kind and the content. All numbers are little-endian. The last frame is kEnd; an answer
// that stops without it is none. A row's content is its values one after another, each of one byte
// kind and, by kind:
//
//   '0' null       nothing             's' single   4 bytes
//   'f' 't' Boolean nothing            'd' double   8 bytes
//   'n' exact number, '"' text         'D' date     8 bytes, days as a double
//       4 bytes length, the bytes
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/stored_value.h"

namespace tagwright {

enum class FrameKind : char {
  kName = 'N',    // content: a name in UTF-8
  kLinked = 'L',  // content: the name of a table that lies in another file
  kRow = 'R',     // content: the values of one row
  kEnd = 'E',     // no content
};

struct Frame {
  FrameKind kind = FrameKind::kEnd;
  std::string content;
};

// The longest frame that is taken, its kind included: a row whose memos are a good deal longer than
// what anybody prints.
constexpr std::size_t kLongestFrame = 64 << 20;

// One frame as bytes. A content that would make it too long faults kDatabaseFault.
std::string FrameBytes(FrameKind kind, std::string_view content);

// The content of a kRow frame.
std::string RowContent(const std::vector<StoredValue>& row);

// The values of a kRow frame's content. Faults kDatabaseFault for anything else.
std::vector<StoredValue> RowValues(std::string_view content);

// Takes an answer apart as it comes in, in pieces of any length. Holds no more than has been fed.
class FrameReader {
 public:
  void Feed(std::string_view bytes);
  // The next whole frame; nothing while it has not all come in. Faults kDatabaseFault for a length
  // or kind that no reader sends.
  std::optional<Frame> Next();

 private:
  std::string bytes_;
  std::size_t at_ = 0;  // what lies before it has been handed out
};

}  // namespace tagwright
