// The window "Serial Numbers" with its real controls, and what its state does on a label.
#include "layouts/serial_number.h"

#include <limits>

#include "barcode/formats.h"
#include "barcode/mod_bar_code.h"
#include "document/object_text.h"
#include "document/redraw.h"
#include "forms/frmMain.h"
#include "forms/frmSerialNumber.h"
#include "platform/controls/windows.h"
#include "platform/text/locale.h"
#include "shell/wiring.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

namespace sn = serial_number;

class SerialNumberTest : public ProgramTest {
 protected:
  SerialNumberTest() { WireForm<FrmSerialNumber> = WireSerialNumberWindow; }
  ~SerialNumberTest() override { WireForm<FrmSerialNumber> = nullptr; }

  static FrmSerialNumber& Opened() {
    Load(frmSerialNumber);
    return frmSerialNumber;
  }
  static void Save() { frmSerialNumber.cmdSave.Press(); }
};

// --- showing the state ---

TEST_F(SerialNumberTest, AFreshProgramBeginsAt1001WithoutAPrefix) {
  const FrmSerialNumber& f = Opened();
  EXPECT_EQ(f.Caption(), "Serial Numbers");
  EXPECT_EQ(f.txtSerPref.Text(), "");
  EXPECT_EQ(f.txtSerIncr.Text(), "1001");
  EXPECT_EQ(f.cboInc.Text(), "1");
  EXPECT_EQ(f.chkBCode.Value(), 1);
  EXPECT_EQ(f.cboBCode.Text(), "Code 128-A");
  EXPECT_EQ(f.txtBCodeWid(0).Text(), "35.000");
  EXPECT_EQ(f.txtBCodeWid(1).Text(), "15.000");
  EXPECT_EQ(f.lblUnit(0).Caption(), "mm");
  EXPECT_EQ(f.lblUnit(1).Caption(), "mm");
  EXPECT_EQ(f.chkTxt.Value(), 1);
}

TEST_F(SerialNumberTest, TheListsHoldOneToTenAndTheFormats) {
  const FrmSerialNumber& f = Opened();
  ASSERT_EQ(f.cboInc.ListCount(), 10);
  EXPECT_EQ(f.cboInc.List(0), "1");
  EXPECT_EQ(f.cboInc.List(9), "10");
  ASSERT_EQ(f.cboBCode.ListCount(), static_cast<int>(kBarcodeFormats.size()));
  EXPECT_EQ(f.cboBCode.List(13), "Royal Mail CBC");
}

TEST_F(SerialNumberTest, TheStateIsShown) {
  SerialPrefix = "AB";
  SerialValue = -7;
  SerialIncrement = 25;
  SerialBarcodeType = 9;
  SerialBarcodeWidth = 12.34567;
  SerialBarcodeHeight = 1.0 / 3;
  SerialPrintText = kFalse;
  const FrmSerialNumber& f = Opened();
  EXPECT_EQ(f.txtSerPref.Text(), "AB");
  EXPECT_EQ(f.txtSerIncr.Text(), "-7");
  EXPECT_EQ(f.cboInc.Text(), "25");
  EXPECT_EQ(f.cboBCode.ListIndex(), 9);
  EXPECT_EQ(f.txtBCodeWid(0).Text(), "12.346");
  EXPECT_EQ(f.txtBCodeWid(1).Text(), "0.333");
  EXPECT_EQ(f.chkTxt.Value(), 0);
}

TEST_F(SerialNumberTest, SizesUseTheUsersDecimalSymbol) {
  UserLocale locale;
  locale.decimal = ",";
  locale.group = ".";
  SetLocale(locale);
  const FrmSerialNumber& f = Opened();
  EXPECT_EQ(f.txtBCodeWid(0).Text(), "35,000");
  Save();
  EXPECT_EQ(SerialBarcodeWidth, 35);
}

TEST_F(SerialNumberTest, ANumberThatPrintsAsTextShowsABarcodeThatIsNotMeant) {
  SerialBarcodeType = -1;
  const FrmSerialNumber& f = Opened();
  EXPECT_EQ(f.chkBCode.Value(), 0);
  EXPECT_EQ(f.cboBCode.ListIndex(), 0);
  EXPECT_FALSE(f.cboBCode.Enabled());
  EXPECT_EQ(f.txtBCodeWid(0).Text(), "25");
  EXPECT_EQ(f.txtBCodeWid(1).Text(), "10");
  EXPECT_FALSE(f.txtBCodeWid(0).Enabled());
  EXPECT_FALSE(f.txtBCodeWid(1).Enabled());
}

// The box is clear from the start, so that its click does not run.
TEST_F(SerialNumberTest, ANumberThatPrintsAsTextLeavesTheOtherBoxAndTheCaptionsEnabled) {
  SerialBarcodeType = -1;
  const FrmSerialNumber& f = Opened();
  EXPECT_TRUE(f.chkTxt.Enabled());
  for (int i = 0; i <= 1; ++i) {
    EXPECT_TRUE(f.lblBCodeWid(i).Enabled());
    EXPECT_TRUE(f.lblUnit(i).Enabled());
  }
}

TEST_F(SerialNumberTest, AFormatThatDoesNotExistLeavesTheFirstOne) {
  SerialBarcodeType = 14;
  EXPECT_EQ(Opened().cboBCode.ListIndex(), 0);
}

TEST_F(SerialNumberTest, FillingTheControlsLeavesTheDirtyFlagAsItWas) {
  for (const std::int16_t type : {std::int16_t{-1}, std::int16_t{6}}) {
    for (const Flag dirty : {kFalse, kTrue}) {
      SerialBarcodeType = type;
      DirtyFlag = dirty;
      Opened();
      EXPECT_EQ(DirtyFlag, dirty);
      Unload(frmSerialNumber);
    }
  }
}

// --- inches ---

TEST_F(SerialNumberTest, InchesShowAndComeBackUnchanged) {
  UnitScale = 25.4;
  SerialBarcodeWidth = 25.4;
  SerialBarcodeHeight = 12.7;
  const FrmSerialNumber& f = Opened();
  EXPECT_EQ(f.txtBCodeWid(0).Text(), "1.000");
  EXPECT_EQ(f.txtBCodeWid(1).Text(), "0.500");
  EXPECT_EQ(f.lblUnit(0).Caption(), "in");
  EXPECT_EQ(f.lblUnit(1).Caption(), "in");
  Save();
  EXPECT_EQ(SerialBarcodeWidth, 25.4);
  EXPECT_EQ(SerialBarcodeHeight, 12.7);
}

// 25 and 10 are bare numbers: in inches they make a barcode of 635 millimetres.
TEST_F(SerialNumberTest, TheSizesOfABarcodeThatIsNotMeantHaveNoUnit) {
  UnitScale = 25.4;
  SerialBarcodeType = -1;
  Opened().chkBCode.Press();
  Save();
  EXPECT_EQ(SerialBarcodeType, 0);
  EXPECT_NEAR(SerialBarcodeWidth, 635, 1e-9);
  EXPECT_NEAR(SerialBarcodeHeight, 254, 1e-9);
}

// --- the check box ---

TEST_F(SerialNumberTest, TheBoxEnablesAndDisablesWhatBelongsToTheBarcode) {
  FrmSerialNumber& f = Opened();
  for (const bool enabled : {false, true}) {
    DirtyFlag = kFalse;
    f.chkBCode.Press();
    EXPECT_EQ(f.cboBCode.Enabled(), enabled);
    EXPECT_EQ(f.chkTxt.Enabled(), enabled);
    for (int i = 0; i <= 1; ++i) {
      EXPECT_EQ(f.txtBCodeWid(i).Enabled(), enabled);
      EXPECT_EQ(f.lblBCodeWid(i).Enabled(), enabled);
      EXPECT_EQ(f.lblUnit(i).Enabled(), enabled);
    }
    EXPECT_EQ(DirtyFlag, kTrue);
  }
}

// --- the dirty flag ---

TEST_F(SerialNumberTest, EveryControlThatIsTouchedRaisesTheDirtyFlag) {
  FrmSerialNumber& f = Opened();
  const std::pair<const char*, std::function<void()>> touches[] = {
      {"txtSerPref", [&] { f.txtSerPref.UserType("x"); }},
      {"txtSerIncr", [&] { f.txtSerIncr.UserKey('1'); }},
      {"a refused key", [&] { f.txtSerIncr.UserKey('x'); }},
      {"cboInc", [&] { f.cboInc.UserChoose(3); }},
      {"cboBCode", [&] { f.cboBCode.UserChoose(3); }},
      {"txtBCodeWid 0", [&] { f.txtBCodeWid(0).UserType("1"); }},
      {"txtBCodeWid 1", [&] { f.txtBCodeWid(1).UserType("1"); }},
      {"chkTxt", [&] { f.chkTxt.Press(); }},
  };
  for (const auto& [name, touch] : touches) {
    DirtyFlag = kFalse;
    touch();
    EXPECT_EQ(DirtyFlag, kTrue) << name;
  }
}

TEST_F(SerialNumberTest, TheNextNumberRaisesTheDirtyFlagByItsKeysAlone) {
  FrmSerialNumber& f = Opened();
  f.txtSerIncr.SetText("5");
  EXPECT_EQ(DirtyFlag, kFalse);
}

TEST_F(SerialNumberTest, CancelLeavesTheStateAndTheDirtyFlagRaised) {
  FrmSerialNumber& f = Opened();
  f.txtSerPref.SetText("changed");
  f.txtSerIncr.SetText("5");
  f.chkBCode.Press();
  f.cmdCancel.Press();
  EXPECT_FALSE(IsLoaded(frmSerialNumber));
  EXPECT_EQ(SerialPrefix, "");
  EXPECT_EQ(SerialValue, 1001);
  EXPECT_EQ(SerialBarcodeType, 6);
  EXPECT_EQ(DirtyFlag, kTrue);
}

// --- saving ---

TEST_F(SerialNumberTest, SavingTakesEverythingAndClosesTheWindow) {
  FrmSerialNumber& f = Opened();
  f.txtSerPref.SetText("AB ");
  f.txtSerIncr.SetText("2147483647");
  f.cboInc.UserChoose(4);
  f.cboBCode.UserChoose(7);
  f.txtBCodeWid(0).SetText("40.5");
  f.txtBCodeWid(1).SetText("12");
  f.chkTxt.Press();
  Save();
  EXPECT_FALSE(IsLoaded(frmSerialNumber));
  EXPECT_EQ(SerialPrefix, "AB ");
  EXPECT_EQ(SerialValue, 2147483647);
  EXPECT_EQ(SerialIncrement, 5);
  EXPECT_EQ(SerialBarcodeType, 7);
  EXPECT_EQ(SerialBarcodeWidth, 40.5);
  EXPECT_EQ(SerialBarcodeHeight, 12);
  EXPECT_EQ(SerialPrintText, kFalse);
}

TEST_F(SerialNumberTest, ATextInPlaceOfABarcodeKeepsTheSizes) {
  FrmSerialNumber& f = Opened();
  f.chkBCode.Press();
  f.txtBCodeWid(0).SetText("99");
  Save();
  EXPECT_EQ(SerialBarcodeType, -1);
  EXPECT_EQ(SerialBarcodeWidth, 35);
  EXPECT_EQ(SerialBarcodeHeight, 15);
}

TEST_F(SerialNumberTest, SavingTestsNothing) {
  FrmSerialNumber& f = Opened();
  f.txtSerPref.SetText("letters");
  f.cboBCode.UserChoose(0);
  f.txtBCodeWid(0).SetText("wide");
  f.txtBCodeWid(1).SetText("");
  Save();
  EXPECT_EQ(SerialPrefix, "letters");
  EXPECT_EQ(SerialBarcodeType, 0);
  EXPECT_EQ(SerialBarcodeWidth, 0);
  EXPECT_EQ(SerialBarcodeHeight, 0);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SerialNumberTest, NumbersOfNoNumberOrOutsideTheirTypeKeepTheirValue) {
  for (const char* text : {"", "x", "2147483648", "-2147483649"}) {
    Opened().txtSerIncr.SetText(text);
    frmSerialNumber.txtSerPref.SetText("p");
    Save();
    EXPECT_EQ(SerialValue, 1001) << text;
    EXPECT_EQ(SerialPrefix, "p");
  }
  for (const char* text : {"", "x", "32768", "-32769"}) {
    Opened().cboInc.SetText(text);
    Save();
    EXPECT_EQ(SerialIncrement, 1) << text;
  }
}

TEST_F(SerialNumberTest, NumbersAtTheEdgesOfTheirTypeAreTaken) {
  for (const std::int32_t value : {2147483647, std::numeric_limits<std::int32_t>::min()}) {
    Opened().txtSerIncr.SetText(std::to_string(value));
    Save();
    EXPECT_EQ(SerialValue, value);
  }
  for (const int value : {32767, -32768}) {
    Opened().cboInc.SetText(std::to_string(value));
    Save();
    EXPECT_EQ(SerialIncrement, value);
  }
}

TEST_F(SerialNumberTest, HalvesGoToTheEvenNumber) {
  const std::pair<const char*, std::int32_t> cases[] = {{"2.5", 2}, {"3.5", 4}, {"-2.5", -2}};
  for (const auto& [text, value] : cases) {
    Opened().txtSerIncr.SetText(text);
    Save();
    EXPECT_EQ(SerialValue, value) << text;
  }
}

TEST_F(SerialNumberTest, AFormatThatIsNoRowIsNoBarcode) {
  FrmSerialNumber& f = Opened();
  f.cboBCode.SetText("Code");
  Save();
  EXPECT_EQ(SerialBarcodeType, -1);
  EXPECT_EQ(SerialBarcodeWidth, 35);
}

// --- typing ---

TEST_F(SerialNumberTest, NumbersTakeNoLettersAndNoOperators) {
  FrmSerialNumber& f = Opened();
  f.txtSerIncr.SetText("");
  f.txtSerIncr.UserType("a1+2 3*");
  EXPECT_EQ(f.txtSerIncr.Text(), "123");
  f.txtBCodeWid(1).SetText("");
  f.txtBCodeWid(1).UserType("x1.5y.");
  EXPECT_EQ(f.txtBCodeWid(1).Text(), "1.5");
}

TEST_F(SerialNumberTest, EachSizeIsFilteredByItsOwnText) {
  FrmSerialNumber& f = Opened();
  f.txtBCodeWid(0).SetText("1.5");
  f.txtBCodeWid(1).SetText("2");
  f.txtBCodeWid(1).UserEdit("2", 1);
  f.txtBCodeWid(1).UserKey('.');
  EXPECT_EQ(f.txtBCodeWid(1).Text(), "2.");
}

TEST_F(SerialNumberTest, TypingIsCompletedAndTakenWhenTheListIsLeft) {
  FrmSerialNumber& f = Opened();
  f.cboBCode.SetFocus();
  EXPECT_EQ(sn::ComboTyped, kFalse);
  f.cboBCode.SetText("");
  f.cboBCode.UserType("ea");
  EXPECT_EQ(f.cboBCode.Text(), "eaN-13");
  EXPECT_EQ(sn::ComboTyped, kTrue);
  f.txtSerPref.SetFocus();
  EXPECT_EQ(f.cboBCode.ListIndex(), 2);
  EXPECT_EQ(f.cboBCode.Text(), "EAN-13");
}

TEST_F(SerialNumberTest, AListThatWasOnlyVisitedKeepsItsText) {
  FrmSerialNumber& f = Opened();
  f.cboInc.SetText("10");
  DirtyFlag = kFalse;
  f.cboInc.SetFocus();
  f.txtSerPref.SetFocus();
  EXPECT_EQ(DirtyFlag, kFalse);  // no row was chosen
  f.cboInc.SetFocus();
  f.cboInc.SetText("");
  f.cboInc.UserType("1");
  f.txtSerPref.SetFocus();
  EXPECT_EQ(DirtyFlag, kTrue);
  EXPECT_EQ(f.cboInc.ListIndex(), 0);
}

// --- opening from the main window ---

TEST_F(SerialNumberTest, ButtonAndMenuEntryOpenAndUnloadTheWindow) {
  int loads = 0;
  static int* counted = nullptr;
  counted = &loads;
  WireForm<FrmSerialNumber> = [](FrmSerialNumber& f) {
    f.WindowEvents().Load = [] { ++*counted; };
  };
  cmdSerNo_Click();
  mnuFileSerial_Click();
  EXPECT_EQ(loads, 2);
  EXPECT_FALSE(IsLoaded(frmSerialNumber));
}

// --- on the label ---

class SerialOnLabelTest : public SerialNumberTest {
 protected:
  SerialOnLabelTest() {
    ReadyBoard();
    LabelWidth = 100;
    LabelHeight = 50;
    PaintBarcode = PaintBarcodeOf;
    GrowObjects();
    ClearObject(0);
    ObjectAt(0).ObjType = kText;
    ObjectAt(0).Text = "No. [#SRNO]";
    ObjectAt(0).FontSize = 10;
  }
  ~SerialOnLabelTest() override { PaintBarcode = nullptr; }

  // What a printed label shows: texts, and the number of bars.
  struct Shown {
    std::vector<std::string> texts;
    std::size_t bars = 0;
    bool operator==(const Shown&) const = default;
  };
  static Shown Print() {
    RecordingSurface page;
    DrawTarget = &page;
    PaintObjectText(0, true);
    DrawTarget = &frmMain.picBoard.Canvas();
    return {page.Texts(), page.Of(Painted::What::kBox).size()};
  }
};

TEST_F(SerialOnLabelTest, ThePrefixComesBeforeTheBareNumber) {
  FrmSerialNumber& f = Opened();
  f.txtSerPref.SetText("AB");
  f.txtSerIncr.SetText("7");
  f.chkBCode.Press();
  Save();
  EXPECT_EQ(Print(), (Shown{{"No. AB7"}, 0}));
}

TEST_F(SerialOnLabelTest, ABarcodeCarriesPrefixAndNumber) {
  FrmSerialNumber& f = Opened();
  f.txtSerPref.SetText("AB");
  f.txtSerIncr.SetText("7");
  f.cboBCode.UserChoose(7);
  Save();
  std::string data;
  PaintBarcode = [&](std::string text, std::int16_t format, float, float, double height,
                     double width, bool print_chars, double font_size, std::string font_name) {
    data = text;
    EXPECT_EQ(format, 7);
    EXPECT_EQ(height, 15);
    EXPECT_EQ(width, 35);
    EXPECT_TRUE(print_chars);
    EXPECT_EQ(font_size, 6);
    EXPECT_EQ(font_name, "");
  };
  EXPECT_EQ(Print(), (Shown{}));
  EXPECT_EQ(data, "AB7");
}

TEST_F(SerialOnLabelTest, LettersUnderANumericFormatDrawNothingAndSayNothing) {
  FrmSerialNumber& f = Opened();
  f.cboBCode.UserChoose(2);
  Save();
  EXPECT_GT(Print().bars, 0U);
  Opened().txtSerPref.SetText("AB");
  Save();
  EXPECT_EQ(Print(), (Shown{}));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SerialOnLabelTest, PrintSerialNumberOnBarcodeChangesNothing) {
  Opened().cboBCode.UserChoose(7);
  Save();
  const Shown with = Print();
  EXPECT_GT(with.bars, 0U);
  EXPECT_FALSE(with.texts.empty());
  Opened().chkTxt.Press();
  Save();
  EXPECT_EQ(SerialPrintText, kFalse);
  EXPECT_EQ(Print(), with);
}

// Not every way of changing a field is a key that is a character.
TEST_F(SerialNumberTest, SavingAnotherNumberIsAChangeAndSavingTheSameOneIsNone) {
  Opened();
  Save();
  EXPECT_EQ(DirtyFlag, kFalse);
  Opened().txtSerIncr.SetText("10");
  Save();
  EXPECT_EQ(DirtyFlag, kTrue);
}

}  // namespace
}  // namespace tagwright
