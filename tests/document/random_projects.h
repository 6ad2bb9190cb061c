// Files that are anything but projects, and what must hold once one has been opened.
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "document/document_support.h"
#include "document/project_load.h"
#include "document/project_record.h"
#include "platform/controls/event.h"

namespace tagwright {

// Makes them one after the other, the same ones in every run.
class RandomProjects {
 public:
  // What the records' texts are, and so the paths of their pictures and of the data file.
  std::vector<std::string> texts{"some [#SRNO] text\r\n[#DT5] [#DT"};

  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  // Alternately anything at all and a project as the program saves it, with some bytes changed, cut
  // off or added.
  std::string Next() { return ++made_ % 2 == 1 ? RandomBytes() : Mutated(); }

  std::string Mutated() {
    std::string bytes;
    for (int i = Below(110); i >= 0; --i) bytes += ProjectRecordBytes(RandomRecord());
    for (const std::int16_t kind : {kSerialTrailer, kSourceTrailer}) {
      bytes += ProjectRecordBytes(RandomTrailer(kind));
    }
    for (int i = Below(20); i > 0; --i) bytes[AnyPlace(bytes)] = static_cast<char>(Below(256));
    if (Below(4) == 0) bytes.resize(AnyPlace(bytes));
    if (Below(8) == 0) bytes += std::string(static_cast<std::size_t>(Below(400)), 'x');
    bytes.resize(std::min(bytes.size(), kLongest));
    return bytes;
  }

 private:
  static constexpr std::size_t kLongest = 40000;

  std::size_t AnyPlace(const std::string& bytes) {
    return static_cast<std::size_t>(Below(static_cast<int>(bytes.size())));
  }

  std::string RandomBytes() {
    std::string bytes(static_cast<std::size_t>(Below(kLongest + 1)), '\0');
    for (char& byte : bytes) byte = static_cast<char>(Below(256));
    return bytes;
  }

  ObjectRecord RandomRecord() {
    static constexpr std::int16_t kKinds[] = {0, 1, 2, 3, 10, 11, 12, 13, 20, -1, -2, -100};
    ObjectRecord record =
        TextObject(texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))]);
    record.ObjType = kKinds[Below(12)];
    record.Left = static_cast<float>(Below(300) - 100);
    record.Top = static_cast<float>(Below(300) - 100);
    record.Width = Below(300) - 100;
    record.Height = Below(300) - 100;
    record.Param = static_cast<std::int16_t>(Below(120) - 10);
    record.FillColor = Below(160) - 5;
    return record;
  }

  // Layouts and kinds of source are mostly such as there are.
  ObjectRecord RandomTrailer(std::int16_t kind) {
    ObjectRecord trailer = RandomRecord();
    trailer.ObjType = kind;
    trailer.ForeColor = Below(20) - 2;
    if (Below(2) == 0) trailer.Param = static_cast<std::int16_t>(Below(3));
    if (Below(3) > 0) trailer.Text = "";
    return trailer;
  }

  std::mt19937 random_{20260314};
  int made_ = 0;
};

// Opens such files in the program that `Base` has started: no fault leaves an event, and the bound
// lies within the array.
template <class Base>
class RandomProjectsTest : public Base {
 protected:
  RandomProjectsTest() {
    SetFaultReporter([](const Fault& fault) {
      ADD_FAILURE() << "fault " << fault.number << ": " << fault.description;
    });
  }
  ~RandomProjectsTest() override { SetFaultReporter({}); }

  void LoadOne(const std::string& bytes) {
    const std::string path = this->folder.File("random.twp");
    if (FileExists(path)) DeleteFile(path);
    WriteFile(path, bytes);
    this->Board().painted.clear();
    this->dialogs.messages.clear();
    this->dialogs.answers.assign(1, projects.Below(2) == 0 ? Answer::kYes : Answer::kNo);
    EXPECT_NO_THROW(LoadProject(path));
    ASSERT_GE(ObjectUB, -1);
    ASSERT_LE(static_cast<std::size_t>(ObjectUB + 1), Objects.size());
  }

  void LoadMany(int count) {
    for (int i = 0; i < count; ++i) {
      SCOPED_TRACE(i);
      LoadOne(projects.Next());
      if (this->HasFatalFailure()) return;
    }
  }

  RandomProjects projects;
};

}  // namespace tagwright
