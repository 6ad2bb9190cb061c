#include "document/redraw.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "common/prog_settings.h"
#include "document/document_support.h"
#include "document/overlays.h"
#include "platform/painting/picture.h"
#include "platform/painting/printer.h"

namespace tagwright {
namespace {

using What = Painted::What;

constexpr double kPrinterPixels = 600 / 25.4;  // a millimetre on the fake printer

// Pictures are files that begin with "picture"; anything else cannot be read.
PicturePtr ReadTestPicture(const std::string& bytes, std::string_view) {
  return bytes.starts_with("picture") ? BlankPicture(1000, 1000) : nullptr;
}

class RedrawTest : public LabelTest {
 protected:
  RedrawTest() { SetPictureReader(ReadTestPicture); }
  ~RedrawTest() override {
    SetPictureReader(nullptr);
    PaintBarcode = nullptr;
  }

  void Redraw() {
    Board().painted.clear();
    RedrawBoard();
  }

  std::vector<Painted> PageAfter(double x, double y) {
    RedrawBoard(x, y, true);
    auto& page = dynamic_cast<RecordingSurface&>(Printer().Page());
    auto painted = page.painted;
    page.painted.clear();
    DrawTarget = &frmMain.picBoard.Canvas();
    return painted;
  }

  // Shapes after the label's white background.
  std::vector<Painted> Shapes() {
    auto shapes = Board().Of(What::kShape);
    shapes.erase(shapes.begin());
    return shapes;
  }

  static double Mm(double pixels) { return pixels / kPixelsPerMillimetre / ZoomFactor; }

  static void ExpectBox(const Painted& p, double left, double top, double right, double bottom,
                        double pixels_per_mm) {
    EXPECT_NEAR(p.x1, left * pixels_per_mm, 1e-6);
    EXPECT_NEAR(p.y1, top * pixels_per_mm, 1e-6);
    EXPECT_NEAR(p.x2, right * pixels_per_mm, 1e-6);
    EXPECT_NEAR(p.y2, bottom * pixels_per_mm, 1e-6);
  }
};

std::size_t CountOf(const std::vector<Painted>& painted, What what) {
  return static_cast<std::size_t>(std::count_if(painted.begin(), painted.end(),
                                                [&](const Painted& p) { return p.what == what; }));
}

Painted FirstOf(const std::vector<Painted>& painted, What what) {
  const auto found = std::find_if(painted.begin(), painted.end(),
                                  [&](const Painted& p) { return p.what == what; });
  return found == painted.end() ? Painted{} : *found;
}

// --- whether at all -----------------------------------------------------------------------------

TEST_F(RedrawTest, NothingAtAllHappensBeforeTheWindowIsReady) {
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  RedrawSkip = 5;
  BoardReady = 0;
  Redraw();
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_EQ(RedrawSkip, 5);
  EXPECT_TRUE(Board().painted.empty());
}

TEST_F(RedrawTest, NothingAtAllHappensWhileRedrawsAreSuspended) {
  SuspendRedraw = 1;
  Redraw();
  EXPECT_EQ(RedrawCount, 0);
  EXPECT_TRUE(Board().painted.empty());
}

TEST_F(RedrawTest, EachRedrawIsCounted) {
  Redraw();
  Redraw();
  EXPECT_EQ(RedrawCount, 2);
}

// --- the label ----------------------------------------------------------------------------------

TEST_F(RedrawTest, EmptyDocumentPaintsOnlyTheLabelsWhiteShapeAndTheRulers) {
  Redraw();
  ASSERT_EQ(Board().painted.size(), 2u);
  EXPECT_EQ(Board().painted[0].what, What::kClear);
  const Painted& label = Board().painted[1];
  EXPECT_EQ(label.Shape(), ShapeKind::kRoundRect);
  EXPECT_EQ(label.UsedPen().style, kPenNull);
  EXPECT_FALSE(label.UsedBrush().null);
  EXPECT_EQ(label.UsedBrush().color, 0xFFFFFF);
  EXPECT_EQ(label.CornerWidth(), 8);
  ExpectBox(label, 100, 75, 200, 125, kPixelsPerMillimetre);
  frmMain.mnuFileRulers.SetChecked(true);
  Redraw();
  EXPECT_EQ(Board().Of(What::kBox).size(), 2u);
  EXPECT_EQ(Board().Of(What::kShape).size(), 1u);
}

TEST_F(RedrawTest, BoardIsClearedInItsOwnColour) {
  Redraw();
  EXPECT_EQ(Board().painted[0].color, frmMain.picBoard.BackColor());
}

TEST_F(RedrawTest, LabelsCornersGrowWithTheZoom) {
  ZoomFactor = 2;
  ReadyBoard();
  Redraw();
  EXPECT_EQ(Board().Of(What::kShape)[0].CornerWidth(), 16);
  // (150 - 100) / 2 = 25 and (100 - 50) / 2 = 25 board units.
  ExpectBox(Board().Of(What::kShape)[0], 25, 25, 125, 75, 2 * kPixelsPerMillimetre);
}

TEST_F(RedrawTest, OriginIsRoundedToWholeUnitsWithHalvesToTheEvenOne) {
  LabelWidth = 99;   // (300 - 99) / 2 = 100.5
  LabelHeight = 49;  // (200 - 49) / 2 = 75.5
  Redraw();
  EXPECT_EQ(BoardOriginX, 100);
  EXPECT_EQ(BoardOriginY, 76);
}

TEST_F(RedrawTest, ScrollBarsInTheMiddleShiftNothingAndTenStepsTenUnits) {
  Redraw();
  EXPECT_EQ(BoardOriginX, 100);
  EXPECT_EQ(BoardOriginY, 75);
  frmMain.hS1.SetValue(260);
  frmMain.vS1.SetValue(260);
  Redraw();
  EXPECT_EQ(BoardOriginX, 90) << "to the left";
  EXPECT_EQ(BoardOriginY, 65) << "up";
}

TEST_F(RedrawTest, ScreenRedrawIgnoresItsOffsetsAndDropsPendingScrolls) {
  PendingScrollX = 0.5;
  PendingScrollY = 0.5;
  RedrawBoard(17, 18, false);
  EXPECT_EQ(BoardOriginX, 100);
  EXPECT_EQ(PendingScrollX, -1);
  EXPECT_EQ(PendingScrollY, -1);
}

// --- shapes -------------------------------------------------------------------------------------

TEST_F(RedrawTest, ShapesPaintPenFillAndBox) {
  ObjectRecord record = ShapeObject(kRectangle, 10, 5, 30, 20);
  record.Param = 3;
  record.ForeColor = Rgb(1, 2, 3);
  record.FillColor = Rgb(4, 5, 6);
  Add(record);
  record.ObjType = kEllipse;
  Add(record);
  Redraw();
  const auto shapes = Shapes();
  ASSERT_EQ(shapes.size(), 2u);
  EXPECT_EQ(shapes[0].Shape(), ShapeKind::kRectangle);
  EXPECT_EQ(shapes[1].Shape(), ShapeKind::kEllipse);
  for (const Painted& shape : shapes) {
    EXPECT_EQ(shape.UsedPen().style, kPenSolid);
    EXPECT_EQ(shape.UsedPen().width, 3);
    EXPECT_EQ(shape.UsedPen().color, Rgb(1, 2, 3));
    EXPECT_EQ(shape.UsedBrush().color, Rgb(4, 5, 6));
    ExpectBox(shape, 110, 80, 140, 100, kPixelsPerMillimetre);
  }
}

TEST_F(RedrawTest, RoundedRectanglesCornerIsTwelvePixelsTimesTheZoomInWholePixels) {
  Add(ShapeObject(kRoundedRectangle, 0, 0, 10, 10));
  for (const auto& [zoom, corner] : std::vector<std::pair<double, double>>{
           {1, 12}, {0.5, 6}, {0.55, 7} /* 6.6 */, {0.375, 4} /* 4.5 */, {2, 24}}) {
    ZoomFactor = zoom;
    ReadyBoard();
    Redraw();
    EXPECT_EQ(Shapes()[0].CornerWidth(), corner) << zoom;
    EXPECT_EQ(Shapes()[0].CornerHeight(), corner) << zoom;
  }
}

TEST_F(RedrawTest, ShapeWithoutPenAndFillPaintsNothingVisible) {
  ObjectRecord record = ShapeObject(kRectangle, 0, 0, 10, 10);
  record.Param = 0;
  record.FillColor = -1;
  Add(record);
  Redraw();
  ASSERT_EQ(Shapes().size(), 1u);
  EXPECT_EQ(Shapes()[0].UsedPen().style, kPenNull);
  EXPECT_TRUE(Shapes()[0].UsedBrush().null);
}

TEST_F(RedrawTest, BlackFillIsAFill) {
  ObjectRecord record = ShapeObject(kRectangle, 0, 0, 10, 10);
  record.FillColor = 0;
  Add(record);
  Redraw();
  EXPECT_FALSE(Shapes()[0].UsedBrush().null);
}

TEST_F(RedrawTest, PenWidthsStayTheSameNumberOfPixelsAt50And200Percent) {
  ObjectRecord record = ShapeObject(kRectangle, 0, 0, 10, 10);
  record.Param = 5;
  Add(record);
  for (const double zoom : {0.5, 1.0, 2.0}) {
    ZoomFactor = zoom;
    ReadyBoard();
    Redraw();
    EXPECT_EQ(Shapes()[0].UsedPen().width, 5) << zoom;
    EXPECT_NEAR(Mm(Shapes()[0].x2 - Shapes()[0].x1), 10, 1e-9) << zoom;
  }
  EXPECT_EQ(FirstOf(PageAfter(0, 0), What::kShape).UsedPen().width, 5);
}

struct LineRow {
  double width, height, to_x, to_y;
};

TEST_F(RedrawTest, LinesAreHorizontalOrVerticalNeverSlanted) {
  const std::vector<LineRow> rows = {
      {6, 5, 6, 0},  // wider than high
      {5, 5, 0, 5},  // as wide as high: vertical, 5 long
      {5, 6, 0, 6}, {10, 0.1, 10, 0}, {0.1, 10, 0, 10},
  };
  for (const LineRow& row : rows) {
    ObjectUB = -1;
    Add(ShapeObject(kLine, 10, 5, row.width, row.height));
    Redraw();
    ASSERT_EQ(Board().Of(What::kLine).size(), 1u);
    ExpectBox(Board().Of(What::kLine)[0], 110, 80, 110 + row.to_x, 80 + row.to_y,
              kPixelsPerMillimetre);
  }
}

TEST_F(RedrawTest, UnknownKindsPaintNothingButHaveAHitArea) {
  for (const int kind : {0, 4, 9, 14, 19, 21, -1, -2, -100}) {
    ObjectRecord record = ShapeObject(kBlank, 5, 6, 7, 8);
    record.ObjType = static_cast<std::int16_t>(kind);
    Add(record);
  }
  Redraw();
  EXPECT_TRUE(Shapes().empty());
  EXPECT_EQ(Board().painted.size(), 2u);
  EXPECT_EQ(HoldAt(8).Left(), 105);
}

TEST_F(RedrawTest, ObjectsPaintInArrayOrderAndPastTheLabelsEdge) {
  Add(ShapeObject(kEllipse, 90, 40, 50, 50));
  Add(ShapeObject(kRectangle, 0, 0, 1, 1));
  Redraw();
  EXPECT_EQ(Shapes()[0].Shape(), ShapeKind::kEllipse);
  EXPECT_EQ(Shapes()[1].Shape(), ShapeKind::kRectangle);
  ExpectBox(Shapes()[0], 190, 115, 240, 165, kPixelsPerMillimetre);
}

TEST_F(RedrawTest, TargetInMillimetresTakesTheZoomAsAFactor) {
  Add(ShapeObject(kRectangle, 10, 10, 10, 10));
  RecordingSurface target(12000, 9000);
  target.Scale().SetScaleMode(kMillimetres);
  DrawTarget = &target;
  ZoomFactor = 2;
  RedrawBoard();
  const Painted shape = target.Of(What::kShape).back();
  EXPECT_NEAR(shape.x2 - shape.x1, 10 * kPixelsPerMillimetre * 2, 1e-6);
}

TEST_F(RedrawTest, LabelIsPaintedAsACopyAndObjectsWithSolidStyle) {
  Board().DrawMode = kMaskPen;
  Board().DrawStyle = 5;
  Board().ForeColor = Rgb(9, 9, 9);
  Redraw();
  EXPECT_EQ(Board().Of(What::kShape)[0].draw_mode, kCopyPen);
  EXPECT_EQ(Board().DrawStyle, 0);
  EXPECT_EQ(Board().ForeColor, 0);
}

TEST_F(RedrawTest, RecordsThatAreNoNumbersPaintNothingAndKeepTheirHitAreasSizes) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  for (const Kind kind : {kLine, kRectangle, kRoundedRectangle, kEllipse, kText}) {
    for (const double odd : {kNoNumber, kInfinity, -kInfinity}) {
      ObjectUB = -1;
      ObjectRecord record = ShapeObject(kind, static_cast<float>(odd), 1, odd, odd);
      record.Text = "abc";
      record.FontSize = odd;
      Add(record);
      HoldAt(0).Move(0, 0, 3, 4);
      Redraw();
      EXPECT_EQ(Board().painted.size(), 2u) << kind << ' ' << odd;
      const bool refused = !(odd > 0);  // endless is a size like another
      EXPECT_EQ(HoldAt(0).Width(), refused ? 3 : kInfinity) << kind << ' ' << odd;
      EXPECT_EQ(HoldAt(0).Height(), refused ? 4 : kInfinity) << kind << ' ' << odd;
    }
  }
}

TEST_F(RedrawTest, LabelOfAnImpossibleSizeStillRedraws) {
  frmMain.mnuFileRulers.SetChecked(true);
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  for (const double odd : {std::numeric_limits<double>::quiet_NaN(), 3.4e38, -3.4e38}) {
    LabelWidth = LabelHeight = odd;
    EXPECT_NO_THROW(Redraw()) << odd;
    EXPECT_NO_THROW(PageAfter(0, 0)) << odd;
  }
}

// --- barcodes, texts, pictures ------------------------------------------------------------------

TEST_F(RedrawTest, BarcodeGoesToItsPainterAndToNobodyWhileThereIsNone) {
  ObjectRecord record = ShapeObject(kBarcode, 10, 5, 30, 20);
  record.Text = " 123 ";
  record.Param = 9;
  record.FontName = "Arial";
  record.FontSize = 6;
  record.Bold = kTrue;
  Add(record);
  ZoomFactor = 2;
  ReadyBoard();
  Redraw();
  EXPECT_EQ(Board().painted.size(), 2u);
  int calls = 0;
  PaintBarcode = [&](const std::string& data, std::int16_t format, float x, float y, double height,
                     double width, bool characters, double size, const std::string& name) {
    ++calls;
    EXPECT_EQ(data, "123");
    EXPECT_EQ(format, 9);
    EXPECT_EQ(x, 35);  // origin (150 - 100) / 2 = 25
    EXPECT_EQ(y, 30);
    EXPECT_EQ(height, 20);
    EXPECT_EQ(width, 30);
    EXPECT_TRUE(characters);
    EXPECT_EQ(size, 12);
    EXPECT_EQ(name, "Arial");
  };
  Redraw();
  EXPECT_EQ(calls, 1);
}

TEST_F(RedrawTest, TextTakesItsFontTimesTheZoom) {
  ObjectRecord record = TextObject("Abc", 10, 5);
  record.FontName = "Times New Roman";
  record.FontSize = 12;
  record.Bold = kTrue;
  record.Italic = kTrue;
  record.ForeColor = Rgb(9, 8, 7);
  Add(record);
  ZoomFactor = 2;
  ReadyBoard();
  Redraw();
  const Painted text = Board().Of(What::kText)[0];
  EXPECT_EQ(text.Font(), (FontSpec{"Times New Roman", 24, true, true}));
  EXPECT_EQ(text.color, Rgb(9, 8, 7));
  EXPECT_NEAR(Mm(text.x1), 35, 1e-9);
  EXPECT_NEAR(Mm(text.y1), 30, 1e-9);
}

TEST_F(RedrawTest, DataFieldsAreNeverItalic) {
  ObjectRecord record = Field(0, 0);
  record.Italic = kTrue;
  record.Bold = kTrue;
  Add(record);
  Redraw();
  EXPECT_FALSE(Board().Of(What::kText)[0].Font().Italic);
  EXPECT_TRUE(Board().Of(What::kText)[0].Font().Bold);
}

TEST_F(RedrawTest, OpenFontComesFromThePanelAndThatSizeIsNotZoomed) {
  ObjectRecord record = TextObject("Abc");
  record.FontName = "";
  record.FontSize = 0;
  Add(record);
  frmMain.cboFont.SetText("Courier New");
  frmMain.cboSize.SetText("14");
  ZoomFactor = 2;
  ReadyBoard();
  Redraw();
  EXPECT_EQ(Board().Of(What::kText)[0].Font().Name, "Courier New");
  EXPECT_EQ(Board().Of(What::kText)[0].Font().Size, 14);
}

TEST_F(RedrawTest, OpenFontWithoutANumberOnThePanelPaintsNothing) {
  ObjectRecord record = TextObject("Abc");
  record.FontSize = 0;
  Add(record);
  frmMain.cboSize.SetText("large");
  Redraw();
  EXPECT_TRUE(Board().Of(What::kText).empty());
}

TEST_F(RedrawTest, LeadingBlanksOfATextAreCutAwayByTheRedraw) {
  Add(TextObject("   Abc", 10, 5));
  Redraw();
  EXPECT_EQ(Board().Texts(), std::vector<std::string>{"Abc"});
  EXPECT_NEAR(Mm(Board().Of(What::kText)[0].x1), 110, 1e-9);
}

TEST_F(RedrawTest, PictureIsStretchedIntoItsBox) {
  Add(PictureObject(Made("a.gif", "picture")));
  Redraw();
  ASSERT_EQ(Board().Of(What::kPicture).size(), 1u);
  ExpectBox(Board().Of(What::kPicture)[0], 101, 77, 131, 97, kPixelsPerMillimetre);
  EXPECT_NE(frmMain.picTemp.Image(), nullptr);
}

TEST_F(RedrawTest, PictureIsReadAnewInEachRedraw) {
  const std::string path = Made("a.gif", "picture");
  Add(PictureObject(path));
  Redraw();
  const PicturePtr first = frmMain.picTemp.Image();
  Redraw();
  EXPECT_NE(frmMain.picTemp.Image(), first);
}

TEST_F(RedrawTest, MissingPictureIsReportedAtEveryRedrawAndPaintsNothing) {
  Add(PictureObject(Made("a.gif", "picture")));
  Add(PictureObject("/nowhere/b.gif"));
  Add(ShapeObject(kRectangle, 0, 0, 1, 1));
  Redraw();
  Redraw();
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text, "The file: /nowhere/b.gif has been removed");
  EXPECT_EQ(dialogs.messages[1].text, "The file: /nowhere/b.gif has been removed");
  EXPECT_EQ(Board().Of(What::kPicture).size(), 1u) << "not the one before it again";
  EXPECT_EQ(Shapes().size(), 1u) << "the rest is painted";
  EXPECT_EQ(ObjectUB, 2) << "the record stays";
}

TEST_F(RedrawTest, UnreadablePictureDropsTheNewestObjectAndLeavesAtOnce) {
  Add(PictureObject(Made("bad.gif", "rubbish")));
  Add(ShapeObject(kRectangle, 0, 0, 1, 1));
  HoldAt(0).SetVisible(true);
  HoldAt(1).SetVisible(true);
  ShowHandles(HoldAt(0));
  RedrawSkip = 7;
  Redraw();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "Invalid Picture Format");
  EXPECT_EQ(ObjectUB, 0) << "not the picture but the last record";
  EXPECT_EQ(DirtyFlag, kTrue) << "the label's file still has it";
  EXPECT_FALSE(HoldAt(0).Visible()) << "the hit area of the new bound";
  EXPECT_TRUE(HoldAt(1).Visible());
  for (int i = 0; i < 4; ++i) EXPECT_FALSE(frmMain.lblHandle(i).Visible()) << i;
  EXPECT_TRUE(Shapes().empty()) << "nothing after it is painted";
  // What the last steps would have put back stays as it is.
  EXPECT_EQ(RedrawSkip, 7);
  EXPECT_TRUE(Board().AutoRedraw);
  EXPECT_FALSE(frmMain.shpBox.Visible());
}

// It would point past the end, and the next Delete would take an innocent object.
TEST_F(RedrawTest, AfterAnUnreadablePictureNothingIsSelected) {
  Add(ShapeObject(kRectangle, 0, 0, 1, 1));
  Add(PictureObject(Made("bad.gif", "rubbish")));
  SelectedObject = 1;
  frmMain.mnuEditCut.SetEnabled(true);
  ShowHandles(HoldAt(1));
  Redraw();
  EXPECT_EQ(ObjectUB, 0);
  EXPECT_EQ(SelectedObject, -1);
  EXPECT_FALSE(frmMain.mnuEditCut.Enabled());
  EXPECT_FALSE(frmMain.shpBox.Visible());

  Add(PictureObject(Made("bad.gif", "rubbish")));
  SelectedMember(0) = 0;
  SelectedMember(1) = 1;
  SelectedUpper = 1;
  Redraw();
  EXPECT_EQ(SelectedUpper, -1);
}

TEST_F(RedrawTest, UnreadablePictureAsTheOnlyObjectEmptiesTheDocument) {
  Add(PictureObject(Made("bad.gif", "rubbish")));
  Redraw();
  EXPECT_EQ(ObjectUB, -1);
}

TEST_F(RedrawTest, UnreadablePictureInTheMiddleOfAJobLeavesThePrintersZoom) {
  Add(PictureObject(Made("bad.gif", "rubbish")));
  ZoomFactor = 2;
  PageAfter(0, 0);
  EXPECT_EQ(ZoomFactor, 1);
  EXPECT_EQ(ObjectUB, -1);
}

// --- hit areas ----------------------------------------------------------------------------------

TEST_F(RedrawTest, HitAreasAreMadeAndPlacedOverTheirObjects) {
  for (int i = 0; i < 4; ++i) Add(ShapeObject(kRectangle, 1.0f + static_cast<float>(i), 2, 3, 4));
  Redraw();
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(HoldAt(i).Left(), 101 + i);
    EXPECT_EQ(HoldAt(i).Top(), 77);
    EXPECT_EQ(HoldAt(i).Width(), 3);
    EXPECT_EQ(HoldAt(i).Height(), 4);
  }
  EXPECT_TRUE(HoldAt(3).Visible());
}

TEST_F(RedrawTest, MeasuringEndsForEveryHitAreaButTheSelectedOnes) {
  for (int i = 0; i < 2; ++i) {
    Add(TextObject("Abc"));
    HoldAt(i).SetCaption("Abc");
    HoldAt(i).SetAutoSize(true);
  }
  SelectedObject = 1;
  Redraw();
  EXPECT_EQ(HoldAt(0).Caption(), "");
  EXPECT_FALSE(HoldAt(0).AutoSize());
  EXPECT_EQ(HoldAt(1).Caption(), "Abc");
  EXPECT_TRUE(HoldAt(1).AutoSize());
}

// What its hit area shows would stand twice on the board, and stay when it is erased.
TEST_F(RedrawTest, AnOpenTextIsLeftToItsHitAreaWhichFollowsTheLabel) {
  Add(TextObject("open", 10, 10));
  Add(TextObject("other", 10, 20));
  SelectedObject = 0;
  HoldAt(0).SetVisible(true);
  HoldAt(0).SetCaption("open");
  Redraw();
  ASSERT_EQ(Board().Of(What::kText).size(), 1u);
  EXPECT_EQ(Board().Of(What::kText)[0].Text(), "other");
  EXPECT_EQ(HoldAt(0).Left(), 110);
  frmMain.hS1.SetValue(260);
  Redraw();
  EXPECT_EQ(Board().Of(What::kText).size(), 1u);
  EXPECT_EQ(HoldAt(0).Left(), 100);
}

TEST_F(RedrawTest, AnOpenTextIsPrinted) {
  Add(TextObject("open", 10, 10));
  SelectedObject = 0;
  HoldAt(0).SetVisible(true);
  HoldAt(0).SetCaption("open");
  EXPECT_EQ(FirstOf(PageAfter(0, 0), What::kText).Text(), "open");
}

TEST_F(RedrawTest, ATextThatIsSelectedButNotOpenIsPainted) {
  Add(TextObject("selected", 10, 10));
  SelectedObject = 0;
  HoldAt(0).SetVisible(true);
  Redraw();
  EXPECT_EQ(Board().Of(What::kText).size(), 1u);
  HoldAt(0).SetCaption("selected");
  HoldAt(0).SetVisible(false);  // nobody sees that one
  Redraw();
  EXPECT_EQ(Board().Of(What::kText).size(), 1u);
}

TEST_F(RedrawTest, NegativeSizeLeavesTheHitAreasFormerOne) {
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  Redraw();
  ObjectAt(0).Width = -5;
  ObjectAt(0).Height = 6;
  ObjectAt(0).Left = 2;
  Redraw();
  EXPECT_EQ(HoldAt(0).Left(), 102);
  EXPECT_EQ(HoldAt(0).Width(), 3);
  EXPECT_EQ(HoldAt(0).Height(), 6);
}

TEST_F(RedrawTest, SkippedObjectIsNeitherPaintedNorPlacedAndTheMarkIsConsumed) {
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  Add(ShapeObject(kEllipse, 1, 2, 3, 4));
  HoldAt(0).Move(7, 8);
  RedrawSkip = 0;
  Redraw();
  ASSERT_EQ(Shapes().size(), 1u);
  EXPECT_EQ(Shapes()[0].Shape(), ShapeKind::kEllipse);
  EXPECT_EQ(HoldAt(0).Left(), 7);
  EXPECT_EQ(RedrawSkip, -1);
  Redraw();
  EXPECT_EQ(Shapes().size(), 2u);
}

// --- the end of a pass --------------------------------------------------------------------------

TEST_F(RedrawTest, SelectedObjectGetsItsHandlesButNotAGroup) {
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  SelectedObject = 0;
  SelectedUpper = 0;
  Redraw();
  EXPECT_FALSE(frmMain.lblHandle(0).Visible());
  SelectedUpper = -1;
  Redraw();
  EXPECT_TRUE(frmMain.lblHandle(0).Visible());
  EXPECT_EQ(frmMain.shpBox.Left(), 101);
}

TEST_F(RedrawTest, RubberFrameKeepsTheVisibilityItHadEvenAroundASelectedObject) {
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  SelectedObject = 0;
  frmMain.shpBox.SetVisible(false);
  Redraw();
  EXPECT_FALSE(frmMain.shpBox.Visible());
  frmMain.shpBox.SetVisible(true);
  SelectedObject = -1;
  Redraw();
  EXPECT_TRUE(frmMain.shpBox.Visible());
}

TEST_F(RedrawTest, VisibleCrossHairsMoveWithTheLabel) {
  HairPositionX = 12;
  HairPositionY = 13;
  frmMain.HairX.SetVisible(true);
  frmMain.HairY.SetVisible(true);
  Redraw();
  EXPECT_EQ(frmMain.HairX.X1(), 112);
  EXPECT_EQ(frmMain.HairX.X2(), 112);
  EXPECT_EQ(frmMain.HairY.Y1(), 88);
  EXPECT_EQ(frmMain.HairY.Y2(), 88);
  frmMain.HairX.SetVisible(false);
  frmMain.hS1.SetValue(260);
  Redraw();
  EXPECT_EQ(frmMain.HairX.X1(), 112) << "a hidden one stays";
}

class RuleRedrawTest : public RedrawTest {
 protected:
  RuleRedrawTest() {
    MagRuleX = 40;
    MagRuleY = 20;
    frmMain.lnMX.SetVisible(true);
    frmMain.lnMY.SetVisible(true);
  }
  ~RuleRedrawTest() override {
    MagRuleX = MagRuleY = -1;
    DraggingRuleX = DraggingRuleY = false;
  }

  // On the label, and from edge to edge of the board.
  static void ExpectRulesOnTheLabel(const std::string& after) {
    SCOPED_TRACE(after);
    const PictureBox& board = frmMain.picBoard;
    EXPECT_EQ(frmMain.lnMX.X1(), 40 + BoardOriginX);
    EXPECT_EQ(frmMain.lnMX.X2(), 40 + BoardOriginX);
    EXPECT_EQ(frmMain.lnMX.Y1(), 0);
    EXPECT_EQ(frmMain.lnMX.Y2(), board.ScaleHeight());
    EXPECT_EQ(frmMain.lnMY.Y1(), 20 + BoardOriginY);
    EXPECT_EQ(frmMain.lnMY.Y2(), 20 + BoardOriginY);
    EXPECT_EQ(frmMain.lnMY.X1(), 0);
    EXPECT_EQ(frmMain.lnMY.X2(), board.ScaleWidth());
  }
};

TEST_F(RuleRedrawTest, MagneticRulesStayOnTheirPlaceOfTheLabelAcrossTheWholeBoard) {
  Redraw();
  EXPECT_EQ(frmMain.lnMX.X1(), 140);
  ExpectRulesOnTheLabel("the first redraw");
  frmMain.hS1.SetValue(270);
  frmMain.vS1.SetValue(230);
  Redraw();
  EXPECT_EQ(frmMain.lnMX.X1(), 120);
  EXPECT_EQ(frmMain.lnMY.Y1(), 115);
  ExpectRulesOnTheLabel("scrolling");
  ZoomFactor = 2;
  ReadyBoard();
  Redraw();
  ExpectRulesOnTheLabel("a zoom");
  ReadyBoard(400, 310);
  Redraw();
  ExpectRulesOnTheLabel("a larger board");
  LabelWidth = 60;
  Redraw();
  ExpectRulesOnTheLabel("another label");
}

TEST_F(RuleRedrawTest, ARuleThatIsRemovedStaysAway) {
  frmMain.lnMX.SetVisible(false);
  frmMain.lnMX.SetX1(7);
  Redraw();
  EXPECT_FALSE(frmMain.lnMX.Visible());
  EXPECT_EQ(frmMain.lnMX.X1(), 7);
}

// It has no place on the label before it is released.
TEST_F(RuleRedrawTest, ARuleInTheHandStaysUnderThePointer) {
  DraggingRuleX = DraggingRuleY = true;
  frmMain.lnMX.SetX1(33);
  frmMain.lnMX.SetX2(33);
  frmMain.lnMY.SetY1(44);
  frmMain.lnMY.SetY2(44);
  Redraw();
  EXPECT_EQ(frmMain.lnMX.X1(), 33);
  EXPECT_EQ(frmMain.lnMX.X2(), 33);
  EXPECT_EQ(frmMain.lnMX.Y2(), 200);
  EXPECT_EQ(frmMain.lnMY.Y1(), 44);
  EXPECT_EQ(frmMain.lnMY.Y2(), 44);
  EXPECT_EQ(frmMain.lnMY.X2(), 300);
}

// What is printed has an origin of its own.
TEST_F(RuleRedrawTest, PrintingLeavesTheRulesAlone) {
  Redraw();
  PageAfter(13, 17);
  EXPECT_EQ(frmMain.lnMX.X1(), 140);
  EXPECT_EQ(frmMain.lnMY.Y1(), 95);
}

TEST_F(RedrawTest, TheRubberFrameHasTheCornersThatTheObjectWillHave) {
  Add(ShapeObject(kRoundedRectangle, 1, 2, 30, 20));
  for (const double zoom : {0.2, 1.0, 1.3, 7.5}) {
    ZoomFactor = zoom;
    ReadyBoard();
    Redraw();
    EXPECT_EQ(frmMain.shpBox.CornerSize(), Shapes().at(0).CornerWidth()) << zoom;
  }
  EXPECT_EQ(frmMain.shpBox.CornerSize(), 90);
}

TEST_F(RedrawTest, PaintingReplacesThePersistentImageAndTheViewHearsOnce) {
  struct Counter : ControlView {
    int images = 0;
    void Changed(const Control& control, Aspect aspect) override {
      if (aspect == Aspect::kImage && control.Name() == "picBoard") ++images;
    }
  } counter;
  frmMain.picBoard.AttachView(&counter);
  Redraw();
  frmMain.picBoard.AttachView(nullptr);
  EXPECT_EQ(counter.images, 1);
  EXPECT_FALSE(Board().AutoRedraw);
}

// --- printing -----------------------------------------------------------------------------------

TEST_F(RedrawTest, PrintOpensAPageOnThePrinterAndPaintsNoBackground) {
  const auto page = PageAfter(0, 0);
  EXPECT_EQ(CountOf(page, What::kOpen), 1u);
  EXPECT_EQ(CountOf(page, What::kShape), 0u);
  EXPECT_EQ(CountOf(page, What::kClear), 0u);
  EXPECT_EQ(Printer().Page().BackgroundMode(), kTransparentBackground);
  EXPECT_TRUE(Board().painted.empty());
}

TEST_F(RedrawTest, PrintLeavesASolidBlackPenOfOnePixelForWhatFollows) {
  Printer().Page().ForeColor = Rgb(9, 9, 9);
  Printer().Page().DrawStyle = 5;
  PageAfter(0, 0);
  EXPECT_EQ(Printer().Page().ForeColor, 0);
  EXPECT_EQ(Printer().Page().DrawStyle, 0);
  EXPECT_EQ(Printer().Page().SelectedPen().style, kPenSolid);
  EXPECT_EQ(Printer().Page().SelectedPen().width, 1);
  EXPECT_EQ(Printer().Page().SelectedPen().color, 0);
}

TEST_F(RedrawTest, PrintMakesThePrinterTheTargetAndKeepsTheZoom) {
  ZoomFactor = 3;
  RedrawBoard(10, 20, true);
  EXPECT_EQ(DrawTarget, &Printer().Page());
  EXPECT_EQ(ZoomFactor, 3);
}

TEST_F(RedrawTest, PrintPlacesByOffsetAndPrintOffset) {
  ZoomFactor = 3;
  ProgSettings.PrintOffsetX = 2;
  ProgSettings.PrintOffsetY = -1;
  Add(ShapeObject(kRectangle, 10, 5, 30, 20));
  const auto page = PageAfter(100.25, 50.5);
  ExpectBox(FirstOf(page, What::kShape), 112.25, 54.5, 142.25, 74.5, kPrinterPixels);
  EXPECT_EQ(BoardOriginX, 102.25) << "unrounded";
}

TEST_F(RedrawTest, PrintLeavesHitAreasAndRulersAloneAndDropsTheSkipMark) {
  Add(ShapeObject(kRectangle, 10, 5, 30, 20));
  HoldAt(0).Move(7, 8);
  frmMain.mnuFileRulers.SetChecked(true);
  RedrawSkip = 0;
  const auto page = PageAfter(0, 0);
  EXPECT_EQ(CountOf(page, What::kShape), 1u);
  EXPECT_EQ(CountOf(page, What::kBox), 0u);
  EXPECT_EQ(HoldAt(0).Left(), 7);
  EXPECT_EQ(RedrawSkip, -1);
}

TEST_F(RedrawTest, PrintShowsTheSelectionAndEndsMeasuringAlsoOffTheLabel) {
  Add(ShapeObject(kRectangle, 10, 5, 30, 20));
  Add(TextObject("Abc", -50, 0));
  HoldAt(1).SetCaption("Abc");
  HoldAt(1).SetAutoSize(true);
  SelectedObject = 0;
  PageAfter(0, 0);
  EXPECT_TRUE(frmMain.lblHandle(0).Visible());
  EXPECT_EQ(HoldAt(1).Caption(), "");
  EXPECT_FALSE(HoldAt(1).AutoSize());
}

struct EdgeRow {
  float left, top;
  bool printed;
};

TEST_F(RedrawTest, ObjectsWhoseCornerIsMoreThanTwoMillimetresOutsideAreNotPrinted) {
  LabelWidth = 99.06;  // its float sum with 2 is not the double one
  LabelHeight = 38.1;
  const float right = static_cast<float>(LabelWidth + 2);
  const float bottom = static_cast<float>(LabelHeight + 2);
  const std::vector<EdgeRow> rows = {
      {-2, 0, true},     {-2.1f, 0, false},
      {0, -2, true},     {0, -2.1f, false},
      {right, 0, true},  {std::nextafter(right, 1000.0f), 0, false},
      {0, bottom, true}, {0, std::nextafter(bottom, 1000.0f), false},
  };
  for (const EdgeRow& row : rows) {
    ObjectUB = -1;
    Add(ShapeObject(kRectangle, row.left, row.top, 500, 500));
    EXPECT_EQ(CountOf(PageAfter(0, 0), What::kShape), row.printed ? 1u : 0u)
        << row.left << ' ' << row.top;
    Redraw();
    EXPECT_EQ(Shapes().size(), 1u) << "the screen shows it all the same";
  }
}

TEST_F(RedrawTest, PreviewPaintsWhiteLabelsAtTheRatioOfItsPicture) {
  // A picture three times the page, its user scale the page in millimetres.
  const double width = Printer().Width(), height = Printer().Height();
  RecordingSurface paper(3 * width, 3 * height);
  paper.Scale().SetScaleWidth(210);
  paper.Scale().SetScaleHeight(297);
  DrawTarget = &paper;
  PreviewMode = true;
  PreviewPaperWidth = 3 * width;
  Add(ShapeObject(kRectangle, 10, 5, 30, 20));
  Add(TextObject("Abc", 10, 5));
  ZoomFactor = 0.5;
  ProgSettings.PrintOffsetX = 4;
  RedrawBoard(20.5, 31.5, true);
  EXPECT_EQ(DrawTarget, &paper);
  EXPECT_EQ(ZoomFactor, 0.5);
  const double pixels = 3 * kPixelsPerMillimetre;
  const auto shapes = paper.Of(What::kShape);
  ASSERT_EQ(shapes.size(), 2u);
  EXPECT_EQ(shapes[0].UsedPen().style, kPenNull);
  EXPECT_EQ(shapes[0].UsedBrush().color, 0xFFFFFF);
  EXPECT_EQ(shapes[0].CornerWidth(), 24);
  // The background is rounded to whole millimetres, halves to the even one, without print offset.
  ExpectBox(shapes[0], 20, 32, 120, 82, pixels);
  ExpectBox(shapes[1], 34.5, 36.5, 64.5, 56.5, pixels);
  const Painted text = paper.Of(What::kText)[0];
  EXPECT_NEAR(text.Font().Size, 3 * kTenMillimetres, 1e-9);
  EXPECT_NEAR(text.x1, 34.5 * pixels, 1e-6);
}

// --- faults -------------------------------------------------------------------------------------

TEST_F(RedrawTest, PrintWithoutAPrinterCarriesOnAndShowsItsFaultToWhoeverAskedForIt) {
  printers.names.clear();
  ResetPrinter();
  RedrawBoard(0, 0, true);
  EXPECT_TRUE(dialogs.messages.empty());
  WriteFile(AppFolder + "tracemark.flg", "");
  RedrawBoard(0, 0, true);
  ASSERT_FALSE(dialogs.messages.empty());
  EXPECT_TRUE(dialogs.messages[0].text.starts_with("482 - ")) << dialogs.messages[0].text;
}

TEST_F(RedrawTest, BoundBeyondTheArrayIsPassedOver) {
  Add(ShapeObject(kRectangle, 1, 2, 3, 4));
  ObjectUB = 2;
  Redraw();
  EXPECT_EQ(Shapes().size(), 1u);
}

TEST_F(RedrawTest, FaultInABarcodeIsPassedOverAndTheRestIsPainted) {
  PaintBarcode = [](const std::string&, std::int16_t, float, float, double, double, bool, double,
                    const std::string&) { RaiseFault(kOverflow); };
  Add(ShapeObject(kBarcode, 0, 0, 1, 1));
  Add(ShapeObject(kRectangle, 0, 0, 1, 1));
  Redraw();
  EXPECT_EQ(Shapes().size(), 1u);
  EXPECT_EQ(HoldAt(0).Left(), 100) << "its hit area too";
}

}  // namespace
}  // namespace tagwright
