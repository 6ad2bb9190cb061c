#include "qt/controls/label_views.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>

#include "qt/controls/spoken.h"
#include "qt/controls/units.h"
#include "qt/controls/widget_view.h"
#include "qt/look/colors.h"
#include "qt/look/theme.h"

namespace tagwright {
namespace {

// Text in a QLabel. An empty caption leaves what the form file says.
class LabelView : public WidgetView {
 public:
  LabelView(Label& label, QLabel& widget)
      : WidgetView(label, widget), label_(label), text_(widget) {
    text_.setTextFormat(Qt::PlainText);
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Resize && Shortens()) ShowText();
    return WidgetView::eventFilter(object, event);
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect == Aspect::kText) ShowText();
  }
  void Released(bool inside) override {
    if (inside) label_.Press();
  }

 private:
  // Long paths do not fit their place.
  bool Shortens() const { return text_.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored; }

  // The end of a path tells it from others; the whole stands in the tool tip.
  void ShowText() {
    const QString whole = label_.Caption().empty() ? designed_ : ToQt(label_.Caption());
    text_.setAccessibleDescription(whole);
    if (!Shortens()) return text_.setText(whole);
    text_.setToolTip(whole);
    text_.setText(text_.fontMetrics().elidedText(whole, Qt::ElideLeft, text_.width()));
  }

  Label& label_;
  QLabel& text_;
  QString designed_ = text_.text();
};

// A label whose back colour is what it is there for.
class SwatchView : public WidgetView {
 public:
  SwatchView(Label& label, QFrame& widget) : WidgetView(label, widget), label_(label) {
    RenderAll();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint) return WidgetView::eventFilter(object, event);
    Paint();
    return true;
  }

 protected:
  void Render(Aspect aspect) override {
    if (aspect != Aspect::kLook) return;
    widget_.setAccessibleDescription(ColorInWords(label_.BackColor()));
    widget_.update();
  }
  void Released(bool inside) override {
    if (inside) label_.Press();
  }

 private:
  void Paint() {
    constexpr double kCorner = 4;
    QPainter painter(&widget_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(CurrentTheme().sample_rim);
    painter.setBrush(ToQColor(label_.BackColor()));
    painter.drawRoundedRect(QRectF(widget_.rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCorner,
                            kCorner);
  }

  Label& label_;
};

}  // namespace

std::unique_ptr<ControlView> MakeLabelView(Label& label, QLabel& widget) {
  return std::make_unique<LabelView>(label, widget);
}

std::unique_ptr<ControlView> MakeSwatchView(Label& label, QFrame& widget) {
  return std::make_unique<SwatchView>(label, widget);
}

}  // namespace tagwright
