// Files that are anything but projects: whatever stands in them, they load without a fault and
// leave a document that can be painted and saved.

#include <algorithm>
#include <random>

#include "document/document_support.h"

namespace tagwright {
namespace {

constexpr std::size_t kLongest = 40000;

class ProjectRandomTest : public LabelTest {
 protected:
  ProjectRandomTest() {
    for (const char* name : {"a", "b", "c"}) frmMain.cboLabelLayout.AddItem(name);
    for (const char* name : {"database", "comma", "tab"}) frmMain.cboImportType.AddItem(name);
    SetFaultReporter([](const Fault& fault) {
      ADD_FAILURE() << "fault " << fault.number << ": " << fault.description;
    });
  }

  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  std::string RandomBytes() {
    std::string bytes(static_cast<std::size_t>(Below(kLongest + 1)), '\0');
    for (char& byte : bytes) byte = static_cast<char>(Below(256));
    return bytes;
  }

  ObjectRecord RandomRecord() {
    static constexpr std::int16_t kKinds[] = {0, 1, 2, 3, 10, 11, 12, 13, 20, -1, -2, -100};
    ObjectRecord record = TextObject("some [#SRNO] text\r\n[#DT5] [#DT");
    record.ObjType = kKinds[Below(12)];
    record.Left = static_cast<float>(Below(300) - 100);
    record.Top = static_cast<float>(Below(300) - 100);
    record.Width = Below(300) - 100;
    record.Height = Below(300) - 100;
    record.Param = static_cast<std::int16_t>(Below(120) - 10);
    record.FillColor = Below(160) - 5;
    return record;
  }

  // A project as the program saves it, with some bytes changed, cut off or added.
  std::string Mutated() {
    std::string bytes;
    for (int i = Below(110); i >= 0; --i) bytes += ProjectRecordBytes(RandomRecord());
    for (const std::int16_t kind : {kSerialTrailer, kSourceTrailer}) {
      ObjectRecord trailer = RandomRecord();
      trailer.ObjType = kind;
      if (Below(3) > 0) trailer.Text = "";
      bytes += ProjectRecordBytes(trailer);
    }
    for (int i = Below(20); i > 0; --i) {
      bytes[static_cast<std::size_t>(Below(static_cast<int>(bytes.size())))] =
          static_cast<char>(Below(256));
    }
    if (Below(4) == 0)
      bytes.resize(static_cast<std::size_t>(Below(static_cast<int>(bytes.size()))));
    if (Below(8) == 0) bytes += std::string(static_cast<std::size_t>(Below(400)), 'x');
    bytes.resize(std::min(bytes.size(), kLongest));
    return bytes;
  }

  void LoadOne(const std::string& bytes) {
    const std::string path = folder.File("random.twp");
    WriteFile(path + "x", "");  // keeps the folder's listing from being empty
    if (FileExists(path)) DeleteFile(path);
    WriteFile(path, bytes);
    Board().painted.clear();
    dialogs.messages.clear();
    dialogs.answers.assign(1, Below(2) == 0 ? Answer::kYes : Answer::kNo);
    EXPECT_NO_THROW(LoadProject(path));
    ASSERT_GE(ObjectUB, -1);
    ASSERT_LE(static_cast<std::size_t>(ObjectUB + 1), Objects.size());
  }

  void LoadMany(int count) {
    for (int i = 0; i < count; ++i) {
      SCOPED_TRACE(i);
      LoadOne(i % 2 == 0 ? RandomBytes() : Mutated());
      if (HasFatalFailure()) return;
    }
  }

  std::mt19937 random_{20260314};
};

TEST_F(ProjectRandomTest, RandomFilesLoadWithoutFault) { LoadMany(300); }

TEST_F(ProjectRandomTest, Long_TenThousandRandomFilesLoadWithoutFault) { LoadMany(10000); }

TEST_F(ProjectRandomTest, WhatHasBeenLoadedCanBePrintedAndSaved) {
  for (int i = 0; i < 50; ++i) {
    LoadOne(Mutated());
    EXPECT_NO_THROW(RedrawBoard(10, 10, true));
    DrawTarget = &frmMain.picBoard.Canvas();
    EXPECT_NO_THROW(SaveProject(kFalse));
  }
}

}  // namespace
}  // namespace tagwright
