#include "qt/controls/button_views.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QSignalBlocker>

#include "qt/controls/spoken.h"
#include "qt/controls/units.h"
#include "qt/controls/widget_view.h"

namespace tagwright {
namespace {

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

}  // namespace

std::unique_ptr<ControlView> MakeButtonView(CommandButton& button, QAbstractButton& widget) {
  return std::make_unique<ButtonView>(button, widget);
}

std::unique_ptr<ControlView> MakeCheckView(CheckBox& box, QCheckBox& widget) {
  return std::make_unique<CheckView>(box, widget);
}

}  // namespace tagwright
