// Windows as the model has them: size, state, keys, and which control has the keyboard.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/container.h"
#include "platform/controls/event.h"
#include "platform/painting/surface.h"

namespace tagwright {

class Menu;

enum class WindowState { kNormal = 0, kMinimized = 1, kMaximized = 2 };

// The events of a window. Key handlers: key code, shift state; they see every key before the
// control that has the keyboard. Unload's handler may set its argument to keep the window.
struct FormEvents {
  Event<> Load;
  Event<> Activate;
  Event<> Resize;
  Event<bool&> Unload;
  Event<int&, int> KeyDown;
  Event<int, int> KeyUp;
};

// A window. Left, Top, Width and Height are its outer size in twips; the scale is the client area
// inside frame and menu bar, in twips.
class Form : public Container {
 public:
  explicit Form(std::string name);
  ~Form() override;

  FormEvents& WindowEvents() const { return *form_events_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  WindowState State() const { return state_; }
  // SetWidth, SetHeight and Move raise Resize once when the size really changes; the client area
  // follows by the same difference.
  Color BackColor() const { return back_color_; }
  // Whether anybody has said where it stands. One that nobody has placed is at 0, 0 in its numbers
  // and comes up where the window manager likes, cut to its screen.
  bool IsPlaced() const { return placed_; }

  // Everything with a name: controls and menus, in creation order.
  const std::vector<Control*>& AllControls() const { return all_; }
  const std::vector<Menu*>& Menus() const { return menus_; }  // top level, in order
  // By name and index (-1: no array); null when there is none.
  Control* Find(std::string_view name, int index = -1) const;

  // The control that has the keyboard, null none: also while the holder is hidden or disabled. An
  // inactive window keeps it.
  Control* ActiveControl() const;

  // The level (see event.h) at which this window gets events: 0, or that of its modal showing.
  int EventLevel() const { return event_level_; }
  void SetEventLevel(int level) { event_level_ = level; }

  // --- what the user and the window system do, reported by the view ---
  // While a handler runs the last resize waits until it is done, as do moves and activations. Outer
  // frame and client area in twips; raises Resize when the outer or the client size changed, or the
  // state.
  void UserResize(double left, double top, double width, double height, double client_width,
                  double client_height, WindowState state);
  void UserMove(double left, double top);
  void UserActivate();    // raises Activate
  void UserDeactivate();  // raises KeyUp with code 0 and no shift: held modifiers end here
  // Keys by virtual key code (letters and digits their capital's code, 8 backspace, 9 tab, 13
  // return, 16 shift, 17 ctrl, 18 alt, 27 esc, 33 to 40 page, end, home and arrows, 46 delete,
  // 93 menu, 112 on the function keys; 0 a key that has none of these, such as most punctuation).
  // KeyDown's handler may set the code to 0: returns false then, and the key must go no further. A
  // key without a code goes on. While a handler runs a key's end waits and its beginning is lost.
  bool UserKeyDown(int key_code, int shift);
  void UserKeyUp(int key_code, int shift);
  // A modal window or menu is about to take the keyboard: KeyUp as at UserDeactivate, at once even
  // while a handler runs, since what that handler does next must not see held modifiers.
  void KeyboardLeaves();

  // Forgets what the user has under way here, for a window that goes: waiting resizes, activations
  // and keys, a press, and that it is the active one.
  void DropUserActs();

 protected:
  void SizeChanged() override;
  void Placed(bool changed) override;

 private:
  friend class Control;
  friend class Menu;
  friend class Container;
  void Enroll(Control* control);
  void Dismiss(Control* control);
  void DropPresses();
  void GiveFocus(Control* control);
  void TakeFrame(double left, double top, double width, double height, double client_width,
                 double client_height, WindowState state);
  std::shared_ptr<FormEvents> form_events_ = std::make_shared<FormEvents>();
  std::string caption_;
  WindowState state_ = WindowState::kNormal;
  Color back_color_ = 0xF0F0F0;
  std::vector<Control*> all_;
  std::vector<Menu*> menus_;
  Control* focus_ = nullptr;   // where the keyboard is to go, or is
  Control* holder_ = nullptr;  // who was told so last and is owed a LostFocus
  int focus_changes_ = 0;      // how often it moved: a nested SetFocus wins
  double framed_width_ = 0;    // the outer size that the client area belongs to
  double framed_height_ = 0;
  int event_level_ = 0;
  bool placed_ = false;
  std::vector<std::pair<int, int>> key_ups_;  // waiting, as key code and shift
  // Their addresses are the keys of what waits for the end of handlers.
  struct {
    char resize, move, activate, key_up;
  } waits_ = {};
};

// The window that the user is in; null when it is none of the program's.
Form* ActiveForm();

}  // namespace tagwright
