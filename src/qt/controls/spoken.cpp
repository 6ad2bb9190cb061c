#include "qt/controls/spoken.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QListView>
#include <QToolButton>

#include "qt/controls/spoken_list.h"
#include "qt/look/colors.h"

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

  // Some tools say a button's state by the one word and some by the other.
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const bool stays = button_.isChecked();
    state.checkable = stays;
    state.checked = stays;
    state.pressed = stays || button_.isDown();
    return state;
  }

 private:
  QToolButton& button_;
};

QAccessibleInterface* SpokenForm(const QString& kind, QObject* object) {
  if (kind == "QToolButton") {
    auto* button = qobject_cast<QToolButton*>(object);
    return button ? new SpokenToolButton(*button) : nullptr;
  }
  if (kind == "QListView" || kind == "QListWidget") {
    auto* list = qobject_cast<QListView*>(object);
    return list ? MakeSpokenList(*list) : nullptr;
  }
  return nullptr;
}

}  // namespace

void InstallSpokenControls() { QAccessible::installFactory(SpokenForm); }

void SpeakPressed(QAbstractButton& button) {
  QAccessible::State changed;
  changed.pressed = true;
  QAccessibleStateChangeEvent event(&button, changed);
  QAccessible::updateAccessibility(&event);
}

QString ColorInWords(Color color) {
  const QColor seen = ToQColor(color);
  const int red = seen.red(), green = seen.green(), blue = seen.blue();
  if (red != green || green != blue) {
    return QString("Red %1, green %2, blue %3").arg(red).arg(green).arg(blue);
  }
  if (red == 0) return "Black";
  if (red == 255) return "White";
  return QString("Grey, %1 per cent light").arg(qRound(red * 100 / 255.0));
}

}  // namespace tagwright
