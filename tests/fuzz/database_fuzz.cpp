// Any bytes are what the reader says, and the first bytes of a database. Taking an answer apart
// must refuse them or understand them fully: written again, they are the same bytes.
//
// Reading database files themselves has no target: the library that the reader links crashes on
// damaged ones, which is why it has a process of its own, and its own crashes would be all that is
// found.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/database/jet_header.h"
#include "platform/database/reader_protocol.h"
#include "platform/faults/fault.h"

namespace {

using namespace tagwright;

void ReadRow(const std::string& content) {
  std::vector<StoredValue> row;
  if (!CarryOn([&] { row = RowValues(content); })) return;
  if (RowContent(row) != content) std::abort();
  for (const StoredValue& value : row) TextOf(value);
}

// The answer comes in pieces of `piece` bytes.
void ReadAnswer(std::string_view bytes, std::size_t piece) {
  FrameReader reader;
  std::string again;
  CarryOn([&] {
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      reader.Feed(bytes.substr(at, piece));
      while (const std::optional<Frame> frame = reader.Next()) {
        again += FrameBytes(frame->kind, frame->content);
        if (frame->kind == FrameKind::kRow) ReadRow(frame->content);
      }
    }
  });
  if (!bytes.starts_with(again)) std::abort();
}

void ReadHeader(std::string_view bytes) {
  const std::optional<JetHeader> header = ReadJetHeader(bytes);
  if (header && header->version != 3 && header->version != 4) std::abort();
  if (header && header->password.empty() && !OpensWith(*header, "any")) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  ReadHeader(bytes);
  ReadRow(bytes);
  if (bytes.empty()) return 0;
  const std::size_t piece = 1 + static_cast<unsigned char>(bytes.front());
  ReadAnswer(std::string_view(bytes).substr(1), piece);
  return 0;
}
