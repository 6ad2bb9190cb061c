#include "qt/controls/widget_view.h"

#include <QLabel>
#include <QStackedWidget>

#include "platform/controls/container.h"
#include "platform/controls/form.h"
#include "platform/controls/mouse.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/focus.h"
#include "qt/controls/front_panel.h"
#include "qt/controls/input_codes.h"
#include "qt/controls/modal_run.h"
#include "qt/controls/units.h"

namespace tagwright {
namespace {

bool PlacedByModel(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return parent && !parent->layout() && !widget.property("docked").toBool();
}

// A field's caption comes and goes with it.
void ShowCaptionOf(const QWidget& field, bool visible) {
  for (QLabel* label : field.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
    if (label->buddy() == &field) label->setVisible(visible);
  }
}

}  // namespace

WidgetView::WidgetView(Control& control, QWidget& widget) : control_(control), widget_(widget) {
  widget_.setProperty("control", true);
  widget_.setProperty("designCursor", widget_.testAttribute(Qt::WA_SetCursor));
  if (control_.TakesFocus()) widget_.setFocusPolicy(Qt::TabFocus);
  Watch(widget_);
  control_.AttachView(this);
}

void WidgetView::Watch(QWidget& part) {
  part.installEventFilter(this);
  part.setMouseTracking(true);
  if (&part != &widget_ && part.focusPolicy() != Qt::NoFocus) part.setFocusPolicy(Qt::TabFocus);
}

void WidgetView::RenderAll() {
  for (const Aspect aspect :
       {Aspect::kLook, Aspect::kList, Aspect::kText, Aspect::kValue, Aspect::kSelection,
        Aspect::kEnabled, Aspect::kGeometry, Aspect::kVisible}) {
    Changed(control_, aspect);
  }
}

void WidgetView::Changed(const Control& control, Aspect aspect) {
  if (&control != &control_) return;  // a child without a look
  switch (aspect) {
    case Aspect::kGeometry:
      RenderPlace();
      break;
    case Aspect::kVisible:
    case Aspect::kOrder:
      RenderVisible();
      break;
    case Aspect::kEnabled:
      widget_.setEnabled(control_.Enabled());
      break;
    case Aspect::kFocus:
      RenderFocus();
      break;
    case Aspect::kText:
      if (!control_.ToolTipText().empty()) widget_.setToolTip(ToQt(control_.ToolTipText()));
      if (!control_.SpokenName().empty()) widget_.setAccessibleName(ToQt(control_.SpokenName()));
      break;
    case Aspect::kLook:
      RenderPointer();
      break;
    default:
      break;
  }
  Render(aspect);
}

void WidgetView::RenderPlace() {
  if (!PlacedByModel(widget_)) return;
  widget_.setGeometry(PixelBox(control_));
}

void WidgetView::RenderVisible() {
  if (auto* stack = qobject_cast<QStackedWidget*>(widget_.parentWidget())) {
    return ShowFrontPanel(*stack, *control_.Parent());
  }
  widget_.setVisible(control_.Visible());
  ShowCaptionOf(widget_, control_.Visible());
  if (PlacedByModel(widget_) && control_.Visible()) {
    // Among floating siblings the one brought to the front last lies on top.
    bool front = true;
    for (const Control* sibling : control_.Parent()->Children()) {
      front = front && sibling->Order() <= control_.Order();
    }
    if (front) widget_.raise();
  }
}

void WidgetView::RenderFocus() { FollowFocus(*control_.ParentForm()); }

void WidgetView::RenderPointer() {
  if (control_.MousePointer() != 0) {
    widget_.setCursor(PointerOf(control_, widget_.devicePixelRatioF()));
  } else if (widget_.property("designCursor").toBool()) {
    widget_.setCursor(Qt::IBeamCursor);
  } else {
    widget_.unsetCursor();
  }
}

bool WidgetView::eventFilter(QObject* object, QEvent* event) {
  auto* part = static_cast<QWidget*>(object);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return MousePressed(*part, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      MouseMoved(*part, *static_cast<QMouseEvent*>(event));
      return false;
    case QEvent::MouseButtonRelease:
      MouseReleased(*part, *static_cast<QMouseEvent*>(event));
      return false;
    case QEvent::FocusIn:
      FocusCame(static_cast<QFocusEvent*>(event)->reason());
      // Handed on meanwhile: a field that still heard of the keyboard would keep a caret without
      // it.
      return !part->hasFocus();
    case QEvent::KeyPress:
      return TakeKey(*static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
      return TakeInput(*static_cast<QInputMethodEvent*>(event));
    default:
      return false;
  }
}

namespace {

QPointF TwipsIn(const QWidget& widget, const QWidget& part, const QMouseEvent& event) {
  return QPointF(part.mapTo(&widget, event.position().toPoint())) * kTwipsPerPixel;
}

// An event that a part of the widget passes on to it comes by twice, and so does one that a control
// in a container passes on.
bool IsForeign(const QWidget& part, const QMouseEvent& event) {
  const QWidget* child = part.childAt(event.position().toPoint());
  return child && (HasOwnView(child, part) || child->property("part").toBool());
}

}  // namespace

bool WidgetView::MousePressed(QWidget& part, const QMouseEvent& event) {
  if (IsForeign(part, event)) return false;
  if (control_.Waits()) return true;
  const QPointF at = TwipsIn(widget_, part, event);
  const int before = ModalRun::Count();
  control_.UserMouseDown(ButtonCode(event.button()), ShiftCode(event.modifiers()), at.x(), at.y());
  // A window that the press has opened took the release with it: the toolkit must not wait for it.
  return ModalRun::Count() != before;
}

void WidgetView::MouseMoved(QWidget& part, const QMouseEvent& event) {
  if (IsForeign(part, event)) return;
  if (event.buttons() == Qt::NoButton) UserButtonsUp();
  const QPointF at = TwipsIn(widget_, part, event);
  control_.UserMouseMove(ButtonCodes(event.buttons()), ShiftCode(event.modifiers()), at.x(),
                         at.y());
}

void WidgetView::MouseReleased(QWidget& part, const QMouseEvent& event) {
  if (IsForeign(part, event)) return;
  const QPointF at = TwipsIn(widget_, part, event);
  control_.UserMouseUp(ButtonCode(event.button()), ShiftCode(event.modifiers()), at.x(), at.y());
  if (event.button() == Qt::LeftButton) {
    Released(widget_.rect().contains(part.mapTo(&widget_, event.position().toPoint())));
  }
}

namespace {

bool IsTab(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

// Where the tab key goes from `widget`; null when nothing else takes it.
QWidget* NextByTab(QWidget& widget, Qt::FocusReason reason) {
  QWidget* next = &widget;
  do {
    next =
        reason == Qt::BacktabFocusReason ? next->previousInFocusChain() : next->nextInFocusChain();
    if (next == &widget) return nullptr;
  } while (!(next->focusPolicy() & Qt::TabFocus) || !next->isVisible() || !next->isEnabled());
  return next;
}

}  // namespace

// The tab key passes over a control that hands the keyboard on at once, or it would be led back to
// the same place each time and reach nothing beyond.
void WidgetView::FocusCame(Qt::FocusReason reason) {
  const bool by_tab = UserMovesFocus::UnderWay() && IsTab(reason) && !control_.Waits();
  if (UserMovesFocus::UnderWay() || reason == Qt::ShortcutFocusReason) control_.UserFocus();
  QWidget* next = by_tab && !control_.HasFocus() ? NextByTab(widget_, reason) : nullptr;
  if (next) return next->setFocus(reason);
  if (reason != Qt::PopupFocusReason) FollowFocus(*control_.ParentForm());
}

}  // namespace tagwright
