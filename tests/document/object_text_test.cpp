#include "document/object_text.h"

#include <cmath>

#include "document/document_support.h"
#include "document/redraw.h"
#include "platform/faults/fault.h"

namespace tagwright {
namespace {

using What = Painted::What;

struct BarcodeCall {
  std::string data;
  std::int16_t format;
  float x, y;
  double height, width;
  bool characters;
  double size;
  std::string font;
};

// Paints on a page of its own in millimetres. The day is 14 March 2026, shown "3/14/2026".
class ObjectTextTest : public LabelTest {
 protected:
  ObjectTextTest() : page_(12000, 9000) {
    page_.Scale().SetScaleMode(kMillimetres);
    DrawTarget = &page_;
    BoardOriginX = 20;
    BoardOriginY = 30;
    PaintBarcode = [this](const std::string& data, std::int16_t format, float x, float y,
                          double height, double width, bool characters, double size,
                          const std::string& font) {
      barcodes_.push_back({data, format, x, y, height, width, characters, size, font});
    };
  }
  ~ObjectTextTest() override { PaintBarcode = nullptr; }

  void Paint(const ObjectRecord& record, bool output = true) {
    page_.painted.clear();
    barcodes_.clear();
    if (ObjectUB < 0) Add(record);
    ObjectAt(0) = record;
    page_.Font = {"Arial", record.FontSize, false, false};
    page_.ForeColor = record.ForeColor;
    PaintObjectText(0, output);
  }

  std::vector<std::string> Printed(const std::string& text) {
    Paint(TextObject(text));
    return page_.Texts();
  }

  std::vector<std::string> PrintedField(const std::string& value, std::int32_t format) {
    FieldValues[3] = value;
    Paint(Field(3, format));
    return page_.Texts();
  }

  std::vector<Painted> Texts() { return page_.Of(What::kText); }
  static double Mm(double pixels) { return pixels / kPixelsPerMillimetre; }

  RecordingSurface page_;
  std::vector<BarcodeCall> barcodes_;
};

using Lines = std::vector<std::string>;

// --- lines and alignment ------------------------------------------------------------------------

TEST_F(ObjectTextTest, LinesStandOneLineHeightApart) {
  Paint(TextObject("ab\r\ncde\r\n\r\nf", 1, 2));
  ASSERT_EQ(page_.Texts(), (Lines{"ab", "cde", "f"}));
  EXPECT_NEAR(Mm(Texts()[0].y1), 32, 1e-9);
  EXPECT_NEAR(Mm(Texts()[1].y1), 32 + kLineHeight, 1e-9);
  EXPECT_NEAR(Mm(Texts()[2].y1), 32 + 3 * kLineHeight, 1e-9) << "an empty line takes its room";
  EXPECT_NEAR(Mm(Texts()[2].x1), 21, 1e-9);
}

TEST_F(ObjectTextTest, EachLineIsTrimmedOfBlanksAtBothEnds) {
  Paint(TextObject("  a  \r\n   b c  "));
  EXPECT_EQ(page_.Texts(), (Lines{"a", "b c"}));
}

TEST_F(ObjectTextTest, ThreeCentredLinesAreEachCentredByThemselves) {
  ObjectRecord record = TextObject("ab\r\nabcd\r\na", 10, 0);
  record.Width = 30;
  record.Param = 2;
  Paint(record);
  // (30 - 5n) / 2 + 10 + 20 for n characters.
  EXPECT_NEAR(Mm(Texts()[0].x1), 40, 1e-9);
  EXPECT_NEAR(Mm(Texts()[1].x1), 35, 1e-9);
  EXPECT_NEAR(Mm(Texts()[2].x1), 42.5, 1e-9);
}

TEST_F(ObjectTextTest, RightAlignedLinesEndAtTheRightEdge) {
  ObjectRecord record = TextObject("ab\r\nabcd", 10, 0);
  record.Width = 30;
  record.Param = 1;
  Paint(record);
  ASSERT_EQ(page_.Texts(), (Lines{"ab", "abcd"}));
  for (const Painted& text : Texts()) EXPECT_NEAR(Mm(text.x2), 60, 1e-9);
}

TEST_F(ObjectTextTest, OtherAlignmentCodesAreLeft) {
  for (const std::int16_t code : std::vector<std::int16_t>{0, 3, -1, 32767}) {
    ObjectRecord record = TextObject("ab", 10, 0);
    record.Width = 30;
    record.Param = code;
    Paint(record);
    EXPECT_NEAR(Mm(Texts()[0].x1), 30, 1e-9) << code;
  }
}

TEST_F(ObjectTextTest, DataFieldIsAlwaysLeftWhateverItsColumn) {
  FieldValues[1] = FieldValues[2] = "ab";
  for (const std::int16_t column : std::vector<std::int16_t>{1, 2}) {
    ObjectRecord record = Field(column, 0);
    record.Left = 10;
    record.Width = 30;
    Paint(record);
    EXPECT_NEAR(Mm(Texts()[0].x1), 30, 1e-9);
  }
}

TEST_F(ObjectTextTest, AlignmentMeasuresTheTokenNotItsReplacement) {
  ObjectRecord record = TextObject("[#SRNO]", 10, 0);  // seven characters, 35 mm
  record.Width = 50;
  record.Param = 1;
  SerialBarcodeType = -1;
  Paint(record);
  EXPECT_EQ(page_.Texts(), Lines{"1001"});
  EXPECT_NEAR(Mm(Texts()[0].x1), 20 + 10 + 50 - 35, 1e-9);
}

TEST_F(ObjectTextTest, TargetIsSetForText) {
  page_.DrawMode = 9;
  page_.FontTransparent = false;
  Paint(TextObject("a"));
  EXPECT_EQ(page_.DrawMode, 13);
  EXPECT_EQ(page_.DrawStyle, 1);
  EXPECT_TRUE(page_.FontTransparent);
}

// --- serial -------------------------------------------------------------------------------------

TEST_F(ObjectTextTest, SerialTokenIsReplacedEverywhereInTheLine) {
  SerialBarcodeType = -1;
  SerialPrefix = "A-";
  SerialValue = 70000;
  EXPECT_EQ(Printed("x[#SRNO]y[#SRNO]"), Lines{"xA-70000yA-70000"});
  EXPECT_TRUE(SerialUsed);
}

TEST_F(ObjectTextTest, SerialIsNotUsedWithoutItsTokenAndCaseMatters) {
  SerialBarcodeType = -1;
  EXPECT_EQ(Printed("[#srno] [#SRNO"), Lines{"[#srno] [#SRNO"});
  EXPECT_FALSE(SerialUsed);
}

TEST_F(ObjectTextTest, SerialBarcodeInTheSecondLineEndsTheObjectThere) {
  SerialPrefix = "N";
  SerialBarcodeType = 7;
  SerialPrintText = kFalse;
  ZoomFactor = 3;
  Paint(TextObject("first\r\nx [#SRNO]\r\nthird", 1, 2));
  EXPECT_EQ(page_.Texts(), Lines{"first"});
  ASSERT_EQ(barcodes_.size(), 1u);
  EXPECT_EQ(barcodes_[0].data, "N1001");
  EXPECT_EQ(barcodes_[0].format, 7);
  EXPECT_EQ(barcodes_[0].x, 21);
  EXPECT_NEAR(barcodes_[0].y, 32 + kLineHeight, 1e-5);
  EXPECT_EQ(barcodes_[0].height, 15);
  EXPECT_EQ(barcodes_[0].width, 35);
  EXPECT_TRUE(barcodes_[0].characters) << "always, whatever the serial settings say";
  EXPECT_EQ(barcodes_[0].size, 6) << "not zoomed";
  EXPECT_EQ(barcodes_[0].font, "");
  EXPECT_TRUE(SerialUsed);
}

TEST_F(ObjectTextTest, SerialBarcodeWithoutAnEngineStillEndsTheObject) {
  PaintBarcode = nullptr;
  EXPECT_EQ(Printed("first\r\n[#SRNO]\r\nthird"), Lines{"first"});
}

TEST_F(ObjectTextTest, ScreenShowsTokensAsTyped) {
  Paint(TextObject("a [#SRNO]\r\n[#DT1]"), false);
  EXPECT_EQ(page_.Texts(), (Lines{"a [#SRNO]", "[#DT1]"}));
  EXPECT_TRUE(barcodes_.empty());
  EXPECT_FALSE(SerialUsed);
}

// --- dates --------------------------------------------------------------------------------------

TEST_F(ObjectTextTest, DateTokens) {
  const std::vector<std::pair<std::string, std::string>> rows = {
      {"[#DT0]", "3/14/2026"},
      {"[#DT]", "3/14/2026"},  // the empty number counts as 0
      {"[#DT-1]", "3/13/2026"},
      {"[#DT1]", "3/15/2026"},
      {"[#DT 18 ]", "4/1/2026"},
      {"[#DTabc]", "3/14/2026"},
      {"[#DT1.5]", "3/16/2026"},  // halves to the even number: 2
      {"[#DT0.5]", "3/14/2026"},
      {"[#DT32767]", "11/30/2115"},
      {"[#DT-32768]", "6/26/1936"},
      {"from [#DT1] to [#DT2]", "from 3/15/2026 to 3/16/2026"},
      {"[#DT1] [#DT1]", "3/15/2026 3/15/2026"},
      {"[#dt1]", "[#dt1]"},
      {"[#DT[#DT1]", "3/14/2026"},  // up to the next bracket
  };
  for (const auto& [text, shown] : rows) EXPECT_EQ(Printed(text), Lines{shown}) << text;
}

TEST_F(ObjectTextTest, OversizedNumberKeepsTheFormerOneAndAtFirstZero) {
  EXPECT_EQ(Printed("[#DT32768]"), Lines{"3/14/2026"});
  EXPECT_EQ(Printed("[#DT5] [#DT99999]"), Lines{"3/19/2026 3/19/2026"});
  EXPECT_EQ(Printed("[#DT5]\r\n[#DT99999]"), (Lines{"3/19/2026", "3/19/2026"}));
}

TEST_F(ObjectTextTest, LineWithADateIsBlackAndSoAreTheLinesAfterIt) {
  ObjectRecord record = TextObject("a\r\n[#DT0]\r\nb");
  record.ForeColor = Rgb(200, 0, 0);
  Paint(record);
  ASSERT_EQ(Texts().size(), 3u);
  EXPECT_EQ(Texts()[0].color, Rgb(200, 0, 0));
  EXPECT_EQ(Texts()[1].color, 0);
  EXPECT_EQ(Texts()[2].color, 0);
}

TEST_F(ObjectTextTest, UnclosedDateTokenPrintsAsItStandsInBlack) {
  WriteFile(AppFolder + "tracemark.flg", "");
  ObjectRecord record = TextObject("x [#DT5");
  record.ForeColor = Rgb(200, 0, 0);
  Paint(record);
  EXPECT_EQ(page_.Texts(), Lines{"x [#DT5"});
  EXPECT_EQ(Texts()[0].color, 0);
  EXPECT_EQ(dialogs.messages.size(), 1u) << "the marker file shows the fault";
}

TEST_F(ObjectTextTest, UnclosedDateTokenBehindAClosedOneLeavesThatOneReplaced) {
  EXPECT_EQ(Printed("[#DT1] [#DT2"), Lines{"3/15/2026 [#DT2"});
}

TEST_F(ObjectTextTest, SerialTextComesBeforeDates) {
  SerialBarcodeType = -1;
  SerialPrefix = "[#DT1]";
  EXPECT_EQ(Printed("[#SRNO]"), Lines{"3/15/20261001"});
}

TEST_F(ObjectTextTest, DataFieldsResolveNoTokens) {
  SerialBarcodeType = -1;
  EXPECT_EQ(PrintedField("[#SRNO] [#DT1]", 0), Lines{"[#SRNO] [#DT1]"});
  EXPECT_FALSE(SerialUsed);
}

// --- data fields --------------------------------------------------------------------------------

TEST_F(ObjectTextTest, FieldFormats) {
  struct Row {
    std::string value;
    std::int32_t format;
    Lines shown;
  };
  const std::vector<Row> rows = {
      {"1234.5", 0, {"1234.5"}},
      {"1234.5", 1, {"$1,234.50"}},
      {"-2", 1, {"-$2.00"}},
      {"1234.5", 2, {"1,234.50"}},
      {"abc", 2, {"abc"}},
      {"", 2, {}},
      {"abc", 0, {"abc"}},
      {"1", 3, {}},
      {"1", 99, {}},
      {"1", 151, {}},
      {"1", -1, {}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PrintedField(row.value, row.format), row.shown) << row.value << ' ' << row.format;
    EXPECT_TRUE(barcodes_.empty()) << row.format;
  }
}

TEST_F(ObjectTextTest, CurrencyOfANonNumberTakesTheColumnOfTheObjectWithTheFieldsColumnAsIndex) {
  FieldValues[2] = "abc";
  FieldValues[7] = "seven";
  Add(Field(2, 1));
  Add({});
  Add(Field(7, 0));  // index 2
  Paint(ObjectAt(0));
  EXPECT_EQ(page_.Texts(), Lines{"seven"});
}

TEST_F(ObjectTextTest, SecondIndirectionReachesRecordsBeyondTheBound) {
  FieldValues[1] = "abc";
  FieldValues[4] = "trailer";
  Add(Field(1, 1));
  Add(Field(4, 0));
  ObjectUB = 0;
  Paint(ObjectAt(0));
  EXPECT_EQ(page_.Texts(), Lines{"trailer"});
}

TEST_F(ObjectTextTest, SecondIndirectionOutsideTheArrayPrintsNothingAndIsTraced) {
  WriteFile(AppFolder + "tracemark.flg", "");
  EXPECT_EQ(PrintedField("abc", 1), Lines{});
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_TRUE(dialogs.messages[0].text.starts_with("9 - "));
}

TEST_F(ObjectTextTest, ColumnsOutsideTheSlotsPrintNothing) {
  FieldValues[100] = "last";
  for (const auto& [column, shown] : std::vector<std::pair<std::int16_t, Lines>>{
           {100, {"last"}}, {101, {}}, {-1, {}}, {32767, {}}}) {
    for (const std::int32_t format : {0, 2, 106}) {
      Paint(Field(column, format));
      EXPECT_EQ(page_.Texts(), format == 106 ? Lines{} : shown) << column;
      EXPECT_EQ(barcodes_.size(), format == 106 && !shown.empty() ? 1u : 0u) << column;
    }
  }
}

// The column fails before it can lead on to that of another object.
TEST_F(ObjectTextTest, CurrencyOfAColumnOutsideTheSlotsPrintsNothing) {
  FieldValues[4] = "x";
  for (int i = 0; i <= 101; ++i) Add(Field(4, 0));
  Paint(Field(101, 1));
  EXPECT_EQ(page_.Texts(), Lines{});
}

TEST_F(ObjectTextTest, ValuePrintsOncePerLineOfItsText) {
  FieldValues[3] = "v";
  Paint(Field(3, 0, "a\r\nb"));
  EXPECT_EQ(page_.Texts(), (Lines{"v", "v"}));
}

TEST_F(ObjectTextTest, ValueOfAFieldWithoutANamePrintsOnce) {
  FieldValues[3] = "v";
  Paint(Field(3, 0, ""));
  EXPECT_EQ(page_.Texts(), Lines{"v"});
}

TEST_F(ObjectTextTest, CurrencyFieldThatLeadsToItselfPrintsItsOwnValue) {
  FieldValues[0] = "abc";
  Paint(Field(0, 1));  // column 0 leads to object 0, whose column is 0
  EXPECT_EQ(page_.Texts(), Lines{"abc"});
}

TEST_F(ObjectTextTest, FieldBarcode) {
  FieldValues[3] = "4006381";
  ObjectRecord record = Field(3, 106);
  record.Left = 1;
  record.Top = 2;
  record.Width = 25;
  record.Height = 10;
  record.Italic = kTrue;
  ZoomFactor = 2;
  LabelWidth = 500;
  LabelHeight = 500;
  Paint(record);
  ASSERT_EQ(barcodes_.size(), 1u);
  EXPECT_EQ(barcodes_[0].data, "4006381");
  EXPECT_EQ(barcodes_[0].format, 6);
  EXPECT_EQ(barcodes_[0].x, 21);
  EXPECT_EQ(barcodes_[0].y, 32);
  EXPECT_EQ(barcodes_[0].height, 10);
  EXPECT_EQ(barcodes_[0].width, 25);
  EXPECT_TRUE(barcodes_[0].characters);
  EXPECT_EQ(barcodes_[0].size, 12);
  EXPECT_EQ(barcodes_[0].font, "");
  EXPECT_TRUE(page_.Texts().empty());
}

TEST_F(ObjectTextTest, FieldBarcodeFormatsRunFrom100To150AndSize0Means20By12) {
  LabelWidth = LabelHeight = 500;
  for (const std::int32_t format : {100, 113, 150}) {
    PrintedField("1", format);
    ASSERT_EQ(barcodes_.size(), 1u) << format;
    EXPECT_EQ(barcodes_[0].format, format - 100);
    EXPECT_EQ(barcodes_[0].width, 20);
    EXPECT_EQ(barcodes_[0].height, 12);
    EXPECT_FALSE(barcodes_[0].characters);
  }
}

// The test takes the origin off, the new size does not: both are meant.
TEST_F(ObjectTextTest, FieldBarcodeShrinksByTheFormulasAsTheyStand) {
  FieldValues[3] = "1";
  ObjectRecord record = Field(3, 100);
  record.Left = 60;
  record.Top = 70;
  record.Width = 50;
  record.Height = 20;
  // Label 100 by 50, origin (20, 30). Height: 70 - 30 + 20 = 60 > 50, so (50 - 70) x 0.9 = -18.
  // Width: x is 80; 80 - 20 + 50 = 110 > 100, so (100 - 80) x 0.9 = 18.
  Paint(record);
  ASSERT_EQ(barcodes_.size(), 1u);
  EXPECT_NEAR(barcodes_[0].height, -18, 1e-9);
  EXPECT_NEAR(barcodes_[0].width, 18, 1e-9);
  // Exactly at the edge nothing shrinks: 60 - 30 + 20 = 50 and 70 - 20 + 50 = 100.
  record.Left = 50;
  record.Top = 60;
  Paint(record);
  EXPECT_EQ(barcodes_[0].height, 20);
  EXPECT_EQ(barcodes_[0].width, 50);
}

// --- the screen's markers -----------------------------------------------------------------------

TEST_F(ObjectTextTest, ScreenShowsTheColumnsNameWithAMarkerOfItsFormat) {
  const std::vector<std::pair<std::int32_t, Lines>> rows = {
      {0, {"Name", "S"}},   {1, {"Name", "$"}},   {2, {"Name", "#"}},
      {100, {"Name", "B"}}, {125, {"Name", "B"}}, {126, {"Name"}},
      {99, {"Name"}},       {3, {"Name"}},        {-1, {"Name"}},
  };
  for (const auto& [format, shown] : rows) {
    Paint(Field(3, format, "Name"), false);
    EXPECT_EQ(page_.Texts(), shown) << format;
  }
}

TEST_F(ObjectTextTest, MarkerIsBlueHalfSizedBehindTheNameAndLeavesFontAndColourAlone) {
  ObjectRecord record = Field(3, 0, "ab\r\ncd");
  record.Left = 10;
  record.Top = 2;
  record.ForeColor = Rgb(200, 0, 0);
  Paint(record, false);
  ASSERT_EQ(page_.Texts(), (Lines{"ab", "S", "cd", "S"}));
  const Painted marker = Texts()[1];
  EXPECT_EQ(marker.color, Rgb(0, 0, 255));
  EXPECT_NEAR(marker.Font().Size, kTenMillimetres / 2, 1e-9);
  EXPECT_NEAR(Mm(marker.x1), 20 + 10 + 2 * kCharacter, 1e-9);
  EXPECT_NEAR(Mm(marker.y1), 32, 1e-9);
  EXPECT_EQ(Texts()[2].color, Rgb(200, 0, 0));
  EXPECT_NEAR(Texts()[2].Font().Size, kTenMillimetres, 1e-9);
  EXPECT_NEAR(page_.Font.Size, kTenMillimetres, 1e-9);
}

TEST_F(ObjectTextTest, TextsHaveNoMarker) {
  Paint(TextObject("ab"), false);
  EXPECT_EQ(page_.Texts(), Lines{"ab"});
}

TEST_F(ObjectTextTest, IndexOutsideTheArrayPaintsNothing) {
  PaintObjectText(5, true);
  PaintObjectText(-1, true);
  EXPECT_TRUE(page_.painted.empty());
}

}  // namespace
}  // namespace tagwright
