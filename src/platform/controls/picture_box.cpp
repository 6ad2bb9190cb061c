#include "platform/controls/picture_box.h"

#include <utility>

#include "platform/painting/recorder.h"

namespace tagwright {

PictureBox::PictureBox(Container* container, std::string name, int index)
    : Container(container, std::move(name), index) {
  SetCanvas(std::make_unique<RecordingSurface>());
}

void PictureBox::SetCanvas(std::unique_ptr<Surface> surface) {
  surface_ = std::move(surface);
  surface_->ShareScale(Scale());
  Notify(Aspect::kImage);
}

void PictureBox::SetBackColor(Color value) {
  if (value == back_color_) return;
  back_color_ = value;
  Notify(Aspect::kLook);
}

void PictureBox::SetImage(PicturePtr picture) {
  picture_ = std::move(picture);
  Notify(Aspect::kLook);
}

void PictureBox::SizeChanged() {
  ResizeScale(WidthTwips(), HeightTwips());
  Notify(Aspect::kGeometry);
}

}  // namespace tagwright
