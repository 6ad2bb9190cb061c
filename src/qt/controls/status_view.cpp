#include "qt/controls/status_view.h"

#include <QEvent>
#include <QLabel>
#include <QVariant>

#include "qt/controls/units.h"
#include "qt/controls/widget_view.h"

namespace tagwright {
namespace {

// Stands along the bottom edge of the window, as high as the model says.
class StatusView : public WidgetView {
 public:
  StatusView(StatusBar& bar, QWidget& widget) : WidgetView(bar, widget), bar_(bar) {
    widget.setProperty("docked", true);
    widget.parentWidget()->installEventFilter(this);
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == &widget_) return WidgetView::eventFilter(object, event);
    if (event->type() == QEvent::Resize) Dock();
    return false;
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect == Aspect::kGeometry) Dock();
    if (aspect != Aspect::kText) return;
    for (QLabel* text : widget_.findChildren<QLabel*>()) {
      const int panel = text->property("panel").toInt();
      if (panel < 1 || panel > bar_.PanelCount()) continue;
      text->setTextFormat(Qt::PlainText);
      text->setText(ToQt(bar_.PanelText(panel)));
      text->setAccessibleDescription(text->text());  // its name says which panel it is
    }
  }

 private:
  void Dock() {
    const QWidget& parent = *widget_.parentWidget();
    const int height = Pixels(bar_.Height());
    widget_.setGeometry(0, parent.height() - height, parent.width(), height);
  }

  StatusBar& bar_;
};

}  // namespace

std::unique_ptr<ControlView> MakeStatusView(StatusBar& bar, QWidget& widget) {
  return std::make_unique<StatusView>(bar, widget);
}

}  // namespace tagwright
