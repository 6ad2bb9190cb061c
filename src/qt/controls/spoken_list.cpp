#include "qt/controls/spoken_list.h"

#include <QAbstractItemModel>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QListView>
#include <QPointer>
#include <vector>

namespace tagwright {
namespace {

int RowCount(const QListView& view) {
  return view.model() ? view.model()->rowCount(view.rootIndex()) : 0;
}

QModelIndex IndexOf(const QListView& view, int row) {
  return view.model()->index(row, view.modelColumn(), view.rootIndex());
}

class SpokenRow : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  SpokenRow(QListView& view, int row) : view_(&view), row_(row) {}

  int Row() const { return row_; }

  bool isValid() const override { return view_ && row_ < RowCount(*view_); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return view_ ? QAccessible::queryAccessibleInterface(view_) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }

  QString text(QAccessible::Text kind) const override {
    if (!isValid() || kind != QAccessible::Name) return {};
    return IndexOf(*view_, row_).data(Qt::DisplayRole).toString();
  }
  void setText(QAccessible::Text, const QString&) override {}

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = view_->visualRect(IndexOf(*view_, row_));
    return {view_->viewport()->mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    const QModelIndex index = IndexOf(*view_, row_);
    state.selectable = true;
    state.focusable = true;
    state.disabled = !view_->isEnabled();
    state.selected = view_->selectionModel() && view_->selectionModel()->isSelected(index);
    state.focused = view_->hasFocus() && view_->currentIndex() == index;
    const bool within = view_->viewport()->rect().intersects(view_->visualRect(index));
    state.invisible = !view_->isVisible() || !within;
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (!isValid() || !view_->isEnabled() || name != pressAction()) return;
    view_->setCurrentIndex(IndexOf(*view_, row_));
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<QListView> view_;
  int row_;
};

class SpokenList : public QAccessibleWidget {
 public:
  explicit SpokenList(QListView& view) : QAccessibleWidget(&view, QAccessible::List), view_(view) {}

  ~SpokenList() override {
    for (const QAccessible::Id row : rows_) QAccessible::deleteAccessibleInterface(row);
  }

  // A combo's list unfolds in a window of its own, which is no part of what is spoken.
  QAccessibleInterface* parent() const override {
    QWidget* around = view_.parentWidget();
    auto* combo = around ? qobject_cast<QComboBox*>(around->parentWidget()) : nullptr;
    return combo ? QAccessible::queryAccessibleInterface(combo) : QAccessibleWidget::parent();
  }

  int childCount() const override { return RowCount(view_); }

  QAccessibleInterface* child(int row) const override {
    if (row < 0 || row >= childCount()) return nullptr;
    while (static_cast<int>(rows_.size()) <= row) {
      auto* made = new SpokenRow(view_, static_cast<int>(rows_.size()));  // the toolkit's own
      rows_.push_back(QAccessible::registerAccessibleInterface(made));
    }
    return QAccessible::accessibleInterface(rows_[static_cast<std::size_t>(row)]);
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    return child(view_.indexAt(view_.viewport()->mapFromGlobal(QPoint(x, y))).row());
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* row = dynamic_cast<const SpokenRow*>(child);
    return row && row->parent() == this ? row->Row() : -1;
  }

  QAccessibleInterface* focusChild() const override {
    return view_.hasFocus() ? child(view_.currentIndex().row()) : nullptr;
  }

 private:
  QListView& view_;
  mutable std::vector<QAccessible::Id> rows_;  // made when they are first asked for
};

}  // namespace

QAccessibleInterface* MakeSpokenList(QListView& view) { return new SpokenList(view); }

}  // namespace tagwright
