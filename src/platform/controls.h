// The control model: the only owner of what windows show. The toolkit's views render it and report
// what the user did; order and meaning of events are decided here, where a test can call them.
//
// Geometry is in the container's scale unit (twips on a form), stored exactly as assigned. When a
// container's scale or size changes, its children stay where they are on screen and their numbers
// are converted. 15 twips are one logical pixel.
//
// Events run inside the assignment that raises them, after the value is stored. They nest, and a
// fault ends at the event's boundary.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/event.h"
#include "platform/fonts.h"
#include "platform/scale.h"
#include "platform/surface.h"

namespace tagwright {

class Container;
class Control;
class Form;

// --- views --------------------------------------------------------------------------------------

// What of a control has changed; views redraw just that.
enum class Aspect {
  kGeometry,   // place or size
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
  Form* ParentForm() const;
  ControlEvents& Events() const { return *events_; }

  // Geometry in the container's unit. Assignments store exactly and raise nothing here.
  double Left() const { return left_; }
  double Top() const { return top_; }
  virtual double Width() const { return width_; }
  virtual double Height() const { return height_; }
  virtual void SetLeft(double value);
  virtual void SetTop(double value);
  virtual void SetWidth(double value);   // faults 380 when negative
  virtual void SetHeight(double value);  // faults 380 when negative
  void Move(double left, double top);
  void Move(double left, double top, double width, double height);
  // The same in twips from the container's corner.
  double LeftTwips() const;
  double TopTwips() const;
  double WidthTwips() const;
  double HeightTwips() const;

  bool Visible() const { return visible_; }
  void SetVisible(bool value);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool value);
  // Whether it and all its containers are visible (and enabled, for IsUsable).
  bool IsShown() const;
  bool IsUsable() const;

  // 0 brings to the front, 1 sends to the back, among the container's children.
  void ZOrder(int position = 0);
  // Larger is nearer to the user.
  std::int64_t Order() const { return order_; }

  const std::string& ToolTipText() const { return tool_tip_; }
  void SetToolTipText(std::string value);
  // 0 default, 1 arrow, 2 cross, 3 I-beam, 11 hourglass, 14 arrow and question mark, 99 MouseIcon.
  int MousePointer() const { return pointer_; }
  void SetMousePointer(int value);
  const std::string& MouseIcon() const { return mouse_icon_; }  // name of an icon resource
  void SetMouseIcon(std::string value);

  // Moves the keyboard here: LostFocus of the former holder, then GotFocus of this one, both before
  // it returns; a SetFocus inside either wins. Nothing when it has it already. Faults 5 for a
  // control that takes no keyboard, or is hidden or disabled (itself or a container).
  void SetFocus();
  bool HasFocus() const;
  // Whether the class takes the keyboard at all.
  virtual bool TakesFocus() const { return false; }

  // --- what the user does, reported by the view (see also Container's mouse routing) ---
  void UserFocus();  // as SetFocus, but quietly nothing where SetFocus would fault
  void UserDblClick();

  void AttachView(ControlView* view);  // not owned; null detaches
  ControlView* View() const { return view_; }

  // --- for containers and subclasses ---
  virtual void Rescaled(double factor_x, double factor_y);  // the container's unit changed
  void Notify(Aspect aspect) const;

 protected:
  virtual void SizeChanged() {}

 private:
  friend class Container;
  std::string name_;
  int index_;
  Container* container_;
  std::shared_ptr<ControlEvents> events_;
  ControlView* view_ = nullptr;
  double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  std::int64_t order_ = 0;
  int pointer_ = 0;
  std::string tool_tip_;
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
  // The scale as VB-style members; changing it keeps the children where they are on screen.
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

  // Mouse routing for a container whose children have no views of their own. Points are twips from
  // this container's corner. A press finds its control, moves the focus as a click does and
  // captures the control until the release, also when it is hidden meanwhile; its x and y follow
  // the control's present corner. A release without a press raises nothing.
  void UserMouseDown(int button, int shift, double x_twips, double y_twips);
  void UserMouseMove(int button, int shift, double x_twips, double y_twips);
  void UserMouseUp(int button, int shift, double x_twips, double y_twips);
  Control* Captured() const { return captured_; }

 protected:
  void ResizeScale(double width_twips, double height_twips);
  // Runs `change` on the scale, then converts the children's numbers.
  template <class Change>
  void ChangeScale(Change&& change);

 private:
  friend class Control;
  void Adopt(Control* child);
  void Release(Control* child);
  void RaiseMouse(Control* target, Event<int, int, double, double> ControlEvents::*event, int button,
                  int shift, double x_twips, double y_twips);

  std::vector<Control*> children_;
  ScaleSpace scale_;
  Control* captured_ = nullptr;
  int captured_button_ = 0;
  std::int64_t front_ = 0;
  std::int64_t back_ = 0;
};

// --- the control types --------------------------------------------------------------------------

enum class TextAlignment { kLeft = 0, kRight = 1, kCenter = 2 };

// A caption, and on the board a hit area. With AutoSize on, a change of caption or font (and
// turning it on) fits the size to the text; a size assigned meanwhile holds until the next one.
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

// Something that holds the caret: shared by text boxes and combos. Positions count characters.
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
  // The view edited the text itself (delete, cut, undo): stores and raises Change.
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
  const std::string& List(int row) const;  // faults 381-like 9 outside
  void AddItem(std::string row);           // sorted lists insert without regard to case
  void Clear();                            // no rows, no text, index -1; raises nothing
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
  void UserChoose(int row);          // chose a row (the same one too): as SetListIndex
  void UserKey(char32_t character);  // as TextBox; a pick list only raises KeyPress
  void UserType(std::string_view text);
  void UserEdit(std::string text, int caret);

 private:
  void TextEdited(std::string text, int caret);
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
  void SetListIndex(int row);  // as ComboBox
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
  void Press();              // the user: turns it over, which raises Click

 private:
  int value_ = 0;
};

class CommandButton : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  const std::string& Caption() const { return caption_; }  // empty: as the form file has it
  void SetCaption(std::string value);
  void Press();  // raises Click; nothing when disabled

 private:
  std::string caption_;
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
  void SetRange(int min, int max);
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
  bool TakesFocus() const override { return false; }
  void SetWidth(double value) override;
  void SetHeight(double value) override;
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);

  // The canvas. Without one of the platform's it is a recorder. A surface given is owned and shares
  // this control's scale.
  Surface& Canvas() { return *surface_; }
  void SetCanvas(std::unique_ptr<Surface> surface);
  // The canvas was painted: the view shows it.
  void ImageChanged() { Notify(Aspect::kImage); }

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
  // Negative sizes are not an error for a shape under the mouse; they are stored and painted as 0.

 private:
  int shape_ = 0;
  int border_style_ = 1;
  Color border_color_ = 0;
};

// A straight line on the board, in the container's unit.
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
  int BorderStyle() const { return border_style_; }  // 1 solid, 3 dots
  void SetBorderStyle(int value);
  void Rescaled(double factor_x, double factor_y) override;

 private:
  void Set(double& field, double value);
  double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
  Color border_color_ = 0;
  int border_style_ = 1;
};

// A timer. Ticks that fall due while a handler runs are dropped.
class Timer : public Control {
 public:
  using Control::Control;
  int Interval() const { return interval_; }  // milliseconds; 0 never ticks
  void SetInterval(int value);                // faults 380 when negative
  // Enabled() and SetEnabled() are the control's. Enabling a running timer starts its wait again.
  void Elapsed();  // the platform: the interval is over. Raises Timer unless a handler runs

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
  const std::string& Caption() const { return caption_; }  // empty: as the form file has it
  void SetCaption(std::string value);
  bool Checked() const { return checked_; }
  void SetChecked(bool value);
  const std::vector<Menu*>& Items() const { return items_; }
  Menu* ParentMenu() const { return parent_; }
  void Press();  // raises Click; nothing when disabled

 private:
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
  const std::string& PanelText(int panel) const;       // faults 9 outside
  void SetPanelText(int panel, std::string value);     // likewise

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
    for (int i = 0; i < count; ++i) Load(i);
  }

  // The element; faults 340 when it was never created.
  T& operator()(int index) const {
    const auto found = elements_.find(index);
    if (found == elements_.end()) RaiseFault(kMissingElement);
    return *found->second;
  }
  bool Exists(int index) const { return elements_.contains(index); }
  // Creates element `index`, hidden state and all as a fresh control; faults 360-like 380 when it
  // exists, 9 when negative.
  T& Load(int index) {
    if (index < 0) RaiseFault(kOutOfBounds);
    if (Exists(index)) RaiseFault(kBadValue);
    return *(elements_[index] = make_(name_, index, events_));
  }
  int Count() const { return static_cast<int>(elements_.size()); }
  int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }
  const std::string& Name() const { return name_; }
  ControlEvents& Events() const { return *events_; }

  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

 private:
  std::string name_;
  std::shared_ptr<ControlEvents> events_ = std::make_shared<ControlEvents>();
  std::function<std::unique_ptr<T>(const std::string&, int, std::shared_ptr<ControlEvents>)> make_;
  std::map<int, std::unique_ptr<T>> elements_;
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

  FormEvents& WindowEvents() const { return *form_events_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  WindowState State() const { return state_; }
  void SetState(WindowState value);
  // Raise Resize when the size really changes; the client area follows by the same difference.
  void SetWidth(double value) override;
  void SetHeight(double value) override;
  Color BackColor() const { return back_color_; }

  // Everything with a name: controls and menus, in creation order.
  const std::vector<Control*>& AllControls() const { return all_; }
  const std::vector<Menu*>& Menus() const { return menus_; }  // top level, in order
  // By name and index (-1: no array); null when there is none.
  Control* Find(std::string_view name, int index = -1) const;

  // The control that has the keyboard, null none. An inactive window keeps it.
  Control* ActiveControl() const { return focus_; }

  // --- what the user and the window system do, reported by the view ---
  // While a handler runs the last one of these waits until it is done. Outer frame and client area
  // in twips; raises Resize when the outer or the client size changed, or the state.
  void UserResize(double left, double top, double width, double height, double client_width,
                  double client_height, WindowState state);
  void UserMove(double left, double top);
  void UserActivate();    // raises Activate
  void UserDeactivate();  // raises KeyUp with code 0 and no shift: held modifiers end here
  // Keys by virtual key code (letters and digits their capital's code, 8 backspace, 9 tab, 13
  // return, 16 shift, 17 ctrl, 18 alt, 27 esc, 33 to 40 page, end, home and arrows, 46 delete,
  // 112 on the function keys). KeyDown's handler may set the code to 0: returns false then, and
  // the key must go no further.
  bool UserKeyDown(int key_code, int shift);
  void UserKeyUp(int key_code, int shift);
  // A modal window or menu is about to take the keyboard: as UserDeactivate, without losing focus.
  void KeyboardLeaves();

 private:
  friend class Control;
  friend class Menu;
  friend class Container;
  void GiveFocus(Control* control);
  std::shared_ptr<FormEvents> form_events_ = std::make_shared<FormEvents>();
  std::string caption_;
  WindowState state_ = WindowState::kNormal;
  Color back_color_ = 0xF0F0F0;
  std::vector<Control*> all_;
  std::vector<Menu*> menus_;
  Control* focus_ = nullptr;
  int focus_changes_ = 0;  // how often it moved: a nested SetFocus wins
};

}  // namespace tagwright
