#include "platform/qt/spoken_qt.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QToolButton>

namespace tagwright {
namespace {

class SpokenToolButton : public QAccessibleWidget {
 public:
  explicit SpokenToolButton(QToolButton& button)
      : QAccessibleWidget(&button, QAccessible::Button), button_(button) {}

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button_.isEnabled()) names.prepend(pressAction());
    return names;
  }

  // The keyboard comes as by a shortcut: a move that the user has not asked for is undone.
  void doAction(const QString& name) override {
    if (!button_.isEnabled()) return;
    if (name == pressAction()) button_.animateClick();
    if (name == setFocusAction()) button_.setFocus(Qt::ShortcutFocusReason);
  }

 private:
  QToolButton& button_;
};

QAccessibleInterface* SpokenForm(const QString& kind, QObject* object) {
  auto* button = kind == "QToolButton" ? qobject_cast<QToolButton*>(object) : nullptr;
  return button ? new SpokenToolButton(*button) : nullptr;
}

}  // namespace

void InstallSpokenButtons() { QAccessible::installFactory(SpokenForm); }

}  // namespace tagwright
