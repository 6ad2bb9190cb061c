#include "layouts/layout_list.h"

#include "document/objects.h"
#include "forms/frmMain.h"
#include "layouts/label_layouts.h"
#include "platform/faults/fault.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class LayoutListTest : public ProgramTest {
 protected:
  LayoutListTest() {
    LabelLayouts = BuiltInLabelLayouts();
    LabelLayoutTop = 13;
    frmMain.cboLabelLayout.Events().Click = cboLabelLayout_Click;
  }
  ~LayoutListTest() override {
    LabelLayouts.clear();
    LabelLayoutTop = -1;
  }

  std::vector<std::string> Boxes() const {
    std::vector<std::string> texts;
    for (int i = 0; i < 8; ++i) texts.push_back(frmMain.txtLabLayout(i).Text());
    return texts;
  }

  void SetDefault(int index, std::int16_t value) {
    LabelLayouts[static_cast<std::size_t>(index)].IsDefault = value;
  }

  ComboBox& list = frmMain.cboLabelLayout;
};

using Texts = std::vector<std::string>;

// --- FillLayoutList ---

TEST_F(LayoutListTest, HoldsEveryTitleInOrderAndChoosesTheDefault) {
  FillLayoutList();
  ASSERT_EQ(list.ListCount(), 14);
  EXPECT_EQ(list.List(0), "A4 1 per sheet");
  EXPECT_EQ(list.List(13), "US 80 per Sheet");
  EXPECT_EQ(list.Text(), "A4 14 per sheet");
  EXPECT_EQ(LabelWidth, 99);
  EXPECT_EQ(LabelHeight, 38);
}

TEST_F(LayoutListTest, AFirstStartChoosesA4With14PerSheet) {
  LoadLabelLayouts();
  FillLayoutList();
  EXPECT_EQ(list.ListIndex(), 3);
  EXPECT_EQ(list.Text(), "A4 14 per sheet");
}

TEST_F(LayoutListTest, OfTwoDefaultsTheLaterOneIsChosen) {
  SetDefault(9, -1);
  FillLayoutList();
  EXPECT_EQ(list.Text(), "US 10 per Sheet");
}

TEST_F(LayoutListTest, EveryDefaultIsChosenOnTheWay) {
  SetDefault(9, -1);
  int clicks = 0;
  list.Events().Click = [&] { ++clicks; };
  FillLayoutList();
  EXPECT_EQ(clicks, 2);
}

TEST_F(LayoutListTest, AnyValueButZeroMarksTheDefault) {
  SetDefault(3, 0);
  SetDefault(5, 1);
  FillLayoutList();
  EXPECT_EQ(list.ListIndex(), 5);
}

TEST_F(LayoutListTest, WithNoDefaultTheFirstIsChosen) {
  SetDefault(3, 0);
  FillLayoutList();
  EXPECT_EQ(list.ListIndex(), 0);
  EXPECT_EQ(LabelWidth, 199);
}

TEST_F(LayoutListTest, FillingAgainReturnsToTheDefaultAndItsSize) {
  FillLayoutList();
  list.SetListIndex(0);
  ASSERT_EQ(LabelHeight, 289);
  FillLayoutList();
  EXPECT_EQ(list.ListCount(), 14);
  EXPECT_EQ(list.ListIndex(), 3);
  EXPECT_EQ(LabelHeight, 38);
}

TEST_F(LayoutListTest, TitlesAreTrimmed) {
  LabelLayouts[0].Title = "  Wide";
  FillLayoutList();
  EXPECT_EQ(list.List(0), "Wide");
}

TEST_F(LayoutListTest, WithoutLayoutsThereIsNothingToChoose) {
  LabelLayouts.clear();
  LabelLayoutTop = -1;
  EXPECT_FALSE(CarryOn(FillLayoutList));
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), -1);
}

// --- ShowLayout ---

TEST_F(LayoutListTest, ShowsTheNumbersOfTheChosenLayout) {
  FillLayoutList();
  EXPECT_EQ(Boxes(), (Texts{"2", "7", "99.00", "38.00", "4.50", "15.00", "2.50", "0.00"}));
  list.SetListIndex(10);
  EXPECT_EQ(Boxes(), (Texts{"2", "7", "101.60", "34.04", "3.96", "21.16", "4.78", "0.00"}));
}

TEST_F(LayoutListTest, TheVerticalGutterIsTheLastBox) {
  LabelLayouts[3].VertGutter = 1.25;
  FillLayoutList();
  EXPECT_EQ(Boxes().back(), "1.25");
}

// The 32-bit value lies a little below 3.175.
TEST_F(LayoutListTest, AGutterOf3175ShowsAs317) {
  FillLayoutList();
  list.SetListIndex(12);
  EXPECT_EQ(frmMain.txtLabLayout(6).Text(), "3.17");
}

TEST_F(LayoutListTest, LengthsAreShownInInchesAndCountsAreNot) {
  UnitScale = 25.4;
  FillLayoutList();
  list.SetListIndex(7);
  EXPECT_EQ(Boxes(), (Texts{"1", "1", "8.50", "11.00", "0.00", "0.00", "0.00", "0.00"}));
  list.SetListIndex(13);
  EXPECT_EQ(Boxes(), (Texts{"4", "20", "1.75", "0.50", "0.28", "0.50", "0.31", "0.00"}));
  EXPECT_EQ(LabelWidth, 44.45F) << "the label itself stays in millimetres";
}

TEST_F(LayoutListTest, TheLabelTakesTheSizeAndObjectsStay) {
  FillLayoutList();
  GrowObjects();
  ObjectAt(0).Left = 90;
  list.SetListIndex(13);
  EXPECT_EQ(LabelWidth, static_cast<double>(44.45F));
  EXPECT_EQ(LabelHeight, static_cast<double>(12.7F));
  EXPECT_EQ(ObjectAt(0).Left, 90);
}

TEST_F(LayoutListTest, ChoosingALayoutIsAChangeOfTheProjectAndFillingTheListIsNone) {
  for (const Flag dirty : {kFalse, kTrue}) {
    DirtyFlag = dirty;
    FillLayoutList();
    EXPECT_EQ(DirtyFlag, dirty);
  }
  DirtyFlag = kFalse;
  list.UserChoose(0);
  EXPECT_EQ(DirtyFlag, kTrue);
}

TEST_F(LayoutListTest, TheBoardIsRedrawn) {
  FillLayoutList();
  ReadyBoard();
  const std::int64_t before = RedrawCount;
  list.SetListIndex(0);
  EXPECT_EQ(RedrawCount, before + 1);
  list.SetListIndex(0);
  EXPECT_EQ(RedrawCount, before + 2) << "choosing the same layout again";
}

TEST_F(LayoutListTest, TheBoardIsRedrawnWithTheNewSize) {
  constexpr double kPixelsPerMillimetre = 96 / 25.4;
  FillLayoutList();
  ReadyBoard(300, 200);
  list.SetListIndex(13);
  const auto shapes = Board().Of(Painted::What::kShape);
  ASSERT_EQ(shapes.size(), 1u);
  EXPECT_NEAR(shapes[0].x2 - shapes[0].x1, 44.45 * kPixelsPerMillimetre, 1e-4);
  EXPECT_NEAR(shapes[0].y2 - shapes[0].y1, 12.7 * kPixelsPerMillimetre, 1e-4);
}

TEST_F(LayoutListTest, WithoutAChoiceNothingChanges) {
  LabelWidth = 5;
  const Texts before = Boxes();
  cboLabelLayout_Click();
  EXPECT_EQ(LabelWidth, 5);
  EXPECT_EQ(Boxes(), before);
  EXPECT_FALSE(CarryOn(ShowLayout));
}

TEST_F(LayoutListTest, ALayoutOfImpossibleNumbersIsShownAsItIs) {
  LabelLayouts[0].LabelWidth = -1e30F;
  LabelLayouts[0].NoAcross = -7;
  SetDefault(3, 0);
  FillLayoutList();
  EXPECT_EQ(Boxes()[0], "-7");
  EXPECT_EQ(LabelWidth, static_cast<double>(-1e30F));
}

}  // namespace
}  // namespace tagwright
