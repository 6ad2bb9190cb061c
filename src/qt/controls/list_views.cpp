#include "qt/controls/list_views.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>

#include "qt/controls/input_codes.h"
#include "qt/controls/text_places.h"
#include "qt/controls/units.h"
#include "qt/controls/widget_view.h"

namespace tagwright {
namespace {

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

}  // namespace

std::unique_ptr<ControlView> MakeComboView(ComboBox& combo, QComboBox& widget) {
  return std::make_unique<ComboView>(combo, widget);
}

std::unique_ptr<ControlView> MakeListView(ListBox& list, QListWidget& widget) {
  return std::make_unique<ListView>(list, widget);
}

}  // namespace tagwright
