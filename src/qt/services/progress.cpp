#include "qt/services/progress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "qt/controls/modal_run.h"
#include "qt/controls/units.h"
#include "qt/controls/windows.h"

namespace tagwright {
namespace {

constexpr qint64 kShownAfter = 500;  // milliseconds: shorter jobs go unseen
constexpr qint64 kEvery = 40;        // milliseconds between two looks at what the user does
constexpr int kSteps = 1000;         // of the bar
constexpr int kWidth = 360;          // pixels
constexpr int kMargin = 20;
constexpr int kSpacing = 12;

// The beginnings of what a user does. Their ends are let through: whoever knows of a beginning
// waits for them, and nobody else listens.
bool BeginsSomething(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::ToolTip:
      return true;
    default:
      return false;
  }
}

// --- the window ---------------------------------------------------------------------------------

// Closing it, by its frame or by Esc, is cancelling the job: it stays until that has ended.
class ProgressWindow : public QDialog {
 public:
  ProgressWindow(QWidget* parent, const QString& title);
  void Show(const QString& text, double share);
  bool Cancelled() const { return cancelled_; }

 protected:
  void reject() override { Cancel(); }
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    Cancel();
  }

 private:
  void Cancel();

  QLabel& text_ = *new QLabel(this);
  QProgressBar& bar_ = *new QProgressBar(this);
  QPushButton& cancel_ = *new QPushButton(QStringLiteral("Cancel"), this);
  bool cancelled_ = false;
};

ProgressWindow::ProgressWindow(QWidget* parent, const QString& title) : QDialog(parent) {
  setWindowTitle(title);
  setAccessibleName(title);
  setFixedWidth(kWidth);
  text_.setAccessibleName(QStringLiteral("Progress"));
  bar_.setAccessibleName(QStringLiteral("Share done"));
  bar_.setTextVisible(false);
  cancel_.setAccessibleName(cancel_.text());
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cancel_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  rows->addWidget(&text_);
  rows->addWidget(&bar_);
  rows->addLayout(buttons);
  connect(&cancel_, &QPushButton::clicked, this, [this] { Cancel(); });
}

void ProgressWindow::Show(const QString& text, double share) {
  if (!cancelled_) text_.setText(text);
  bar_.setRange(0, share < 0 ? 0 : kSteps);  // without an end the bar just moves
  if (share >= 0) bar_.setValue(static_cast<int>(std::min(share, 1.0) * kSteps));
}

// What is under way is finished first: say that the press was heard.
void ProgressWindow::Cancel() {
  cancelled_ = true;
  cancel_.setEnabled(false);
  text_.setText(QStringLiteral("Cancelling ..."));
}

// --- one job ------------------------------------------------------------------------------------

// Not modal for the toolkit, which would refuse the main window's close instead of letting it wait.
class JobWindow : public QObject, public ProgressView {
 public:
  explicit JobWindow(const std::string& title) : window_(WindowForDialogs(), ToQt(title)) {
    began_.start();
    looked_.start();
  }
  // The presses on the main window that came while this one stood over it were for a window that
  // was busy. A job without a window has ended for who sees its last page: what is pressed from
  // then on counts.
  ~JobWindow() override {
    if (window_.isVisible()) DropPresses();
  }

  void Tell(const std::string& text, double share) override {
    text_ = text;
    share_ = share;
  }

  bool GoesOn() override {
    if (looked_.elapsed() < kEvery) return !window_.Cancelled();
    window_.Show(ToQt(text_), share_);
    if (!window_.isVisible() && began_.elapsed() >= kShownAfter) Open();
    DropPresses();
    looked_.start();
    return !window_.Cancelled();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    return BeginsSomething(event->type()) && IsForeign(object);
  }

 private:
  void Open() {
    const ModalRun run;
    window_.show();
    window_.raise();
    window_.activateWindow();
  }

  // Lets the events run, but for what the user begins outside of the job's window.
  void DropPresses() {
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
  }

  // Native windows hear of everything first, so their share decides. Shortcuts are sent to their
  // owners directly.
  bool IsForeign(const QObject* object) const {
    if (const auto* widget = qobject_cast<const QWidget*>(object)) {
      return widget->window() != &window_;
    }
    return object != window_.windowHandle();
  }

  ProgressWindow window_;
  QElapsedTimer began_;
  QElapsedTimer looked_;
  std::string text_;
  double share_ = kUnknownShare;
};

class ToolkitProgress : public ProgressService {
 public:
  std::unique_ptr<ProgressView> Open(const std::string& title) override {
    return std::make_unique<JobWindow>(title);
  }
};

}  // namespace

std::unique_ptr<ProgressService> MakeProgressService() {
  return std::make_unique<ToolkitProgress>();
}

}  // namespace tagwright
