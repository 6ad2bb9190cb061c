#include "qt/controls/frame_view.h"

#include <QWidget>

#include "qt/controls/widget_view.h"

namespace tagwright {
namespace {

class FrameView : public WidgetView {
 public:
  FrameView(PictureBox& box, QWidget& widget) : WidgetView(box, widget) { RenderAll(); }
};

}  // namespace

std::unique_ptr<ControlView> MakeFrameView(PictureBox& box, QWidget& widget) {
  return std::make_unique<FrameView>(box, widget);
}

}  // namespace tagwright
