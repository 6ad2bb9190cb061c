// A label under the mouse: objects with their hit areas, and a mouse and keyboard that go through
// the window's own events.
#pragma once

#include <initializer_list>
#include <string>

#include "document/document_support.h"
#include "document/overlays.h"
#include "document/redraw.h"
#include "document/selection_state.h"
#include "editing/drag.h"
#include "editing/keys.h"
#include "editing/magnetic_rule.h"
#include "editing/object_panels.h"
#include "editing/resize.h"
#include "editing/selection.h"
#include "editing/text_panel.h"
#include "editing/undo.h"
#include "platform/controls/mouse.h"

namespace tagwright {

// The label of 100 by 50 mm stands at 100, 75 on the board, so an object at 10, 10 has its hit area
// at 110, 85. The events of handles, keys and text entry are bound.
class EditingTest : public LabelTest {
 protected:
  EditingTest() {
    ResetSelectionKeys();
    ResetDrag();
    ResetUndo();
    ResetMagneticRules();
    ResetObjectPanels();
    for (const char* name : {"Arial", "Courier New"}) frmMain.cboFont.AddItem(name);
    for (const char* size : {"8", "10", "12", "13", "16", "20", "28"})
      frmMain.cboSize.AddItem(size);
    frmMain.lblHandle.Events().MouseDown = lblHandle_MouseDown;
    frmMain.lblHandle.Events().MouseMove = lblHandle_MouseMove;
    frmMain.lblHandle.Events().MouseUp = lblHandle_MouseUp;
    frmMain.WindowEvents().KeyDown = Form_KeyDown;
    frmMain.WindowEvents().KeyUp = Form_KeyUp;
    frmMain.txtTool.Events().GotFocus = txtTool_GotFocus;
    frmMain.txtTool.Events().LostFocus = txtTool_LostFocus;
    frmMain.txtTool.Events().KeyPress = txtTool_KeyPress;
    frmMain.txtTool.Events().Change = txtTool_Change;
    SetFaultReporter([this](const Fault& fault) { faults.push_back(fault.number); });
    RedrawBoard();
  }
  ~EditingTest() override { SetFaultReporter({}); }

  // Appends an object with its hit area, and paints it.
  int Put(const ObjectRecord& record) {
    const int index = Add(record);
    HoldAt(index).SetVisible(true);
    HoldAt(index).ZOrder();
    RedrawBoard();
    return index;
  }

  int PutBox(float left, float top, double width = 20, double height = 10) {
    return Put(ShapeObject(kRectangle, left, top, width, height));
  }

  int PutText(const std::string& text, float left = 10, float top = 10) {
    ObjectRecord record = TextObject(text, left, top);
    record.Width = static_cast<double>(text.size()) * kCharacter;
    record.Height = kLineHeight;
    return Put(record);
  }

  static void SelectObject(int index) {
    SelectedObject = static_cast<std::int16_t>(index);
    ShowHandles(HoldAt(index));
  }

  static void SelectGroup(std::initializer_list<std::int16_t> members) {
    SelectedObject = -1;
    SelectedUpper = -1;
    for (const std::int16_t member : members) SelectedMember(++SelectedUpper) = member;
    ShowGroupBox();
  }

  // --- mouse, in board units ---
  static double TwipsX(double units) { return units * frmMain.picBoard.Scale().UnitX(); }
  static double TwipsY(double units) { return units * frmMain.picBoard.Scale().UnitY(); }

  static void Press(double x, double y, int button = kLeftButton, int shift = 0) {
    frmMain.picBoard.UserMouseDown(button, shift, TwipsX(x), TwipsY(y));
  }
  static void MoveTo(double x, double y) {
    frmMain.picBoard.UserMouseMove(kLeftButton, 0, TwipsX(x), TwipsY(y));
  }
  static void Release(double x, double y, int button = kLeftButton) {
    frmMain.picBoard.UserMouseUp(button, 0, TwipsX(x), TwipsY(y));
  }
  static void Click(double x, double y, int button = kLeftButton) {
    Press(x, y, button);
    Release(x, y, button);
  }
  // With a stop half way, as a hand moves.
  static void Drag(double x, double y, double to_x, double to_y) {
    Press(x, y);
    MoveTo((x + to_x) / 2, (y + to_y) / 2);
    MoveTo(to_x, to_y);
    Release(to_x, to_y);
  }

  // From the middle of a handle, by this distance.
  static void DragHandle(int handle, double dx, double dy) {
    const Label& label = frmMain.lblHandle(handle);
    const double x = label.Left() + label.Width() / 2;
    const double y = label.Top() + label.Height() / 2;
    Drag(x, y, x + dx, y + dy);
  }

  static void KeyDown(int key, int shift = 0) { frmMain.UserKeyDown(key, shift); }
  static void KeyUp(int key) { frmMain.UserKeyUp(key, 0); }

  // --- what is shown ---
  static std::string HandlesShown() {
    std::string shown;
    for (const auto& [index, handle] : frmMain.lblHandle) {
      if (handle->Visible()) shown += std::to_string(index);
    }
    return shown;
  }

  static void ExpectFrame(double left, double top, double width, double height) {
    EXPECT_NEAR(frmMain.shpBox.Left(), left, 1e-6);
    EXPECT_NEAR(frmMain.shpBox.Top(), top, 1e-6);
    EXPECT_NEAR(frmMain.shpBox.Width(), width, 1e-6);
    EXPECT_NEAR(frmMain.shpBox.Height(), height, 1e-6);
  }

  static void ExpectRecord(int index, double left, double top, double width, double height) {
    EXPECT_NEAR(ObjectAt(index).Left, left, 1e-4) << index;
    EXPECT_NEAR(ObjectAt(index).Top, top, 1e-4) << index;
    EXPECT_NEAR(ObjectAt(index).Width, width, 1e-4) << index;
    EXPECT_NEAR(ObjectAt(index).Height, height, 1e-4) << index;
  }

  static void SetRuleX(double at, double zone) {
    MagRuleX = at;
    ProgSettings.MagneticZone = zone;
    frmMain.lnMX.SetVisible(true);
  }
  static void SetRuleY(double at, double zone) {
    MagRuleY = at;
    ProgSettings.MagneticZone = zone;
    frmMain.lnMY.SetVisible(true);
  }

  static std::vector<std::int16_t> GroupMembers() {
    return {SelectedList.begin(), SelectedList.begin() + SelectedUpper + 1};
  }

  std::vector<int> faults;  // numbers of those that ended an event
};

}  // namespace tagwright
