// Windows come and go.
#include "platform/controls/windows.h"

#include <memory>

#include "control_fixture.h"
#include "platform/controls/mouse.h"

namespace tagwright {
namespace {

struct LoadedForm : Form {
  LoadedForm() : Form("frmLoaded") { txtField.SetText("design"); }
  TextBox txtField{this, "txtField"};
  ControlArray<Label> lblHold{this, "lblHold", 1};
};

LoadedForm loaded;
SmallForm other;
std::vector<std::string>* lines = nullptr;

void WireLoaded(LoadedForm& form) {
  form.WindowEvents().Load = [] { lines->push_back("load"); };
  form.txtField.Events().Change = [] { lines->push_back("change " + loaded.txtField.Text()); };
}

// Remembers what was asked; RunModal plays the user.
struct ScriptedWindows : WindowService {
  std::vector<std::string> asked;
  std::function<void()> user;
  std::function<void()> menu_user;
  void Create(Form& form) override { asked.push_back("create " + form.Name()); }
  void Show(Form& form) override { asked.push_back("show " + form.Name()); }
  void RunModal(Form& form) override {
    asked.push_back("modal " + form.Name());
    if (user) user();
  }
  void Destroy(Form& form) override { asked.push_back("destroy " + form.Name()); }
  void PopupMenu(Form&, Menu& menu) override {
    asked.push_back("popup " + menu.Name());
    if (menu_user) menu_user();
  }
  void SendTab() override { asked.push_back("tab"); }
};

class WindowsTest : public ControlTest {
 protected:
  WindowsTest() {
    UnloadAll();
    SetWindowService(&windows);
    lines = &log;
    WireForm<LoadedForm> = WireLoaded;
  }
  ~WindowsTest() override {
    UnloadAll();
    SetWindowService(nullptr);
  }
  ScriptedWindows windows;
};

TEST_F(WindowsTest, LoadGivesFreshValuesBindsMakesViewsAndRaisesLoad) {
  loaded.txtField.SetText("old");
  loaded.lblHold.Load(4);
  log.clear();
  Load(loaded);
  EXPECT_EQ(loaded.txtField.Text(), "design");
  EXPECT_FALSE(loaded.lblHold.Exists(4));
  EXPECT_EQ(windows.asked, Lines{"create frmLoaded"});
  EXPECT_EQ(log, Lines{"load"});
  loaded.txtField.SetText("new");
  EXPECT_EQ(log.back(), "change new");
}

TEST_F(WindowsTest, DesignValuesRaiseNothingSinceNothingIsBoundYet) {
  Load(loaded);
  EXPECT_EQ(log, Lines{"load"});
}

TEST_F(WindowsTest, LoadingALoadedFormDoesNothing) {
  Load(loaded);
  loaded.txtField.SetText("kept");
  Load(loaded);
  EXPECT_EQ(loaded.txtField.Text(), "kept");
  EXPECT_EQ(windows.asked.size(), 1u);
}

TEST_F(WindowsTest, LoadedFormsAreListedInOrderOfLoading) {
  Load(other);
  Load(loaded);
  EXPECT_EQ(Forms(), (std::vector<Form*>{&other, &loaded}));
  EXPECT_TRUE(IsLoaded(loaded));
  Unload(other);
  EXPECT_EQ(Forms(), std::vector<Form*>{&loaded});
  EXPECT_FALSE(IsLoaded(other));
}

TEST_F(WindowsTest, AFormCountsAsLoadedDuringItsLoad) {
  bool seen = false;
  static bool* seen_there = nullptr;
  seen_there = &seen;
  WireForm<LoadedForm> = [](LoadedForm& fresh) {
    fresh.WindowEvents().Load = [] { *seen_there = IsLoaded(loaded); };
  };
  Load(loaded);
  EXPECT_TRUE(seen);
}

TEST_F(WindowsTest, AFaultInLoadLeavesTheFormLoaded) {
  WireForm<LoadedForm> = [](LoadedForm& fresh) {
    fresh.WindowEvents().Load = [] { RaiseFault(kOverflow); };
  };
  Load(loaded);
  EXPECT_TRUE(IsLoaded(loaded));
  EXPECT_EQ(faults, std::vector<int>{6});
}

TEST_F(WindowsTest, UnloadRaisesUnloadAndDropsTheViews) {
  Load(loaded);
  loaded.WindowEvents().Unload = [&](bool&) { Log("unload"); };
  EXPECT_TRUE(Unload(loaded));
  EXPECT_EQ(log.back(), "unload");
  EXPECT_EQ(windows.asked.back(), "destroy frmLoaded");
  EXPECT_FALSE(IsLoaded(loaded));
}

TEST_F(WindowsTest, AnUnloadHandlerMayKeepTheWindow) {
  Load(loaded);
  loaded.WindowEvents().Unload = [&](bool& cancel) { cancel = true; };
  EXPECT_FALSE(Unload(loaded));
  EXPECT_TRUE(IsLoaded(loaded));
  EXPECT_EQ(windows.asked.size(), 1u);
}

TEST_F(WindowsTest, UnloadingWhatIsNotLoadedDoesNothing) {
  loaded.WindowEvents().Unload = [&](bool&) { Log("unload"); };
  EXPECT_TRUE(Unload(loaded));
  EXPECT_TRUE(windows.asked.empty());
  EXPECT_TRUE(log.empty());
}

TEST_F(WindowsTest, AnUnloadInsideTheUnloadHandlerDoesNothing) {
  Load(loaded);
  loaded.WindowEvents().Unload = [&](bool&) { Log(Unload(loaded) ? "gone" : "still there"); };
  log.clear();
  EXPECT_TRUE(Unload(loaded));
  EXPECT_EQ(log, Lines{"still there"});
}

TEST_F(WindowsTest, AFaultInUnloadDoesNotKeepTheWindow) {
  Load(loaded);
  loaded.WindowEvents().Unload = [&](bool&) { RaiseFault(kFileAccess); };
  EXPECT_TRUE(Unload(loaded));
  EXPECT_EQ(faults, std::vector<int>{kFileAccess});
}

TEST_F(WindowsTest, UnloadAllAsksNobody) {
  Load(other);
  Load(loaded);
  loaded.WindowEvents().Unload = [&](bool& cancel) { cancel = true; };
  UnloadAll();
  EXPECT_TRUE(Forms().empty());
  EXPECT_EQ(windows.asked[2], "destroy frmLoaded");
  EXPECT_EQ(windows.asked[3], "destroy frmSmall");
}

TEST_F(WindowsTest, ShowShowsALoadedFormOnly) {
  EXPECT_EQ(FaultOf([&] { Show(loaded); }), kInvalidCall);
  EXPECT_EQ(FaultOf([&] { ShowModal(loaded); }), kInvalidCall);
  Load(loaded);
  loaded.SetVisible(false);
  Show(loaded);
  EXPECT_TRUE(loaded.Visible());
  EXPECT_EQ(windows.asked.back(), "show frmLoaded");
}

TEST_F(WindowsTest, WithoutAServiceShowActivates) {
  SetWindowService(nullptr);
  Load(loaded);
  loaded.WindowEvents().Activate = [&] { Log("activate"); };
  Show(loaded);
  EXPECT_EQ(log.back(), "activate");
}

TEST_F(WindowsTest, TheUsersCloseUnloadsAndWaitsWhileAHandlerRuns) {
  Load(loaded);
  RunHandler([&] {
    UserClose(loaded);
    UserClose(loaded);
    EXPECT_TRUE(IsLoaded(loaded));
  });
  EXPECT_FALSE(IsLoaded(loaded));
}

TEST_F(WindowsTest, ResizesThatWaitForAClosedWindowAreForgotten) {
  Load(loaded);
  loaded.WindowEvents().Resize = [&] { Log("resize"); };
  log.clear();
  RunHandler([&] {
    UserClose(loaded);
    loaded.UserResize(0, 0, 1, 1, 1, 1, WindowState::kNormal);
  });
  EXPECT_TRUE(log.empty());
}

// --- modal --------------------------------------------------------------------------------------

TEST_F(WindowsTest, AModalWindowGetsItsEventsWhileTheHandlerThatOpenedItWaits) {
  Load(other);
  Load(loaded);
  windows.user = [&] {
    loaded.txtField.UserFocus();
    loaded.txtField.UserKey(U'!');
    loaded.UserResize(0, 0, 99, 99, 99, 99, WindowState::kNormal);
  };
  loaded.WindowEvents().Resize = [&] { Log("resize"); };
  log.clear();
  RunHandler([&] { ShowModal(loaded); });
  EXPECT_EQ(log, (Lines{"change !design", "resize"}));
}

TEST_F(WindowsTest, OtherWindowsGetNothingWhileAModalWindowIsUp) {
  Load(other);
  Load(loaded);
  other.tmrOne.SetInterval(70);
  other.tmrOne.Events().Timer = [&] { Log("tick"); };
  other.WindowEvents().KeyDown = [&](int&, int) { Log("key"); };
  other.WindowEvents().Resize = [&] { Log("resize"); };
  other.cmdOne.Events().MouseDown = [&](int, int, double, double) { Log("mouse"); };
  windows.user = [&] {
    other.tmrOne.Elapsed();
    other.UserKeyDown(65, 0);
    other.cmdOne.UserMouseDown(kLeftButton, 0, 1, 1);
    other.txtFirst.UserKey(U'x');
    other.UserResize(0, 0, 99, 99, 99, 99, WindowState::kNormal);
    UserClose(other);
    EXPECT_TRUE(IsLoaded(other));
    Log("user ends");
  };
  log.clear();
  ShowModal(loaded);
  EXPECT_EQ(log, (Lines{"user ends", "resize"}));
  EXPECT_EQ(other.txtFirst.Text(), "");
  EXPECT_FALSE(IsLoaded(other));
}

TEST_F(WindowsTest, AModalWindowIsClosedByItsUserAtOnce) {
  Load(loaded);
  windows.user = [&] {
    UserClose(loaded);
    EXPECT_FALSE(IsLoaded(loaded));
  };
  RunHandler([&] { ShowModal(loaded); });
}

TEST_F(WindowsTest, AModalWindowsTimerTicksAndIsDroppedByItsOwnHandlersOnly) {
  Load(loaded);
  Timer timer(&loaded, "tmrHere");
  timer.SetInterval(10);
  timer.Events().Timer = [&] { Log("tick"); };
  log.clear();
  windows.user = [&] {
    timer.Elapsed();
    RunHandler([&] { timer.Elapsed(); });
  };
  RunHandler([&] { ShowModal(loaded); });
  EXPECT_EQ(log, Lines{"tick"});
}

TEST_F(WindowsTest, AModalWindowOverAModalWindowHoldsThatOneBackToo) {
  Load(other);
  Load(loaded);
  int depth = 0;
  windows.user = [&] {
    if (++depth == 1) {
      RunHandler([&] { ShowModal(loaded); });
      other.txtFirst.UserKey(U'b');
    } else {
      other.txtFirst.UserKey(U'a');
      loaded.txtField.UserKey(U'a');
    }
  };
  RunHandler([&] { ShowModal(other); });
  EXPECT_EQ(other.txtFirst.Text(), "b");
  EXPECT_EQ(loaded.txtField.Text(), "adesign");
}

TEST_F(WindowsTest, AfterAModalWindowTheProgramIsAtRestAgain) {
  Load(loaded);
  RunHandler([&] { ShowModal(loaded); });
  EXPECT_EQ(RunningHandlers(), 0);
  EXPECT_FALSE(HandlerRuns());
  EXPECT_EQ(loaded.EventLevel(), 0);
}

TEST_F(WindowsTest, APressInsideAModalWindowDoesNotDisturbTheOneThatOpenedIt) {
  Load(other);
  Load(loaded);
  loaded.lblHold.Events().MouseDown = [&](int, int, double, double) { Log("modal down"); };
  loaded.lblHold.Events().MouseUp = [&](int, int, double, double) { Log("modal up"); };
  other.lblHold.Events().MouseUp = [&](int, int, double x, double) {
    Log("hold up at " + std::to_string(static_cast<int>(x)));
  };
  windows.user = [&] {
    loaded.lblHold(0).UserMouseDown(kLeftButton, 0, 1, 1);
    loaded.lblHold(0).UserMouseUp(kLeftButton, 0, 1, 1);
  };
  other.lblHold.Events().MouseDown = [&](int, int, double, double) { ShowModal(loaded); };
  log.clear();
  other.board.UserMouseDown(kLeftButton, 0, 10, 10);
  EXPECT_EQ(log, (Lines{"modal down", "modal up", "hold up at 10"}));
}

TEST_F(WindowsTest, AModalWindowEndsHeldKeysOfTheWindowBelow) {
  Load(other);
  Load(loaded);
  other.WindowEvents().KeyUp = [&](int key, int) { Log("up " + std::to_string(key)); };
  other.UserActivate();
  log.clear();
  ShowModal(loaded);
  EXPECT_EQ(log, Lines{"up 0"});
}

// --- the rest -----------------------------------------------------------------------------------

TEST_F(WindowsTest, APopUpMenusClickHasRunWhenItReturns) {
  Load(other);
  other.mnuFileOpen.Events().Click = [&] { Log("click"); };
  windows.menu_user = [&] { other.mnuFileOpen.Press(); };
  log.clear();
  RunHandler([&] {
    PopupMenu(other, other.mnuFile);
    Log("returned");
  });
  EXPECT_EQ(log, (Lines{"click", "returned"}));
  EXPECT_EQ(windows.asked.back(), "popup mnuFile");
}

TEST_F(WindowsTest, TheTabKeyIsTheServices) {
  SendTab();
  EXPECT_EQ(windows.asked, Lines{"tab"});
  SetWindowService(nullptr);
  SendTab();
  EXPECT_EQ(windows.asked.size(), 1u);
}

}  // namespace
}  // namespace tagwright
