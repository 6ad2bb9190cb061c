// A person who presses, drags, types and chooses at random, and what must hold whatever they do.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <random>
#include <set>

#include "document/objects.h"
#include "document/shown_size.h"
#include "editing/drag.h"
#include "editing/keys.h"
#include "editing/rubber.h"
#include "editing/selection.h"
#include "platform/controls/mouse.h"
#include "platform/controls/windows.h"
#include "platform/painting/picture.h"
#include "platform/text/locale.h"
#include "shell/shell_fixture.h"

namespace tagwright {
namespace {

constexpr int kEventsInASequence = 200;
constexpr int kDeleteKey = 46;

const char kUnreadable[] = "This picture type is not supported";

// Pictures of these tests: the natural size in words; all else is unreadable.
PicturePtr ReadPicture(const std::string& bytes, std::string_view) {
  double width = 0, height = 0;
  if (std::sscanf(bytes.c_str(), "%lf %lf", &width, &height) != 2) return nullptr;
  return BlankPicture(width, height);
}

// Plays the user; whatever dialog opens gets an answer of its own.
class RandomHand : public WindowService {
 public:
  RandomHand(unsigned seed, std::string folder, ScriptedDialogs& dialogs)
      : random_(seed), folder_(std::move(folder)), dialogs_(dialogs) {}

  void Create(Form&) override {}
  void Show(Form&) override {}
  void RunModal(Form&) override {}
  void Destroy(Form&) override {}
  void PopupMenu(Form&, Menu& menu) override { ChooseIn(menu); }
  void SendTab() override {}

  // One act; returns its name.
  const char* Act();
  // All buttons and keys up.
  void LetGo();

  int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

 private:
  double Between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  bool OneIn(int n) { return Below(n) == 0; }

  template <class T, std::size_t n>
  const T& OneOf(const T (&choices)[n]) {
    return choices[Below(static_cast<int>(n))];
  }

  void ScriptDialogs();
  void AimAtBoard();
  void AimAtRules();
  void AimAt(const Control& control);
  void Aim();
  void Press();
  void Move();
  void Release();
  void Key();
  void Tool();
  void Type();
  void Field();
  void Choose();
  void Tick();
  void Picture();
  void Column();
  void Pick();
  void Command();
  void Project();
  void View();
  void ChooseIn(const Menu& menu);

  std::mt19937 random_;
  std::string folder_;
  ScriptedDialogs& dialogs_;
  double x_ = 0, y_ = 0;  // where the pointer is, twips of the board
  int button_ = 0;        // that is down
  int shift_ = 0;         // keys that are down
};

// A file dialog, a question, an input box and a colour dialog: one of each is enough for one act.
void RandomHand::ScriptDialogs() {
  const char* const pictures[] = {"wide.jpg",    "tall.jpg", "huge.jpg",
                                  "no size.jpg", "bad.jpg",  "gone.jpg"};
  const char* const numbers[] = {"35", "0", "-4", "x", "", "1e300", "1e308"};
  const Answer answers[] = {Answer::kYes, Answer::kNo, Answer::kCancel};
  dialogs_.files = {folder_ + "/" + OneOf(pictures)};
  if (OneIn(5)) dialogs_.files = {std::nullopt};
  dialogs_.answers = {OneOf(answers)};
  dialogs_.inputs = {OneOf(numbers)};
  dialogs_.colors = {Below(0x1000000)};
  if (OneIn(5)) dialogs_.colors = {std::nullopt};
}

// Along the edges rules are set and removed; on a rule it is grabbed.
void RandomHand::AimAtRules() {
  AimAtBoard();
  const ScaleSpace& scale = frmMain.picBoard.Scale();
  const double rule_x = frmMain.lnMX.X1() * scale.UnitX();
  const double rule_y = frmMain.lnMY.Y1() * scale.UnitY();
  if (OneIn(2)) x_ = frmMain.lnMX.Visible() && OneIn(2) ? rule_x : Between(0, 250);
  if (OneIn(2)) y_ = frmMain.lnMY.Visible() && OneIn(2) ? rule_y : Between(0, 250);
}

constexpr double kAround = 200;  // twips about the board, where a press may be dragged to

void RandomHand::AimAtBoard() {
  x_ = Between(-kAround, frmMain.picBoard.Width() + kAround);
  y_ = Between(-kAround, frmMain.picBoard.Height() + kAround);
}

// Objects may lie anywhere and be of any size, a pointer does not leave the screen.
void RandomHand::AimAt(const Control& control) {
  const PictureBox& board = frmMain.picBoard;
  x_ = std::clamp(control.LeftTwips() + Between(0, 1) * control.WidthTwips(), -kAround,
                  board.Width() + kAround);
  y_ = std::clamp(control.TopTwips() + Between(0, 1) * control.HeightTwips(), -kAround,
                  board.Height() + kAround);
}

void RandomHand::Aim() {
  if (ObjectUB >= 0 && !OneIn(3)) {
    AimAt(HoldAt(Below(ObjectUB + 1)));
  } else if (frmMain.lblHandle(3).Visible() && OneIn(2)) {
    AimAt(frmMain.lblHandle(Below(4)));
  } else if (OneIn(6)) {
    AimAtRules();
  } else {
    AimAtBoard();
  }
}

void RandomHand::Press() {
  if (button_) return Release();
  Aim();
  button_ = OneIn(6) ? kRightButton : kLeftButton;
  frmMain.picBoard.UserMouseDown(button_, shift_, x_, y_);
}

void RandomHand::Move() {
  if (OneIn(4)) {
    AimAtBoard();
  } else {
    x_ += Between(-900, 900);
    y_ += Between(-900, 900);
  }
  frmMain.picBoard.UserMouseMove(button_, shift_, x_, y_);
}

void RandomHand::Release() {
  frmMain.picBoard.UserMouseUp(button_, shift_, x_, y_);
  button_ = 0;
}

void RandomHand::Key() {
  const int modifiers[] = {kShift, kCtrl, kAlt};
  const int board_keys[] = {13, 27, 33, 34};  // return, escape, page up and down
  switch (Below(5)) {
    case 0:
      shift_ |= modifiers[Below(3)];
      frmMain.UserKeyDown(17, shift_);
      return;
    case 1:
      shift_ = 0;
      frmMain.UserKeyUp(17, 0);
      return;
    case 2:
      frmMain.UserKeyDown(kDeleteKey, shift_);
      return frmMain.UserKeyUp(kDeleteKey, shift_);
    case 3:
      if (OneIn(2)) frmMain.txtSetFocus(0).UserFocus();
      frmMain.UserKeyDown(OneOf(board_keys), shift_);
      return frmMain.UserKeyUp(13, shift_);
    default:
      frmMain.UserKeyDown(37 + Below(4), shift_);
      return frmMain.UserKeyUp(37, shift_);
  }
}

void RandomHand::Tool() {
  CommandButton* const shapes[] = {&frmMain.cmdLine, &frmMain.cmdRect, &frmMain.cmdRoundRect,
                                   &frmMain.cmdEllipse, &frmMain.cmdBCode};
  const int tool = Below(13);
  CommandButton& button = tool < 8 ? frmMain.cmdTools(tool) : *shapes[tool - 8];
  button.UserFocus();
  button.Press();
}

void RandomHand::Type() {
  const char* texts[] = {"a", "Abc", "\r", "\b", "  ", "12345", "\xC3\xA4", "[#SRNO]"};
  TextBox& box = OneIn(4) ? frmMain.txtBCodeData : frmMain.txtTool;
  if (OneIn(3)) box.UserFocus();
  OneIn(6) ? box.UserEdit("", 0) : box.UserType(texts[Below(8)]);
}

void RandomHand::Field() {
  const char* const numbers[] = {"0", "12.5", "-3", "1e3", "x", "", "99999", "0.01", "1e308"};
  TextBox& field = frmMain.txtDSize(Below(4));
  field.UserFocus();
  if (field.HasFocus()) field.UserEdit(OneOf(numbers), 0);
  if (OneIn(2)) frmMain.txtDSize(Below(4)).UserFocus();
}

void RandomHand::Choose() {
  ComboBox* const boxes[] = {&frmMain.cboFont,  &frmMain.cboSize, &frmMain.cboWeight,
                             &frmMain.cboBCode, &frmMain.cboZoom, &frmMain.cboLabelLayout,
                             &frmMain.cboFont};
  ComboBox& box = *boxes[Below(7)];
  if (box.ListCount() > 0) box.UserChoose(Below(box.ListCount()));
}

// By its button: what follows is a click or a box on the label.
void RandomHand::Picture() { frmMain.cmdTools(2).Press(); }

// A column of a table: what follows is a release on the label.
void RandomHand::Column() {
  ListBox& columns = frmMain.lstFields;
  if (columns.ListCount() == 0) {
    for (const char* name : {"Name", "Number"}) columns.AddItem(name);
  }
  columns.UserChoose(Below(2));
  columns.UserDblClick();
}

// The style of the next text that is clicked goes to the selection.
void RandomHand::Pick() { frmMain.mnuTextCopy.Press(); }

void RandomHand::Tick() {
  CheckBox* const boxes[] = {&frmMain.chkBold, &frmMain.chkItalic, &frmMain.chkTransparent,
                             &frmMain.chkPriCharacter, &frmMain.chkXHair};
  CommandButton* const colors[] = {&frmMain.cmdColor, &frmMain.cmdFColor, &frmMain.cmdTextColor};
  if (OneIn(3)) return frmMain.lblBCol(Below(6)).Press();
  if (OneIn(3)) return frmMain.lblFCol(Below(6)).Press();
  if (OneIn(3)) return OneOf(colors)->Press();
  boxes[Below(5)]->Press();
}

void RandomHand::Command() {
  Menu* const entries[] = {
      &frmMain.mnuEditSelectAll, &frmMain.mnuTextCopy,   &frmMain.mnuUndo,
      &frmMain.mnuEditCut,       &frmMain.mnuEditCopy,   &frmMain.mnuEditPaste,
      &frmMain.mnuArrangeBTF,    &frmMain.mnuArrangeSTB, &frmMain.mnuAHoriz,
      &frmMain.mnuUnitIn,        &frmMain.mnuUnitMM,     &frmMain.mnuFileImport};
  if (OneIn(20)) return Project();
  if (OneIn(4)) return frmMain.cmdAlign(Below(3)).Press();
  entries[Below(12)]->Press();
}

// The label goes to a file and comes back, or another one is begun.
void RandomHand::Project() {
  dialogs_.files = {folder_ + "/label.twp"};
  Menu* const entries[] = {&frmMain.mnuFileNew, &frmMain.mnuFileSaveAs, &frmMain.mnuFileSave,
                           &frmMain.mnuFileOpen};
  OneOf(entries)->Press();
}

void RandomHand::View() {
  switch (Below(5)) {
    case 0:
      return frmMain.hS1.UserScroll(Below(501));
    case 1:
      return frmMain.vS1.UserScroll(Below(501));
    case 2:
      return frmMain.cmdXC.Press();
    case 3:
      return frmMain.mnuMagRule(Below(7)).Press();
    default:
      return frmMain.cmdMagnify(Below(5)).Press();
  }
}

// The user may also close the menu without choosing.
void RandomHand::ChooseIn(const Menu& menu) {
  if (menu.Items().empty() || OneIn(4)) return;
  Menu& entry =
      *menu.Items()[static_cast<std::size_t>(Below(static_cast<int>(menu.Items().size())))];
  entry.Items().empty() ? entry.Press() : ChooseIn(entry);
}

const char* RandomHand::Act() {
  struct Kind {
    int weight;
    const char* name;
    void (RandomHand::*act)();
  };
  static constexpr Kind kKinds[] = {
      {30, "press", &RandomHand::Press},    {30, "move", &RandomHand::Move},
      {8, "key", &RandomHand::Key},         {10, "tool", &RandomHand::Tool},
      {8, "type", &RandomHand::Type},       {5, "field", &RandomHand::Field},
      {5, "choose", &RandomHand::Choose},   {5, "tick", &RandomHand::Tick},
      {2, "picture", &RandomHand::Picture}, {2, "pick", &RandomHand::Pick},
      {6, "command", &RandomHand::Command}, {2, "view", &RandomHand::View},
      {3, "column", &RandomHand::Column}};
  ScriptDialogs();
  int place = Below(116);
  for (const Kind& kind : kKinds) {
    place -= kind.weight;
    if (place >= 0) continue;
    (this->*kind.act)();
    return kind.name;
  }
  return "nothing";
}

void RandomHand::LetGo() {
  if (button_) Release();
  shift_ = 0;
  frmMain.UserKeyUp(17, 0);
}

class HandModelTest : public ShellTest {
 protected:
  HandModelTest() {
    StartProgram();
    SetPictureReader(ReadPicture);
    WritePictures();
    SetFaultReporter([this](const Fault& fault) { faults.push_back(fault.description); });
  }
  ~HandModelTest() override {
    SetFaultReporter({});
    SetWindowService(nullptr);
    SetPictureReader(nullptr);
  }

  // What is broken, empty when all is well.
  std::string Broken() const {
    if (!faults.empty()) return "a fault left its event: " + faults.front();
    if (ObjectUB < -1 || Objects.size() < static_cast<std::size_t>(ObjectUB + 1)) return "ObjectUB";
    if (SelectedObject < -1) return "SelectedObject";
    if (SelectedUpper < -1 || SelectedUpper > 256) return "SelectedUpper";
    for (int i = 0; i <= SelectedUpper; ++i) {
      if (SelectedMember(i) < 0) return "a member";
    }
    if (LastSelected() > ObjectUB) return "selected beyond the last";
    if (SelectedObject > -1 && SelectedUpper > -1) return "both kinds of selection";
    if (RedrawSkip != -1) return "RedrawSkip outlives its event";
    if (SuspendRedraw) return "SuspendRedraw outlives its event";
    if (PanelLoading) return "PanelLoading outlives its event";
    if (!(ZoomFactor > 0) || !std::isfinite(ZoomFactor)) return "ZoomFactor";
    return BrokenSizeFields() + BrokenRecord() + BrokenShow();
  }

  void Run(unsigned seed) {
    RandomHand hand(seed, folder.Path(), dialogs);
    SetWindowService(&hand);
    dialogs.answers = {Answer::kNo};
    frmMain.mnuFileNew.Press();
    for (int i = 0; i < kEventsInASequence; ++i) {
      const int upper_before = ObjectUB;
      const char* act = hand.Act();
      Note(upper_before);
      CountRefusals();
      dynamic_cast<RecordingSurface&>(frmMain.picBoard.Canvas()).painted.clear();
      const std::string broken = Broken();
      ASSERT_EQ(broken, "") << "seed " << seed << ", event " << i << ": " << act << ", selected "
                            << SelectedObject << " " << SelectedUpper;
    }
    hand.LetGo();
    CountRefusals();
    ASSERT_EQ(Broken(), "") << "seed " << seed << ", at the end";
    ASSERT_FALSE(Dragging) << seed;
    SetWindowService(nullptr);
  }

  // That the hand has really worked: what it has met on its way.
  void ExpectMet() const {
    for (const std::int16_t kind :
         {kBarcode, kPicture, kText, kLine, kRectangle, kRoundedRectangle, kEllipse, kDataField}) {
      EXPECT_TRUE(kinds_met.contains(kind)) << kind;
    }
    EXPECT_GT(groups_met, 50);
    EXPECT_GT(drags_met, 500);
    EXPECT_GT(deletions_met, 50);
    EXPECT_GT(entries_met, 100);
    EXPECT_GT(refusals_met, 10);
  }

  std::vector<std::string> faults;

 private:
  void WritePictures() const {
    const std::map<std::string, std::string> pictures = {{"wide.jpg", "9000 3000"},
                                                         {"tall.jpg", "2000 8000"},
                                                         {"huge.jpg", "9000000 5000000"},
                                                         {"no size.jpg", "0 0"},
                                                         {"bad.jpg", "no picture"}};
    for (const auto& [name, contents] : pictures) WriteFile(folder.File(name), contents);
  }

  // Of pictures that cannot be read.
  void CountRefusals() {
    const auto refused =
        std::ranges::count(dialogs.messages, kUnreadable, &ScriptedDialogs::Message::text);
    dialogs.messages.clear();
    refusals_met += static_cast<int>(refused);
  }

  // With nothing selected nothing says that something is.
  static std::string BrokenShow() {
    const bool selected = SelectedObject > -1 || SelectedUpper > -1;
    if (frmMain.mnuEditCopy.Enabled() != selected) return "the commands of a selection";
    const std::string& count = frmMain.sB1.PanelText(3);
    if (selected || RubberBox || RubberLine) return "";
    if (frmMain.shpBox.Visible()) return "a frame around nothing";
    const bool counts = count.starts_with("Objects Selected: ") && !count.ends_with(" 0");
    return counts ? "a count of nothing" : "";
  }

  static int LastSelected() {
    int last = SelectedObject;
    for (int i = 0; i <= SelectedUpper; ++i) last = std::max<int>(last, SelectedMember(i));
    return last;
  }

  void Note(int upper_before) {
    for (int i = 0; i <= ObjectUB; ++i) kinds_met.insert(ObjectAt(i).ObjType);
    groups_met += SelectedUpper > 0;
    drags_met += Dragging;
    deletions_met += ObjectUB < upper_before;
    entries_met += TextEntryActive;
  }

  std::set<std::int16_t> kinds_met;
  int groups_met = 0, drags_met = 0, deletions_met = 0, entries_met = 0, refusals_met = 0;

  // Outside a gesture they are the record's, or nothing's. One that has the keyboard is the user's.
  static std::string BrokenSizeFields() {
    if (Dragging || RubberBox || RubberLine) return "";
    const bool one = SelectedUpper < 0 && SelectedObject > -1 && SelectedObject <= ObjectUB;
    const ObjectRecord record = one ? ObjectAt(SelectedObject) : ObjectRecord{};
    const double sizes[] = {record.Left, record.Top, record.Width, record.Height};
    for (int i = 0; i < 4; ++i) {
      const TextBox& field = frmMain.txtDSize(i);
      const std::string wanted = FormatFixed(sizes[i] / UnitScale, 2);
      const bool typing = one && field.HasFocus() && !IsAsShown(i);
      if (field.Text() == wanted || typing) continue;
      return "field " + std::to_string(i) + " says " + field.Text() + " for " + wanted;
    }
    return "";
  }

  static std::string BrokenRecord() {
    for (int i = 0; i <= ObjectUB; ++i) {
      const ObjectRecord& object = ObjectAt(i);
      const bool finite = std::isfinite(object.Left) && std::isfinite(object.Top) &&
                          std::isfinite(object.Width) && std::isfinite(object.Height) &&
                          std::isfinite(object.FontSize);
      if (!finite) return "record " + std::to_string(i) + " is not finite";
      if (object.ObjType == kDeleteMark) return "a delete mark stays";
    }
    return "";
  }
};

TEST_F(HandModelTest, TwentyThousandEventsKeepTheStateInOrder) {
  for (unsigned seed = 1; seed <= 100 && !HasFatalFailure(); ++seed) Run(seed);
  ExpectMet();
}

TEST_F(HandModelTest, Long_TwoHundredThousandEventsKeepTheStateInOrder) {
  for (unsigned seed = 1000; seed < 2000 && !HasFatalFailure(); ++seed) Run(seed);
  ExpectMet();
}

}  // namespace
}  // namespace tagwright
