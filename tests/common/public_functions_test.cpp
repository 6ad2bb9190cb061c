#include "common/public_functions.h"

#include <cmath>
#include <limits>

#include "forms/frmMain.h"
#include "platform/controls/windows.h"
#include "platform/services/desktop.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"
#include "support/fault_of.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

void UseDecimalComma() {
  UserLocale locale;
  locale.decimal = ",";
  locale.group = ".";
  SetLocale(locale);
}

class PublicFunctionsTest : public ProgramTest {};

// --- numbers ---

TEST_F(PublicFunctionsTest, ToNumberCountsBadTextAsZero) {
  struct Row {
    const char* text;
    double expected;
  };
  const Row rows[] = {
      {"", 0},      {"abc", 0},         {"2.5", 2.5}, {" 2.5 ", 2.5}, {"-3", -3},   {"1,000", 1000},
      {"1.5+2", 0}, {"1.2345", 1.2345}, {".", 0},     {"-", 0},       {"1e2", 100}, {"2,5", 25},
      {"12 mm", 0}, {"$4", 4},          {"(4)", -4},  {"1e999", 0},   {"0.5", 0.5},
  };
  for (const Row& row : rows) EXPECT_DOUBLE_EQ(ToNumber(row.text), row.expected) << row.text;
}

TEST_F(PublicFunctionsTest, ToNumberReadsTheUsersDecimalSymbol) {
  UseDecimalComma();
  EXPECT_DOUBLE_EQ(ToNumber("2,5"), 2.5);
  EXPECT_DOUBLE_EQ(ToNumber("2.5"), 25);  // the point groups
}

TEST(Rounding, HalvesGoToTheEvenNumber) {
  struct Row {
    double value;
    int expected;
  };
  const Row rows[] = {{0, 0},     {0.5, 0},   {1.5, 2},   {2.5, 2},   {3.5, 4},
                      {-0.5, 0},  {-1.5, -2}, {-2.5, -2}, {2.4, 2},   {2.6, 3},
                      {-2.4, -2}, {-2.6, -3}, {25.4, 25}, {0.639, 1}, {0.49999999999999994, 0}};
  for (const Row& row : rows) {
    EXPECT_EQ(ToInt16(row.value), row.expected) << row.value;
    EXPECT_EQ(ToInt32(row.value), row.expected) << row.value;
  }
}

TEST(Rounding, SixteenBitsEndAtTheirLimits) {
  EXPECT_EQ(ToInt16(32767.49), 32767);
  EXPECT_EQ(FaultOf([] { ToInt16(32767.5); }), kOverflow);
  EXPECT_EQ(ToInt16(-32768.5), -32768);  // the half goes to the even number
  EXPECT_EQ(FaultOf([] { ToInt16(-32768.51); }), kOverflow);
  EXPECT_EQ(FaultOf([] { ToInt16(std::nan("")); }), kOverflow);
  EXPECT_EQ(FaultOf([] { ToInt16(std::numeric_limits<double>::infinity()); }), kOverflow);
}

TEST(Rounding, ThirtyTwoBitsEndAtTheirLimits) {
  EXPECT_EQ(ToInt32(2147483647.49), 2147483647);
  EXPECT_EQ(FaultOf([] { ToInt32(2147483647.5); }), kOverflow);
  EXPECT_EQ(ToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(FaultOf([] { ToInt32(-2147483648.51); }), kOverflow);
  EXPECT_EQ(FaultOf([] { ToInt32(-std::nan("")); }), kOverflow);
  EXPECT_EQ(FaultOf([] { ToInt32(1e300); }), kOverflow);
}

// --- FilterKey ---

struct Allowed {
  std::int16_t letters, numbers, operators;
};
constexpr Allowed kNothing{0, 0, 0};
constexpr Allowed kNumbers{0, -1, 0};
constexpr Allowed kNumbersAndOperators{0, -1, -1};
constexpr Allowed kLetters{-1, 0, 0};
constexpr Allowed kBoth{-1, -1, 0};
constexpr Allowed kOperators{0, 0, -1};

struct KeyRow {
  const char* key;
  Allowed allowed;
  const char* text;   // in the box
  int start, length;  // its selection
  bool passes;
  const char* reason;
};

class FilterKeyTest : public ProgramTest {
 protected:
  int Filter(int key, const Allowed& allowed, const std::string& text, int start = 0,
             int length = 0) {
    TextBox& box = frmMain.txtTool;
    box.SetText(text);
    box.SetSelStart(start);
    box.SetSelLength(length);
    return FilterKey(key, 0, 0, allowed.letters, allowed.numbers, allowed.operators, box);
  }

  void Check(std::initializer_list<KeyRow> rows) {
    for (const KeyRow& row : rows) {
      const int key = static_cast<int>(Characters(row.key)[0]);
      const int expected = row.passes ? key : 0;
      EXPECT_EQ(Filter(key, row.allowed, row.text, row.start, row.length), expected)
          << row.key << " into \"" << row.text << "\": " << row.reason;
    }
  }
};

TEST_F(FilterKeyTest, NumbersWithADecimalPoint) {
  Check({
      {"0", kNumbers, "", 0, 0, true, "digit"},
      {"9", kNumbers, "12", 2, 0, true, "digit"},
      {"a", kNumbers, "", 0, 0, false, "\"A\" is not in the set"},
      {" ", kNumbers, "1", 1, 0, false, "blank"},
      {".", kNumbers, "", 0, 0, true, "a point in an empty box passes at once"},
      {".", kNumbers, "15", 1, 0, true, "no decimal symbol yet"},
      {".", kNumbers, "1.5", 3, 0, false, "a second one"},
      {".", kNumbers, "1.5", 1, 1, true, "it replaces the one there is"},
      {".", kNumbers, "1.5", 0, 3, true, "it replaces the whole text"},
      {".", kNumbers, "1.5", 2, 1, false, "the selection does not hold it"},
      {".", kNumbers, "1.5+2", 5, 0, true, "an operator is there"},
      {".", kNumbersAndOperators, "1.5+2", 5, 0, true, "likewise with operators allowed"},
      {".", kNumbers, "1.5*2", 5, 0, true, "any of the operators"},
      {".", kNumbers, "1.5/2", 5, 0, true, "any of the operators"},
      {".", kNumbers, "1.5%2", 5, 0, true, "any of the operators"},
      {".", kNumbers, "-1.5", 4, 0, true, "a leading sign counts as an operator too"},
      {",", kNumbers, "1", 1, 0, false, "the other symbol"},
      {"-", kNumbers, "", 0, 0, true, "a sign comes first"},
      {"-", kNumbers, "5", 0, 0, false, "not in a box with text, wherever the caret is"},
      {"-", kNumbers, "5", 0, 1, false, "nor where it would replace all of it"},
      {"-", kNumbersAndOperators, "5", 1, 0, true, "an operator where they are allowed"},
      {"+", kNumbers, "", 0, 0, false, "no sign in this filter"},
      {"+", kNumbersAndOperators, "5", 1, 0, true, "operator"},
  });
}

TEST_F(FilterKeyTest, NumbersWithADecimalComma) {
  UseDecimalComma();
  Check({
      {".", kNumbers, "", 0, 0, true, "a first point passes although it is not the symbol"},
      {",", kNumbers, "", 0, 0, false, "a first comma does not although it is"},
      {",", kNumbers, "1", 1, 0, true, "no decimal symbol yet"},
      {",", kNumbers, "1,5", 3, 0, false, "a second one"},
      {",", kNumbers, "1,5", 1, 1, true, "it replaces the one there is"},
      {",", kNumbers, "1,5+2", 5, 0, true, "an operator is there"},
      {".", kNumbers, "1", 1, 0, false, "a later point is not in the set"},
  });
}

TEST_F(FilterKeyTest, LettersAndTheirCodePageNumbers) {
  Check({
      {"A", kLetters, "", 0, 0, true, "capital"},
      {"z", kLetters, "", 0, 0, true, "small letters pass as their capitals do"},
      {"_", kLetters, "", 0, 0, true, "underscore"},
      {"1", kLetters, "", 0, 0, false, "digit"},
      {"-", kLetters, "", 0, 0, false, "sign"},
      {".", kLetters, "", 0, 0, true, "a point in an empty box passes at once, here too"},
      {".", kLetters, "a", 1, 0, false, "and only there"},
      {"À", kLetters, "", 0, 0, true, "192, the first"},
      {"Ý", kLetters, "", 0, 0, true, "221, the last"},
      {"Þ", kLetters, "", 0, 0, false, "222"},
      {"¿", kLetters, "", 0, 0, false, "191"},
      {"é", kLetters, "", 0, 0, true, "its capital is in the set"},
      {"ß", kLetters, "", 0, 0, false, "it has no capital of one character"},
      {"×", kLetters, "", 0, 0, true, "215 lies among the letters"},
      {"÷", kLetters, "", 0, 0, false, "247 is nothing's small letter"},
      {"Œ", kLetters, "", 0, 0, true, "140, the first"},
      {"œ", kLetters, "", 0, 0, true, "its capital is in the set"},
      {"Ž", kLetters, "", 0, 0, true, "142"},
      {"Š", kLetters, "", 0, 0, false, "138"},
      {"‹", kLetters, "", 0, 0, false, "139"},
      {"\u0090", kLetters, "", 0, 0, true, "144, the last, undefined there"},
      {"‘", kLetters, "", 0, 0, false, "145"},
      {"Ж", kLetters, "", 0, 0, false, "not in this code page"},
  });
}

TEST_F(FilterKeyTest, TheLettersAreThoseOfTheUsersCodePage) {
  SetCodePage(1251);
  Check({
      {"А", kLetters, "", 0, 0, true, "192"},
      {"Э", kLetters, "", 0, 0, true, "221"},
      {"Ю", kLetters, "", 0, 0, false, "222"},
      {"ж", kLetters, "", 0, 0, true, "its capital is 198"},
      {"À", kLetters, "", 0, 0, false, "not in this code page"},
  });
}

TEST_F(FilterKeyTest, BothSetsHaveNoneOfTheNumberRules) {
  Check({
      {"a", kBoth, "", 0, 0, true, "letter"},
      {"5", kBoth, "", 0, 0, true, "digit"},
      {"-", kBoth, "5", 1, 0, true, "a sign anywhere"},
      {".", kBoth, "1.5", 3, 0, true, "a second decimal symbol"},
      {"+", kBoth, "", 0, 0, false, "operators are a set of their own"},
      {" ", kBoth, "a", 1, 0, false, "blank"},
  });
}

TEST_F(FilterKeyTest, OperatorsJoinWhateverSetThereIs) {
  Check({
      {"*", kOperators, "", 0, 0, true, "operator"},
      {"-", kOperators, "5", 1, 0, true, "operator"},
      {"%", kOperators, "5", 1, 0, true, "operator"},
      {"=", kOperators, "5", 1, 0, false, "no operator"},
      {"5", kOperators, "", 0, 0, false, "digit"},
      {"5", kNothing, "", 0, 0, false, "nothing allowed"},
      {"A", kNothing, "", 0, 0, false, "nothing allowed"},
      {".", kNothing, "", 0, 0, true, "a point in an empty box passes even then"},
  });
}

TEST_F(FilterKeyTest, BackspaceAlwaysPasses) {
  EXPECT_EQ(Filter(8, kNothing, "abc"), 8);
  EXPECT_EQ(Filter(8, kNumbers, ""), 8);
}

TEST_F(FilterKeyTest, OtherControlKeysAreSwallowed) {
  EXPECT_EQ(Filter(13, kBoth, "a"), 0);
  EXPECT_EQ(Filter(0, kBoth, "a"), 0);
}

TEST_F(FilterKeyTest, TheKeyIsPassedOnInTheCaseAskedFor) {
  const TextBox& box = frmMain.txtTool;
  EXPECT_EQ(FilterKey('a', -1, 0, -1, 0, 0, box), 'A');
  EXPECT_EQ(FilterKey('A', 0, -1, -1, 0, 0, box), 'a');
  EXPECT_EQ(FilterKey('a', 0, 0, -1, 0, 0, box), 'a');
  EXPECT_EQ(FilterKey(U'é', -1, 0, -1, 0, 0, box), int{U'É'});
  EXPECT_EQ(FilterKey('5', -1, 0, 0, -1, 0, box), '5');
  EXPECT_EQ(FilterKey('a', 1, 0, 1, 0, 0, box), 'A') << "any number but 0 is true";
}

// --- CompleteCombo, SelectComboText ---

class ComboTest : public ProgramTest {
 protected:
  ComboTest() {
    combo.SetSorted(false);
    for (const char* row : {"Arial", "Arial Black", "Courier New", "Été", "Z"}) combo.AddItem(row);
  }

  // What typing does to the box: text before, caret, key; then text, start and length after.
  void Expect(const char* before, int caret, int key, const std::string& text, int start,
              int length, const char* reason) {
    combo.SetText(before);
    combo.SetSelStart(caret);
    EXPECT_EQ(CompleteCombo(combo, key), 0) << reason;
    EXPECT_EQ(combo.Text(), text) << reason;
    EXPECT_EQ(combo.SelStart(), start) << reason;
    EXPECT_EQ(combo.SelLength(), length) << reason;
  }

  ComboBox& combo = frmMain.cboFont;
};

TEST_F(ComboTest, TypingCompletesToTheFirstEntryThatFits) {
  Expect("", 0, 'A', "Arial", 1, 4, "first character");
  Expect("Arial", 1, 'r', "Arial", 2, 3, "the rest stays selected");
  Expect("Arial", 5, ' ', "Arial Black", 6, 5, "only the longer entry goes on");
  Expect("", 0, 'c', "courier New", 1, 10, "what was typed stays as typed");
  Expect("", 0, U'é', "été", 1, 2, "case is ignored beyond ASCII");
  Expect("", 0, 'z', "z", 1, 0, "nothing left to add");
}

TEST_F(ComboTest, TypingArGivesArialWithThreeLettersSelected) {
  combo.SetText("");
  EXPECT_EQ(CompleteCombo(combo, 'a'), 0);
  EXPECT_EQ(CompleteCombo(combo, 'r'), 0);
  EXPECT_TRUE(EqualIgnoringCase(combo.Text(), "Arial"));
  EXPECT_EQ(combo.SelText(), "ial");
  SelectComboText(combo);  // as the box does when it is left
  EXPECT_EQ(combo.Text(), "Arial");
  EXPECT_EQ(combo.ListIndex(), 0);
}

TEST_F(ComboTest, AKeyThatFitsNoEntryCannotBeTypedAndDropsWhatIsBehindTheCaret) {
  Expect("Arial", 2, 'x', "Ar", 2, 0, "no entry begins with arx");
  Expect("Arial", 5, 'x', "Arial", 5, 0, "at the end");
  Expect("", 0, 'q', "", 0, 0, "empty");
}

TEST_F(ComboTest, ASelectionIsReplacedByWhatIsTypedAtItsStart) {
  combo.SetText("Courier New");
  combo.SetSelStart(0);
  combo.SetSelLength(11);
  EXPECT_EQ(CompleteCombo(combo, 'a'), 0);
  EXPECT_EQ(combo.Text(), "arial");
}

TEST_F(ComboTest, BackspaceIsLeftToTheBox) {
  combo.SetText("Arial");
  combo.SetSelStart(3);
  EXPECT_EQ(CompleteCombo(combo, 8), 8);
  EXPECT_EQ(combo.Text(), "Arial");
  EXPECT_EQ(combo.SelStart(), 3);
}

// Counts the tab keys that the program types.
class TabCounter : public WindowService {
 public:
  int tabs = 0;
  void Create(Form&) override {}
  void Show(Form&) override {}
  void RunModal(Form&) override {}
  void Destroy(Form&) override {}
  void PopupMenu(Form&, Menu&) override {}
  void SendTab() override { ++tabs; }
};

TEST_F(ComboTest, ReturnLeavesTheBoxWithTheCaretAtTheEnd) {
  TabCounter windows;
  SetWindowService(&windows);
  combo.SetText("Arial");
  combo.SetSelStart(1);
  combo.SetSelLength(4);
  EXPECT_EQ(CompleteCombo(combo, 13), 0);
  SetWindowService(nullptr);
  EXPECT_EQ(windows.tabs, 1);
  EXPECT_EQ(combo.SelStart(), 5);
  EXPECT_EQ(combo.SelLength(), 0);
  EXPECT_EQ(combo.Text(), "Arial");
}

TEST_F(ComboTest, CompletionChoosesNothing) {
  int clicks = 0;
  combo.Events().Click = [&] { ++clicks; };
  combo.SetText("");
  CompleteCombo(combo, 'c');
  EXPECT_EQ(clicks, 0);
}

TEST_F(ComboTest, SelectComboTextNeedsTheWholeText) {
  int clicks = 0;
  combo.Events().Click = [&] { ++clicks; };
  combo.SetText("arial");
  SelectComboText(combo);
  EXPECT_EQ(combo.ListIndex(), 0);
  EXPECT_EQ(combo.Text(), "Arial");
  EXPECT_EQ(clicks, 1);
  combo.SetListIndex(2);
  combo.SetText("Ari");
  SelectComboText(combo);
  EXPECT_EQ(combo.Text(), "Ari");
  EXPECT_EQ(clicks, 2) << "only the choice made by hand";
}

TEST_F(ComboTest, SelectComboTextTakesTheFirstOfEqualEntries) {
  combo.AddItem("ARIAL");
  combo.SetText("aRIAL");
  SelectComboText(combo);
  EXPECT_EQ(combo.ListIndex(), 0);
}

// --- platform ---

// Notes the calls that reach it.
class ScriptedRecordset : public Recordset {
 public:
  explicit ScriptedRecordset(std::int32_t count) : count_(count) {}
  std::string calls;
  std::int32_t RecordCount() override { return calls += "count ", count_; }
  void MoveFirst() override { calls += "first "; }
  void MoveLast() override {
    if (count_ == 0) RaiseFault(kDatabaseFault);
    calls += "last ";
  }
  void MoveNext() override { calls += "next "; }
  bool Eof() override { return false; }
  int FieldCount() override { return 0; }
  std::optional<std::string> Value(int) override { return std::nullopt; }

 private:
  std::int32_t count_;
};

TEST_F(PublicFunctionsTest, PrimeRecordsetReachesTheLastRowAndReturns) {
  ScriptedRecordset rows(3);
  EXPECT_EQ(PrimeRecordset(rows), -1);
  EXPECT_EQ(rows.calls, "count last first ");
}

TEST_F(PublicFunctionsTest, PrimeRecordsetLeavesAnUnknownCountAlone) {
  ScriptedRecordset rows(-1);
  EXPECT_EQ(PrimeRecordset(rows), 0);
  EXPECT_EQ(rows.calls, "count ");
}

TEST_F(PublicFunctionsTest, PrimeRecordsetPassesTheFaultOfAnEmptyOneOn) {
  ScriptedRecordset rows(0);
  EXPECT_EQ(FaultOf([&] { PrimeRecordset(rows); }), kDatabaseFault);
}

TEST_F(PublicFunctionsTest, WithoutAnEngineEveryDatabaseFaults) {
  EXPECT_EQ(FaultOf([] { OpenDatabase("any.mdb"); }), kDatabaseFault);
  EXPECT_EQ(FaultOf([] { OpenDatabase("any.mdb", ";PWD=x"); }), kDatabaseFault);
}

TEST_F(PublicFunctionsTest, OpenDatabaseAsksTheEngine) {
  std::string asked;
  SetDatabaseEngine([&](const std::string& path, const std::string& connect) {
    asked = path + connect;
    return std::unique_ptr<Database>();
  });
  EXPECT_EQ(OpenDatabase("a.mdb", ";PWD=x"), nullptr);
  SetDatabaseEngine(nullptr);
  EXPECT_EQ(asked, "a.mdb;PWD=x");
  EXPECT_EQ(FaultOf([] { OpenDatabase("a.mdb"); }), kDatabaseFault);
}

TEST_F(PublicFunctionsTest, ShellOpenGivesTheDesktopsResult) {
  EXPECT_EQ(ShellOpen("https://example.org/", 1), 31) << "nothing is associated yet";
  std::string opened;
  const OpenTarget former = DesktopOpen();
  DesktopOpen() = [&](const std::string& target, int show) {
    opened = target + " " + std::to_string(show);
    return 42;
  };
  EXPECT_EQ(ShellOpen("https://example.org/", 1), 42);
  EXPECT_EQ(opened, "https://example.org/ 1");
  DesktopOpen() = former;
}

TEST_F(PublicFunctionsTest, LocaleValueKnowsTheDecimalSymbol) {
  EXPECT_EQ(LocaleValue(14), ".");
  UseDecimalComma();
  EXPECT_EQ(LocaleValue(14), ",");
  EXPECT_EQ(LocaleValue(15), "");
  UserLocale padded;
  padded.decimal = std::string(",\0x", 3);
  SetLocale(padded);
  EXPECT_EQ(LocaleValue(14), ",") << "up to the first zero character";
}

}  // namespace
}  // namespace tagwright
