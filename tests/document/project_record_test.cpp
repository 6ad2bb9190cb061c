#include "document/project_record.h"

#include <cstring>

#include "document/document_support.h"

namespace tagwright {
namespace {

class ProjectRecordTest : public ProgramTest {};

struct FieldRow {
  const char* name;
  std::size_t offset, size;
  void (*set)(ObjectRecord& record);
  std::string bytes;
};

std::string Padded(std::string text, std::size_t size) {
  text.resize(size, ' ');
  return text;
}

// One field at a time: its bytes stand at its offset, and nothing else differs from a fresh record.
const std::vector<FieldRow>& Fields() {
  static const std::vector<FieldRow> rows = {
      // 1.5 and -2 by their IEEE 754 bits, lowest byte first.
      {"Left", 0, 4, [](ObjectRecord& r) { r.Left = 1.5f; }, {"\x00\x00\xC0\x3F", 4}},
      {"Top", 4, 4, [](ObjectRecord& r) { r.Top = -2; }, {"\x00\x00\x00\xC0", 4}},
      {"Width", 8, 8, [](ObjectRecord& r) { r.Width = 1.5; }, {"\0\0\0\0\0\0\xF8\x3F", 8}},
      {"Height", 16, 8, [](ObjectRecord& r) { r.Height = -2; }, {"\0\0\0\0\0\0\0\xC0", 8}},
      {"ObjType", 24, 2, [](ObjectRecord& r) { r.ObjType = kSerialTrailer; }, {"\xFE\xFF", 2}},
      {"Text", 26, 250, [](ObjectRecord& r) { r.Text = "Größe €"; },
       Padded("Gr\xF6\xDF"
              "e \x80",
              250)},
      {"Param", 276, 2, [](ObjectRecord& r) { r.Param = 0x1234; }, {"\x34\x12", 2}},
      {"FontName", 278, 35, [](ObjectRecord& r) { r.FontName = "Arial"; }, Padded("Arial", 35)},
      {"FontSize", 313, 8, [](ObjectRecord& r) { r.FontSize = 11; }, {"\0\0\0\0\0\0\x26\x40", 8}},
      {"Bold", 321, 2, [](ObjectRecord& r) { r.Bold = kTrue; }, {"\xFF\xFF", 2}},
      {"Italic", 323, 2, [](ObjectRecord& r) { r.Italic = kTrue; }, {"\xFF\xFF", 2}},
      {"ForeColor",
       325,
       4,
       [](ObjectRecord& r) { r.ForeColor = 0x123456; },
       {"\x56\x34\x12\x00", 4}},
      {"FillColor", 329, 4, [](ObjectRecord& r) { r.FillColor = -1; }, {"\xFF\xFF\xFF\xFF", 4}},
  };
  return rows;
}

TEST_F(ProjectRecordTest, EachFieldStandsAtItsByteOffset) {
  const std::string fresh = ProjectRecordBytes({});
  ASSERT_EQ(fresh.size(), 333u);
  for (const FieldRow& row : Fields()) {
    ObjectRecord record;
    row.set(record);
    const std::string bytes = ProjectRecordBytes(record);
    ASSERT_EQ(bytes.size(), 333u) << row.name;
    ASSERT_EQ(row.bytes.size(), row.size) << row.name;
    EXPECT_EQ(bytes.substr(row.offset, row.size), row.bytes) << row.name;
    std::string rest = bytes;
    rest.replace(row.offset, row.size, fresh, row.offset, row.size);
    EXPECT_EQ(rest, fresh) << row.name;
  }
}

TEST_F(ProjectRecordTest, FieldsFollowEachOtherWithoutAGap) {
  std::size_t offset = 0;
  for (const FieldRow& row : Fields()) {
    EXPECT_EQ(row.offset, offset) << row.name;
    offset += row.size;
  }
  EXPECT_EQ(offset, 333u);
}

TEST_F(ProjectRecordTest, EachFieldReturnsFromItsBytes) {
  for (const FieldRow& row : Fields()) {
    ObjectRecord record;
    row.set(record);
    EXPECT_EQ(ProjectRecordFromBytes(ProjectRecordBytes(record)), record) << row.name;
  }
}

TEST_F(ProjectRecordTest, FreshRecordIsZerosAndBlanks) {
  const std::string bytes = ProjectRecordBytes({});
  EXPECT_EQ(bytes.substr(0, 26), std::string(26, '\0'));
  EXPECT_EQ(bytes.substr(26, 250), std::string(250, ' '));
  EXPECT_EQ(bytes.substr(278, 35), std::string(35, ' '));
}

TEST_F(ProjectRecordTest, WhatTheCodePageLacksBecomesAQuestionMark) {
  ObjectRecord record;
  record.Text = "a\u4E2Db";
  EXPECT_EQ(ProjectRecordBytes(record).substr(26, 4), "a?b ");
}

TEST_F(ProjectRecordTest, EveryByteReturnsUnchanged) {
  std::string bytes(333, '\0');
  for (int first = 0; first < 256; first += 5) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      bytes[i] = static_cast<char>(static_cast<std::size_t>(first) + i * 7);
    }
    EXPECT_EQ(ProjectRecordBytes(ProjectRecordFromBytes(bytes)), bytes) << first;
  }
}

TEST_F(ProjectRecordTest, WhatIsMissingAtTheEndIsBlankTextAndZeros) {
  ObjectRecord full;
  for (const FieldRow& row : Fields()) row.set(full);
  const std::string bytes = ProjectRecordBytes(full);
  const std::string fresh = ProjectRecordBytes({});
  for (std::size_t length = 0; length <= bytes.size(); ++length) {
    const std::string expected = bytes.substr(0, length) + fresh.substr(length);
    EXPECT_EQ(ProjectRecordBytes(ProjectRecordFromBytes(bytes.substr(0, length))), expected)
        << length;
  }
}

}  // namespace
}  // namespace tagwright
