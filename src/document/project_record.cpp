#include "document/project_record.h"

#include "platform/files/bytes.h"

namespace tagwright {
namespace {

// Field widths on disk, in bytes: one a character.
constexpr std::size_t kTextSize = 250;
constexpr std::size_t kFontNameSize = 35;

}  // namespace

std::string ProjectRecordBytes(const ObjectRecord& record) {
  ByteWriter bytes;
  bytes.F32(record.Left);
  bytes.F32(record.Top);
  bytes.F64(record.Width);
  bytes.F64(record.Height);
  bytes.I16(record.ObjType);
  bytes.Text(record.Text.Padded(), kTextSize);
  bytes.I16(record.Param);
  bytes.Text(record.FontName.Padded(), kFontNameSize);
  bytes.F64(record.FontSize);
  bytes.I16(record.Bold);
  bytes.I16(record.Italic);
  bytes.I32(record.ForeColor);
  bytes.I32(record.FillColor);
  return bytes.Bytes();
}

ObjectRecord ProjectRecordFromBytes(std::string_view bytes) {
  ByteReader reader(bytes);
  ObjectRecord record;
  record.Left = reader.F32();
  record.Top = reader.F32();
  record.Width = reader.F64();
  record.Height = reader.F64();
  record.ObjType = reader.I16();
  record.Text = reader.Text(kTextSize);
  record.Param = reader.I16();
  record.FontName = reader.Text(kFontNameSize);
  record.FontSize = reader.F64();
  record.Bold = reader.I16();
  record.Italic = reader.I16();
  record.ForeColor = reader.I32();
  record.FillColor = reader.I32();
  return record;
}

}  // namespace tagwright
