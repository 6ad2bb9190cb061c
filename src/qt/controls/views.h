// Views of the controls: each renders its control with signals blocked and reports what the user
// did, and nothing else.
#pragma once

#include <QCursor>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QString>
#include <QWidget>
#include <memory>
#include <string>

#include "platform/controls/controls.h"

class QAction;
class QWidget;

namespace tagwright {

// --- units, texts and states --------------------------------------------------------------------

// Whole pixels, within what the toolkit takes for a place or size; a number that is none counts as
// 0.
int Pixels(double twips);
inline double Twips(int pixels) { return pixels * kTwipsPerPixel; }
inline double Twips(double pixels) { return pixels * kTwipsPerPixel; }

// The pixels that a control covers in its container. Edges are rounded, not lengths: neighbours
// that touch in the model touch on the screen.
QRect PixelBox(const Control& control);

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }

int ButtonCode(Qt::MouseButton button);
int ButtonCodes(Qt::MouseButtons buttons);
int ShiftCode(Qt::KeyboardModifiers modifiers);

// The virtual key code of the control model for a key of the toolkit's; 0 for one without.
int KeyCode(const QKeyEvent& event);

// Name of the widget or action of a control: elements of arrays carry their index, as txtDSize_2.
QString ObjectName(const Control& control);

// The widget that shows `control`: its own, or that of the container which paints it; null for
// none.
QWidget* WidgetOf(const Control& control);

// Whether `widget` or one that lies around it shows a control of its own below `container`.
bool HasOwnView(const QWidget* widget, const QWidget& container);

// The pointer that `control` has of its own (see Control::SetMousePointer).
QCursor PointerOf(const Control& control, qreal device_pixel_ratio);

// --- the keyboard -------------------------------------------------------------------------------

// Puts the toolkit's focus where the model has it; to nobody when the model's holder has none.
void FollowFocus(const Form& form);

// While one of these stands the user is moving the keyboard with the tab key or a mnemonic: only
// then is a new focus of the toolkit's the user's doing. It also moves it by itself, when a widget
// is hidden or a window comes back.
class UserMovesFocus {
 public:
  UserMovesFocus();
  ~UserMovesFocus();
  UserMovesFocus(const UserMovesFocus&) = delete;
  UserMovesFocus& operator=(const UserMovesFocus&) = delete;
  static bool UnderWay();
};

// Stands while a modal window, a message box or a pop-up menu has the user. `Count` says how many
// there have been.
class ModalRun {
 public:
  ModalRun();
  ModalRun(const ModalRun&) = delete;
  ModalRun& operator=(const ModalRun&) = delete;
  static int Count();
};

// --- views --------------------------------------------------------------------------------------

// Views outlive the events under way, and so may outlive their controls: whoever drops them
// detaches them first.

// What all views with a widget do: place, visibility, enabling, tool tip, focus and mouse. The
// widget is placed by the model when its parent has no layout; otherwise the form file places it.
class WidgetView : public QObject, public ControlView {
 public:
  WidgetView(Control& control, QWidget& widget);

  void Changed(const Control& control, Aspect aspect) override;
  bool eventFilter(QObject* object, QEvent* event) override;

  QWidget& Widget() const { return widget_; }

 protected:
  // Shows what only this type of control has. Called for each aspect at first and after changes.
  virtual void Render(Aspect) {}
  // A key press on the widget or on one of Watch()'s; true: it goes no further.
  virtual bool TakeKey(const QKeyEvent&) { return false; }
  virtual bool TakeInput(QInputMethodEvent&) { return false; }
  // A release of the left button on the widget, after MouseUp.
  virtual void Released(bool /*inside*/) {}

  // Also sees the events of a part of the widget, such as the viewport of a list.
  void Watch(QWidget& part);
  // Renders everything; for the constructor of the last class.
  void RenderAll();

  Control& control_;
  QWidget& widget_;

 private:
  bool MousePressed(QWidget& part, const QMouseEvent& event);
  void MouseMoved(QWidget& part, const QMouseEvent& event);
  void MouseReleased(QWidget& part, const QMouseEvent& event);
  void FocusCame(Qt::FocusReason reason);
  void RenderPlace();
  void RenderVisible();
  void RenderFocus();
  void RenderPointer();
};

// The view for a control and its widget. The widget's class must suit the control's: a text box is
// shown by a QLineEdit or QPlainTextEdit, a label by a QLabel or, as a colour sample, by a QFrame.
std::unique_ptr<ControlView> MakeView(Control& control, QWidget& widget);

// The view of a menu entry, or of a menu as its parent's entry (then `action` is its menuAction).
std::unique_ptr<ControlView> MakeMenuView(Menu& menu, QAction& action);

// The view of a timer: ticks while the window stands.
std::unique_ptr<ControlView> MakeTimerView(Timer& timer);

}  // namespace tagwright
