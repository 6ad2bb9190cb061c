// The control model: the only owner of what windows show. The toolkit's views render it and report
// what the user did; order and meaning of events are decided here, where a test can call them.
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
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/controls/event.h"
#include "platform/painting/fonts.h"
#include "platform/painting/scale.h"
#include "platform/painting/surface.h"

namespace tagwright {

class Container;
class Control;
class Form;

// --- what takes the user away -------------------------------------------------------------------

// To be called before a modal window, a message box or a pop-up menu opens (windows.h and dialogs.h
// do). Keys held in the active window end there: it raises KeyUp. A press under way will lose its
// release to the new window: MouseUp follows, where the pointer was last seen, as soon as the
// handler that opened it is done.
void ModalOpens();

// No button is down any more: completes a press whose release the toolkit has lost, like
// ModalOpens does. Nothing without a press. Views call it when they find the buttons up.
void UserButtonsUp();

// --- views --------------------------------------------------------------------------------------

// What of a control has changed; views redraw just that.
enum class Aspect {
  kGeometry,  // place or size
  kVisible,
  kEnabled,
  kText,       // caption, text, tool tip
  kList,       // rows of a list
  kSelection,  // list index, caret
  kValue,      // check, scroll bar value, menu check, timer
  kLook,       // font, colours, borders, pointer, picture
  kOrder,      // front or back
  kFocus,      // the keyboard went to or from this control
  kScale,      // the container's scale
  kImage,      // the persistent image of a picture box
};

// The toolkit's side of one control. A control without a view works all the same.
class ControlView {
 public:
  virtual ~ControlView() = default;
  // Called after each change, also of a child without a view of its own (then `control` is that
  // child and the view is its container's).
  virtual void Changed(const Control& control, Aspect aspect) = 0;
};

// --- events -------------------------------------------------------------------------------------

// Mouse buttons and shift states as handlers receive them.
enum MouseButton : int { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };
enum ShiftState : int { kShift = 1, kCtrl = 2, kAlt = 4 };

// The events of a control, or of all elements of one control array. Handlers take the element's
// index first or leave it out (see Event). Mouse handlers: button, shift, x, y; x and y in twips
// from the control's present top left corner. A picture box's x and y are in its own scale unit.
struct ControlEvents {
  Event<> Click;
  Event<> DblClick;  // list boxes only: everywhere else a quick second press is a press
  Event<> Change;    // text boxes, scroll bars
  Event<> GotFocus;
  Event<> LostFocus;
  Event<int&> KeyPress;  // code point of the character entered; 0 swallows it
  Event<int, int, double, double> MouseDown;
  Event<int, int, double, double> MouseMove;
  Event<int, int, double, double> MouseUp;
  // Picture boxes only: shift, notches to the left, notches up, x, y. Parts of a notch come too.
  Event<int, double, double, double, double> MouseWheel;
  Event<> Timer;
};

// --- controls -----------------------------------------------------------------------------------

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

// A control that holds others: a form or a picture box.
class Container : public Control {
 public:
  using Control::Control;
  ~Container() override;

  const std::vector<Control*>& Children() const { return children_; }  // in creation order

  ScaleSpace& Scale() { return scale_; }
  const ScaleSpace& Scale() const { return scale_; }
  // The scale as members of the control; changing it keeps the children where they are on screen.
  int ScaleMode() const { return scale_.ScaleMode(); }
  void SetScaleMode(int code);
  double ScaleWidth() const { return scale_.ScaleWidth(); }
  double ScaleHeight() const { return scale_.ScaleHeight(); }
  void SetScaleWidth(double units);
  void SetScaleHeight(double units);
  double ScaleX(double value, int from, int to) const { return scale_.ScaleX(value, from, to); }
  double ScaleY(double value, int from, int to) const { return scale_.ScaleY(value, from, to); }

  // The child under a point (twips from this container's corner) that takes the mouse: the topmost
  // visible label by ZOrder, or null for the container itself. Shapes, lines and disabled labels
  // are passed over; a disabled label does not cover what lies under it.
  Control* ChildAt(double x_twips, double y_twips) const;

  // The control that a press in this container holds; null without one.
  Control* Captured() const;

  // A control that stands for this container and its labels when the user presses there and the
  // keyboard has to go somewhere; null: the keyboard stays where it is.
  Control* FocusStandIn() const { return focus_stand_in_; }
  void SetFocusStandIn(Control* control) { focus_stand_in_ = control; }

 protected:
  void ResizeScale(double width_twips, double height_twips);
  Control* FocusTarget() override { return focus_stand_in_; }
  Control& MouseTarget(double x_twips, double y_twips) override;
  double MouseUnitX() const override { return scale_.UnitX(); }
  double MouseUnitY() const override { return scale_.UnitY(); }
  // Runs `change` on the scale, then converts the children's numbers.
  template <class Change>
  void ChangeScale(Change&& change);

 private:
  friend class Control;
  void Adopt(Control* child);
  void Release(Control* child);

  std::vector<Control*> children_;
  ScaleSpace scale_;
  Control* focus_stand_in_ = nullptr;
  std::int64_t front_ = 0;
  std::int64_t back_ = 0;
};

// --- the control types --------------------------------------------------------------------------

enum class TextAlignment { kLeft = 0, kRight = 1, kCenter = 2 };

// A caption, and on the board a hit area. With AutoSize on, each assignment of a caption or font
// (and turning it on, also again) fits the size to the text: as wide as the widest line, as high as
// ascent plus descent of all lines, which end at CR LF, CR or LF. An endless text leaves the
// size as it is, and a size assigned meanwhile holds until the next one.
class Label : public Control {
 public:
  using Control::Control;
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  const FontSpec& Font() const { return font_; }
  void SetFont(const FontSpec& font);
  void SetFontName(std::string name);  // an empty name keeps the present one
  void SetFontSize(double points);
  void SetFontBold(bool value);
  void SetFontItalic(bool value);
  bool AutoSize() const { return auto_size_; }
  void SetAutoSize(bool value);
  Color ForeColor() const { return fore_color_; }
  void SetForeColor(Color value);
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);
  int BackStyle() const { return back_style_; }  // 0 transparent, 1 opaque
  void SetBackStyle(int value);
  TextAlignment Alignment() const { return alignment_; }
  void SetAlignment(TextAlignment value);  // values outside the enumeration are refused: 380
  int BorderStyle() const { return border_style_; }  // 0 none, 1 single
  void SetBorderStyle(int value);
  // A user's click on a label that has a view of its own (the swatches of the panels).
  void Press();

 protected:
  bool TakesMouse() const override { return true; }
  Control* FocusTarget() override;  // a label has no keyboard; its container's stand-in does

 private:
  void Fit();
  std::string caption_;
  FontSpec font_;
  bool auto_size_ = false;
  Color fore_color_ = 0;
  Color back_color_ = 0xFFFFFF;
  int back_style_ = 1;
  int border_style_ = 0;
  TextAlignment alignment_ = TextAlignment::kLeft;
};

// Something that holds the caret: shared by text boxes and combos. Positions count characters of
// Text(), in which a line ends in CR LF and so counts two.
class TextControl : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  const std::string& Text() const { return text_; }
  int SelStart() const { return sel_start_; }
  int SelLength() const { return sel_length_; }
  void SetSelStart(int value);   // past the end: the end; negative: fault 380; clears the selection
  void SetSelLength(int value);  // cut at the end; negative: fault 380
  std::string SelText() const;
  // The view reports where the user has put the caret.
  void UserSelect(int start, int length);

 protected:
  void StoreText(std::string value);  // caret to the start, nothing raised
  // Raises KeyPress for a character of the user's. Returns what is left to enter; 0 when the
  // handler swallowed it or moved the keyboard elsewhere.
  char32_t FilterCharacter(char32_t character);
  // Text and caret after `character` in place of the selection; false when it changes nothing.
  bool EnterCharacter(char32_t character, bool multi_line);
  std::string text_;
  int sel_start_ = 0;
  int sel_length_ = 0;
};

class TextBox : public TextControl {
 public:
  using TextControl::TextControl;
  // Raises Change only on a change.
  void SetText(std::string value);
  bool MultiLine() const { return multi_line_; }
  void SetMultiLine(bool value);
  bool Locked() const { return locked_; }
  void SetLocked(bool value);

  // One character entered by the user, whatever way: raises KeyPress, then replaces the selection
  // by what is left of it (8 deletes backwards, 13 breaks the line where there are several) and
  // raises Change. A handler that moves the keyboard elsewhere drops the character.
  void UserKey(char32_t character);
  // Characters of a paste or an input method: UserKey for each.
  void UserType(std::string_view text);
  // The view edited the text itself (delete, cut, undo): stores and raises Change on a change.
  // Lines may end in LF alone here; `caret` counts the characters as they come.
  void UserEdit(std::string text, int caret);

 private:
  bool multi_line_ = false;
  bool locked_ = false;
};

class ComboBox : public TextControl {
 public:
  using TextControl::TextControl;
  // --- rows ---
  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int row) const;  // faults 9 outside
  // Sorted lists insert without regard to case, behind equal rows. The chosen row stays chosen.
  void AddItem(std::string row);
  void Clear();  // no rows, no text, index -1; raises nothing
  bool Sorted() const { return sorted_; }
  void SetSorted(bool value) { sorted_ = value; }

  // The chosen row, -1 none. Setting 0 or more stores, sets the text and always raises Click, also
  // for the same row; -1 empties the text and raises nothing; outside: fault 380, value kept.
  int ListIndex() const { return list_index_; }
  void SetListIndex(int row);
  // Sets the text; the index becomes that of the first row equal to it, or -1. Raises nothing.
  // On a pick list (Editable false) a text that is no row shows all the same.
  void SetText(std::string value);
  bool Editable() const { return editable_; }
  void SetEditable(bool value);

  // --- the user ---
  void UserChoose(int row);  // chose a row (the same one too): as SetListIndex
  // As TextBox; a pick list only raises KeyPress. Edited text is no chosen row: the index is -1.
  void UserKey(char32_t character);
  void UserType(std::string_view text);
  void UserEdit(std::string text, int caret);

 private:
  void TextEdited();
  std::vector<std::string> rows_;
  int list_index_ = -1;
  bool sorted_ = false;
  bool editable_ = false;
};

class ListBox : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int row) const;  // faults 9 outside
  std::string Text() const;                // the chosen row, empty for none
  void AddItem(std::string row);
  void Clear();
  int ListIndex() const { return list_index_; }
  void SetListIndex(int row);  // as ComboBox: Click for each 0 or more, fault 380 outside
  void UserChoose(int row);

 private:
  std::vector<std::string> rows_;
  int list_index_ = -1;
};

// Value 0 clear, 1 ticked, 2 greyed.
class CheckBox : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  int Value() const { return value_; }
  void SetValue(int value);  // raises Click only on a change; outside 0 to 2: fault 380
  // The user: turns it over (a greyed one to clear), which raises Click. Nothing when disabled.
  void Press();

 private:
  int value_ = 0;
};

class CommandButton : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  const std::string& Caption() const { return caption_; }  // empty: as the form file has it
  void SetCaption(std::string value);
  // Looks pressed for as long as what it has started is in force. Raises nothing.
  bool Down() const { return down_; }
  void SetDown(bool value);
  void Press();  // raises Click; nothing when disabled

 private:
  std::string caption_;
  bool down_ = false;
};

// Values from Min to Max; Change only on a change.
class ScrollBar : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  int Value() const { return value_; }
  void SetValue(int value);  // outside: fault 380, value kept
  int Min() const { return min_; }
  int Max() const { return max_; }
  void SetRange(int min, int max);  // faults 380 when max < min; cuts the value, raising Change
  int SmallChange() const { return small_change_; }
  int LargeChange() const { return large_change_; }
  void SetSteps(int small_change, int large_change);
  void UserScroll(int value);  // as SetValue, cut to the range

 private:
  int value_ = 0, min_ = 0, max_ = 32767, small_change_ = 1, large_change_ = 1;
};

// A container with a border, and where it has a surface a canvas.
class PictureBox : public Container {
 public:
  PictureBox(Container* container, std::string name, int index = -1);
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);

  // The canvas. Without one of the platform's it is a recorder. A surface given is owned and shares
  // this control's scale.
  Surface& Canvas() { return *surface_; }
  void SetCanvas(std::unique_ptr<Surface> surface);
  // The canvas was painted: the view shows it.
  void ImageChanged() { Notify(Aspect::kImage); }

  // Says in words what the box shows, for people who do not see it. Asked when something in it has
  // changed and no handler runs any more; an empty function has nothing to say.
  std::function<std::string()> InWords;

  // A loaded picture, null for none.
  const PicturePtr& Image() const { return picture_; }
  void SetImage(PicturePtr picture);

 protected:
  void SizeChanged() override;

 private:
  std::unique_ptr<Surface> surface_;
  PicturePtr picture_;
  Color back_color_ = 0xFFFFFF;
};

// A named icon: off-screen holder of a pointer or a bitmap.
class Image : public Control {
 public:
  using Control::Control;
  const std::string& Icon() const { return icon_; }
  void SetIcon(std::string value);

 private:
  std::string icon_;
};

// An outline on the board.
class Shape : public Control {
 public:
  using Control::Control;
  int ShapeCode() const { return shape_; }  // 0 rectangle, 2 oval, 4 rounded rectangle
  void SetShape(int value);
  int BorderStyle() const { return border_style_; }  // 0 none, 1 solid, 3 dots
  void SetBorderStyle(int value);
  Color BorderColor() const { return border_color_; }
  void SetBorderColor(Color value);
  // Diameter of the corners of a rounded rectangle, logical pixels.
  double CornerSize() const { return corner_size_; }
  void SetCornerSize(double value);

 protected:
  // Negative sizes are not an error for a shape under the mouse; they are stored and painted as 0.
  bool TakesNegativeSize() const override { return true; }

 private:
  int shape_ = 0;
  int border_style_ = 1;
  Color border_color_ = 0;
  double corner_size_ = 0;
};

// A straight solid line on the board, in the container's unit.
class LineControl : public Control {
 public:
  using Control::Control;
  double X1() const { return x1_; }
  double Y1() const { return y1_; }
  double X2() const { return x2_; }
  double Y2() const { return y2_; }
  void SetX1(double value);
  void SetY1(double value);
  void SetX2(double value);
  void SetY2(double value);
  Color BorderColor() const { return border_color_; }
  void SetBorderColor(Color value);
  void Rescaled(double factor_x, double factor_y) override;

 private:
  void Set(double& field, double value);
  double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
  Color border_color_ = 0;
};

// A timer. Ticks that fall due while a handler runs are dropped.
class Timer : public Control {
 public:
  using Control::Control;
  int Interval() const { return interval_; }  // milliseconds; 0 never ticks
  void SetInterval(int value);                // faults 380 when negative
  void SetEnabled(bool value) override;       // enabling a running timer starts its wait again
  // The platform: the interval is over. Raises Timer, unless it is disabled or a handler runs.
  void Elapsed();

 private:
  int interval_ = 0;
};

// A menu entry, with its submenu. `Checked` raises nothing.
class Menu : public Control {
 public:
  // A top-level menu of `form`, or an entry of `parent`.
  Menu(Form* form, std::string name);
  Menu(Menu* parent, std::string name, int index = -1,
       std::shared_ptr<ControlEvents> events = nullptr);
  ~Menu() override;
  const std::string& Caption() const { return caption_; }  // empty: as the form file has it
  void SetCaption(std::string value);
  bool Checked() const { return checked_; }
  void SetChecked(bool value);
  const std::vector<Menu*>& Items() const { return items_; }
  Menu* ParentMenu() const { return parent_; }
  // Raises Click; nothing when it, or a menu that it hangs in, is disabled.
  void Press();

 private:
  bool CanPress() const;
  Menu* parent_ = nullptr;
  std::vector<Menu*> items_;
  std::string caption_;
  bool checked_ = false;
};

// Panels are numbered from 1.
class StatusBar : public Control {
 public:
  StatusBar(Container* container, std::string name, int panels);
  int PanelCount() const { return static_cast<int>(panels_.size()); }
  const std::string& PanelText(int panel) const;    // faults 9 outside
  void SetPanelText(int panel, std::string value);  // likewise

 private:
  std::vector<std::string> panels_;
};

// --- control arrays -----------------------------------------------------------------------------

// Elements addressed by index, sharing one set of events. Elements keep their addresses.
template <class T>
class ControlArray {
 public:
  // `count` elements, 0 to count - 1, exist by design.
  template <class Parent>
  ControlArray(Parent* parent, std::string name, int count) : name_(std::move(name)) {
    make_ = [parent](const std::string& n, int i, std::shared_ptr<ControlEvents> e) {
      return std::make_unique<T>(parent, n, i, std::move(e));
    };
    for (int i = 0; i < count; ++i) Make(i);
  }

  // The element; faults 340 when it was never created.
  T& operator()(int index) const {
    if (!Exists(index)) RaiseFault(kMissingElement);
    return *by_index_[static_cast<std::size_t>(index)];
  }
  bool Exists(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < by_index_.size() &&
           by_index_[static_cast<std::size_t>(index)] != nullptr;
  }
  // Creates element `index`: a fresh control, hidden until a routine shows it. Faults 380 when it
  // exists, 9 outside 0 to 32767.
  T& Load(int index) {
    if (index < 0 || index > kMaxIndex) RaiseFault(kOutOfBounds);
    if (Exists(index)) RaiseFault(kBadValue);
    T& element = Make(index);
    element.SetVisible(false);
    return element;
  }
  int Count() const { return static_cast<int>(elements_.size()); }
  int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }
  const std::string& Name() const { return name_; }
  ControlEvents& Events() const { return *events_; }

  // Pairs of index and element, by rising index.
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

 private:
  static constexpr int kMaxIndex = 32767;

  T& Make(int index) {
    std::unique_ptr<T> made = make_(name_, index, events_);
    if (static_cast<std::size_t>(index) >= by_index_.size()) {
      by_index_.resize(static_cast<std::size_t>(index) + 1);
    }
    T& element = *made;
    elements_.emplace_hint(elements_.end(), index, std::move(made));
    by_index_[static_cast<std::size_t>(index)] = &element;
    return element;
  }

  std::string name_;
  std::shared_ptr<ControlEvents> events_ = std::make_shared<ControlEvents>();
  std::function<std::unique_ptr<T>(const std::string&, int, std::shared_ptr<ControlEvents>)> make_;
  std::map<int, std::unique_ptr<T>> elements_;
  std::vector<T*> by_index_;  // each press and redraw asks by index: no search
};

// --- forms --------------------------------------------------------------------------------------

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
