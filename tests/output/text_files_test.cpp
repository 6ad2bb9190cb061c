// Real and deliberately awkward text files, each against what counting its bytes by another program
// has found.
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "document/source_state.h"
#include "output/source_fixture.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

class TextFilesTest : public SourceTest {
 protected:
  void SetUp() override {
    if (SharedDataFolder().empty()) GTEST_SKIP() << "the shared text files are not on this machine";
    QFile file(QString::fromStdString(SharedDataFolder() + "/text/facts.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    facts_ = QJsonDocument::fromJson(file.readAll()).object();
    ASSERT_GE(facts_.size(), 20);
  }

  // Runs `check` with every file opened as the source.
  template <class Check>
  void ForEachFile(Check&& check) {
    for (auto each = facts_.begin(); each != facts_.end(); ++each) {
      SCOPED_TRACE(each.key().toStdString());
      const QJsonObject facts = each.value().toObject();
      const bool comma = facts["separator"].toString() == "comma";
      Browse(comma ? kCommaSource : kTabSource,
             SharedDataFolder() + "/text/" + each.key().toStdString());
      check(facts);
    }
  }

  static Texts List(const QJsonObject& facts, const char* line) {
    Texts values;
    for (const auto& value : facts[line].toArray()) {
      values.push_back(value.toString().toStdString());
    }
    return values;
  }

  // As many as there are slots.
  static Texts Kept(Texts values) {
    values.resize(std::min(values.size(), kFieldSlots));
    return values;
  }

  // The row as a merge reads it: the line loses the blanks at its ends.
  static Texts Trimmed(const Texts& values) {
    std::string line;
    for (const std::string& value : values) line += (line.empty() ? "" : FieldSeparator) + value;
    line = Trim(line);
    Texts parts;
    for (std::size_t end = line.find(FieldSeparator); end != std::string::npos;
         end = line.find(FieldSeparator)) {
      parts.push_back(line.substr(0, end));
      line.erase(0, end + 1);
    }
    parts.push_back(line);
    return Kept(parts);
  }

  QJsonObject facts_;
};

TEST_F(TextFilesTest, ColumnsAndCount) {
  ForEachFile([](const QJsonObject& facts) {
    EXPECT_EQ(RecordCount, facts["lines"].toInt());
    const Texts names = facts["lines"].toInt() == 0 ? Texts{""} : Kept(List(facts, "line1"));
    EXPECT_EQ(Columns(), names);
    EXPECT_EQ(ListedFields(), names);
  });
}

TEST_F(TextFilesTest, SecondThirdAndLastRow) {
  ForEachFile([](const QJsonObject& facts) {
    const int rows = std::max(0, facts["lines"].toInt() - 1);
    OpenMergeSource();
    int met = 0;
    Texts last;
    while (Next()) {
      last = Columns();
      ++met;
      if (met == 1) {
        EXPECT_EQ(last, Trimmed(List(facts, "line2")));
      }
      if (met == 2) {
        EXPECT_EQ(last, Trimmed(List(facts, "line3")));
      }
    }
    CloseMergeSource();
    EXPECT_EQ(met, rows);
    if (rows > 0) {
      EXPECT_EQ(last, Trimmed(List(facts, "last_line")));
    }
  });
}

TEST_F(TextFilesTest, TheSecondRowWithoutItsQuotes) {
  frmMain.chkQuote.SetValue(1);
  ForEachFile([](const QJsonObject& facts) {
    if (facts["lines"].toInt() < 2) return;
    OpenMergeSource();
    ASSERT_TRUE(Next());
    EXPECT_EQ(Columns(), Kept(List(facts, "line2_without_quotes")));
    CloseMergeSource();
  });
}

}  // namespace
}  // namespace tagwright
