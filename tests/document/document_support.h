// Small makers of records, and millimetres read back from what was painted.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/files/files.h"
#include "platform/text/locale.h"
#include "support/test_support.h"

namespace tagwright {

// With this size a character of the fixed fonts is 5 mm wide and a line 11 mm high: 10 mm in
// points, half of it a character's width, 0.9 + 0.2 of it a line's height.
constexpr double kTenMillimetres = 720 / 25.4;
constexpr double kCharacter = 5;
constexpr double kLineHeight = 11;

constexpr double kPixelsPerMillimetre = 96 / 25.4;

inline ObjectRecord ShapeObject(Kind kind, float left, float top, double width, double height) {
  ObjectRecord record;
  record.ObjType = kind;
  record.Left = left;
  record.Top = top;
  record.Width = width;
  record.Height = height;
  record.Param = 1;
  record.FillColor = -1;
  return record;
}

inline ObjectRecord TextObject(const std::string& text, float left = 0, float top = 0) {
  ObjectRecord record;
  record.ObjType = kText;
  record.Left = left;
  record.Top = top;
  record.Text = text;
  record.FontName = "Arial";
  record.FontSize = kTenMillimetres;
  return record;
}

inline ObjectRecord Field(std::int16_t column, std::int32_t format, const std::string& name = "n") {
  ObjectRecord record = TextObject(name);
  record.ObjType = kDataField;
  record.Param = column;
  record.FillColor = format;
  return record;
}

inline ObjectRecord PictureObject(const std::string& path) {
  ObjectRecord record = ShapeObject(kPicture, 1, 2, 30, 20);
  record.Text = path;
  return record;
}

// Appends to the document; returns the new index.
inline int Add(const ObjectRecord& record) {
  GrowObjects();
  ObjectAt(ObjectUB) = record;
  return ObjectUB;
}

// A label of 100 by 50 mm on a board of 300 by 200 mm: its corner is (300 - 100) / 2 = 100 and
// (200 - 50) / 2 = 75 at 100 %.
class LabelTest : public ProgramTest {
 protected:
  LabelTest() {
    LabelWidth = 100;
    LabelHeight = 50;
    ReadyBoard();
  }

  // A file of the test's own folder.
  std::string Made(const std::string& name, const std::string& bytes) {
    WriteFile(folder.File(name), bytes);
    return folder.File(name);
  }
};

}  // namespace tagwright
