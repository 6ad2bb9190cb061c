#include "qt/controls/scroll_view.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include "qt/controls/widget_view.h"

namespace tagwright {
namespace {

class ScrollView : public WidgetView {
 public:
  ScrollView(ScrollBar& bar, QScrollBar& widget)
      : WidgetView(bar, widget), bar_(bar), slide_(widget) {
    connect(&widget, &QScrollBar::valueChanged, this, [this](int value) {
      bar_.UserScroll(value);
      Render(Aspect::kValue);
    });
    RenderAll();
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect != Aspect::kValue) return;
    const QSignalBlocker quiet(slide_);
    slide_.setRange(bar_.Min(), bar_.Max());
    slide_.setSingleStep(bar_.SmallChange());
    slide_.setPageStep(bar_.LargeChange());
    slide_.setValue(bar_.Value());
    slide_.update();
  }

 private:
  ScrollBar& bar_;
  QScrollBar& slide_;
};

}  // namespace

std::unique_ptr<ControlView> MakeScrollView(ScrollBar& bar, QScrollBar& widget) {
  return std::make_unique<ScrollView>(bar, widget);
}

}  // namespace tagwright
