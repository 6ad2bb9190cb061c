#include "qt/controls/text_views.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>

#include "platform/controls/windows.h"
#include "qt/controls/input_codes.h"
#include "qt/controls/modal_run.h"
#include "qt/controls/text_places.h"
#include "qt/controls/units.h"
#include "qt/controls/widget_view.h"

namespace tagwright {
namespace {

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

}  // namespace

std::unique_ptr<ControlView> MakeLineView(TextBox& box, QLineEdit& widget) {
  return std::make_unique<LineView>(box, widget);
}

std::unique_ptr<ControlView> MakeLinesView(TextBox& box, QPlainTextEdit& widget) {
  return std::make_unique<LinesView>(box, widget);
}

}  // namespace tagwright
