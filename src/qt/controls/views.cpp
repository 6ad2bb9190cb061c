#include "qt/controls/views.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFrame>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <cmath>

#include "qt/controls/board_view.h"
#include "qt/controls/spoken.h"
#include "qt/look/colors.h"
#include "qt/look/theme.h"

namespace tagwright {
namespace {

constexpr char32_t kBackspaceKey = 8;
constexpr char32_t kReturnKey = 13;
constexpr char32_t kEscapeKey = 27;
constexpr int kIconPointer = 99;

int user_moves = 0;
int modal_runs = 0;

}  // namespace

// --- units, texts and states --------------------------------------------------------------------

int Pixels(double twips) {
  constexpr double kLimit = QWIDGETSIZE_MAX;
  if (std::isnan(twips)) return 0;
  return qRound(std::clamp(twips / kTwipsPerPixel, -kLimit, kLimit));
}

int ButtonCode(Qt::MouseButton button) { return ButtonCodes(Qt::MouseButtons(button)); }

int ButtonCodes(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? kLeftButton : 0) |
         (buttons & Qt::RightButton ? kRightButton : 0) |
         (buttons & Qt::MiddleButton ? kMiddleButton : 0);
}

int ShiftCode(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? kShift : 0) |
         (modifiers & Qt::ControlModifier ? kCtrl : 0) | (modifiers & Qt::AltModifier ? kAlt : 0);
}

int KeyCode(const QKeyEvent& event) {
  const int key = event.key();
  constexpr int kFirstFunctionKey = 112;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return key - Qt::Key_F1 + kFirstFunctionKey;
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  switch (key) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Shift:
      return 16;
    case Qt::Key_Control:
      return 17;
    case Qt::Key_Alt:
      return 18;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    case Qt::Key_Menu:
      return 93;
    default:
      return 0;
  }
}

QRect PixelBox(const Control& control) {
  const int left = Pixels(control.LeftTwips());
  const int top = Pixels(control.TopTwips());
  return {left, top, Pixels(control.LeftTwips() + control.WidthTwips()) - left,
          Pixels(control.TopTwips() + control.HeightTwips()) - top};
}

QString ObjectName(const Control& control) {
  const QString name = ToQt(control.Name());
  return control.Index() < 0 ? name : name + "_" + QString::number(control.Index());
}

QWidget* WidgetOf(const Control& control) {
  if (auto* view = dynamic_cast<WidgetView*>(control.View())) return &view->Widget();
  if (auto* board = dynamic_cast<BoardView*>(control.View())) return board;
  return control.Parent() && control.Parent()->View() ? WidgetOf(*control.Parent()) : nullptr;
}

bool HasOwnView(const QWidget* widget, const QWidget& container) {
  while (widget && widget != &container) {
    if (widget->property("control").toBool()) return true;
    widget = widget->parentWidget();
  }
  return false;
}

QCursor PointerOf(const Control& control, qreal device_pixel_ratio) {
  if (control.MousePointer() != kIconPointer) return PointerShape(control.MousePointer());
  return IconPointer(ToQt(control.MouseIcon()), device_pixel_ratio);
}

// --- the keyboard -------------------------------------------------------------------------------

UserMovesFocus::UserMovesFocus() { ++user_moves; }
UserMovesFocus::~UserMovesFocus() { --user_moves; }
bool UserMovesFocus::UnderWay() { return user_moves > 0; }

ModalRun::ModalRun() { ++modal_runs; }
int ModalRun::Count() { return modal_runs; }

void FollowFocus(const Form& form) {
  const Control* active = form.ActiveControl();
  QWidget* wanted = active ? WidgetOf(*active) : nullptr;
  if (wanted) {
    if (!wanted->hasFocus()) wanted->setFocus(Qt::OtherFocusReason);
    return;
  }
  QWidget* holder = QApplication::focusWidget();
  if (!holder || holder->window()->objectName() != ToQt(form.Name())) return;
  if (HasOwnView(holder, *holder->window())) holder->clearFocus();
}

// --- what all views do --------------------------------------------------------------------------

namespace {

bool PlacedByModel(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return parent && !parent->layout() && !widget.property("docked").toBool();
}

// Brings the panel in front, and what floats from panel to panel into it.
void ShowFrontPanel(QStackedWidget& stack, const Container& container) {
  const Control* front = nullptr;
  for (const Control* child : container.Children()) {
    QWidget* widget = child->View() ? WidgetOf(*child) : nullptr;
    if (!widget || widget->parentWidget() != &stack || !child->Visible()) continue;
    if (!front || child->Order() > front->Order()) front = child;
  }
  if (!front) return;
  QWidget* panel = WidgetOf(*front);
  if (stack.currentWidget() == panel) return;
  auto* floating = stack.findChild<QWidget*>("fontSlot");
  auto* slot = panel->findChild<QWidget*>(panel->objectName().replace("pic", "slot"));
  if (floating && slot) {
    slot->layout()->addWidget(floating);
    slot->layout()->setAlignment(floating, Qt::AlignTop);
  }
  stack.setCurrentWidget(panel);
  FollowFocus(*container.ParentForm());
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

// --- picture boxes, labels, buttons -------------------------------------------------------------

namespace {

class FrameView : public WidgetView {
 public:
  FrameView(PictureBox& box, QWidget& widget) : WidgetView(box, widget) { RenderAll(); }
};

// Text in a QLabel. An empty caption leaves what the form file says.
class LabelView : public WidgetView {
 public:
  LabelView(Label& label, QLabel& widget)
      : WidgetView(label, widget), label_(label), text_(widget) {
    text_.setTextFormat(Qt::PlainText);
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Resize && Shortens()) ShowText();
    return WidgetView::eventFilter(object, event);
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect == Aspect::kText) ShowText();
  }
  void Released(bool inside) override {
    if (inside) label_.Press();
  }

 private:
  // Long paths do not fit their place.
  bool Shortens() const { return text_.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored; }

  // The end of a path tells it from others; the whole stands in the tool tip.
  void ShowText() {
    const QString whole = label_.Caption().empty() ? designed_ : ToQt(label_.Caption());
    text_.setAccessibleDescription(whole);
    if (!Shortens()) return text_.setText(whole);
    text_.setToolTip(whole);
    text_.setText(text_.fontMetrics().elidedText(whole, Qt::ElideLeft, text_.width()));
  }

  Label& label_;
  QLabel& text_;
  QString designed_ = text_.text();
};

// A label whose back colour is what it is there for.
class SwatchView : public WidgetView {
 public:
  SwatchView(Label& label, QFrame& widget) : WidgetView(label, widget), label_(label) {
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint) return WidgetView::eventFilter(object, event);
    Paint();
    return true;
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect != Aspect::kLook) return;
    widget_.setAccessibleDescription(ColorInWords(label_.BackColor()));
    widget_.update();
  }
  void Released(bool inside) override {
    if (inside) label_.Press();
  }

 private:
  void Paint() {
    constexpr double kCorner = 4;
    QPainter painter(&widget_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(CurrentTheme().sample_rim);
    painter.setBrush(ToQColor(label_.BackColor()));
    painter.drawRoundedRect(QRectF(widget_.rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner,
                            kCorner);
  }

  Label& label_;
};

class ButtonView : public WidgetView {
 public:
  ButtonView(CommandButton& button, QAbstractButton& widget)
      : WidgetView(button, widget), button_(button), face_(widget) {
    connect(&widget, &QAbstractButton::clicked, this, [this] {
      ShowDown();                   // whether it stays pressed is the model's affair
      if (button_.Waits()) return;  // an assistive tool reaches behind a modal window
      button_.UserFocus();
      button_.Press();
    });
    RenderAll();
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect == Aspect::kText && !button_.Caption().empty()) {
      face_.setText(ToQt(button_.Caption()));
    }
    if (aspect == Aspect::kValue) ShowDown();
  }

 private:
  // One that never stays pressed is no button to tick, for the toolkit as for who listens to it.
  void ShowDown() {
    if (face_.isChecked() == button_.Down()) return;
    const QSignalBlocker quiet(face_);
    if (button_.Down()) face_.setCheckable(true);
    face_.setChecked(button_.Down());
    if (!button_.Down()) face_.setCheckable(false);
    SpeakPressed(face_);
  }

  CommandButton& button_;
  QAbstractButton& face_;
};

class CheckView : public WidgetView {
 public:
  CheckView(CheckBox& box, QCheckBox& widget) : WidgetView(box, widget), box_(box), tick_(widget) {
    connect(&widget, &QCheckBox::pressed, this, [this] { turned_ = false; });
    connect(&widget, &QCheckBox::toggled, this, &CheckView::Turn);
    connect(&widget, &QCheckBox::clicked, this, [this] {
      if (!turned_) Turn();
    });
    RenderAll();
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect != Aspect::kValue) return;
    const QSignalBlocker quiet(tick_);
    constexpr Qt::CheckState kStates[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    const Qt::CheckState state = kStates[box_.Value()];
    tick_.setTristate(state == Qt::PartiallyChecked);
    tick_.setCheckState(state);
  }

 private:
  // Assistive tools turn the tick over without a click; a click on a grey one turns none.
  void Turn() {
    turned_ = true;
    Render(Aspect::kValue);  // the model turns it over, not the toolkit
    if (box_.Waits()) return;
    box_.UserFocus();
    box_.Press();
  }

  CheckBox& box_;
  QCheckBox& tick_;
  bool turned_ = false;  // since it was pressed
};

class ScrollView : public WidgetView {
 public:
  ScrollView(ScrollBar& bar, QScrollBar& widget)
      : WidgetView(bar, widget), bar_(bar), slide_(widget) {
    connect(&widget, &QScrollBar::valueChanged, this, [this](int value) {
      bar_.UserScroll(value);
      Render(Aspect::kValue);
    });
    RenderAll();
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect != Aspect::kValue) return;
    const QSignalBlocker quiet(slide_);
    slide_.setRange(bar_.Min(), bar_.Max());
    slide_.setSingleStep(bar_.SmallChange());
    slide_.setPageStep(bar_.LargeChange());
    slide_.setValue(bar_.Value());
    slide_.update();
  }

 private:
  ScrollBar& bar_;
  QScrollBar& slide_;
};

// --- text ---------------------------------------------------------------------------------------

// The model counts characters, with a line end as two; the toolkit counts UTF-16 units, with a line
// end as one.
int ModelPlace(const QString& text, int units) {
  int place = 0;
  for (int i = 0; i < units && i < text.size(); ++i) {
    if (text[i].isLowSurrogate()) continue;
    place += text[i] == '\n' ? 2 : 1;
  }
  return place;
}

int ToolkitPlace(const QString& text, int place) {
  int units = 0;
  while (units < text.size() && place > 0) {
    place -= text[units] == '\n' ? 2 : 1;
    units += text[units].isHighSurrogate() ? 2 : 1;
  }
  return std::min(units, static_cast<int>(text.size()));
}

int CharactersBefore(const QString& text, int units) {
  return static_cast<int>(text.left(units).toUcs4().size());
}

bool IsTyping(const QKeyEvent& event) {
  if (event.text().isEmpty() || !event.text().front().isPrint()) return false;
  const bool ctrl = event.modifiers() & Qt::ControlModifier;
  const bool alt = event.modifiers() & Qt::AltModifier;
  return ctrl == alt;  // both together make characters on some keyboards
}

// The character that handlers know a key by; 0 for none.
char32_t KeyCharacter(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return 0;
  switch (event.key()) {
    case Qt::Key_Backspace:
      return kBackspaceKey;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kReturnKey;
    case Qt::Key_Escape:
      return kEscapeKey;
    default:
      return 0;
  }
}

// What a field of one line and one of several have in common: the toolkit shows text and caret, and
// every character comes from the model.
class TextView : public WidgetView {
 public:
  TextView(TextBox& box, QWidget& widget) : WidgetView(box, widget), box_(box) {
    widget.setAcceptDrops(false);
    widget.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&widget, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { ShowContextMenu(widget_.mapToGlobal(at)); });
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    // The middle button pastes what is selected somewhere.
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton) {
      WidgetView::eventFilter(object, event);
      Type(QApplication::clipboard()->text(QClipboard::Selection));
      return true;
    }
    return WidgetView::eventFilter(object, event);
  }

 protected:
  virtual void ShowText() = 0;
  virtual void ShowCaret() = 0;
  virtual bool ManyLines() const = 0;

  void Render(Aspect aspect) override {
    if (aspect == Aspect::kText) ShowText();
    if (aspect == Aspect::kSelection) ShowCaret();
  }

  bool TakeKey(const QKeyEvent& event) override {
    if (event.matches(QKeySequence::Paste)) {
      Type(QApplication::clipboard()->text());
      return true;
    }
    if (IsTyping(event)) {
      Type(event.text());
      return true;
    }
    const char32_t key = KeyCharacter(event);
    if (key == 0) return false;
    box_.UserKey(key);
    // One line leaves Return, and any field Esc, to the window around it.
    return key == kBackspaceKey || (key == kReturnKey && ManyLines());
  }

  bool TakeInput(QInputMethodEvent& event) override {
    if (event.commitString().isEmpty()) return false;
    Type(event.commitString());
    event.setCommitString(QString());
    return false;
  }

  void Type(const QString& text) { box_.UserType(text.toStdString()); }

  TextBox& box_;

 private:
  // The toolkit's own menu would paste past the handlers.
  void ShowContextMenu(const QPoint& at) {
    const bool selected = box_.SelLength() > 0;
    QMenu menu;
    AddEdit(menu, "Cut", "cut", selected && !box_.Locked());
    AddEdit(menu, "Copy", "copy", selected);
    QAction* paste =
        menu.addAction("Paste", this, [this] { Type(QApplication::clipboard()->text()); });
    paste->setEnabled(!box_.Locked() && !QApplication::clipboard()->text().isEmpty());
    menu.addSeparator();
    AddEdit(menu, "Select All", "selectAll", !box_.Text().empty());
    ModalOpens();
    const ModalRun run;
    menu.exec(at);
  }

  void AddEdit(QMenu& menu, const QString& caption, const char* slot, bool enabled) {
    QAction* entry =
        menu.addAction(caption, this, [=, this] { QMetaObject::invokeMethod(&widget_, slot); });
    entry->setEnabled(enabled);
  }
};

class LineView : public TextView {
 public:
  LineView(TextBox& box, QLineEdit& widget) : TextView(box, widget), line_(widget) {
    connect(&widget, &QLineEdit::textEdited, this, [this](const QString& text) {
      box_.UserEdit(text.toStdString(), CharactersBefore(text, line_.cursorPosition()));
    });
    connect(&widget, &QLineEdit::cursorPositionChanged, this, [this] { ReportCaret(); });
    connect(&widget, &QLineEdit::selectionChanged, this, [this] { ReportCaret(); });
    RenderAll();
  }

 protected:
  bool ManyLines() const override { return false; }

  void Render(Aspect aspect) override {
    TextView::Render(aspect);
    if (aspect == Aspect::kEnabled) line_.setReadOnly(box_.Locked());
  }

  void ShowText() override {
    const QSignalBlocker quiet(line_);
    const QString text = ToQt(box_.Text());
    if (line_.text() != text) line_.setText(text);
  }

  void ShowCaret() override {
    const QSignalBlocker quiet(line_);
    const int start = ToolkitPlace(line_.text(), box_.SelStart());
    const int end = ToolkitPlace(line_.text(), box_.SelStart() + box_.SelLength());
    line_.setSelection(start, end - start);
    if (end == start) line_.setCursorPosition(start);
  }

 private:
  void ReportCaret() {
    const QString text = line_.text();
    const bool selected = line_.hasSelectedText();
    const int start = selected ? line_.selectionStart() : line_.cursorPosition();
    const int end = selected ? line_.selectionEnd() : start;
    const int first = ModelPlace(text, start);
    box_.UserSelect(first, ModelPlace(text, end) - first);
  }

  QLineEdit& line_;
};

class LinesView : public TextView {
 public:
  LinesView(TextBox& box, QPlainTextEdit& widget) : TextView(box, widget), lines_(widget) {
    widget.viewport()->setProperty("part", true);
    Watch(*widget.viewport());
    connect(&widget, &QPlainTextEdit::textChanged, this, [this] { Edited(); });
    connect(&widget, &QPlainTextEdit::cursorPositionChanged, this, [this] { ReportCaret(); });
    connect(&widget, &QPlainTextEdit::selectionChanged, this, [this] { ReportCaret(); });
    RenderAll();
  }

 protected:
  bool ManyLines() const override { return true; }

  void Render(Aspect aspect) override {
    TextView::Render(aspect);
    if (aspect == Aspect::kEnabled) lines_.setReadOnly(box_.Locked());
  }

  void ShowText() override {
    const QSignalBlocker quiet(lines_);
    QString text = ToQt(box_.Text());
    text.replace("\r\n", "\n");
    if (lines_.toPlainText() != text) lines_.setPlainText(text);
  }

  void ShowCaret() override {
    const QSignalBlocker quiet(lines_);
    const QString text = lines_.toPlainText();
    QTextCursor caret = lines_.textCursor();
    caret.setPosition(ToolkitPlace(text, box_.SelStart()));
    caret.setPosition(ToolkitPlace(text, box_.SelStart() + box_.SelLength()),
                      QTextCursor::KeepAnchor);
    lines_.setTextCursor(caret);
  }

 private:
  // Input methods show what is being composed inside the document: that is no text yet.
  void Edited() {
    const QString text = lines_.toPlainText();
    QString known = ToQt(box_.Text());
    known.replace("\r\n", "\n");
    if (text == known) return;
    box_.UserEdit(text.toStdString(), CharactersBefore(text, lines_.textCursor().position()));
  }

  void ReportCaret() {
    const QString text = lines_.toPlainText();
    const QTextCursor caret = lines_.textCursor();
    const int first = ModelPlace(text, caret.selectionStart());
    box_.UserSelect(first, ModelPlace(text, caret.selectionEnd()) - first);
  }

  QPlainTextEdit& lines_;
};

// --- lists --------------------------------------------------------------------------------------

// Rows are copied when somebody can see them: lists are filled row by row.
class ComboView : public WidgetView {
 public:
  ComboView(ComboBox& combo, QComboBox& widget)
      : WidgetView(combo, widget), combo_(combo), list_(widget) {
    list_.setInsertPolicy(QComboBox::NoInsert);
    list_.setEditable(combo_.Editable());
    if (list_.lineEdit()) PrepareEdit(*list_.lineEdit());
    connect(&widget, &QComboBox::activated, this, [this](int row) {
      combo_.UserFocus();
      combo_.UserChoose(row);
      Refresh();
    });
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    const bool scrolls_past = event->type() == QEvent::Wheel && !combo_.HasFocus();
    if (scrolls_past) {
      event->ignore();
      return true;
    }
    const bool opens = event->type() == QEvent::MouseButtonPress ||
                       event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel ||
                       event->type() == QEvent::Paint;
    if (opens && stale_) Refresh();
    return WidgetView::eventFilter(object, event);
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect == Aspect::kList) {
      stale_ = true;
      widget_.update();
    } else if (aspect == Aspect::kText || aspect == Aspect::kSelection) {
      ShowChoice();
    }
  }

  bool TakeKey(const QKeyEvent& event) override {
    if (event.matches(QKeySequence::Paste)) {
      Type(QApplication::clipboard()->text());
      return true;
    }
    if (IsTyping(event)) {
      const bool opens = !combo_.Editable() && event.key() == Qt::Key_Space;
      Type(event.text());
      return !opens;  // a pick list drops down
    }
    const char32_t key = KeyCharacter(event);
    if (key == 0) return false;
    combo_.UserKey(key);
    return key != kEscapeKey && !(key == kReturnKey && !combo_.Editable());
  }

  bool TakeInput(QInputMethodEvent& event) override {
    if (event.commitString().isEmpty()) return false;
    Type(event.commitString());
    event.setCommitString(QString());
    return false;
  }

 private:
  void PrepareEdit(QLineEdit& edit) {
    list_.setCompleter(nullptr);  // the program completes by itself
    edit.setProperty("part", true);
    edit.setAcceptDrops(false);
    edit.setContextMenuPolicy(Qt::NoContextMenu);
    Watch(edit);
    connect(&edit, &QLineEdit::textEdited, this, [this, &edit](const QString& text) {
      combo_.UserEdit(text.toStdString(), CharactersBefore(text, edit.cursorPosition()));
    });
    connect(&edit, &QLineEdit::cursorPositionChanged, this, [this, &edit] { ReportCaret(edit); });
    connect(&edit, &QLineEdit::selectionChanged, this, [this, &edit] { ReportCaret(edit); });
  }

  void Refresh() {
    stale_ = false;
    const QSignalBlocker quiet(list_);
    QStringList rows;
    for (int row = 0; row < combo_.ListCount(); ++row) rows << ToQt(combo_.List(row));
    list_.clear();
    list_.addItems(rows);
    ShowChoice();
  }

  // The toolkit follows a row with its own text: the model's comes after it.
  void ShowChoice() {
    QLineEdit* edit = list_.lineEdit();
    const QSignalBlocker quiet(list_);
    const QSignalBlocker edit_quiet(edit);
    const QString text = ToQt(combo_.Text());
    const bool moved = !stale_ && list_.currentIndex() != combo_.ListIndex();
    if (moved) list_.setCurrentIndex(combo_.ListIndex());
    if (edit) {
      if (edit->text() != text) edit->setText(text);
      ShowCaret(*edit);
    } else {
      list_.setPlaceholderText(text);
    }
    widget_.update();
  }

  void ShowCaret(QLineEdit& edit) {
    const int start = ToolkitPlace(edit.text(), combo_.SelStart());
    const int end = ToolkitPlace(edit.text(), combo_.SelStart() + combo_.SelLength());
    edit.setSelection(start, end - start);
    if (end == start) edit.setCursorPosition(start);
  }

  void ReportCaret(const QLineEdit& edit) {
    const bool selected = edit.hasSelectedText();
    const int start = selected ? edit.selectionStart() : edit.cursorPosition();
    const int end = selected ? edit.selectionEnd() : start;
    const int first = ModelPlace(edit.text(), start);
    combo_.UserSelect(first, ModelPlace(edit.text(), end) - first);
  }

  void Type(const QString& text) { combo_.UserType(text.toStdString()); }

  ComboBox& combo_;
  QComboBox& list_;
  bool stale_ = false;
};

class ListView : public WidgetView {
 public:
  ListView(ListBox& list, QListWidget& widget)
      : WidgetView(list, widget), list_(list), rows_(widget) {
    widget.viewport()->setProperty("part", true);
    Watch(*widget.viewport());
    connect(&widget, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { Choose(rows_.row(item)); });
    connect(&widget, &QListWidget::currentRowChanged, this, [this](int row) {
      if (QApplication::mouseButtons() == Qt::NoButton) Choose(row);
    });
    connect(&widget, &QListWidget::itemDoubleClicked, this, [this] { list_.UserDblClick(); });
    RenderAll();
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect != Aspect::kList && aspect != Aspect::kSelection) return;
    const QSignalBlocker quiet(rows_);
    if (aspect == Aspect::kList) {
      rows_.clear();
      for (int row = 0; row < list_.ListCount(); ++row) rows_.addItem(ToQt(list_.List(row)));
    }
    rows_.setCurrentRow(list_.ListIndex());
  }

 private:
  void Choose(int row) {
    if (row >= 0) list_.UserChoose(row);
    Render(Aspect::kSelection);
  }

  ListBox& list_;
  QListWidget& rows_;
};

// --- status bar ---------------------------------------------------------------------------------

// Stands along the bottom edge of the window, as high as the model says.
class StatusView : public WidgetView {
 public:
  StatusView(StatusBar& bar, QWidget& widget) : WidgetView(bar, widget), bar_(bar) {
    widget.setProperty("docked", true);
    widget.parentWidget()->installEventFilter(this);
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == &widget_) return WidgetView::eventFilter(object, event);
    if (event->type() == QEvent::Resize) Dock();
    return false;
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect == Aspect::kGeometry) Dock();
    if (aspect != Aspect::kText) return;
    for (int panel = 1; panel <= bar_.PanelCount(); ++panel) {
      if (auto* text = widget_.findChild<QLabel*>(QString("statusPanel_%1").arg(panel))) {
        text->setTextFormat(Qt::PlainText);
        text->setText(ToQt(bar_.PanelText(panel)));
        text->setAccessibleDescription(text->text());  // its name says which panel it is
      }
    }
  }

 private:
  void Dock() {
    const QWidget& parent = *widget_.parentWidget();
    const int height = Pixels(bar_.Height());
    widget_.setGeometry(0, parent.height() - height, parent.width(), height);
  }

  StatusBar& bar_;
};

// --- menus and timers ---------------------------------------------------------------------------

class MenuView : public QObject, public ControlView {
 public:
  MenuView(Menu& menu, QAction& action) : menu_(menu), action_(action) {
    if (action_.text() == "-") action_.setSeparator(true);
    connect(&action, &QAction::triggered, this, [this] {
      Changed(menu_, Aspect::kValue);  // the model ticks it, not the toolkit
      menu_.Press();
    });
    menu_.AttachView(this);
    for (const Aspect aspect :
         {Aspect::kText, Aspect::kValue, Aspect::kEnabled, Aspect::kVisible}) {
      Changed(menu_, aspect);
    }
  }

  void Changed(const Control&, Aspect aspect) override {
    if (aspect == Aspect::kText && !menu_.Caption().empty()) action_.setText(ToQt(menu_.Caption()));
    if (aspect == Aspect::kEnabled) action_.setEnabled(menu_.Enabled());
    if (aspect == Aspect::kVisible) action_.setVisible(menu_.Visible());
    if (aspect != Aspect::kValue) return;
    if (menu_.Checked()) action_.setCheckable(true);
    action_.setChecked(menu_.Checked());
  }

 private:
  Menu& menu_;
  QAction& action_;
};

class TimerView : public QObject, public ControlView {
 public:
  explicit TimerView(Timer& timer) : timer_(timer) {
    connect(&clock_, &QTimer::timeout, this, [this] { timer_.Elapsed(); });
    timer_.AttachView(this);
    Changed(timer_, Aspect::kValue);
  }

  void Changed(const Control&, Aspect) override {
    if (!timer_.Enabled() || timer_.Interval() == 0) return clock_.stop();
    clock_.start(timer_.Interval());
  }

 private:
  Timer& timer_;
  QTimer clock_;
};

}  // namespace

std::unique_ptr<ControlView> MakeMenuView(Menu& menu, QAction& action) {
  return std::make_unique<MenuView>(menu, action);
}

std::unique_ptr<ControlView> MakeTimerView(Timer& timer) {
  return std::make_unique<TimerView>(timer);
}

namespace {

// The view when control and widget are of these types.
template <class View, class ControlType, class WidgetType>
bool Try(Control& control, QWidget& widget, std::unique_ptr<ControlView>& view) {
  auto* typed_control = dynamic_cast<ControlType*>(&control);
  auto* typed_widget = qobject_cast<WidgetType*>(&widget);
  if (!typed_control || !typed_widget) return false;
  view = std::make_unique<View>(*typed_control, *typed_widget);
  return true;
}

}  // namespace

std::unique_ptr<ControlView> MakeView(Control& control, QWidget& widget) {
  std::unique_ptr<ControlView> view;
  Try<LabelView, Label, QLabel>(control, widget, view) ||
      Try<SwatchView, Label, QFrame>(control, widget, view) ||
      Try<LineView, TextBox, QLineEdit>(control, widget, view) ||
      Try<LinesView, TextBox, QPlainTextEdit>(control, widget, view) ||
      Try<ComboView, ComboBox, QComboBox>(control, widget, view) ||
      Try<ListView, ListBox, QListWidget>(control, widget, view) ||
      Try<CheckView, CheckBox, QCheckBox>(control, widget, view) ||
      Try<ButtonView, CommandButton, QAbstractButton>(control, widget, view) ||
      Try<ScrollView, ScrollBar, QScrollBar>(control, widget, view) ||
      Try<StatusView, StatusBar, QWidget>(control, widget, view) ||
      Try<FrameView, PictureBox, QWidget>(control, widget, view);
  return view;
}

}  // namespace tagwright
