// What every control has. The control model is the only owner of what windows show. The toolkit's
// views render it and report what the user did; order and meaning of events are decided here, where
// a test can call them.
//
// Geometry is in the container's scale unit (twips on a form), stored exactly as assigned. When a
// container's scale or size changes, its children stay where they are on screen and their numbers
// are converted. 15 twips are one logical pixel.
//
// Events run inside the assignment that raises them, after the value is stored. They nest, and a
// fault ends at the event's boundary.
//
// Members named User... are what the views report; all else is what routines call. While a handler
// runs, presses, moves and keys of the user reach only the window that the handler opened modally;
// a release, a key's end, a resize, an activation and a close wait until it is done.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/controls/control_events.h"
#include "platform/controls/control_view.h"

namespace tagwright {

class Container;
class Form;

class Control {
 public:
  // A control named `name` in `container`. `index` is -1 unless it is a control array's element.
  Control(Container* container, std::string name, int index = -1,
          std::shared_ptr<ControlEvents> events = nullptr);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  Container* Parent() const { return container_; }
  Form* ParentForm() const { return form_; }  // null for a container that stands alone
  ControlEvents& Events() const { return *events_; }

  // Geometry in the container's unit. Assignments store exactly and raise nothing here.
  double Left() const { return left_; }
  double Top() const { return top_; }
  double Width() const { return width_; }
  double Height() const { return height_; }
  void SetLeft(double value);
  void SetTop(double value);
  void SetWidth(double value);   // faults 380 when negative, except for a Shape
  void SetHeight(double value);  // likewise
  void Move(double left, double top);
  void Move(double left, double top, double width, double height);  // faults 380 like SetWidth
  // The same in twips from the container's corner.
  double LeftTwips() const;
  double TopTwips() const;
  double WidthTwips() const;
  double HeightTwips() const;

  bool Visible() const { return visible_; }
  void SetVisible(bool value);
  bool Enabled() const { return enabled_; }
  virtual void SetEnabled(bool value);
  // Whether it and all its containers are visible; enabled; both. A loaded form counts as visible
  // until it is hidden.
  bool IsShown() const;
  bool IsLive() const;
  bool IsUsable() const { return IsShown() && IsLive(); }

  // 0 brings to the front, 1 sends to the back, among the container's children; faults 380 for
  // other positions.
  void ZOrder(int position = 0);
  // Larger is nearer to the user.
  std::int64_t Order() const { return order_; }

  const std::string& ToolTipText() const { return tool_tip_; }
  void SetToolTipText(std::string value);
  // What screen readers call it, where that changes; empty: what the form file says.
  const std::string& SpokenName() const { return spoken_name_; }
  void SetSpokenName(std::string value);
  // 0 default, 1 arrow, 2 cross, 3 I-beam, 6 and 8 sizing along a diagonal (up right, down right),
  // 11 hourglass, 14 arrow and question mark, 99 MouseIcon. Faults 380 outside 0 to 15 and 99.
  int MousePointer() const { return pointer_; }
  void SetMousePointer(int value);
  const std::string& MouseIcon() const { return mouse_icon_; }  // name of an icon resource
  void SetMouseIcon(std::string value);

  // Moves the keyboard here: LostFocus of the former holder, then GotFocus of this one, both before
  // it returns; a SetFocus inside either wins, and a control that such a one passes over gets no
  // event. Nothing when it has it already. Faults 5 for a control that takes no keyboard, or is
  // hidden or disabled (itself or a container).
  //
  // Hiding or disabling the holder raises nothing. It has no keyboard then, but stays the one that
  // LostFocus goes to when another control gets it, so that each GotFocus finds its LostFocus.
  void SetFocus();
  bool HasFocus() const;
  // Whether the class takes the keyboard at all.
  virtual bool TakesFocus() const { return false; }

  // --- what the user does, reported by the view ---
  void UserFocus();  // as SetFocus, but quietly nothing where SetFocus would fault
  void UserDblClick();
  // The mouse over a control that has a view of its own; points are twips from its corner. A press
  // moves the focus (to it, or where FocusStandIn says) before MouseDown and captures the control
  // until the last button is up. A release without a press raises nothing; one while a handler runs
  // waits. A second press of a button that is down ends the first one: its release was lost. Button
  // 0 is one that handlers do not know: nothing.
  //
  // In a container whose children have no views of their own the press finds its control there (see
  // ChildAt), before the focus moves. That one stays captured also when it is hidden meanwhile; its
  // x and y follow its present corner.
  void UserMouseDown(int button, int shift, double x_twips, double y_twips);
  void UserMouseMove(int button, int shift, double x_twips, double y_twips);
  void UserMouseUp(int button, int shift, double x_twips, double y_twips);
  // The wheel, turned this many notches to the left and up (away from the user). Nothing while a
  // press holds the control: a drag counts on a board that stands still.
  void UserMouseWheel(int shift, double left, double up, double x_twips, double y_twips);

  void AttachView(ControlView* view);  // not owned; null detaches
  ControlView* View() const { return view_; }

  // --- for containers and subclasses ---
  virtual void Rescaled(double factor_x, double factor_y);  // the container's unit changed
  void Notify(Aspect aspect) const;
  // Whether the user's acts on it have to wait or are dropped, because a handler runs.
  bool Waits() const;

 protected:
  // For controls that have a name on `form` but no place in it.
  Control(std::string name, Form* form, int index, std::shared_ptr<ControlEvents> events);
  int WaitLevel() const;
  // Faults 380 for a value outside `low` to `high`, both included.
  static void CheckRange(int value, int low, int high);
  virtual void SizeChanged() { Notify(Aspect::kGeometry); }
  // A place was assigned; `changed` unless it is the one that it had.
  virtual void Placed(bool changed) {
    if (changed) Notify(Aspect::kGeometry);
  }
  virtual double MouseUnitX() const { return 1; }  // twips of one unit of its mouse events
  virtual double MouseUnitY() const { return 1; }
  virtual bool TakesMouse() const { return false; }  // on a board: labels do
  virtual bool TakesNegativeSize() const { return false; }
  // The control that hears the mouse at a place in this one's view.
  virtual Control& MouseTarget(double, double) { return *this; }
  // The control that takes the keyboard when this one is pressed.
  virtual Control* FocusTarget() { return this; }

 private:
  friend class Container;
  friend class Form;
  using MouseEvent = Event<int, int, double, double> ControlEvents::*;
  bool CanTakeFocus() const { return form_ && TakesFocus() && IsUsable(); }
  void CheckSize(double width, double height) const;
  void Resize(double width, double height);
  void RaiseMouse(Control& target, MouseEvent event, int button, int shift, double x_twips,
                  double y_twips);
  static void DeliverReleases(Control* surface);
  void ForgetPress();
  // What waiting releases go by: an address that nobody outside uses as a key.
  const void* ReleaseKey() const { return &order_; }
  std::string name_;
  int index_;
  Container* container_ = nullptr;
  Form* form_ = nullptr;
  std::shared_ptr<ControlEvents> events_;
  ControlView* view_ = nullptr;
  double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  std::int64_t order_ = 0;
  int pointer_ = 0;
  std::string tool_tip_;
  std::string spoken_name_;
  std::string mouse_icon_;
};

}  // namespace tagwright
