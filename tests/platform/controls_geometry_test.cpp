// Places, sizes, scales and order.
#include <limits>

#include "control_fixture.h"

namespace tagwright {
namespace {

class GeometryTest : public ControlTest {
 protected:
  // A board of 3000 by 1500 twips with units of 100 by 50 twips.
  void StretchBoard() {
    form.board.SetScaleWidth(30);
    form.board.SetScaleHeight(30);
  }
};

TEST_F(GeometryTest, ValuesAreStoredExactlyAsAssigned) {
  StretchBoard();
  Label& label = form.lblHold(0);
  label.SetLeft(0.1);
  label.SetTop(1.0 / 3);
  label.SetWidth(12.345678901234567);
  label.SetHeight(1e-7);
  EXPECT_EQ(label.Left(), 0.1);
  EXPECT_EQ(label.Top(), 1.0 / 3);
  EXPECT_EQ(label.Width(), 12.345678901234567);
  EXPECT_EQ(label.Height(), 1e-7);
}

TEST_F(GeometryTest, TwipsAreTheUnitTimesTheContainersScale) {
  StretchBoard();
  form.lblHold(0).Move(1, 2, 3, 4);
  EXPECT_DOUBLE_EQ(form.lblHold(0).LeftTwips(), 100);
  EXPECT_DOUBLE_EQ(form.lblHold(0).TopTwips(), 100);
  EXPECT_DOUBLE_EQ(form.lblHold(0).WidthTwips(), 300);
  EXPECT_DOUBLE_EQ(form.lblHold(0).HeightTwips(), 200);
  EXPECT_DOUBLE_EQ(form.board.LeftTwips(), 300);
}

TEST_F(GeometryTest, NegativeSizesAreRefusedAndNegativePlacesAreNot) {
  Label& label = form.lblHold(0);
  EXPECT_EQ(FaultOf([&] { label.SetWidth(-0.001); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetHeight(-1); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.SetWidth(std::numeric_limits<double>::quiet_NaN()); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { label.Move(7, 7, -1, 1); }), kBadValue);
  EXPECT_EQ(label.Left(), 0);  // a refused move moves nothing
  EXPECT_EQ(label.Width(), 450);
  label.SetLeft(-10);
  EXPECT_EQ(label.Left(), -10);
  EXPECT_EQ(FaultOf([&] { label.SetWidth(0); }), 0);
}

TEST_F(GeometryTest, AShapeTakesNegativeSizes) {
  form.shpBox.Move(5, 5, -3, -4);
  EXPECT_EQ(form.shpBox.Width(), -3);
  EXPECT_EQ(form.shpBox.Height(), -4);
}

TEST_F(GeometryTest, AChangeOfScaleLeavesChildrenWhereTheyAreOnScreen) {
  form.lblHold(1).Move(300, 150, 600, 450);
  StretchBoard();
  EXPECT_DOUBLE_EQ(form.lblHold(1).Left(), 3);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Top(), 3);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Width(), 6);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Height(), 9);
  EXPECT_DOUBLE_EQ(form.lblHold(1).LeftTwips(), 300);
  form.board.SetScaleMode(kTwips);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Left(), 300);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Height(), 450);
}

TEST_F(GeometryTest, AChangeOfSizeLeavesChildrenOfAUserScaleWhereTheyAreOnScreen) {
  StretchBoard();
  form.lblHold(1).Move(3, 3, 6, 9);
  form.board.SetWidth(6000);
  EXPECT_DOUBLE_EQ(form.board.ScaleWidth(), 30);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Left(), 1.5);
  EXPECT_DOUBLE_EQ(form.lblHold(1).LeftTwips(), 300);
  EXPECT_DOUBLE_EQ(form.lblHold(1).Top(), 3);
}

TEST_F(GeometryTest, LinesConvertTheirEndsToo) {
  form.Hair.SetX1(100);
  form.Hair.SetX2(200);
  form.Hair.SetY1(50);
  form.Hair.SetY2(150);
  StretchBoard();
  EXPECT_DOUBLE_EQ(form.Hair.X1(), 1);
  EXPECT_DOUBLE_EQ(form.Hair.X2(), 2);
  EXPECT_DOUBLE_EQ(form.Hair.Y1(), 1);
  EXPECT_DOUBLE_EQ(form.Hair.Y2(), 3);
}

TEST_F(GeometryTest, OtherContainersChildrenKeepTheirNumbers) {
  form.txtFirst.Move(100, 100, 50, 50);
  StretchBoard();
  EXPECT_EQ(form.txtFirst.Left(), 100);
  EXPECT_EQ(form.board.Left(), 300);
}

TEST_F(GeometryTest, APictureBoxInsideAScaledContainerHasItsOwnTwips) {
  StretchBoard();
  PictureBox inner(&form.board, "inner");
  inner.Move(0, 0, 3, 4);
  EXPECT_DOUBLE_EQ(inner.ScaleWidth(), 300);
  EXPECT_DOUBLE_EQ(inner.ScaleHeight(), 200);
}

TEST_F(GeometryTest, ViewsHearOfScaleAndPlaceButNotOfConvertedNumbers) {
  CountingView view;
  form.board.AttachView(&view);
  form.board.SetScaleWidth(30);
  EXPECT_EQ(view.Count(Aspect::kScale), 1);
  EXPECT_EQ(view.Count(Aspect::kGeometry), 0);
  form.lblHold(0).SetLeft(1);
  form.lblHold(0).SetLeft(1);
  EXPECT_EQ(view.Count(Aspect::kGeometry), 1);
}

// --- form ---------------------------------------------------------------------------------------

TEST_F(GeometryTest, AFormRaisesResizeOnlyWhenItsSizeChanges) {
  form.WindowEvents().Resize = [&] { Log("resize"); };
  form.SetWidth(6000);
  form.SetLeft(100);
  EXPECT_TRUE(log.empty());
  form.SetWidth(6001);
  form.SetHeight(4501);
  EXPECT_EQ(log.size(), 2u);
}

TEST_F(GeometryTest, AMovedFormRaisesOneResizeWithAllItsValuesStored) {
  form.WindowEvents().Resize = [&] {
    Log(std::to_string(static_cast<int>(form.Left() + form.Width() + form.Height())));
  };
  form.Move(1, 2, 5000, 4000);
  EXPECT_EQ(log, Lines{"9001"});
}

TEST_F(GeometryTest, TheFirstPlaceOfAFormIsNewsEvenAtTheCorner) {
  CountingView view;
  form.AttachView(&view);
  EXPECT_FALSE(form.IsPlaced());
  form.SetTop(0);
  EXPECT_TRUE(form.IsPlaced());
  EXPECT_EQ(view.Count(Aspect::kGeometry), 1);
  form.SetTop(0);
  EXPECT_EQ(view.Count(Aspect::kGeometry), 1);
  form.AttachView(nullptr);
}

TEST_F(GeometryTest, AFormResizedInsideItsResizeRunsItAgain) {
  form.WindowEvents().Resize = [&] {
    Log(std::to_string(static_cast<int>(form.Height())));
    if (form.Height() < 8250) form.SetHeight(8250);
  };
  form.SetHeight(5000);
  EXPECT_EQ(log, (Lines{"5000", "8250"}));
}

TEST_F(GeometryTest, TheClientAreaFollowsTheFrameByTheSameDifference) {
  form.UserResize(0, 0, 6000, 4500, 5900, 4000, WindowState::kNormal);
  EXPECT_EQ(form.ScaleWidth(), 5900);
  form.SetWidth(7000);
  form.SetHeight(4400);
  EXPECT_EQ(form.ScaleWidth(), 6900);
  EXPECT_EQ(form.ScaleHeight(), 3900);
}

TEST_F(GeometryTest, AUsersResizeStoresFrameAndClientAreaAndRaisesResizeOnce) {
  form.WindowEvents().Resize = [&] { Log("resize"); };
  form.UserResize(10, 20, 7000, 5000, 6900, 4500, WindowState::kNormal);
  EXPECT_EQ(form.Left(), 10);
  EXPECT_EQ(form.Top(), 20);
  EXPECT_EQ(form.Width(), 7000);
  EXPECT_EQ(form.Height(), 5000);
  EXPECT_EQ(form.ScaleWidth(), 6900);
  EXPECT_EQ(form.ScaleHeight(), 4500);
  EXPECT_EQ(log.size(), 1u);
  form.UserResize(30, 40, 7000, 5000, 6900, 4500, WindowState::kNormal);
  EXPECT_EQ(log.size(), 1u);
  EXPECT_EQ(form.Left(), 30);
}

TEST_F(GeometryTest, AChangeOfClientAreaOrStateAloneIsAResizeToo) {
  form.WindowEvents().Resize = [&] { Log("resize"); };
  form.UserResize(0, 0, 6000, 4500, 6000, 4400, WindowState::kNormal);
  form.UserResize(0, 0, 6000, 4500, 6000, 4400, WindowState::kMinimized);
  EXPECT_EQ(log.size(), 2u);
  EXPECT_EQ(form.State(), WindowState::kMinimized);
}

TEST_F(GeometryTest, WhileAHandlerRunsTheLastResizeWaits) {
  form.WindowEvents().Resize = [&] {
    Log("resize " + std::to_string(static_cast<int>(form.Width())));
  };
  RunHandler([&] {
    form.UserResize(0, 0, 7000, 5000, 7000, 5000, WindowState::kNormal);
    form.UserResize(0, 0, 8000, 5000, 8000, 5000, WindowState::kNormal);
    EXPECT_EQ(form.Width(), 6000);
    Log("handler ends");
  });
  EXPECT_EQ(log, (Lines{"handler ends", "resize 8000"}));
}

TEST_F(GeometryTest, TheLastReportOfThePlaceWinsWhetherMoveOrResize) {
  RunHandler([&] {
    form.UserResize(1, 1, 6000, 4500, 6000, 4500, WindowState::kNormal);
    form.UserMove(2, 2);
  });
  EXPECT_EQ(form.Left(), 2);
  RunHandler([&] {
    form.UserMove(3, 3);
    form.UserResize(4, 4, 6000, 4500, 6000, 4500, WindowState::kNormal);
  });
  EXPECT_EQ(form.Left(), 4);
}

TEST_F(GeometryTest, AMoveRaisesNothing) {
  form.WindowEvents().Resize = [&] { Log("resize"); };
  form.UserMove(500, 600);
  EXPECT_EQ(form.Left(), 500);
  EXPECT_EQ(form.Top(), 600);
  EXPECT_TRUE(log.empty());
}

// --- order --------------------------------------------------------------------------------------

TEST_F(GeometryTest, LaterChildrenStandInFrontAndZOrderMovesThem) {
  EXPECT_LT(form.lblHold(0).Order(), form.lblHold(1).Order());
  form.lblHold(0).ZOrder();
  EXPECT_GT(form.lblHold(0).Order(), form.shpBox.Order());
  form.shpBox.ZOrder(1);
  EXPECT_LT(form.shpBox.Order(), form.lblHold(1).Order());
  EXPECT_EQ(FaultOf([&] { form.shpBox.ZOrder(2); }), kBadValue);
  EXPECT_EQ(FaultOf([&] { form.shpBox.ZOrder(-1); }), kBadValue);
}

TEST_F(GeometryTest, TwoSentToTheBackKeepTheLastOneFarthest) {
  form.lblHold(1).ZOrder(1);
  form.lblHold(2).ZOrder(1);
  EXPECT_LT(form.lblHold(2).Order(), form.lblHold(1).Order());
  EXPECT_LT(form.lblHold(1).Order(), form.lblHold(0).Order());
}

// --- visibility ---------------------------------------------------------------------------------

TEST_F(GeometryTest, AControlIsShownWhenAllItsContainersAre) {
  EXPECT_TRUE(form.lblHold(0).IsShown());
  form.board.SetVisible(false);
  EXPECT_FALSE(form.lblHold(0).IsShown());
  EXPECT_TRUE(form.lblHold(0).Visible());
  form.board.SetVisible(true);
  form.SetVisible(false);
  EXPECT_FALSE(form.lblHold(0).IsShown());
}

TEST_F(GeometryTest, AControlIsUsableWhenItAndAllItsContainersAreShownAndEnabled) {
  EXPECT_TRUE(form.lblHold(0).IsUsable());
  form.board.SetEnabled(false);
  EXPECT_FALSE(form.lblHold(0).IsUsable());
  EXPECT_FALSE(form.lblHold(0).IsLive());
  EXPECT_TRUE(form.lblHold(0).IsShown());
}

// --- automatic size -----------------------------------------------------------------------------

// With the fixed fonts a character is half the size wide and a line 1.1 sizes high; 20 twips are a
// point: "abc" in 10 points is 300 by 220 twips.
class AutoSizeTest : public GeometryTest {
 protected:
  AutoSizeTest() {
    SetFonts(nullptr);
    label.SetFont({"Arial", 10, false, false});
  }
  Label& label = form.lblHold(0);
};

TEST_F(AutoSizeTest, ACaptionFitsTheSize) {
  label.SetAutoSize(true);
  label.SetCaption("abc");
  EXPECT_DOUBLE_EQ(label.Width(), 300);
  EXPECT_DOUBLE_EQ(label.Height(), 220);
}

TEST_F(AutoSizeTest, WithoutItACaptionLeavesTheSize) {
  label.SetCaption("abc");
  EXPECT_EQ(label.Width(), 450);
}

TEST_F(AutoSizeTest, TurningItOnFitsAlsoWhenItIsOn) {
  label.SetCaption("abc");
  label.SetAutoSize(true);
  EXPECT_DOUBLE_EQ(label.Width(), 300);
  label.SetWidth(999);
  label.SetAutoSize(true);
  EXPECT_DOUBLE_EQ(label.Width(), 300);
}

TEST_F(AutoSizeTest, AnAssignedSizeHoldsUntilTheNextCaptionOrFont) {
  label.SetAutoSize(true);
  label.SetCaption("abc");
  label.Move(5, 6, 7, 8);
  label.SetForeColor(1);
  EXPECT_EQ(label.Width(), 7);
  label.SetCaption("abc");
  EXPECT_DOUBLE_EQ(label.Width(), 300);
  label.SetWidth(7);
  label.SetFontSize(20);
  EXPECT_DOUBLE_EQ(label.Width(), 600);
  EXPECT_EQ(label.Left(), 5);
}

TEST_F(AutoSizeTest, TurningItOffKeepsTheFittedSize) {
  label.SetAutoSize(true);
  label.SetCaption("abc");
  label.SetAutoSize(false);
  label.SetCaption("");
  EXPECT_DOUBLE_EQ(label.Width(), 300);
}

TEST_F(AutoSizeTest, FontChangesFitToo) {
  label.SetCaption("abc");
  label.SetAutoSize(true);
  label.SetFontBold(true);
  EXPECT_DOUBLE_EQ(label.Width(), Fonts().Width("abc", label.Font()) * 20);
  EXPECT_GT(label.Width(), 300);
  label.SetFontBold(false);
  label.SetFontItalic(true);
  EXPECT_DOUBLE_EQ(label.Width(), 300);
}

TEST_F(AutoSizeTest, TheWidestLineAndAllLinesCount) {
  label.SetAutoSize(true);
  label.SetCaption("a\r\nabcd\nab\rabc");
  EXPECT_DOUBLE_EQ(label.Width(), 400);
  EXPECT_DOUBLE_EQ(label.Height(), 4 * 220);
  label.SetCaption("abc\r\n");
  EXPECT_DOUBLE_EQ(label.Height(), 2 * 220);
  label.SetCaption("\n\n");
  EXPECT_DOUBLE_EQ(label.Height(), 3 * 220);
}

TEST_F(AutoSizeTest, AnEmptyCaptionIsOneLineHighAndHasNoWidth) {
  label.SetAutoSize(true);
  label.SetCaption("");
  EXPECT_EQ(label.Width(), 0);
  EXPECT_DOUBLE_EQ(label.Height(), 220);
}

TEST_F(AutoSizeTest, TheSizeIsInTheContainersUnit) {
  StretchBoard();
  label.SetAutoSize(true);
  label.SetCaption("abc");
  EXPECT_DOUBLE_EQ(label.Width(), 3);
  EXPECT_DOUBLE_EQ(label.Height(), 4.4);
}

TEST_F(AutoSizeTest, AZeroOrNegativeFontSizeMeasuresNothing) {
  label.SetAutoSize(true);
  label.SetCaption("abc");
  for (const double size : {0.0, -5.0}) {
    label.SetFontSize(size);
    EXPECT_EQ(label.Width(), 0) << size;
    EXPECT_EQ(label.Height(), 0) << size;
  }
}

TEST_F(AutoSizeTest, AnEndlessTextLeavesTheSize) {
  label.SetAutoSize(true);
  label.SetCaption("abc");
  const double height = label.Height();
  for (const double size : {1e308, std::numeric_limits<double>::infinity()}) {
    label.SetFontSize(size);
    EXPECT_DOUBLE_EQ(label.Width(), 300) << size;
    EXPECT_DOUBLE_EQ(label.Height(), height) << size;
  }
}

TEST_F(AutoSizeTest, AnEmptyFontNameKeepsThePresentOne) {
  label.SetFontName("Courier New");
  label.SetFontName("");
  EXPECT_EQ(label.Font().Name, "Courier New");
}

}  // namespace
}  // namespace tagwright
