#include "qt/controls/menu_views.h"

#include <QAction>
#include <QObject>

#include "qt/controls/units.h"

namespace tagwright {
namespace {

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

}  // namespace

std::unique_ptr<ControlView> MakeMenuView(Menu& menu, QAction& action) {
  return std::make_unique<MenuView>(menu, action);
}

}  // namespace tagwright
