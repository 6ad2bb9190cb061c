#include "qt/controls/windows.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

#include "platform/controls/control.h"
#include "platform/controls/control_view.h"
#include "platform/controls/menu.h"
#include "platform/controls/mouse.h"
#include "platform/controls/picture_box.h"
#include "qt/controls/binder.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/focus.h"
#include "qt/controls/input_codes.h"
#include "qt/controls/modal_run.h"
#include "qt/controls/units.h"

namespace tagwright {
namespace {

class FormWindow;

std::map<const Form*, FormWindow*>& Windows() {
  static std::map<const Form*, FormWindow*> windows;
  return windows;
}

bool IsTextField(const QWidget* widget) {
  const auto* combo = qobject_cast<const QComboBox*>(widget);
  return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
         (combo && combo->isEditable());
}

bool IsEditingKey(const QKeyEvent& event) {
  return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut) ||
         event.matches(QKeySequence::Paste) || event.matches(QKeySequence::SelectAll);
}

// Twice what all screens show: room for every window of use, wherever it lies. A damaged file can
// ask for far more, and the toolkit would take memory for each pixel of it.
QSize LargestWindow() { return QGuiApplication::primaryScreen()->virtualSize() * 2; }

bool MenuIsOpen() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; }

// Escape with a list unfolded is the list's alone.
bool ClosesList(const QKeyEvent& event) {
  return event.key() == Qt::Key_Escape && QApplication::activePopupWidget();
}

// One form's window, its views, and the way between the two.
class FormWindow : public QObject, public ControlView {
 public:
  FormWindow(Form& form, std::unique_ptr<QWidget> window)
      : form_(form), window_(std::move(window)), client_(ClientOf(*window_)) {
    Windows()[&form_] = this;
    form_.AttachView(this);
    views_ = BindControls(form_, *window_);
    FitToHints();
    window_->setWindowTitle(ToQt(form_.Caption()));
    client_.setMouseTracking(true);
    client_.installEventFilter(this);
    window_->installEventFilter(this);
    window_->winId();  // the native window, which sees every key before the widgets do
    window_->windowHandle()->installEventFilter(this);
    WatchMenus();
    TakeGeometry();
  }

  ~FormWindow() override { views_.clear(); }

  QWidget& Window() const { return *window_; }

  void Show();
  void RunModal();
  void FocusFirst();
  // The form is going: no view may touch it any more. The widgets go when the events under way are
  // through with them.
  void Retire();
  void Popup(Menu& menu);

  void Changed(const Control& control, Aspect aspect) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  // --- size and state ---
  void FitToHints();
  void FitOnScreen();
  void TakeGeometry();
  void Report();
  void ClaimFrame(const QMargins& frame);
  void FitInFrame(const QMargins& frame);
  bool IsLaidOut() const { return client_.layout() != nullptr; }
  double Kept(double model_twips, int pixels) const;
  WindowState StateNow() const;

  // --- keyboard ---
  bool FilterKeys(QEvent& event);
  bool AnnounceMenuKey(const QContextMenuEvent& event);
  bool OverrideShortcut(QKeyEvent& event);
  bool PressKey(QKeyEvent& event);
  bool MoveFocus(QKeyEvent& event);
  bool IsMenuKey(const QKeyEvent& event) const;
  void PressHelp();

  void WatchMenus();
  bool FilterMouse(QEvent& event);

  Form& form_;
  std::unique_ptr<QWidget> window_;
  QWidget& client_;
  std::vector<std::unique_ptr<ControlView>> views_;
  QEventLoop* modal_loop_ = nullptr;
  bool frame_owed_ = false;  // the model's size was applied before the frame was known
  QSize unframed_size_;      // and made the window this large
  bool placed_ = false;      // the model has said where, too
  bool applying_ = false;    // the model is moving the window
  bool told_ = false;        // the key under way has been reported
  bool swallowed_ = false;   // and a handler took it
  bool announced_ = false;   // the menu key is, by the menu that it asks for
};

// --- size and state -----------------------------------------------------------------------------

// The form's design values fit the usual font. With a larger one what the form file marks, such as
// the strip across the top, grows before start-up lays the window out.
void FormWindow::FitToHints() {
  for (Control* child : form_.Children()) {
    if (!dynamic_cast<PictureBox*>(child)) continue;
    const QWidget* widget = WidgetOf(*child);
    if (!widget || !widget->layout() || !widget->property("growsToHint").toBool()) continue;
    const double needed = Twips(widget->layout()->minimumSize().height());
    if (needed > child->Height()) child->SetHeight(needed);
  }
}

// A window that nobody has placed comes up whole, also on a screen that is smaller than its design.
void FormWindow::FitOnScreen() {
  if (IsLaidOut() || form_.IsPlaced() || window_->isVisible()) return;
  const QSize room = window_->screen()->availableSize();
  form_.SetWidth(std::min(form_.Width(), Twips(room.width())));
  form_.SetHeight(std::min(form_.Height(), Twips(room.height())));
}

WindowState FormWindow::StateNow() const {
  if (window_->isMinimized()) return WindowState::kMinimized;
  return window_->isMaximized() ? WindowState::kMaximized : WindowState::kNormal;
}

// Places the window where the model has it, frame included, whatever the place is.
void FormWindow::TakeGeometry() {
  if (IsLaidOut()) return;  // a dialog is as large as its form file makes it
  applying_ = true;
  // A form without a place of its own gets one from the window manager when it comes up.
  placed_ = form_.IsPlaced() || window_->isVisible();
  FitInFrame(window_->windowHandle()->frameMargins());
  if (form_.State() != StateNow()) {
    window_->setWindowState(form_.State() == WindowState::kMinimized   ? Qt::WindowMinimized
                            : form_.State() == WindowState::kMaximized ? Qt::WindowMaximized
                                                                       : Qt::WindowNoState);
  }
  applying_ = false;
  if (window_->isVisible()) Report();
}

void FormWindow::FitInFrame(const QMargins& frame) {
  frame_owed_ = frame.isNull();
  const QSize size(Pixels(form_.Width()), Pixels(form_.Height()));
  window_->resize(size.boundedTo(LargestWindow()).shrunkBy(frame));
  unframed_size_ = window_->size();
  if (placed_) window_->move(Pixels(form_.Left()), Pixels(form_.Top()));
}

// The window manager tells the frame's size some time after the window has come up. A window that
// the model had sized by then is made smaller by it, or it would grow with every start; one that
// the user has taken in hand meanwhile stays.
void FormWindow::ClaimFrame(const QMargins& frame) {
  if (frame.isNull() || !std::exchange(frame_owed_, false)) return;
  if (window_->size() != unframed_size_ || StateNow() != WindowState::kNormal) return;
  applying_ = true;
  FitInFrame(frame);
  applying_ = false;
}

// The model keeps its own number as long as the pixel is the same: what a routine assigned is what
// it reads.
double FormWindow::Kept(double model_twips, int pixels) const {
  return Pixels(model_twips) == pixels ? model_twips : Twips(pixels);
}

void FormWindow::Report() {
  if (applying_ || !window_->isVisible() || !window_->windowHandle()) return;
  ClaimFrame(window_->windowHandle()->frameMargins());
  const QRect frame = window_->frameGeometry();
  form_.UserResize(Kept(form_.Left(), frame.x()), Kept(form_.Top(), frame.y()),
                   Kept(form_.Width(), frame.width()), Kept(form_.Height(), frame.height()),
                   Twips(client_.width()), Twips(client_.height()), StateNow());
}

void FormWindow::Changed(const Control& control, Aspect aspect) {
  if (&control != &form_) return;  // a child that is never seen
  switch (aspect) {
    case Aspect::kText:
      window_->setWindowTitle(ToQt(form_.Caption()));
      break;
    case Aspect::kGeometry:
      TakeGeometry();
      break;
    case Aspect::kVisible:
      window_->setVisible(form_.Visible());
      if (!form_.Visible() && modal_loop_) modal_loop_->quit();
      break;
    case Aspect::kEnabled:
      window_->setEnabled(form_.Enabled());
      break;
    case Aspect::kLook:
      if (form_.MousePointer() == 0) {
        window_->unsetCursor();
      } else {
        window_->setCursor(PointerOf(form_, window_->devicePixelRatioF()));
      }
      break;
    default:
      break;
  }
}

// --- coming and going ---------------------------------------------------------------------------

// The model's window is active as soon as it is shown, whatever the window manager thinks of it
// later.
void FormWindow::Show() {
  FitOnScreen();
  window_->show();
  window_->raise();
  window_->activateWindow();
  Report();
  if (ActiveForm() != &form_) form_.UserActivate();
}

void FormWindow::RunModal() {
  QEventLoop loop;
  modal_loop_ = &loop;
  window_->setWindowModality(Qt::ApplicationModal);
  const QPointer<QObject> alive(this);
  Show();
  if (IsLoaded(form_)) FocusFirst();
  if (IsLoaded(form_) && form_.Visible()) loop.exec();
  if (alive) modal_loop_ = nullptr;
}

// The first field of a dialog has the keyboard, as the user expects.
void FormWindow::FocusFirst() {
  if (form_.ActiveControl()) return;
  QWidget* first = window_->nextInFocusChain();
  while (first != window_.get() && !(first->focusPolicy() & Qt::TabFocus)) {
    first = first->nextInFocusChain();
  }
  for (Control* control : form_.AllControls()) {
    if (control->View() && WidgetOf(*control) == first) return control->UserFocus();
  }
}

void FormWindow::Retire() {
  if (modal_loop_) modal_loop_->quit();
  Windows().erase(&form_);
  form_.AttachView(nullptr);
  for (Control* control : form_.AllControls()) control->AttachView(nullptr);
  window_->windowHandle()->removeEventFilter(this);
  window_->removeEventFilter(this);
  client_.removeEventFilter(this);
  window_->hide();
  deleteLater();
  if (Windows().empty()) QCoreApplication::quit();  // hiding alone does not end the loop
}

void FormWindow::Popup(Menu& menu) {
  auto* popup = window_->findChild<QMenu*>(ObjectName(menu));
  if (!popup) return;
  const ModalRun run;
  popup->exec(QCursor::pos());
}

void FormWindow::WatchMenus() {
  auto* main = qobject_cast<QMainWindow*>(window_.get());
  if (!main) return;
  for (QAction* action : main->menuBar()->actions()) {
    connect(action->menu(), &QMenu::aboutToShow, this, [] { ModalOpens(); });
  }
}

// --- events -------------------------------------------------------------------------------------

bool FormWindow::eventFilter(QObject* object, QEvent* event) {
  if (object == window_->windowHandle()) return FilterKeys(*event);
  if (object == &client_ && FilterMouse(*event)) return true;
  switch (event->type()) {
    case QEvent::Resize:
      if (object == &client_) Report();
      break;
    case QEvent::Move:
    case QEvent::WindowStateChange:
      if (object == window_.get()) Report();
      break;
    case QEvent::WindowActivate:
      if (object != window_.get()) break;
      Report();
      if (ActiveForm() != &form_) form_.UserActivate();
      break;
    case QEvent::WindowDeactivate:
      if (object == window_.get()) form_.UserDeactivate();
      break;
    case QEvent::Close:
      if (object != window_.get()) break;
      // The form decides, and takes the window along. The session's end asks who has stayed.
      UserClose(form_);
      event->setAccepted(!IsLoaded(form_));
      return true;
    default:
      break;
  }
  return false;
}

bool FormWindow::FilterMouse(QEvent& event) {
  if (event.type() != QEvent::MouseMove) return false;
  const auto& move = static_cast<QMouseEvent&>(event);
  if (HasOwnView(client_.childAt(move.position().toPoint()), client_)) return false;
  if (move.buttons() == Qt::NoButton) UserButtonsUp();
  form_.UserMouseMove(ButtonCodes(move.buttons()), ShiftCode(move.modifiers()),
                      Twips(move.position().x()), Twips(move.position().y()));
  return false;
}

// --- keyboard -----------------------------------------------------------------------------------

bool FormWindow::FilterKeys(QEvent& event) {
  switch (event.type()) {
    case QEvent::ContextMenu:
      return AnnounceMenuKey(static_cast<QContextMenuEvent&>(event));
    case QEvent::ShortcutOverride:
      return OverrideShortcut(static_cast<QKeyEvent&>(event));
    case QEvent::KeyPress:
      return PressKey(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease: {
      auto& key = static_cast<QKeyEvent&>(event);
      if (!key.isAutoRepeat() && !MenuIsOpen()) {
        form_.UserKeyUp(KeyCode(key), ShiftCode(key.modifiers()));
      }
      return false;
    }
    default:
      return false;
  }
}

// The window system asks for a menu before it sends the key that asks for it: by then the field
// that has the keyboard would have opened its own.
bool FormWindow::AnnounceMenuKey(const QContextMenuEvent& event) {
  if (event.reason() != QContextMenuEvent::Keyboard || MenuIsOpen()) return false;
  constexpr int kMenuKey = 93;
  announced_ = true;
  swallowed_ = !form_.UserKeyDown(kMenuKey, ShiftCode(event.modifiers()));
  return swallowed_;
}

bool FormWindow::IsMenuKey(const QKeyEvent& event) const {
  const QKeySequence keys(event.keyCombination());
  for (const QAction* action : window_->findChildren<QAction*>()) {
    if (!action->shortcut().isEmpty() && action->shortcut() == keys) return action->isEnabled();
  }
  return false;
}

// The first that is heard of a key: before the menus' shortcuts, which no handler would see.
bool FormWindow::OverrideShortcut(QKeyEvent& event) {
  if (MenuIsOpen() || ClosesList(event)) return false;
  told_ = true;
  const bool announced = std::exchange(announced_, false) && event.key() == Qt::Key_Menu;
  if (!announced) {
    swallowed_ = !form_.UserKeyDown(KeyCode(event), ShiftCode(event.modifiers()));
  }
  if (swallowed_) {
    event.accept();
    return true;
  }
  // Fields keep the four keys of editing; every other shortcut belongs to the menus, also those
  // that the toolkit's fields would take.
  const bool field = IsTextField(QApplication::focusWidget());
  if (field && IsEditingKey(event)) return false;
  if (!IsMenuKey(event)) return false;
  event.ignore();
  return true;
}

bool FormWindow::PressKey(QKeyEvent& event) {
  if (MenuIsOpen() || ClosesList(event)) return false;
  const bool told = std::exchange(told_, false);
  if (!told) swallowed_ = !form_.UserKeyDown(KeyCode(event), ShiftCode(event.modifiers()));
  if (std::exchange(swallowed_, false)) return true;
  if (event.key() == Qt::Key_F1) {
    PressHelp();
    return true;
  }
  if (event.key() == Qt::Key_Escape && qobject_cast<QDialog*>(window_.get()) &&
      !QApplication::activePopupWidget()) {
    UserClose(form_);
    return true;
  }
  return MoveFocus(event);
}

// Sends the tab key on by itself, so that the focus that comes of it is known for the user's.
bool FormWindow::MoveFocus(QKeyEvent& event) {
  const bool tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  if (!tab || event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
  if (QApplication::activePopupWidget()) return false;
  QWidget* focus = QApplication::focusWidget();
  QKeyEvent copy(event.type(), event.key(), event.modifiers(), event.text());
  const UserMovesFocus by_tab;
  QCoreApplication::sendEvent(focus ? focus : window_.get(), &copy);
  return true;
}

// The entry that the form file marks has the help key.
void FormWindow::PressHelp() {
  for (const QAction* action : window_->findChildren<QAction*>()) {
    if (!action->property("helpKey").toBool()) continue;
    auto* help = dynamic_cast<Menu*>(form_.Find(action->objectName().toStdString()));
    if (help) return help->Press();
  }
}

// --- the service --------------------------------------------------------------------------------

class ToolkitWindows : public WindowService {
 public:
  explicit ToolkitWindows(WindowBuilder build) : build_(std::move(build)) {}

  void Create(Form& form) override {
    std::unique_ptr<QWidget> window = build_(form, ParentFor(form));
    if (window) new FormWindow(form, std::move(window));  // goes with Destroy
  }

  void Show(Form& form) override {
    if (FormWindow* window = Find(form)) return window->Show();
    form.UserActivate();
  }

  void RunModal(Form& form) override {
    const ModalRun run;
    if (FormWindow* window = Find(form)) window->RunModal();
  }

  void Destroy(Form& form) override {
    if (FormWindow* window = Find(form)) window->Retire();
  }

  void PopupMenu(Form& form, Menu& menu) override {
    if (FormWindow* window = Find(form)) window->Popup(menu);
  }

  // As a key of the user's that comes when the present handler is done.
  void SendTab() override {
    QTimer::singleShot(0, [] {
      QWindow* window = QGuiApplication::focusWindow();
      if (!window) return;
      QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, "\t");
      QKeyEvent release(QEvent::KeyRelease, Qt::Key_Tab, Qt::NoModifier, "\t");
      QCoreApplication::sendEvent(window, &press);
      QCoreApplication::sendEvent(window, &release);
    });
  }

 private:
  static FormWindow* Find(const Form& form) {
    const auto found = Windows().find(&form);
    return found == Windows().end() ? nullptr : found->second;
  }

  // The first form is the main window; whatever comes later belongs to it.
  static QWidget* ParentFor(const Form& form) {
    return Forms().empty() || Forms().front() == &form ? nullptr : WindowOf(*Forms().front());
  }

  WindowBuilder build_;
};

}  // namespace

std::unique_ptr<WindowService> MakeWindowService(WindowBuilder build) {
  return std::make_unique<ToolkitWindows>(std::move(build));
}

QWidget* WindowOf(const Form& form) {
  const auto found = Windows().find(&form);
  return found == Windows().end() ? nullptr : &found->second->Window();
}

QWidget* WindowForDialogs() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (const auto& [form, window] : Windows()) {
    if (window->Window().isVisible()) return &window->Window();
  }
  return nullptr;
}

}  // namespace tagwright
