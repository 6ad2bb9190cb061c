// What every view with a widget does, whatever it shows: place, focus, mouse and keys.
#pragma once

#include <QEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QWidget>

#include "platform/controls/control.h"
#include "platform/controls/control_view.h"

namespace tagwright {

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

}  // namespace tagwright
