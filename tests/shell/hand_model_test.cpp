// A person who presses, drags, types and chooses at random, and what must hold whatever they do.
#include <array>
#include <cmath>
#include <functional>
#include <random>
#include <set>

#include "document/objects.h"
#include "document/redraw.h"
#include "editing/drag.h"
#include "editing/keys.h"
#include "editing/selection.h"
#include "platform/windows.h"
#include "shell/shell_fixture.h"

namespace tagwright {
namespace {

constexpr int kEventsInASequence = 200;
constexpr int kDeleteKey = 46;

class RandomHand : public WindowService {
 public:
  explicit RandomHand(unsigned seed) : random_(seed) {}

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

  void AimAtBoard();
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
  void Command();
  void View();
  void ChooseIn(const Menu& menu);

  std::mt19937 random_;
  double x_ = 0, y_ = 0;  // where the pointer is, twips of the board
  int button_ = 0;        // that is down
  int shift_ = 0;         // keys that are down
};

void RandomHand::AimAtBoard() {
  x_ = Between(-200, frmMain.picBoard.Width() + 200);
  y_ = Between(-200, frmMain.picBoard.Height() + 200);
}

void RandomHand::AimAt(const Control& control) {
  x_ = control.LeftTwips() + Between(0, 1) * control.WidthTwips();
  y_ = control.TopTwips() + Between(0, 1) * control.HeightTwips();
}

void RandomHand::Aim() {
  if (ObjectUB >= 0 && !OneIn(3)) {
    AimAt(HoldAt(Below(ObjectUB + 1)));
  } else if (frmMain.lblHandle(3).Visible() && OneIn(2)) {
    AimAt(frmMain.lblHandle(Below(4)));
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
  switch (Below(4)) {
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
  const char* numbers[] = {"0", "12.5", "-3", "1e3", "x", "", "99999", "0.01"};
  TextBox& field = frmMain.txtDSize(Below(4));
  field.UserFocus();
  if (field.HasFocus()) field.UserEdit(numbers[Below(8)], 0);
  if (OneIn(2)) frmMain.txtDSize(Below(4)).UserFocus();
}

void RandomHand::Choose() {
  ComboBox* const boxes[] = {&frmMain.cboFont,  &frmMain.cboSize, &frmMain.cboWeight,
                             &frmMain.cboBCode, &frmMain.cboZoom, &frmMain.cboLabelLayout,
                             &frmMain.cboFont};
  ComboBox& box = *boxes[Below(7)];
  if (box.ListCount() > 0) box.UserChoose(Below(box.ListCount()));
}

void RandomHand::Tick() {
  CheckBox* const boxes[] = {&frmMain.chkBold, &frmMain.chkItalic, &frmMain.chkTransparent,
                             &frmMain.chkPriCharacter, &frmMain.chkXHair};
  if (OneIn(3)) return frmMain.lblBCol(Below(6)).Press();
  if (OneIn(3)) return frmMain.lblFCol(Below(6)).Press();
  boxes[Below(5)]->Press();
}

void RandomHand::Command() {
  Menu* const entries[] = {&frmMain.mnuEditSelectAll, &frmMain.mnuTextCopy,   &frmMain.mnuUndo,
                           &frmMain.mnuEditCut,       &frmMain.mnuEditCopy,   &frmMain.mnuEditPaste,
                           &frmMain.mnuArrangeBTF,    &frmMain.mnuArrangeSTB, &frmMain.mnuAHoriz,
                           &frmMain.mnuUnitIn,        &frmMain.mnuUnitMM};
  if (OneIn(40)) return frmMain.mnuFileNew.Press();
  if (OneIn(4)) return frmMain.cmdAlign(Below(3)).Press();
  entries[Below(11)]->Press();
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
      {6, "command", &RandomHand::Command}, {2, "view", &RandomHand::View}};
  int place = Below(109);
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
    SetFaultReporter([this](const Fault& fault) { faults.push_back(fault.description); });
  }
  ~HandModelTest() override {
    SetFaultReporter({});
    SetWindowService(nullptr);
  }

  // What is broken, empty when all is well.
  std::string Broken() const {
    if (!faults.empty()) return "a fault left its event: " + faults.front();
    if (ObjectUB < -1 || Objects.size() < static_cast<std::size_t>(ObjectUB + 1)) return "ObjectUB";
    if (SelectedObject < -1 || SelectedObject > ObjectUB) return "SelectedObject out of range";
    if (SelectedUpper < -1 || SelectedUpper > 256) return "SelectedUpper out of range";
    for (int i = 0; i <= SelectedUpper; ++i) {
      if (SelectedMember(i) < 0 || SelectedMember(i) > ObjectUB) return "a member out of range";
    }
    if (SelectedObject > -1 && SelectedUpper > -1) return "both kinds of selection";
    if (RedrawSkip != -1) return "RedrawSkip outlives its event";
    if (SuspendRedraw) return "SuspendRedraw outlives its event";
    if (PanelLoading) return "PanelLoading outlives its event";
    if (!(ZoomFactor > 0) || !std::isfinite(ZoomFactor)) return "ZoomFactor";
    return BrokenRecord();
  }

  void Run(unsigned seed) {
    RandomHand hand(seed);
    SetWindowService(&hand);
    frmMain.mnuFileNew.Press();
    for (int i = 0; i < kEventsInASequence; ++i) {
      const int upper_before = ObjectUB;
      const char* act = hand.Act();
      Note(upper_before);
      dynamic_cast<RecordingSurface&>(frmMain.picBoard.Canvas()).painted.clear();
      const std::string broken = Broken();
      ASSERT_EQ(broken, "") << "seed " << seed << ", event " << i << ": " << act;
    }
    hand.LetGo();
    ASSERT_EQ(Broken(), "") << "seed " << seed << ", at the end";
    ASSERT_FALSE(Dragging) << seed;
    dialogs.messages.clear();
    SetWindowService(nullptr);
  }

  // That the hand has really worked: what it has met on its way.
  void ExpectMet() const {
    for (const std::int16_t kind :
         {kBarcode, kText, kLine, kRectangle, kRoundedRectangle, kEllipse}) {
      EXPECT_TRUE(kinds_met.contains(kind)) << kind;
    }
    EXPECT_GT(groups_met, 50);
    EXPECT_GT(drags_met, 500);
    EXPECT_GT(deletions_met, 50);
    EXPECT_GT(entries_met, 100);
  }

  std::vector<std::string> faults;

 private:
  void Note(int upper_before) {
    for (int i = 0; i <= ObjectUB; ++i) kinds_met.insert(ObjectAt(i).ObjType);
    groups_met += SelectedUpper > 0;
    drags_met += Dragging;
    deletions_met += ObjectUB < upper_before;
    entries_met += TextEntryActive;
  }

  std::set<std::int16_t> kinds_met;
  int groups_met = 0, drags_met = 0, deletions_met = 0, entries_met = 0;

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
