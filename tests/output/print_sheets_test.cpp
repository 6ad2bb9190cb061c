// Every cell of every sheet: where it stands and in which order it comes, on all built-in layouts.
#include "output/job_fixture.h"

namespace tagwright {
namespace {

// What the boxes show, in millimetres.
double Shown(int box) { return ToNumber(frmMain.txtLabLayout(box).Text()) * UnitScale; }

class SheetTest : public JobTest, public testing::WithParamInterface<int> {
 protected:
  void Choose(double unit_scale) {
    UnitScale = unit_scale;
    frmMain.cboLabelLayout.SetListIndex(GetParam());
    const LabelLayout& layout = LabelLayouts[static_cast<std::size_t>(GetParam())];
    across_ = layout.NoAcross;
    down_ = layout.NoDown;
  }
  int Cells() const { return across_ * down_; }

  // One page of cells with these texts, down the columns.
  void ExpectPage(const std::vector<Cell>& page, const Texts& texts) const {
    ASSERT_EQ(page.size(), texts.size());
    for (std::size_t i = 0; i < page.size(); ++i) {
      const int col = static_cast<int>(i) / down_, row = static_cast<int>(i) % down_;
      SCOPED_TRACE("column " + std::to_string(col) + ", row " + std::to_string(row));
      EXPECT_EQ(page[i].text, texts[i]);
      EXPECT_NEAR(page[i].x, Shown(4) + (Shown(2) + Shown(6)) * col, 1e-6);
      EXPECT_NEAR(page[i].y, Shown(5) + (Shown(3) + Shown(7)) * row, 1e-6);
    }
  }

  // The boxes show hundredths of a unit, so each pitch is at most one of them off.
  void ExpectOnLayout(const std::vector<Cell>& page) const {
    const LabelLayout& layout = LabelLayouts[static_cast<std::size_t>(GetParam())];
    const double hundredth = 0.01 * UnitScale;
    const Cell& last = page.back();
    EXPECT_NEAR(last.x,
                layout.LeftMargin + (layout.LabelWidth + layout.HorizGutter) * (across_ - 1.0),
                hundredth * across_);
    EXPECT_NEAR(last.y, layout.TopMargin + (layout.LabelHeight + layout.VertGutter) * (down_ - 1.0),
                hundredth * down_);
  }

 private:
  int across_ = 0, down_ = 0;
};

TEST_P(SheetTest, TwoSheetsOfNumbersRunDownTheColumnsInEitherUnit) {
  for (const double unit : {1.0, 25.4}) {
    SCOPED_TRACE(unit);
    FakePrinterList::Reset();
    Choose(unit);
    ObjectUB = -1;
    SerialValue = 1001;
    AddSerial();
    SetRange("1", "2");
    Print();
    const auto pages = Pages();
    ASSERT_EQ(pages.size(), 2U);
    ExpectPage(pages[0], Run("", 1001, 1000 + Cells()));
    ExpectPage(pages[1], Run("", 1001 + Cells(), 1000 + 2 * Cells()));
    ExpectOnLayout(pages[1]);
    EXPECT_EQ(SerialValue, 1001 + 2 * Cells());
  }
}

TEST_P(SheetTest, AMergeEndsOnTheCellOfItsLastRow) {
  for (const double unit : {1.0, 25.4}) {
    FakePrinterList::Reset();
    Choose(unit);
    ObjectUB = -1;
    AddField();
    const int rest = Cells() / 2;  // none where a sheet is one label
    Merge(Cells() + rest);
    SetRange("1", "9");
    Print();
    const auto pages = Pages();
    ASSERT_EQ(pages.size(), rest > 0 ? 2U : 1U);
    ExpectPage(pages[0], Run("row ", 1, Cells()));
    if (rest > 0) ExpectPage(pages[1], Run("row ", Cells() + 1, Cells() + rest));
    EXPECT_EQ(CountOf("NewPage"), 1) << "a sheet that is not full is ejected by the job's end";
  }
}

TEST_P(SheetTest, ThePaperIsTheLayouts) {
  Choose(1);
  Print();
  EXPECT_EQ(Printer().PaperSize(), GetParam() < 7 ? 9 : 1);
}

INSTANTIATE_TEST_SUITE_P(Layouts, SheetTest, testing::Range(0, 14));

}  // namespace
}  // namespace tagwright
