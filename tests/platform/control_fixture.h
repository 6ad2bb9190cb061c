// A small window of every sort of control, and a log of what its events did.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/controls/buttons.h"
#include "platform/controls/control.h"
#include "platform/controls/control_array.h"
#include "platform/controls/control_view.h"
#include "platform/controls/form.h"
#include "platform/controls/label.h"
#include "platform/controls/list_box.h"
#include "platform/controls/menu.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/shapes.h"
#include "platform/controls/status_bar.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/timer.h"
#include "platform/controls/windows.h"
#include "platform/services/dialogs.h"
#include "support/test_support.h"

namespace tagwright {

struct SmallForm : Form {
  SmallForm() : Form("frmSmall") {
    SetWidth(6000);
    SetHeight(4500);
    board.Move(300, 300, 3000, 1500);
    for (const auto& [index, hold] : lblHold) hold->Move(300.0 * index, 0, 450, 450);
  }
  Menu mnuFile{this, "mnuFile"};
  Menu mnuFileOpen{&mnuFile, "mnuFileOpen"};
  ControlArray<Menu> mnuFileOld{&mnuFile, "mnuFileOld", 2};
  TextBox txtFirst{this, "txtFirst"};
  TextBox txtSecond{this, "txtSecond"};
  TextBox txtThird{this, "txtThird"};
  ComboBox cboPick{this, "cboPick"};
  ComboBox cboTyped{this, "cboTyped"};
  ListBox lstRows{this, "lstRows"};
  CheckBox chkOne{this, "chkOne"};
  CommandButton cmdOne{this, "cmdOne"};
  ScrollBar hS1{this, "hS1"};
  PictureBox board{this, "board"};
  ControlArray<Label> lblHold{&board, "lblHold", 3};
  LineControl Hair{&board, "Hair"};
  Shape shpBox{&board, "shpBox"};
  TextBox txtBoard{&board, "txtBoard"};
  Timer tmrOne{this, "tmrOne"};
  StatusBar sB1{this, "sB1", 4};
};

// Counts what a view is told.
struct CountingView : ControlView {
  struct Told {
    const Control* control;
    Aspect aspect;
  };
  std::vector<Told> told;
  void Changed(const Control& control, Aspect aspect) override {
    told.push_back({&control, aspect});
  }
  int Count(Aspect aspect) const {
    int count = 0;
    for (const Told& one : told) count += one.aspect == aspect;
    return count;
  }
};

class ControlTest : public testing::Test {
 protected:
  ControlTest() {
    SetDialogs(&dialogs);
    SetFaultReporter([this](const Fault& fault) { faults.push_back(fault.number); });
  }
  ~ControlTest() override {
    SetDialogs(nullptr);
    SetFaultReporter({});
    ForgetAfterHandlers(nullptr);
  }

  void Log(const std::string& line) { log.push_back(line); }
  // Focus events of a control, as "name+" and "name-".
  void LogFocus(Control& control) {
    control.Events().GotFocus = [this, &control] { Log(control.Name() + "+"); };
    control.Events().LostFocus = [this, &control] { Log(control.Name() + "-"); };
  }
  static int FaultOf(const std::function<void()>& statement) {
    try {
      statement();
    } catch (const Fault& fault) {
      return fault.number;
    }
    return 0;
  }

  using Lines = std::vector<std::string>;
  ScriptedDialogs dialogs;
  std::vector<int> faults;  // that ended an event
  Lines log;
  SmallForm form;
};

}  // namespace tagwright
