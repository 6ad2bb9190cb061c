// The whole loop of a print job on all built-in layouts: copies, ranges, merges of every length and
// sheets without cells, each against a plain walk through the job's steps.
#include <filesystem>
#include <utility>

#include "output/job_fixture.h"

namespace tagwright {
namespace {

constexpr int kNoMerge = -1;

struct JobCase {
  int copies = 1;
  int from = 1, to = 1;
  int rows = kNoMerge;  // of the source, without its titles
  bool titles = false;  // the tick that passes over one row more
};

// What a job leaves behind: its pages as texts in the order of their painting.
struct Outcome {
  std::vector<Texts> pages;
  std::vector<std::vector<int>> cells;  // for each text the cell that it stands on
  int feeds = 0;
  std::int32_t next_number = 1001;
};

// The steps one by one. A page is begun by the first mark on it and ended by a feed.
class Walk {
 public:
  Walk(const JobCase& job, int cells) : job_(job), cells_(cells) {
    for (int copy = 1; copy <= job.copies; ++copy) {
      next_row_ = job.titles ? 2 : 1;
      while (Sheet() && page_ <= job.to) continue;
    }
    if (!marks_.empty()) EndPage();
  }
  const Outcome& Result() const { return outcome_; }

 private:
  bool Asked() const { return job_.from <= page_ && page_ <= job_.to; }

  // Returns false where the data has ended.
  bool Sheet() {
    for (int cell = 0; cell < cells_; ++cell) {
      if (job_.rows != kNoMerge && next_row_ > job_.rows) return false;
      const std::string value =
          job_.rows == kNoMerge ? "kept" : "row " + std::to_string(next_row_++);
      if (Asked()) Label(cell, value);
    }
    if (Asked()) {
      ++outcome_.feeds;
      EndPage();
    }
    ++page_;
    return true;
  }

  void Label(int cell, const std::string& value) {
    marks_.push_back(std::to_string(outcome_.next_number++));
    marks_.push_back(value);
    places_.insert(places_.end(), 2, cell);
  }

  void EndPage() {
    outcome_.pages.push_back(std::exchange(marks_, {}));
    outcome_.cells.push_back(std::exchange(places_, {}));
  }

  JobCase job_;
  int cells_;
  int page_ = 1, next_row_ = 1;
  Texts marks_;
  std::vector<int> places_;
  Outcome outcome_;
};

class PrintLoopTest : public JobTest, public testing::WithParamInterface<int> {
 protected:
  // Chooses the layout in a unit, with a running number and a field on the label.
  void Choose(double unit_scale) {
    UnitScale = unit_scale;
    frmMain.cboLabelLayout.SetListIndex(GetParam());
    ObjectUB = -1;
    AddSerial();
    AddField();
  }

  int Cells() const { return Layout().NoAcross * Layout().NoDown; }
  static double Shown(int box) { return ToNumber(frmMain.txtLabLayout(box).Text()) * UnitScale; }
  const LabelLayout& Layout() const { return LabelLayouts[static_cast<std::size_t>(GetParam())]; }

  void Run(const JobCase& job) {
    FakePrinterList::Reset();
    SerialValue = 1001;
    frmMain.chkFirstRow.SetValue(job.titles ? 1 : 0);
    frmMain.chkMailshot.SetValue(0);
    std::filesystem::remove(folder.File("data.csv"));  // a longer one would show through
    if (job.rows != kNoMerge) Merge(job.rows);
    FieldValues[0] = "kept";
    frmMain.txtNoCopies.SetText(std::to_string(job.copies));
    SetRange(std::to_string(job.from), std::to_string(job.to));
    Print();
  }

  void ExpectPlaces(const std::vector<Cell>& page, const std::vector<int>& cells) const {
    const int down = Layout().NoDown;
    for (std::size_t i = 0; i < page.size(); ++i) {
      ASSERT_NEAR(page[i].x, Shown(4) + (Shown(2) + Shown(6)) * (cells[i] / down), 1e-6);
      ASSERT_NEAR(page[i].y, Shown(5) + (Shown(3) + Shown(7)) * (cells[i] % down), 1e-6);
    }
  }

  void Expect(const JobCase& job, int cells) {
    SCOPED_TRACE(std::to_string(job.copies) + " copies, pages " + std::to_string(job.from) +
                 " to " + std::to_string(job.to) + ", rows " + std::to_string(job.rows) +
                 (job.titles ? ", titles" : ""));
    Run(job);
    const Outcome expected = Walk(job, cells).Result();
    ASSERT_EQ(Printed(), expected.pages);
    EXPECT_EQ(CountOf("NewPage"), expected.feeds);
    EXPECT_EQ(SerialValue, expected.next_number);
    const auto pages = Pages();
    for (std::size_t i = 0; i < pages.size(); ++i) ExpectPlaces(pages[i], expected.cells[i]);
  }

  // No rows, fewer and more than a sheet holds, and just as many.
  std::vector<int> Lengths() const { return {kNoMerge, 0, 1, Cells(), 2 * Cells() + 1}; }
};

// Pages up to the ninth only with data that ends before.
TEST_P(PrintLoopTest, CopiesRangesAndDataOfEveryLengthFollowTheSteps) {
  for (const double unit : {1.0, 25.4}) {
    SCOPED_TRACE(unit);
    Choose(unit);
    for (const int copies : {0, 1, 2, 3}) {
      for (const auto& [from, to] : {std::pair{1, 1}, {1, 9}, {2, 3}, {3, 2}}) {
        for (const int rows : Lengths()) {
          if (rows == kNoMerge && to == 9) continue;
          Expect({copies, from, to, rows}, Cells());
        }
      }
    }
  }
}

TEST_P(PrintLoopTest, TheTickForTitlesCostsEveryCopyARow) {
  for (const double unit : {1.0, 25.4}) {
    Choose(unit);
    for (const int copies : {1, 2}) {
      for (const int rows : Lengths()) Expect({copies, 1, 3, rows, true}, Cells());
    }
  }
}

TEST_P(PrintLoopTest, WithoutColumnsOrRowsTheRangeIsFedBlankAndNoDataRead) {
  for (const double unit : {1.0, 25.4}) {
    for (const int box : {0, 1}) {
      Choose(unit);
      frmMain.txtLabLayout(box).SetText("0");
      for (const int copies : {0, 1, 3}) {
        Expect({copies, 1, 1}, 0);
        Expect({copies, 2, 3, 5}, 0);
        Expect({copies, 3, 2, 5}, 0);
        EXPECT_EQ(FieldValues[0], "kept");
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Layouts, PrintLoopTest, testing::Range(0, 14));

}  // namespace
}  // namespace tagwright
