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

  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    if (button_.isEnabled()) button_.animateClick();
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
