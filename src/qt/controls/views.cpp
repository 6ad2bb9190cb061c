#include "qt/controls/views.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "platform/controls/buttons.h"
#include "platform/controls/label.h"
#include "platform/controls/list_box.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/scroll_bar.h"
#include "platform/controls/status_bar.h"
#include "platform/controls/text_controls.h"
#include "qt/controls/button_views.h"
#include "qt/controls/frame_view.h"
#include "qt/controls/label_views.h"
#include "qt/controls/list_views.h"
#include "qt/controls/scroll_view.h"
#include "qt/controls/status_view.h"
#include "qt/controls/text_views.h"

namespace tagwright {
namespace {

// The view when control and widget are of these types.
template <class ControlType, class WidgetType>
bool Try(std::unique_ptr<ControlView> (*make)(ControlType&, WidgetType&), Control& control,
         QWidget& widget, std::unique_ptr<ControlView>& view) {
  auto* typed_control = dynamic_cast<ControlType*>(&control);
  auto* typed_widget = qobject_cast<WidgetType*>(&widget);
  if (!typed_control || !typed_widget) return false;
  view = make(*typed_control, *typed_widget);
  return true;
}

}  // namespace

std::unique_ptr<ControlView> MakeView(Control& control, QWidget& widget) {
  std::unique_ptr<ControlView> view;
  Try(MakeLabelView, control, widget, view) || Try(MakeSwatchView, control, widget, view) ||
      Try(MakeLineView, control, widget, view) || Try(MakeLinesView, control, widget, view) ||
      Try(MakeComboView, control, widget, view) || Try(MakeListView, control, widget, view) ||
      Try(MakeCheckView, control, widget, view) || Try(MakeButtonView, control, widget, view) ||
      Try(MakeScrollView, control, widget, view) || Try(MakeStatusView, control, widget, view) ||
      Try(MakeFrameView, control, widget, view);
  return view;
}

}  // namespace tagwright
